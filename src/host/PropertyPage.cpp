#include "host/PropertyPage.h"

#include <new>
#include <string>
#include <utility>

#include "OrvChartDlgs_h.h"
#include "com/WideText.h"
#include "host/ActivationContext.h"
#include "host/ComError.h"
#include "dlgkit/win32/PageColorButtonsWin32.h"
#include "xml/msxml/XmlMsxml.h"

namespace orv::host {
namespace {

constexpr const wchar_t* kSource = L"OrvChartDlgs.PropertyPage";
// WinHelp's command for Help: HELP_CONTEXTPOPUP, data 0.
constexpr UINT kHelpCommand = 8;

WinHelpFunction g_winHelp = &::WinHelpW;

// The module whose resources hold the pages' templates and titles: the one holding this code
// (the DLL; a test program that links the objects, itself).
HINSTANCE ResourceModule() noexcept {
  HMODULE module = nullptr;
  ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&ResourceModule), &module);
  return module;
}

INT_PTR CALLBACK MeasureProc(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

// The template's size in pixels, as the platform lays the dialog out (its font and the screen's
// DPI): a hidden copy of it is made and measured.
SIZE DialogPixels(HINSTANCE module, int dialogId) {
  SIZE size{0, 0};
  HWND parent = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
  if (parent == nullptr) return size;
  HWND probe = ::CreateDialogParamW(module, MAKEINTRESOURCEW(dialogId), parent, &MeasureProc, 0);
  if (probe != nullptr) {
    RECT rect{};
    ::GetWindowRect(probe, &rect);
    size = {rect.right - rect.left, rect.bottom - rect.top};
  }
  ::DestroyWindow(parent);
  return size;
}

// A copy in task memory, which the caller of GetPageInfo frees; throws bad_alloc.
LPOLESTR TaskString(const std::wstring& text) {
  auto* copy = static_cast<LPOLESTR>(::CoTaskMemAlloc((text.size() + 1) * sizeof(OLECHAR)));
  if (copy == nullptr) throw std::bad_alloc();
  text.copy(copy, text.size());
  copy[text.size()] = L'\0';
  return copy;
}

// The chart object's IChartPageHost. The host's statuses are not failures of the page: a
// failed query leaves `found` at 0, and SetPageProperties' answer is not read.
class ComChartPageHost final : public orv::ChartPageHost {
 public:
  explicit ComChartPageHost(ComPtr<IChartPageHost> host) : host_(std::move(host)) {}
  void GetPageProperties(std::int32_t scope, XmlNode root, std::int32_t& found) override {
    LONG answer = 0;
    host_->GetPageProperties(scope, XmlDomNodeOf(root), &answer);
    found = answer;
  }
  void SetPageProperties(std::int32_t scope, XmlNode root, std::int32_t& result) override {
    LONG answer = 0;
    host_->SetPageProperties(scope, XmlDomNodeOf(root), &answer);
    result = answer;
  }

 private:
  ComPtr<IChartPageHost> host_;
};

}  // namespace

WinHelpFunction SetPageWinHelp(WinHelpFunction function) noexcept { return std::exchange(g_winHelp, function); }

CChartPropertyPage::CChartPropertyPage(IUnknown* outer, std::unique_ptr<orv::ChartPage> page)
    : controlling_(outer != nullptr ? outer : &inner_), frame_(std::move(page), *this) {}

CChartPropertyPage::~CChartPropertyPage() { DestroyPageWindow(); }

// The object's own unknown.

HRESULT CChartPropertyPage::Inner::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (IsEqualIID(iid, IID_IUnknown))
    *object = static_cast<IUnknown*>(this);
  else if (IsEqualIID(iid, IID_IPropertyPage))
    *object = static_cast<IPropertyPage*>(&object_);
  else
    return E_NOINTERFACE;
  static_cast<IUnknown*>(*object)->AddRef();
  return S_OK;
}

ULONG CChartPropertyPage::Inner::AddRef() { return ++object_.refs_; }

ULONG CChartPropertyPage::Inner::Release() {
  ULONG left = --object_.refs_;
  if (left == 0) {
    // The site and objects released by the destructor may call back: keep the object counted.
    object_.refs_ = 1;
    delete &object_;
  }
  return left;
}

HRESULT CChartPropertyPage::QueryInterface(REFIID iid, void** object) {
  return controlling_->QueryInterface(iid, object);
}
ULONG CChartPropertyPage::AddRef() { return controlling_->AddRef(); }
ULONG CChartPropertyPage::Release() { return controlling_->Release(); }

// The connection the portable frame talks through.

std::unique_ptr<orv::ChartPageHost> CChartPropertyPage::QueryHost() {
  if (objects_.empty() || !objects_.front()) return nullptr;
  ComPtr<IChartPageHost> host;
  if (FAILED(objects_.front().As(IID_IChartPageHost, host)) || !host) return nullptr;
  return std::make_unique<ComChartPageHost>(std::move(host));
}

void CChartPropertyPage::OnStatusChange(std::uint32_t flags) {
  // Held for the call: a site may let go of the page from inside it.
  if (ComPtr<IPropertyPageSite> site = site_) site->OnStatusChange(flags);
}

// IPropertyPage.

HRESULT CChartPropertyPage::SetPageSite(IPropertyPageSite* site) {
  if (site == nullptr) {
    site_.reset();
    return S_OK;
  }
  if (site_) return E_UNEXPECTED;
  site_ = ComPtr<IPropertyPageSite>::Share(site);
  return S_OK;
}

HRESULT CChartPropertyPage::Activate(HWND parent, LPCRECT rect, BOOL) {
  if (rect == nullptr) return E_POINTER;
  if (window_ != nullptr) return E_UNEXPECTED;
  return ComMethod(IID_IPropertyPage, kSource, "PropertyPage.Activate", [&]() -> HRESULT {
    ComPtr<IUnknown> self = ComPtr<IUnknown>::Share(controlling_);
    ScopedUiActivation ui;
    // A failure inside the page's window is kept by the dialog host and reported by the page's
    // next call: the window itself stays with the frame.
    auto dialog = std::make_unique<orv::DialogHost>(frame_, nullptr, [](HWND) {});
    HWND window = ::CreateDialogParamA(ResourceModule(), MAKEINTRESOURCEA(frame_.Info().dialogId), parent,
                                       &orv::DialogHost::ChildPageProc, reinterpret_cast<LPARAM>(dialog.get()));
    if (dialog->failed()) {
      if (window != nullptr) ::DestroyWindow(window);
      dialog->RethrowFailure();
    }
    if (window == nullptr) {
      const DWORD error = ::GetLastError();
      return error != 0 ? HRESULT_FROM_WIN32(error) : E_FAIL;
    }
    dialog_ = std::move(dialog);
    window_ = window;
    size_ = {rect->right - rect->left, rect->bottom - rect->top};
    return S_OK;
  });
}

void CChartPropertyPage::DestroyPageWindow() noexcept {
  if (window_ == nullptr) return;
  try {
    frame_.WindowClosing();
  } catch (...) {
    // The window goes whatever the page thinks of it.
  }
  if (::IsWindow(window_)) ::DestroyWindow(window_);
  window_ = nullptr;
  dialog_.reset();
}

HRESULT CChartPropertyPage::Deactivate() {
  if (window_ == nullptr) return S_OK;
  return ComMethod(IID_IPropertyPage, kSource, "PropertyPage.Deactivate", [&]() -> HRESULT {
    // The dialog host outlives its window; a failure inside the window is reported now.
    std::unique_ptr<orv::DialogHost> dialog = std::move(dialog_);
    DestroyPageWindow();
    if (dialog) dialog->RethrowFailure();
    return S_OK;
  });
}

HRESULT CChartPropertyPage::GetPageInfo(PROPPAGEINFO* info) {
  if (info == nullptr) return E_POINTER;
  const orv::ChartPageInfo& page = frame_.Info();
  HINSTANCE module = ResourceModule();
  if (::FindResourceW(module, MAKEINTRESOURCEW(page.dialogId), MAKEINTRESOURCEW(5)) == nullptr) return E_UNEXPECTED;
  LPOLESTR title = nullptr;
  LPOLESTR helpFile = nullptr;
  try {
    const wchar_t* loaded = nullptr;
    const int length =
        page.titleId != 0 ? ::LoadStringW(module, static_cast<UINT>(page.titleId), reinterpret_cast<LPWSTR>(&loaded), 0)
                          : 0;
    title = TaskString(length > 0 ? std::wstring(loaded, static_cast<size_t>(length)) : Widen(page.title));
    if (page.helpFile[0] != '\0') helpFile = TaskString(Widen(page.helpFile));
    SIZE size{0, 0};
    {
      ScopedUiActivation ui;
      size = DialogPixels(module, page.dialogId);
    }
    info->cb = sizeof(PROPPAGEINFO);
    info->pszTitle = title;
    info->size = size;
    info->pszDocString = nullptr;
    info->pszHelpFile = helpFile;
    info->dwHelpContext = static_cast<DWORD>(page.dialogId);
    return S_OK;
  } catch (...) {
    ::CoTaskMemFree(title);
    ::CoTaskMemFree(helpFile);
    return E_OUTOFMEMORY;
  }
}

HRESULT CChartPropertyPage::SetObjects(ULONG count, IUnknown** objects) {
  if (objects == nullptr) return E_POINTER;
  objects_.clear();
  try {
    objects_.reserve(count);
    for (ULONG i = 0; i < count; ++i) objects_.push_back(ComPtr<IUnknown>::Share(objects[i]));
  } catch (const std::bad_alloc&) {
    objects_.clear();
    return E_OUTOFMEMORY;
  }
  return S_OK;
}

HRESULT CChartPropertyPage::Show(UINT command) {
  if (window_ == nullptr) return E_UNEXPECTED;
  ::ShowWindow(window_, static_cast<int>(command));
  return S_OK;
}

HRESULT CChartPropertyPage::Move(LPCRECT rect) {
  if (window_ == nullptr) return E_UNEXPECTED;
  if (rect == nullptr) return E_POINTER;
  ::MoveWindow(window_, rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, TRUE);
  return S_OK;
}

HRESULT CChartPropertyPage::IsPageDirty() { return frame_.IsDirty() ? S_OK : S_FALSE; }

HRESULT CChartPropertyPage::Apply() {
  return ComMethod(IID_IPropertyPage, kSource, "PropertyPage.Apply", [&]() -> HRESULT {
    ComPtr<IUnknown> self = ComPtr<IUnknown>::Share(controlling_);
    // What failed inside the page's window reaches the frame here.
    if (dialog_) dialog_->RethrowFailure();
    frame_.Apply();
    return S_OK;
  });
}

HRESULT CChartPropertyPage::Help(LPCOLESTR helpDir) {
  std::wstring path;
  try {
    if (helpDir != nullptr) path = helpDir;
    path += L'\\';
    path += Widen(frame_.Info().helpFile);
  } catch (...) {
    return E_OUTOFMEMORY;
  }
  g_winHelp(window_, path.c_str(), kHelpCommand, 0);
  return S_OK;
}

HRESULT CChartPropertyPage::TranslateAccelerator(MSG* message) {
  if (message == nullptr) return E_POINTER;
  if (window_ == nullptr) return S_FALSE;
  // Keyboard messages (WM_KEYDOWN to WM_UNICHAR) and mouse messages (WM_MOUSEMOVE to
  // WM_MOUSEHWHEEL) go to the dialog manager; others are the frame's.
  const bool keyboard = message->message >= 256 && message->message <= 265;
  const bool mouse = message->message >= 512 && message->message <= 526;
  if (!keyboard && !mouse) return S_FALSE;
  return ::IsDialogMessageA(window_, message) ? S_OK : S_FALSE;
}

}  // namespace orv::host

namespace orv::host {

HRESULT CreateChartPropertyPage(IUnknown* outer, REFIID iid, void** object, ChartPageMaker make) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  // An aggregating outer must take the inner unknown, and only that.
  if (outer != nullptr && !IsEqualIID(iid, IID_IUnknown)) return CLASS_E_NOAGGREGATION;
  CChartPropertyPage* created = nullptr;
  // A page's colour buttons are the platform's.
  orv::SetPageColorButtonsMaker(&MakeWin32PageColorButtons);
  try {
    created = new CChartPropertyPage(outer, make());
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
  IUnknown& inner = created->NonDelegatingUnknown();
  inner.AddRef();
  HRESULT status = inner.QueryInterface(iid, object);
  inner.Release();  // deletes the object when the query failed
  return status;
}

}  // namespace orv::host
