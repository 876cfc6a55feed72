#pragma once
// The platform's LOGFONTA beside the program's LogFont, field for field, and CFontInfo's
// conversions in the platform's own type.

#include <windows.h>

#include "dlgkit/FontInfo.h"

namespace orv {

LOGFONTA ToLOGFONTA(const LogFont& font);
LogFont FromLOGFONTA(const LOGFONTA& font);

inline void FromLogFont(CFontInfo& info, const LOGFONTA& font) { info.FromLogFont(FromLOGFONTA(font)); }
inline void ToLogFont(const CFontInfo& info, LOGFONTA& font) {
  LogFont portable;
  info.ToLogFont(portable);
  font = ToLOGFONTA(portable);
}

}  // namespace orv
