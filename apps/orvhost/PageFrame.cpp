#include "PageFrame.h"

#include "ComObjects.h"
#include "com/WideText.h"
#include "xml/StrFormat.h"
#include "xml/Xml.h"
#include "xml/msxml/XmlMsxml.h"

#include <commctrl.h>
#include <prsht.h>

#include <algorithm>
#include <vector>

namespace orv::host_app {
namespace {

constexpr int kApplyButton = 0x3021;  // the platform sheet's Apply button id
constexpr int kMargin = 7;
constexpr int kButtonWidth = 75;
constexpr int kButtonHeight = 23;

std::string Describe(HRESULT hr) { return StrFormat("0x%08lX", static_cast<unsigned long>(hr)); }

void PrintLine(std::FILE* out, const std::string& line) {
  std::fprintf(out, "%s\n", line.c_str());
  std::fflush(out);
}

// The frame's site: prints each status and turns Apply on while the page is dirty.
class FrameSite final : public ComObject<FrameSite, IPropertyPageSite> {
 public:
  static std::span<const ComInterfaceEntry> Interfaces() {
    static const ComInterfaceEntry table[] = {ComInterface<FrameSite, IPropertyPageSite>(IID_IPropertyPageSite)};
    return table;
  }
  explicit FrameSite(std::FILE* out) : out_(out) {}

  HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD flags) override {
    PrintLine(out_, StrFormat("OnStatusChange: %lu", static_cast<unsigned long>(flags)));
    if (frame != nullptr) EnableWindow(GetDlgItem(frame, kApplyButton), (flags & PROPPAGESTATUS_DIRTY) != 0);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* locale) override {
    if (locale == nullptr) return E_POINTER;
    *locale = GetUserDefaultLCID();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown** container) override {
    if (container != nullptr) *container = nullptr;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override { return S_FALSE; }

  HWND frame = nullptr;

 private:
  std::FILE* out_;
};

struct FrameRun {
  IPropertyPage* page;
  IUnknown* host;
  FrameSite* site;
  std::FILE* out;
  HWND pageWindow = nullptr;
  std::string error;
};

// A dialog template in memory: the frame, its three buttons placed at WM_INITDIALOG.
std::vector<WORD> FrameTemplate() {
  std::vector<WORD> words(sizeof(DLGTEMPLATE) / sizeof(WORD), 0);
  auto* dialog = reinterpret_cast<DLGTEMPLATE*>(words.data());
  dialog->style = DS_MODALFRAME | DS_SETFONT | DS_CENTER | WS_POPUP | WS_CAPTION | WS_SYSMENU;
  dialog->dwExtendedStyle = WS_EX_CONTROLPARENT;
  dialog->cx = 200;
  dialog->cy = 100;
  words.push_back(0);  // no menu
  words.push_back(0);  // the dialog class
  for (const wchar_t c : std::wstring(L"Properties")) words.push_back(static_cast<WORD>(c));
  words.push_back(0);
  words.push_back(8);  // point size
  for (const wchar_t c : std::wstring(L"MS Shell Dlg")) words.push_back(static_cast<WORD>(c));
  words.push_back(0);
  return words;
}

void AddButton(HWND frame, int id, const wchar_t* text, DWORD style) {
  HWND button =
      CreateWindowExW(0, L"BUTTON", text, WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 0, 0, kButtonWidth, kButtonHeight,
                      frame, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  SendMessageW(button, WM_SETFONT, SendMessageW(frame, WM_GETFONT, 0, 0), FALSE);
}

bool Open(HWND frame, FrameRun& run) {
  PROPPAGEINFO info{};
  info.cb = sizeof(info);
  HRESULT hr = run.page->GetPageInfo(&info);
  if (FAILED(hr)) {
    run.error = "GetPageInfo failed: " + Describe(hr);
    return false;
  }
  SetWindowTextW(frame, info.pszTitle != nullptr ? info.pszTitle : L"Properties");
  CoTaskMemFree(info.pszTitle);
  CoTaskMemFree(info.pszDocString);
  CoTaskMemFree(info.pszHelpFile);

  AddButton(frame, IDOK, L"OK", BS_DEFPUSHBUTTON);
  AddButton(frame, IDCANCEL, L"Cancel", BS_PUSHBUTTON);
  AddButton(frame, kApplyButton, L"&Apply", BS_PUSHBUTTON);
  EnableWindow(GetDlgItem(frame, kApplyButton), FALSE);

  // The page's place, then the buttons in a row under it at the right, then the frame around both.
  const RECT place{kMargin, kMargin, kMargin + info.size.cx, kMargin + info.size.cy};
  const int width = std::max<int>(info.size.cx, 3 * kButtonWidth + 2 * kMargin) + 2 * kMargin;
  const int buttonsTop = place.bottom + kMargin;
  const int ids[] = {IDOK, IDCANCEL, kApplyButton};
  for (int i = 0; i < 3; ++i) {
    const int left = width - kMargin - (3 - i) * kButtonWidth - (2 - i) * kMargin;
    MoveWindow(GetDlgItem(frame, ids[i]), left, buttonsTop, kButtonWidth, kButtonHeight, FALSE);
  }
  RECT outer{0, 0, width, buttonsTop + kButtonHeight + kMargin};
  AdjustWindowRectEx(&outer, static_cast<DWORD>(GetWindowLongPtrW(frame, GWL_STYLE)), FALSE,
                     static_cast<DWORD>(GetWindowLongPtrW(frame, GWL_EXSTYLE)));
  SetWindowPos(frame, nullptr, 0, 0, outer.right - outer.left, outer.bottom - outer.top,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);

  run.site->frame = frame;
  if (FAILED(hr = run.page->SetPageSite(run.site))) {
    run.error = "SetPageSite failed: " + Describe(hr);
    return false;
  }
  IUnknown* objects[] = {run.host};
  if (FAILED(hr = run.page->SetObjects(1, objects))) {
    run.error = "SetObjects failed: " + Describe(hr);
    return false;
  }
  if (FAILED(hr = run.page->Activate(frame, &place, TRUE))) {
    run.error = "Activate failed: " + Describe(hr);
    return false;
  }
  run.page->Move(&place);
  run.page->Show(SW_SHOW);
  run.pageWindow = GetWindow(frame, GW_CHILD);
  for (HWND child = run.pageWindow; child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    char name[16] = {};
    GetClassNameA(child, name, sizeof name);
    if (lstrcmpA(name, "#32770") == 0) run.pageWindow = child;
  }
  // The page comes first in the tab order.
  SetWindowPos(run.pageWindow, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  return true;
}

// Apply as the frame's button does it: a failure is printed, the page stays.
bool ApplyPage(FrameRun& run, HWND frame) {
  const HRESULT hr = run.page->Apply();
  if (FAILED(hr)) PrintLine(run.out, "Apply failed: " + Describe(hr));
  EnableWindow(GetDlgItem(frame, kApplyButton), run.page->IsPageDirty() == S_OK);
  return SUCCEEDED(hr);
}

// The page leaves the frame as a frame lets it go: window, objects, site.
void Close(HWND frame, FrameRun& run, INT_PTR result) {
  run.page->Deactivate();
  IUnknown* none[] = {nullptr};
  run.page->SetObjects(0, none);
  run.page->SetPageSite(nullptr);
  run.site->frame = nullptr;
  EndDialog(frame, result);
}

INT_PTR CALLBACK FrameProc(HWND frame, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* run = reinterpret_cast<FrameRun*>(GetWindowLongPtrW(frame, DWLP_USER));
  auto answer = [frame](LRESULT value) {
    SetWindowLongPtrW(frame, DWLP_MSGRESULT, value);
    return TRUE;
  };
  switch (message) {
    case WM_INITDIALOG:
      run = reinterpret_cast<FrameRun*>(lParam);
      SetWindowLongPtrW(frame, DWLP_USER, lParam);
      if (!Open(frame, *run)) {
        run->page->Deactivate();
        run->page->SetPageSite(nullptr);
        EndDialog(frame, -1);
      }
      return TRUE;
    case WM_COMMAND:
      if (run == nullptr || HIWORD(wParam) != BN_CLICKED) return FALSE;
      switch (LOWORD(wParam)) {
        case IDOK:
          if (ApplyPage(*run, frame)) Close(frame, *run, 1);
          return TRUE;
        case IDCANCEL:
          Close(frame, *run, 0);
          return TRUE;
        case kApplyButton:
          ApplyPage(*run, frame);
          return TRUE;
        default:
          return FALSE;
      }
    // What the script driver asks of a sheet: the frame stands for one.
    case PSM_GETTABCONTROL:
      return answer(reinterpret_cast<LRESULT>(frame));
    case PSM_GETCURRENTPAGEHWND:
      return answer(reinterpret_cast<LRESULT>(run != nullptr ? run->pageWindow : nullptr));
    case PSM_PRESSBUTTON: {
      const int button = wParam == PSBTN_OK         ? IDOK
                         : wParam == PSBTN_CANCEL   ? IDCANCEL
                         : wParam == PSBTN_APPLYNOW ? kApplyButton
                                                    : 0;
      if (button == 0 || !IsWindowEnabled(GetDlgItem(frame, button))) return answer(FALSE);
      SendMessageW(frame, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                   reinterpret_cast<LPARAM>(GetDlgItem(frame, button)));
      return answer(TRUE);
    }
    default:
      return FALSE;
  }
}

}  // namespace

std::span<const ComInterfaceEntry> PageHostObject::Interfaces() {
  static const ComInterfaceEntry table[] = {ComInterface<PageHostObject, IChartPageHost>(IID_IChartPageHost)};
  return table;
}

HRESULT PageHostObject::GetPageProperties(LONG scope, IUnknown* root, LONG* found) {
  if (found == nullptr) return E_POINTER;
  *found = 0;
  try {
    XmlNode node = XmlWrapUnknown(root);
    if (!node) return E_INVALIDARG;
    Bstr nodeName;
    if (FAILED(XmlDomNodeOf(node)->get_nodeName(nodeName.put()))) return E_FAIL;
    const std::string name = NarrowFromBstr(nodeName.get());
    XmlNode source = XmlFindNode(XmlWrapDomNode(document_.get()), name.c_str(), true);
    if (source) {
      for (XmlNode child = XmlFirstChild(source); child; child = XmlNextSibling(child))
        XmlAppendClone(node, child, true);
      *found = 1;
    }
    PrintLine(out_, StrFormat("GetPageProperties: %ld %s %s", static_cast<long>(scope), name.c_str(),
                              source ? "found" : "not found"));
    return S_OK;
  } catch (const XmlComError& error) {
    return error.status() < 0 ? error.status() : E_FAIL;
  }
}

HRESULT PageHostObject::SetPageProperties(LONG scope, IUnknown* root, LONG* result) {
  if (result != nullptr) *result = 0;
  try {
    const std::wstring text = Widen(XmlGetXml(XmlWrapUnknown(root)));
    PrintLine(out_, StrFormat("SetPageProperties: %ld %s", static_cast<long>(scope),
                              EscapeEventText(text.c_str(), static_cast<UINT>(text.size())).c_str()));
    return S_OK;
  } catch (const XmlComError& error) {
    return error.status() < 0 ? error.status() : E_FAIL;
  }
}

PageInstance::~PageInstance() {
  page_.reset();
  if (library_ != nullptr) FreeLibrary(library_);
}

bool PageInstance::Create(const Options& options, std::string& error) {
  CLSID clsid{};
  const std::wstring& name = options.pageClass;
  HRESULT hr = name[0] == L'{' ? CLSIDFromString(name.c_str(), &clsid) : CLSIDFromProgID(name.c_str(), &clsid);
  if (FAILED(hr)) {
    error = StrFormat("no page class %s: %s", Narrow(name, CP_UTF8).c_str(), Describe(hr).c_str());
    return false;
  }
  if (options.activation == Activation::Direct) {
    std::wstring path = options.dllPath;
    if (path.empty()) {
      wchar_t program[MAX_PATH] = {};
      GetModuleFileNameW(nullptr, program, MAX_PATH);
      path = program;
      path = path.substr(0, path.find_last_of(L"\\/") + 1) + L"OrvChartDlgs.dll";
    }
    library_ = LoadLibraryW(path.c_str());
    if (library_ == nullptr) {
      error = StrFormat("cannot load %s (error %lu)", Narrow(path, CP_UTF8).c_str(), GetLastError());
      return false;
    }
    using GetClassObjectFn = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    const auto getClassObject =
        reinterpret_cast<GetClassObjectFn>(reinterpret_cast<void*>(GetProcAddress(library_, "DllGetClassObject")));
    if (getClassObject == nullptr) {
      error = "the DLL has no DllGetClassObject";
      return false;
    }
    ComPtr<IClassFactory> factory;
    hr = getClassObject(clsid, IID_IClassFactory, reinterpret_cast<void**>(factory.put()));
    if (FAILED(hr)) {
      error = "DllGetClassObject(" + Narrow(name, CP_UTF8) + ") failed: " + Describe(hr);
      return false;
    }
    hr = factory->CreateInstance(nullptr, IID_IPropertyPage, reinterpret_cast<void**>(page_.put()));
  } else {
    hr = CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IPropertyPage,
                          reinterpret_cast<void**>(page_.put()));
  }
  if (FAILED(hr)) {
    error = "creating the page " + Narrow(name, CP_UTF8) + " failed: " + Describe(hr);
    return false;
  }
  return true;
}

int RunPageFrame(IPropertyPage* page, IUnknown* host, std::FILE* out, std::string& error) {
  const ComPtr<FrameSite> site = FrameSite::Make(out);
  FrameRun run{page, host, site.get(), out, nullptr, {}};
  const std::vector<WORD> dialog = FrameTemplate();
  const INT_PTR result =
      DialogBoxIndirectParamW(GetModuleHandleW(nullptr), reinterpret_cast<const DLGTEMPLATE*>(dialog.data()), nullptr,
                              &FrameProc, reinterpret_cast<LPARAM>(&run));
  if (result == -1) {
    error = run.error.empty() ? StrFormat("the frame could not be shown (error %lu)", GetLastError()) : run.error;
    return -1;
  }
  return static_cast<int>(result);
}

}  // namespace orv::host_app
