// The pre-scan at the door of XmlLoadString: what it refuses, and what it must let through.

#include <gtest/gtest.h>

#include <string>

#include "xml/XmlGuard.h"

namespace {

using orv::ScreenXmlText;
using orv::XmlTextVerdict;

std::string Nested(int depth, const std::string& inner = "") {
  std::string text;
  for (int i = 0; i < depth; ++i) text += "<a>";
  text += inner;
  for (int i = 0; i < depth; ++i) text += "</a>";
  return text;
}

TEST(XmlGuard, RefusesEveryMarkupDeclaration) {
  EXPECT_EQ(ScreenXmlText("<!DOCTYPE a><a/>"), XmlTextVerdict::MarkupDeclaration);
  EXPECT_EQ(ScreenXmlText("<?xml version=\"1.0\"?>\n<!DOCTYPE a [<!ENTITY e \"x\">]><a>&e;</a>"),
            XmlTextVerdict::MarkupDeclaration);
  EXPECT_EQ(ScreenXmlText("<a><!ENTITY e \"x\"></a>"), XmlTextVerdict::MarkupDeclaration);
  EXPECT_EQ(ScreenXmlText("<!-- c --><!doctype a><a/>"), XmlTextVerdict::MarkupDeclaration);
}

TEST(XmlGuard, SkipsCommentsCdataPisAndQuotedValues) {
  // Look-alikes of declarations and tags inside the places that may hold them.
  EXPECT_EQ(ScreenXmlText("<!-- <!DOCTYPE a> <b> --><a/>"), XmlTextVerdict::Acceptable);
  EXPECT_EQ(ScreenXmlText("<a><![CDATA[<!DOCTYPE x><b><b>&bogus;]]></a>"), XmlTextVerdict::Acceptable);
  EXPECT_EQ(ScreenXmlText("<?pi <!DOCTYPE x> <b> ?><a/>"), XmlTextVerdict::Acceptable);
  EXPECT_EQ(ScreenXmlText("<a b=\"<!DOCTYPE x> > '\" c='\"/>'/>"), XmlTextVerdict::Acceptable);
  EXPECT_EQ(ScreenXmlText("<a b=\"/\"></a>"), XmlTextVerdict::Acceptable);
  // A '>' inside a quoted value does not end the tag: the depth is counted right.
  EXPECT_EQ(ScreenXmlText(Nested(255, "<a b='>'>x</a>")), XmlTextVerdict::Acceptable);
  EXPECT_EQ(ScreenXmlText(Nested(256, "<a b='/>'>x</a>")), XmlTextVerdict::TooDeep);
}

TEST(XmlGuard, DepthBoundaryIs256) {
  EXPECT_EQ(ScreenXmlText(Nested(256)), XmlTextVerdict::Acceptable);
  EXPECT_EQ(ScreenXmlText(Nested(257)), XmlTextVerdict::TooDeep);
  // An empty element opens no level; closed siblings do not add up.
  EXPECT_EQ(ScreenXmlText(Nested(256, "<b/>")), XmlTextVerdict::Acceptable);
  EXPECT_EQ(ScreenXmlText(Nested(255, "<b></b><b></b><b></b>")), XmlTextVerdict::Acceptable);
  EXPECT_EQ(ScreenXmlText(Nested(256, "<b></b>")), XmlTextVerdict::TooDeep);
  // Stray end tags do not buy depth.
  EXPECT_EQ(ScreenXmlText("</x></x></x>" + Nested(257)), XmlTextVerdict::TooDeep);
}

TEST(XmlGuard, ChecksReferencesInTextAndValues) {
  EXPECT_EQ(ScreenXmlText("<a b='&lt;&gt;&amp;&apos;&quot;&#65;&#x42;'>&lt;&#x10FFFF;&#9;</a>"),
            XmlTextVerdict::Acceptable);
  EXPECT_EQ(ScreenXmlText("<a>&e;</a>"), XmlTextVerdict::BadReference);
  EXPECT_EQ(ScreenXmlText("<a b='&e;'/>"), XmlTextVerdict::BadReference);
  EXPECT_EQ(ScreenXmlText("<a>&#0;</a>"), XmlTextVerdict::BadReference);
  EXPECT_EQ(ScreenXmlText("<a>&#x110000;</a>"), XmlTextVerdict::BadReference);
  EXPECT_EQ(ScreenXmlText("<a>&#xD800;</a>"), XmlTextVerdict::BadReference);
  EXPECT_EQ(ScreenXmlText("<a>&#xFFFFFFFFF1;</a>"), XmlTextVerdict::BadReference);
  EXPECT_EQ(ScreenXmlText("<a>&#;</a>"), XmlTextVerdict::BadReference);
  EXPECT_EQ(ScreenXmlText("<a>&amp</a>"), XmlTextVerdict::BadReference);
  EXPECT_EQ(ScreenXmlText("<a>a & b</a>"), XmlTextVerdict::BadReference);
}

TEST(XmlGuard, RefusesControlCharactersAndUnterminatedConstructs) {
  EXPECT_EQ(ScreenXmlText(""), XmlTextVerdict::Empty);
  EXPECT_EQ(ScreenXmlText(std::string("<a>\0</a>", 8)), XmlTextVerdict::BadCharacter);
  EXPECT_EQ(ScreenXmlText("<a>\x01</a>"), XmlTextVerdict::BadCharacter);
  EXPECT_EQ(ScreenXmlText("<!-- \x1f --><a/>"), XmlTextVerdict::BadCharacter);
  EXPECT_EQ(ScreenXmlText("<a>\t\r\n</a>"), XmlTextVerdict::Acceptable);
  EXPECT_EQ(ScreenXmlText("<a/><!-- open"), XmlTextVerdict::Unterminated);
  EXPECT_EQ(ScreenXmlText("<a><![CDATA[ open</a>"), XmlTextVerdict::Unterminated);
  EXPECT_EQ(ScreenXmlText("<?pi open"), XmlTextVerdict::Unterminated);
  EXPECT_EQ(ScreenXmlText("<a b='>"), XmlTextVerdict::Unterminated);
  EXPECT_EQ(ScreenXmlText("<a></a"), XmlTextVerdict::Unterminated);
}

}  // namespace
