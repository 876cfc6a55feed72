#include "dlgkit/fake/FakeFontOps.h"

#include <cstdlib>

namespace orv {

bool FakeFontOps::GetScreenTextMetrics(const LogFont& font, std::int32_t& height, std::int32_t& internalLeading) {
  ++metricsCalls_;
  height = std::abs(font.lfHeight);
  internalLeading = leading_;
  return true;
}

FontHandle FakeFontOps::CreateFontIndirectA(const LogFont& font) {
  if (creationFails_) return nullptr;
  created_.push_back(font);
  // Handles 0x1000, 0x1001, ...: never null, never reused.
  const std::uintptr_t handle = 0x1000 + created_.size() - 1;
  live_.insert(handle);
  return reinterpret_cast<FontHandle>(handle);
}

bool FakeFontOps::DeleteObject(FontHandle font) {
  if (live_.erase(reinterpret_cast<std::uintptr_t>(font)) == 0) {
    errors_.push_back("DeleteObject of a font that is not alive");
    return false;
  }
  ++deleted_;
  return true;
}

}  // namespace orv
