// The Advanced page alone: its load and save rules and its controls.

#include <gtest/gtest.h>

#include <string>

#include "FakeSheetOwner.h"
#include "LsPageLayouts.h"
#include "LsTestXml.h"
#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/HeadlessRunner.h"
#include "linestudies/LsPgAdvanced.h"
#include "xml/Xml.h"

namespace {

using lstest::PageNode;
using orv::FakeControls;

std::string Sheet(const std::string& kind, const std::string& page) {
  return "<PropertySheet Name=\"LSPs\"" + kind + "><PropertyPageList><PropertyPage Name=\"LsPgAdvanced\">" + page +
         "</PropertyPage></PropertyPageList></PropertySheet>";
}

std::string Saved(CLsPgAdvanced& page) {
  XmlNode document = XmlCreateDocument();
  XmlNode element = XmlAddChild(document, "PropertyPage");
  page.Save(element);
  return lstest::Compact(XmlGetXml(element));
}

struct Case {
  const char* children;
  std::int32_t attach;
};

TEST(LsPgAdvanced, LoadDerivesAttachAndSaveWritesBothFlags) {
  const Case cases[] = {
      {"", CLsPgAdvanced::kAttachSymbol},
      {"<AlwaysVisible>FALSE</AlwaysVisible>", CLsPgAdvanced::kAttachSymbol},
      {"<AlwaysVisible>TRUE</AlwaysVisible>", CLsPgAdvanced::kAttachChart},
      {"<AlwaysVisible>1</AlwaysVisible><LSTxt_ScrnAnch>FALSE</LSTxt_ScrnAnch>", CLsPgAdvanced::kAttachChart},
      {"<AlwaysVisible>FALSE</AlwaysVisible><LSTxt_ScrnAnch>TRUE</LSTxt_ScrnAnch>", CLsPgAdvanced::kAttachScreen},
      {"<LSTxt_ScrnAnch>true</LSTxt_ScrnAnch>", CLsPgAdvanced::kAttachScreen},
      // Only direct children count.
      {"<Inner><AlwaysVisible>TRUE</AlwaysVisible></Inner>", CLsPgAdvanced::kAttachSymbol},
  };
  for (const Case& c : cases) {
    CLsPgAdvanced page;
    EXPECT_TRUE(page.Load(PageNode(Sheet(" Kind=\"6\"", c.children))));
    EXPECT_EQ(page.AttachValue(), c.attach) << c.children;
    EXPECT_FALSE(page.IsDirty());
  }
  CLsPgAdvanced screen;
  screen.Load(PageNode(Sheet("", "<AlwaysVisible>FALSE</AlwaysVisible><LSTxt_ScrnAnch>TRUE</LSTxt_ScrnAnch>")));
  EXPECT_EQ(Saved(screen),
            "<PropertyPage><AlwaysVisible>TRUE</AlwaysVisible><LSTxt_ScrnAnch>TRUE</LSTxt_ScrnAnch></PropertyPage>");
  CLsPgAdvanced chart;
  chart.Load(PageNode(Sheet("", "<AlwaysVisible>TRUE</AlwaysVisible>")));
  EXPECT_EQ(Saved(chart),
            "<PropertyPage><AlwaysVisible>TRUE</AlwaysVisible><LSTxt_ScrnAnch>FALSE</LSTxt_ScrnAnch></PropertyPage>");
}

TEST(LsPgAdvanced, KindComesFromTheSheetTwoLevelsUpAndItsAbsenceRaises) {
  CLsPgAdvanced page;
  page.Load(PageNode(Sheet(" Kind=\"6\"", "")));
  EXPECT_EQ(page.Kind(), 6);
  CLsPgAdvanced noKind;
  noKind.Load(PageNode(Sheet("", "")));
  EXPECT_EQ(noKind.Kind(), 0);

  // A PropertyPage at the top of its document has no PropertySheet above it.
  CLsPgAdvanced orphan;
  try {
    XmlNode document = XmlCreateDocument();
    XmlLoadString(document, "<PropertyPage Name=\"LsPgAdvanced\"/>");
    orphan.Load(XmlFindNode(document, "PropertyPage", true));
    ADD_FAILURE() << "no exception";
  } catch (const XmlComError& error) {
    EXPECT_EQ(error.status(), orv::kStatusPointer);
  }
  EXPECT_THROW(orphan.Load(XmlNode()), XmlComError);
}

class AdvancedOnSheet : public ::testing::Test {
 protected:
  void Open(const std::string& kind, const std::string& children) {
    lstest::LsPageLayout(IDD_LS_PG_ADVANCED, controls);
    page.Load(PageNode(Sheet(kind, children)));
    runner.AddPage(page, controls);
    runner.SetPageApplyHandler([this](int id) {
      applies.push_back(id);
      EXPECT_TRUE(page.IsDirty()) << "the sheet reads the page while it is still dirty";
      return 0;
    });
    runner.Start();
  }
  int Checked() {
    for (int id : {IDC_LS_ATTACH_SYMBOL, IDC_LS_ATTACH_CHART, IDC_LS_ATTACH_SCREEN})
      if (controls.IsDlgButtonChecked(id) == orv::kBstChecked) return id;
    return 0;
  }
  CLsPgAdvanced page;
  FakeControls controls;
  orv::HeadlessRunner runner;
  std::vector<int> applies;
};

TEST_F(AdvancedOnSheet, ScreenChoiceShownOnlyForKindSixAndGroupFilledWithoutMarkingChange) {
  Open(" Kind=\"6\"", "<LSTxt_ScrnAnch>TRUE</LSTxt_ScrnAnch>");
  EXPECT_TRUE(controls.IsDlgItemVisible(IDC_LS_ATTACH_SCREEN));
  EXPECT_EQ(Checked(), IDC_LS_ATTACH_SCREEN);
  EXPECT_FALSE(page.IsDirty());
  EXPECT_FALSE(runner.IsApplyEnabled());
  EXPECT_TRUE(runner.PressOk());
  EXPECT_TRUE(applies.empty());
}

TEST_F(AdvancedOnSheet, OtherKindsHideScreenChoice) {
  Open(" Kind=\"2\"", "<AlwaysVisible>TRUE</AlwaysVisible>");
  EXPECT_FALSE(controls.IsDlgItemVisible(IDC_LS_ATTACH_SCREEN));
  EXPECT_EQ(Checked(), IDC_LS_ATTACH_CHART);
  EXPECT_THROW(controls.Click(IDC_LS_ATTACH_SCREEN), std::logic_error) << "a hidden choice can't be clicked";
}

}  // namespace
