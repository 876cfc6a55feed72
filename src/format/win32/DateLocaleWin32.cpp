// The platform's locale and the module's string table. Each answer is one call into a buffer of
// the size the date formats allow; a failed call answers empty.

#include <windows.h>

#include "format/DateLocale.h"

namespace orv {

namespace {

constexpr UINT kInvalidDateTextId = 55296;

// The module holding this code (the DLL, or a test program), found by an address inside it.
HMODULE ThisModule() {
  static const char anchor = 0;
  HMODULE module = nullptr;
  if (!::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            &anchor, &module))
    return nullptr;
  return module;
}

class Win32DateLocale final : public DateLocale {
 public:
  std::string GetShortDatePicture(std::uint32_t localeId) const override {
    char picture[100] = {};
    const LCID locale = localeId != 0 ? static_cast<LCID>(localeId) : ::GetUserDefaultLCID();
    if (::GetLocaleInfoA(locale, LOCALE_SSHORTDATE, picture, sizeof picture) == 0) return {};
    return picture;
  }

  std::string GetTimeFormatNoSeconds(int hour, int minute) const override {
    // GetTimeFormat reads only the time fields, but the date is made valid all the same.
    SYSTEMTIME time{};
    time.wYear = 2000;
    time.wMonth = 1;
    time.wDay = 1;
    time.wHour = static_cast<WORD>(hour);
    time.wMinute = static_cast<WORD>(minute);
    char text[25] = {};
    if (::GetTimeFormatA(::GetUserDefaultLCID(), TIME_NOSECONDS, &time, nullptr, text, sizeof text) == 0) return {};
    return text;
  }

  std::string LoadInvalidDateText() const override {
    char text[256] = {};
    const int length = ::LoadStringA(ThisModule(), kInvalidDateTextId, text, sizeof text);
    return length > 0 ? std::string(text, static_cast<std::size_t>(length)) : std::string();
  }
};

}  // namespace

const DateLocale& PlatformDateLocale() {
  static const Win32DateLocale locale;
  return locale;
}

}  // namespace orv
