// The program's message box on the screen: real boxes driven as a user would (keys, the Close
// box), their size around the text, modality to the owner, Ctrl+C, and pictures to look at
// (written to the test's working folder as msgbox-*.png).
#include <windows.h>
#include <objbase.h>

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>

#include "WindowCapture.h"
#include "win32/PostedWork.h"
#include "dlgkit/MessageBox.h"

namespace {

// Runs `drive` on the box once it is up (from a timer of this thread), then shows the box.
class BoxDriver {
 public:
  explicit BoxDriver(std::function<void(HWND)> drive) : drive_(std::move(drive)) {
    current_ = this;
    timer_ = SetTimer(nullptr, 0, 50, &BoxDriver::Tick);
  }
  ~BoxDriver() {
    KillTimer(nullptr, timer_);
    current_ = nullptr;
  }
  HWND box() const { return box_; }

 private:
  static BOOL CALLBACK Find(HWND window, LPARAM found) {
    if (IsWindowVisible(window) && GetDlgItem(window, 101) != nullptr) {
      *reinterpret_cast<HWND*>(found) = window;
      return FALSE;
    }
    return TRUE;
  }
  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
    BoxDriver* self = current_;
    if (self == nullptr || self->done_) return;
    HWND box = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), Find, reinterpret_cast<LPARAM>(&box));
    if (box == nullptr) return;
    self->done_ = true;
    self->box_ = box;
    self->drive_(box);
  }
  static inline BoxDriver* current_ = nullptr;
  std::function<void(HWND)> drive_;
  UINT_PTR timer_ = 0;
  bool done_ = false;
  HWND box_ = nullptr;
};

void Press(HWND box, int id) { PostMessageW(box, WM_COMMAND, MAKEWPARAM(id, 0), 0); }

SIZE WindowSize(HWND window) {
  RECT r;
  GetWindowRect(window, &r);
  return {r.right - r.left, r.bottom - r.top};
}

RECT ChildRect(HWND box, int id) {
  RECT r{};
  GetWindowRect(GetDlgItem(box, id), &r);
  MapWindowPoints(nullptr, box, reinterpret_cast<POINT*>(&r), 2);
  return r;
}

void Picture(HWND box, const wchar_t* name) {
  UpdateWindow(box);
  EXPECT_EQ(orv::apps::CaptureWindowToPng(box, name), S_OK) << "screenshot";
}

// Shows a box captioned "Box", lets `look` see it, then presses OK.
void LookAndPressOk(const char* text, unsigned flags, const std::function<void(HWND)>& look) {
  BoxDriver driver([&](HWND box) {
    look(box);
    Press(box, IDOK);
  });
  OrvMessageBox(nullptr, text, "Box", flags);
}

class MessageBoxWin32 : public ::testing::Test {
 protected:
  void SetUp() override { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  void TearDown() override { CoUninitialize(); }
};

TEST_F(MessageBoxWin32, EscOnOkAloneGivesOkAndTheBoxIsGone) {
  HWND seen = nullptr;
  BoxDriver driver([&](HWND box) {
    seen = box;
    wchar_t caption[64] = {};
    GetWindowTextW(box, caption, 64);
    EXPECT_STREQ(caption, L"Trendline");
    Picture(box, L"msgbox-ok.png");
    Press(box, IDCANCEL);  // what Esc and the Close box send
  });
  EXPECT_EQ(OrvMessageBox(nullptr, "The study has been saved.", "Trendline", 0), IDOK);
  EXPECT_FALSE(IsWindow(seen));
}

TEST_F(MessageBoxWin32, YesNoCannotBeCancelledAndAnswersByMnemonic) {
  bool closeGray = false;
  BoxDriver driver([&](HWND box) {
    closeGray = (GetMenuState(GetSystemMenu(box, FALSE), SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED) != 0;
    Picture(box, L"msgbox-yesno.png");
    Press(box, IDCANCEL);                                   // ignored
    PostMessageW(GetDlgItem(box, IDYES), WM_CHAR, 'n', 0);  // the mnemonic of "&No"
  });
  EXPECT_EQ(OrvMessageBox(nullptr, "Delete the line?", "Custom Lines", MB_YESNO | MB_ICONQUESTION), IDNO);
  EXPECT_TRUE(closeGray);
}

TEST_F(MessageBoxWin32, NoButtonIsDefaultWhenTheFlagNamesAThirdOfTwo) {
  bool anyDefault = true;
  BoxDriver driver([&](HWND box) {
    anyDefault = false;
    for (int id : {IDYES, IDNO})
      anyDefault |= (GetWindowLongW(GetDlgItem(box, id), GWL_STYLE) & 0x0F) == BS_DEFPUSHBUTTON;
    Press(box, IDNO);
  });
  EXPECT_EQ(OrvMessageBox(nullptr, "Go on?", "Box", MB_YESNO | MB_DEFBUTTON3), IDNO);
  EXPECT_FALSE(anyDefault);
}

TEST_F(MessageBoxWin32, ManyLinesGrowTheBoxAndMoveTheButtonsBelowTheText) {
  SIZE empty{}, tall{};
  RECT text{}, button{};
  LookAndPressOk("", MB_OKCANCEL, [&](HWND box) { empty = WindowSize(box); });
  LookAndPressOk("One\nTwo\nThree\nFour\nFive\nSix\nSeven\nEight", MB_OKCANCEL | MB_ICONEXCLAMATION, [&](HWND box) {
    tall = WindowSize(box);
    text = ChildRect(box, 101);
    button = ChildRect(box, IDOK);
    Picture(box, L"msgbox-tall.png");
  });
  EXPECT_GT(tall.cy, empty.cy + 40);
  EXPECT_LE(text.bottom, button.top) << "the buttons sit below the text";
}

TEST_F(MessageBoxWin32, ALongLineWidensTheBoxUpToTheTextWidth) {
  SIZE narrow{}, wide{};
  RECT text{}, client{};
  LookAndPressOk("Short.", 0, [&](HWND box) { narrow = WindowSize(box); });
  LookAndPressOk("A single line of text that is a good deal wider than one OK button.", 0, [&](HWND box) {
    wide = WindowSize(box);
    text = ChildRect(box, 101);
    GetClientRect(box, &client);
  });
  EXPECT_GT(wide.cx, narrow.cx);
  EXPECT_LE(text.right, client.right) << "the text is not cut off";
}

TEST_F(MessageBoxWin32, ModalToAVisibleOwnerAndCtrlCCopiesTheBox) {
  HWND owner = CreateWindowExW(0, L"STATIC", L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 300, 200, nullptr,
                               nullptr, nullptr, nullptr);
  ASSERT_NE(owner, nullptr);
  bool ownerEnabledDuring = true;
  HWND boxOwner = nullptr;
  BoxDriver driver([&](HWND box) {
    ownerEnabledDuring = IsWindowEnabled(owner);
    boxOwner = GetWindow(box, GW_OWNER);
    // Ctrl held as the keyboard state of this thread, then C.
    BYTE keys[256];
    GetKeyboardState(keys);
    keys[VK_CONTROL] = 0x80;
    SetKeyboardState(keys);
    SendMessageW(box, WM_NULL, 0, 0);
    PostMessageW(GetDlgItem(box, IDOK), WM_KEYDOWN, 'C', 0);
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDOK, 0), 0);
  });
  EXPECT_EQ(OrvMessageBox(owner, "Copied.", "Box", 0), IDOK);
  BYTE keys[256];
  GetKeyboardState(keys);
  keys[VK_CONTROL] = 0;
  SetKeyboardState(keys);
  EXPECT_FALSE(ownerEnabledDuring);
  EXPECT_EQ(boxOwner, owner);
  EXPECT_TRUE(IsWindowEnabled(owner));

  ASSERT_TRUE(OpenClipboard(nullptr));
  HANDLE data = GetClipboardData(CF_UNICODETEXT);
  std::wstring copied = data ? static_cast<const wchar_t*>(GlobalLock(data)) : L"";
  if (data) GlobalUnlock(data);
  CloseClipboard();
  const std::wstring rule = L"---------------------------\r\n";
  EXPECT_EQ(copied, rule + L"Box\r\n" + rule + L"Copied.\r\n" + rule + L"OK   \r\n" + rule);
  DestroyWindow(owner);
}

TEST_F(MessageBoxWin32, AnInvisibleOwnerCountsAsNone) {
  HWND hidden = CreateWindowExW(0, L"STATIC", L"hidden", WS_OVERLAPPEDWINDOW, 10, 10, 300, 200, nullptr, nullptr,
                                nullptr, nullptr);
  HWND boxOwner = reinterpret_cast<HWND>(1);
  BoxDriver driver([&](HWND box) {
    boxOwner = GetWindow(box, GW_OWNER);
    Press(box, IDOK);
  });
  EXPECT_EQ(OrvMessageBox(hidden, "Text", "Box", 0), IDOK);
  EXPECT_EQ(boxOwner, nullptr);
  EXPECT_TRUE(IsWindowEnabled(hidden));
  DestroyWindow(hidden);
}

// Enter, as the keyboard gives it to the focused control and the dialog manager reads it,
// answers with the button the flags name as default (the only default one), whichever its place, and that button has
// the focus from the start.
struct EnterCase {
  const char* name;
  unsigned flags;
  int answer;                        // the default button's id
  bool owned;                        // shown over a visible owner window
  const wchar_t* picture = nullptr;  // a picture of the box before Enter, to look at
};

void PrintTo(const EnterCase& c, std::ostream* os) { *os << c.name; }

class MessageBoxEnter : public ::testing::TestWithParam<EnterCase> {
 protected:
  void SetUp() override { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  void TearDown() override { CoUninitialize(); }
};

TEST_P(MessageBoxEnter, AnswersWithTheDefaultButton) {
  const EnterCase& c = GetParam();
  HWND owner = nullptr;
  if (c.owned) {
    owner = CreateWindowExW(0, L"STATIC", L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 400, 300, nullptr,
                            nullptr, nullptr, nullptr);
    ASSERT_NE(owner, nullptr);
  }
  int focused = -1;
  bool defaultStyle = false;
  int defaults = 0;
  orv::test::PostedWork work;
  // Posted before the box exists: it runs from the box's own loop once the box is up.
  work.Post([&] {
    HWND focus = GetFocus();
    HWND box = focus ? GetParent(focus) : nullptr;
    ASSERT_NE(box, nullptr) << "a control of the box has the focus";
    ASSERT_NE(GetDlgItem(box, 101), nullptr) << "the focus is in the box";
    focused = GetDlgCtrlID(focus);
    defaultStyle = (GetWindowLongW(GetDlgItem(box, c.answer), GWL_STYLE) & 0x0F) == BS_DEFPUSHBUTTON;
    for (int id = IDOK; id <= IDCONTINUE; ++id)
      defaults += (GetWindowLongW(GetDlgItem(box, id), GWL_STYLE) & 0x0F) == BS_DEFPUSHBUTTON;
    if (c.picture) Picture(box, c.picture);
    PostMessageW(focus, WM_KEYDOWN, VK_RETURN, MAKELPARAM(1, MapVirtualKeyW(VK_RETURN, 0)));
  });
  const int answer = OrvMessageBox(owner, "Replace the study?", "Box", c.flags);
  if (owner) DestroyWindow(owner);
  EXPECT_EQ(work.Pending(), 0u) << "the box was never up";
  EXPECT_EQ(focused, c.answer);
  EXPECT_TRUE(defaultStyle);
  EXPECT_EQ(defaults, 1) << "no other button is default";
  EXPECT_EQ(answer, c.answer);
}

INSTANTIATE_TEST_SUITE_P(
    DefaultButtons, MessageBoxEnter,
    ::testing::Values(EnterCase{"OkAlone", MB_OK, IDOK, false}, EnterCase{"OkCancelFirst", MB_OKCANCEL, IDOK, false},
                      EnterCase{"OkCancelSecond", MB_OKCANCEL | MB_DEFBUTTON2, IDCANCEL, false},
                      EnterCase{"YesNoFirst", MB_YESNO, IDYES, false},
                      EnterCase{"YesNoSecond", MB_YESNO | MB_DEFBUTTON2, IDNO, false, L"msgbox-default-no.png"},
                      EnterCase{"YesNoSecondOwned", MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2, IDNO, true},
                      EnterCase{"YesNoCancelFirst", MB_YESNOCANCEL, IDYES, false},
                      EnterCase{"YesNoCancelSecond", MB_YESNOCANCEL | MB_DEFBUTTON2, IDNO, false},
                      EnterCase{"YesNoCancelThird", MB_YESNOCANCEL | MB_DEFBUTTON3, IDCANCEL, false},
                      EnterCase{"YesNoCancelThirdOwned", MB_YESNOCANCEL | MB_DEFBUTTON3, IDCANCEL, true},
                      EnterCase{"AbortRetryIgnoreSecond", MB_ABORTRETRYIGNORE | MB_DEFBUTTON2, IDRETRY, false},
                      EnterCase{"AbortRetryIgnoreThird", MB_ABORTRETRYIGNORE | MB_DEFBUTTON3, IDIGNORE, false},
                      EnterCase{"RetryCancelSecond", MB_RETRYCANCEL | MB_DEFBUTTON2, IDCANCEL, false},
                      EnterCase{"CancelTryContinueThird", MB_CANCELTRYCONTINUE | MB_DEFBUTTON3, IDCONTINUE, false}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
