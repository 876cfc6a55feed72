// Any text as the X axis page's properties (AxisPropsFuzz.h); the margin read is always 0 to 50.

#include "AxisPropsFuzz.h"
#include "chartpages/AxisProps.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  XmlNode document = XmlCreateDocument();
  if (XmlLoadString(document, std::string_view(reinterpret_cast<const char*>(data), size))) {
    GenXAxisProps props;
    props.Read(XmlFindNode(document, "GenXAxisPpg", true));
    if (props.marginBars < 0 || props.marginBars > 50) __builtin_trap();
  }
  return FuzzAxisProps<GenXAxisProps>(data, size, "GenXAxisPpg");
}
