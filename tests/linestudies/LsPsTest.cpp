// The line study sheet on the headless runner: which pages it builds from the host's XML, what
// it sends back and when.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "FakeSheetOwner.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "linestudies/LsPageTable.h"
#include "linestudies/LsPgAdvanced.h"
#include "linestudies/LsPs.h"
#include "xml/Xml.h"

namespace {

using lstest::AdvancedApplyText;
using lstest::Compact;
using lstest::FakeSheetOwner;
using lstest::StatusEvent;
using orv::FakeControls;
using orv::HeadlessSheetRunner;
using Sheet = CLsPs<FakeSheetOwner>;

XmlNode SheetNode(const std::string& text) {
  XmlNode document = XmlCreateDocument();
  EXPECT_TRUE(XmlLoadString(document, text)) << text;
  return XmlFindNode(document, "PropertySheet", true);
}

void AdvancedLayout(FakeControls& controls) {
  controls.AddRadio(IDC_LS_ATTACH_SYMBOL, 1, "Current Symbol/Expression");
  controls.AddRadio(IDC_LS_ATTACH_CHART, 1, "Chart X/Y Values");
  controls.AddRadio(IDC_LS_ATTACH_SCREEN, 1, "Screen X/Y Position");
  controls.Control(IDC_LS_ATTACH_SCREEN).visible = false;  // as in the template
}

HeadlessSheetRunner AdvancedRunner() {
  HeadlessSheetRunner runner;
  runner.SetLayout(IDD_LS_PG_ADVANCED, AdvancedLayout);
  return runner;
}

constexpr const char* kAdvancedSheet =
    "<Doc><PropertySheet Name=\"LSPs\" Title=\"Trendline\" Kind=\"3\"><PropertyPageList>"
    "<PropertyPage Name=\"LsPgAdvanced\"><AlwaysVisible>FALSE</AlwaysVisible></PropertyPage>"
    "</PropertyPageList></PropertySheet></Doc>";

TEST(LsPsLoad, TitleAndTabsInOrderUnknownAndUnbuiltNamesPassedOver) {
  FakeSheetOwner owner;
  Sheet sheet(&owner);
  sheet.InitFromXml(
      SheetNode("<PropertySheet Name=\"LSPs\" Title=\"Fibonacci Retracement\" Kind=\"6\"><PropertyPageList>"
                "<PropertyPage Name=\"NoSuchPage\"/><PropertyPage Name=\"lspgadvanced\"/>"
                "<PropertyPage Name=\"LsPgAdvanced\"><LSTxt_ScrnAnch>TRUE</LSTxt_ScrnAnch></PropertyPage>"
                "<PropertyPage Name=\"LsPgText\"/></PropertyPageList></PropertySheet>"));
  EXPECT_EQ(sheet.Title(), "Fibonacci Retracement");
  EXPECT_EQ(sheet.TabNames(), std::vector<std::string>{"LsPgAdvanced"});
  auto* page = dynamic_cast<CLsPgAdvanced*>(sheet.PageOf(1352));
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(page->AttachValue(), CLsPgAdvanced::kAttachScreen);
  EXPECT_EQ(page->Kind(), 6);
  EXPECT_EQ(sheet.PageOf(1333), nullptr) << "the text page is not built";

  HeadlessSheetRunner runner = AdvancedRunner();
  EXPECT_EQ(sheet.DoModal(runner), 0);
  EXPECT_EQ(runner.Caption(), "Fibonacci Retracement");
  EXPECT_EQ(runner.TabDialogIds(), std::vector<int>{1352});
  EXPECT_TRUE(owner.events.empty());
}

TEST(LsPsLoad, PageNamedTwiceIsOneObjectInTwoTabsLoadedTwice) {
  FakeSheetOwner owner;
  Sheet sheet(&owner);
  sheet.InitFromXml(SheetNode(
      "<PropertySheet Name=\"LSPs\" Kind=\"6\"><PropertyPageList>"
      "<PropertyPage Name=\"LsPgAdvanced\"><AlwaysVisible>TRUE</AlwaysVisible></PropertyPage>"
      "<!-- between --><PropertyPage Name=\"LsPgAdvanced\"><LSTxt_ScrnAnch>FALSE</LSTxt_ScrnAnch></PropertyPage>"
      "</PropertyPageList></PropertySheet>"));
  EXPECT_EQ(sheet.TabNames(), (std::vector<std::string>{"LsPgAdvanced", "LsPgAdvanced"}));
  // The second load comes on top of the first: its AlwaysVisible is absent, so false.
  auto* page = dynamic_cast<CLsPgAdvanced*>(sheet.PageOf(1352));
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(page->AttachValue(), CLsPgAdvanced::kAttachSymbol);
  HeadlessSheetRunner runner = AdvancedRunner();
  sheet.DoModal(runner);
  EXPECT_EQ(runner.TabDialogIds(), (std::vector<int>{1352, 1352}));
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
  FakeSheetOwner owner;
  Sheet sheet(&owner);
  sheet.InitFromXml(
      SheetNode("<PropertySheet Name=\"LSPs\" Kind=\"1\"><PropertyPageList><PropertyPage Name=\"LsPgAdvanced\"/>"
                "</PropertyPageList></PropertySheet>"));
  HeadlessSheetRunner runner = AdvancedRunner();
  sheet.DoModal(runner);
  EXPECT_TRUE(runner.Initialized());
  EXPECT_EQ(runner.Caption(), "");
}

TEST(LsPsLoad, HostDocumentIsNeverChanged) {
  XmlNode node = SheetNode(kAdvancedSheet);
  const std::string before = XmlGetXml(node);
  FakeSheetOwner owner;
  Sheet sheet(&owner);
  sheet.InitFromXml(node);
  HeadlessSheetRunner runner = AdvancedRunner();
  runner.SetScript([](HeadlessSheetRunner& run) {
    run.Tab(0).Click(IDC_LS_ATTACH_CHART);
    run.Sheet().PressOk();
  });
  EXPECT_EQ(sheet.DoModal(runner), 1);
  EXPECT_EQ(owner.events.size(), 1u);
  EXPECT_EQ(XmlGetXml(node), before);
}

TEST(LsPsApply, ApplyTwiceWithoutChangeRaisesOnceThenOkAndCancelRaiseNothingMore) {
  FakeSheetOwner owner;
  Sheet sheet(&owner);
  sheet.InitFromXml(SheetNode(kAdvancedSheet));
  HeadlessSheetRunner runner = AdvancedRunner();
  runner.SetScript([&](HeadlessSheetRunner& run) {
    run.Tab(0).Click(IDC_LS_ATTACH_CHART);
    EXPECT_TRUE(run.Sheet().IsApplyEnabled());
    EXPECT_TRUE(run.Sheet().PressApply());
    ASSERT_EQ(owner.events.size(), 1u);
    EXPECT_EQ(lstest::Compacted(owner.events[0]), (StatusEvent{0, AdvancedApplyText(true, false), 0, ""}));
    EXPECT_EQ(Compact(XmlGetXml(sheet.Document())), AdvancedApplyText(true, false));
    run.Sheet().PressApply();
    EXPECT_EQ(owner.events.size(), 1u) << "nothing changed since the last Apply";
    run.Sheet().PressOk();
  });
  EXPECT_EQ(sheet.DoModal(runner), 1);
  EXPECT_EQ(owner.events.size(), 1u);

  // Cancel after an Apply: nothing more, and what was sent stays sent.
  FakeSheetOwner second;
  Sheet again(&second);
  again.InitFromXml(SheetNode(kAdvancedSheet));
  runner.SetScript([&](HeadlessSheetRunner& run) {
    run.Tab(0).Click(IDC_LS_ATTACH_CHART);
    run.Sheet().PressApply();
    run.Tab(0).Click(IDC_LS_ATTACH_SYMBOL);
    run.Sheet().PressCancel();
  });
  again.DoModal(runner);
  EXPECT_EQ(second.events.size(), 1u);
}

TEST(LsPsApply, OkAfterChangeRaisesOneAndUnchangedOkNone) {
  FakeSheetOwner owner;
  Sheet sheet(&owner);
  sheet.InitFromXml(SheetNode(kAdvancedSheet));
  HeadlessSheetRunner runner = AdvancedRunner();
  runner.SetScript([](HeadlessSheetRunner& run) {
    run.Tab(0).Click(IDC_LS_ATTACH_CHART);
    run.Tab(0).Click(IDC_LS_ATTACH_SYMBOL);
    run.Sheet().PressOk();
  });
  EXPECT_EQ(sheet.DoModal(runner), 1);
  // Changed and changed back is still a change the user made: one event with what is shown.
  ASSERT_EQ(owner.events.size(), 1u);
  EXPECT_EQ(Compact(owner.events[0].value), AdvancedApplyText(false, false));

  FakeSheetOwner quiet;
  Sheet untouched(&quiet);
  untouched.InitFromXml(SheetNode(kAdvancedSheet));
  runner.SetScript([](HeadlessSheetRunner& run) { run.Sheet().PressOk(); });
  untouched.DoModal(runner);
  EXPECT_TRUE(quiet.events.empty());
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
  HeadlessSheetRunner runner = AdvancedRunner();
  runner.SetScript([](HeadlessSheetRunner& run) {
    run.Tab(0).Click(IDC_LS_ATTACH_CHART);
    run.Sheet().PressOk();
  });
  EXPECT_EQ(ownerless.DoModal(runner), 1);
}

TEST(LsPsApply, SinkFailureEndsTheRunAndReachesTheCaller) {
  FakeSheetOwner owner;
  owner.throwOnFire = true;
  Sheet sheet(&owner);
  sheet.InitFromXml(SheetNode(kAdvancedSheet));
  HeadlessSheetRunner runner = AdvancedRunner();
  runner.SetScript([](HeadlessSheetRunner& run) {
    run.Tab(0).Click(IDC_LS_ATTACH_CHART);
    run.Sheet().PressOk();
  });
  EXPECT_THROW(sheet.DoModal(runner), std::runtime_error);
  EXPECT_EQ(owner.events.size(), 1u);
}

}  // namespace
