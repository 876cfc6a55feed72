// Any text as the properties of the data window page (its fields and font), read from its root anywhere:
// the host's document stays as it was, and what the page writes reads back (ChartPageReadersFuzz.h).

#include <cstddef>
#include <cstdint>

#include "ChartPageReadersFuzz.h"
#include "chartpages/DataWndPg.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orv::fuzz::ReadAnyDocument<CDataWndPg>(data, size);
}
