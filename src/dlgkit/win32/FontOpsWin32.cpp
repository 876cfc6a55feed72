#include "dlgkit/win32/FontOpsWin32.h"

#include <cstddef>
#include <cstring>

namespace orv {

static_assert(sizeof(LogFont) == sizeof(LOGFONTA), "LogFont has the shape of LOGFONTA");
static_assert(offsetof(LogFont, lfWeight) == offsetof(LOGFONTA, lfWeight));
static_assert(offsetof(LogFont, lfItalic) == offsetof(LOGFONTA, lfItalic));
static_assert(offsetof(LogFont, lfPitchAndFamily) == offsetof(LOGFONTA, lfPitchAndFamily));
static_assert(offsetof(LogFont, lfFaceName) == offsetof(LOGFONTA, lfFaceName));
static_assert(kLfFaceSize == LF_FACESIZE);

namespace {

// LogFont has the fields of LOGFONTA, name for name: one copy serves both directions.
template <typename To, typename From>
To CopyLogFont(const From& font) {
  To out{};
  out.lfHeight = font.lfHeight;
  out.lfWidth = font.lfWidth;
  out.lfEscapement = font.lfEscapement;
  out.lfOrientation = font.lfOrientation;
  out.lfWeight = font.lfWeight;
  out.lfItalic = font.lfItalic;
  out.lfUnderline = font.lfUnderline;
  out.lfStrikeOut = font.lfStrikeOut;
  out.lfCharSet = font.lfCharSet;
  out.lfOutPrecision = font.lfOutPrecision;
  out.lfClipPrecision = font.lfClipPrecision;
  out.lfQuality = font.lfQuality;
  out.lfPitchAndFamily = font.lfPitchAndFamily;
  std::memcpy(out.lfFaceName, font.lfFaceName, LF_FACESIZE);
  out.lfFaceName[LF_FACESIZE - 1] = '\0';
  return out;
}

}  // namespace

LOGFONTA ToLOGFONTA(const LogFont& font) { return CopyLogFont<LOGFONTA>(font); }

LogFont FromLOGFONTA(const LOGFONTA& font) { return CopyLogFont<LogFont>(font); }

namespace {

// A device context of the screen, deleted when it goes.
class ScreenDc {
 public:
  ScreenDc() : dc_(::CreateDCA("DISPLAY", nullptr, nullptr, nullptr)) {}
  ScreenDc(const ScreenDc&) = delete;
  ScreenDc& operator=(const ScreenDc&) = delete;
  ~ScreenDc() {
    if (dc_) ::DeleteDC(dc_);
  }
  HDC get() const { return dc_; }

 private:
  HDC dc_;
};

// A font of our own, deleted when it goes.
class OwnedFont {
 public:
  explicit OwnedFont(const LOGFONTA& font) : font_(::CreateFontIndirectA(&font)) {}
  OwnedFont(const OwnedFont&) = delete;
  OwnedFont& operator=(const OwnedFont&) = delete;
  ~OwnedFont() {
    if (font_) ::DeleteObject(font_);
  }
  HFONT get() const { return font_; }

 private:
  HFONT font_;
};

// Selects an object into a device context and back out when it goes.
class Selection {
 public:
  Selection(HDC dc, HGDIOBJ object) : dc_(dc), previous_(::SelectObject(dc, object)) {}
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;
  ~Selection() {
    if (previous_ && previous_ != HGDI_ERROR) ::SelectObject(dc_, previous_);
  }

 private:
  HDC dc_;
  HGDIOBJ previous_;
};

class Win32FontOps final : public FontOps {
 public:
  int GetScreenLogPixelsY() override {
    ScreenDc dc;
    return dc.get() ? ::GetDeviceCaps(dc.get(), LOGPIXELSY) : 0;
  }
  bool GetScreenTextMetrics(const LogFont& font, std::int32_t& height, std::int32_t& internalLeading) override {
    ScreenDc dc;
    if (!dc.get()) return false;
    OwnedFont made(ToLOGFONTA(font));
    if (!made.get()) return false;
    Selection selected(dc.get(), made.get());
    TEXTMETRICA metrics{};
    if (!::GetTextMetricsA(dc.get(), &metrics)) return false;
    height = metrics.tmHeight;
    internalLeading = metrics.tmInternalLeading;
    return true;
  }
  FontHandle CreateFontIndirectA(const LogFont& font) override {
    const LOGFONTA platform = ToLOGFONTA(font);
    return ::CreateFontIndirectA(&platform);
  }
  bool DeleteObject(FontHandle font) override { return font && ::DeleteObject(static_cast<HFONT>(font)); }
};

}  // namespace

FontOps& DefaultFontOps() {
  static Win32FontOps ops;
  return ops;
}

}  // namespace orv
