// The script driver against a real platform sheet of plain pages: each command reaches the
// page as a user's action would, and bad commands cancel the sheet with a message.
#include "Script.h"
#include "ScriptDriver.h"

#include <windows.h>
#include <commctrl.h>
#include <objbase.h>
#include <prsht.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace orv::host_app {
namespace {

std::vector<std::string> g_log;  // what the pages saw, in order

INT_PTR CALLBACK PageProc(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      if (GetDlgItem(page, 202) != nullptr) {
        for (const char* item : {"Close", "High", "Low"}) {
          SendDlgItemMessageA(page, 202, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
          SendDlgItemMessageA(page, 203, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        }
      }
      return TRUE;
    case WM_COMMAND: {
      const int id = LOWORD(wParam), code = HIWORD(wParam);
      char text[64] = {};
      if (id == 200 && code == EN_CHANGE) {
        GetDlgItemTextA(page, 200, text, sizeof(text));
        g_log.push_back(std::string("EN_CHANGE ") + text);
      } else if (id == 201 && code == BN_CLICKED) {
        g_log.push_back(IsDlgButtonChecked(page, 201) == BST_CHECKED ? "checked" : "unchecked");
      } else if (id == 202 && code == CBN_SELCHANGE) {
        g_log.push_back("combo " + std::to_string(SendDlgItemMessageA(page, 202, CB_GETCURSEL, 0, 0)));
      } else if (id == 203 && code == LBN_SELCHANGE) {
        g_log.push_back("list " + std::to_string(SendDlgItemMessageA(page, 203, LB_GETCURSEL, 0, 0)));
      }
      return TRUE;
    }
    case WM_NOTIFY: {
      const auto* header = reinterpret_cast<const NMHDR*>(lParam);
      if (header->code == PSN_APPLY) g_log.push_back("apply");
      if (header->code == PSN_SETACTIVE) g_log.push_back(GetDlgItem(page, 200) ? "show controls" : "show second");
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
  bool seen = false;
  std::size_t run = 0;
};

// Runs the two-page sheet under the script, as orvhost runs the component's sheet.
Outcome RunSheet(const std::string& script) {
  const ParsedScript parsed = ParseScript(script);
  EXPECT_TRUE(parsed.error.empty()) << parsed.error;
  g_log.clear();
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
  outcome.seen = driver.SheetSeen();
  outcome.run = driver.StepsRun();
  EXPECT_EQ(FindThreadSheet(), nullptr);
  return outcome;
}

bool Logged(const std::string& entry) {
  for (const std::string& e : g_log)
    if (e == entry) return true;
  return false;
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

TEST_F(ScriptDriverTest, EveryCommandReachesThePageAsAUsersActionWould) {
  wchar_t folder[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, folder);
  const std::wstring png = std::wstring(folder) + L"orvhost-driver-test.png";
  DeleteFileW(png.c_str());
  std::string pngUtf8(png.begin(), png.end());

  const Outcome o = RunSheet(
      "text 200 12.5\nclick 201\nselect 202 2\nselect 203 1\ntab 1\nwait 30\ntab 0\n"
      "apply\nscreenshot \"" +
      pngUtf8 + "\"\nclick 201; ok");
  EXPECT_TRUE(o.error.empty()) << o.error;
  EXPECT_TRUE(o.seen);
  EXPECT_EQ(o.run, 11u);
  EXPECT_TRUE(Logged("EN_CHANGE 12.5"));
  EXPECT_TRUE(Logged("combo 2"));
  EXPECT_TRUE(Logged("list 1"));
  EXPECT_TRUE(Logged("show second"));
  // Apply and OK each reach both pages (the second exists since it was shown).
  EXPECT_EQ(std::count(g_log.begin(), g_log.end(), "apply"), 4);
  // The check box went on and off: the clicks were real clicks.
  const auto on = std::find(g_log.begin(), g_log.end(), "checked");
  ASSERT_NE(on, g_log.end());
  EXPECT_NE(std::find(on, g_log.end(), "unchecked"), g_log.end());

  WIN32_FILE_ATTRIBUTE_DATA data{};
  ASSERT_TRUE(GetFileAttributesExW(png.c_str(), GetFileExInfoStandard, &data));
  EXPECT_GT(data.nFileSizeLow, 1000u);
  DeleteFileW(png.c_str());
}

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
      {"tab 1; click 201", "the current page has no control 201"},
      {"ok; click 201", "the sheet closed before command 2 (\"click 201\")"},
      {"screenshot Z:\\no\\such\\folder\\x.png", "cannot write"},
  };
  for (const Case& c : cases) {
    const Outcome o = RunSheet(c.script);
    EXPECT_NE(o.error.find(c.says), std::string::npos) << c.script << " -> " << o.error;
    if (std::string(c.script).rfind("ok", 0) != 0) {
      EXPECT_EQ(o.result, 0) << c.script << ": the sheet was not cancelled";
      EXPECT_FALSE(Logged("apply")) << c.script;
    }
  }
}

}  // namespace
}  // namespace orv::host_app
