// Any text as the properties of the chart general page (transparency and print header), read from its root anywhere:
// the host's document stays as it was, and what the page writes reads back (ChartPageReadersFuzz.h).

#include <cstddef>
#include <cstdint>

#include "ChartPageReadersFuzz.h"
#include "chartpages/ChartGenPpg.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orv::fuzz::ReadAnyDocument<CChartGenPpg>(data, size);
}
