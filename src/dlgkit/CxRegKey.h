#pragma once
// CxRegKey: the small key wrapper through which the program reads its few per-user values. It
// opens a key for reading and closes it on destruction; a missing key or value, or a value of
// another type, reads as the default given. Over the SettingsStore seam: the current user's
// registry on Windows, the settings file natively, memory in tests.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "dlgkit/SettingsStore.h"

namespace orv {

// The program's values under HKEY_CURRENT_USER.
inline constexpr char kOrvaneKey[] = "Software\\ZEL\\Orvane";
inline constexpr char kUseOldPaletteValue[] = "UseOldPalette";  // DWORD; non-zero: the older palette
inline constexpr char kChartKey[] = "Software\\ZEL\\Chart";     // the seasonal wizard's values
inline constexpr char kZelKey[] = "Software\\ZEL";
inline constexpr char kOrvInstallOptsValue[] = "OrvInstallOpts";  // DWORD

class CxRegKey {
 public:
  // Reads the current user's store.
  CxRegKey() : owned_(CreateUserSettingsStore()), store_(owned_.get()) {}
  // Reads `store`, which outlives the key.
  explicit CxRegKey(SettingsStore& store) : store_(&store) {}
  CxRegKey(const CxRegKey&) = delete;
  CxRegKey& operator=(const CxRegKey&) = delete;
  ~CxRegKey() { Close(); }

  // Opens `keyPath` (below the user's root) for reading. False for an empty path, which names
  // the root itself: the key then stays closed. A key that doesn't exist opens, and every read
  // gives its default, as the registry's missing values do.
  bool Open(std::string_view keyPath) {
    Close();
    const std::string_view path = keyPath.substr(0, keyPath.find('\0'));
    if (path.find_first_not_of('\\') == std::string_view::npos) return false;
    path_ = std::string(path);
    open_ = true;
    return true;
  }
  void Close() {
    open_ = false;
    path_.clear();
  }
  bool IsOpen() const { return open_; }

  // The DWORD `name`, or `defaultValue` when the key is closed or the value is missing or not
  // a DWORD.
  std::uint32_t QueryDWORDValue(std::string_view name, std::uint32_t defaultValue) const {
    if (!open_) return defaultValue;
    return store_->ReadDword(path_, name).value_or(defaultValue);
  }
  // The string `name`, or `defaultValue` in the same cases.
  std::string QueryStringValue(std::string_view name, std::string_view defaultValue) const {
    if (!open_) return std::string(defaultValue);
    auto value = store_->ReadString(path_, name);
    return value ? std::move(*value) : std::string(defaultValue);
  }

 private:
  std::unique_ptr<SettingsStore> owned_;
  SettingsStore* store_;
  std::string path_;
  bool open_ = false;
};

// "UseOldPalette" under "Software\ZEL\Orvane": non-zero selects the colour grid's older
// palette; anything else, a missing key included, the newer.
inline bool UseOldPalette(SettingsStore& store) {
  CxRegKey key(store);
  key.Open(kOrvaneKey);
  return key.QueryDWORDValue(kUseOldPaletteValue, 0) != 0;
}

}  // namespace orv
