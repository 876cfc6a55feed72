#pragma once
// CLsPgAdvanced: what a drawn object is attached to (the symbol, the chart's X/Y values, or a
// place on the screen). The screen choice exists only for the kind of study that can use it.

#include <cstdint>

#include "dlgkit/ThemedPage.h"
#include "linestudies/LineStudiesRes.h"
#include "linestudies/LineStudyPage.h"
#include "xml/Xml.h"

class CLsPgAdvanced final : public orv::ThemedPage<CLsPgAdvanced>, public orv::LineStudyPage {
 public:
  static constexpr int kDialogId = IDD_LS_PG_ADVANCED;
  static constexpr const char* kTitle = "Advanced";
  static constexpr const char* kName = "LsPgAdvanced";
  // The PropertySheet Kind for which "Screen X/Y Position" is offered.
  static constexpr std::int32_t kKindWithScreenAnchor = 6;

  enum Attach : std::int32_t { kAttachSymbol = 0, kAttachChart = 1, kAttachScreen = 2 };

  CLsPgAdvanced() = default;

  // LineStudyPage
  orv::Page& AsPage() override { return *this; }
  bool Load(XmlNode propertyPage) override;
  void Save(XmlNode propertyPage) override;
  bool IsDirty() const override { return dirty_; }
  void BindWindow(orv::Controls& controls, orv::WindowHandle window) override { RebindWindow(controls, window); }
  bool InitFurtherWindow() override { return OnInitPage(); }
  void ReloadWindow() override { OnInitPage(); }

  // Page
  int DialogId() const override { return kDialogId; }
  void OnCommand(int id, int code) override;
  bool OnKillActive() override;
  orv::ApplyResult OnApply() override { return orv::ApplyResult::NoError; }  // applied on leaving

  std::int32_t AttachValue() const { return attach_; }
  std::int32_t Kind() const { return kind_; }

 protected:
  bool OnInitPage() override;

 private:
  void SetModified(bool modified);
  void UpdateControls();
  void ReadAttachGroup();

  std::int32_t attach_ = kAttachSymbol;
  std::int32_t kind_ = 0;
  bool dirty_ = false;
  bool updating_ = true;  // until the controls are filled: clicks then are not the user's
};
