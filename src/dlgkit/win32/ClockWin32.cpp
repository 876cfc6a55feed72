#include <windows.h>

#include "dlgkit/Clock.h"

namespace orv {

namespace {
class LocalClock final : public Clock {
 public:
  DateTime Now() const override {
    SYSTEMTIME st{};
    ::GetLocalTime(&st);
    return DateTime{st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond};
  }
};
}  // namespace

const Clock& SystemClock() {
  static const LocalClock clock;
  return clock;
}

}  // namespace orv
