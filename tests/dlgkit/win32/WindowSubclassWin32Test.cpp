// Subclassing by window procedure on real windows, Unicode and ANSI: what the subclass sees,
// what reaches the window's own procedure, the character set kept, the way off while the window
// lives (also under a platform subclass made later) and with the window.
#include "dlgkit/win32/WindowSubclass.h"

#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

constexpr UINT kAnswered = WM_APP + 7;  // the subclass answers it; the window itself answers 0

struct Seen {
  std::vector<UINT> messages;
};

LRESULT Recorder(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* data) {
  static_cast<Seen*>(data)->messages.push_back(message);
  if (message == kAnswered) return 42;
  return orv::CallOriginalProc(window, message, wParam, lParam);
}

LRESULT CALLBACK PlatformSubclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
  return DefSubclassProc(window, message, wParam, lParam);
}

bool Saw(const Seen& seen, UINT message) { return std::ranges::find(seen.messages, message) != seen.messages.end(); }

struct Kind {
  const char* name;
  bool unicode;
};

class WindowSubclassWin32Test : public ::testing::TestWithParam<Kind> {
 protected:
  // A Unicode static, or a window of an ANSI class whose procedure is DefWindowProcA.
  HWND MakeStatic() {
    HWND window = nullptr;
    if (GetParam().unicode) {
      window = CreateWindowExW(0, L"STATIC", L"text", WS_POPUP, 0, 0, 50, 20, nullptr, nullptr, nullptr, nullptr);
    } else {
      static const ATOM ansiClass = [] {
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = &DefWindowProcA;
        windowClass.hInstance = GetModuleHandleA(nullptr);
        windowClass.lpszClassName = "OrvSubclassTestAnsi";
        return RegisterClassA(&windowClass);
      }();
      if (ansiClass)
        window = CreateWindowExA(0, "OrvSubclassTestAnsi", "text", WS_POPUP, 0, 0, 50, 20, nullptr, nullptr,
                                 GetModuleHandleA(nullptr), nullptr);
    }
    EXPECT_EQ(window && IsWindowUnicode(window), GetParam().unicode);
    return window;
  }
  static LONG_PTR Procedure(HWND window) {
    return IsWindowUnicode(window) ? GetWindowLongPtrW(window, GWLP_WNDPROC) : GetWindowLongPtrA(window, GWLP_WNDPROC);
  }
};

TEST_P(WindowSubclassWin32Test, SeesFirstPassesOnAndKeepsTheCharacterSet) {
  HWND window = MakeStatic();
  ASSERT_NE(window, nullptr);
  const BOOL unicode = IsWindowUnicode(window);
  Seen seen;
  ASSERT_TRUE(orv::SubclassWindowProc(window, &Recorder, &seen));
  EXPECT_FALSE(orv::SubclassWindowProc(window, &Recorder, &seen));  // one of a kind per window
  EXPECT_EQ(orv::WindowSubclassData(window, &Recorder), &seen);
  EXPECT_EQ(IsWindowUnicode(window), unicode);

  EXPECT_EQ(SendMessageA(window, kAnswered, 0, 0), 42);
  char text[16] = {};
  EXPECT_EQ(GetWindowTextA(window, text, sizeof text), 4);  // the window's own answer
  EXPECT_STREQ(text, "text");
  EXPECT_TRUE(Saw(seen, kAnswered));
  EXPECT_TRUE(Saw(seen, WM_GETTEXT));

  DestroyWindow(window);
  EXPECT_TRUE(Saw(seen, WM_NCDESTROY));
  EXPECT_EQ(orv::WindowSubclassData(window, &Recorder), nullptr);
}

TEST_P(WindowSubclassWin32Test, RemovedOnTopGivesTheProcedureBack) {
  HWND window = MakeStatic();
  ASSERT_NE(window, nullptr);
  const LONG_PTR own = Procedure(window);
  Seen seen;
  ASSERT_TRUE(orv::SubclassWindowProc(window, &Recorder, &seen));
  EXPECT_NE(Procedure(window), own);
  orv::RemoveWindowSubclassProc(window, &Recorder);
  EXPECT_EQ(Procedure(window), own);
  EXPECT_EQ(orv::WindowSubclassData(window, &Recorder), nullptr);
  EXPECT_EQ(SendMessageA(window, kAnswered, 0, 0), 0);
  EXPECT_TRUE(seen.messages.empty());
  // It can come again.
  EXPECT_TRUE(orv::SubclassWindowProc(window, &Recorder, &seen));
  DestroyWindow(window);
}

TEST_P(WindowSubclassWin32Test, RemovedUnderAPlatformSubclassPassesThrough) {
  HWND window = MakeStatic();
  ASSERT_NE(window, nullptr);
  Seen seen;
  ASSERT_TRUE(orv::SubclassWindowProc(window, &Recorder, &seen));
  ASSERT_TRUE(SetWindowSubclass(window, &PlatformSubclass, 1, 0));
  orv::RemoveWindowSubclassProc(window, &Recorder);
  EXPECT_EQ(orv::WindowSubclassData(window, &Recorder), nullptr);
  EXPECT_EQ(SendMessageA(window, kAnswered, 0, 0), 0);  // through to the window's own, unseen
  char text[16] = {};
  EXPECT_EQ(GetWindowTextA(window, text, sizeof text), 4);
  EXPECT_TRUE(seen.messages.empty());
  RemoveWindowSubclass(window, &PlatformSubclass, 1);
  DestroyWindow(window);
  EXPECT_TRUE(seen.messages.empty());
}

TEST(WindowSubclassWin32, RefusesAnotherThreadsWindowAndNoWindow) {
  Seen seen;
  EXPECT_FALSE(orv::SubclassWindowProc(nullptr, &Recorder, &seen));
  HWND desktop = GetDesktopWindow();  // not this thread's
  EXPECT_FALSE(orv::SubclassWindowProc(desktop, &Recorder, &seen));
  EXPECT_EQ(orv::WindowSubclassData(desktop, &Recorder), nullptr);
}

INSTANTIATE_TEST_SUITE_P(CharacterSets, WindowSubclassWin32Test,
                         ::testing::Values(Kind{"Unicode", true}, Kind{"Ansi", false}),
                         [](const ::testing::TestParamInfo<Kind>& info) { return info.param.name; });

}  // namespace
