#include "dlgkit/win32/SheetRunnerWin32.h"

#include <commctrl.h>
#include <prsht.h>

#include <exception>
#include <memory>
#include <vector>

#include "dlgkit/Controls.h"
#include "dlgkit/HostServices.h"
#include "dlgkit/WindowOps.h"
#include "dlgkit/win32/DialogHost.h"
#include "dlgkit/win32/WindowSubclass.h"
#include "xml/XmlError.h"

namespace orv {

namespace {

// One modal run. The sheet callback has no user data, so the run being created is found
// through the thread: PSCB_INITIALIZED comes during PropertySheetA, before any nested run can
// start, and a nested run restores the outer one when it ends.
struct SheetRun {
  const SheetSetup* setup = nullptr;
  HWND sheet = nullptr;
  std::exception_ptr failure;

  // Keeps the first failure and closes the sheet; PropertySheetA then returns and Run rethrows.
  void Fail(HWND window) {
    if (!failure) failure = std::current_exception();
    if (window) ::PostMessageA(window, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
  }
};

thread_local SheetRun* t_creating = nullptr;

bool IsSheetPaintMessage(UINT message) {
  switch (message) {
    case WM_ERASEBKGND:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
      return true;
    default:
      return false;
  }
}

LRESULT SheetSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* data) {
  auto* run = static_cast<SheetRun*>(data);
  if (message == WM_NCDESTROY) {
    // The subclass goes with the window.
    run->sheet = nullptr;
    return CallOriginalProc(window, message, wParam, lParam);
  }
  if (run->failure) return CallOriginalProc(window, message, wParam, lParam);
  try {
    // The page-apply message comes ahead of everything the sheet does with messages.
    if (message == kWmLsPageApply) {
      if (run->setup->onPageApply) run->setup->onPageApply(static_cast<int>(wParam));
      return 0;
    }
    if (IsSheetPaintMessage(message) && run->setup->onSheetMessage) {
      std::intptr_t result = 0;
      if (run->setup->onSheetMessage(message, wParam, lParam, result)) return static_cast<LRESULT>(result);
    }
  } catch (...) {
    // Nothing leaves a window procedure: the run ends and the exception is rethrown after it.
    run->Fail(window);
    return 0;
  }
  return CallOriginalProc(window, message, wParam, lParam);
}

int CALLBACK SheetCallback(HWND window, UINT message, LPARAM) {
  if (message != PSCB_INITIALIZED) return 0;
  SheetRun* run = t_creating;
  if (!run) return 0;
  run->sheet = window;
  try {
    SubclassWindowProc(window, &SheetSubclassProc, run);
    // The caption as given, the empty string included.
    ::SendMessageA(window, PSM_SETTITLE, 0, reinterpret_cast<LPARAM>(run->setup->title.c_str()));
    if (run->setup->onInitialized) run->setup->onInitialized(window, DefaultWindowOps());
  } catch (...) {
    run->Fail(window);
  }
  return 0;
}

}  // namespace

HMODULE KitModule() {
  HMODULE module = nullptr;
  ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCSTR>(&KitModule), &module);
  return module;
}

std::intptr_t SheetRunnerWin32::Run(const SheetSetup& setup) {
  // The pages' templates use the date picker and up-down classes, which the host may never have
  // registered: registered here, in the activation context the sheet runs in.
  INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_UPDOWN_CLASS};
  ::InitCommonControlsEx(&classes);
  // The sheet and each of its pages load the theme; a host without a settings service is asked
  // for one once in this open, not once per window.
  OneOpenHostServices host;
  SheetRun run;
  run.setup = &setup;
  const HINSTANCE module = setup.resourceModule ? static_cast<HINSTANCE>(setup.resourceModule) : KitModule();

  // One dialog host per tab; a page shown in two tabs has two hosts.
  std::vector<std::unique_ptr<DialogHost>> hosts;
  std::vector<HPROPSHEETPAGE> pages;
  struct PageHandles {
    std::vector<HPROPSHEETPAGE>& pages;
    bool handedOver = false;
    // Pages that never reached a sheet are the caller's to destroy.
    ~PageHandles() {
      if (!handedOver)
        for (HPROPSHEETPAGE page : pages) ::DestroyPropertySheetPage(page);
    }
  } handles{pages};
  for (const SheetPage& entry : setup.pages) {
    // The host keeps a page's exception; closing the sheet is the runner's part.
    auto host = std::make_unique<DialogHost>(
        *entry.page, nullptr, [](HWND page) { ::PostMessageA(::GetParent(page), PSM_PRESSBUTTON, PSBTN_CANCEL, 0); });
    PROPSHEETPAGEA page{};
    page.dwSize = sizeof(page);
    page.dwFlags = PSP_DEFAULT;
    page.hInstance = module;
    page.pszTemplate = MAKEINTRESOURCEA(entry.dialogId);
    page.pfnDlgProc = &DialogHost::PropertyPageProc;
    page.lParam = reinterpret_cast<LPARAM>(host.get());
    HPROPSHEETPAGE handle = ::CreatePropertySheetPageA(&page);
    if (!handle)
      throw ::XmlComError(static_cast<Status>(HRESULT_FROM_WIN32(::GetLastError())), "CreatePropertySheetPage");
    pages.push_back(handle);
    hosts.push_back(std::move(host));
  }

  PROPSHEETHEADERA header{};
  header.dwSize = sizeof(header);
  // OK, Cancel and Apply; modal (the modeless bit stays clear).
  header.dwFlags = PSH_USECALLBACK | (setup.wizard ? PSH_WIZARD : 0);
  header.hwndParent = static_cast<HWND>(setup.parent);
  header.hInstance = module;
  header.pszCaption = "";
  header.nPages = static_cast<UINT>(pages.size());
  header.nStartPage = setup.startPage >= 0 && static_cast<std::size_t>(setup.startPage) < pages.size()
                          ? static_cast<UINT>(setup.startPage)
                          : 0;
  header.phpage = pages.data();
  header.pfnCallback = &SheetCallback;

  SheetRun* outer = t_creating;
  t_creating = &run;
  handles.handedOver = true;  // PropertySheet destroys the pages it was given, shown or not
  const INT_PTR result = ::PropertySheetA(&header);
  t_creating = outer;

  if (run.failure) std::rethrow_exception(run.failure);
  for (const auto& host : hosts) host->RethrowFailure();
  return static_cast<std::intptr_t>(result);
}

std::unique_ptr<SheetRunner> CreatePlatformSheetRunner() { return std::make_unique<SheetRunnerWin32>(); }

}  // namespace orv
