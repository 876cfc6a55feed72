#include "chartpages/GenYAxisPpg.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <string>

#include "dlgkit/Controls.h"
#include "dlgkit/Page.h"
#include "format/FormatPrice.h"
#include "format/PriceParse.h"
#include "xml/StrFormat.h"

namespace {

// A three-state value as the page shows it: 0 to 2, anything else counts as 0.
std::int32_t ButtonState(std::int32_t value) { return value < 0 || value > 2 ? 0 : value; }

// The price code the values are shown and read in.
std::int32_t PriceCode(const GenYAxisProps& props) { return props.precision != 0 ? props.precision : props.format; }

constexpr std::int64_t kMaxParts = 1999999999;

template <std::size_t N>
void CheckRadio(orv::Controls& c, const int (&radios)[N], std::int32_t value) {
  for (std::size_t i = 0; i < N; ++i)
    c.CheckDlgButton(radios[i], static_cast<std::int32_t>(i) == value ? orv::kBstChecked : orv::kBstUnchecked);
}

// The checked radio's value into `value`; none checked: `value` stays.
template <std::size_t N>
void ReadRadio(orv::Controls& c, const int (&radios)[N], std::int32_t& value) {
  for (std::size_t i = 0; i < N; ++i) {
    if (c.IsDlgButtonChecked(radios[i]) == orv::kBstChecked) {
      value = static_cast<std::int32_t>(i);
      return;
    }
  }
}

template <std::size_t N>
bool InGroup(const int (&radios)[N], int id) {
  return std::find(std::begin(radios), std::end(radios), id) != std::end(radios);
}

}  // namespace

double ReadAxisValueText(std::string_view text, const GenYAxisProps& props) {
  if (text.empty()) return 0.0;
  const std::size_t mark = text.find('\'');
  if (mark != std::string_view::npos && props.format >= 8) {
    const std::string whole(text.substr(0, mark)), fraction(text.substr(mark + 1));
    return std::atoi(whole.c_str()) + std::atof(fraction.c_str()) / std::ldexp(2.0, props.format - 8);
  }
  const std::int32_t code = PriceCode(props);
  const std::int64_t parts = orv::ParsePrice(text, code);
  if (parts == orv::kPriceNotANumber) return kNoValueNotANumber;
  if (parts > kMaxParts || parts < -kMaxParts) return kNoValueOutOfRange;
  return static_cast<double>(parts) / static_cast<double>(orv::PriceCodeScale(code));
}

std::string AxisValueText(double value, const GenYAxisProps& props) {
  std::string text;
  orv::FormatPrice(value, props.market, PriceCode(props), text);
  return text;
}

const CGenYAxisPpg::PinRow CGenYAxisPpg::kPins[4] = {
    {IDC_YA_PIN_MAX, IDC_YA_MAX, &GenYAxisProps::pinMax, &GenYAxisProps::maxRange},
    {IDC_YA_PIN_MIN, IDC_YA_MIN, &GenYAxisProps::pinMin, &GenYAxisProps::minRange},
    {IDC_YA_PIN_MAJ, IDC_YA_MAJOR, &GenYAxisProps::pinMaj, &GenYAxisProps::majorSpace},
    {IDC_YA_PIN_MNR, IDC_YA_MINOR, &GenYAxisProps::pinMnr, &GenYAxisProps::minorSpace},
};

CGenYAxisPpg::CGenYAxisPpg() {
  info_.dialogId = IDD_GEN_YAXIS_PPG;
  info_.rootName = kRootName;
  info_.scope = 0;
  info_.title = "General";
  info_.titleId = IDS_GEN_YAXIS_PPG_TITLE;
}

bool CGenYAxisPpg::Save(XmlNode root) {
  props_.Write(root);
  return true;
}

// The page refuses nothing: a text that is no price is held as a no-value mark.
bool CGenYAxisPpg::Validate() {
  if (exchangeValues_) Exchange(true);
  return true;
}

void CGenYAxisPpg::OnWindowClosing() {
  if (!exchangeValues_) return;
  Exchange(true);
  exchangeValues_ = false;
}

bool CGenYAxisPpg::OnPropertiesRead() {
  initialising_ = true;
  orv::Controls& c = Ctl();
  c.ComboResetContent(IDC_YA_AVG_BARS);
  for (int bars = 1; bars <= 15; bars += 2) c.ComboAddString(IDC_YA_AVG_BARS, orv::StrFormat("%d", bars), bars);
  return true;
}

bool CGenYAxisPpg::OnControlsThemed() {
  exchangeValues_ = true;
  Exchange(false);
  EnableEdits();
  EnableLimitPins();
  EnableNormalising();
  initialising_ = false;
  return true;
}

void CGenYAxisPpg::ExchangePins(bool save) {
  orv::Controls& c = Ctl();
  for (const PinRow& row : kPins) {
    if (save) {
      props_.*row.pin = c.IsDlgButtonChecked(row.check);
    } else {
      props_.*row.pin = ButtonState(props_.*row.pin);
      c.CheckDlgButton(row.check, props_.*row.pin);
    }
  }
}

void CGenYAxisPpg::ExchangeValues(bool save) {
  if (!exchangeValues_) return;
  orv::Controls& c = Ctl();
  for (const PinRow& row : kPins) {
    if (save) {
      props_.*row.value = ReadAxisValueText(c.GetDlgItemTextA(row.edit, kTextBuffer), props_);
    } else {
      c.SetDlgItemTextA(row.edit, AxisValueText(props_.*row.value, props_));
    }
  }
}

void CGenYAxisPpg::Exchange(bool save) {
  orv::Controls& c = Ctl();
  if (save) {
    ReadRadio(c, kCoordSysRadios, props_.coordSys);
    ReadRadio(c, kDragModeRadios, props_.dragMode);
    props_.inverted = c.IsDlgButtonChecked(IDC_YA_INVERT);
  } else {
    CheckRadio(c, kCoordSysRadios, props_.coordSys);
    CheckRadio(c, kDragModeRadios, props_.dragMode);
    c.CheckDlgButton(IDC_YA_INVERT, props_.inverted != 0 ? orv::kBstChecked : orv::kBstUnchecked);
  }
  ExchangePins(save);
  ExchangeValues(save);
  if (save) {
    ReadRadio(c, kPctOriginRadios, props_.pctOrigin);
  } else {
    CheckRadio(c, kPctOriginRadios, props_.pctOrigin);
  }
  int bars = props_.pctAvg;
  DDX_ComboData(IDC_YA_AVG_BARS, &bars, save);
  props_.pctAvg = bars;
}

void CGenYAxisPpg::EnableEdits() {
  for (const PinRow& row : kPins) Ctl().EnableDlgItem(row.edit, props_.*row.pin != 0);
}

void CGenYAxisPpg::EnableLimitPins() {
  Ctl().EnableDlgItem(IDC_YA_PIN_MAX, props_.dragMode != 0);
  Ctl().EnableDlgItem(IDC_YA_PIN_MIN, props_.dragMode != 0);
}

void CGenYAxisPpg::EnableNormalising() {
  const bool percent = props_.coordSys == 2;
  for (int id : kPctOriginRadios) Ctl().EnableDlgItem(id, percent);
  Ctl().EnableDlgItem(IDC_YA_AVG_BARS, percent && props_.pctOrigin != kPctOriginAverage);
}

// "Scroll" pins both limits; leaving it gives back the pins the user had.
void CGenYAxisPpg::ChangeDragMode() {
  orv::Controls& c = Ctl();
  ExchangePins(true);
  ExchangeValues(true);
  ReadRadio(c, kDragModeRadios, props_.dragMode);
  EnableLimitPins();
  if (props_.dragMode != 0) {
    if (forcedMax_) {
      forcedMax_ = false;
      props_.pinMax = 0;
    }
    if (forcedMin_) {
      forcedMin_ = false;
      props_.pinMin = 0;
    }
  } else {
    if (props_.pinMax == 0) forcedMax_ = true;
    if (props_.pinMin == 0) forcedMin_ = true;
    props_.pinMax = 1;
    props_.pinMin = 1;
  }
  EnableEdits();
  ExchangePins(false);
  ExchangeValues(false);
  MarkDirty();
}

void CGenYAxisPpg::OnCommand(int id, int code) {
  if (initialising_) return;
  orv::Controls& c = Ctl();
  for (const PinRow& row : kPins) {
    if (id != row.check) continue;
    if (code != orv::kBnClicked) return;
    ExchangePins(true);
    c.EnableDlgItem(row.edit, props_.*row.pin != 0);
    MarkDirty();
    return;
  }
  if (InGroup(kDragModeRadios, id)) {
    if (code == orv::kBnClicked) ChangeDragMode();
    return;
  }
  if (InGroup(kCoordSysRadios, id) || InGroup(kPctOriginRadios, id)) {
    if (code != orv::kBnClicked) return;
    ReadRadio(c, kCoordSysRadios, props_.coordSys);
    ReadRadio(c, kPctOriginRadios, props_.pctOrigin);
    EnableNormalising();
    MarkDirty();
    return;
  }
  switch (id) {
    case IDC_YA_MAX:
    case IDC_YA_MIN:
    case IDC_YA_MAJOR:
    case IDC_YA_MINOR:
      if (code == orv::kEnChange) MarkDirty();
      return;
    case IDC_YA_INVERT:
      if (code == orv::kBnClicked) MarkDirty();
      return;
    case IDC_YA_AVG_BARS:
      if (code == orv::kCbnSelChange) MarkDirty();
      return;
    default:
      return;
  }
}
