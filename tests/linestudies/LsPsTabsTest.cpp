// The line study sheet with more than one tab on the headless runner: several changed pages on
// one OK, and a page whose name comes twice (one object, two tabs, two windows).

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "FakeSheetOwner.h"
#include "LsSheetRun.h"
#include "LsPageLayouts.h"
#include "LsTestXml.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "dlgkit/fake/SyntheticChartData.h"
#include "linestudies/LsPgAdvanced.h"
#include "linestudies/LsPgDayTrend.h"
#include "linestudies/LsPgIntraTrend.h"
#include "linestudies/LsPs.h"
#include "linestudies/LsSheetTab.h"

namespace {

using lstest::Compact;
using lstest::EventXml;
using lstest::FakeSheetOwner;
using lstest::Pt;
using lstest::SheetRun;
using lstest::SnapXml;
using lstest::StudyXml;
using orv::FakeControls;
using orv::HeadlessSheetRunner;
using orv::SyntheticChartData;

const std::int32_t kJune3 = SyntheticChartData::DayNumber(2024, 6, 3);
const std::int32_t kJune20 = SyntheticChartData::DayNumber(2024, 6, 20);

struct Page {
  std::string name;
  std::string content;
};

std::string Sheet(const std::vector<Page>& pages) {
  std::string text = "<PropertySheet Name=\"LSPs\" Title=\"Study\" Kind=\"6\"><PropertyPageList>";
  // The host's comments between the pages are passed over.
  for (const Page& p : pages) text += "<PropertyPage Name=\"" + p.name + "\">" + p.content + "</PropertyPage><!-- -->";
  return text + "</PropertyPageList></PropertySheet>";
}

std::string Trend(bool lock, const std::vector<Pt>& points) {
  return "<CTrendline>" + StudyXml(lock, points) +
         "<LSTrl_Extendpt1>0</LSTrl_Extendpt1><LSTrl_Extendpt2>0</LSTrl_Extendpt2></CTrendline>";
}

std::string Horz(bool lock, const std::vector<Pt>& points) {
  return "<CTrendline>" + StudyXml(lock, points) + "</CTrendline>";
}

std::string Advanced(bool alwaysVisible) {
  return std::string("<AlwaysVisible>") + (alwaysVisible ? "TRUE" : "FALSE") +
         "</AlwaysVisible><LSTxt_ScrnAnch>FALSE</LSTxt_ScrnAnch>";
}

// --- one OK, several changed pages ---

// Each changed page raises an event of its own, holding that page alone, in the order the sheet
// reaches the pages: the Advanced page as it is left (OK leaves the current page first), the
// position pages at the Apply that follows, in tab order.
TEST(LsPsTabs, OkWithTwoChangedPagesRaisesTwoEventsEachWithItsPageInTheSheetsOrder) {
  const Pt d0{-1, 5, kJune3};
  const Pt d1{-1, 6, kJune20};
  struct Case {
    const char* what;
    std::vector<Page> pages;
    std::vector<int> changed;  // tabs the user changes, in this order; OK is pressed on the last
    std::vector<std::string> events;
  };
  const Case cases[] = {
      {"two position pages, OK on the second",
       {{"LsPgDayTrend", Trend(true, {d0, d1})}, {"LsPgDayHorz", Horz(true, {d0})}},
       {0, 1},
       {EventXml("LsPgDayTrend", Trend(false, {d0, d1})), EventXml("LsPgDayHorz", Horz(false, {d0}))}},
      {"two position pages, OK on the first",
       {{"LsPgDayHorz", Horz(true, {d0})}, {"LsPgDayTrend", Trend(true, {d0, d1})}},
       {1, 0},
       {EventXml("LsPgDayHorz", Horz(false, {d0})), EventXml("LsPgDayTrend", Trend(false, {d0, d1}))}},
      {"a position page and the Advanced page, OK on the Advanced page",
       {{"LsPgDayTrend", Trend(true, {d0, d1})}, {"LsPgAdvanced", Advanced(false)}},
       {0, 1},
       {EventXml("LsPgAdvanced", Advanced(true)), EventXml("LsPgDayTrend", Trend(false, {d0, d1}))}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    SheetRun run;
    run.Run(Sheet(c.pages), SyntheticChartData::Daily(), [&](HeadlessSheetRunner& r) {
      for (int tab : c.changed) {
        if (tab != r.Sheet().CurrentPage()) {
          ASSERT_TRUE(r.Sheet().SelectPage(tab));
        }
        if (r.TabDialogIds()[static_cast<std::size_t>(tab)] == IDD_LS_PG_ADVANCED) {
          r.Tab(tab).Click(IDC_LS_ATTACH_CHART);
        } else {
          r.Tab(tab).Click(IDC_LS_POS_LOCK);
        }
      }
      EXPECT_TRUE(run.owner.events.empty()) << "nothing is sent before OK";
      EXPECT_TRUE(r.Sheet().PressOk());
    });
    EXPECT_EQ(run.Events(), c.events);
    for (const auto& event : run.owner.events) {
      EXPECT_EQ(event.type, 0);
      EXPECT_EQ(event.lValue, 0);
      EXPECT_EQ(event.xmlExtra, "");
    }
  }
}

// --- one page object in two tabs ---

TEST(LsPsTabs, ASecondLoadAddsItsPointsAndSnapChoicesToTheFirsts) {
  const Pt a{-1, 5, kJune3}, b{-1, 6, kJune20}, c{-1, 7, kJune3}, d{-1, 8, kJune20};
  SheetRun run;
  run.Run(Sheet({{"LsPgDayTrend", SnapXml({0, 1}) + Trend(true, {a, b})},
                 {"LsPgDayTrend", SnapXml({2}) + "<CTrendline>" + StudyXml(false, {c, d}) +
                                      "<LSTrl_Extendpt2>1</LSTrl_Extendpt2></CTrendline>"}}),
          SyntheticChartData::Daily(), [&](HeadlessSheetRunner& r) {
            EXPECT_EQ(r.TabDialogIds(), (std::vector<int>{IDD_LS_PG_DAY_TREND, IDD_LS_PG_DAY_TREND}));
            EXPECT_EQ(r.Tab(0).ComboGetCount(IDC_LS_DAY_TREND_SNAP), 3);
            EXPECT_EQ(r.Tab(0).ComboGetLBText(IDC_LS_DAY_TREND_SNAP, 2), "High");
            r.Tab(0).Click(IDC_LS_DAY_EXTEND_LEFT);
            EXPECT_TRUE(r.Sheet().PressOk());
          });
  auto* page = dynamic_cast<CLsPgDayTrend*>(run.sheet.PageOf(IDD_LS_PG_DAY_TREND));
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(page->PointCount(), 4u);
  EXPECT_TRUE(page->HasPosLock()) << "the first element's lock counts";
  // The second element's lock and extends are read over the first's; Extendpt1 it lacks.
  EXPECT_EQ(run.Events(),
            std::vector<std::string>{
                EventXml("LsPgDayTrend",
                         "<CTrendline>" + StudyXml(false, {a, b, c, d}) +
                             "<LSTrl_Extendpt1>1</LSTrl_Extendpt1><LSTrl_Extendpt2>1</LSTrl_Extendpt2></CTrendline>")});
}

// Both tabs are views of the one object: each window works on its own controls, and a window
// shown again shows what was entered in the other.
TEST(LsPsTabs, APageInTwoTabsKeepsWhatEachTabEntered) {
  SheetRun run;
  const std::string points = "<VertexButtons Show=\"Yes\"/>" + Trend(false, {Pt{-1, 5, kJune3}, Pt{-1, 6, kJune20}});
  run.Run(Sheet({{"LsPgDayTrend", points}, {"LsPgDayTrend", "<VertexButtons Show=\"Yes\"/>"}}),
          SyntheticChartData::Daily(), [&](HeadlessSheetRunner& r) {
            FakeControls& first = r.Tab(0);
            FakeControls& second = r.Tab(1);
            first.TypeText(IDC_LS_DAY_VALUE, "7");
            ASSERT_TRUE(r.Sheet().SelectPage(1));
            EXPECT_EQ(second.GetDlgItemTextA(IDC_LS_DAY_VALUE, 32), "7") << "the second window shows the object";
            second.TypeText(IDC_LS_DAY_VALUE, "8");
            second.Click(IDC_LS_VERTEX_1);
            EXPECT_EQ(second.GetDlgItemTextA(IDC_LS_DAY_VALUE, 32), "6");
            EXPECT_EQ(first.GetDlgItemTextA(IDC_LS_DAY_VALUE, 32), "7") << "the hidden window is left alone";
            second.TypeText(IDC_LS_DAY_VALUE, "9");
            ASSERT_TRUE(r.Sheet().SelectPage(0));
            // Shown again: the end vertex the user went to in the other tab, with its new value.
            EXPECT_EQ(first.GetDlgItemTextA(IDC_LS_DAY_VALUE, 32), "9");
            EXPECT_EQ(first.IsDlgButtonChecked(IDC_LS_VERTEX_1), orv::kBstChecked);
            first.TypeText(IDC_LS_DAY_VALUE, "10");
            first.Click(IDC_LS_VERTEX_0);
            EXPECT_EQ(first.GetDlgItemTextA(IDC_LS_DAY_VALUE, 32), "8");
            EXPECT_EQ(second.GetDlgItemTextA(IDC_LS_DAY_VALUE, 32), "9");
            EXPECT_TRUE(r.Sheet().PressOk());
          });
  EXPECT_EQ(run.Events(),
            std::vector<std::string>{EventXml("LsPgDayTrend", Trend(false, {Pt{-1, 8, kJune3}, Pt{-1, 10, kJune20}}))});
}

TEST(LsPsTabs, TheAdvancedPageInTwoTabsSendsWhatTheLastShownTabHolds) {
  SheetRun run;
  // The second load comes on top of the first: its AlwaysVisible is absent, so false.
  run.Run(Sheet({{"LsPgAdvanced", "<AlwaysVisible>TRUE</AlwaysVisible>"},
                 {"LsPgAdvanced", "<LSTxt_ScrnAnch>FALSE</LSTxt_ScrnAnch>"}}),
          nullptr, [&](HeadlessSheetRunner& r) {
            EXPECT_EQ(r.TabDialogIds(), (std::vector<int>{IDD_LS_PG_ADVANCED, IDD_LS_PG_ADVANCED}));
            EXPECT_EQ(r.Tab(0).IsDlgButtonChecked(IDC_LS_ATTACH_SYMBOL), orv::kBstChecked);
            r.Tab(0).Click(IDC_LS_ATTACH_CHART);
            ASSERT_TRUE(r.Sheet().SelectPage(1));
            ASSERT_EQ(run.Events(), std::vector<std::string>{EventXml("LsPgAdvanced", Advanced(true))});
            EXPECT_EQ(r.Tab(1).IsDlgButtonChecked(IDC_LS_ATTACH_CHART), orv::kBstChecked);
            r.Tab(1).Click(IDC_LS_ATTACH_SCREEN);
            ASSERT_TRUE(r.Sheet().SelectPage(0));
            EXPECT_EQ(r.Tab(0).IsDlgButtonChecked(IDC_LS_ATTACH_SCREEN), orv::kBstChecked);
            EXPECT_EQ(r.Tab(1).IsDlgButtonChecked(IDC_LS_ATTACH_SCREEN), orv::kBstChecked);
            EXPECT_TRUE(r.Sheet().PressOk());
          });
  EXPECT_EQ(run.Events(),
            (std::vector<std::string>{
                EventXml("LsPgAdvanced", Advanced(true)),
                EventXml("LsPgAdvanced", "<AlwaysVisible>TRUE</AlwaysVisible><LSTxt_ScrnAnch>TRUE</LSTxt_ScrnAnch>")}));
}

// --- the tab in front of a page object ---

// A page object that records which window's controls it is pointed at when it is called.
class RecordingPage final : public orv::Page, public orv::LineStudyPage {
 public:
  orv::Page& AsPage() override { return *this; }
  bool Load(XmlNode) override { return true; }
  void Save(XmlNode) override {}
  bool IsDirty() const override { return false; }
  void BindWindow(orv::Controls& controls, orv::WindowHandle) override { bound = &controls; }
  bool InitFurtherWindow() override {
    calls.push_back({"further init", bound});
    return true;
  }
  void ReloadWindow() override { calls.push_back({"reload", bound}); }

  int DialogId() const override { return IDD_LS_PG_DAY_TREND; }
  bool OnInitDialog(orv::Controls& controls, orv::WindowHandle, orv::WindowOps*) override {
    bound = &controls;
    calls.push_back({"init", bound});
    return true;
  }
  bool OnKillActive() override {
    calls.push_back({"kill active", bound});
    return true;
  }
  void OnCommand(int id, int) override {
    calls.push_back({"command " + std::to_string(id), bound});
    if (inside) std::exchange(inside, nullptr)();
    calls.push_back({"command " + std::to_string(id) + " ends", bound});
  }

  orv::Controls* bound = nullptr;
  std::function<void()> inside;  // a call that comes while the next command is handled
  std::vector<std::pair<std::string, orv::Controls*>> calls;
};

TEST(LsSheetTab, TheObjectWorksOnTheWindowOfTheTabThatCalls) {
  RecordingPage page;
  LsSheetTab::Views views;
  LsSheetTab first(page, views), second(page, views);
  FakeControls firstControls, secondControls;
  using Calls = std::vector<std::pair<std::string, orv::Controls*>>;

  // Before its window exists a tab passes nothing on.
  EXPECT_TRUE(second.OnKillActive());
  EXPECT_TRUE(page.calls.empty());

  EXPECT_TRUE(first.OnInitDialog(firstControls, nullptr, nullptr));
  EXPECT_TRUE(first.OnSetActive());
  EXPECT_TRUE(first.OnKillActive());
  EXPECT_TRUE(second.OnInitDialog(secondControls, nullptr, nullptr));
  EXPECT_TRUE(second.OnSetActive());
  second.OnCommand(7, 0);
  EXPECT_EQ(page.calls, (Calls{{"init", &firstControls},
                               {"kill active", &firstControls},
                               {"further init", &secondControls},
                               {"command 7", &secondControls},
                               {"command 7 ends", &secondControls}}));

  // Shown again after the other window was used: reloaded from the object, once.
  page.calls.clear();
  EXPECT_TRUE(second.OnKillActive());
  EXPECT_TRUE(first.OnSetActive());
  EXPECT_TRUE(first.OnSetActive());
  EXPECT_EQ(page.calls, (Calls{{"kill active", &secondControls}, {"reload", &firstControls}}));

  // A call for the other window inside a handler: the handler goes on with its own window.
  page.calls.clear();
  page.inside = [&] { second.OnCommand(2, 0); };
  first.OnCommand(1, 0);
  EXPECT_EQ(page.calls, (Calls{{"command 1", &firstControls},
                               {"command 2", &secondControls},
                               {"command 2 ends", &secondControls},
                               {"command 1 ends", &firstControls}}));
  EXPECT_EQ(first.DialogId(), IDD_LS_PG_DAY_TREND);
}

}  // namespace
