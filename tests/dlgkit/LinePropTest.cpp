// The line record's two XML forms: the attribute form of the chart draw page and the graph object
// line page, and the element form of the line tabs, with the visibility that only the latter has.

#include <gtest/gtest.h>

#include <string>

#include "dlgkit/LineProp.h"
#include "dlgkit/fake/FakeSheetOwner.h"  // Compact
#include "xml/Xml.h"

namespace {

XmlNode Root(const std::string& text) {
  XmlNode document = XmlCreateDocument();
  EXPECT_TRUE(XmlLoadString(document, text));
  return XmlFirstChild(document);
}

CLineProp Line(const char* name, std::uint32_t color, std::int32_t style, std::int32_t weight, std::uint8_t set,
               std::uint32_t flags) {
  CLineProp line;
  line.Name = name;
  line.Color = color;
  line.Style = style;
  line.Weight = weight;
  line.Set = set;
  line.Flags = flags;
  return line;
}

void ExpectSame(const CLineProp& a, const CLineProp& b) {
  EXPECT_EQ(a.Name, b.Name);
  EXPECT_EQ(a.Color, b.Color);
  EXPECT_EQ(a.Style, b.Style);
  EXPECT_EQ(a.Weight, b.Weight);
  EXPECT_EQ(a.Set, b.Set);
  EXPECT_EQ(a.Flags, b.Flags);
}

TEST(LinePropForms, WhatEachFormWritesReadsBackAndOnlyTheElementFormCarriesVisibility) {
  struct Case {
    const char* label;
    void (*write)(XmlNode, const CLineProp&);
    void (*read)(XmlNode, CLineProp&);
    std::uint8_t visibleAfter;  // of a hidden line written and read into a new record, visible
  };
  const Case cases[] = {
      {"attributes", WriteLinePropAttrs, ReadLinePropAttrs, 1},
      {"elements", WriteLinePropElements, ReadLinePropElements, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.label);
    const CLineProp line = Line("Mid", 0x123456, 2, 1, 0, 0xFFFFFFFF);
    XmlNode element = XmlAddChild(Root("<R/>"), "E");
    c.write(element, line);
    CLineProp read;
    c.read(element, read);
    CLineProp expected = line;
    expected.Set = c.visibleAfter;
    ExpectSame(read, expected);
  }
}

TEST(LinePropForms, AbsentNamesKeepTheRecordsValues) {
  const CLineProp start = Line("Kept", 9, 1, 2, 0, 4);
  struct Case {
    const char* xml;
    void (*read)(XmlNode, CLineProp&);
    CLineProp expected;
  };
  const Case cases[] = {
      {"<Line Color=\"RGB(1,0,0)\" Weight=\"x\"/>", ReadLinePropAttrs, Line("Kept", 1, 1, 2, 0, 4)},
      {"<LineProp><LineVis>TRUE</LineVis><LineStyle>3</LineStyle></LineProp>", ReadLinePropElements,
       Line("Kept", 9, 3, 2, 1, 4)},
      // A visibility that is no value keeps the record's.
      {"<LineProp><LineVis>maybe</LineVis></LineProp>", ReadLinePropElements, start},
      {"<LineProp><LineVis>2</LineVis><LineName></LineName></LineProp>", ReadLinePropElements, Line("", 9, 1, 2, 1, 4)},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.xml);
    CLineProp line = start;
    c.read(Root(c.xml), line);
    ExpectSame(line, c.expected);
  }
}

}  // namespace
