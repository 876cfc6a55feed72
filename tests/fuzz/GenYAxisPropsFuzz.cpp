// Any text as the Y axis page's properties (AxisPropsFuzz.h).

#include "AxisPropsFuzz.h"
#include "chartpages/AxisProps.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return FuzzAxisProps<GenYAxisProps>(data, size, "GenYAxisPpg");
}
