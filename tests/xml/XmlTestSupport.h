#pragma once
// Helpers shared by the XML layer's tests on both backends.

#include <gtest/gtest.h>

#include <string>

#include "xml/Xml.h"

namespace xmltest {

// A new document loaded from `text`; fails the test when it does not load.
inline XmlNode Load(const std::string& text) {
  XmlNode document = XmlCreateDocument();
  EXPECT_TRUE(document) << "no XML document could be created";
  EXPECT_TRUE(XmlLoadString(document, text)) << text;
  return document;
}

// The markup of a node with the line ends MSXML puts after a document's top-level nodes removed.
inline std::string Markup(const XmlNode& node) {
  std::string text = XmlGetXml(node);
  std::string out;
  for (char c : text)
    if (c != '\r' && c != '\n') out += c;
  return out;
}

inline std::string NameOf(const XmlNode& node) { return node ? Markup(node).substr(0, 8) : "(null)"; }

// Expects `call` to raise XmlComError with `status`.
template <typename Call>
void ExpectStatus(orv::Status status, Call call) {
  try {
    call();
    ADD_FAILURE() << "no XmlComError raised";
  } catch (const XmlComError& error) {
    EXPECT_EQ(error.status(), status) << error.what();
  }
}

}  // namespace xmltest
