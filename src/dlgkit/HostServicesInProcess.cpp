#include "dlgkit/HostServicesInProcess.h"

namespace orv {
namespace {
class ThemeServingSettings : public SettingsService {
 public:
  explicit ThemeServingSettings(const ThemeColors& theme) : theme_(theme) {}
  void GetTheme(ThemeColors& theme, std::int32_t, std::int32_t& result) override {
    theme = theme_;
    result = 0;
  }

 private:
  const ThemeColors& theme_;
};
}  // namespace

std::unique_ptr<SettingsService> InProcessHostServices::CreateSettingsService() {
  return std::make_unique<ThemeServingSettings>(theme_);
}

}  // namespace orv
