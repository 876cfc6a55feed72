// Trees far deeper than any text may carry, built by DOM calls: searched and destroyed without
// the nesting ever becoming stack depth.

#include <gtest/gtest.h>

#include <string>

#include "XmlTestSupport.h"
#include "xml/Xml.h"

namespace {

constexpr int kDepth = 100000;

// A chain Root/N/N/.../N with a Leaf at the bottom and a Tail after the root's last child.
XmlNode BuildChain(int depth) {
  XmlNode document = XmlCreateDocument();
  XmlNode root = XmlAddChild(document, "Root");
  XmlNode node = root;
  for (int i = 0; i < depth; ++i) node = XmlAddChild(node, "N");
  XmlAddValueChild(node, "Leaf", depth);
  XmlAddChild(root, "Tail");
  return document;
}

TEST(XmlDeepTree, IsSearchedWithoutRecursion) {
  XmlNode document = BuildChain(kDepth);
  EXPECT_FALSE(XmlFindNode(document, "Missing", true));
  XmlNode leaf = XmlFindNode(document, "Leaf", true);
  ASSERT_TRUE(leaf);
  std::string text;
  XmlGetNodeText(leaf, text);
  EXPECT_EQ(text, std::to_string(kDepth));
  // From the top of the chain the walk goes all the way down and comes back up to its sibling.
  XmlNode top = XmlFindNode(document, "N", true);
  EXPECT_TRUE(XmlFindNode(top, "Tail", true));
  EXPECT_TRUE(XmlFindNode(top, "Tail", false));
  EXPECT_FALSE(XmlFindNode(XmlFindChild(top, "N"), "Tail", true)) << "Tail is no sibling of the second N";
}

TEST(XmlDeepTree, DiesWithItsLastHandle) {
  // The handle of the bottom node outlives the document handle; the tree dies with it.
  XmlNode leaf;
  {
    XmlNode document = BuildChain(kDepth);
    leaf = XmlFindNode(document, "Leaf", true);
  }
  std::string text;
  XmlGetNodeText(leaf, text);
  EXPECT_EQ(text, std::to_string(kDepth));
  leaf = XmlNode();  // the last reference: the whole chain is freed here
  SUCCEED();
}

TEST(XmlDeepTree, IsReplacedByALoad) {
  XmlNode document = BuildChain(kDepth);
  EXPECT_TRUE(XmlLoadString(document, "<Small/>"));
  EXPECT_EQ(xmltest::Markup(document), "<Small/>");
}

}  // namespace
