#pragma once
// Shared by the module's tests: the DLL as a host loads it, and registry helpers.

#include <windows.h>

#include <filesystem>
#include <memory>
#include <string>
#include <type_traits>

namespace orv::host::testing {

struct LibraryDeleter {
  void operator()(HMODULE module) const { FreeLibrary(module); }
};
using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryDeleter>;

struct KeyCloser {
  using pointer = HKEY;
  void operator()(HKEY key) const { RegCloseKey(key); }
};
using Key = std::unique_ptr<HKEY, KeyCloser>;

inline std::filesystem::path ProgramFolder() {
  std::wstring self(MAX_PATH, L'\0');
  self.resize(GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size())));
  return std::filesystem::path(self).parent_path();
}

// The DLL is built into the same folder as the test programs.
inline std::wstring DllPath() { return (ProgramFolder() / L"OrvChartDlgs.dll").wstring(); }

inline std::wstring GuidText(const GUID& guid) {
  wchar_t text[40] = {};
  StringFromGUID2(guid, text, 40);
  return text;
}

}  // namespace orv::host::testing
