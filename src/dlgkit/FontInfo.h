#pragma once
// CFontInfo: how a font travels in the host's XML, its conversions from and to the platform's
// LOGFONT, and the process-wide cache that lets equal records share one font object.
//
// The font objects themselves come from the FontOps seam: GDI on Windows (win32/FontOpsWin32),
// a headless stand-in natively (96 DPI, no font objects), a counting fake in tests.

#include <compare>
#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "xml/Xml.h"

namespace orv {

// A record shaped as the platform's LOGFONTA, field for field; win32/FontOpsWin32.h converts.
inline constexpr int kLfFaceSize = 32;  // LF_FACESIZE: the face name and its terminator
struct LogFont {
  std::int32_t lfHeight = 0;
  std::int32_t lfWidth = 0;
  std::int32_t lfEscapement = 0;
  std::int32_t lfOrientation = 0;
  std::int32_t lfWeight = 0;
  std::uint8_t lfItalic = 0;
  std::uint8_t lfUnderline = 0;
  std::uint8_t lfStrikeOut = 0;
  std::uint8_t lfCharSet = 0;
  std::uint8_t lfOutPrecision = 0;
  std::uint8_t lfClipPrecision = 0;
  std::uint8_t lfQuality = 0;
  std::uint8_t lfPitchAndFamily = 0;
  char lfFaceName[kLfFaceSize] = {};
};

// The platform's MulDiv: a * b / c rounded half away from zero, in 64 bits; -1 when c is 0 or
// the result doesn't fit 32 bits.
std::int32_t MulDiv(std::int32_t a, std::int32_t b, std::int32_t c);

using FontHandle = void*;  // an HFONT on Windows

// The font operations the record and the cache need, named as the platform names them.
class FontOps {
 public:
  virtual ~FontOps() = default;
  // LOGPIXELSY of a "DISPLAY" device context.
  virtual int GetScreenLogPixelsY() = 0;
  // tmHeight and tmInternalLeading of the font made from `font` on a screen device context;
  // false when either can't be made.
  virtual bool GetScreenTextMetrics(const LogFont& font, std::int32_t& height, std::int32_t& internalLeading) = 0;
  // Null when no font can be made.
  virtual FontHandle CreateFontIndirectA(const LogFont& font) = 0;
  virtual bool DeleteObject(FontHandle font) = 0;
};

// GDI on Windows, the headless stand-in natively.
FontOps& DefaultFontOps();

// One font object, deleted with its last user. The operations that made it must outlive it.
class Font {
 public:
  Font(FontOps& ops, FontHandle handle) : ops_(ops), handle_(handle) {}
  Font(const Font&) = delete;
  Font& operator=(const Font&) = delete;
  ~Font() { ops_.DeleteObject(handle_); }
  FontHandle handle() const { return handle_; }

 private:
  FontOps& ops_;
  FontHandle handle_;
};
// Shared between records; the count is atomic (std::shared_ptr's).
using FontRef = std::shared_ptr<const Font>;

class CFontInfo {
 public:
  std::string Tag;
  std::string FaceName;
  std::int32_t PtSize = 0;  // points; negative when taken from a LOGFONT (see FromLogFont)
  std::int32_t Width = 0;
  std::int32_t Escapement = 0;
  std::int32_t Orientation = 0;
  std::int32_t Weight = 0;
  std::int32_t Italic = 0;
  std::int32_t Underline = 0;
  std::int32_t StrikeOut = 0;
  std::int32_t CharSet = 0;
  std::int32_t OutPrecision = 0;
  std::int32_t ClipPrecision = 0;
  std::int32_t Quality = 0;
  // One bit only, in the record and in its XML, both ways: the format keeps no more.
  std::uint32_t PitchAndFamily : 1 = 0;

  // Reads the first CFontInfo element found by a deep search from `node` (the node itself and
  // its following siblings included), then makes the font through the current cache. False
  // when there is none: the record stays as it was and no font is made. Absent attributes
  // leave their fields as they were; a FaceName empty after reading is "Arial"; PtSize comes
  // from Height / 10000 when PtSize is absent, and a PtSize of 0 after reading is 16.
  // A number that doesn't read leaves its field as it was (a PtSize that is there but doesn't
  // read still keeps Height from being read).
  bool Read(XmlNode node);
  // Appends a CFontInfo element below `node`: Version 3, FaceName, PtSize, Height (PtSize *
  // 10000, held to the 32-bit range), Width, Weight, Italic, Underline, PitchAndFamily, in this
  // order, decimal. Tag and the other fields are not written. Null for a null node.
  XmlNode Write(XmlNode node) const;

  // Takes the fields of `font`; PtSize = MulDiv(character height, 72, dpi), always negative,
  // where a positive lfHeight (a cell height) is first made a character height from the text
  // metrics of that font on the screen. Then makes the font. Tag stays.
  void FromLogFont(const LogFont& font);
  // lfHeight = MulDiv(PtSize, dpi, -72); a face name longer than 31 bytes is cut to 31 (no
  // installed face is longer); Weight held to 0..1000; Italic, Underline and StrikeOut 0 or 1;
  // the byte fields take the low byte of theirs.
  void ToLogFont(LogFont& font) const;

  // The record's font from the current cache; null when the face name is empty, the pixel
  // height is 0 or no font could be made.
  const FontRef& MakeFont();
  const FontRef& GetFont() const { return font_; }
  FontHandle GetFontHandle() const { return font_ ? font_->handle() : nullptr; }

 private:
  FontRef font_;
};

// The process-wide font cache: an ordered map from a record's font fields (PtSize on, in their
// order, then the face name ignoring case; Tag doesn't count) to a weak reference, so equal
// records share one font and the font goes with its last user; a later record makes it anew.
// No lock: only the apartment's thread reaches it.
class FontCache {
 public:
  explicit FontCache(FontOps& ops) : ops_(ops) {}
  FontCache(const FontCache&) = delete;
  FontCache& operator=(const FontCache&) = delete;

  FontRef Acquire(const CFontInfo& info);
  FontOps& ops() { return ops_; }
  // Screen DPI from the operations; 96 when they answer nonsense.
  int ScreenDpi();
  // Entries whose font is alive.
  std::size_t LiveCount() const;

  struct Key {
    std::int32_t numbers[13];
    std::string face;  // folded to lower case (ASCII)
    std::strong_ordering operator<=>(const Key&) const;
    bool operator==(const Key&) const = default;
  };
  static Key KeyOf(const CFontInfo& info);

 private:
  FontOps& ops_;
  std::map<Key, std::weak_ptr<const Font>> entries_;
};

// The cache over DefaultFontOps(), for the life of the process.
FontCache& ProcessFontCache();
// The cache records use now: the process's unless a ScopedFontCache names another.
FontCache& CurrentFontCache();

// Makes `cache` the current one until destruction (tests). Nests.
class ScopedFontCache {
 public:
  explicit ScopedFontCache(FontCache& cache);
  ~ScopedFontCache();
  ScopedFontCache(const ScopedFontCache&) = delete;
  ScopedFontCache& operator=(const ScopedFontCache&) = delete;

 private:
  FontCache* previous_;
};

}  // namespace orv
