#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

#include "dlgkit/SettingsStore.h"

namespace orv {

std::filesystem::path DefaultSettingsFilePath() {
  std::filesystem::path base;
  // XDG: a relative $XDG_CONFIG_HOME is invalid and is ignored.
  if (const char* xdg = std::getenv("XDG_CONFIG_HOME"); xdg && *xdg == '/') {
    base = xdg;
  } else if (const char* home = std::getenv("HOME"); home && *home) {
    base = std::filesystem::path(home) / ".config";
  } else if (const passwd* user = getpwuid(getuid()); user && user->pw_dir && *user->pw_dir) {
    base = std::filesystem::path(user->pw_dir) / ".config";
  } else {
    base = ".";
  }
  return base / "orvchartdlgs" / "settings.ini";
}

std::unique_ptr<SettingsStore> CreateUserSettingsStore() {
  return std::make_unique<FileSettingsStore>(DefaultSettingsFilePath());
}

}  // namespace orv
