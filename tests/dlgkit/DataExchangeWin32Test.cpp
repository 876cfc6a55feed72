// Data exchange against real controls: an edit, a check box and a drop-down list in a dialog
// built from an in-memory template, driven through Win32Controls.

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "DialogHostTemplate.h"
#include "dlgkit/DataExchange.h"
#include "dlgkit/win32/DialogHost.h"

namespace {

constexpr int kEdit = 1001;
constexpr int kCheck = 1002;
constexpr int kCombo = 1003;
constexpr int kThreeState = 1004;
constexpr UINT kRunScenario = WM_APP + 1;

class ExchangePage : public orv::Page, public CWinDataExchangeZel<ExchangePage> {
 public:
  int DialogId() const override { return 1337; }
  orv::Controls& Ctl() { return *controls_; }
  bool OnInitDialog(orv::Controls& controls, orv::WindowHandle window, orv::WindowOps*) override {
    controls_ = &controls;
    window_ = static_cast<HWND>(window);
    controls.ComboAddString(kCombo, "Daily", 10);
    controls.ComboAddString(kCombo, "Weekly", 20);
    controls.ComboAddString(kCombo, "Monthly", 30);
    // The scenario runs once the dialog is up and its loop is turning.
    ::PostMessageA(window_, kRunScenario, 0, 0);
    return true;
  }
  bool OnAnyMessage(unsigned message, std::uintptr_t, std::intptr_t, std::intptr_t&) override {
    if (message != kRunScenario) return false;
    scenario(*this);
    ::EndDialog(window_, IDOK);
    return true;
  }
  HWND Item(int id) const { return ::GetDlgItem(window_, id); }
  std::string Text(int id) const {
    char buffer[64] = {};
    ::GetDlgItemTextA(window_, id, buffer, sizeof buffer);
    return buffer;
  }

  std::function<void(ExchangePage&)> scenario;
  HWND window_ = nullptr;

 private:
  orv::Controls* controls_ = nullptr;
};

std::vector<WORD> ExchangeTemplate() {
  orv::test::DialogTemplateBuilder builder("Exchange", 200, 100);
  builder.AddItem(orv::test::kEditClass, "", kEdit, ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, 10, 10, 80, 12);
  builder.AddItem(orv::test::kButtonClass, "Show", kCheck, BS_AUTOCHECKBOX | WS_TABSTOP, 10, 30, 80, 12);
  builder.AddItem(orv::test::kComboBoxClass, "", kCombo, CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, 10, 50, 80, 60);
  builder.AddItem(orv::test::kButtonClass, "Both", kThreeState, BS_AUTO3STATE | WS_TABSTOP, 10, 70, 80, 12);
  builder.AddItem(orv::test::kButtonClass, "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 110, 80, 40, 14);
  return builder.Build();
}

void RunExchangeDialog(ExchangePage& page) {
  const auto dialogTemplate = ExchangeTemplate();
  EXPECT_EQ(orv::RunPageDialogIndirect(page, orv::test::AsTemplate(dialogTemplate), nullptr), IDOK);
}

TEST(DataExchangeWin32, MovesValuesBothWaysThroughRealControls) {
  ExchangePage page;
  page.scenario = [](ExchangePage& p) {
    int number = -42;
    double real = 2.5;
    bool flag = true;
    int data = 20;
    EXPECT_TRUE(p.DDX_Int(kEdit, &number, true, false));
    EXPECT_EQ(p.Text(kEdit), "-42");
    EXPECT_TRUE(p.DDX_Float(kEdit, &real, false, false, 0, 0, 15));
    EXPECT_EQ(p.Text(kEdit), "2.5");
    p.DDX_Check(kCheck, &flag, false);
    EXPECT_EQ(::IsDlgButtonChecked(p.window_, kCheck), static_cast<UINT>(BST_CHECKED));
    EXPECT_TRUE(p.DDX_ComboData(kCombo, &data, false));
    EXPECT_EQ(::SendDlgItemMessageA(p.window_, kCombo, CB_GETCURSEL, 0, 0), 1);

    // What a user leaves in the controls comes back.
    ::SetDlgItemTextA(p.window_, kEdit, " 17 ");
    EXPECT_TRUE(p.DDX_Int(kEdit, &number, true, true, true, 1, 17));
    EXPECT_EQ(number, 17);
    ::SetDlgItemTextA(p.window_, kEdit, "0.125");
    EXPECT_TRUE(p.DDX_Float(kEdit, &real, true));
    EXPECT_EQ(real, 0.125);
    ::CheckDlgButton(p.window_, kCheck, BST_UNCHECKED);
    p.DDX_Check(kCheck, &flag, true);
    EXPECT_FALSE(flag);
    ::SendDlgItemMessageA(p.window_, kCombo, CB_SETCURSEL, 2, 0);
    EXPECT_TRUE(p.DDX_ComboData(kCombo, &data, true));
    EXPECT_EQ(data, 30);
    data = 99;  // no item holds it: item 0
    EXPECT_TRUE(p.DDX_ComboData(kCombo, &data, false));
    EXPECT_EQ(::SendDlgItemMessageA(p.window_, kCombo, CB_GETCURSEL, 0, 0), 0);
    EXPECT_EQ(p.Text(kCombo), "Daily");
  };
  RunExchangeDialog(page);
}

// The table of FakeControlsTest's CheckStatesAreWhatTheBoxCanHold, on real buttons: what a
// two-state and a three-state box keep of each state, and where a click takes them.
TEST(DataExchangeWin32, CheckStatesAreWhatTheBoxCanHold) {
  struct Case {
    int id;
    int set;
    int kept;
    int afterClick;
  };
  const Case cases[] = {
      {kCheck, 0, 0, 1},      {kCheck, 1, 1, 0},      {kCheck, 2, 1, 0},      {kCheck, -1, 1, 0},
      {kThreeState, 0, 0, 1}, {kThreeState, 1, 1, 2}, {kThreeState, 2, 2, 0}, {kThreeState, 7, 2, 0},
  };
  ExchangePage page;
  page.scenario = [&](ExchangePage& p) {
    for (const Case& c : cases) {
      SCOPED_TRACE(testing::Message() << "box " << c.id << " set " << c.set);
      EXPECT_TRUE(p.Ctl().CheckDlgButton(c.id, c.set));
      EXPECT_EQ(p.Ctl().IsDlgButtonChecked(c.id), c.kept);
      ::SendMessageA(p.Item(c.id), BM_CLICK, 0, 0);
      EXPECT_EQ(p.Ctl().IsDlgButtonChecked(c.id), c.afterClick);
    }
  };
  RunExchangeDialog(page);
}

TEST(DataExchangeWin32, TextLimitStopsTheUserNotTheProgram) {
  ExchangePage page;
  page.scenario = [](ExchangePage& p) {
    EXPECT_TRUE(p.Ctl().LimitDlgItemText(kEdit, 4));
    ::SetDlgItemTextA(p.window_, kEdit, "");
    for (char c : std::string("123456")) ::SendMessageA(p.Item(kEdit), WM_CHAR, static_cast<WPARAM>(c), 1);
    EXPECT_EQ(p.Text(kEdit), "1234");
    EXPECT_TRUE(p.Ctl().SetDlgItemTextA(kEdit, "abcdef"));
    EXPECT_EQ(p.Text(kEdit), "abcdef");
  };
  RunExchangeDialog(page);
}

TEST(DataExchangeWin32, RefusedFieldTakesTheFocus) {
  ExchangePage page;
  page.scenario = [](ExchangePage& p) {
    ::SetFocus(p.Item(kCheck));
    ::SetDlgItemTextA(p.window_, kEdit, "1.5x");
    double real = 4.0;
    EXPECT_FALSE(p.DDX_Float(kEdit, &real, true));
    EXPECT_EQ(real, 4.0);
    EXPECT_EQ(::GetFocus(), p.Item(kEdit));
  };
  RunExchangeDialog(page);
}

// The box of a failed range check: found on screen, read and closed from a timer that runs in
// the box's own modal loop.
struct SeenBox {
  bool seen = false;
  std::string caption, text;
  HWND owner = nullptr;
};
SeenBox g_box;

void CALLBACK CloseErrorBox(HWND, UINT, UINT_PTR, DWORD) {
  HWND box = ::FindWindowA("#32770", "Error");
  if (!box || g_box.seen) return;
  g_box.seen = true;
  char buffer[128] = {};
  ::GetWindowTextA(box, buffer, sizeof buffer);
  g_box.caption = buffer;
  ::GetDlgItemTextA(box, 101, buffer, sizeof buffer);  // the program box's text control
  g_box.text = buffer;
  g_box.owner = ::GetWindow(box, GW_OWNER);
  ::PostMessageA(box, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
}

TEST(DataExchangeWin32, RangeFailureShowsTheBoxAndFocusesTheControl) {
  ExchangePage page;
  page.scenario = [](ExchangePage& p) {
    g_box = {};
    ::SetFocus(p.Item(kCheck));
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 50, &CloseErrorBox);
    EXPECT_FALSE(p.DDV_MinMaxFloat(kEdit, 0.0, true, 0.0, 100000.0));
    ::KillTimer(nullptr, timer);
    EXPECT_TRUE(g_box.seen);
    EXPECT_EQ(g_box.caption, "Error");
    EXPECT_EQ(g_box.text, "0 out of range: [0,100000]");
    EXPECT_EQ(g_box.owner, p.window_);
    EXPECT_EQ(::GetFocus(), p.Item(kEdit));
  };
  RunExchangeDialog(page);
}

}  // namespace
