#include "dlgkit/FontInfo.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

namespace orv {

namespace {

constexpr std::int32_t kDefaultPtSize = 16;
constexpr char kDefaultFaceName[] = "Arial";
constexpr std::int32_t kXmlVersion = 3;
constexpr std::int32_t kHeightPerPoint = 10000;
constexpr std::int32_t kMaxWeight = 1000;  // FW_HEAVY

std::int32_t Saturate(std::int64_t value) {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, std::numeric_limits<std::int32_t>::min(),
                                                            std::numeric_limits<std::int32_t>::max()));
}

// The record as a LOGFONT at a given screen DPI.
void FillLogFont(const CFontInfo& info, int dpi, LogFont& font) {
  font = LogFont{};
  font.lfHeight = MulDiv(info.PtSize, dpi, -72);
  font.lfWidth = info.Width;
  font.lfEscapement = info.Escapement;
  font.lfOrientation = info.Orientation;
  font.lfWeight = std::clamp(info.Weight, 0, kMaxWeight);
  font.lfItalic = info.Italic != 0;
  font.lfUnderline = info.Underline != 0;
  font.lfStrikeOut = info.StrikeOut != 0;
  font.lfCharSet = static_cast<std::uint8_t>(info.CharSet);
  font.lfOutPrecision = static_cast<std::uint8_t>(info.OutPrecision);
  font.lfClipPrecision = static_cast<std::uint8_t>(info.ClipPrecision);
  font.lfQuality = static_cast<std::uint8_t>(info.Quality);
  font.lfPitchAndFamily = static_cast<std::uint8_t>(info.PitchAndFamily);
  const std::string_view face = std::string_view(info.FaceName).substr(0, info.FaceName.find('\0'));
  const std::size_t length = std::min<std::size_t>(face.size(), kLfFaceSize - 1);
  std::memcpy(font.lfFaceName, face.data(), length);
  font.lfFaceName[length] = '\0';
}

char FoldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

FontCache* g_currentCache = nullptr;

}  // namespace

std::int32_t MulDiv(std::int32_t a, std::int32_t b, std::int32_t c) {
  if (c == 0) return -1;
  std::int64_t multiplicand = a;
  std::int64_t divisor = c;
  if (divisor < 0) {
    multiplicand = -multiplicand;
    divisor = -divisor;
  }
  const std::int64_t product = multiplicand * b;
  // Half the divisor towards the sign of the product: rounds halves away from zero.
  const std::int64_t result = (product >= 0 ? product + divisor / 2 : product - divisor / 2) / divisor;
  if (result > std::numeric_limits<std::int32_t>::max() || result < std::numeric_limits<std::int32_t>::min()) return -1;
  return static_cast<std::int32_t>(result);
}

// --- CFontInfo ---

bool CFontInfo::Read(XmlNode node) {
  const XmlNode element = XmlFindNode(node, "CFontInfo", true);
  if (!element) return false;
  std::int32_t version = 0;  // read, and not used: every version reads alike
  XmlGetAttrValue(element, "Version", version);
  XmlGetAttr(element, "Tag", Tag);
  XmlGetAttr(element, "FaceName", FaceName);
  if (FaceName.empty()) FaceName = kDefaultFaceName;
  if (!XmlGetAttrValue(element, "PtSize", PtSize)) {
    std::int32_t height = 0;
    if (XmlGetAttrValue(element, "Height", height)) PtSize = height / kHeightPerPoint;
  }
  XmlGetAttrValue(element, "Width", Width);
  XmlGetAttrValue(element, "Weight", Weight);
  XmlGetAttrValue(element, "Italic", Italic);
  XmlGetAttrValue(element, "Underline", Underline);
  std::int32_t pitchAndFamily = PitchAndFamily;
  XmlGetAttrValue(element, "PitchAndFamily", pitchAndFamily);
  PitchAndFamily = static_cast<std::uint32_t>(pitchAndFamily) & 1u;
  if (PtSize == 0) PtSize = kDefaultPtSize;
  MakeFont();
  return true;
}

XmlNode CFontInfo::Write(XmlNode node) const {
  XmlNode element = XmlAddChild(node, "CFontInfo");
  if (!element) return element;
  XmlSetAttrValue(element, "Version", kXmlVersion);
  XmlSetAttr(element, "FaceName", FaceName);
  XmlSetAttrValue(element, "PtSize", PtSize);
  XmlSetAttrValue(element, "Height", Saturate(static_cast<std::int64_t>(PtSize) * kHeightPerPoint));
  XmlSetAttrValue(element, "Width", Width);
  XmlSetAttrValue(element, "Weight", Weight);
  XmlSetAttrValue(element, "Italic", Italic);
  XmlSetAttrValue(element, "Underline", Underline);
  XmlSetAttrValue(element, "PitchAndFamily", static_cast<std::int32_t>(PitchAndFamily & 1u));
  return element;
}

void CFontInfo::FromLogFont(const LogFont& font) {
  FontCache& cache = CurrentFontCache();
  std::int32_t height = font.lfHeight;
  if (height > 0) {
    // A positive height is the cell's; points measure the character without its leading.
    std::int32_t cell = 0;
    std::int32_t leading = 0;
    if (cache.ops().GetScreenTextMetrics(font, cell, leading)) height = Saturate(std::int64_t{cell} - leading);
  }
  const std::int32_t points = MulDiv(height, 72, cache.ScreenDpi());
  PtSize = points > 0 ? -points : points;
  Width = font.lfWidth;
  Escapement = font.lfEscapement;
  Orientation = font.lfOrientation;
  Weight = font.lfWeight;
  Italic = font.lfItalic;
  Underline = font.lfUnderline;
  StrikeOut = font.lfStrikeOut;
  CharSet = font.lfCharSet;
  OutPrecision = font.lfOutPrecision;
  ClipPrecision = font.lfClipPrecision;
  Quality = font.lfQuality;
  PitchAndFamily = font.lfPitchAndFamily & 1u;
  // The face may fill all 32 bytes without a terminator.
  FaceName.assign(font.lfFaceName, std::find(font.lfFaceName, font.lfFaceName + kLfFaceSize, '\0'));
  MakeFont();
}

void CFontInfo::ToLogFont(LogFont& font) const { FillLogFont(*this, CurrentFontCache().ScreenDpi(), font); }

const FontRef& CFontInfo::MakeFont() {
  font_ = CurrentFontCache().Acquire(*this);
  return font_;
}

// --- FontCache ---

std::strong_ordering FontCache::Key::operator<=>(const Key& other) const {
  for (int i = 0; i < 13; ++i) {
    if (auto order = numbers[i] <=> other.numbers[i]; order != 0) return order;
  }
  return face <=> other.face;
}

FontCache::Key FontCache::KeyOf(const CFontInfo& info) {
  Key key{{info.PtSize, info.Width, info.Escapement, info.Orientation, info.Weight, info.Italic, info.Underline,
           info.StrikeOut, info.CharSet, info.OutPrecision, info.ClipPrecision, info.Quality,
           static_cast<std::int32_t>(info.PitchAndFamily)},
          info.FaceName};
  std::transform(key.face.begin(), key.face.end(), key.face.begin(), FoldAscii);
  return key;
}

int FontCache::ScreenDpi() {
  const int dpi = ops_.GetScreenLogPixelsY();
  return dpi > 0 ? dpi : 96;
}

FontRef FontCache::Acquire(const CFontInfo& info) {
  Key key = KeyOf(info);
  if (auto found = entries_.find(key); found != entries_.end()) {
    if (FontRef live = found->second.lock()) return live;
  }
  LogFont font;
  FillLogFont(info, ScreenDpi(), font);
  if (font.lfFaceName[0] == '\0' || font.lfHeight == 0) return nullptr;
  const FontHandle handle = ops_.CreateFontIndirectA(font);
  if (!handle) return nullptr;
  FontRef made;
  try {
    made = std::make_shared<const Font>(ops_, handle);
  } catch (...) {
    ops_.DeleteObject(handle);
    throw;
  }
  // Entries of fonts that are gone are dropped here, so the map holds about the live fonts.
  std::erase_if(entries_, [](const auto& entry) { return entry.second.expired(); });
  entries_[std::move(key)] = made;
  return made;
}

std::size_t FontCache::LiveCount() const {
  return static_cast<std::size_t>(
      std::count_if(entries_.begin(), entries_.end(), [](const auto& entry) { return !entry.second.expired(); }));
}

FontCache& ProcessFontCache() {
  static FontCache cache(DefaultFontOps());
  return cache;
}

FontCache& CurrentFontCache() { return g_currentCache ? *g_currentCache : ProcessFontCache(); }

ScopedFontCache::ScopedFontCache(FontCache& cache) : previous_(g_currentCache) { g_currentCache = &cache; }

ScopedFontCache::~ScopedFontCache() { g_currentCache = previous_; }

}  // namespace orv
