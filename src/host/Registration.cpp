#include "host/Registration.h"

#include <oleauto.h>

#include <algorithm>
#include <memory>
#include <new>
#include <set>

#include "com/ComPtr.h"
#include "dlgkit/SettingsStore.h"

namespace orv::host {
namespace {

struct KeyCloser {
  using pointer = HKEY;
  void operator()(HKEY key) const noexcept { RegCloseKey(key); }
};
using Key = std::unique_ptr<HKEY, KeyCloser>;

// Registration runs under the system default locale (type library and registry texts are
// locale-neutral); the caller's thread locale comes back afterwards.
class ThreadLocaleScope {
 public:
  explicit ThreadLocaleScope(LCID locale) noexcept : saved_(GetThreadLocale()) { SetThreadLocale(locale); }
  ~ThreadLocaleScope() { SetThreadLocale(saved_); }
  ThreadLocaleScope(const ThreadLocaleScope&) = delete;
  ThreadLocaleScope& operator=(const ThreadLocaleScope&) = delete;

 private:
  LCID saved_;
};
constexpr LCID kRegistrationLocale = 2048;  // LOCALE_SYSTEM_DEFAULT

std::wstring GuidText(const GUID& guid) {
  wchar_t text[40] = {};
  StringFromGUID2(guid, text, 40);
  return text;
}

std::wstring ModulePath(HMODULE module) {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) return {};
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    if (path.size() >= 32768) return {};
    path.resize(path.size() * 2);
  }
}

HRESULT OpenClassesRoot(RegistrationScope scope, REGSAM access, Key& root) {
  HKEY hive = scope == RegistrationScope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
  HKEY key = nullptr;
  LONG status = RegCreateKeyExW(hive, L"Software\\Classes", 0, nullptr, 0, access, nullptr, &key, nullptr);
  if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(status);
  root.reset(key);
  return S_OK;
}

HRESULT WriteEntries(HKEY root, const std::vector<RegistryEntry>& entries) {
  for (const RegistryEntry& entry : entries) {
    HKEY key = nullptr;
    LONG status = RegCreateKeyExW(root, entry.key.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &key, nullptr);
    if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(status);
    Key owned(key);
    if (!entry.name) continue;
    auto bytes = static_cast<DWORD>((entry.data.size() + 1) * sizeof(wchar_t));
    status =
        RegSetValueExW(key, entry.name->c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(entry.data.c_str()), bytes);
    if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(status);
  }
  return S_OK;
}

bool IsMissing(LONG status) { return status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND; }

HRESULT RemoveEntries(HKEY root, const std::vector<RegistryEntry>& entries) {
  HRESULT result = S_OK;
  auto note = [&result](LONG status) {
    if (status != ERROR_SUCCESS && !IsMissing(status) && SUCCEEDED(result)) result = HRESULT_FROM_WIN32(status);
  };
  // Our values first, wherever they are.
  for (const RegistryEntry& entry : entries) {
    if (!entry.name) continue;
    HKEY key = nullptr;
    LONG status = RegOpenKeyExW(root, entry.key.c_str(), 0, KEY_SET_VALUE, &key);
    if (status != ERROR_SUCCESS) {
      note(status);
      continue;
    }
    Key owned(key);
    note(RegDeleteValueW(key, entry.name->c_str()));
  }
  // Then our keys and the keys that creating them made on the way ("Implemented Categories"),
  // deepest first, each only when nothing is left in it. The shared top-level containers
  // ("CLSID", "AppID") are never ours.
  std::vector<std::wstring> keys;
  auto add = [&keys](const std::wstring& path) {
    if (std::find(keys.begin(), keys.end(), path) == keys.end()) keys.push_back(path);
  };
  for (const RegistryEntry& entry : entries) {
    add(entry.key);
    for (std::size_t end = entry.key.rfind(L'\\'); end != std::wstring::npos && end > 0;
         end = entry.key.rfind(L'\\', end - 1)) {
      const std::wstring parent = entry.key.substr(0, end);
      if (parent.find(L'\\') == std::wstring::npos) break;
      add(parent);
    }
  }
  auto depth = [](const std::wstring& path) { return std::count(path.begin(), path.end(), L'\\'); };
  std::stable_sort(keys.begin(), keys.end(), [&](const auto& a, const auto& b) { return depth(a) > depth(b); });
  for (const std::wstring& path : keys) {
    HKEY key = nullptr;
    LONG status = RegOpenKeyExW(root, path.c_str(), 0, KEY_QUERY_VALUE, &key);
    if (status != ERROR_SUCCESS) {
      note(status);
      continue;
    }
    DWORD subKeys = 0, values = 0;
    status = RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &subKeys, nullptr, nullptr, &values, nullptr, nullptr,
                              nullptr, nullptr);
    RegCloseKey(key);
    if (status != ERROR_SUCCESS) {
      note(status);
      continue;
    }
    if (subKeys == 0 && values == 0) note(RegDeleteKeyW(root, path.c_str()));
  }
  return result;
}

HRESULT LoadModuleTypeLib(const std::wstring& path, ITypeLib** library) {
  // REGKIND_NONE: loading must not register; registration below says where.
  return LoadTypeLibEx(path.c_str(), REGKIND_NONE, library);
}

// The per-user forms (Vista and later) are not declared by every SDK's headers; resolved where
// the system offers them, else the machine-wide forms are the system's only ones.
using RegisterForUserFn = HRESULT(WINAPI*)(ITypeLib*, OLECHAR*, OLECHAR*);
using UnregisterForUserFn = HRESULT(WINAPI*)(REFGUID, WORD, WORD, LCID, SYSKIND);

template <typename Fn>
Fn OleAutomationExport(const char* name) {
  HMODULE oleaut = GetModuleHandleW(L"oleaut32.dll");  // loaded: we link it
  return oleaut ? reinterpret_cast<Fn>(reinterpret_cast<void*>(GetProcAddress(oleaut, name))) : nullptr;
}

HRESULT RegisterTypeLibrary(const std::wstring& path, RegistrationScope scope) {
  ComPtr<ITypeLib> library;
  HRESULT hr = LoadModuleTypeLib(path, library.put());
  if (FAILED(hr)) return hr;
  std::wstring copy = path;  // the functions take non-const strings
  // Under Wine, RegisterTypeLibForUser writes the machine's TypeLib and Interface keys.
  if (scope == RegistrationScope::CurrentUser) {
    if (auto forUser = OleAutomationExport<RegisterForUserFn>("RegisterTypeLibForUser"))
      return forUser(library.get(), copy.data(), nullptr);
  }
  return RegisterTypeLib(library.get(), copy.data(), nullptr);
}

HRESULT UnregisterTypeLibrary(const std::wstring& path, RegistrationScope scope) {
  // The library's own locale and system kind name the registration to remove.
  ComPtr<ITypeLib> library;
  HRESULT hr = LoadModuleTypeLib(path, library.put());
  if (FAILED(hr)) return hr;
  TLIBATTR* attributes = nullptr;
  hr = library->GetLibAttr(&attributes);
  if (FAILED(hr)) return hr;
  const TLIBATTR attr = *attributes;
  library->ReleaseTLibAttr(attributes);

  BSTR registered = nullptr;
  if (FAILED(QueryPathOfRegTypeLib(attr.guid, attr.wMajorVerNum, attr.wMinorVerNum, attr.lcid, &registered)))
    return S_OK;  // not registered: nothing to remove
  SysFreeString(registered);
  if (scope == RegistrationScope::CurrentUser) {
    if (auto forUser = OleAutomationExport<UnregisterForUserFn>("UnRegisterTypeLibForUser"))
      return forUser(attr.guid, attr.wMajorVerNum, attr.wMinorVerNum, attr.lcid, attr.syskind);
  }
  return UnRegisterTypeLib(attr.guid, attr.wMajorVerNum, attr.wMinorVerNum, attr.lcid, attr.syskind);
}

}  // namespace

RegistrationScope ScopeFromInstallOptions(std::optional<std::uint32_t> options) noexcept {
  return options && (*options & 1u) != 0 ? RegistrationScope::Machine : RegistrationScope::CurrentUser;
}

RegistrationScope ConfiguredRegistrationScope() {
  return ScopeFromInstallOptions(CreateUserSettingsStore()->ReadDword("Software\\ZEL", "OrvInstallOpts"));
}

std::vector<RegistryEntry> RegistrationEntries(std::span<const ClassEntry> table, const std::wstring& modulePath) {
  const std::wstring module = kModuleName;
  const std::wstring appId = GuidText(kAppId);
  std::vector<RegistryEntry> entries;
  auto key = [&entries](std::wstring path) { entries.push_back({std::move(path), std::nullopt, {}}); };
  auto value = [&entries](std::wstring path, std::wstring name, std::wstring data) {
    entries.push_back({std::move(path), std::move(name), std::move(data)});
  };
  bool any = false;
  for (const ClassEntry& entry : table) {
    if (entry.create == nullptr) continue;
    any = true;
    const std::wstring clsid = GuidText(*entry.clsid);
    const std::wstring progId = module + L"." + entry.name + L".1";
    const std::wstring independent = module + L"." + entry.name;
    const std::wstring base = L"CLSID\\" + clsid;

    value(progId, L"", entry.description);
    value(progId + L"\\CLSID", L"", clsid);
    value(independent, L"", entry.description);
    value(independent + L"\\CLSID", L"", clsid);
    value(independent + L"\\CurVer", L"", progId);

    value(base, L"", entry.description);
    value(base, L"AppID", appId);
    value(base + L"\\ProgID", L"", progId);
    value(base + L"\\VersionIndependentProgID", L"", independent);
    if (entry.programmable) key(base + L"\\Programmable");
    value(base + L"\\InprocServer32", L"", modulePath);
    value(base + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
    value(base + L"\\TypeLib", L"", GuidText(kTypeLibId));
    value(base + L"\\Version", L"", std::to_wstring(kTypeLibMajor) + L"." + std::to_wstring(kTypeLibMinor));
    for (const GUID& category : entry.implementedCategories)
      key(base + L"\\Implemented Categories\\" + GuidText(category));
    for (const GUID& category : entry.requiredCategories) key(base + L"\\Required Categories\\" + GuidText(category));
  }
  if (any) value(L"AppID\\" + appId, L"", module);
  return entries;
}

namespace {

// Both directions run under the registration locale with the module's path; no exception leaves.
template <typename Action>
HRESULT WithModulePath(HMODULE module, Action action) noexcept {
  try {
    ThreadLocaleScope locale(kRegistrationLocale);
    const std::wstring path = ModulePath(module);
    if (path.empty())
      return HRESULT_FROM_WIN32(GetLastError() != ERROR_SUCCESS ? GetLastError() : ERROR_FILENAME_EXCED_RANGE);
    return action(path);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace

HRESULT RegisterServer(std::span<const ClassEntry> table, HMODULE module, RegistrationScope scope) noexcept {
  return WithModulePath(module, [&](const std::wstring& path) {
    const std::vector<RegistryEntry> entries = RegistrationEntries(table, path);
    Key root;
    HRESULT hr = OpenClassesRoot(scope, KEY_READ | KEY_WRITE, root);
    if (FAILED(hr)) return hr;
    hr = WriteEntries(root.get(), entries);
    if (SUCCEEDED(hr)) hr = RegisterTypeLibrary(path, scope);
    if (FAILED(hr)) {
      // Nothing half-written: take back whatever got in, keep the first failure.
      UnregisterTypeLibrary(path, scope);
      RemoveEntries(root.get(), entries);
    }
    return hr;
  });
}

HRESULT UnregisterServer(std::span<const ClassEntry> table, HMODULE module, RegistrationScope scope) noexcept {
  return WithModulePath(module, [&](const std::wstring& path) {
    const HRESULT typeLibResult = UnregisterTypeLibrary(path, scope);
    Key root;
    HRESULT hr = OpenClassesRoot(scope, KEY_READ | KEY_WRITE, root);
    if (FAILED(hr)) return hr;
    hr = RemoveEntries(root.get(), RegistrationEntries(table, path));
    return FAILED(hr) ? hr : typeLibResult;
  });
}

}  // namespace orv::host
