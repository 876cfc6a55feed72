#pragma once
// A small chart page for the frame's tests, natively and under Wine: one edit (Value) and one
// check box (Flag) read from and written to its root element. What it does at each step of the
// frame's protocol is set by its Options, so one page serves every case.

#include <cstdint>
#include <string>

#include "SampleChartPageRes.h"
#include "chartpages/ChartPage.h"
#include "dlgkit/Controls.h"
#include "xml/Xml.h"
#include "xml/XmlError.h"

class CSampleChartPage final : public orv::ChartPageBase<CSampleChartPage> {
 public:
  struct Options {
    std::int32_t scope = 0;
    bool validates = true;  // false: the validator refuses
    bool writes = true;     // false: the writer refuses
    bool cleansBeforeExchange = false;
    bool dirtyWhileOpening = false;  // the fill's own change notifications mark the page dirty
    int dialogId = IDD_SAMPLE_CHART_PAGE;
    orv::Status loadFails = 0;    // non-zero: Load raises XmlComError with it
    orv::Status changeFails = 0;  // non-zero: a user's change raises XmlComError with it
  };

  CSampleChartPage() : CSampleChartPage(Options{}) {}
  explicit CSampleChartPage(const Options& options) : options_(options) {
    info_.dialogId = options.dialogId;
    info_.rootName = "SampleChartPg";
    info_.scope = options.scope;
    info_.title = "Sample";
    info_.titleId = IDS_SAMPLE_CHART_PAGE_TITLE;
    info_.helpFile = "SAMPLE.HLP";
  }

  const orv::ChartPageInfo& Info() const override { return info_; }
  bool CleansBeforeExchange() const override { return options_.cleansBeforeExchange; }

  void Load(XmlNode root) override {
    ++loads_;
    if (options_.loadFails != 0) throw XmlComError(options_.loadFails, "the sample page can't read its root");
    XmlGetChildText(root, "Value", value_);
    XmlGetChildValue(root, "Flag", flag_);
  }
  bool Save(XmlNode root) override {
    ++saves_;
    if (!options_.writes) return false;
    XmlAddTextChild(root, "Value", value_);
    XmlAddValueChild(root, "Flag", flag_, XmlValueKind::Decimal);
    return true;
  }
  bool Validate() override {
    ++validations_;
    if (hasWindow_) ReadControls();
    return options_.validates;
  }

  void OnCommand(int id, int code) override {
    if (filling_) {
      if (options_.dirtyWhileOpening) MarkDirty();
      return;
    }
    if ((id == IDC_SAMPLE_VALUE && code == orv::kEnChange) || (id == IDC_SAMPLE_FLAG && code == orv::kBnClicked)) {
      if (options_.changeFails != 0) throw XmlComError(options_.changeFails, "the sample page failed at a change");
      MarkDirty();
    }
  }

  // The window goes (the frame deactivates the page): the fields keep what was shown.
  void OnWindowClosing() override {
    ReadControls();
    hasWindow_ = false;
  }

  const std::string& Value() const { return value_; }
  std::int32_t Flag() const { return flag_; }
  int Loads() const { return loads_; }
  int Saves() const { return saves_; }
  int Validations() const { return validations_; }

 protected:
  bool OnPropertiesRead() override {
    hasWindow_ = true;
    filling_ = true;
    Ctl().SetDlgItemTextA(IDC_SAMPLE_VALUE, value_);
    Ctl().CheckDlgButton(IDC_SAMPLE_FLAG, flag_ ? orv::kBstChecked : orv::kBstUnchecked);
    filling_ = false;
    return true;
  }

 private:
  void ReadControls() {
    if (!hasWindow_) return;
    value_ = Ctl().GetDlgItemTextA(IDC_SAMPLE_VALUE, 256);
    flag_ = Ctl().IsDlgButtonChecked(IDC_SAMPLE_FLAG) == orv::kBstChecked ? 1 : 0;
  }

  Options options_;
  orv::ChartPageInfo info_;
  std::string value_ = "default";
  std::int32_t flag_ = 0;
  bool filling_ = false;
  bool hasWindow_ = false;
  int loads_ = 0;
  int saves_ = 0;
  int validations_ = 0;
};
