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

// The markup of a node without the layout MSXML adds when it prints (CR LF and tabs between
// elements when white space is not preserved), so that both backends compare alike.
inline std::string Markup(const XmlNode& node) {
  const std::string text = XmlGetXml(node);
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.compare(i, 2, "\r\n") == 0) {
      for (i += 2; i < text.size() && text[i] == '\t';) ++i;
      --i;
      continue;
    }
    out += text[i];
  }
  return out;
}

// `depth` nested <a> elements around `inner`.
inline std::string Nested(int depth, const std::string& inner = "") {
  std::string text;
  for (int i = 0; i < depth; ++i) text += "<a>";
  text += inner;
  for (int i = 0; i < depth; ++i) text += "</a>";
  return text;
}

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
