#pragma once
// CGraphObjLinePg: the "Line" tab of a study drawn with several named lines of which the user
// edits one at a time: the lines by name on the left, colour, style and weight of the selected one
// on the right. CLinePg<id> is the line list with its property box; the sheet's page is kind 0.
//
// Kind 1 is the "Grid" tab with "Sho&w Grid" (three-state); kind 2 always offers "Show price
// box", which otherwise comes only with UseShowPrice. A line's LineFlag bit 2 takes its style
// box away, bit 4 its weight box.

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "dlgkit/LineProp.h"
#include "dlgkit/PageColorButtons.h"
#include "dlgkit/ThemedPage.h"
#include "linestudies/LineStudiesRes.h"
#include "linestudies/LineStudyPage.h"
#include "xml/Xml.h"

class CLinePgBase : public orv::ThemedPage<CLinePgBase>, public orv::LineStudyPage {
 public:
  static constexpr int kMaxLines = 4096;  // more is a broken document

  // LineStudyPage
  orv::Page& AsPage() override { return *this; }
  bool Load(XmlNode propertyPage) override;
  void Save(XmlNode propertyPage) override;
  bool IsDirty() const override { return dirty_; }
  void BindWindow(orv::Controls& controls, orv::WindowHandle window) override { RebindWindow(controls, window); }
  bool InitFurtherWindow() override { return OnInit(); }
  void ReloadWindow() override;

  // Page
  void OnCommand(int id, int code) override;
  orv::ApplyResult OnApply() override;

  virtual bool OnInit();
  virtual bool Exchange(bool save, int controlId);
  void SetModified(bool flag);
  void SetDirty(bool flag) { dirty_ = flag; }

  // The colour button's colour, and a colour picked on it (as its drop-down does).
  std::uint32_t ButtonColor() const;
  void SetButtonColor(std::uint32_t color);

  std::int32_t Kind() const { return kind_; }
  // The tab's name by kind.
  const char* Title() const { return kind_ == 1 ? "Grid" : "Line"; }
  const std::vector<CLineProp>& Lines() const { return lines_; }
  int Selected() const { return selected_; }
  int LastShown() const { return lastShown_; }
  std::int32_t ShowGrid() const { return showGrid_; }
  bool ShowPrice() const { return showPrice_; }
  bool ShowPriceUsed() const { return showPriceUsed_; }

 protected:
  explicit CLinePgBase(std::int32_t kind) : kind_(kind), showPriceUsed_(kind == 2) {}
  bool OnInitPage() final { return OnInit(); }
  bool InitBeforeTheme() const override { return true; }

 private:
  void FillList();
  void ApplyFlagRule(const CLineProp& line);
  void OnSelectLine();
  CLineProp& Line(int index);
  // The style and weight boxes into `line`.
  void StoreStyleAndWeight(CLineProp& line);
  orv::PageColorButtons* Buttons() const;

  std::vector<CLineProp> lines_;
  int selected_ = 0;
  int lastShown_ = 0;
  bool updating_ = true;
  bool dirty_ = false;
  std::int32_t kind_;
  std::int32_t showGrid_ = 0;
  bool showPrice_ = false;
  bool showPriceUsed_;
  std::uint32_t heldColor_ = 0;  // what the button shows without the platform's
  // The platform's button, one per window of the page (a page named twice has two).
  std::map<orv::WindowHandle, std::unique_ptr<orv::PageColorButtons>> buttons_;
};

template <int id>
class CLinePg : public CLinePgBase {
 public:
  static constexpr int kDialogId = id;
  int DialogId() const override { return id; }

 protected:
  explicit CLinePg(std::int32_t kind) : CLinePgBase(kind) {}
};

class CGraphObjLinePg final : public CLinePg<IDD_GRAPH_OBJ_LINE_PG> {
 public:
  static constexpr const char* kName = "GraphObjLinePg";
  explicit CGraphObjLinePg(std::int32_t kind = 0) : CLinePg(kind) {}
};
