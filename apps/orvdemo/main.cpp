// orvdemo: shows one themed dialog of the kit, with a theme served by an in-process host.
//   orvdemo                         the dialog stays until the user closes it; OK prints the settings
//   orvdemo --screenshot <file.png> once shown and painted, writes it as a PNG and exits
//   orvdemo --colors [...]          the colour dialog instead (OK prints the colours); with
//                                   --screenshot the picture holds the open colour drop-down
// Exit code: 0 done, 1 the dialog or the screenshot failed, 2 bad command line.
#include "ColorDemoDialog.h"
#include "DemoDialog.h"

#include "dlgkit/HostServicesInProcess.h"
#include "dlgkit/WindowOps.h"
#include "dlgkit/win32/DialogHost.h"
#include "com/ComApartment.h"

#include <windows.h>
#include <commctrl.h>
#include <objbase.h>
#include <shellapi.h>

#include <cstdio>
#include <exception>
#include <memory>
#include <string>

namespace {

COLORREF Rgb(int r, int g, int b) { return RGB(r, g, b); }

// A dark chart-room theme, far from the system colours, so the theming shows at a glance.
ThemeColors DemoTheme() {
  ThemeColors theme;
  theme[0] = Rgb(30, 36, 46);     // dialog, radio, check and static background
  theme[1] = Rgb(58, 68, 84);     // button face
  theme[3] = Rgb(226, 232, 240);  // text
  theme[4] = Rgb(18, 22, 30);     // edit, list and combo fields
  theme[6] = Rgb(0, 150, 100);    // selected buttons
  theme[7] = Rgb(120, 128, 140);  // disabled text
  return theme;
}

// Runs a demo dialog; with a screenshot file its picture is written, else what the user chose
// on OK is printed (`describe`).
template <class Dialog, class Describe>
int RunDemo(HINSTANCE instance, Dialog& dialog, const std::wstring& screenshot, Describe describe) {
  const INT_PTR result = orv::RunPageDialog(dialog, instance, dialog.DialogId(), nullptr, &orv::DefaultWindowOps());
  if (result == -1) {
    std::fprintf(stderr, "orvdemo: cannot create the dialog (error %lu)\n", GetLastError());
    return 1;
  }
  if (!screenshot.empty()) {
    if (FAILED(dialog.ScreenshotResult())) {
      std::fprintf(stderr, "orvdemo: cannot write %ls (0x%08lx)\n", screenshot.c_str(),
                   static_cast<unsigned long>(dialog.ScreenshotResult()));
      return 1;
    }
    std::printf("orvdemo: screenshot written to %ls\n", screenshot.c_str());
  } else if (result == IDOK) {
    std::printf("%s\n", describe().c_str());
  }
  return 0;
}

int Run(HINSTANCE instance) {
  int argc = 0;
  std::unique_ptr<LPWSTR, decltype(&LocalFree)> argv(CommandLineToArgvW(GetCommandLineW(), &argc), &LocalFree);
  std::wstring screenshot;
  bool colors = false;
  for (int i = 1; argv && i < argc; ++i) {
    const std::wstring arg = argv.get()[i];
    if (arg == L"--screenshot" && i + 1 < argc && argv.get()[i + 1][0] != L'\0') {
      screenshot = argv.get()[++i];
    } else if (arg == L"--colors") {
      colors = true;
    } else {
      std::fprintf(stderr, "usage: orvdemo [--colors] [--screenshot <file.png>]\n");
      return 2;
    }
  }

  INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_STANDARD_CLASSES | ICC_UPDOWN_CLASS | ICC_LISTVIEW_CLASSES};
  InitCommonControlsEx(&classes);
  orv::ComApartment com;

  // The kit asks "the host" for its theme; here the host is this program.
  orv::InProcessHostServices host(DemoTheme());
  orv::ScopedHostServices useHost(host);

  if (colors) {
    orv::demo::CDemoColorDlg dialog(screenshot);
    return RunDemo(instance, dialog, screenshot, [&] { return dialog.Describe(); });
  }
  orv::demo::CDemoDlg dialog(screenshot);
  return RunDemo(instance, dialog, screenshot, [&] { return orv::demo::Describe(dialog.Settings()); });
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  try {
    return Run(instance);
  } catch (const std::exception& e) {
    std::fprintf(stderr, "orvdemo: %s\n", e.what());
  } catch (...) {
    std::fprintf(stderr, "orvdemo: unexpected failure\n");
  }
  return 1;
}
