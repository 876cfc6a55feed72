#include "dlgkit/win32/SettingsStoreWin32.h"

#include <windows.h>

#include <algorithm>
#include <vector>

namespace orv {

namespace {

// "\\Software\\Orv\\" and "Software\\Orv" are one key, as in the other stores.
std::string PathZ(std::string_view path) {
  path = path.substr(0, path.find('\0'));
  while (!path.empty() && path.front() == '\\') path.remove_prefix(1);
  while (!path.empty() && path.back() == '\\') path.remove_suffix(1);
  return std::string(path);
}

// An open registry key, closed when it goes.
class RegistryKey {
 public:
  RegistryKey() = default;
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  ~RegistryKey() {
    if (key_) ::RegCloseKey(key_);
  }
  bool Open(std::string_view path, REGSAM access) {
    const std::string pathZ = PathZ(path);
    if (pathZ.empty()) return false;  // never the root of the user's hive
    return ::RegOpenKeyExA(HKEY_CURRENT_USER, pathZ.c_str(), 0, access, &key_) == ERROR_SUCCESS;
  }
  bool Create(std::string_view path, REGSAM access) {
    const std::string pathZ = PathZ(path);
    if (pathZ.empty()) return false;
    return ::RegCreateKeyExA(HKEY_CURRENT_USER, pathZ.c_str(), 0, nullptr, 0, access, nullptr, &key_, nullptr) ==
           ERROR_SUCCESS;
  }
  HKEY get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

std::string NameZ(std::string_view name) { return std::string(name.substr(0, name.find('\0'))); }

}  // namespace

std::optional<std::string> RegistrySettingsStore::ReadString(std::string_view keyPath, std::string_view name) {
  RegistryKey key;
  if (!key.Open(keyPath, KEY_QUERY_VALUE)) return std::nullopt;
  const std::string nameZ = NameZ(name);
  // The value may grow between the size query and the read: ask again a few times.
  for (int attempt = 0; attempt < 4; ++attempt) {
    DWORD type = 0;
    DWORD size = 0;
    if (::RegQueryValueExA(key.get(), nameZ.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS)
      return std::nullopt;
    if (type != REG_SZ) return std::nullopt;
    // One more byte than asked: a stored string need not carry its terminator.
    std::vector<char> buffer(static_cast<std::size_t>(size) + 1, '\0');
    DWORD got = size;
    const LONG status =
        ::RegQueryValueExA(key.get(), nameZ.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(buffer.data()), &got);
    if (status == ERROR_MORE_DATA) continue;
    if (status != ERROR_SUCCESS || type != REG_SZ) return std::nullopt;
    buffer[std::min<std::size_t>(got, size)] = '\0';
    return std::string(buffer.data());  // ends at the first NUL
  }
  return std::nullopt;
}

std::optional<std::uint32_t> RegistrySettingsStore::ReadDword(std::string_view keyPath, std::string_view name) {
  RegistryKey key;
  if (!key.Open(keyPath, KEY_QUERY_VALUE)) return std::nullopt;
  DWORD type = 0;
  DWORD value = 0;
  DWORD size = sizeof value;
  if (::RegQueryValueExA(key.get(), NameZ(name).c_str(), nullptr, &type, reinterpret_cast<BYTE*>(&value), &size) !=
      ERROR_SUCCESS) {
    return std::nullopt;
  }
  if (type != REG_DWORD || size != sizeof value) return std::nullopt;
  return static_cast<std::uint32_t>(value);
}

bool RegistrySettingsStore::WriteString(std::string_view keyPath, std::string_view name, std::string_view value) {
  RegistryKey key;
  if (!key.Create(keyPath, KEY_SET_VALUE)) return false;
  const std::string valueZ(value.substr(0, value.find('\0')));
  return ::RegSetValueExA(key.get(), NameZ(name).c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(valueZ.c_str()),
                          static_cast<DWORD>(valueZ.size() + 1)) == ERROR_SUCCESS;
}

bool RegistrySettingsStore::WriteDword(std::string_view keyPath, std::string_view name, std::uint32_t value) {
  RegistryKey key;
  if (!key.Create(keyPath, KEY_SET_VALUE)) return false;
  const DWORD data = value;
  return ::RegSetValueExA(key.get(), NameZ(name).c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&data),
                          sizeof data) == ERROR_SUCCESS;
}

bool RegistrySettingsStore::DeleteValue(std::string_view keyPath, std::string_view name) {
  RegistryKey key;
  if (!key.Open(keyPath, KEY_SET_VALUE)) return false;
  return ::RegDeleteValueA(key.get(), NameZ(name).c_str()) == ERROR_SUCCESS;
}

std::unique_ptr<SettingsStore> CreateUserSettingsStore() { return std::make_unique<RegistrySettingsStore>(); }

// The native file's place has no meaning on Windows; kept for a build that asks for it.
std::filesystem::path DefaultSettingsFilePath() { return std::filesystem::path("orvchartdlgs") / "settings.ini"; }

}  // namespace orv
