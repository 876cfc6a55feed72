// Any text as the chart draw page's properties: the page reads them from the document (its root
// anywhere, or none: then the read is refused with XmlComError and nothing else), writes them,
// and what it wrote must read back into the same document, line for line (the order of the line
// and shade records follows the map, so the lines are compared sorted). Nothing may crash or leak.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "chartpages/ChartDrawProps.h"
#include "xml/Xml.h"

namespace {

std::string WrittenOf(const ChartDrawProps& props) {
  XmlNode document = XmlCreateDocument();
  XmlNode root = XmlAddChild(document, "ChartDrawPg");
  props.Write(root);
  return XmlGetXml(document);
}

// The markup cut before each '<', sorted: equal for documents that differ in record order only.
std::vector<std::string> Pieces(const std::string& markup) {
  std::vector<std::string> pieces;
  std::size_t start = 0;
  while (start < markup.size()) {
    std::size_t next = markup.find('<', start + 1);
    if (next == std::string::npos) next = markup.size();
    pieces.push_back(markup.substr(start, next - start));
    start = next;
  }
  std::sort(pieces.begin(), pieces.end());
  return pieces;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, std::string_view(reinterpret_cast<const char*>(data), size))) return 0;
  ChartDrawProps props;
  try {
    props.Read(document);
  } catch (const XmlComError&) {
    return 0;  // no "Chart": a documented refusal
  }
  const std::string first = WrittenOf(props);
  XmlNode again = XmlCreateDocument();
  if (!XmlLoadString(again, first)) __builtin_trap();  // the page wrote markup it can't read
  ChartDrawProps reread;
  reread.Read(again);  // "Chart" is there: no refusal
  if (Pieces(WrittenOf(reread)) != Pieces(first)) __builtin_trap();
  return 0;
}
