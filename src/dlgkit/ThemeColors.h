#pragma once
// The colour record of a theme, as the host's settings service fills it, and the two private
// window messages that carry it to the controls. Portable: no platform header.

#include <cstddef>
#include <cstdint>

// A flat block of 31 COLORREF values (red in the low byte), in the order the host writes them.
// Only 0..25 have defaults; the others stay 0 until the host fills them. Every entry is kept,
// read or not: the record belongs to the host.
struct ThemeColors {
  static constexpr int kCount = 31;

  ThemeColors() noexcept { SetDefaults(); }

  void SetDefaults() noexcept {
    static constexpr std::uint32_t kDefaults[26] = {
        0xF0F0F0, 0x989898, 0x800000, 0x000000, 0xF0F0F0, 0xC0C0C0, 0x009500, 0xF0F0F0, 0,
        0x00FF00, 0x0000FF, 0xC0C0C0, 0xF0F0F0, 0,        0x808080, 0,        0x0000FF, 0x009500,
        0xFFFF00, 0,        0x00FFFF, 0x00FFFF, 0,        0xC0FFFF, 0,        0xC0FFFF};
    for (int i = 0; i < kCount; ++i) colors[i] = i < 26 ? kDefaults[i] : 0;
  }

  std::uint32_t& operator[](int index) noexcept { return colors[index]; }
  const std::uint32_t& operator[](int index) const noexcept { return colors[index]; }
  std::uint32_t* data() noexcept { return colors; }
  const std::uint32_t* data() const noexcept { return colors; }

  std::uint32_t colors[kCount];
};
static_assert(sizeof(ThemeColors) == 31 * 4, "the host fills the record as a flat block");

// wParam 0, lParam: const ThemeColors*. A themed control copies its colours and repaints.
inline constexpr unsigned WM_ORV_THEME = 0x801E;
// wParam 0, lParam: pointer to a zeroed 32-bit value; sent to an owner-drawn combo box before it
// is themed. No control of this kit answers it; a hosted control may.
inline constexpr unsigned WM_ORV_THEME_QUERY = 0x801F;
