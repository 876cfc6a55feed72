#pragma once
// CPointBreakPpg: the two parameters of a point break chart, how many points a break takes
// ("Points") and which price of the bar feeds it ("Line": the row of the source combo).

#include <cstdint>

#include "chartpages/ChartPage.h"
#include "chartpages/ChartPagesRes.h"
#include "dlgkit/DataExchange.h"
#include "xml/Xml.h"

class CPointBreakPpg final : public orv::ChartPageBase<CPointBreakPpg> {
 public:
  static constexpr const char* kRootName = "PointBreakPpg";
  // The rows of the source combo; "Line" is the row.
  static constexpr const char* kSources[] = {"Close", "High", "Low", "Open"};
  static constexpr int kDefaultPoints = 3;

  CPointBreakPpg();

  // ChartPage
  const orv::ChartPageInfo& Info() const override { return info_; }
  void Load(XmlNode root) override;
  bool Save(XmlNode root) override;
  bool Validate() override;
  void OnWindowClosing() override;

  // Page
  void OnCommand(int id, int code) override;

  int Line() const { return line_; }
  int Points() const { return points_; }

 protected:
  bool OnPropertiesRead() override;
  bool OnControlsThemed() override;

 private:
  bool Exchange(bool save);

  orv::ChartPageInfo info_;
  int line_ = 0;
  int points_ = kDefaultPoints;
  bool filling_ = true;
  bool hasWindow_ = false;
};
