// Finding, reading and writing through node handles, identical on both DOM backends.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "XmlTestSupport.h"
#include "xml/Xml.h"

namespace {

using xmltest::ExpectStatus;
using xmltest::Load;
using xmltest::Markup;

constexpr const char* kSheet =
    "<Root><PropertySheet Name=\"LSPs\" Empty=\"\" Hex=\"0x10\" Bad=\"12abc\">"
    "<Title>Fibo</Title><Width>0x00000010</Width>"
    "<Big>4294967295</Big><Junk>12abc</Junk><Empty/><Mixed>text<!-- c -->more</Mixed>"
    "<CData><![CDATA[a<b]]></CData><Deep><PropertySheet Name=\"inner\"/></Deep></PropertySheet>"
    "<PropertySheet Name=\"second\"/></Root>";

std::string NameAttr(const XmlNode& node) {
  std::string name = "(none)";
  XmlGetAttr(node, "Name", name);
  return name;
}

TEST(XmlFind, WalksDepthFirstAlongSiblingsOfTheStart) {
  XmlNode document = Load(kSheet);
  XmlNode sheet = XmlFindNode(document, "PropertySheet", true);
  EXPECT_EQ(NameAttr(sheet), "LSPs");
  // The start node itself matches.
  EXPECT_EQ(NameAttr(XmlFindNode(sheet, "PropertySheet", true)), "LSPs");
  // Depth first: the nested one comes before the following sibling.
  XmlNode deep = XmlFindNode(document, "Deep", true);
  EXPECT_EQ(NameAttr(XmlFindNode(deep, "PropertySheet", true)), "inner");
  // Not recursive: the start and its following siblings only.
  EXPECT_FALSE(XmlFindNode(deep, "PropertySheet", false));
  XmlNode title = XmlFindChild(sheet, "Title");
  EXPECT_FALSE(XmlFindNode(title, "Root", false));
  EXPECT_TRUE(XmlFindNode(title, "Deep", false));
  // The walk goes on past the end of the start's subtree.
  EXPECT_EQ(NameAttr(XmlFindNode(deep, "PropertySheet", false)), "(none)");
  XmlNode inner = XmlFindNode(deep, "PropertySheet", true);
  EXPECT_EQ(NameAttr(XmlFindNode(XmlFindNode(inner, "PropertySheet", true), "PropertySheet", true)), "inner");
  // Byte for byte: case matters, no namespace tricks.
  EXPECT_FALSE(XmlFindNode(document, "propertysheet", true));
  EXPECT_FALSE(XmlFindNode(document, "PropertySheet ", true));
  EXPECT_FALSE(XmlFindNode(XmlNode(), "Root", true));
  ExpectStatus(orv::kStatusFail, [&] { XmlFindNode(document, nullptr, true); });
}

TEST(XmlFind, ChildAndTextChild) {
  XmlNode document = Load(kSheet);
  XmlNode sheet = XmlFindNode(document, "PropertySheet", true);
  EXPECT_TRUE(XmlFindChild(sheet, "Title"));
  EXPECT_FALSE(XmlFindChild(sheet, "PropertySheet")) << "a grandchild is no child";
  EXPECT_FALSE(XmlFindChild(XmlFindChild(sheet, "Empty"), "x"));
  EXPECT_FALSE(XmlFindChild(XmlNode(), "x"));
  XmlNode text = XmlFirstTextChild(XmlFindChild(sheet, "Title"));
  EXPECT_TRUE(XmlIsTextNode(text));
  EXPECT_TRUE(XmlIsTextNode(XmlFirstTextChild(XmlFindChild(sheet, "CData"))));
  EXPECT_FALSE(XmlIsTextNode(sheet));
  EXPECT_FALSE(XmlIsTextNode(XmlNode()));
  EXPECT_FALSE(XmlFirstTextChild(XmlFindChild(sheet, "Empty")));
  EXPECT_FALSE(XmlFirstTextChild(XmlNode()));
}

TEST(XmlFind, ChildrenInOrder) {
  XmlNode document = Load("<L><I n=\"0\"/>x<!--c--><I n=\"1\"><Sub/></I><J/></L>");
  std::string names;
  for (XmlNode child = XmlFirstChild(XmlFindNode(document, "L", true)); child; child = XmlNextSibling(child)) {
    std::string n = "-";
    XmlGetAttr(child, "n", n);
    names += XmlGetXml(child).substr(0, 2) + n + " ";
  }
  EXPECT_EQ(names, "<I0 x- <!- <I1 <J- ");
  EXPECT_FALSE(XmlFirstChild(XmlNode()));
  EXPECT_FALSE(XmlNextSibling(XmlNode()));
  EXPECT_FALSE(XmlNextSibling(XmlFindNode(document, "L", true))) << "the root has no sibling";
  std::string unused;
  EXPECT_FALSE(XmlNextSibling(XmlGetAttr(XmlFindNode(document, "I", true), "n", unused)))
      << "attributes are no children";
}

TEST(XmlRead, AttributesAssignOnlyWhenPresent) {
  XmlNode sheet = XmlFindNode(Load(kSheet), "PropertySheet", true);
  std::string text = "default";
  EXPECT_FALSE(XmlGetAttr(sheet, "Missing", text));
  EXPECT_EQ(text, "default");
  EXPECT_FALSE(XmlGetAttr(sheet, "name", text)) << "attribute names are case-sensitive";
  EXPECT_TRUE(XmlGetAttr(sheet, "Empty", text));
  EXPECT_EQ(text, "");
  XmlNode name = XmlGetAttr(sheet, "Name", text);
  EXPECT_EQ(text, "LSPs");
  // The attribute's node reads as its value, and is no element.
  std::string value;
  XmlGetNodeText(name, value);
  EXPECT_EQ(value, "LSPs");
  ExpectStatus(orv::kStatusPointer, [&] { XmlSetAttr(name, "x", "y"); });
  EXPECT_FALSE(XmlGetAttr(XmlNode(), "Name", text));
  EXPECT_FALSE(XmlGetAttr(XmlFirstTextChild(XmlFindChild(sheet, "Title")), "Name", text));

  std::int32_t number = -5;
  EXPECT_FALSE(XmlGetAttrValue(sheet, "Missing", number));
  EXPECT_EQ(number, -5);
  EXPECT_TRUE(XmlGetAttrValue(sheet, "Bad", number)) << "the node is returned even when the text is no number";
  EXPECT_EQ(number, -5) << "a failed parse must not leak its partial value";
  EXPECT_TRUE(XmlGetAttrValue(sheet, "Hex", number));
  EXPECT_EQ(number, 16);
  std::uint32_t unsignedNumber = 9;
  EXPECT_TRUE(XmlGetAttrValue(sheet, "Empty", unsignedNumber));
  EXPECT_EQ(unsignedNumber, 9u);
}

TEST(XmlRead, NodeTextIsTheFirstTextRun) {
  XmlNode sheet = XmlFindNode(Load(kSheet), "PropertySheet", true);
  std::string text = "default";
  EXPECT_FALSE(XmlGetNodeText(XmlNode(), text));
  EXPECT_EQ(text, "default");
  EXPECT_TRUE(XmlGetChildText(sheet, "Mixed", text));
  EXPECT_EQ(text, "text");
  EXPECT_TRUE(XmlGetChildText(sheet, "CData", text));
  EXPECT_EQ(text, "a<b");
  // An element without text clears the string: it is present and empty.
  EXPECT_TRUE(XmlGetChildText(sheet, "Empty", text));
  EXPECT_EQ(text, "");
  text = "default";
  EXPECT_FALSE(XmlGetChildText(sheet, "Missing", text));
  EXPECT_EQ(text, "default");
  // A text node reads as itself.
  XmlGetNodeText(XmlFirstTextChild(XmlFindChild(sheet, "Title")), text);
  EXPECT_EQ(text, "Fibo");
}

TEST(XmlRead, ChildValuesAssignOnlyOnSuccess) {
  XmlNode sheet = XmlFindNode(Load(kSheet), "PropertySheet", true);
  std::int32_t value = 77;
  EXPECT_TRUE(XmlGetChildValue(sheet, "Width", value));
  EXPECT_EQ(value, 16);
  EXPECT_TRUE(XmlGetChildValue(sheet, "Big", value));
  EXPECT_EQ(value, -1);
  value = 77;
  EXPECT_TRUE(XmlGetChildValue(sheet, "Junk", value));
  EXPECT_EQ(value, 77);
  EXPECT_TRUE(XmlGetChildValue(sheet, "Empty", value));
  EXPECT_EQ(value, 77);
  EXPECT_FALSE(XmlGetChildValue(sheet, "Missing", value));
  EXPECT_EQ(value, 77);
  std::uint32_t unsignedValue = 0;
  EXPECT_TRUE(XmlGetChildValue(sheet, "Big", unsignedValue));
  EXPECT_EQ(unsignedValue, 4294967295u);
}

TEST(XmlWrite, BuildsADocumentThatReadsBack) {
  XmlNode document = XmlCreateDocument();
  ASSERT_TRUE(document);
  XmlNode root = XmlAddChild(document, "PropertySheet");
  ASSERT_TRUE(root);
  EXPECT_EQ(XmlSetAttr(root, "Name", "LSPs"), orv::kStatusOk);
  EXPECT_EQ(XmlSetAttr(root, "Name", "CustomLines"), orv::kStatusOk) << "setting again replaces";
  EXPECT_FALSE(XmlSetAttrValue(root, "Color", 0x00FF8040, XmlValueKind::Color));
  XmlSetAttrValue(root, "Mask", std::uint32_t{0xFF000000}, XmlValueKind::Hex);
  XmlNode a = XmlAddChild(root, "Item");
  XmlNode b = XmlAddChild(root, "Item");
  EXPECT_TRUE(a && b);
  XmlAddValueChild(a, "Count", -12);
  XmlAddValueChild(a, "Count2", std::uint32_t{4000000000u});
  XmlAddValueChild(b, "On", 5, XmlValueKind::Bool);
  XmlAddTextChild(b, "Text", "a < b & \"c\" > 'd'");
  XmlAddTextChild(b, "None", "");

  EXPECT_EQ(Markup(document),
            "<PropertySheet Name=\"CustomLines\" Color=\"RGB(64,128,255)\" Mask=\"0xFF000000\">"
            "<Item><Count>-12</Count><Count2>4000000000</Count2></Item>"
            "<Item><On>TRUE</On><Text>a &lt; b &amp; \"c\" &gt; 'd'</Text><None></None></Item>"
            "</PropertySheet>");

  // Two children of one name are two siblings, found in order.
  XmlNode first = XmlFindChild(root, "Item");
  std::int32_t count = 0;
  EXPECT_TRUE(XmlGetChildValue(first, "Count", count));
  EXPECT_EQ(count, -12);
  EXPECT_FALSE(XmlFindChild(first, "On"));

  // And the markup loads again to the same values.
  XmlNode sheet = XmlFindNode(Load(XmlGetXml(document)), "PropertySheet", true);
  std::uint32_t color = 0, mask = 0, big = 0;
  XmlGetAttrValue(sheet, "Color", color);
  XmlGetAttrValue(sheet, "Mask", mask);
  EXPECT_EQ(color, 0x00FF8040u);
  EXPECT_EQ(mask, 0xFF000000u);
  XmlGetChildValue(XmlFindNode(sheet, "Item", true), "Count2", big);
  EXPECT_EQ(big, 4000000000u);
  std::int32_t on = 0;
  XmlGetChildValue(XmlFindNode(XmlFindNode(sheet, "Count2", true), "Item", true), "On", on);
  EXPECT_EQ(on, 0) << "the walk never climbs to the siblings of the start's parent";
  XmlGetChildValue(XmlFindNode(sheet, "On", true), "On", on);
  EXPECT_EQ(on, 0) << "On has no child On";
  std::string text;
  XmlGetNodeText(XmlFindNode(sheet, "On", true), text);
  EXPECT_EQ(text, "TRUE");
  XmlGetNodeText(XmlFindNode(sheet, "Text", true), text);
  EXPECT_EQ(text, "a < b & \"c\" > 'd'");
}

TEST(XmlWrite, NullsAndRefusals) {
  EXPECT_FALSE(XmlAddChild(XmlNode(), "A"));
  EXPECT_FALSE(XmlAddTextChild(XmlNode(), "A", "t"));
  EXPECT_FALSE(XmlAddValueChild(XmlNode(), "A", 1));
  ExpectStatus(orv::kStatusPointer, [] { XmlSetAttr(XmlNode(), "A", "t"); });
  ExpectStatus(orv::kStatusPointer, [] { XmlSetAttrValue(XmlNode(), "A", 1); });
  ExpectStatus(orv::kStatusPointer, [] { XmlGetXml(XmlNode()); });

  XmlNode document = XmlCreateDocument();
  XmlNode root = XmlAddChild(document, "Root");
  // Setting an attribute on a document or a text node is a null-pointer failure.
  ExpectStatus(orv::kStatusPointer, [&] { XmlSetAttr(document, "A", "t"); });
  XmlNode text = XmlFirstTextChild(XmlAddTextChild(root, "T", "x"));
  ExpectStatus(orv::kStatusPointer, [&] { XmlSetAttr(text, "A", "t"); });
  // A name that no XML could carry is refused rather than written.
  ExpectStatus(orv::kStatusFail, [&] { XmlAddChild(root, "a b"); });
  ExpectStatus(orv::kStatusFail, [&] { XmlAddChild(root, ""); });
  ExpectStatus(orv::kStatusFail, [&] { XmlAddChild(root, "1a"); });
  ExpectStatus(orv::kStatusFail, [&] { XmlSetAttr(root, "a=b", "t"); });
  ExpectStatus(orv::kStatusFail, [&] { XmlAddChild(root, nullptr); });
  EXPECT_TRUE(XmlAddChild(root, "LS_CtrlPtList.x-1"));
  EXPECT_EQ(Markup(root), "<Root><T>x</T><LS_CtrlPtList.x-1/></Root>");
}

TEST(XmlClone, DeepAndShallowIntoAnotherDocument) {
  XmlNode source = Load("<Page Name=\"Fib\" Id=\"3\"><Level V=\"0.5\"><Label>half</Label></Level></Page>");
  XmlNode page = XmlFindNode(source, "Page", true);
  XmlNode target = XmlCreateDocument();
  XmlNode list = XmlAddChild(XmlAddChild(target, "PropertySheet"), "PropertyPageList");

  XmlNode deep = XmlAppendClone(list, page, true);
  ASSERT_TRUE(deep);
  XmlNode shallow = XmlAppendClone(list, page, false);
  ASSERT_TRUE(shallow);
  EXPECT_EQ(Markup(list),
            "<PropertyPageList><Page Name=\"Fib\" Id=\"3\"><Level V=\"0.5\"><Label>half</Label></Level></Page>"
            "<Page Name=\"Fib\" Id=\"3\"/></PropertyPageList>");
  // The copy is the destination's own: changing it leaves the source as it was.
  XmlSetAttr(deep, "Name", "Changed");
  XmlAddChild(XmlFindChild(deep, "Level"), "Extra");
  EXPECT_EQ(Markup(page), "<Page Name=\"Fib\" Id=\"3\"><Level V=\"0.5\"><Label>half</Label></Level></Page>");
  // The result is the appended node, not the source.
  std::string name;
  XmlGetAttr(deep, "Name", name);
  EXPECT_EQ(name, "Changed");
  // A clone of a text node.
  XmlNode text = XmlAppendClone(shallow, XmlFirstTextChild(XmlFindNode(page, "Label", true)), true);
  EXPECT_TRUE(XmlIsTextNode(text));
  EXPECT_EQ(Markup(shallow), "<Page Name=\"Fib\" Id=\"3\">half</Page>");

  EXPECT_FALSE(XmlAppendClone(XmlNode(), page, true));
  EXPECT_FALSE(XmlAppendClone(list, XmlNode(), true));
  // The root of a new document may come from a clone, but a second root is refused.
  XmlNode copyDocument = XmlCreateDocument();
  EXPECT_TRUE(XmlAppendClone(copyDocument, page, true));
  EXPECT_THROW(XmlAppendClone(copyDocument, page, true), XmlComError);
  EXPECT_THROW(XmlAddChild(copyDocument, "Second"), XmlComError);
  EXPECT_EQ(Markup(copyDocument), Markup(page));
}

TEST(XmlHandles, OutliveTheirDocumentAndItsReloads) {
  XmlNode level;
  XmlNode attribute;
  {
    XmlNode document = Load("<Page><Level V=\"0.5\">half</Level></Page>");
    level = XmlFindNode(document, "Level", true);
    std::string unused;
    attribute = XmlGetAttr(level, "V", unused);
  }
  // The document handle is gone; the nodes still read and write.
  std::string text;
  XmlGetNodeText(level, text);
  EXPECT_EQ(text, "half");
  XmlGetNodeText(attribute, text);
  EXPECT_EQ(text, "0.5");
  EXPECT_TRUE(XmlAddChild(level, "More"));
  EXPECT_EQ(Markup(level), "<Level V=\"0.5\">half<More/></Level>");

  // Loading over a document leaves handles into its former content alive, and detached.
  XmlNode document = Load("<A><B>old</B></A>");
  XmlNode b = XmlFindNode(document, "B", true);
  XmlNode copy = XmlNode(document);
  EXPECT_TRUE(XmlLoadString(copy, "<C/>"));
  EXPECT_EQ(Markup(document), "<C/>") << "every handle of the document sees the new content";
  XmlGetNodeText(b, text);
  EXPECT_EQ(text, "old");
  EXPECT_FALSE(XmlFindNode(document, "B", true));
  EXPECT_FALSE(XmlLoadString(document, "<broken>"));
  EXPECT_EQ(Markup(document), "") << "a failed load leaves the document empty";
  EXPECT_TRUE(XmlAddChild(document, "Fresh")) << "and usable";
  EXPECT_EQ(Markup(b), "<B>old</B>");
}

TEST(XmlGetXml, ShowsEveryKindOfNode) {
  XmlNode document = Load("<?xml version=\"1.0\"?><!-- top --><A x=\"1\"><?pi data?><B/>t<![CDATA[c]]><!--c--></A>");
  EXPECT_EQ(Markup(document),
            "<?xml version=\"1.0\"?><!-- top --><A x=\"1\"><?pi data?><B/>t<![CDATA[c]]><!--c--></A>");
  std::string unused;
  XmlNode a = XmlFindNode(document, "A", true);
  EXPECT_EQ(XmlGetXml(XmlGetAttr(a, "x", unused)), "x=\"1\"");
  EXPECT_EQ(XmlGetXml(XmlFindChild(a, "B")), "<B/>");
  EXPECT_EQ(XmlGetXml(XmlFindNode(document, "#comment", true)), "<!-- top -->");
  EXPECT_EQ(XmlGetXml(XmlFirstTextChild(a)), "t");
  EXPECT_EQ(XmlGetXml(XmlCreateDocument()), "");
}

}  // namespace
