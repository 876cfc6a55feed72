// Removing nodes, reading a node's value and a double attribute, writing a double: identical on
// both DOM backends.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "XmlTestSupport.h"
#include "xml/Xml.h"

namespace {

using xmltest::Load;
using xmltest::Markup;

TEST(XmlRemove, TakesTheNodeWithItsChildrenOutOfTheTree) {
  XmlNode document = Load("<R><A><B>b</B></A><C/><D/></R>");
  XmlNode a = XmlFindNode(document, "A", true);
  XmlNode b = XmlFindNode(document, "B", true);
  EXPECT_TRUE(XmlRemoveNode(a));
  EXPECT_EQ(Markup(document), "<R><C/><D/></R>");
  EXPECT_FALSE(XmlFindNode(document, "B", true));

  // The removed part stands on its own and still reads and writes.
  EXPECT_FALSE(XmlGetParent(a));
  EXPECT_FALSE(XmlNextSibling(a));
  EXPECT_EQ(Markup(a), "<A><B>b</B></A>");
  EXPECT_TRUE(XmlAddChild(b, "E"));
  EXPECT_EQ(Markup(a), "<A><B>b<E/></B></A>");
  EXPECT_EQ(Markup(document), "<R><C/><D/></R>");

  // A second removal: siblings close up, and removed nodes never meet each other.
  XmlNode d = XmlFindNode(document, "D", true);
  EXPECT_TRUE(XmlRemoveNode(d));
  EXPECT_FALSE(XmlNextSibling(a));
  EXPECT_FALSE(XmlNextSibling(d));
  EXPECT_FALSE(XmlRemoveNode(a)) << "no parent: nothing to remove from";
  EXPECT_EQ(Markup(document), "<R><C/></R>");
}

TEST(XmlRemove, TheRootElementLeavesAnEmptyDocumentThatTakesANewOne) {
  XmlNode document = Load("<R><A/></R>");
  XmlNode root = XmlFirstChild(document);
  EXPECT_TRUE(XmlRemoveNode(root));
  EXPECT_EQ(Markup(document), "");
  EXPECT_FALSE(XmlFirstChild(document));
  EXPECT_FALSE(XmlFindNode(document, "A", true));
  XmlNode fresh = XmlAddChild(document, "S");
  ASSERT_TRUE(fresh);
  EXPECT_EQ(Markup(document), "<S/>");
  EXPECT_FALSE(XmlNextSibling(XmlFirstChild(document)));
}

TEST(XmlRemove, NullRaisesPointer) {
  try {
    XmlRemoveNode(XmlNode());
    ADD_FAILURE() << "no exception";
  } catch (const XmlComError& e) {
    EXPECT_EQ(e.status(), orv::kStatusPointer);
  }
}

TEST(XmlRead, NodeValueAndDoubleAttributeAssignOnlyWhenRead) {
  XmlNode document = Load("<R M=\"2.5\" Z=\"abc\" E=\"\"><V>0x10</V><W>12abc</W><X/></R>");
  XmlNode root = XmlFirstChild(document);
  struct Row {
    const char* child;
    std::int32_t value;
  };
  const Row rows[] = {{"V", 16}, {"W", 77}, {"X", 77}};
  for (const Row& row : rows) {
    std::int32_t value = 77;
    EXPECT_TRUE(XmlGetNodeValue(XmlFindChild(root, row.child), value)) << row.child;
    EXPECT_EQ(value, row.value) << row.child;
  }
  std::int32_t untouched = 77;
  EXPECT_FALSE(XmlGetNodeValue(XmlNode(), untouched));
  EXPECT_EQ(untouched, 77);

  struct DoubleRow {
    const char* name;
    bool present;
    double value;
  };
  const DoubleRow doubles[] = {{"M", true, 2.5}, {"Z", true, 0.0}, {"E", true, 0.0}, {"Missing", false, 9.0}};
  for (const DoubleRow& row : doubles) {
    double value = 9.0;
    EXPECT_EQ(static_cast<bool>(XmlGetAttrDouble(root, row.name, value)), row.present) << row.name;
    EXPECT_EQ(value, row.value) << row.name;
  }
}

TEST(XmlWrite, DoubleAttributesInFixedNotation) {
  XmlNode document = Load("<R/>");
  XmlNode root = XmlFirstChild(document);
  XmlSetAttrDouble(root, "A", 2.5);
  XmlSetAttrDouble(root, "B", -0.0000004);
  XmlSetAttrDouble(root, "C", 1e7);
  EXPECT_EQ(Markup(root), "<R A=\"2.500000\" B=\"-0.000000\" C=\"10000000.000000\"/>");
}

}  // namespace
