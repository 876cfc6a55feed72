// No window system beside the native build: the screen is 96 DPI, a font's character height is
// its cell height, and no font object is made (records have no font natively).
#include "dlgkit/FontInfo.h"

namespace orv {
namespace {
class HeadlessFontOps final : public FontOps {
 public:
  int GetScreenLogPixelsY() override { return 96; }
  bool GetScreenTextMetrics(const LogFont& font, std::int32_t& height, std::int32_t& internalLeading) override {
    height = font.lfHeight;
    internalLeading = 0;
    return true;
  }
  FontHandle CreateFontIndirectA(const LogFont&) override { return nullptr; }
  bool DeleteObject(FontHandle) override { return false; }
};
}  // namespace

FontOps& DefaultFontOps() {
  static HeadlessFontOps ops;
  return ops;
}

}  // namespace orv
