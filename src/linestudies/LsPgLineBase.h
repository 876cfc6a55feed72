#pragma once
// CLsPgLineTab: the dialog side every line tab of a study shares (Fibonacci, Gann, pitchfork,
// parallel): a row per line with its name, visibility box, colour button, style and weight boxes,
// and for some studies a ratio box. CLsPgLineBase<id> gives it the page's dialog id. A subclass
// sets the wrapper element and the rows, and adds its own elements and boxes.
//
// Row i (from 0) has the ids 2400 + 10i and on: +0 the name (read-only), +1 visibility
// (LineVis), +2 the colour button, +3 style, +4 weight, +5 the ratio.

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "dlgkit/LineProp.h"
#include "dlgkit/PageColorButtons.h"
#include "dlgkit/ThemedPage.h"
#include "linestudies/LineStudiesRes.h"
#include "linestudies/LineStudyPage.h"
#include "linestudies/TVector.h"
#include "xml/Xml.h"

class CLsPgLineTab : public orv::ThemedPage<CLsPgLineTab>, public orv::LineStudyPage {
 public:
  static constexpr int kFirstRowId = IDC_LS_LINE_ROW0;
  static constexpr int kRowStep = 10;
  enum Column : int { kNameBox = 0, kVisibleBox = 1, kColorButton = 2, kStyleBox = 3, kWeightBox = 4, kRatioBox = 5 };
  static constexpr int RowId(int row, int column) { return kFirstRowId + kRowStep * row + column; }
  // Commands from these ids with a click, an edit's change or a selection are the user's changes.
  static constexpr int kFirstCommandId = 2400;
  static constexpr int kLastCommandId = 2510;

  ~CLsPgLineTab() override;

  // LineStudyPage
  orv::Page& AsPage() override { return *this; }
  bool Load(XmlNode element) override;
  void Save(XmlNode propertyPage) override;
  bool IsDirty() const override { return dirty_; }
  void BindWindow(orv::Controls& controls, orv::WindowHandle window) override { RebindWindow(controls, window); }
  bool InitFurtherWindow() override { return OnInit(); }
  void ReloadWindow() override;

  // Page
  void OnCommand(int id, int code) override;
  bool OnKillActive() override { return Exchange(true, -1); }
  orv::ApplyResult OnApply() override;

  // The page's operations; a controlId of -1 means every control.
  virtual bool OnInit();
  virtual bool Exchange(bool save, int controlId);
  void SetModified(bool flag);
  void SetDirty(bool flag) { dirty_ = flag; }

  // The colour a row's button shows, and a colour picked on it (as its drop-down does).
  std::uint32_t ButtonColor(int id) const;
  void SetButtonColor(int id, std::uint32_t color);

  const char* WrapperName() const { return wrapper_; }
  int Rows() const { return rows_; }
  const std::vector<CLineProp>& Lines() const { return lines_.items; }

 protected:
  explicit CLsPgLineTab(const char* wrapper) : wrapper_(wrapper) {}

  bool OnInitPage() final { return OnInit(); }
  // The colour buttons are attached before the children are themed.
  bool InitBeforeTheme() const override { return true; }

  static bool Covers(int controlId, int id) { return controlId == -1 || controlId == id; }
  // The element this page wrote below the PropertyPage, found by direct child lookup.
  XmlNode SavedWrapper(XmlNode propertyPage) const { return XmlFindChild(propertyPage, wrapper_); }
  // Boolean children and check boxes.
  static void ReadBool(XmlNode parent, const char* name, bool& value);
  static void AddBool(XmlNode parent, const char* name, bool value);
  void ExchangeCheck(int id, bool& value, bool save, int controlId);
  void ShowAndEnable(int id, bool on);
  // The ratio boxes (+5) of the rows below rows: "%.*g" at 15 digits; a text that isn't a number
  // beeps, takes the focus and fails. The list grows to the rows it is shown in.
  bool ExchangeRatios(TVector<double>& ratios, bool save, int controlId);
  // The "Multiplier" list: read below `wrapper`, written below `wrapper`.
  static void ReadRatios(XmlNode wrapper, TVector<double>& ratios);
  static void WriteRatios(XmlNode wrapper, const TVector<double>& ratios);

  const char* wrapper_;
  int rows_ = 0;
  TVector<CLineProp> lines_;
  bool dirty_ = false;
  bool updating_ = true;  // the page writes its own controls: their notifications aren't the user's

 private:
  void AttachColorButtons();
  // The platform's buttons of the window the page is pointed at; null without them.
  orv::PageColorButtons* Buttons() const;
  void ExchangeRow(int row, bool save, int controlId);

  std::vector<std::uint32_t> heldColors_;  // row by row: what a button shows without the platform's
  // The platform's buttons, one set per window of the page (a page named twice has two).
  std::map<orv::WindowHandle, std::unique_ptr<orv::PageColorButtons>> buttons_;
};

// A line tab with its dialog id: its template, help topic and apply code.
template <int id>
class CLsPgLineBase : public CLsPgLineTab {
 public:
  static constexpr int kDialogId = id;
  int DialogId() const override { return id; }

 protected:
  explicit CLsPgLineBase(const char* wrapper) : CLsPgLineTab(wrapper) {}
};
