#pragma once
// CGenYAxisPpg: the scale of a chart's value axis: which limits and units are pinned and at what
// values, the coordinate system, how dragging acts on the axis, and how a percent scale is
// normalised. Values are shown and read in the chart's own price format, so that a user of a
// fractional market edits 123'16 and not 123.5.

#include <cstdint>
#include <string_view>

#include "chartpages/AxisProps.h"
#include "chartpages/ChartPage.h"
#include "chartpages/ChartPagesRes.h"
#include "dlgkit/DataExchange.h"
#include "xml/Xml.h"

// The value a value edit's text stands for under the page's price code (`Precision` when it isn't
// 0, else `Format`): empty is 0; a tick mark under a fractional `Format` (8 and up) is a whole
// number and a count of 2 << (Format - 8) parts; anything else goes to ParsePrice. What the
// parser can't read is kNoValueNotANumber, what lies past +-1999999999 parts is kNoValueOutOfRange.
inline constexpr double kNoValueNotANumber = 1.8041097e36;
inline constexpr double kNoValueOutOfRange = 1.8041099e36;
double ReadAxisValueText(std::string_view text, const GenYAxisProps& props);
// The text of a value in an edit: FormatPrice with `Market` as its layout and the page's price code.
std::string AxisValueText(double value, const GenYAxisProps& props);

class CGenYAxisPpg final : public orv::ChartPageBase<CGenYAxisPpg> {
 public:
  static constexpr const char* kRootName = "GenYAxisPpg";
  // Radio groups: the first id of each, its value being the offset from it.
  static constexpr int kCoordSysRadios[] = {IDC_YA_LINEAR, IDC_YA_LOG, IDC_YA_PCT_CHANGE, IDC_YA_ZERO_TO_100};
  static constexpr int kDragModeRadios[] = {IDC_YA_SCROLL, IDC_YA_STRETCH, IDC_YA_SCROLL_STRETCH};
  static constexpr int kPctOriginRadios[] = {IDC_YA_OLDEST, IDC_YA_NEWEST,  IDC_YA_HIGHEST,
                                             IDC_YA_LOWEST, IDC_YA_AVERAGE, IDC_YA_FIXED_X};
  static constexpr std::int32_t kPctOriginAverage = 4;

  CGenYAxisPpg();

  // ChartPage
  const orv::ChartPageInfo& Info() const override { return info_; }
  void Load(XmlNode root) override { props_.Read(root); }
  bool Save(XmlNode root) override;
  bool Validate() override;
  // Apply tells the site that the page is clean before the host gets its properties.
  bool CleansBeforeExchange() const override { return true; }
  void OnWindowClosing() override;

  // Page
  void OnCommand(int id, int code) override;

  const GenYAxisProps& Props() const { return props_; }

 protected:
  bool OnPropertiesRead() override;
  bool OnControlsThemed() override;

 private:
  struct PinRow {
    int check, edit;
    std::int32_t GenYAxisProps::*pin;
    double GenYAxisProps::*value;
  };
  static const PinRow kPins[4];

  void Exchange(bool save);
  void ExchangePins(bool save);
  void ExchangeValues(bool save);
  void EnableEdits();
  void EnableLimitPins();
  void EnableNormalising();
  void ChangeDragMode();

  orv::ChartPageInfo info_;
  GenYAxisProps props_;
  bool forcedMax_ = false;  // "Scroll" pinned the maximum, which the user had not
  bool forcedMin_ = false;
  bool exchangeValues_ = false;  // the value edits are there to be exchanged
  bool initialising_ = true;
};
