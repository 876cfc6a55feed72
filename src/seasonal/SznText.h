#pragma once
// Text fields of the seasonal wizard's pages: a string member to and from an edit box, whole,
// with no length limit. A field that can't be read or written beeps, takes the focus and
// answers false, as the kit's other exchange routines do.

#include <cstddef>
#include <string>

#include "dlgkit/Controls.h"

namespace orv::seasonal {

inline bool DDX_Text(Controls& ctl, int id, std::string& value, bool save) {
  bool ok = ctl.HasDlgItem(id);
  if (ok && save) {
    // Read with a buffer that grows until the text fits in it.
    std::size_t size = 256;
    std::string text = ctl.GetDlgItemTextA(id, size);
    while (text.size() + 1 >= size) {
      size *= 2;
      text = ctl.GetDlgItemTextA(id, size);
    }
    value = std::move(text);
  } else if (ok) {
    ok = ctl.SetDlgItemTextA(id, value);
  }
  if (!ok) {
    ctl.MessageBeep(kBeepSimple);
    ctl.SetFocus(id);
  }
  return ok;
}

}  // namespace orv::seasonal
