// The text page on the headless sheet: what it reads and sends back (element names and order, the
// font record both ways), the transparency between the host's opacity and the box's percentage,
// the lock, the colour button and the font dialog, leaving and applying.

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "LsPageLayouts.h"
#include "LsSheetRun.h"
#include "LsTestXml.h"
#include "dlgkit/fake/FakePageColorButtons.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "dlgkit/fake/SyntheticChartData.h"
#include "linestudies/LsPgText.h"

namespace {

using lstest::EventXml;
using lstest::PageNode;
using lstest::SheetRun;
using lstest::SheetXml;
using orv::FakeControls;
using orv::HeadlessSheetRunner;

constexpr const char* kName = "LsPgText";

std::string Lock(const char* value) { return std::string("<CLineStudy><PosLock>") + value + "</PosLock></CLineStudy>"; }

std::string Trendtext(const std::string& color, const std::string& transparency, const std::string& font) {
  return "<CTrendtext><LSTxt_TextColor>" + color + "</LSTxt_TextColor><LSTxt_Transparency>" + transparency +
         "</LSTxt_Transparency>" + font + "</CTrendtext>";
}

const std::string kTahoma =
    R"(<CFontInfo Version="3" FaceName="Tahoma" PtSize="9" Height="90000" Width="0" Weight="700" Italic="1" Underline="0" PitchAndFamily="1"/>)";
const std::string kArial16 =
    R"(<CFontInfo Version="3" FaceName="Arial" PtSize="16" Height="160000" Width="0" Weight="0" Italic="0" Underline="0" PitchAndFamily="0"/>)";

// --- the transparency: the host's opacity and the box's percentage ---

TEST(LsTextPage, ThePercentageShownBecomesTheHostsOpacity) {
  struct Case {
    unsigned percent;
    std::int32_t sent;
  };
  const Case cases[] = {
      {0, 255},   // 255.01 cut
      {1, 252},   // 252.4599
      {2, 249},   // 249.9098
      {50, 127},  // 127.505
      {60, 102},  // 102.004
      {99, 2},    // 2.5501
      {100, 0},  {101, 0}, {4000000000u, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.percent);
    EXPECT_EQ(CLsPgText::TransparencyOfPercent(c.percent), c.sent);
  }
}

TEST(LsTextPage, TheHostsOpacityShowsAsTheNearestPercentageAndEveryPercentageComesBack) {
  struct Case {
    std::int32_t value;
    unsigned shown;
  };
  const Case cases[] = {
      {255, 0}, {252, 1}, {254, 0}, {253, 1}, {127, 50}, {128, 50},        {129, 49},
      {2, 99},  {1, 100}, {0, 100}, {300, 0}, {-5, 100}, {INT32_MIN, 100}, {INT32_MAX, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.value);
    EXPECT_EQ(CLsPgText::PercentOfTransparency(c.value), c.shown);
  }
  for (unsigned percent = 0; percent <= 100; ++percent) {
    SCOPED_TRACE(percent);
    EXPECT_EQ(CLsPgText::PercentOfTransparency(CLsPgText::TransparencyOfPercent(percent)), percent);
  }
}

TEST(LsTextPage, TheBoxIsReadAsAnUnsignedNumberHeldToOneHundred) {
  struct Case {
    const char* text;  // what the box holds (typed, or pasted where the box refuses typing)
    std::int32_t sent;
  };
  const Case cases[] = {
      {"0", 255}, {"100", 0}, {"150", 0}, {" 40 ", 153}, {"", 255}, {"abc", 255}, {"-5", 255}, {"99999999999", 255},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string("\"") + c.text + "\"");
    SheetRun run;
    run.Run(SheetXml(kName, Lock("FALSE") + Trendtext("RGB(0,0,0)", "255", kArial16)), nullptr,
            [&](HeadlessSheetRunner& r) {
              FakeControls& tab = r.Tab(0);
              EXPECT_EQ(tab.GetDlgItemTextA(IDC_LS_TXT_TRANSP, 64), "0");
              tab.SetDlgItemTextA(IDC_LS_TXT_TRANSP, c.text);
              EXPECT_TRUE(tab.IsSheetChanged());
              EXPECT_TRUE(r.Sheet().PressOk()) << "no text keeps the user";
              EXPECT_TRUE(tab.Beeps().empty());
            });
    EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(
                                kName, Lock("FALSE") + Trendtext("RGB(0,0,0)", std::to_string(c.sent), kArial16))});
  }
}

// --- what goes in comes back ---

TEST(LsTextPage, ThePageSendsItsElementsInOrderWithTheUsersChange) {
  struct Case {
    const char* label;
    std::string content;  // the PropertyPage's content from the host
    std::function<void(FakeControls&)> change;
    std::string sent;
  };
  auto clickLock = [](FakeControls& c) { c.Click(IDC_LS_POS_LOCK); };
  const Case cases[] = {
      {"a colour in hexadecimal and a number for the lock", Lock("1") + Trendtext("0x00336699", "255", kTahoma),
       clickLock, Lock("FALSE") + Trendtext("RGB(153,102,51)", "255", kTahoma)},
      // An opacity no percentage gives goes back as the one shown.
      {"an opacity between two percentages", Lock("FALSE") + Trendtext("RGB(0,0,0)", "128", kTahoma), clickLock,
       Lock("TRUE") + Trendtext("RGB(0,0,0)", "127", kTahoma)},
      // Without the elements: black, solid, Arial 16, unlocked.
      {"an empty CTrendtext", Lock("FALSE") + "<CTrendtext/>", clickLock,
       Lock("TRUE") + Trendtext("RGB(0,0,0)", "255", kArial16)},
      // The text elements below other ones, and the points of CLineStudy, which aren't sent.
      {"deeper elements",
       "<Study><CLineStudy><PosLock>TRUE</PosLock><LS_CtrlPtList><CXYCoord/></LS_CtrlPtList></CLineStudy>"
       "<Box><CTrendtext><LSTxt_Transparency>51</LSTxt_Transparency><Font>" +
           kTahoma + "</Font></CTrendtext></Box></Study>",
       clickLock, Lock("FALSE") + Trendtext("RGB(0,0,0)", "51", kTahoma)},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.label);
    SheetRun run;
    const auto result = run.Run(SheetXml(kName, c.content), nullptr, [&](HeadlessSheetRunner& r) {
      EXPECT_FALSE(r.Tab(0).IsSheetChanged());
      c.change(r.Tab(0));
      EXPECT_TRUE(r.Sheet().PressApply());
      EXPECT_TRUE(r.Sheet().PressOk()) << "applied and not changed since: nothing more";
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(run.runner.TabDialogIds(), std::vector<int>{IDD_LS_PG_TEXT});
    EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(kName, c.sent)});
  }
}

// The font record is read and written as its element says, whatever the page does with it.
TEST(LsTextPage, TheFontRecordGoesBackAsItsElementGivesIt) {
  struct Case {
    const char* in;
    const char* out;
  };
  const Case cases[] = {
      {R"(<CFontInfo Height="90000" FaceName="Courier New"/>)",
       R"(<CFontInfo Version="3" FaceName="Courier New" PtSize="9" Height="90000" Width="0" Weight="0" Italic="0" Underline="0" PitchAndFamily="0"/>)"},
      {R"(<CFontInfo Version="2" Tag="Label" PtSize="0" PitchAndFamily="34" Weight="400"/>)",
       R"(<CFontInfo Version="3" FaceName="Arial" PtSize="16" Height="160000" Width="0" Weight="400" Italic="0" Underline="0" PitchAndFamily="0"/>)"},
      {R"(<CFontInfo FaceName="Tahoma" PtSize="-12" PitchAndFamily="35" Italic="1" Underline="1" Width="5"/>)",
       R"(<CFontInfo Version="3" FaceName="Tahoma" PtSize="-12" Height="-120000" Width="5" Weight="0" Italic="1" Underline="1" PitchAndFamily="1"/>)"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.in);
    CLsPgText page;
    page.Load(PageNode(SheetXml(kName, std::string("<CTrendtext>") + c.in + "</CTrendtext>")));
    XmlNode document = XmlCreateDocument();
    page.Save(XmlAddChild(document, "PropertyPage"));
    EXPECT_EQ(lstest::Compact(XmlGetXml(XmlFindNode(document, "CFontInfo", true))), c.out);
  }
}

// --- the page's rules ---

TEST(LsTextPage, TheLockShowsOnlyWithPosLockAndAnUntouchedPageSendsNothing) {
  for (bool hasLock : {false, true}) {
    SCOPED_TRACE(hasLock ? "with PosLock" : "without");
    SheetRun run;
    run.Run(SheetXml(kName, (hasLock ? Lock("TRUE") : "") + Trendtext("RGB(1,2,3)", "100", kTahoma)), nullptr,
            [&](HeadlessSheetRunner& r) {
              FakeControls& tab = r.Tab(0);
              EXPECT_EQ(tab.IsDlgItemVisible(IDC_LS_POS_LOCK), hasLock);
              EXPECT_EQ(tab.IsDlgButtonChecked(IDC_LS_POS_LOCK), hasLock ? orv::kBstChecked : orv::kBstUnchecked);
              EXPECT_FALSE(r.Sheet().PressApply()) << "nothing changed: Apply is off";
              EXPECT_TRUE(tab.PageApplySent().empty());
              EXPECT_TRUE(r.Sheet().PressOk());
            });
    EXPECT_TRUE(run.owner.events.empty());
  }
}

TEST(LsTextPage, TheUpDownStepsTheBoxWithinZeroToOneHundred) {
  struct Case {
    const char* shown;  // null: as loaded (opacity 127, 50 %)
    int delta;
    const char* after;
    std::int32_t sent;
  };
  const Case cases[] = {
      {nullptr, 1, "51", 124}, {nullptr, -1, "49", 130}, {"100", 1, "100", 0},
      {"0", -1, "0", 255},     {"", 1, "51", 124},       {"7", 3, "10", 229},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.shown ? c.shown : "loaded") + " " + std::to_string(c.delta));
    SheetRun run;
    run.Run(SheetXml(kName, Lock("FALSE") + Trendtext("RGB(0,0,0)", "127", kTahoma)), nullptr,
            [&](HeadlessSheetRunner& r) {
              FakeControls& tab = r.Tab(0);
              if (c.shown) tab.SetDlgItemTextA(IDC_LS_TXT_TRANSP, c.shown);
              tab.ClickSpin(IDC_LS_TXT_TRANSP_SPIN, c.delta);
              EXPECT_EQ(tab.GetDlgItemTextA(IDC_LS_TXT_TRANSP, 64), c.after);
              EXPECT_EQ(tab.Control(IDC_LS_TXT_TRANSP_SPIN).pos, std::stoi(c.after));
              EXPECT_TRUE(r.Sheet().PressOk());
            });
    EXPECT_EQ(run.Events(), std::vector<std::string>{EventXml(
                                kName, Lock("FALSE") + Trendtext("RGB(0,0,0)", std::to_string(c.sent), kTahoma))});
  }
}

// --- the colour button and the font dialog ---

orv::LogFont Courier() {
  orv::LogFont font;
  font.lfHeight = -16;  // 12 points at 96 DPI
  font.lfWeight = 400;
  font.lfUnderline = 1;
  font.lfPitchAndFamily = 49;  // FF_MODERN | FIXED_PITCH: one bit of it is kept
  std::snprintf(font.lfFaceName, sizeof font.lfFaceName, "%s", "Courier New");
  return font;
}

TEST(LsTextPage, TheFontDialogStartsFromTheFontAndColourAndItsChoiceIsSent) {
  const std::string courier =
      R"(<CFontInfo Version="3" FaceName="Courier New" PtSize="-12" Height="-120000" Width="0" Weight="400" Italic="0" Underline="1" PitchAndFamily="1"/>)";
  struct Case {
    const char* label;
    bool withButton;
    bool answer;  // OK with Courier New and blue, or Cancel
  };
  const Case cases[] = {
      {"OK, with the platform's colour button", true, true},
      {"OK, without one", false, true},
      {"Cancel", true, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.label);
    std::optional<orv::FakePageColorButtons> buttons;
    if (c.withButton) buttons.emplace();
    SheetRun run;
    run.Run(SheetXml(kName, Lock("FALSE") + Trendtext("RGB(10,20,30)", "255", kTahoma)), nullptr,
            [&](HeadlessSheetRunner& r) {
              FakeControls& tab = r.Tab(0);
              // The button shows the text's colour, with no "no colour"; the user picks another
              // first, and the dialog starts from it.
              if (buttons) {
                EXPECT_EQ(buttons->Color(IDC_LS_TXT_COLOR), 0x1E140Au);
                EXPECT_FALSE(buttons->Attached().at(IDC_LS_TXT_COLOR).offerNoColor);
                buttons->Pick(tab, IDC_LS_TXT_COLOR, 0x00FF00);
              }
              tab.ClearSheetChanged();
              if (c.answer) tab.AnswerNextFontDialog(Courier(), 0xFF0000);
              tab.Click(IDC_LS_TXT_FONT);
              ASSERT_EQ(tab.FontDialogs().size(), 1u);
              const orv::FakeFontDialog& shown = tab.FontDialogs()[0];
              EXPECT_STREQ(shown.font.lfFaceName, "Tahoma");
              EXPECT_EQ(shown.font.lfHeight, -12) << "9 points at 96 DPI";
              EXPECT_EQ(shown.font.lfWeight, 700);
              EXPECT_EQ(shown.font.lfItalic, 1);
              EXPECT_EQ(shown.color, buttons ? 0x00FF00u : 0x1E140Au);
              EXPECT_EQ(tab.IsSheetChanged(), c.answer);
              if (buttons) {
                EXPECT_EQ(buttons->Color(IDC_LS_TXT_COLOR), c.answer ? 0xFF0000u : 0x00FF00u);
              }
              EXPECT_TRUE(r.Sheet().PressOk());
            });
    const std::string color = c.answer ? "RGB(0,0,255)" : buttons ? "RGB(0,255,0)" : "RGB(10,20,30)";
    const bool sent = c.answer || buttons;  // the colour picked is a change of its own
    EXPECT_EQ(run.Events(), sent ? std::vector<std::string>{EventXml(
                                       kName, Lock("FALSE") + Trendtext(color, "255", c.answer ? courier : kTahoma))}
                                 : std::vector<std::string>{});
  }
}

}  // namespace
