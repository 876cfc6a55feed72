// orvdemo: shows one themed dialog of the kit.
//   orvdemo                         the dialog stays until the user closes it
//   orvdemo --screenshot <file.png> once shown and painted, writes it as a PNG and exits
#include "WindowCapture.h"
#include "resource.h"

#include <windows.h>
#include <commctrl.h>
#include <objbase.h>
#include <shellapi.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr UINT WM_DEMO_SCREENSHOT = WM_APP + 1;

struct Options {
    std::wstring screenshot;
};

struct DemoState {
    const Options* options = nullptr;
    HRESULT screenshotResult = S_OK;
};

INT_PTR CALLBACK DemoProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* state = reinterpret_cast<DemoState*>(GetWindowLongPtrW(dialog, DWLP_USER));
    switch (message) {
    case WM_INITDIALOG:
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        state = reinterpret_cast<DemoState*>(lParam);
        if (!state->options->screenshot.empty())
            PostMessageW(dialog, WM_DEMO_SCREENSHOT, 0, 0);
        return TRUE;
    case WM_DEMO_SCREENSHOT:
        // A modal dialog is shown only when its loop first goes idle, after this message.
        ShowWindow(dialog, SW_SHOWNORMAL);
        SetForegroundWindow(dialog);
        state->screenshotResult = orv::apps::CaptureWindowToPng(dialog, state->options->screenshot);
        EndDialog(dialog, IDOK);
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) {
            EndDialog(dialog, LOWORD(wParam));
            return TRUE;
        }
        break;
    }
    return FALSE;
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int)
{
    int argc = 0;
    std::unique_ptr<LPWSTR, decltype(&LocalFree)> argv(CommandLineToArgvW(GetCommandLineW(), &argc), &LocalFree);
    Options options;
    for (int i = 1; i < argc; ++i) {
        std::wstring arg = argv.get()[i];
        if (arg == L"--screenshot" && i + 1 < argc) {
            options.screenshot = argv.get()[++i];
        } else {
            std::fprintf(stderr, "usage: orvdemo [--screenshot <file.png>]\n");
            return 2;
        }
    }

    INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_STANDARD_CLASSES | ICC_UPDOWN_CLASS};
    InitCommonControlsEx(&controls);
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);

    DemoState state;
    state.options = &options;
    INT_PTR result = DialogBoxParamW(instance, MAKEINTRESOURCEW(IDD_DEMO), nullptr, DemoProc,
                                     reinterpret_cast<LPARAM>(&state));
    CoUninitialize();
    if (result == -1) {
        std::fprintf(stderr, "orvdemo: cannot create the dialog (error %lu)\n", GetLastError());
        return 1;
    }
    if (!options.screenshot.empty()) {
        if (FAILED(state.screenshotResult)) {
            std::fprintf(stderr, "orvdemo: screenshot failed (0x%08lx)\n", static_cast<unsigned long>(state.screenshotResult));
            return 1;
        }
        std::fprintf(stdout, "orvdemo: screenshot written to %ls\n", options.screenshot.c_str());
    }
    return 0;
}
