#pragma once
// The axes pages' readers over any document: the fields are read from every element of it as the
// root (the document itself first), which must leave the document as it was; what was read is
// written, and what was written must read back into the same markup. Nothing may crash or leak.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "xml/Xml.h"

template <class Props>
std::string WrittenOf(const Props& props, const char* rootName) {
  XmlNode document = XmlCreateDocument();
  props.Write(XmlAddChild(document, rootName));
  return XmlGetXml(document);
}

template <class Props>
void CheckRoot(XmlNode root, const char* rootName) {
  Props props;
  props.Read(root);
  const std::string first = WrittenOf(props, rootName);
  XmlNode again = XmlCreateDocument();
  if (!XmlLoadString(again, first)) __builtin_trap();  // the page wrote markup it can't read
  Props reread;
  reread.Read(XmlFindChild(again, rootName));
  if (WrittenOf(reread, rootName) != first) __builtin_trap();
}

// Every element, depth first, up to `limit` of them.
template <class Props>
void CheckTree(XmlNode node, const char* rootName, int& limit) {
  for (XmlNode child = XmlFirstChild(node); child && limit > 0; child = XmlNextSibling(child)) {
    if (XmlIsTextNode(child)) continue;
    --limit;
    CheckRoot<Props>(child, rootName);
    CheckTree<Props>(child, rootName, limit);
  }
}

template <class Props>
int FuzzAxisProps(const std::uint8_t* data, std::size_t size, const char* rootName) {
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, std::string_view(reinterpret_cast<const char*>(data), size))) return 0;
  const std::string before = XmlGetXml(document);
  CheckRoot<Props>(document, rootName);
  int limit = 64;
  CheckTree<Props>(document, rootName, limit);
  if (XmlGetXml(document) != before) __builtin_trap();  // the host's document is only read
  return 0;
}
