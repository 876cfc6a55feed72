// The line study sheet on the headless runner: which pages it builds from the host's XML, what
// it sends back and when.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "FakeSheetOwner.h"
#include "LsPageLayouts.h"
#include "LsSheetRun.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "linestudies/LsPageTable.h"
#include "linestudies/LsPgAdvanced.h"
#include "linestudies/LsPs.h"
#include "xml/Xml.h"

namespace {

using lstest::AdvancedApplyText;
using lstest::Compact;
using lstest::FakeSheetOwner;
using lstest::SheetNode;
using lstest::SheetRun;
using lstest::StatusEvent;
using orv::HeadlessSheetRunner;
using Sheet = CLsPs<FakeSheetOwner>;

constexpr const char* kAdvancedSheet =
    "<Doc><PropertySheet Name=\"LSPs\" Title=\"Trendline\" Kind=\"3\"><PropertyPageList>"
    "<PropertyPage Name=\"LsPgAdvanced\"><AlwaysVisible>FALSE</AlwaysVisible></PropertyPage>"
    "</PropertyPageList></PropertySheet></Doc>";

// The user picks "Chart X/Y Values" and presses OK.
void AttachToChartAndOk(HeadlessSheetRunner& run) {
  run.Tab(0).Click(IDC_LS_ATTACH_CHART);
  run.Sheet().PressOk();
}

TEST(LsPsLoad, TitleAndTabsInOrderUnknownAndUnbuiltNamesPassedOver) {
  SheetRun run;
  run.sheet.InitFromXml(
      SheetNode("<PropertySheet Name=\"LSPs\" Title=\"Fibonacci Retracement\" Kind=\"6\"><PropertyPageList>"
                "<PropertyPage Name=\"NoSuchPage\"/><PropertyPage Name=\"lspgadvanced\"/>"
                "<PropertyPage Name=\"LsPgAdvanced\"><LSTxt_ScrnAnch>TRUE</LSTxt_ScrnAnch></PropertyPage>"
                "<PropertyPage Name=\"LsPgDayShape\"/></PropertyPageList></PropertySheet>"));
  EXPECT_EQ(run.sheet.Title(), "Fibonacci Retracement");
  EXPECT_EQ(run.sheet.TabNames(), std::vector<std::string>{"LsPgAdvanced"});
  auto* page = dynamic_cast<CLsPgAdvanced*>(run.sheet.PageOf(1352));
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(page->AttachValue(), CLsPgAdvanced::kAttachScreen);
  EXPECT_EQ(page->Kind(), 6);
  EXPECT_EQ(run.sheet.PageOf(1320), nullptr) << "the shape page is not built";

  EXPECT_EQ(run.sheet.DoModal(run.runner), 0);
  EXPECT_EQ(run.runner.Caption(), "Fibonacci Retracement");
  EXPECT_EQ(run.runner.TabDialogIds(), std::vector<int>{1352});
  EXPECT_TRUE(run.owner.events.empty());
}

TEST(LsPsLoad, MissingListOrPagesOrTitleGiveEmptySheetAndCaption) {
  for (const char* text :
       {"<PropertySheet Name=\"LSPs\" Title=\"T\"><PropertyPage Name=\"LsPgAdvanced\"/></PropertySheet>",
        "<PropertySheet Name=\"LSPs\" Title=\"T\"><PropertyPageList/></PropertySheet>",
        // A page after the list is not below it.
        "<PropertySheet Name=\"LSPs\" Title=\"T\"><PropertyPageList/>"
        "<PropertyPage Name=\"LsPgAdvanced\"/></PropertySheet>"}) {
    FakeSheetOwner owner;
    Sheet sheet(&owner);
    sheet.InitFromXml(SheetNode(text));
    EXPECT_TRUE(sheet.TabNames().empty()) << text;
    EXPECT_EQ(sheet.Title(), "T");
  }
  SheetRun run;
  run.Run(
      "<PropertySheet Name=\"LSPs\" Kind=\"1\"><PropertyPageList><PropertyPage Name=\"LsPgAdvanced\"/>"
      "</PropertyPageList></PropertySheet>",
      nullptr, [](HeadlessSheetRunner&) {});
  EXPECT_TRUE(run.runner.Initialized());
  EXPECT_EQ(run.runner.Caption(), "");
}

TEST(LsPsLoad, HostDocumentIsNeverChanged) {
  XmlNode node = SheetNode(kAdvancedSheet);
  const std::string before = XmlGetXml(node);
  SheetRun run;
  run.sheet.InitFromXml(node);
  run.runner.SetScript(AttachToChartAndOk);
  EXPECT_EQ(run.sheet.DoModal(run.runner), 1);
  EXPECT_EQ(run.owner.events.size(), 1u);
  EXPECT_EQ(XmlGetXml(node), before);
}

TEST(LsPsApply, ApplyTwiceWithoutChangeRaisesOnceThenOkAndCancelRaiseNothingMore) {
  SheetRun run;
  EXPECT_EQ(
      run.Run(
          kAdvancedSheet, nullptr,
          [&](HeadlessSheetRunner& r) {
            r.Tab(0).Click(IDC_LS_ATTACH_CHART);
            EXPECT_TRUE(r.Sheet().IsApplyEnabled());
            EXPECT_TRUE(r.Sheet().PressApply());
            ASSERT_EQ(run.owner.events.size(), 1u);
            EXPECT_EQ(lstest::Compacted(run.owner.events[0]), (StatusEvent{0, AdvancedApplyText(true, false), 0, ""}));
            EXPECT_EQ(Compact(XmlGetXml(run.sheet.Document())), AdvancedApplyText(true, false));
            r.Sheet().PressApply();
            EXPECT_EQ(run.owner.events.size(), 1u) << "nothing changed since the last Apply";
            r.Sheet().PressOk();
          }),
      1);
  EXPECT_EQ(run.owner.events.size(), 1u);

  // Cancel after an Apply: nothing more, and what was sent stays sent.
  SheetRun again;
  again.Run(kAdvancedSheet, nullptr, [](HeadlessSheetRunner& r) {
    r.Tab(0).Click(IDC_LS_ATTACH_CHART);
    r.Sheet().PressApply();
    r.Tab(0).Click(IDC_LS_ATTACH_SYMBOL);
    r.Sheet().PressCancel();
  });
  EXPECT_EQ(again.owner.events.size(), 1u);
}

TEST(LsPsApply, OkAfterChangeRaisesOneAndUnchangedOkNone) {
  SheetRun run;
  EXPECT_EQ(run.Run(kAdvancedSheet, nullptr,
                    [](HeadlessSheetRunner& r) {
                      r.Tab(0).Click(IDC_LS_ATTACH_CHART);
                      r.Tab(0).Click(IDC_LS_ATTACH_SYMBOL);
                      r.Sheet().PressOk();
                    }),
            1);
  // Changed and changed back is still a change the user made: one event with what is shown.
  EXPECT_EQ(run.Events(), std::vector<std::string>{AdvancedApplyText(false, false)});

  SheetRun untouched;
  untouched.Run(kAdvancedSheet, nullptr, [](HeadlessSheetRunner& r) { r.Sheet().PressOk(); });
  EXPECT_TRUE(untouched.owner.events.empty());
}

TEST(LsPsApply, UnknownIdEmptySlotOrCleanPageRaiseNothingAndAnswerZero) {
  FakeSheetOwner owner;
  Sheet sheet(&owner);
  EXPECT_EQ(sheet.OnPageApply(1352), 0) << "empty slot";
  sheet.InitFromXml(SheetNode(kAdvancedSheet));
  EXPECT_EQ(sheet.OnPageApply(9999), 0) << "unknown id";
  EXPECT_EQ(sheet.OnPageApply(1352), 0) << "not dirty";
  EXPECT_EQ(sheet.OnPageApply(1333), 0) << "page not built";
  EXPECT_TRUE(owner.events.empty());
  // The document is replaced all the same, by one holding the bare list.
  EXPECT_EQ(Compact(XmlGetXml(sheet.Document())), "<PropertySheet Name=\"LSPs\"><PropertyPageList/></PropertySheet>");

  Sheet ownerless(nullptr);
  ownerless.InitFromXml(SheetNode(kAdvancedSheet));
  HeadlessSheetRunner runner;
  lstest::SetLsLayouts(runner);
  runner.SetScript(AttachToChartAndOk);
  EXPECT_EQ(ownerless.DoModal(runner), 1);
}

TEST(LsPsApply, SinkFailureEndsTheRunAndReachesTheCaller) {
  SheetRun run;
  run.owner.throwOnFire = true;
  EXPECT_THROW(run.Run(kAdvancedSheet, nullptr, AttachToChartAndOk), std::runtime_error);
  EXPECT_EQ(run.owner.events.size(), 1u);
}

}  // namespace
