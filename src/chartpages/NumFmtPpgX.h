#pragma once
// CNumFmtPpgX: how numbers on a chart are shown. The host offers categories (fractions, decimals,
// dates, times); the page shows the chosen category's types, or its decimal places, and a sample
// of the choice: a price through FormatPrice, a date or a time through the date formats.

#include <cstdint>
#include <string>

#include "chartpages/ChartPage.h"
#include "chartpages/ChartPagesRes.h"
#include "chartpages/NumFmtProps.h"
#include "xml/Xml.h"

class CNumFmtPpgX final : public orv::ChartPageBase<CNumFmtPpgX> {
 public:
  static constexpr const char* kRootName = "NumFmtPpgX";
  static constexpr int kMaxPlaces = 7;
  // What the sample shows: a price, a time of 870 minutes (14:30), the date of serial 37375 + 2
  // (Wednesday 1 May 2002).
  static constexpr double kSamplePrice = 123.50390625;
  static constexpr std::int32_t kSampleMinutes = 870;
  static constexpr double kSampleDate = 37375.0 + 2.0;

  CNumFmtPpgX();

  // ChartPage
  const orv::ChartPageInfo& Info() const override { return info_; }
  void Load(XmlNode root) override;
  bool Save(XmlNode root) override;
  void OnWindowClosing() override;

  // Page
  void OnCommand(int id, int code) override;

  const NumFmtProps& Props() const { return props_; }
  // The sample's text for a category (what static 2763 shows when it is selected).
  static std::string SampleText(const NumFmtCategory& category);

 protected:
  bool OnPropertiesRead() override;
  bool OnControlsThemed() override;

 private:
  NumFmtCategory* Selected();
  void StoreControls();
  void RebuildTypeArea();
  void RefreshSample();
  void TakePlaces();
  void SetPlacesText(int places);
  void Show(int id, bool shown);

  orv::ChartPageInfo info_;
  NumFmtProps props_;
  int places_ = 0;          // the decimal places the edit holds
  bool hasWindow_ = false;  // the controls exist and hold the page's state
  bool filling_ = false;    // the page itself is writing to its controls: no change to react to
};
