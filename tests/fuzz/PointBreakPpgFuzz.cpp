// Any text as the properties of the point break page (line and points), read from its root anywhere:
// the host's document stays as it was, and what the page writes reads back (ChartPageReadersFuzz.h).

#include <cstddef>
#include <cstdint>

#include "ChartPageReadersFuzz.h"
#include "chartpages/PointBreakPpg.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orv::fuzz::ReadAnyDocument<CPointBreakPpg>(data, size);
}
