// No host application runs beside the native build: every service is absent.
#include "dlgkit/HostServices.h"

namespace orv {
namespace {
class NoHostServices final : public HostServices {
 public:
  std::unique_ptr<SettingsService> CreateSettingsService() override { return nullptr; }
  std::unique_ptr<HelpService> CreateHelpService() override { return nullptr; }
};
}  // namespace

HostServices& PlatformHostServices() {
  static NoHostServices services;
  return services;
}

}  // namespace orv
