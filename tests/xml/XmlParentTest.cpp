// Going up a tree (parentNode), identical on both DOM backends.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "XmlTestSupport.h"
#include "xml/Xml.h"

namespace {

using xmltest::Load;

std::string NameOf(const XmlNode& node) {
  std::string name = "(none)";
  XmlGetAttr(node, "Name", name);
  return name;
}

TEST(XmlGetParent, ClimbsFromLeafThroughElementsToTheDocumentAndStops) {
  XmlNode document = Load(
      "<PropertySheet Name=\"LSPs\"><PropertyPageList><PropertyPage Name=\"LsPgAdvanced\">"
      "<AlwaysVisible>TRUE</AlwaysVisible></PropertyPage></PropertyPageList></PropertySheet>");
  XmlNode page = XmlFindNode(document, "PropertyPage", true);
  ASSERT_TRUE(page);
  XmlNode list = XmlGetParent(page);
  ASSERT_TRUE(list);
  XmlNode sheet = XmlGetParent(list);
  EXPECT_EQ(NameOf(sheet), "LSPs");
  XmlNode top = XmlGetParent(sheet);
  ASSERT_TRUE(top);
  // The top element's parent is its document: searching from it finds the whole tree again.
  EXPECT_FALSE(XmlGetParent(top));
  EXPECT_TRUE(XmlFindNode(top, "AlwaysVisible", true));

  // A text node's parent is its element.
  XmlNode text = XmlFirstTextChild(XmlFindNode(document, "AlwaysVisible", true));
  ASSERT_TRUE(text);
  std::string value;
  XmlGetNodeText(XmlGetParent(text), value);
  EXPECT_EQ(value, "TRUE");
}

TEST(XmlGetParent, NullForNullDocumentAndAttribute) {
  EXPECT_FALSE(XmlGetParent(XmlNode()));
  XmlNode document = XmlCreateDocument();
  ASSERT_TRUE(document);
  EXPECT_FALSE(XmlGetParent(document));
  XmlNode loaded = Load("<A Kind=\"6\"/>");
  std::string kind;
  XmlNode attribute = XmlGetAttr(XmlFindNode(loaded, "A", true), "Kind", kind);
  ASSERT_TRUE(attribute);
  EXPECT_FALSE(XmlGetParent(attribute));
}

TEST(XmlGetParent, FollowsNodesBuiltByDomCallsAndClones) {
  XmlNode document = XmlCreateDocument();
  ASSERT_TRUE(document);
  XmlNode sheet = XmlAddChild(document, "PropertySheet");
  XmlNode list = XmlAddChild(sheet, "PropertyPageList");
  XmlNode page = XmlAddChild(list, "PropertyPage");
  XmlSetAttr(sheet, "Kind", "6");
  std::int32_t kind = 0;
  XmlGetAttrValue(XmlGetParent(XmlGetParent(page)), "Kind", kind);
  EXPECT_EQ(kind, 6);

  // A clone in another document belongs to that document's tree.
  XmlNode copy = XmlCreateDocument();
  XmlNode root = XmlAppendClone(copy, sheet, true);
  XmlNode clonedPage = XmlFindNode(root, "PropertyPage", true);
  ASSERT_TRUE(clonedPage);
  XmlNode clonedSheet = XmlGetParent(XmlGetParent(clonedPage));
  kind = 0;
  XmlGetAttrValue(clonedSheet, "Kind", kind);
  EXPECT_EQ(kind, 6);
  XmlSetAttr(clonedSheet, "Kind", "7");
  kind = 0;
  XmlGetAttrValue(sheet, "Kind", kind);
  EXPECT_EQ(kind, 6) << "the clone's parent is the clone's, not the original's";
}

}  // namespace
