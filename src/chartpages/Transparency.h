#pragma once
// A floating window's transparency as the host keeps it, an alpha (0 clear to 255 opaque), and
// as the pages show it, a percentage (0 opaque to 100 clear). The two scales are not exact
// inverses: alpha 127 shows 50, and 50 stores 127.

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace orv {

// Shown: (255 - alpha) / 2.5499, truncated, held to 0..100.
inline int TransparencyPercent(double alpha) {
  return static_cast<int>(std::clamp(std::trunc((255.0 - alpha) / 2.5499), 0.0, 100.0));
}

// Stored: the percentage held to 0..100, then (100 - percent) * 2.5501, truncated.
inline std::uint32_t TransparencyAlpha(unsigned percent) {
  return static_cast<std::uint32_t>(std::trunc((100.0 - std::min(percent, 100u)) * 2.5501));
}

}  // namespace orv
