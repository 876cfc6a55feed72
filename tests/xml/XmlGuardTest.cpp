// The pre-scan at the door of XmlLoadString: what it refuses, and what it must let through.

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "XmlTestSupport.h"
#include "xml/XmlGuard.h"

namespace {

using orv::ScreenXmlText;
using orv::XmlTextVerdict;
using xmltest::Nested;

TEST(XmlGuard, DepthBoundaryIs256) {
  // A '>' inside a quoted value does not end the tag: the depth is counted right.
  EXPECT_EQ(ScreenXmlText(Nested(255, "<a b='>'>x</a>")), XmlTextVerdict::Acceptable);
  EXPECT_EQ(ScreenXmlText(Nested(256, "<a b='/>'>x</a>")), XmlTextVerdict::TooDeep);
  // An empty element opens no level; closed siblings do not add up.
  EXPECT_EQ(ScreenXmlText(Nested(256, "<b/>")), XmlTextVerdict::Acceptable);
  EXPECT_EQ(ScreenXmlText(Nested(255, "<b></b><b></b><b></b>")), XmlTextVerdict::Acceptable);
  EXPECT_EQ(ScreenXmlText(Nested(256, "<b></b>")), XmlTextVerdict::TooDeep);
  // The depth is counted where the scan stands, before the rest of the text is seen.
  EXPECT_EQ(ScreenXmlText(Nested(257) + "</x>"), XmlTextVerdict::TooDeep);
}

// Of the characters, a NUL cannot stand in a row of the table below.
TEST(XmlGuard, RefusesANulCharacter) {
  EXPECT_EQ(ScreenXmlText(std::string("<a>\0</a>", 8)), XmlTextVerdict::BadCharacter);
}

struct VerdictCase {
  const char* text;
  XmlTextVerdict verdict;
};

void PrintTo(const VerdictCase& c, std::ostream* os) { *os << '"' << c.text << '"'; }

class GrammarVerdict : public testing::TestWithParam<VerdictCase> {};

TEST_P(GrammarVerdict, NamesTheFirstFault) { EXPECT_EQ(ScreenXmlText(GetParam().text), GetParam().verdict); }

INSTANTIATE_TEST_SUITE_P(
    Scan, GrammarVerdict,
    testing::Values(
        // every markup declaration, wherever it stands
        VerdictCase{"<a><!ENTITY e \"x\"></a>", XmlTextVerdict::MarkupDeclaration},
        VerdictCase{"<!-- c --><!doctype a><a/>", XmlTextVerdict::MarkupDeclaration},
        // look-alikes of declarations and tags inside the places that may hold them
        VerdictCase{"<!-- <!DOCTYPE a> <b> --><a/>", XmlTextVerdict::Acceptable},
        VerdictCase{"<a><![CDATA[<!DOCTYPE x><b><b>&bogus;]]></a>", XmlTextVerdict::Acceptable},
        VerdictCase{"<?pi <!DOCTYPE x> <b> ?><a/>", XmlTextVerdict::Acceptable},
        VerdictCase{"<a b=\"&lt;!DOCTYPE x> > '\" c='\"/>'/>", XmlTextVerdict::Acceptable},
        VerdictCase{"<a b=\"/\"></a>", XmlTextVerdict::Acceptable},
        // references in text and values
        VerdictCase{"<a b='&lt;&gt;&amp;&apos;&quot;&#65;&#x42;'>&lt;&#x10FFFF;&#9;</a>", XmlTextVerdict::Acceptable},
        VerdictCase{"<a b='&e;'/>", XmlTextVerdict::BadReference},
        VerdictCase{"<a>&#0;</a>", XmlTextVerdict::BadReference},
        VerdictCase{"<a>&#x110000;</a>", XmlTextVerdict::BadReference},
        VerdictCase{"<a>&#xD800;</a>", XmlTextVerdict::BadReference},
        VerdictCase{"<a>&#xFFFFFFFFF1;</a>", XmlTextVerdict::BadReference},
        VerdictCase{"<a>&#;</a>", XmlTextVerdict::BadReference},
        // control characters and unterminated constructs
        VerdictCase{"", XmlTextVerdict::Empty}, VerdictCase{"<!-- \x1f --><a/>", XmlTextVerdict::BadCharacter},
        VerdictCase{"<a>\t\r\n</a>", XmlTextVerdict::Acceptable},
        VerdictCase{"<a/><!-- open", XmlTextVerdict::Unterminated},
        VerdictCase{"<a><![CDATA[ open</a>", XmlTextVerdict::Unterminated},
        VerdictCase{"<?pi open", XmlTextVerdict::Unterminated}, VerdictCase{"<a b='>", XmlTextVerdict::Unterminated},
        VerdictCase{"<a></a", XmlTextVerdict::Unterminated}));

// Each refusal is named for the first fault in the text, however much follows it.
INSTANTIATE_TEST_SUITE_P(
    Grammar, GrammarVerdict,
    testing::Values(
        // a declaration hides nothing: it is read by its own grammar, not skipped to "?>"
        VerdictCase{"<?xml ven=\"1.ore0\"/>\n<!-- c --><a x=\"&lt?;&#30;\">&0\"?>b/>more</a>",
                    XmlTextVerdict::Malformed},
        VerdictCase{"<?xml version=\"1.0\"?>\n<!-- c --><a x=\"&lt?;\"/>", XmlTextVerdict::BadReference},
        VerdictCase{"<?xml version=\"1.0\"?><a x=\"&#30;\"/>", XmlTextVerdict::BadReference},
        VerdictCase{"<?xml version=\"1.0\"?><a>&0</a>", XmlTextVerdict::BadReference},
        VerdictCase{"<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"no\"?><a/>", XmlTextVerdict::Acceptable},
        VerdictCase{"<?xml version='1.7' ?><a/>", XmlTextVerdict::Acceptable},
        VerdictCase{"<?xml version=\"1.0\"", XmlTextVerdict::Unterminated},
        VerdictCase{"<?xml version=\"1.0?><a/>", XmlTextVerdict::Malformed},
        VerdictCase{"<?xml version=\"1.0\" encoding=\"uTf\r8\"?><a/>", XmlTextVerdict::Malformed},
        VerdictCase{"<?xml version=\"1.0\" encoding=\"uTf-8\"?><a/>", XmlTextVerdict::Acceptable},
        VerdictCase{"<a/><?XmL x?>", XmlTextVerdict::Malformed},
        VerdictCase{"<?xml-stylesheet x?><?xmlfoo?><a/>", XmlTextVerdict::Acceptable},
        // comments, text, tags
        VerdictCase{"<a><!-- x --", XmlTextVerdict::Unterminated},
        VerdictCase{"<a x=']]>' y=\"'\">]]&gt;]></a>", XmlTextVerdict::Acceptable},
        VerdictCase{"<a x=", XmlTextVerdict::Unterminated}, VerdictCase{"<a></a></a>", XmlTextVerdict::Malformed},
        VerdictCase{"<![CDATA[x]]><a/>", XmlTextVerdict::Malformed},
        VerdictCase{"<a-1._b:c xmlns:a-1._b='u'/>", XmlTextVerdict::Acceptable},
        VerdictCase{"<a>&#x0000000041;&#0065;</a>", XmlTextVerdict::Acceptable},
        // namespaces
        VerdictCase{"<a xmlns:xml='u'/>", XmlTextVerdict::Malformed},
        VerdictCase{"<a xmlns:='u'/>", XmlTextVerdict::Malformed},
        VerdictCase{"<a><x xmlns:b='u'/><b:y/></a>", XmlTextVerdict::Malformed},
        VerdictCase{"<a xmlns='' xml:lang='en'><x xmlns='u' c='1'/></a>", XmlTextVerdict::Acceptable}));

#ifndef _WIN32
// Natively the narrow text is UTF-8: it must decode, and names take the XML name characters.
INSTANTIATE_TEST_SUITE_P(
    Utf8, GrammarVerdict,
    testing::Values(VerdictCase{"<\xC3\xA9t\xC3\xA9 a\xC2\xB7='\xE2\x82\xAC'>\xF0\x9F\x98\x80</\xC3\xA9t\xC3\xA9>",
                                XmlTextVerdict::Acceptable},
                    VerdictCase{"<a\xC3\x97/>", XmlTextVerdict::Malformed},
                    VerdictCase{"<a xmlns:b='&#xE9;'><x xmlns:d='\xC3\xA9' b:c='1' d:c='2'/></a>",
                                XmlTextVerdict::Malformed},
                    VerdictCase{"<\xC2\xB7"
                                "a/>",
                                XmlTextVerdict::Malformed},
                    VerdictCase{"<a>\xE9</a>", XmlTextVerdict::BadCharacter},
                    VerdictCase{"<a>\xC0\xBC</a>", XmlTextVerdict::BadCharacter},
                    VerdictCase{"<a>\xED\xA0\x80</a>", XmlTextVerdict::BadCharacter},
                    VerdictCase{"<a>\xEF\xBF\xBE</a>", XmlTextVerdict::BadCharacter},
                    VerdictCase{"\xEF\xBB\xBF<a/>", XmlTextVerdict::Malformed}));
#endif

}  // namespace
