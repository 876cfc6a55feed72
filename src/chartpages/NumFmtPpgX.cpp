#include "chartpages/NumFmtPpgX.h"

#include <cstdlib>

#include "dlgkit/Controls.h"
#include "dlgkit/MessageBox.h"
#include "dlgkit/Page.h"
#include "format/DateFormat.h"
#include "format/FormatPrice.h"
#include "xml/StrFormat.h"

namespace {

constexpr char kSorry[] = "Sorry";
constexpr char kBelowMinimum[] = "The minimum value is 0 decimal places.";
constexpr char kAboveMaximum[] = "This exceeds the maximum number of decimal places.";

bool HasTypeList(NumFmtKind kind) {
  return kind == NumFmtKind::Fraction || kind == NumFmtKind::Date || kind == NumFmtKind::Time;
}

// The edit's text as a number of places: leading digits with an optional sign; no digits read
// as 0, digits beyond the range as its end (either way past the limits).
long PlacesOf(const std::string& text) { return std::strtol(text.c_str(), nullptr, 10); }

}  // namespace

CNumFmtPpgX::CNumFmtPpgX() {
  info_.dialogId = IDD_NUMFMT_PPG;
  info_.rootName = kRootName;
  info_.scope = 0;
  info_.title = "Number";
  info_.titleId = IDS_NUMFMT_PPG_TITLE;
}

std::string CNumFmtPpgX::SampleText(const NumFmtCategory& category) {
  std::string text;
  if (category.id & 0xf00) {
    FormatTimeValue(kSampleMinutes, category.id, text);
  } else if (category.id & ~0xf) {
    FormatDateValue(kSampleDate, category.id, text);
  } else {
    orv::FormatPrice(kSamplePrice, category.id, category.precision, text);
  }
  return text;
}

void CNumFmtPpgX::Load(XmlNode root) { props_.Read(root); }

NumFmtCategory* CNumFmtPpgX::Selected() {
  if (props_.selected < 0 || props_.selected >= static_cast<int>(props_.categories.size())) return nullptr;
  return &props_.categories[props_.selected];
}

bool CNumFmtPpgX::OnPropertiesRead() {
  hasWindow_ = true;
  Ctl().UpDownSetRange(IDC_NF_PLACES_SPIN, 0, kMaxPlaces);
  return true;
}

// The categories and the selection go to the list, then the type area and the sample follow it.
bool CNumFmtPpgX::OnControlsThemed() {
  orv::Controls& c = Ctl();
  filling_ = true;
  c.ListResetContent(IDC_NF_CATEGORY);
  for (std::size_t i = 0; i < props_.categories.size(); ++i)
    c.ListAddString(IDC_NF_CATEGORY, props_.categories[i].name, static_cast<std::intptr_t>(i));
  c.ListSetCurSel(IDC_NF_CATEGORY, props_.selected);
  SetPlacesText(places_);
  filling_ = false;
  RebuildTypeArea();
  RefreshSample();
  return true;
}

void CNumFmtPpgX::Show(int id, bool shown) { Ctl().ShowDlgItem(id, shown); }

void CNumFmtPpgX::SetPlacesText(int places) {
  const bool filling = filling_;
  filling_ = true;
  Ctl().SetDlgItemTextA(IDC_NF_PLACES, orv::StrFormat("%d", places));
  Ctl().UpDownSetPos(IDC_NF_PLACES_SPIN, places);
  filling_ = filling;
}

// The type area of the selected category: its types in the list, or its decimal places.
void CNumFmtPpgX::RebuildTypeArea() {
  orv::Controls& c = Ctl();
  const NumFmtCategory* category = Selected();
  const NumFmtKind kind = category ? category->kind : NumFmtKind::None;
  const bool list = HasTypeList(kind);
  const bool places = kind == NumFmtKind::Decimal;
  Show(IDC_NF_TYPE_LABEL, list);
  Show(IDC_NF_TYPE, list);
  Show(IDC_NF_PLACES_LABEL, places);
  Show(IDC_NF_PLACES, places);
  Show(IDC_NF_PLACES_SPIN, places);

  filling_ = true;
  c.ListResetContent(IDC_NF_TYPE);
  if (list) {
    for (const NumFmtType& type : NumFmtOfferedTypes(*category)) {
      const int row = c.ListAddString(IDC_NF_TYPE, type.text, type.value);
      if (type.value == category->precision) c.ListSetCurSel(IDC_NF_TYPE, row);
    }
  }
  filling_ = false;
  if (places) {
    int shown = category->precision;
    if (shown > kMaxPlaces) {
      shown = kMaxPlaces;
      MarkDirty();
    }
    places_ = shown;
    SetPlacesText(places_);
  }
}

// The type list or the decimal places into the selected category: a fraction keeps the type's
// value as its precision, a date or time as its precision and its format.
void CNumFmtPpgX::StoreControls() {
  NumFmtCategory* category = Selected();
  if (!category) return;
  orv::Controls& c = Ctl();
  switch (category->kind) {
    case NumFmtKind::Fraction:
    case NumFmtKind::Date:
    case NumFmtKind::Time: {
      const int row = c.ListGetCurSel(IDC_NF_TYPE);
      if (row < 0) return;
      const auto value = static_cast<std::int32_t>(c.ListGetItemData(IDC_NF_TYPE, row));
      category->precision = value;
      if (category->kind != NumFmtKind::Fraction) category->id = value;
      break;
    }
    case NumFmtKind::Decimal:
      category->precision = places_;
      break;
    default:
      break;
  }
}

void CNumFmtPpgX::RefreshSample() {
  const NumFmtCategory* category = Selected();
  Ctl().SetDlgItemTextA(IDC_NF_SAMPLE, category ? SampleText(*category) : std::string());
}

// The edit's places, held to 0 to 7: past either end the user is told and the edit shows the end.
void CNumFmtPpgX::TakePlaces() {
  orv::Controls& c = Ctl();
  const long value = PlacesOf(c.GetDlgItemTextA(IDC_NF_PLACES, 32));
  if (value < 0 || value > kMaxPlaces) {
    const bool below = value < 0;
    c.OrvMessageBox(below ? kBelowMinimum : kAboveMaximum, kSorry, orv::kMbOk | orv::kMbIconHand);
    places_ = below ? 0 : kMaxPlaces;
    SetPlacesText(places_);
    c.SetFocus(IDC_NF_PLACES);
    return;
  }
  places_ = static_cast<int>(value);
}

void CNumFmtPpgX::OnCommand(int id, int code) {
  if (filling_ || !hasWindow_) return;
  if (id == IDC_NF_CATEGORY && code == orv::kLbnSelChange) {
    StoreControls();
    props_.selected = Ctl().ListGetCurSel(IDC_NF_CATEGORY);
    RebuildTypeArea();
  } else if (id == IDC_NF_TYPE && code == orv::kLbnSelChange) {
    StoreControls();
  } else if (id == IDC_NF_PLACES && code == orv::kEnChange) {
    TakePlaces();
    StoreControls();
  } else {
    return;
  }
  RefreshSample();
  MarkDirty();
}

void CNumFmtPpgX::OnWindowClosing() {
  if (!hasWindow_) return;
  props_.selected = Ctl().ListGetCurSel(IDC_NF_CATEGORY);
  StoreControls();
  hasWindow_ = false;
}

// The list and the type go to the selected category first, then its format pair to the host.
bool CNumFmtPpgX::Save(XmlNode root) {
  if (hasWindow_) {
    props_.selected = Ctl().ListGetCurSel(IDC_NF_CATEGORY);
    StoreControls();
  }
  return props_.Write(root);
}
