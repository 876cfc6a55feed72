// The page bases without a window: control points, PosLock, snap entries and vertex buttons as
// they come from the host's XML and go back, and the synthetic chart the page tests stand on.

#include <gtest/gtest.h>

#include <string>

#include "FakeSheetOwner.h"
#include "LsTestXml.h"
#include "dlgkit/fake/SyntheticChartData.h"
#include "linestudies/LsPgDayTrend.h"
#include "linestudies/LsPgIntraTrend.h"

namespace {

using lstest::Compact;
using lstest::PageNode;
using lstest::Pt;
using lstest::PtXml;
using lstest::SheetXml;
using lstest::SnapXml;
using lstest::StudyXml;
using orv::SyntheticChartData;

std::string Saved(orv::LineStudyPage& page) {
  XmlNode document = XmlCreateDocument();
  XmlNode element = XmlAddChild(document, "PropertyPage");
  page.Save(element);
  const std::string text = Compact(XmlGetXml(element));
  // Without the PropertyPage element around it.
  return text.substr(14, text.size() - 14 - 15);
}

TEST(LsPgBase, ControlPointsReadOverDefaultsAndGoBackInTheHostsOrder) {
  CLsPgDayTrend page;
  EXPECT_TRUE(page.Load(PageNode(SheetXml(
      "LsPgDayTrend",
      "<CTrendline><CLineStudy><LS_CtrlPtList>"
      "<CXYCoord><XY_yValue> 12.5 </XY_yValue><XY_lSnap>2</XY_lSnap></CXYCoord>"
      "<!-- a comment is no point -->"
      "<CXYCoord><XY_xPos>7</XY_xPos><XY_lDate>45000</XY_lDate><XY_lTime>575</XY_lTime><XY_lSec>34517</XY_lSec>"
      "<XY_yValue>not a number</XY_yValue></CXYCoord>"
      "<Anything/>"
      "</LS_CtrlPtList></CLineStudy></CTrendline>"))));
  ASSERT_EQ(page.PointCount(), 3u) << "every child element is a point, whatever its name";
  EXPECT_EQ(page.Point(0).xPos, -1);
  EXPECT_EQ(page.Point(0).yValue, 12.5);
  EXPECT_EQ(page.Point(0).lDate, 36001);
  EXPECT_EQ(page.Point(0).lSnap, 2);
  EXPECT_EQ(page.Point(1).yValue, 0.0) << "a value that isn't a number leaves the default";
  EXPECT_EQ(page.Point(1).lSec, 34517);
  EXPECT_FALSE(page.HasPosLock());
  EXPECT_FALSE(page.IsDirty());

  // PosLock is written whether or not it came, the points with all six children.
  const std::string expected =
      "<CTrendline>" + StudyXml(false, {Pt{-1, 12.5, 36001, 0, 0, 2}, Pt{7, 0.0, 45000, 575, 34517, -1}, Pt{}}) +
      "<LSTrl_Extendpt1>0</LSTrl_Extendpt1><LSTrl_Extendpt2>0</LSTrl_Extendpt2></CTrendline>";
  EXPECT_EQ(Saved(page), expected);
}

TEST(LsPgBase, PosLockIsReadAsABooleanAndRemembersThatItCame) {
  struct Case {
    const char* lock;
    bool posLock;
    bool hasPosLock;
  };
  const Case cases[] = {
      {"", false, false},
      {"<PosLock>TRUE</PosLock>", true, true},
      {"<PosLock>1</PosLock>", true, true},
      {"<PosLock>FALSE</PosLock>", false, true},
      {"<PosLock>maybe</PosLock>", false, true},
  };
  for (const Case& c : cases) {
    CLsPgDayTrend page;
    page.Load(PageNode(SheetXml("LsPgDayTrend", std::string("<CTrendline><CLineStudy>") + c.lock +
                                                    "<LS_CtrlPtList/></CLineStudy></CTrendline>")));
    EXPECT_EQ(page.PosLock(), c.posLock) << c.lock;
    EXPECT_EQ(page.HasPosLock(), c.hasPosLock) << c.lock;
  }
}

TEST(LsPgBase, StudySearchGoesOnIntoTheFollowingPagesAndMissingPartsKeepDefaults) {
  // The first page has no CLineStudy: it takes the next page's, as the host's search does.
  CLsPgDayTrend page;
  XmlNode first = PageNode(
      "<PropertySheet><PropertyPageList><PropertyPage Name=\"LsPgDayTrend\"/>"
      "<PropertyPage Name=\"Other\">" +
      StudyXml(true, {Pt{3, 9.0}}) + "</PropertyPage></PropertyPageList></PropertySheet>");
  EXPECT_TRUE(page.Load(first));
  ASSERT_EQ(page.PointCount(), 1u);
  EXPECT_EQ(page.Point(0).xPos, 3);
  EXPECT_TRUE(page.PosLock());

  CLsPgDayTrend noList;
  EXPECT_FALSE(noList.Load(PageNode(SheetXml("LsPgDayTrend", "<CTrendline><CLineStudy/></CTrendline>"))));
  EXPECT_EQ(noList.PointCount(), 0u);
  // Asking for a vertex of an empty list grows it with default points.
  EXPECT_EQ(noList.Point(1).lDate, CXYCoord::kDefaultDate);
  EXPECT_EQ(noList.PointCount(), 2u);
}

TEST(LsPgBase, SnapEntriesAreIndexesIntoTheFixedTable) {
  CLsPgDayTrend page;
  page.Load(
      PageNode(SheetXml("LsPgDayTrend", "<Extra>" + SnapXml({5, 1, 1, 6}) +
                                            "<SnapEntryList><SnapEntry>0</SnapEntry></SnapEntryList></Extra>"
                                            "<SnapEntryList><SnapEntry>9</SnapEntry><SnapEntry>-1</SnapEntry>"
                                            "<SnapEntry>x</SnapEntry><SnapEntry>0x3</SnapEntry></SnapEntryList>")));
  // The first list found counts; duplicates stay.
  const std::vector<SnapEntry> expected = {kSnapTable[5], kSnapTable[1], kSnapTable[1], kSnapTable[6]};
  EXPECT_EQ(page.SnapEntries(), expected);
  EXPECT_EQ(page.SnapEntries()[0].text, "Avg Close");
  EXPECT_EQ(page.SnapEntries()[3].code, 257);

  // Indexes outside the table are passed over, any integer form is read.
  CLsPgDayTrend odd;
  odd.Load(PageNode(SheetXml("LsPgDayTrend",
                             "<SnapEntryList><SnapEntry>9</SnapEntry><SnapEntry>-1</SnapEntry>"
                             "<SnapEntry>x</SnapEntry><SnapEntry>0x3</SnapEntry></SnapEntryList>")));
  EXPECT_EQ(odd.SnapEntries(), std::vector<SnapEntry>{kSnapTable[3]});

  CLsPgDayTrend none;
  none.Load(PageNode(SheetXml("LsPgDayTrend", "")));
  EXPECT_TRUE(none.SnapEntries().empty());
}

TEST(LsPgBase, VertexButtonsShowOnlyWhenTheHostSaysAnythingButNo) {
  struct Case {
    const char* element;
    bool hidden;
  };
  const Case cases[] = {
      {"", true},
      {"<VertexButtons/>", true},
      {"<VertexButtons Show=\"no\"/>", true},
      {"<VertexButtons Show=\"NO\"/>", true},
      {"<VertexButtons Show=\"Yes\"/>", false},
      {"<VertexButtons Show=\"\"/>", false},
      {"<Inner><VertexButtons Show=\"Yes\"/></Inner>", true},  // a direct child only
  };
  for (const Case& c : cases) {
    CLsPgIntraTrend page;
    page.Load(PageNode(SheetXml("LsPgIntraTrend", c.element)));
    EXPECT_EQ(page.VertexButtonsHidden(), c.hidden) << c.element;
  }
}

TEST(LsPgBase, IntraPagesReadMaxPosFromThePageItself) {
  CLsPgIntraTrend page;
  page.Load(PageNode(SheetXml("LsPgIntraTrend", "<MaxPos>233</MaxPos>")));
  EXPECT_EQ(page.MaxPos(), 233);
  CLsPgIntraTrend nested;
  nested.Load(PageNode(SheetXml("LsPgIntraTrend", "<CTrendline><MaxPos>233</MaxPos></CTrendline>")));
  EXPECT_EQ(nested.MaxPos(), 0);
}

}  // namespace
