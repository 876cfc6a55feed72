#include "linestudies/LsPgText.h"

#include <algorithm>
#include <cmath>

#include "linestudies/LsSpinField.h"

namespace {

// The host's scale: 100 % transparency is 0, none is 255 (255.01 cut).
constexpr double kOpacityPerPercent = 2.5501;

}  // namespace

CLsPgText::CLsPgText() {
  // A text without a CFontInfo gets what a CFontInfo without its attributes gives.
  font_.FaceName = "Arial";
  font_.PtSize = 16;
}

std::int32_t CLsPgText::TransparencyOfPercent(unsigned percent) {
  const unsigned held = std::min(percent, kMaxPercent);
  return static_cast<std::int32_t>(std::trunc((100.0 - held) * kOpacityPerPercent));
}

unsigned CLsPgText::PercentOfTransparency(std::int32_t value) {
  const std::int32_t held = std::clamp(value, 0, kSolid);
  return kMaxPercent - static_cast<unsigned>(std::lround(held / kOpacityPerPercent));
}

bool CLsPgText::Load(XmlNode propertyPage) {
  // The deep searches walk on into the following pages, as every study page's do.
  if (XmlNode study = XmlFindNode(propertyPage, "CLineStudy", true)) {
    std::int32_t lock = 0;
    hasPosLock_ = static_cast<bool>(XmlGetChildValue(study, "PosLock", lock)) || hasPosLock_;
    posLock_ = lock != 0;
  }
  XmlNode text = XmlFindNode(propertyPage, "CTrendtext", true);
  if (!text) return false;
  XmlGetChildValue(text, "LSTxt_TextColor", textColor_);
  XmlGetChildValue(text, "LSTxt_Transparency", transparency_);
  font_.Read(text);
  return true;
}

void CLsPgText::Save(XmlNode propertyPage) {
  XmlNode study = XmlAddChild(propertyPage, "CLineStudy");
  XmlAddValueChild(study, "PosLock", posLock_ ? 1 : 0, XmlValueKind::Bool);
  XmlNode text = XmlAddChild(propertyPage, "CTrendtext");
  XmlAddValueChild(text, "LSTxt_TextColor", textColor_, XmlValueKind::Color);
  XmlAddValueChild(text, "LSTxt_Transparency", transparency_);
  font_.Write(text);
}

// The colour button is made before the kit themes the window, so that it takes the theme.
bool CLsPgText::OnInitPage() {
  AttachColorButton();
  return true;
}

bool CLsPgText::OnThemed(bool initResult) {
  LoadControls();
  return initResult;
}

bool CLsPgText::InitFurtherWindow() {
  AttachColorButton();
  LoadControls();
  return true;
}

void CLsPgText::AttachColorButton() {
  std::unique_ptr<orv::PageColorButtons>& buttons = buttons_[Window()];
  buttons = orv::MakePageColorButtons();
  if (buttons) buttons->Attach(Window(), IDC_LS_TXT_COLOR, false, textColor_);
}

orv::PageColorButtons* CLsPgText::Buttons() {
  auto found = buttons_.find(Window());
  return found == buttons_.end() ? nullptr : found->second.get();
}

void CLsPgText::LoadControls() {
  updating_ = true;
  // The lock box is hidden in the template; only a study that has a lock shows it.
  if (hasPosLock_) Ctl().ShowDlgItem(IDC_LS_POS_LOCK, true);
  Ctl().UpDownSetRange(IDC_LS_TXT_TRANSP_SPIN, 0, static_cast<int>(kMaxPercent));
  Exchange(false);
  updating_ = false;
}

void CLsPgText::Exchange(bool save) {
  DDX_Check(IDC_LS_POS_LOCK, &posLock_, save);
  orv::PageColorButtons* buttons = Buttons();
  const bool hasButton = buttons && buttons->IsAttached(IDC_LS_TXT_COLOR);
  if (save) {
    // A text that isn't an unsigned number counts as 0.
    bool translated = false;
    const unsigned percent = Ctl().GetDlgItemInt(IDC_LS_TXT_TRANSP, &translated, false);
    transparency_ = TransparencyOfPercent(translated ? percent : 0);
    if (hasButton) textColor_ = buttons->Color(IDC_LS_TXT_COLOR);
    return;
  }
  const unsigned percent = PercentOfTransparency(transparency_);
  Ctl().SetDlgItemInt(IDC_LS_TXT_TRANSP, percent, false);
  Ctl().UpDownSetPos(IDC_LS_TXT_TRANSP_SPIN, static_cast<int>(percent));
  if (hasButton) buttons->SetColor(IDC_LS_TXT_COLOR, textColor_);
}

bool CLsPgText::Validate() {
  Exchange(true);
  return true;
}

bool CLsPgText::Apply() {
  // The sheet reads the page while it is still dirty, then the page is clean.
  if (dirty_) Ctl().SendPageApply(kDialogId);
  dirty_ = false;
  return true;
}

orv::ApplyResult CLsPgText::OnApply() {
  return Apply() ? orv::ApplyResult::NoError : orv::ApplyResult::InvalidNoChangePage;
}

void CLsPgText::SetModified(bool modified) {
  if (updating_) return;
  if (modified) {
    Ctl().SheetChanged();
  } else {
    Ctl().SheetUnchanged();
  }
  dirty_ = modified;
}

void CLsPgText::OnCommand(int id, int code) {
  switch (id) {
    case IDC_LS_POS_LOCK:
    case IDC_LS_TXT_COLOR:  // the colour button opens its drop-down: a new colour may come
      if (code == orv::kBnClicked) SetModified(true);
      return;
    case IDC_LS_TXT_TRANSP:
      if (code == orv::kEnChange) SetModified(true);
      return;
    case IDC_LS_TXT_FONT:
      if (code == orv::kBnClicked) ChooseTextFont();
      return;
    default:
      return;
  }
}

bool CLsPgText::OnNotify(int id, int code, const void* payload, std::intptr_t& result) {
  if (id != IDC_LS_TXT_TRANSP_SPIN || code != orv::kUdnDeltaPos || !payload) return false;
  orv::StepSpinField(Ctl(), IDC_LS_TXT_TRANSP, IDC_LS_TXT_TRANSP_SPIN,
                     static_cast<const orv::UpDownDeltaPos*>(payload)->delta, 0, static_cast<int>(kMaxPercent),
                     static_cast<int>(PercentOfTransparency(transparency_)));
  result = 1;  // the page has set the box and the up-down itself
  return true;
}

void CLsPgText::ChooseTextFont() {
  // The dialog starts from the colour the button shows.
  orv::PageColorButtons* buttons = Buttons();
  if (buttons && buttons->IsAttached(IDC_LS_TXT_COLOR)) textColor_ = buttons->Color(IDC_LS_TXT_COLOR);
  orv::LogFont font;
  font_.ToLogFont(font);
  std::uint32_t color = textColor_;
  if (!Ctl().ChooseFontA(font, color)) return;  // cancelled: nothing changes
  font_.FromLogFont(font);
  textColor_ = color;
  if (buttons) buttons->SetColor(IDC_LS_TXT_COLOR, textColor_);
  SetModified(true);
}
