// The chart general page: the alpha the host keeps against the percentage the user sees, both
// ways and at their edges; what the page shows and sends (exact XML, scope 1 both ways); when it
// becomes dirty; and its answer to a change of its extended style.

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "ChartPageHostFake.h"
#include "chartpages/ChartGenPpg.h"
#include "chartpages/Transparency.h"

namespace {

using Page = orv::testing_pages::OpenPage<CChartGenPpg>;

std::string Sent(std::uint32_t alpha, int header) {
  return "<ChartGenPpg><CurWndTransp>" + std::to_string(alpha) + "</CurWndTransp><ShowPrintHdr>" +
         std::to_string(header) + "</ShowPrintHdr></ChartGenPpg>";
}

struct Conversion {
  double alpha;
  int percent;
};
class AlphaToPercent : public testing::TestWithParam<Conversion> {};
TEST_P(AlphaToPercent, Truncates) { EXPECT_EQ(orv::TransparencyPercent(GetParam().alpha), GetParam().percent); }
INSTANTIATE_TEST_SUITE_P(Display, AlphaToPercent,
                         testing::Values(Conversion{0, 100}, Conversion{255, 0}, Conversion{127, 50},
                                         Conversion{128, 49}, Conversion{254, 0}, Conversion{1, 99}, Conversion{256, 0},
                                         Conversion{4294967295.0, 0}));

struct Saving {
  unsigned percent;
  std::uint32_t alpha;
};
class PercentToAlpha : public testing::TestWithParam<Saving> {};
TEST_P(PercentToAlpha, Truncates) { EXPECT_EQ(orv::TransparencyAlpha(GetParam().percent), GetParam().alpha); }
INSTANTIATE_TEST_SUITE_P(Save, PercentToAlpha,
                         testing::Values(Saving{0, 255}, Saving{100, 0}, Saving{50, 127}, Saving{1, 252}, Saving{99, 2},
                                         Saving{150, 0}, Saving{4294967295u, 0}));

struct ShowCase {
  const char* name;
  std::string properties;
  std::int32_t found;
  const char* shown;  // the edit
  int spin;
  int header;  // the check box
};
void PrintTo(const ShowCase& c, std::ostream* os) { *os << c.name; }

class ChartGenPpgShows : public testing::TestWithParam<ShowCase> {};

TEST_P(ChartGenPpgShows, TheHostsValues) {
  const ShowCase& c = GetParam();
  Page p(c.properties, true, c.found);
  EXPECT_EQ(p.Text(IDC_CG_TRANSP), c.shown);
  EXPECT_EQ(p.controls.UpDownGetPos(IDC_CG_TRANSP_SPIN), c.spin);
  EXPECT_EQ(p.controls.IsDlgButtonChecked(IDC_CG_PRINT_HEADER), c.header);
  EXPECT_EQ(p.connection.scopesAsked, std::vector<std::int32_t>{1});
  EXPECT_FALSE(p.frame.IsDirty());
}

INSTANTIATE_TEST_SUITE_P(
    Loading, ChartGenPpgShows,
    testing::Values(ShowCase{"Opaque", "<CurWndTransp>255</CurWndTransp><ShowPrintHdr>1</ShowPrintHdr>", 1, "0", 0, 1},
                    ShowCase{"Clear", "<CurWndTransp>0</CurWndTransp><ShowPrintHdr>0</ShowPrintHdr>", 1, "100", 100, 0},
                    // 2 is kept, and a two-state check box shows it as checked.
                    ShowCase{"AbsentAlphaIs127", "<ShowPrintHdr>2</ShowPrintHdr>", 1, "50", 50, 1},
                    ShowCase{"AboveOpaqueClamps", "<CurWndTransp>300</CurWndTransp>", 1, "0", 0, 0},
                    ShowCase{"HeaderOutside0To2IsReset",
                             "<CurWndTransp>200</CurWndTransp><ShowPrintHdr>3</ShowPrintHdr>", 1, "21", 21, 0},
                    ShowCase{"NothingFoundLeavesTheEditEmpty",
                             "<CurWndTransp>0</CurWndTransp><ShowPrintHdr>1</ShowPrintHdr>", 0, "", 0, 0}),
    [](const testing::TestParamInfo<ShowCase>& info) { return std::string(info.param.name); });

// "ChartGenPpg" is looked for from the page's own root, which is found first: values the host
// nests in a further "ChartGenPpg" are not read, and the alpha shown is the default.
TEST(ChartGenPpgOpening, ReadsItsOwnRoot) {
  Page p("<Chart><ChartGenPpg><CurWndTransp>0</CurWndTransp></ChartGenPpg></Chart>");
  EXPECT_EQ(p.Text(IDC_CG_TRANSP), "50");
}

// Showing the transparency makes the page dirty (1); the end of the opening makes it clean (4).
TEST(ChartGenPpgOpening, OpensCleanAfterShowingTheTransparency) {
  Page shown("<CurWndTransp>10</CurWndTransp>");
  EXPECT_EQ(shown.connection.statuses, (std::vector<std::uint32_t>{orv::kPageStatusDirty, orv::kPageStatusClean}));
  Page empty("", true, 0);
  EXPECT_TRUE(empty.connection.statuses.empty());
}

struct ApplyCase {
  const char* name;
  std::string properties;
  std::int32_t found;
  void (*change)(Page&);
  std::string sent;
};
void PrintTo(const ApplyCase& c, std::ostream* os) { *os << c.name; }

class ChartGenPpgApply : public testing::TestWithParam<ApplyCase> {};

TEST_P(ChartGenPpgApply, SendsTheExactDocument) {
  const ApplyCase& c = GetParam();
  Page p(c.properties, true, c.found);
  c.change(p);
  EXPECT_TRUE(p.frame.IsDirty());
  EXPECT_EQ(p.Apply(), c.sent);
  EXPECT_EQ(p.connection.scopesSent, std::vector<std::int32_t>{1});
  EXPECT_FALSE(p.frame.IsDirty());
  EXPECT_EQ(p.connection.statuses.back(), orv::kPageStatusClean);
}

const char kLoaded[] = "<CurWndTransp>127</CurWndTransp><ShowPrintHdr>0</ShowPrintHdr>";

INSTANTIATE_TEST_SUITE_P(
    LoadChangeApply, ChartGenPpgApply,
    testing::Values(
        ApplyCase{"Fifty", kLoaded, 1, [](Page& p) { p.controls.TypeText(IDC_CG_TRANSP, "50"); }, Sent(127, 0)},
        ApplyCase{"Zero", kLoaded, 1, [](Page& p) { p.controls.TypeText(IDC_CG_TRANSP, "0"); }, Sent(255, 0)},
        ApplyCase{"Hundred", kLoaded, 1, [](Page& p) { p.controls.TypeText(IDC_CG_TRANSP, "100"); }, Sent(0, 0)},
        // No validator: the value is clamped on save, the edit keeps what was typed.
        ApplyCase{"AboveHundredStoresZero", kLoaded, 1, [](Page& p) { p.controls.TypeText(IDC_CG_TRANSP, "150"); },
                  Sent(0, 0)},
        ApplyCase{"EmptyStoresOpaque", kLoaded, 1, [](Page& p) { p.controls.TypeText(IDC_CG_TRANSP, ""); },
                  Sent(255, 0)},
        ApplyCase{"NotANumberCountsAsZero", kLoaded, 1,
                  [](Page& p) {
                    p.controls.TypeText(IDC_CG_TRANSP, "1");
                    p.controls.SetDlgItemTextA(IDC_CG_TRANSP, "x5");
                  },
                  Sent(255, 0)},
        ApplyCase{"PrintHeader", kLoaded, 1, [](Page& p) { p.controls.Click(IDC_CG_PRINT_HEADER); }, Sent(127, 1)},
        // Nothing found: the edit is empty, and a dirty page sends alpha 255.
        ApplyCase{"NothingFoundSendsOpaque", kLoaded, 0, [](Page& p) { p.controls.Click(IDC_CG_PRINT_HEADER); },
                  Sent(255, 1)}),
    [](const testing::TestParamInfo<ApplyCase>& info) { return std::string(info.param.name); });

TEST(ChartGenPpgDirty, TheEditTellsTheSiteOnceTheCheckEveryTime) {
  Page p(kLoaded);
  p.connection.statuses.clear();
  p.controls.TypeText(IDC_CG_TRANSP, "10");
  p.controls.TypeText(IDC_CG_TRANSP, "20");
  EXPECT_EQ(p.connection.statuses, std::vector<std::uint32_t>{orv::kPageStatusDirty});
  p.controls.Click(IDC_CG_PRINT_HEADER);
  p.controls.Click(IDC_CG_PRINT_HEADER);
  EXPECT_EQ(p.connection.statuses, (std::vector<std::uint32_t>(3, orv::kPageStatusDirty)));
}

TEST(ChartGenPpgApply, CleanPageSendsNothing) {
  Page p(kLoaded);
  EXPECT_EQ(p.Apply(), "");
}

TEST(ChartGenPpgApply, WithoutAHostNothingIsReadOrSent) {
  Page p(kLoaded, false);
  EXPECT_EQ(p.Text(IDC_CG_TRANSP), "");
  p.controls.TypeText(IDC_CG_TRANSP, "30");
  EXPECT_EQ(p.Apply(), "");
  EXPECT_TRUE(p.connection.scopesAsked.empty());
}

TEST(ChartGenPpgApply, KeepsWhatTheWindowShowedWhenItWent) {
  Page p(kLoaded);
  p.controls.TypeText(IDC_CG_TRANSP, "80");
  p.controls.Click(IDC_CG_PRINT_HEADER);
  p.frame.WindowClosing();
  EXPECT_EQ(p.Apply(), Sent(51, 1));
}

struct StyleCase {
  std::intptr_t index;
  std::uint32_t styleNew;
  std::intptr_t result;
};
class ChartGenPpgStyle : public testing::TestWithParam<StyleCase> {};

TEST_P(ChartGenPpgStyle, ExtendedStyleBecomesAControlParent) {
  Page p(kLoaded);
  CChartGenPpg::StyleChange change{0, 0x4};
  std::intptr_t result = -1;
  EXPECT_TRUE(p.frame.OnUnhandledMessage(CChartGenPpg::kWmStyleChanged, static_cast<std::uintptr_t>(GetParam().index),
                                         reinterpret_cast<std::intptr_t>(&change), result));
  EXPECT_EQ(change.styleNew, GetParam().styleNew);
  EXPECT_EQ(result, GetParam().result);
}
INSTANTIATE_TEST_SUITE_P(Indexes, ChartGenPpgStyle,
                         testing::Values(StyleCase{-20, 0x10004, 0}, StyleCase{-16, 0x4, 1}));

}  // namespace
