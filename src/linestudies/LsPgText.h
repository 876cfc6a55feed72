#pragma once
// CLsPgText: the "General" tab of a text drawn on the chart: its colour, transparency, font and
// position lock. It has no control points and takes no chart data.
//
// The transparency travels to the host as an opacity, 0 (clear) to 255 (solid); the box shows
// it as a percentage of transparency, 0 to 100.

#include <cstdint>
#include <map>
#include <memory>

#include "dlgkit/FontInfo.h"
#include "dlgkit/PageColorButtons.h"
#include "dlgkit/ThemedPage.h"
#include "linestudies/LineStudiesRes.h"
#include "linestudies/LineStudyPage.h"
#include "xml/Xml.h"

class CLsPgText final : public orv::ThemedPage<CLsPgText>, public orv::LineStudyPage {
 public:
  static constexpr int kDialogId = IDD_LS_PG_TEXT;
  static constexpr const char* kTitle = "General";
  static constexpr const char* kName = "LsPgText";
  static constexpr unsigned kMaxPercent = 100;
  // An absent LSTxt_Transparency: solid, shown as 0 %.
  static constexpr std::int32_t kSolid = 255;

  CLsPgText();

  // What the host receives for what the box shows (read as an unsigned number, 0 when it isn't
  // one): the percentage held to 0..100, then trunc((100 - that) * 2.5501).
  static std::int32_t TransparencyOfPercent(unsigned percent);
  // What the box shows for the host's value: 100 - round(value / 2.5501), the value held to
  // 0..255. Every percentage comes back as itself through TransparencyOfPercent, and a host's
  // value that no percentage gives shows as the nearest one.
  static unsigned PercentOfTransparency(std::int32_t value);

  // LineStudyPage
  orv::Page& AsPage() override { return *this; }
  bool Load(XmlNode propertyPage) override;
  void Save(XmlNode propertyPage) override;
  bool IsDirty() const override { return dirty_; }
  void BindWindow(orv::Controls& controls, orv::WindowHandle window) override { RebindWindow(controls, window); }
  bool InitFurtherWindow() override;
  void ReloadWindow() override { LoadControls(); }

  // Page
  int DialogId() const override { return kDialogId; }
  void OnCommand(int id, int code) override;
  bool OnNotify(int id, int code, const void* payload, std::intptr_t& result) override;
  bool OnKillActive() override { return Validate(); }
  orv::ApplyResult OnApply() override;

  bool PosLock() const { return posLock_; }
  bool HasPosLock() const { return hasPosLock_; }
  std::uint32_t TextColor() const { return textColor_; }
  std::int32_t Transparency() const { return transparency_; }
  const orv::CFontInfo& Font() const { return font_; }

 protected:
  bool InitBeforeTheme() const override { return true; }
  bool OnInitPage() override;
  bool OnThemed(bool initResult) override;

 private:
  // The values between the page and its controls; never refuses (every text reads as a number).
  void Exchange(bool save);
  void LoadControls();
  // PSN_KILLACTIVE: the controls into the page.
  bool Validate();
  // PSN_APPLY: the page to the sheet when the user changed it; false would keep the sheet open.
  bool Apply();
  void SetModified(bool modified);
  void AttachColorButton();
  orv::PageColorButtons* Buttons();
  // The font dialog, started from the page's font and colour.
  void ChooseTextFont();

  bool posLock_ = false;
  bool hasPosLock_ = false;
  std::uint32_t textColor_ = 0;
  std::int32_t transparency_ = kSolid;
  orv::CFontInfo font_;
  bool dirty_ = false;
  bool updating_ = true;  // until the controls are filled: their notifications are not the user's
  // The platform's colour button of each window of the page (one per tab it stands in).
  std::map<orv::WindowHandle, std::unique_ptr<orv::PageColorButtons>> buttons_;
};
