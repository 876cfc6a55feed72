#pragma once
// The current user's registry as a SettingsStore (HKEY_CURRENT_USER\<key path>, narrow APIs).

#include "dlgkit/SettingsStore.h"

namespace orv {

class RegistrySettingsStore final : public SettingsStore {
 public:
  std::optional<std::string> ReadString(std::string_view keyPath, std::string_view name) override;
  std::optional<std::uint32_t> ReadDword(std::string_view keyPath, std::string_view name) override;
  bool WriteString(std::string_view keyPath, std::string_view name, std::string_view value) override;
  bool WriteDword(std::string_view keyPath, std::string_view name, std::uint32_t value) override;
  bool DeleteValue(std::string_view keyPath, std::string_view name) override;
};

}  // namespace orv
