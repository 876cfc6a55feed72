#include "dlgkit/HostServices.h"

namespace orv {
namespace {
// One thread, the host's: the apartment is the guard, as for every other part of the kit.
HostServices* g_override = nullptr;
}  // namespace

HostServices& CurrentHostServices() { return g_override ? *g_override : PlatformHostServices(); }

ScopedHostServices::ScopedHostServices(HostServices& services) : previous_(g_override) { g_override = &services; }

ScopedHostServices::~ScopedHostServices() { g_override = previous_; }

OneOpenHostServices::OneOpenHostServices() : host_(CurrentHostServices()), current_(*this) {}

std::unique_ptr<SettingsService> OneOpenHostServices::CreateSettingsService() {
  if (noSettingsService_) return nullptr;
  auto service = host_.CreateSettingsService();
  // A failed creation costs a lookup of the class each time (through the RPC service for a
  // class nobody registered); within one open its answer would not change.
  if (!service) noSettingsService_ = true;
  return service;
}

std::unique_ptr<HelpService> OneOpenHostServices::CreateHelpService() { return host_.CreateHelpService(); }

std::unique_ptr<FieldService> OneOpenHostServices::CreateFieldService() { return host_.CreateFieldService(); }

std::int32_t ShowHelp(const std::string& book, std::int32_t topicId, std::int32_t flags) {
  auto help = CurrentHostServices().CreateHelpService();
  if (!help) return -1;
  std::int32_t result = 0;
  help->ShowHelp(book, topicId, flags, result);
  return result;
}

}  // namespace orv
