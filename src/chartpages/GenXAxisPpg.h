#pragma once
// CGenXAxisPpg: a chart's time axis: the empty bars at its right margin, the scrollbar lock, and
// the date and time formats of its labels, chosen by hand or left to the chart.

#include <cstdint>

#include "chartpages/AxisProps.h"
#include "chartpages/ChartPage.h"
#include "chartpages/ChartPagesRes.h"
#include "dlgkit/Clock.h"
#include "dlgkit/DataExchange.h"
#include "xml/Xml.h"

class CGenXAxisPpg final : public orv::ChartPageBase<CGenXAxisPpg> {
 public:
  static constexpr const char* kRootName = "GenXAxisPpg";
  static constexpr std::int32_t kMaxMarginBars = 50;
  // The rows of the date list, in order; each shows today's date in its format.
  static constexpr std::int32_t kDateIds[] = {16, 32, 48, 64, 80, 96, 112, 128, 192};
  // The rows of the time list, with their fixed texts.
  struct TimeRow {
    std::int32_t id;
    const char* text;
  };
  static constexpr TimeRow kTimeRows[] = {{512, "2:15 PM"}, {256, "14:15"}};

  // `clock` gives today's date for the date rows; it outlives the page.
  explicit CGenXAxisPpg(const orv::Clock& clock = orv::SystemClock());

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

  const GenXAxisProps& Props() const { return props_; }

  // Kit data exchange: the page's own texts for a refused value, quiet while the window closes.
  void OnDataValidateError(int id, bool save, const CDataValidateError& error);
  void OnDataExchangeError(int id, bool save);

 protected:
  bool OnPropertiesRead() override;
  bool OnControlsThemed() override;

 private:
  bool Exchange(bool save);
  void FillLists();
  void EnableLists();
  void Refuse(int id, const std::string& text);

  orv::ChartPageInfo info_;
  const orv::Clock& clock_;
  GenXAxisProps props_;
  bool initialising_ = true;
  bool hasWindow_ = false;
  bool quiet_ = false;  // the window is closing: a refused value says nothing
};
