// The Xml* layer over the DOM seam: the finding, reading and writing rules, identical on every backend.

#include "xml/Xml.h"

#include <cstdlib>
#include <vector>

#include "xml/Dom.h"
#include "xml/StrFormat.h"
#include "xml/XmlGuard.h"

namespace dom = orv::dom;

namespace {

const dom::NodeImpl& Need(const XmlNode& node) {
  if (!node) throw XmlComError(orv::kStatusPointer, "null node handle");
  return *node.impl();
}

const char* NeedName(const char* name) {
  if (name == nullptr) throw XmlComError(orv::kStatusFail, "null name");
  return name;
}

// XML names as MSXML accepts them from createElement and setAttribute; bytes of 0x80 and above
// are letters of the code page. pugixml would write any name and produce markup nobody can load.
bool IsXmlName(const char* name) {
  auto isStart = [](unsigned char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == ':' || c >= 0x80;
  };
  auto isPart = [&](unsigned char c) { return isStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.'; };
  const auto* p = reinterpret_cast<const unsigned char*>(name);
  if (!isStart(*p)) return false;
  for (++p; *p != 0; ++p)
    if (!isPart(*p)) return false;
  return true;
}

const char* NeedXmlName(const char* name, const char* context) {
  if (!IsXmlName(NeedName(name))) throw XmlComError(orv::kStatusFail, context);
  return name;
}

XmlNode Wrap(dom::Node node) { return XmlNode(std::move(node)); }

template <typename Int>
XmlNode GetAttrValueImpl(XmlNode node, const char* name, Int& value) {
  std::string text;
  XmlNode attr = XmlGetAttr(std::move(node), name, text);
  Int parsed{};
  if (attr && XmlParseValue(text, parsed)) value = parsed;
  return attr;
}

template <typename Int>
XmlNode GetChildValueImpl(XmlNode parent, const char* name, Int& value) {
  std::string text;
  XmlNode child = XmlGetChildText(std::move(parent), name, text);
  Int parsed{};
  if (child && XmlParseValue(text, parsed)) value = parsed;
  return child;
}

}  // namespace

XmlNode XmlFindNode(XmlNode start, const char* name, bool recursive) {
  // Iterative: the stack holds, for each level entered, the node whose siblings come next.
  // Nesting depth never becomes call depth.
  std::vector<dom::Node> pending;
  dom::Node current = start.impl();
  for (;;) {
    while (!current) {
      if (pending.empty()) return XmlNode();
      current = dom::NextSibling(*pending.back());
      pending.pop_back();
    }
    if (dom::NodeName(*current) == NeedName(name)) return Wrap(std::move(current));
    dom::Node child = recursive ? dom::FirstChild(*current) : nullptr;
    if (child) {
      pending.push_back(std::move(current));
      current = std::move(child);
    } else {
      current = dom::NextSibling(*current);
    }
  }
}

XmlNode XmlFindChild(XmlNode parent, const char* name) {
  if (!parent) return XmlNode();
  dom::Node first = dom::FirstChild(*parent.impl());
  if (!first) return XmlNode();
  return XmlFindNode(Wrap(std::move(first)), name, false);
}

XmlNode XmlFirstChild(XmlNode node) { return node ? Wrap(dom::FirstChild(*node.impl())) : XmlNode(); }

XmlNode XmlNextSibling(XmlNode node) { return node ? Wrap(dom::NextSibling(*node.impl())) : XmlNode(); }

XmlNode XmlGetParent(XmlNode node) { return node ? Wrap(dom::ParentNode(*node.impl())) : XmlNode(); }

bool XmlIsTextNode(XmlNode node) {
  if (!node) return false;
  const std::string name = dom::NodeName(*node.impl());
  return name == "#text" || name == "#cdata-section";
}

XmlNode XmlFirstTextChild(XmlNode node) {
  if (!node) return XmlNode();
  for (dom::Node child = dom::FirstChild(*node.impl()); child; child = dom::NextSibling(*child)) {
    XmlNode candidate = Wrap(child);
    if (XmlIsTextNode(candidate)) return candidate;
  }
  return XmlNode();
}

XmlNode XmlGetAttr(XmlNode node, const char* name, std::string& value) {
  if (!node) return XmlNode();
  dom::Node attr = dom::NamedAttribute(*node.impl(), NeedName(name));
  if (!attr) return XmlNode();
  value = dom::NodeValue(*attr);
  return Wrap(std::move(attr));
}

XmlNode XmlGetAttrValue(XmlNode node, const char* name, std::int32_t& value) {
  return GetAttrValueImpl(std::move(node), name, value);
}
XmlNode XmlGetAttrValue(XmlNode node, const char* name, std::uint32_t& value) {
  return GetAttrValueImpl(std::move(node), name, value);
}

XmlNode XmlGetNodeText(XmlNode node, std::string& value) {
  if (!node) return XmlNode();
  std::string own = dom::NodeValue(*node.impl());
  if (XmlIsTextNode(node)) {
    value = std::move(own);
    return node;
  }
  // Only the first text or CDATA child is read; comments between runs end the text.
  value.clear();
  if (XmlNode text = XmlFirstTextChild(node)) value = dom::NodeValue(*text.impl());
  return node;
}

XmlNode XmlGetChildText(XmlNode parent, const char* name, std::string& value) {
  XmlNode child = XmlFindChild(std::move(parent), name);
  XmlGetNodeText(child, value);
  return child;
}

XmlNode XmlGetChildValue(XmlNode parent, const char* name, std::int32_t& value) {
  return GetChildValueImpl(std::move(parent), name, value);
}
XmlNode XmlGetChildValue(XmlNode parent, const char* name, std::uint32_t& value) {
  return GetChildValueImpl(std::move(parent), name, value);
}

XmlNode XmlGetNodeValue(XmlNode node, std::int32_t& value) {
  std::string text;
  XmlNode read = XmlGetNodeText(std::move(node), text);
  std::int32_t parsed = 0;
  if (read && XmlParseValue(text, parsed)) value = parsed;
  return read;
}

XmlNode XmlGetAttrDouble(XmlNode node, const char* name, double& value) {
  std::string text;
  XmlNode attr = XmlGetAttr(std::move(node), name, text);
  if (attr) value = std::atof(text.c_str());
  return attr;
}

XmlNode XmlGetChildDouble(XmlNode parent, const char* name, double& value) {
  std::string text;
  XmlNode child = XmlGetChildText(std::move(parent), name, text);
  if (child) value = std::atof(text.c_str());
  return child;
}

std::string XmlGetXml(XmlNode node) { return dom::NodeXml(Need(node)); }

orv::Status XmlSetAttr(XmlNode node, const char* name, std::string_view value) {
  const dom::NodeImpl& target = Need(node);
  dom::SetAttribute(target, NeedXmlName(name, "setAttribute: not an XML name"), value);
  return orv::kStatusOk;
}

XmlNode XmlSetAttrValue(XmlNode node, const char* name, std::int32_t value, XmlValueKind kind) {
  XmlCheck(XmlSetAttr(std::move(node), name, XmlFormatValue(value, kind)), "XmlSetAttrValue");
  return XmlNode();
}
XmlNode XmlSetAttrValue(XmlNode node, const char* name, std::uint32_t value, XmlValueKind kind) {
  XmlCheck(XmlSetAttr(std::move(node), name, XmlFormatValue(value, kind)), "XmlSetAttrValue");
  return XmlNode();
}

XmlNode XmlSetAttrDouble(XmlNode node, const char* name, double value) {
  XmlCheck(XmlSetAttr(std::move(node), name, orv::StrFormat("%f", value)), "XmlSetAttrDouble");
  return XmlNode();
}

XmlNode XmlAddChild(XmlNode parent, const char* name) {
  if (!parent) return XmlNode();
  return Wrap(dom::AppendElement(*parent.impl(), NeedXmlName(name, "createElement: not an XML name")));
}

XmlNode XmlAddDoubleChild(XmlNode parent, const char* name, double value) {
  return XmlAddTextChild(std::move(parent), name, orv::StrFormat("%f", value));
}

XmlNode XmlAddTextChild(XmlNode parent, const char* name, std::string_view text) {
  XmlNode element = XmlAddChild(std::move(parent), name);
  if (element) dom::AppendText(*element.impl(), text);
  return element;
}

XmlNode XmlAddValueChild(XmlNode parent, const char* name, std::int32_t value, XmlValueKind kind) {
  return XmlAddTextChild(std::move(parent), name, XmlFormatValue(value, kind));
}
XmlNode XmlAddValueChild(XmlNode parent, const char* name, std::uint32_t value, XmlValueKind kind) {
  return XmlAddTextChild(std::move(parent), name, XmlFormatValue(value, kind));
}

XmlNode XmlAppendClone(XmlNode destination, XmlNode node, bool deep) {
  if (!destination || !node) return XmlNode();
  return Wrap(dom::AppendClone(*destination.impl(), *node.impl(), deep));
}

XmlNode XmlRemoveNode(XmlNode node) {
  const dom::NodeImpl& child = Need(node);
  dom::Node parent = dom::ParentNode(child);
  if (!parent) return XmlNode();
  dom::RemoveChild(*parent, child);
  return node;
}

XmlNode XmlCreateDocument() { return Wrap(dom::CreateDocument()); }

bool XmlLoadString(XmlNode document, std::string_view text) {
  // A bad text from the host or the registry is an ordinary outcome, never an exception.
  try {
    if (!document || !dom::IsDocument(*document.impl())) return false;
    if (orv::ScreenXmlText(text) != orv::XmlTextVerdict::Acceptable) {
      dom::ClearDocument(*document.impl());
      return false;
    }
    return dom::LoadXml(*document.impl(), text);
  } catch (...) {
    return false;
  }
}
