// XmlLoadString on any text, then every reader over every node of what loaded, copies of the
// nodes into a second document, and the markup loaded again: printing must be a fixed point.
// The load guard alone decides what loads: the backend takes every text the guard lets through,
// which is what makes pugixml and MSXML agree.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "xml/Xml.h"
#include "xml/XmlGuard.h"

namespace {

void ReadEverything(const XmlNode& node, const std::string& someName) {
  const char* names[] = {"a", "Name", someName.c_str()};
  std::string text;
  std::int32_t value = 0;
  std::uint32_t unsignedValue = 0;
  for (const char* name : names) {
    XmlFindNode(node, name, true);
    XmlFindNode(node, name, false);
    XmlFindChild(node, name);
    if (XmlNode attribute = XmlGetAttr(node, name, text)) {
      XmlGetNodeText(attribute, text);
      XmlGetXml(attribute);
    }
    XmlGetAttrValue(node, name, value);
    XmlGetAttrValue(node, name, unsignedValue);
    XmlGetChildText(node, name, text);
    XmlGetChildValue(node, name, value);
    XmlGetChildValue(node, name, unsignedValue);
  }
  XmlIsTextNode(node);
  XmlFirstTextChild(node);
  XmlGetNodeText(node, text);
  XmlGetXml(node);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 64 * 1024) return 0;
  const std::string text(reinterpret_cast<const char*>(data), size);
  XmlNode document = XmlCreateDocument();
  const bool loaded = XmlLoadString(document, text);
  if (loaded != (orv::ScreenXmlText(text) == orv::XmlTextVerdict::Acceptable)) std::abort();
  if (!loaded) return 0;

  XmlNode copies = XmlCreateDocument();
  XmlNode holder = XmlAddChild(copies, "Copies");
  // Every node in document order, without recursion.
  std::vector<XmlNode> stack{XmlFirstChild(document)};
  std::size_t visited = 0;
  while (!stack.empty()) {
    XmlNode node = stack.back();
    stack.pop_back();
    if (!node) continue;
    stack.push_back(XmlNextSibling(node));
    stack.push_back(XmlFirstChild(node));
    const std::string own = XmlGetXml(node);
    ReadEverything(node, own.size() > 1 ? own.substr(1, 4) : own);
    // Deep copies of the first few nodes, shallow of all. A copy of a copy prints as the copy
    // (not always as the source: pugixml prints a parsed empty PI value as "<?t ?>", a copied
    // one as "<?t?>").
    // The declaration cannot live inside an element: that refusal is an XmlComError.
    try {
      if (!XmlAppendClone(holder, node, false)) std::abort();
      if (visited++ < 4) {
        XmlNode deep = XmlAppendClone(holder, node, true);
        if (!deep) std::abort();
        const std::string copied = XmlGetXml(deep);
        if (copied.size() > own.size() || XmlGetXml(XmlAppendClone(holder, deep, true)) != copied) std::abort();
      }
    } catch (const XmlComError&) {
    }
  }

  // What loaded prints as markup that loads again to the same markup.
  const std::string markup = XmlGetXml(document);
  XmlNode again = XmlCreateDocument();
  if (!XmlLoadString(again, markup)) std::abort();
  if (XmlGetXml(again) != markup) std::abort();
  return 0;
}
