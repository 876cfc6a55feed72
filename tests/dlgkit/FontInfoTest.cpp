// CFontInfo: its XML form both ways, the LOGFONT conversions, and the font cache's sharing and
// release, on counting font operations.
#include "dlgkit/FontInfo.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>
#include <vector>

#include "dlgkit/fake/FakeFontOps.h"
#include "xml/Xml.h"

namespace {

using orv::CFontInfo;
using orv::LogFont;

XmlNode Load(const std::string& text) {
  XmlNode document = XmlCreateDocument();
  EXPECT_TRUE(XmlLoadString(document, text)) << text;
  return document;
}

class FontInfoTest : public ::testing::Test {
 protected:
  void TearDown() override { EXPECT_TRUE(ops.Errors().empty()); }
  orv::FakeFontOps ops;
  orv::FontCache cache{ops};
  orv::ScopedFontCache scope{cache};
};

TEST(MulDivTest, RoundsAsThePlatformDoes) {
  struct Case {
    std::int32_t a, b, c, expected;
  } cases[] = {
      {12, 72, 96, 9},
      {13, 72, 96, 10},
      {-12, 72, 96, -9},
      {-13, 72, 96, -10},
      {9, 96, -72, -12},
      {-9, 96, -72, 12},
      {3, 1, 2, 2},
      {-3, 1, 2, -2},
      {5, 1, -2, -3},
      {0, 5, 7, 0},
      {1, 1, 0, -1},
      {INT_MAX, 2, 1, -1},
      {INT_MIN, 1, -1, -1},
      {INT_MAX, INT_MAX, INT_MAX, INT_MAX},
      {INT_MIN, 1, 1, INT_MIN},
  };
  for (const Case& c : cases) EXPECT_EQ(orv::MulDiv(c.a, c.b, c.c), c.expected) << c.a << "*" << c.b << "/" << c.c;
}

TEST_F(FontInfoTest, ReadTakesTheAttributesWithTheirDefaults) {
  struct Case {
    const char* xml;
    const char* face;
    std::int32_t ptSize, width, weight, italic, underline;
    std::uint32_t pitch;
  } cases[] = {
      {R"(<CFontInfo Version="3" Tag="Axis" FaceName="Tahoma" PtSize="9" Height="90000" Width="2" Weight="700" Italic="1" Underline="1" PitchAndFamily="1"/>)",
       "Tahoma", 9, 2, 700, 1, 1, 1},
      {R"(<CFontInfo Height="90000"/>)", "Arial", 9, 0, 0, 0, 0, 0},  // size from Height
      {R"(<CFontInfo Height="-120000"/>)", "Arial", -12, 0, 0, 0, 0, 0},
      {R"(<CFontInfo Height="5000"/>)", "Arial", 16, 0, 0, 0, 0, 0},  // 0 points: 16
      {R"(<CFontInfo/>)", "Arial", 16, 0, 0, 0, 0, 0},                // neither face nor size
      {R"(<CFontInfo FaceName="" PtSize="0"/>)", "Arial", 16, 0, 0, 0, 0, 0},
      {R"(<CFontInfo PtSize="0" Height="90000"/>)", "Arial", 16, 0, 0, 0, 0, 0},    // PtSize wins
      {R"(<CFontInfo PtSize="big" Height="90000"/>)", "Arial", 16, 0, 0, 0, 0, 0},  // present, unreadable
      {R"(<CFontInfo PtSize="-10"/>)", "Arial", -10, 0, 0, 0, 0, 0},
      {R"(<CFontInfo PitchAndFamily="34"/>)", "Arial", 16, 0, 0, 0, 0, 0},  // one bit only
      {R"(<CFontInfo PitchAndFamily="35"/>)", "Arial", 16, 0, 0, 0, 0, 1},
      {R"(<CFontInfo PitchAndFamily="-1"/>)", "Arial", 16, 0, 0, 0, 0, 1},
      {R"(<CFontInfo Weight="0x2BC" Italic="TRUE"/>)", "Arial", 16, 0, 700, 1, 0, 0},
      {R"(<CFontInfo Weight="99999" Width="-5"/>)", "Arial", 16, -5, 99999, 0, 0, 0},  // kept as read
      {R"(<Page><Other/><Text><CFontInfo FaceName="Courier New" PtSize="11"/></Text></Page>)", "Courier New", 11, 0, 0,
       0, 0, 0},
  };
  for (const Case& c : cases) {
    CFontInfo info;
    ASSERT_TRUE(info.Read(Load(c.xml))) << c.xml;
    EXPECT_EQ(info.FaceName, c.face) << c.xml;
    EXPECT_EQ(info.PtSize, c.ptSize) << c.xml;
    EXPECT_EQ(info.Width, c.width) << c.xml;
    EXPECT_EQ(info.Weight, c.weight) << c.xml;
    EXPECT_EQ(info.Italic, c.italic) << c.xml;
    EXPECT_EQ(info.Underline, c.underline) << c.xml;
    EXPECT_EQ(info.PitchAndFamily, c.pitch) << c.xml;
  }
}

TEST_F(FontInfoTest, ReadLeavesAbsentFieldsAndTakesTheTag) {
  CFontInfo info;
  info.FaceName = "Verdana";
  info.PtSize = 12;
  info.Weight = 400;
  info.StrikeOut = 1;
  ASSERT_TRUE(info.Read(Load(R"(<CFontInfo Tag="Legend" Italic="1"/>)")));
  EXPECT_EQ(info.Tag, "Legend");
  EXPECT_EQ(info.FaceName, "Verdana");
  EXPECT_EQ(info.PtSize, 12);
  EXPECT_EQ(info.Weight, 400);
  EXPECT_EQ(info.Italic, 1);
  EXPECT_EQ(info.StrikeOut, 1);  // not in the XML form at all
}

TEST_F(FontInfoTest, WithoutElementTheRecordStaysAndNoFontIsMade) {
  CFontInfo info;
  info.FaceName = "Verdana";
  info.PtSize = 12;
  EXPECT_FALSE(info.Read(Load("<Page><FontInfo FaceName=\"X\"/></Page>")));
  EXPECT_FALSE(info.Read(nullptr));
  EXPECT_EQ(info.FaceName, "Verdana");
  EXPECT_EQ(info.PtSize, 12);
  EXPECT_EQ(info.GetFont(), nullptr);
  EXPECT_TRUE(ops.Created().empty());
}

TEST_F(FontInfoTest, WriteGivesTheAttributesInOrder) {
  CFontInfo info;
  info.Tag = "NotWritten";
  info.FaceName = "Tahoma";
  info.PtSize = 9;
  info.Width = 3;
  info.Weight = 700;
  info.Italic = 1;
  info.Underline = 0;
  info.StrikeOut = 1;
  info.PitchAndFamily = 1;
  XmlNode document = Load("<Root/>");
  XmlNode root = XmlFindNode(document, "Root", true);
  XmlNode element = info.Write(root);
  ASSERT_TRUE(element);
  EXPECT_EQ(
      XmlGetXml(element),
      R"(<CFontInfo Version="3" FaceName="Tahoma" PtSize="9" Height="90000" Width="3" Weight="700" Italic="1" Underline="0" PitchAndFamily="1"/>)");
  EXPECT_FALSE(info.Write(nullptr));
}

TEST_F(FontInfoTest, WriteHoldsHeightInThirtyTwoBits) {
  struct Case {
    std::int32_t ptSize;
    const char* height;
  } cases[] = {{214748, "2147480000"},   {214749, "2147483647"},   {INT_MAX, "2147483647"},
               {-214749, "-2147483648"}, {INT_MIN, "-2147483648"}, {-9, "-90000"}};
  for (const Case& c : cases) {
    CFontInfo info;
    info.PtSize = c.ptSize;
    XmlNode element = info.Write(XmlFindNode(Load("<Root/>"), "Root", true));
    std::string height;
    XmlGetAttr(element, "Height", height);
    EXPECT_EQ(height, c.height) << c.ptSize;
  }
}

TEST_F(FontInfoTest, ToLogFontScalesAndHoldsFieldsToTheirRange) {
  CFontInfo info;
  info.FaceName = "Segoe UI";
  info.PtSize = 9;
  info.Weight = 5000;
  info.Italic = 7;
  info.Underline = -1;
  info.CharSet = 0x1FF;
  info.PitchAndFamily = 1;
  LogFont font;
  info.ToLogFont(font);
  EXPECT_EQ(font.lfHeight, -12);
  EXPECT_EQ(font.lfWeight, 1000);
  EXPECT_EQ(font.lfItalic, 1);
  EXPECT_EQ(font.lfUnderline, 1);
  EXPECT_EQ(font.lfStrikeOut, 0);
  EXPECT_EQ(font.lfCharSet, 0xFF);
  EXPECT_EQ(font.lfPitchAndFamily, 1);
  EXPECT_STREQ(font.lfFaceName, "Segoe UI");

  info.Weight = -5;
  info.PtSize = -9;  // a size taken from a LOGFONT: back to a positive (cell) height
  ops.SetDpi(144);
  info.ToLogFont(font);
  EXPECT_EQ(font.lfHeight, 18);
  EXPECT_EQ(font.lfWeight, 0);
  ops.SetDpi(0);  // a screen answering nonsense counts as 96 DPI
  info.ToLogFont(font);
  EXPECT_EQ(font.lfHeight, 12);
}

TEST_F(FontInfoTest, FaceNamesTooLongForTheRecordAreCut) {
  CFontInfo info;
  info.FaceName = std::string(40, 'F');
  LogFont font;
  info.ToLogFont(font);
  EXPECT_EQ(std::string(font.lfFaceName), std::string(31, 'F'));
  info.FaceName = std::string("Ab\0cd", 5);
  info.ToLogFont(font);
  EXPECT_STREQ(font.lfFaceName, "Ab");

  // 32 bytes without a terminator: all of them.
  LogFont full;
  full.lfHeight = -12;
  std::memset(full.lfFaceName, 'G', sizeof full.lfFaceName);
  CFontInfo fromFull;
  fromFull.FromLogFont(full);
  EXPECT_EQ(fromFull.FaceName, std::string(32, 'G'));
}

TEST_F(FontInfoTest, FromLogFontTakesPointsAlwaysNegative) {
  struct Case {
    std::int32_t height, leading, dpi, ptSize;
    int metricsCalls;
  } cases[] = {
      {-12, 0, 96, -9, 0},                        // a character height: straight to points
      {-16, 0, 96, -12, 0}, {16, 3, 96, -10, 1},  // a cell height: less the internal leading, 13 px = 9.75 pt
      {12, 0, 96, -9, 1},   {-18, 0, 144, -9, 0}, {0, 0, 96, 0, 0},
  };
  for (const Case& c : cases) {
    ops.SetDpi(c.dpi);
    ops.SetInternalLeading(c.leading);
    const int callsBefore = ops.MetricsCalls();
    LogFont font;
    font.lfHeight = c.height;
    font.lfWeight = 700;
    font.lfItalic = 1;
    font.lfCharSet = 2;
    font.lfPitchAndFamily = 34;  // VARIABLE_PITCH | FF_SWISS: the record keeps one bit only
    std::strcpy(font.lfFaceName, "Tahoma");
    CFontInfo info;
    info.Tag = "Kept";
    info.FromLogFont(font);
    EXPECT_EQ(info.PtSize, c.ptSize) << c.height;
    EXPECT_EQ(ops.MetricsCalls() - callsBefore, c.metricsCalls) << c.height;
    EXPECT_EQ(info.Weight, 700);
    EXPECT_EQ(info.Italic, 1);
    EXPECT_EQ(info.CharSet, 2);
    EXPECT_EQ(info.PitchAndFamily, 0u);
    EXPECT_EQ(info.FaceName, "Tahoma");
    EXPECT_EQ(info.Tag, "Kept");
  }
}

CFontInfo Record(const char* face, std::int32_t ptSize, std::int32_t weight = 400) {
  CFontInfo info;
  info.FaceName = face;
  info.PtSize = ptSize;
  info.Weight = weight;
  return info;
}

TEST_F(FontInfoTest, EqualRecordsShareOneFontWhateverTheFaceCase) {
  CFontInfo a = Record("Arial", 9);
  CFontInfo b = Record("ARIAL", 9);
  b.Tag = "OtherTag";  // the tag is no part of the font
  ASSERT_NE(a.MakeFont(), nullptr);
  ASSERT_NE(b.MakeFont(), nullptr);
  EXPECT_EQ(a.GetFontHandle(), b.GetFontHandle());
  EXPECT_EQ(ops.Created().size(), 1u);
  EXPECT_EQ(ops.Created()[0].lfHeight, -12);
  EXPECT_STREQ(ops.Created()[0].lfFaceName, "Arial");

  CFontInfo bold = Record("Arial", 9, 700);
  CFontInfo larger = Record("Arial", 10);
  bold.MakeFont();
  larger.MakeFont();
  EXPECT_NE(bold.GetFontHandle(), a.GetFontHandle());
  EXPECT_NE(larger.GetFontHandle(), a.GetFontHandle());
  EXPECT_EQ(ops.Created().size(), 3u);
  EXPECT_EQ(cache.LiveCount(), 3u);
}

TEST_F(FontInfoTest, FontGoesWithItsLastUserAndIsMadeAnewLater) {
  {
    CFontInfo a = Record("Arial", 9);
    a.MakeFont();
    CFontInfo copy = a;  // copies share the font
    EXPECT_EQ(copy.GetFontHandle(), a.GetFontHandle());
    a = CFontInfo();
    EXPECT_EQ(ops.LiveCount(), 1u);  // the copy still holds it
  }
  EXPECT_EQ(ops.LiveCount(), 0u);
  EXPECT_EQ(ops.DeletedCount(), 1);
  EXPECT_EQ(cache.LiveCount(), 0u);
  CFontInfo later = Record("Arial", 9);
  ASSERT_NE(later.MakeFont(), nullptr);
  EXPECT_EQ(ops.Created().size(), 2u);
  EXPECT_EQ(ops.LiveCount(), 1u);
}

TEST_F(FontInfoTest, NoFontForAnEmptyFaceAZeroHeightOrAFailedCreation) {
  CFontInfo noFace = Record("", 9);
  EXPECT_EQ(noFace.MakeFont(), nullptr);
  CFontInfo noHeight = Record("Arial", 0);
  EXPECT_EQ(noHeight.MakeFont(), nullptr);
  ops.SetCreationFails(true);
  CFontInfo failing = Record("Arial", 9);
  EXPECT_EQ(failing.MakeFont(), nullptr);
  EXPECT_TRUE(ops.Created().empty());
  ops.SetCreationFails(false);
  // Read makes the font: "Arial", 16 points.
  CFontInfo read;
  ASSERT_TRUE(read.Read(Load("<CFontInfo/>")));
  ASSERT_NE(read.GetFont(), nullptr);
  EXPECT_EQ(ops.Created().back().lfHeight, -21);
}

}  // namespace
