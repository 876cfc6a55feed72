#include "dlgkit/HostServicesInProcess.h"

namespace orv {
namespace {
class ThemeServingSettings : public SettingsService {
 public:
  explicit ThemeServingSettings(const ThemeColors& theme) : theme_(theme) {}
  void GetValue(const std::string&, const std::string&, std::string&, std::int32_t& result) override { result = kNone; }
  void SetValue(const std::string&, const std::string&, std::int32_t, std::int32_t, std::int32_t& result) override {
    result = kNone;
  }
  void GetTheme(ThemeColors& theme, std::int32_t, std::int32_t& result) override {
    theme = theme_;
    result = 0;
  }
  void GetDocumentValue(const std::string&, const std::string&, const std::string&, std::int32_t, std::string&,
                        std::int32_t& result) override {
    result = kNone;
  }
  void GetDocumentNode(const std::string&, const std::string&, XmlNode&, std::int32_t& result) override {
    result = kNone;
  }

 private:
  static constexpr std::int32_t kNone = 1;
  const ThemeColors& theme_;
};
}  // namespace

std::unique_ptr<SettingsService> InProcessHostServices::CreateSettingsService() {
  return std::make_unique<ThemeServingSettings>(theme_);
}

}  // namespace orv
