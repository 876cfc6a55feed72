#include "dlgkit/HostServices.h"

namespace orv {
namespace {
// One thread, the host's: the apartment is the guard, as for every other part of the kit.
HostServices* g_override = nullptr;
}  // namespace

HostServices& CurrentHostServices() { return g_override ? *g_override : PlatformHostServices(); }

ScopedHostServices::ScopedHostServices(HostServices& services) : previous_(g_override) {
  g_override = &services;
}

ScopedHostServices::~ScopedHostServices() { g_override = previous_; }

std::int32_t ShowHelp(const std::string& book, std::int32_t topicId, std::int32_t flags) {
  auto help = CurrentHostServices().CreateHelpService();
  if (!help) return -1;
  std::int32_t result = 0;
  help->ShowHelp(book, topicId, flags, result);
  return result;
}

}  // namespace orv
