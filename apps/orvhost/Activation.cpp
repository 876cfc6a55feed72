#include "Activation.h"

#include "com/WideText.h"
#include "xml/StrFormat.h"

#include <vector>

namespace orv::host_app {
namespace {

// The application manifest that names the component's assembly, carried by orvhost.exe.
constexpr WORD kComponentManifestResource = 2;

std::string Describe(HRESULT hr) { return StrFormat("0x%08lX", static_cast<unsigned long>(hr)); }

std::wstring ProgramPath() {
  std::vector<wchar_t> buffer(MAX_PATH);
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
    if (length < buffer.size()) return std::wstring(buffer.data(), length);
    buffer.resize(buffer.size() * 2);
  }
}

HRESULT ClassIdOf(const Options& options, CLSID& clsid) {
  if (options.progId.empty()) {
    clsid = CLSID_ChartPages;
    return S_OK;
  }
  return CLSIDFromProgID(options.progId.c_str(), &clsid);
}

}  // namespace

std::wstring ProgramFolder() {
  const std::wstring path = ProgramPath();
  const std::size_t slash = path.find_last_of(L"\\/");
  return slash == std::wstring::npos ? std::wstring() : path.substr(0, slash + 1);
}

bool ComponentInstance::Create(const Options& options, std::string& error) {
  if (options.activation == Activation::Direct) {
    const std::wstring dll = options.dllPath.empty() ? ProgramFolder() + L"OrvChartDlgs.dll" : options.dllPath;
    if (!library_.Load(dll)) {
      error = StrFormat("cannot load %s (error %lu)", Narrow(dll, CP_UTF8).c_str(), GetLastError());
      return false;
    }
    using GetClassObjectFn = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    const auto getClassObject = reinterpret_cast<GetClassObjectFn>(
        reinterpret_cast<void*>(GetProcAddress(library_.get(), "DllGetClassObject")));
    if (getClassObject == nullptr) {
      error = StrFormat("%s exports no DllGetClassObject", Narrow(dll, CP_UTF8).c_str());
      return false;
    }
    ComPtr<IClassFactory> factory;
    HRESULT hr = getClassObject(CLSID_ChartPages, IID_IClassFactory, reinterpret_cast<void**>(factory.put()));
    if (FAILED(hr)) {
      error = "DllGetClassObject(ChartPages) failed: " + Describe(hr);
      return false;
    }
    hr = factory->CreateInstance(nullptr, IID_IChartPages, reinterpret_cast<void**>(pages_.put()));
    if (FAILED(hr)) {
      error = "IClassFactory::CreateInstance(IChartPages) failed: " + Describe(hr);
      return false;
    }
    return true;
  }

  if (options.activation == Activation::Manifest) {
    // The context lives as long as the object: the component's classes resolve through it,
    // at creation and whenever the component creates more of its own objects.
    const std::wstring program = ProgramPath();
    const std::wstring folder = ProgramFolder();
    ACTCTXW request{};
    request.cbSize = sizeof(request);
    request.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
    request.lpAssemblyDirectory = folder.c_str();
    if (options.manifestPath.empty()) {
      request.dwFlags |= ACTCTX_FLAG_RESOURCE_NAME_VALID;
      request.lpSource = program.c_str();
      request.lpResourceName = MAKEINTRESOURCEW(kComponentManifestResource);
    } else {
      request.lpSource = options.manifestPath.c_str();
    }
    context_ = ActCtx(CreateActCtxW(&request));
    if (context_.get() == INVALID_HANDLE_VALUE) {
      const DWORD code = GetLastError();
      error = options.manifestPath.empty()
                  ? StrFormat(
                        "cannot make the activation context from orvhost's manifest (error %lu): is "
                        "the component's assembly manifest beside orvhost.exe?",
                        code)
                  : StrFormat("cannot make the activation context from %s (error %lu)",
                              Narrow(options.manifestPath, CP_UTF8).c_str(), code);
      return false;
    }
    if (!activation_.Activate(context_.get())) {
      error = StrFormat("cannot activate the activation context (error %lu)", GetLastError());
      return false;
    }
  }

  CLSID clsid{};
  HRESULT hr = ClassIdOf(options, clsid);
  if (FAILED(hr)) {
    error = StrFormat("no class for the ProgID %s: %s", Narrow(options.progId, CP_UTF8).c_str(), Describe(hr).c_str());
    return false;
  }
  hr = CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IChartPages, reinterpret_cast<void**>(pages_.put()));
  if (FAILED(hr)) {
    error = StrFormat("CoCreateInstance(%s) failed: %s%s",
                      options.progId.empty() ? "ChartPages" : Narrow(options.progId, CP_UTF8).c_str(),
                      Describe(hr).c_str(), hr == REGDB_E_CLASSNOTREG ? " (class not registered)" : "");
    return false;
  }
  return true;
}

}  // namespace orv::host_app
