// The native settings file may hold anything: never a crash, and what could be read is written
// back so that it reads the same.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "dlgkit/SettingsStore.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const orv::MemorySettingsStore first = orv::FileSettingsStore::Parse(text);
  const std::string written = orv::FileSettingsStore::Serialize(first);
  const orv::MemorySettingsStore second = orv::FileSettingsStore::Parse(written);
  if (orv::FileSettingsStore::Serialize(second) != written) std::abort();
  return 0;
}
