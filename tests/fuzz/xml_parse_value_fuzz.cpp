// XmlParseValue on any text: both twins must agree, and whatever parses must survive a write
// and a read in every kind.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "xml/Xml.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  std::int32_t signedValue = 0x5A5A5A5A;
  std::uint32_t unsignedValue = 0x5A5A5A5A;
  const bool signedParsed = XmlParseValue(text, signedValue);
  const bool unsignedParsed = XmlParseValue(text, unsignedValue);
  if (signedParsed != unsignedParsed || static_cast<std::uint32_t>(signedValue) != unsignedValue) std::abort();
  if (!signedParsed) return 0;
  for (XmlValueKind kind : {XmlValueKind::Decimal, XmlValueKind::Hex}) {
    std::int32_t back = 0;
    std::uint32_t backUnsigned = 0;
    if (!XmlParseValue(XmlFormatValue(signedValue, kind), back) || back != signedValue) std::abort();
    if (!XmlParseValue(XmlFormatValue(unsignedValue, kind), backUnsigned) || backUnsigned != unsignedValue)
      std::abort();
  }
  std::int32_t color = 0;
  if (!XmlParseValue(XmlFormatValue(signedValue, XmlValueKind::Color), color) || color != (signedValue & 0xFFFFFF))
    std::abort();
  return 0;
}
