#pragma once
// CChartGenPpg: the chart's general settings: the transparency of its floating tool-tip window,
// stored as an alpha (255 opaque) and shown as a percentage (100 fully transparent), and whether
// a header prints. The only page that exchanges with scope 1.

#include <cstdint>
#include <string>

#include "chartpages/ChartPage.h"
#include "chartpages/ChartPagesRes.h"
#include "dlgkit/DataExchange.h"
#include "xml/Xml.h"

class CChartGenPpg final : public orv::ChartPageBase<CChartGenPpg> {
 public:
  static constexpr const char* kRootName = "ChartGenPpg";
  static constexpr std::uint32_t kDefaultAlpha = 127;
  // WM_STYLECHANGED, GWL_EXSTYLE and WS_EX_CONTROLPARENT.
  static constexpr unsigned kWmStyleChanged = 0x007D;
  static constexpr std::intptr_t kGwlExStyle = -20;
  static constexpr std::uint32_t kExControlParent = 0x10000;
  // The platform's STYLESTRUCT.
  struct StyleChange {
    std::uint32_t styleOld;
    std::uint32_t styleNew;
  };

  CChartGenPpg();

  // ChartPage
  const orv::ChartPageInfo& Info() const override { return info_; }
  void Load(XmlNode root) override;
  bool Save(XmlNode root) override;
  bool Validate() override;
  void OnWindowClosing() override;

  // Page
  void OnCommand(int id, int code) override;
  bool OnUnhandledMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                          std::intptr_t& result) override;

  std::int32_t PrintHeader() const { return printHeader_; }

 protected:
  bool OnInitPage() override;

 private:
  std::string TransparencyText();

  orv::ChartPageInfo info_;
  std::int32_t printHeader_ = 0;
  bool hasSpin_ = false;    // the up-down exists: the page's window is there
  std::string closedText_;  // the edit's text when the window went, for an Apply without it
};
