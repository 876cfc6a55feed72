// The one dialog procedure under real windows: order of notifications, answers through
// DWLP_MSGRESULT with their polarity, and exceptions that end the modal run.

#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "DialogHostTemplate.h"
#include "dlgkit/win32/DialogHost.h"

namespace {

constexpr UINT kRunScenario = WM_APP + 1;
constexpr UINT kAnswered = WM_APP + 2;

class ScriptedPage : public orv::Page {
 public:
  int DialogId() const override { return 1336; }
  bool OnAnyMessage(unsigned message, std::uintptr_t, std::intptr_t, std::intptr_t& result) override {
    if (message == kAnswered) {
      result = 1234;
      return true;
    }
    if (message == WM_CTLCOLORDLG) {
      result = 0x5150;  // stands for a brush: returned as it is, not through DWLP_MSGRESULT
      return true;
    }
    if (message == kRunScenario) {
      if (throwInLoop) throw std::runtime_error("thrown in the loop");
      if (scenario) scenario(window);
      return true;
    }
    return false;
  }
  bool OnInitDialog(orv::Controls&, orv::WindowHandle w, orv::WindowOps*) override {
    window = static_cast<HWND>(w);
    log.push_back("init");
    if (throwInInit) throw std::logic_error("thrown in init");
    ::PostMessageA(window, kRunScenario, 0, 0);
    return true;
  }
  bool OnSetActive() override {
    log.push_back("set");
    return acceptActive;
  }
  bool OnKillActive() override {
    log.push_back("kill");
    return allowLeave;
  }
  orv::ApplyResult OnApply() override {
    log.push_back("apply");
    return orv::ApplyResult::NoError;
  }
  void OnReset() override { log.push_back("reset"); }
  bool OnQueryCancel() override {
    log.push_back("querycancel");
    return true;
  }
  int OnWizardNext() override { return 1337; }
  int OnWizardBack() override { return orv::kWizardStay; }
  bool OnWizardFinish() override { return allowFinish; }
  void OnCommand(int id, int code) override {
    log.push_back("command " + std::to_string(id));
    ++commands;
  }
  bool OnNotify(int id, int code, const void*, std::intptr_t& result) override {
    if (code != static_cast<int>(kHandledCode)) return false;
    log.push_back("notify " + std::to_string(id));
    result = 5;
    return true;
  }
  bool OnUnhandledMessage(unsigned message, std::uintptr_t wParam, std::intptr_t, std::intptr_t& result) override {
    if (message != WM_COMMAND && message != WM_NOTIFY && message != WM_DRAWITEM) return false;
    log.push_back("unhandled " + std::to_string(message));
    result = 9;
    return true;
  }
  static constexpr UINT kHandledCode = 0xFFFFF000;

  HWND window = nullptr;
  std::vector<std::string> log;
  std::function<void(HWND)> scenario;
  bool throwInInit = false;
  bool throwInLoop = false;
  bool acceptActive = true;
  bool allowLeave = true;
  bool allowFinish = true;
  int commands = 0;
};

std::vector<WORD> SimpleTemplate() {
  orv::test::DialogTemplateBuilder builder("Host test", 120, 60);
  builder.AddItem(orv::test::kButtonClass, "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 10, 40, 40, 14);
  builder.AddItem(orv::test::kButtonClass, "Cancel", IDCANCEL, BS_PUSHBUTTON | WS_TABSTOP, 60, 40, 40, 14);
  return builder.Build();
}

LRESULT Notify(HWND window, UINT code) {
  NMHDR header{};
  header.hwndFrom = window;
  header.code = code;
  return ::SendMessageA(window, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header));
}

TEST(DialogHost, OkRunsKillActiveAndApplyAndARefusalKeepsTheDialog) {
  const auto dialogTemplate = SimpleTemplate();
  ScriptedPage page;
  page.allowLeave = false;
  page.scenario = [&](HWND window) {
    ::SendMessageA(window, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    EXPECT_TRUE(::IsWindow(window));  // refused: still open
    page.allowLeave = true;
    ::SendMessageA(window, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
  };
  const INT_PTR result = orv::RunPageDialogIndirect(page, orv::test::AsTemplate(dialogTemplate), nullptr);
  EXPECT_EQ(result, IDOK);
  EXPECT_EQ(page.log, (std::vector<std::string>{"init", "set", "command 1", "kill", "command 1", "kill", "apply"}));
  EXPECT_FALSE(::IsWindow(page.window));
}

TEST(DialogHost, CancelResets) {
  const auto dialogTemplate = SimpleTemplate();
  ScriptedPage page;
  page.scenario = [](HWND window) { ::SendMessageA(window, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0); };
  EXPECT_EQ(orv::RunPageDialogIndirect(page, orv::test::AsTemplate(dialogTemplate), nullptr), IDCANCEL);
  EXPECT_EQ(page.log, (std::vector<std::string>{"init", "set", "command 2", "querycancel", "reset"}));
}

TEST(DialogHost, AnswersWithThePlatformsPolarity) {
  const auto dialogTemplate = SimpleTemplate();
  ScriptedPage page;
  page.scenario = [&](HWND window) {
    // Handled messages answer through DWLP_MSGRESULT; colour messages directly.
    EXPECT_EQ(::SendMessageA(window, kAnswered, 0, 0), 1234);
    EXPECT_EQ(::SendMessageA(window, WM_CTLCOLORDLG, 0, reinterpret_cast<LPARAM>(window)), 0x5150);
    page.allowLeave = false;
    EXPECT_EQ(Notify(window, PSN_KILLACTIVE), TRUE);  // TRUE keeps the page
    page.allowLeave = true;
    EXPECT_EQ(Notify(window, PSN_KILLACTIVE), FALSE);
    page.acceptActive = false;
    EXPECT_EQ(Notify(window, PSN_SETACTIVE), -1);
    page.acceptActive = true;
    EXPECT_EQ(Notify(window, PSN_SETACTIVE), 0);
    EXPECT_EQ(Notify(window, PSN_WIZNEXT), 1337);
    EXPECT_EQ(Notify(window, PSN_WIZBACK), -1);
    page.allowFinish = false;
    EXPECT_EQ(Notify(window, PSN_WIZFINISH), TRUE);  // TRUE refuses to finish
    page.allowFinish = true;
    EXPECT_EQ(Notify(window, PSN_WIZFINISH), FALSE);
    EXPECT_EQ(Notify(window, PSN_APPLY), PSNRET_NOERROR);
    ::EndDialog(window, 77);
  };
  EXPECT_EQ(orv::RunPageDialogIndirect(page, orv::test::AsTemplate(dialogTemplate), nullptr), 77);
}

TEST(DialogHost, WhatThePageLeavesGoesToTheUnhandledHookAfterItsOwnHandlers) {
  const auto dialogTemplate = SimpleTemplate();
  ScriptedPage page;
  page.scenario = [&](HWND window) {
    const HWND ok = ::GetDlgItem(window, IDOK);
    NMHDR header{ok, IDOK, ScriptedPage::kHandledCode};
    EXPECT_EQ(::SendMessageA(window, WM_NOTIFY, IDOK, reinterpret_cast<LPARAM>(&header)), 5);
    header.code = NM_CLICK;
    EXPECT_EQ(::SendMessageA(window, WM_NOTIFY, IDOK, reinterpret_cast<LPARAM>(&header)), 9);
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_BUTTON;
    draw.CtlID = IDOK;
    draw.hwndItem = ok;
    EXPECT_EQ(::SendMessageA(window, WM_DRAWITEM, IDOK, reinterpret_cast<LPARAM>(&draw)), 9);
    ::SendMessageA(window, WM_COMMAND, MAKEWPARAM(42, EN_CHANGE), reinterpret_cast<LPARAM>(ok));
    ::EndDialog(window, 3);
  };
  EXPECT_EQ(orv::RunPageDialogIndirect(page, orv::test::AsTemplate(dialogTemplate), nullptr), 3);
  EXPECT_EQ(page.log, (std::vector<std::string>{"init", "set", "notify 1", "unhandled 78", "unhandled 43", "command 42",
                                                "unhandled 273"}));
}

TEST(DialogHost, ExceptionInInitEndsTheRunAndIsRethrown) {
  const auto dialogTemplate = SimpleTemplate();
  ScriptedPage page;
  page.throwInInit = true;
  EXPECT_THROW(orv::RunPageDialogIndirect(page, orv::test::AsTemplate(dialogTemplate), nullptr), std::logic_error);
  EXPECT_FALSE(::IsWindow(page.window));
  EXPECT_EQ(page.log, (std::vector<std::string>{"init"}));
}

TEST(DialogHost, ExceptionInTheLoopEndsTheRunAndThePageHearsNoMore) {
  const auto dialogTemplate = SimpleTemplate();
  ScriptedPage page;
  page.throwInLoop = true;
  try {
    orv::RunPageDialogIndirect(page, orv::test::AsTemplate(dialogTemplate), nullptr);
    FAIL() << "the page's exception was lost";
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "thrown in the loop");
  }
  EXPECT_FALSE(::IsWindow(page.window));
  EXPECT_EQ(page.commands, 0);
}

TEST(DialogHost, MissingTemplateGivesMinusOne) {
  ScriptedPage page;
  EXPECT_EQ(orv::RunPageDialog(page, ::GetModuleHandleA(nullptr), 4711, nullptr), -1);
  EXPECT_TRUE(page.log.empty());
}

}  // namespace
