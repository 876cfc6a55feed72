// Any text as the number format page's properties, read from every node of the document as the
// root (the page looks for "NumFmtPpgX" from the node it is given). The reader must leave the
// host's document as it was; what it wrote must read back to the same selection and pair; the
// offered types of every category lie in its kind's table; nothing may crash or leak.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "chartpages/NumFmtPpgX.h"
#include "chartpages/NumFmtProps.h"
#include "format/FormatPrice.h"
#include "xml/Xml.h"

namespace {

void Check(bool condition) {
  if (!condition) __builtin_trap();
}

void ReadFrom(XmlNode node, const std::string& markup, XmlNode document) {
  NumFmtProps props;
  props.Read(node);
  Check(XmlGetXml(document) == markup);  // the host's document untouched
  Check(props.selected >= -1 && props.selected < static_cast<int>(props.categories.size()));
  for (const NumFmtCategory& category : props.categories) {
    const auto offered = NumFmtOfferedTypes(category);
    Check(offered.size() <= NumFmtTypeTable(category.kind).size());
    const std::string sample = CNumFmtPpgX::SampleText(category);
    (void)sample;
  }

  XmlNode written = XmlCreateDocument();
  XmlNode root = XmlAddChild(written, "NumFmtPpgX");
  if (!props.Write(root)) {
    Check(props.selected < 0);
    return;
  }
  NumFmtProps again;
  again.Read(written);
  Check(again.format == props.categories[props.selected].id);
  Check(again.precision == props.categories[props.selected].precision);
  Check(again.categories.empty() && again.selected == -1);
}

void Walk(XmlNode node, const std::string& markup, XmlNode document, int& budget) {
  for (; node && budget > 0; node = XmlNextSibling(node), --budget) {
    ReadFrom(node, markup, document);
    Walk(XmlFirstChild(node), markup, document, budget);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, std::string_view(reinterpret_cast<const char*>(data), size))) return 0;
  const std::string markup = XmlGetXml(document);
  ReadFrom(document, markup, document);
  int budget = 64;  // the first nodes in document order: enough roots, bounded time
  Walk(XmlFirstChild(document), markup, document, budget);
  return 0;
}
