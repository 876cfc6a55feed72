// The script driver against a real platform sheet of plain pages: a command a user could not do
// cancels the sheet with a message.
#include "Script.h"
#include "ScriptDriver.h"

#include <windows.h>
#include <commctrl.h>
#include <objbase.h>
#include <prsht.h>

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace orv::host_app {
namespace {

bool g_applied = false;  // a page saw PSN_APPLY
// The selected rows of each list box of several selections as its parent saw them at the list's
// last LBN_SELCHANGE.
std::map<int, std::vector<int>> g_notified;

constexpr int kListRows = 20;

std::vector<int> SelectedRows(HWND list) {
  std::vector<int> rows(kListRows);
  const LRESULT n = SendMessageW(list, LB_GETSELITEMS, rows.size(), reinterpret_cast<LPARAM>(rows.data()));
  rows.resize(n > 0 ? static_cast<std::size_t>(n) : 0);
  return rows;
}

INT_PTR CALLBACK PageProc(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      for (const char* item : {"Close", "High", "Low"})
        SendDlgItemMessageA(page, 202, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
      for (const int list : {206, 207, 208}) {
        for (int row = 0; row < kListRows; ++row) {
          const std::string text = std::to_string(2000 + row);
          SendDlgItemMessageA(page, list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
        }
      }
      return TRUE;
    case WM_COMMAND:
      if (HIWORD(wParam) == LBN_SELCHANGE) {
        g_notified[LOWORD(wParam)] = SelectedRows(reinterpret_cast<HWND>(lParam));
      }
      if (LOWORD(wParam) == 209 && HIWORD(wParam) == BN_CLICKED) MessageBoxW(page, L"Box", L"Refused", MB_OK);
      return FALSE;
    case WM_NOTIFY: {
      if (reinterpret_cast<const NMHDR*>(lParam)->code == PSN_APPLY) g_applied = true;
      SetWindowLongPtrW(page, DWLP_MSGRESULT, 0);
      return TRUE;
    }
    default:
      return FALSE;
  }
}

struct Outcome {
  INT_PTR result = 0;
  std::string error;
};

// Runs the two-page sheet under the script, as orvhost runs the component's sheet.
Outcome RunSheet(const std::string& script) {
  const ParsedScript parsed = ParseScript(script);
  EXPECT_TRUE(parsed.error.empty()) << parsed.error;
  g_applied = false;
  g_notified.clear();
  PROPSHEETPAGEW pages[2] = {};
  for (int i = 0; i < 2; ++i) {
    pages[i].dwSize = sizeof(PROPSHEETPAGEW);
    pages[i].hInstance = GetModuleHandleW(nullptr);
    pages[i].pszTemplate = MAKEINTRESOURCEW(100 + i);
    pages[i].pfnDlgProc = PageProc;
  }
  PROPSHEETHEADERW header{};
  header.dwSize = sizeof(header);
  header.dwFlags = PSH_PROPSHEETPAGE;
  header.pszCaption = L"Script driver";
  header.nPages = 2;
  header.ppsp = pages;

  ScriptDriver driver(parsed.steps);
  EXPECT_TRUE(driver.Start());
  Outcome outcome;
  outcome.result = PropertySheetW(&header);
  driver.Stop();
  outcome.error = driver.Error();
  EXPECT_EQ(FindThreadSheet(), nullptr);
  return outcome;
}

class ScriptDriverTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_WIN95_CLASSES};
    InitCommonControlsEx(&classes);
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  }
  static void TearDownTestSuite() { CoUninitialize(); }
};

TEST_F(ScriptDriverTest, ACommandAUserCouldNotDoCancelsTheSheetAndSaysWhy) {
  struct Case {
    const char* script;
    const char* says;
  };
  const Case cases[] = {
      {"click 204", "command 1 (\"click 204\"): control 204 is hidden"},
      {"click 201; click 205", "command 2 (\"click 205\"): control 205 is disabled"},
      {"text 999 x", "the current page has no control 999"},
      {"tab 2", "the sheet has 2 tabs, no tab 2"},
      {"select 201 0", "control 201 is a Button, not a combo or list box"},
      {"select 202 3", "control 202 has 3 items, no item 3"},
      {"select 206 1", "control 206 is a list box of several selections: toggle its rows"},
      {"toggle 202 0", "control 202 is a ComboBox, not a list box"},
      {"toggle 208 0", "control 208 is a list box of one selection: select its rows"},
      {"toggle 206 20", "control 206 has 20 items, no item 20"},
      {"color 201 27", "command 1 (\"color 201 27\"): control 201 opened no colour drop-down"},
      {"color 204 27", "control 204 is hidden"},
      {"text 200 \"a b\"; expect 200 a", "command 2 (\"expect 200 a\"): control 200 shows \"a b\", not \"a\""},
      {"expect 204 Hidden", "control 204 is hidden"},
      {"select 202 2; expect 202 High", "control 202 shows \"Low\", not \"High\""},
      {"expect 201 checked", "control 201 shows \"unchecked\", not \"checked\""},
      {"tab 1; click 201", "the current page has no control 201"},
      {"ok; click 201", "the sheet closed before command 2 (\"click 201\")"},
      // A box left open is answered for the user; the script fails there, also as its last command.
      {"click 209; click 201", "command 1 (\"click 209\") left a window open (\"Refused\")"},
      {"click 201; click 209", "command 2 (\"click 209\") left a window open (\"Refused\")"},
      {"screenshot Z:\\no\\such\\folder\\x.png", "cannot write"},
  };
  for (const Case& c : cases) {
    const Outcome o = RunSheet(c.script);
    EXPECT_NE(o.error.find(c.says), std::string::npos) << c.script << " -> " << o.error;
    if (std::string(c.script).rfind("ok", 0) != 0) {
      EXPECT_EQ(o.result, 0) << c.script << ": the sheet was not cancelled";
      EXPECT_FALSE(g_applied) << c.script;
    }
  }
}

// A toggle is a user's click on the row: the list box itself changes the selection and tells its
// parent, which sees the new selection. Rows below the visible ones are scrolled to first.
TEST_F(ScriptDriverTest, ToggleClicksARowOfAListOfSeveralSelections) {
  struct Case {
    const char* script;
    int list;
    std::vector<int> rows;  // selected, as the parent last heard
  };
  const Case cases[] = {
      {"toggle 206 1", 206, {1}},
      {"toggle 206 1; toggle 206 3; toggle 206 1", 206, {3}},
      {"toggle 206 0; toggle 206 17", 206, {0, 17}},
      {"toggle 207 2; toggle 207 5", 207, {2, 5}},
      {"toggle 207 2; toggle 207 2; toggle 207 19", 207, {19}},
  };
  for (const Case& c : cases) {
    const Outcome o = RunSheet(std::string(c.script) + "; ok");
    EXPECT_EQ(o.error, "") << c.script;
    EXPECT_EQ(o.result, 1) << c.script;
    EXPECT_EQ(g_notified[c.list], c.rows) << c.script;
  }
}

// expect reads a control as a user does, disabled ones too; the script goes on when it matches.
TEST_F(ScriptDriverTest, ExpectPassesWhenTheControlShowsTheText) {
  const char* const scripts[] = {
      "text 200 \"a; b\"; expect 200 \"a; b\"",
      "expect 202 \"\"; select 202 1; expect 202 High",
      "click 201; expect 201 checked; click 201; expect 201 unchecked",
      "expect 206 \"\"; toggle 206 1; toggle 206 4; expect 206 \"2001, 2004\"",
      "toggle 207 3; expect 207 2003",
      "select 208 5; expect 208 2005",
      "expect 205 Disabled",
  };
  for (const char* script : scripts) {
    const Outcome o = RunSheet(std::string(script) + "; ok");
    EXPECT_EQ(o.error, "") << script;
    EXPECT_EQ(o.result, 1) << script;
  }
}

}  // namespace
}  // namespace orv::host_app
