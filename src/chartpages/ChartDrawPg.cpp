#include "chartpages/ChartDrawPg.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>

#include "dlgkit/Controls.h"
#include "dlgkit/Page.h"
#include "xml/StrFormat.h"

namespace {

struct ComboItem {
  const char* text;
  int data;
};

constexpr ComboItem kBoxUnits[] = {{"Price", 0}, {"Tick", 1}};
constexpr ComboItem kTextColors[] = {{"Up Color", 0}, {"Down Color", 1}};

// The row of a draw type outside the tables: nothing in use, no keys.
constexpr ChartStyleRow kNoStyle = {"", "", "", "", 0};

void Fill(orv::Controls& c, int id, const ComboItem* items, std::size_t count) {
  c.ComboResetContent(id);
  for (std::size_t i = 0; i < count; ++i) c.ComboAddString(id, items[i].text, items[i].data);
}

// Selects the first item holding `data`, item 0 when none does.
void SelectByData(orv::Controls& c, int id, int data) {
  const int index = c.ComboFindItemData(id, data);
  c.ComboSetCurSel(id, index < 0 ? 0 : index);
}

int SelectedData(orv::Controls& c, int id) {
  return static_cast<int>(c.ComboGetItemData(id, std::max(c.ComboGetCurSel(id), 0)));
}

CLineProp& Entry(TStrHash<CLineProp, CStringTraits>& lines, const char* key) {
  if (CLineProp* found = lines.Find(key)) return *found;
  lines.SetAt(key, CLineProp{});
  return *lines.Find(key);
}

// A button's state as the page keeps it: 0 to 2, anything else counts as 0.
int ButtonState(std::int32_t value) { return value < 0 || value > 2 ? 0 : value; }

}  // namespace

CChartDrawPg::CChartDrawPg() {
  info_.dialogId = IDD_CHART_DRAW_PG;
  info_.rootName = kRootName;
  info_.scope = 0;
  info_.title = "Draw";
  info_.titleId = IDS_CHART_DRAW_PG_TITLE;
}

std::uint32_t& CChartDrawPg::ColorSlot(int id) {
  const auto* found = std::find(std::begin(kColorButtons), std::end(kColorButtons), id);
  if (found == std::end(kColorButtons)) throw XmlComError(orv::kStatusInvalidArg, "ChartDrawPg: no such colour button");
  return colors_[found - std::begin(kColorButtons)];
}

std::uint32_t CChartDrawPg::ButtonColor(int id) const {
  if (buttons_ && buttons_->IsAttached(id)) return buttons_->Color(id);
  return const_cast<CChartDrawPg*>(this)->ColorSlot(id);
}

void CChartDrawPg::SetButtonColor(int id, std::uint32_t color) {
  ColorSlot(id) = color;
  if (buttons_ && buttons_->IsAttached(id)) buttons_->SetColor(id, color);
}

void CChartDrawPg::AttachColorButtons() {
  buttons_ = orv::MakePageColorButtons();
  if (!buttons_) return;
  for (int id : {IDC_CD_COLOR1, IDC_CD_COLOR2}) buttons_->Attach(Window(), id, OffersNoColor(id), ColorSlot(id));
  for (int id : {IDC_CD_DOJI_COLOR, IDC_CD_BCL_COLOR, IDC_CD_GAP_COLOR})
    buttons_->Attach(Window(), id, false, ColorSlot(id));
}

void CChartDrawPg::KeepButtonColors() {
  if (!buttons_) return;
  for (int id : kColorButtons) {
    if (buttons_->IsAttached(id)) ColorSlot(id) = buttons_->Color(id);
  }
}

const ChartStyleRow& CChartDrawPg::StyleRow() const {
  return props_.drawType >= 0 && props_.drawType < kDrawTypeCount ? ChartStyleTable[props_.drawType] : kNoStyle;
}

std::uint32_t CChartDrawPg::Flags() const { return StyleRow().flags; }

namespace {
const char* TypeName(std::int32_t type) { return type >= 0 && type < kDrawTypeCount ? ChartTypeTable[type].name : ""; }
}  // namespace

void CChartDrawPg::Load(XmlNode root) {
  props_.Read(root);
  SetButtonColor(IDC_CD_BAR_UP_COLOR, props_.barUpColor);
  SetButtonColor(IDC_CD_BAR_DN_COLOR, props_.barDnColor);
  // The analytics' buttons take their colours only from an "AnalyticsInfo" that was there.
  if (!props_.analyticsRead) return;
  SetButtonColor(IDC_CD_DOJI_COLOR, props_.analytics.DojiColor);
  SetButtonColor(IDC_CD_BCL_COLOR, props_.analytics.BclColor);
  SetButtonColor(IDC_CD_GAP_COLOR, props_.analytics.GapColor);
}

void CChartDrawPg::TakeAnalyticsColors() {
  props_.analytics.DojiColor = ButtonColor(IDC_CD_DOJI_COLOR);
  props_.analytics.BclColor = ButtonColor(IDC_CD_BCL_COLOR);
  props_.analytics.GapColor = ButtonColor(IDC_CD_GAP_COLOR);
}

bool CChartDrawPg::Save(XmlNode root) {
  const ChartStyleRow& row = StyleRow();
  if (CLineProp* line = props_.lineProps.Find(row.key1)) line->Color = ButtonColor(IDC_CD_COLOR1);
  if (CLineProp* line = props_.lineProps.Find(row.key2)) line->Color = ButtonColor(IDC_CD_COLOR2);
  props_.barUpColor = ButtonColor(IDC_CD_BAR_UP_COLOR);
  props_.barDnColor = ButtonColor(IDC_CD_BAR_DN_COLOR);
  TakeAnalyticsColors();
  props_.Write(root);
  return true;
}

bool CChartDrawPg::Validate() { return !hasWindow_ || Exchange(true); }

void CChartDrawPg::OnWindowClosing() {
  if (!hasWindow_) return;
  quiet_ = true;
  Exchange(true);
  quiet_ = false;
  KeepButtonColors();
  buttons_.reset();
  hasWindow_ = false;
}

void CChartDrawPg::OnDataValidateError(int id, bool save, const CDataValidateError& error) {
  if (!quiet_) CWinDataExchangeZel<CChartDrawPg>::OnDataValidateError(id, save, error);
}

void CChartDrawPg::OnDataExchangeError(int id, bool save) {
  if (!quiet_) CWinDataExchangeZel<CChartDrawPg>::OnDataExchangeError(id, save);
}

bool CChartDrawPg::OnPropertiesRead() {
  orv::Controls& c = Ctl();
  hasWindow_ = true;
  initialising_ = true;
  // The platform's colour buttons take the held colours; a line chart's first colour may be "none".
  noColorOnColor1_ = props_.drawType == kDrawTypeLine;
  AttachColorButtons();
  orv::FillLineChoices(c, IDC_CD_WEIGHT, orv::LineWeightChoices());
  orv::FillLineChoices(c, IDC_CD_STYLE, orv::LineStyleChoices());
  c.UpDownSetRange(IDC_CD_PERIODS_SPIN, 2, 60);
  c.UpDownSetRange(IDC_CD_PCT_UP_SPIN, 10, 500);
  c.UpDownSetRange(IDC_CD_PCT_DN_SPIN, 10, 100);
  if (buttons_) {
    for (int id : {IDC_CD_BAR_UP_COLOR, IDC_CD_BAR_DN_COLOR}) buttons_->Attach(Window(), id, false, ColorSlot(id));
  }
  c.ShowDlgItem(IDC_CD_RIBBON, true);
  Fill(c, IDC_CD_BOX_UNITS, kBoxUnits, std::size(kBoxUnits));
  c.ComboSetCurSel(IDC_CD_BOX_UNITS, props_.boxUnits);
  Fill(c, IDC_CD_TEXT_COLOR, kTextColors, std::size(kTextColors));
  c.ComboSetCurSel(IDC_CD_TEXT_COLOR, props_.boxUnits);  // the exchange below selects the real one
  c.UpDownSetRange(IDC_CD_REVERSAL_SPIN, 1, 10000);
  c.UpDownSetPos(IDC_CD_REVERSAL_SPIN, props_.reversal);
  return true;
}

// The controls are themed: the fields go to them, then the rules of what is shown.
bool CChartDrawPg::OnControlsThemed() {
  Exchange(false);
  UpdateControls();
  Ctl().EnableDlgItem(IDC_CD_GRADIENT, Checked(IDC_CD_SHADE));
  initialising_ = false;
  return true;
}

bool CChartDrawPg::Exchange(bool save) {
  if (save) {
    RecordsFromControls();
  } else {
    RecordsToControls();
  }
  return FieldExchange(save);
}

void CChartDrawPg::RecordsToControls() {
  orv::Controls& c = Ctl();
  const CLineProp& line = Entry(props_.lineProps, StyleRow().key1);
  SelectByData(c, IDC_CD_WEIGHT, line.Weight);
  SelectByData(c, IDC_CD_STYLE, line.Style);
  SelectByData(c, IDC_CD_TEXT_COLOR, props_.textColorIndex);
  if (const CShadeProp* shade = props_.shadeProps.Find(TypeName(props_.drawType))) {
    c.CheckDlgButton(IDC_CD_SHADE, shade->Mode);
    c.CheckDlgButton(IDC_CD_GRADIENT, shade->Gradient);
    c.SetDlgItemTextA(IDC_CD_TRANSP, orv::StrFormat("%d", shade->Transparency));
  }
}

void CChartDrawPg::RecordsFromControls() {
  orv::Controls& c = Ctl();
  const ChartStyleRow& row = StyleRow();
  CLineProp& line = Entry(props_.lineProps, row.key1);
  line.Weight = SelectedData(c, IDC_CD_WEIGHT);
  line.Style = SelectedData(c, IDC_CD_STYLE);
  const int selection = c.ComboGetCurSel(IDC_CD_TEXT_COLOR);
  props_.textColorIndex =
      static_cast<std::int32_t>(c.ComboGetItemData(IDC_CD_TEXT_COLOR, selection < 1 ? 0 : selection));
  if (row.flags & kDrawColor1) Entry(props_.lineProps, row.key1).Color = ButtonColor(IDC_CD_COLOR1);
  if (row.flags & kDrawColor2) Entry(props_.lineProps, row.key2).Color = ButtonColor(IDC_CD_COLOR2);
  CShadeProp shade;
  shade.Mode = Checked(IDC_CD_SHADE) ? 1 : 0;
  const int transparency = std::atoi(c.GetDlgItemTextA(IDC_CD_TRANSP, kFloatBuffer).c_str());
  shade.Transparency = std::clamp(transparency, 0, 100);
  shade.Gradient = Checked(IDC_CD_GRADIENT) ? 1 : 0;
  props_.shadeProps.SetAt(TypeName(props_.drawType), shade);
}

bool CChartDrawPg::FieldExchange(bool save) {
  orv::Controls& c = Ctl();
  if (props_.drawType == kDrawTypePointAndFigure) {
    if (!DDX_ComboData(IDC_CD_BOX_UNITS, &props_.boxUnits, save)) return false;
    if (!DDX_Float(IDC_CD_BOX_SIZE, &props_.boxSize, save, false, 0.0, 0.0, 15)) return false;
    if (!DDV_MinMaxFloat(IDC_CD_BOX_SIZE, props_.boxSize, save, 0.0, 100000.0)) return false;
    if (!DDX_Int(IDC_CD_TICK_COUNT, &props_.tickCount, true, save)) return false;
    if (!DDV_MinMaxInt(IDC_CD_TICK_COUNT, props_.tickCount, save, 1, 10000)) return false;
    // Disabled: it shows the default tick size, and reading it back keeps that.
    if (!DDX_Float(IDC_CD_TICK_SIZE, &props_.defTickSize, save, false, 0.0, 0.0, 15)) return false;
    if (!DDX_Int(IDC_CD_REVERSAL, &props_.reversal, true, save)) return false;
    if (!DDV_MinMaxInt(IDC_CD_REVERSAL, props_.reversal, save, 1, 10000)) return false;
  }
  if (save) {
    props_.barColoring = c.IsDlgButtonChecked(IDC_CD_BAR_COLORS);
  } else {
    props_.barColoring = ButtonState(props_.barColoring);
    c.CheckDlgButton(IDC_CD_BAR_COLORS, props_.barColoring);
  }
  if (!DDX_Float(IDC_CD_BAR_UP_PCT, &props_.barUpPercent, save, true, 0.0, 50.0, 15)) return false;
  if (!DDX_Float(IDC_CD_BAR_DN_PCT, &props_.barDnPercent, save, true, 0.0, 50.0, 15)) return false;
  CAnalytics& a = props_.analytics;
  DDX_Check(IDC_CD_TAILS, &a.TailsOn, save);
  if (!DDX_Int(IDC_CD_PERIODS, &a.Periods, true, save)) return false;
  if (!DDX_Int(IDC_CD_PCT_UP, &a.PercentUp, true, save)) return false;
  if (!DDX_Int(IDC_CD_PCT_DN, &a.PercentDn, true, save)) return false;
  if (!DDX_Float(IDC_CD_DOJI_PCT, &a.DojiPct, save, true, 0.0, 33.3, 15)) return false;
  if (!DDX_Float(IDC_CD_BCL_PCT, &a.BclPct, save, true, 0.0, 33.3, 15)) return false;
  DDX_Check(IDC_CD_DOJI, &a.DojiOn, save);
  DDX_Check(IDC_CD_BCL, &a.BclOn, save);
  if (!DDX_Float(IDC_CD_GAP_PCT, &a.GapPct, save, true, -1.0, 100.0, 15)) return false;
  DDX_Check(IDC_CD_GAP, &a.GapOn, save);
  if (save) {
    props_.lineDots = c.IsDlgButtonChecked(IDC_CD_LINE_DOTS);
    props_.ribbon = c.IsDlgButtonChecked(IDC_CD_RIBBON);
  } else {
    props_.lineDots = ButtonState(props_.lineDots);
    props_.ribbon = ButtonState(props_.ribbon);
    c.CheckDlgButton(IDC_CD_LINE_DOTS, props_.lineDots);
    c.CheckDlgButton(IDC_CD_RIBBON, props_.ribbon);
  }
  return true;
}

void CChartDrawPg::Show(int id, bool shown) {
  Ctl().ShowDlgItem(id, shown);
  Ctl().EnableDlgItem(id, shown);
}

bool CChartDrawPg::Checked(int id) { return Ctl().IsDlgButtonChecked(id) == orv::kBstChecked; }

void CChartDrawPg::UpdateControls() {
  orv::Controls& c = Ctl();
  const ChartStyleRow& row = StyleRow();
  const std::uint32_t f = row.flags;
  const std::int32_t t = props_.drawType;

  struct ColorRow {
    std::uint32_t flag;
    int label, button;
    const char* caption;
    const char* key;
  };
  for (const ColorRow& r : {ColorRow{kDrawColor1, IDC_CD_COLOR1_LABEL, IDC_CD_COLOR1, row.caption1, row.key1},
                            ColorRow{kDrawColor2, IDC_CD_COLOR2_LABEL, IDC_CD_COLOR2, row.caption2, row.key2}}) {
    const bool inUse = (f & r.flag) != 0;
    if (inUse) {
      c.SetDlgItemTextA(r.label, r.caption);
      const CLineProp* line = props_.lineProps.Find(r.key);
      SetButtonColor(r.button, line ? line->Color : 0);  // repainted as it is shown
    }
    Show(r.button, inUse);
    Show(r.label, inUse);
  }
  c.ShowDlgItem(IDC_CD_RIBBON, t == kDrawTypeLine);

  Show(IDC_CD_SHADE, (f & kDrawShade) != 0);
  Show(IDC_CD_TRANSP_LABEL, (f & kDrawTransparency) != 0);
  Show(IDC_CD_TRANSP, (f & kDrawTransparency) != 0);
  Show(IDC_CD_STYLE_LABEL, (f & kDrawLineStyle) != 0);
  Show(IDC_CD_STYLE, (f & kDrawLineStyle) != 0);
  Show(IDC_CD_TEXT_COLOR, (f & kDrawTextColor) != 0);
  Show(IDC_CD_TEXT_COLOR_LABEL, (f & kDrawTextColor) != 0);

  const bool pointAndFigure = t == kDrawTypePointAndFigure;
  for (int id : {IDC_CD_PF_BOX, IDC_CD_BOX_UNITS_LABEL, IDC_CD_BOX_UNITS, IDC_CD_BOX_SIZE_LABEL})
    Show(id, pointAndFigure);
  if (pointAndFigure) c.SetDlgItemTextA(IDC_CD_BOX_SIZE_LABEL, props_.boxUnits == 0 ? "Box Size:" : "Tick Count:");
  Show(IDC_CD_BOX_SIZE, pointAndFigure && props_.boxUnits == 0);
  Show(IDC_CD_TICK_COUNT, pointAndFigure && props_.boxUnits == 1);
  for (int id : {IDC_CD_TICK_SIZE_LABEL, IDC_CD_REVERSAL_LABEL, IDC_CD_REVERSAL, IDC_CD_REVERSAL_SPIN, IDC_CD_RESET})
    Show(id, pointAndFigure);
  c.ShowDlgItem(IDC_CD_TICK_SIZE, pointAndFigure);
  c.EnableDlgItem(IDC_CD_TICK_SIZE, false);

  if (t == kDrawTypeBar) {
    for (int id : {IDC_CD_BAR_UP_LABEL, IDC_CD_BAR_DN_LABEL, IDC_CD_BAR_UP_PCT, IDC_CD_BAR_DN_PCT, IDC_CD_BAR_UP_COLOR,
                   IDC_CD_BAR_DN_COLOR})
      c.ShowDlgItem(id, true);
    Show(IDC_CD_BAR_COLORS, true);
    const bool colouring = Checked(IDC_CD_BAR_COLORS);
    for (int id : {IDC_CD_BAR_UP_PCT, IDC_CD_BAR_DN_PCT, IDC_CD_BAR_UP_COLOR, IDC_CD_BAR_DN_COLOR})
      c.EnableDlgItem(id, colouring);
  } else if (t == kDrawTypeSlopedBar) {
    for (int id : {IDC_CD_BAR_UP_PCT, IDC_CD_BAR_DN_PCT, IDC_CD_BAR_UP_LABEL, IDC_CD_BAR_DN_LABEL, IDC_CD_BAR_COLORS})
      c.ShowDlgItem(id, false);
    c.EnableDlgItem(IDC_CD_BAR_UP_PCT, false);
    c.EnableDlgItem(IDC_CD_BAR_DN_PCT, false);
    for (int id : {IDC_CD_BAR_UP_COLOR, IDC_CD_BAR_DN_COLOR, IDC_CD_BAR_UP_COLOR_LABEL, IDC_CD_BAR_DN_COLOR_LABEL})
      c.ShowDlgItem(id, true);
    c.EnableDlgItem(IDC_CD_BAR_UP_COLOR, true);
    c.EnableDlgItem(IDC_CD_BAR_DN_COLOR, true);
  } else {
    for (int id : {IDC_CD_BAR_COLORS, IDC_CD_BAR_UP_LABEL, IDC_CD_BAR_DN_LABEL, IDC_CD_BAR_UP_PCT, IDC_CD_BAR_DN_PCT,
                   IDC_CD_BAR_UP_COLOR, IDC_CD_BAR_DN_COLOR})
      Show(id, false);
  }

  const bool channels = t == kDrawTypeHlcChannels;
  Show(IDC_CD_TAILS, channels);
  const bool tails = channels && Checked(IDC_CD_TAILS);
  for (int id : {IDC_CD_PERIODS_LABEL, IDC_CD_PERIODS, IDC_CD_PERIODS_SPIN, IDC_CD_PCT_UP_LABEL, IDC_CD_PCT_UP,
                 IDC_CD_PCT_UP_SPIN, IDC_CD_PCT_DN_LABEL, IDC_CD_PCT_DN, IDC_CD_PCT_DN_SPIN})
    Show(id, tails);
  if (channels) {
    props_.analytics.DojiOn = Checked(IDC_CD_DOJI);
    props_.analytics.BclOn = Checked(IDC_CD_BCL);
  }
  for (int id : {IDC_CD_DOJI, IDC_CD_BCL, IDC_CD_GAP}) Show(id, channels);
  Show(IDC_CD_DOJI_PCT, channels && Checked(IDC_CD_DOJI));
  Show(IDC_CD_DOJI_COLOR, channels && Checked(IDC_CD_DOJI));
  Show(IDC_CD_BCL_PCT, channels && Checked(IDC_CD_BCL));
  Show(IDC_CD_BCL_COLOR, channels && Checked(IDC_CD_BCL));
  Show(IDC_CD_GAP_PCT, channels && Checked(IDC_CD_GAP));
  Show(IDC_CD_GAP_COLOR, channels && Checked(IDC_CD_GAP));

  Show(IDC_CD_LINE_DOTS, (f & kDrawDataPoints) != 0);
  Show(IDC_CD_SHADE, (f & kDrawShade) != 0);
  // The boundary close check decides the gradient here; the shade check does at init and on its click.
  Show(IDC_CD_GRADIENT, (f & kDrawShade) != 0 && Checked(IDC_CD_BCL));
  const bool transparency =
      t == kDrawTypeLine || t == kDrawTypeDataPoints ? Checked(IDC_CD_SHADE) : (f & kDrawTransparency) != 0;
  Show(IDC_CD_TRANSP_LABEL, transparency);
  Show(IDC_CD_TRANSP, transparency);
}

void CChartDrawPg::SetDirty() {
  if (!IsDirty()) MarkDirty();
}

void CChartDrawPg::Reset() {
  props_.boxUnits = props_.defBoxUnits;
  props_.boxSize = props_.defBoxSize;
  props_.tickCount = props_.defTickCount;
  props_.tickSize = props_.defTickSize;
  props_.reversal = props_.defReversal;
  props_.textColorIndex = 1;
  if (Exchange(false)) {
    SetDirty();
    UpdateControls();
  }
}

void CChartDrawPg::OnCommand(int id, int code) {
  const std::int32_t t = props_.drawType;
  switch (id) {
    case IDC_CD_BOX_SIZE:
    case IDC_CD_TICK_COUNT:
    case IDC_CD_REVERSAL:
    case IDC_CD_TRANSP:
    case IDC_CD_BAR_UP_PCT:
    case IDC_CD_BAR_DN_PCT:
    case IDC_CD_PERIODS:
    case IDC_CD_PCT_UP:
    case IDC_CD_PCT_DN:
    case IDC_CD_DOJI_PCT:
    case IDC_CD_BCL_PCT:
    case IDC_CD_GAP_PCT:
      if (code == orv::kEnChange && !initialising_) SetDirty();
      return;
    case IDC_CD_BAR_COLORS:
    case IDC_CD_TAILS:
    case IDC_CD_DOJI:
    case IDC_CD_BCL:
    case IDC_CD_GAP:
      if (code == orv::kBnClicked) {
        SetDirty();
        UpdateControls();
      }
      return;
    case IDC_CD_COLOR1:
    case IDC_CD_COLOR2:
    case IDC_CD_GRADIENT:
    case IDC_CD_BAR_UP_COLOR:
    case IDC_CD_BAR_DN_COLOR:
    case IDC_CD_DOJI_COLOR:
    case IDC_CD_BCL_COLOR:
    case IDC_CD_GAP_COLOR:
    case IDC_CD_LINE_DOTS:
    case IDC_CD_RIBBON:
      if (code == orv::kBnClicked) SetDirty();
      return;
    case IDC_CD_TEXT_COLOR:
    case IDC_CD_STYLE:
    case IDC_CD_WEIGHT:
      if (code == orv::kCbnSelChange) SetDirty();
      return;
    case IDC_CD_BOX_UNITS:
      if (code == orv::kCbnSelChange) {
        const int selection = Ctl().ComboGetCurSel(IDC_CD_BOX_UNITS);
        props_.boxUnits = static_cast<std::int32_t>(Ctl().ComboGetItemData(IDC_CD_BOX_UNITS, selection));
        SetDirty();
        UpdateControls();
      }
      return;
    case IDC_CD_SHADE:
      if (code != orv::kBnClicked) return;
      if (t == kDrawTypeLine || t == kDrawTypeDataPoints) {
        const bool shaded = Checked(IDC_CD_SHADE);
        for (int shown : {IDC_CD_TRANSP_LABEL, IDC_CD_TRANSP, IDC_CD_GRADIENT}) Ctl().EnableDlgItem(shown, shaded);
        Ctl().ShowDlgItem(IDC_CD_TRANSP_LABEL, shaded);
        Ctl().ShowDlgItem(IDC_CD_TRANSP, shaded);
      }
      if (!initialising_) SetDirty();
      return;
    case IDC_CD_RESET:
      if (code == orv::kBnClicked) Reset();
      return;
    default:
      return;
  }
}
