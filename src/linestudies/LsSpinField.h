#pragma once
// A number box with an up-down beside it that the page moves itself: the page answers the
// up-down's UDN_DELTAPOS (keeping the control still), steps from what the box shows and writes
// the box and the up-down. So a click moves by one from the number the user typed, the same on
// every platform, and the box's EN_CHANGE tells the page of the change as typing does.

#include <algorithm>
#include <cstdint>

#include "dlgkit/Controls.h"

namespace orv {

// Moves the box `editId` by `delta` within [lower, upper]; a box that doesn't hold a number
// steps from `fallback`. Gives the new number.
inline int StepSpinField(Controls& controls, int editId, int spinId, int delta, int lower, int upper, int fallback) {
  bool translated = false;
  const int shown = static_cast<int>(controls.GetDlgItemInt(editId, &translated, true));
  const std::int64_t moved = static_cast<std::int64_t>(translated ? shown : fallback) + delta;
  const int value = static_cast<int>(std::clamp<std::int64_t>(moved, lower, upper));
  controls.SetDlgItemInt(editId, static_cast<unsigned>(value), true);
  controls.UpDownSetPos(spinId, value);
  return value;
}

}  // namespace orv
