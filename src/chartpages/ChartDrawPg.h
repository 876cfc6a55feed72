#pragma once
// CChartDrawPg: how a chart's data series is drawn. The host sets the draw type
// ("CP_DrawType"); the page shows the colours, weight, style, shading, point-and-figure box,
// bar colouring or HLC channel analytics that type uses, and hides the rest.

#include <cstdint>
#include <memory>

#include "chartpages/ChartDrawProps.h"
#include "chartpages/ChartPage.h"
#include "chartpages/ChartPagesRes.h"
#include "dlgkit/PageColorButtons.h"
#include "dlgkit/DataExchange.h"
#include "xml/Xml.h"

class CChartDrawPg final : public orv::ChartPageBase<CChartDrawPg> {
 public:
  static constexpr const char* kRootName = "ChartDrawPg";

  // The colour buttons, in the page's order.
  static constexpr int kColorButtons[] = {IDC_CD_COLOR1,    IDC_CD_COLOR2,       IDC_CD_DOJI_COLOR,  IDC_CD_BCL_COLOR,
                                          IDC_CD_GAP_COLOR, IDC_CD_BAR_UP_COLOR, IDC_CD_BAR_DN_COLOR};

  CChartDrawPg();

  // ChartPage
  const orv::ChartPageInfo& Info() const override { return info_; }
  void Load(XmlNode root) override;
  bool Save(XmlNode root) override;
  bool Validate() override;
  bool CleansBeforeExchange() const override { return true; }
  void OnWindowClosing() override;

  // Page
  void OnCommand(int id, int code) override;

  // The colour a colour button shows, and a colour picked on it (as its drop-down does).
  std::uint32_t ButtonColor(int id) const;
  void SetButtonColor(int id, std::uint32_t color);
  // The colour button that offers no colour ("Hide"): colour 1 of a line chart.
  bool OffersNoColor(int id) const { return id == IDC_CD_COLOR1 && noColorOnColor1_; }

  const ChartDrawProps& Props() const { return props_; }

  // Kit data exchange: the page's own handling of a refused value, quiet while the window closes.
  void OnDataValidateError(int id, bool save, const CDataValidateError& error);
  void OnDataExchangeError(int id, bool save);

 protected:
  bool OnPropertiesRead() override;
  bool OnControlsThemed() override;

 private:
  std::uint32_t& ColorSlot(int id);
  void AttachColorButtons();
  void KeepButtonColors();
  std::uint32_t Flags() const;
  const ChartStyleRow& StyleRow() const;
  bool Exchange(bool save);
  void RecordsToControls();
  void RecordsFromControls();
  bool FieldExchange(bool save);
  void UpdateControls();
  void Show(int id, bool shown);
  bool Checked(int id);
  void Reset();
  void SetDirty();
  void TakeAnalyticsColors();

  orv::ChartPageInfo info_;
  ChartDrawProps props_;
  bool initialising_ = true;
  bool hasWindow_ = false;
  bool quiet_ = false;  // the window is closing: a refused value says nothing
  bool noColorOnColor1_ = false;
  // The colour buttons' colours; a button starts white.
  std::uint32_t colors_[7] = {0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF};
  std::unique_ptr<orv::PageColorButtons> buttons_;  // the window's, while it lives
};
