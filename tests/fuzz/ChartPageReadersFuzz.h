#pragma once
// What every chart page's reader must stand: any document, its root anywhere (the page's own
// element where there is one, else the document element). The host's document is never changed;
// what the page writes loads again; and after one round the page's writing is a fixed point (the
// first round may normalise: white space, defaults that take the place of what doesn't read).

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "xml/Xml.h"

namespace orv::fuzz {

template <class P>
std::string WrittenBy(XmlNode root) {
  P page;
  page.Load(root);
  XmlNode document = XmlCreateDocument();
  XmlNode written = XmlAddChild(document, page.Info().rootName);
  if (!page.Save(written)) __builtin_trap();  // these pages always write
  return XmlGetXml(document);
}

template <class P>
XmlNode RootOf(XmlNode document) {
  P page;
  if (XmlNode root = XmlFindNode(document, page.Info().rootName, true)) return root;
  return XmlFirstChild(document);
}

template <class P>
int ReadAnyDocument(const std::uint8_t* data, std::size_t size) {
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, std::string_view(reinterpret_cast<const char*>(data), size))) return 0;
  const std::string before = XmlGetXml(document);
  XmlNode root = RootOf<P>(document);
  if (!root) return 0;
  std::string written = WrittenBy<P>(root);
  if (XmlGetXml(document) != before) __builtin_trap();  // the host's document was changed
  std::string previous;
  for (int round = 0; round < 2; ++round) {
    XmlNode again = XmlCreateDocument();
    if (!XmlLoadString(again, written)) __builtin_trap();  // the page wrote markup it can't read
    previous = written;
    written = WrittenBy<P>(RootOf<P>(again));
  }
  if (written != previous) __builtin_trap();
  return 0;
}

}  // namespace orv::fuzz
