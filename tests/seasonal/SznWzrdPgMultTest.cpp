// The Multipliers page on the headless wizard: what it shows, that any number is taken, what
// leaving it stores, where Back leads (also the odd ways), and the labels Finish builds.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SznPageDriver.h"
#include "seasonal/SeasonalRes.h"
#include "seasonal/WizardSeasonState.h"

namespace {

using orv::FakeControls;
using szntest::SznPages;

void Spread(orv::seasonal::WizardSeasonState& s, int formSel) {
  s.YearEnterMode = 0;
  s.FormSel = formSel;
  s.SelYearIndexes = {0, 1};
  s.SelYears = {2026, 2025};
  s.Symbol1 = "MSFT";
  s.Symbol2 = "INDU.X";
  s.Root1 = "@C";
  s.Root2 = "@S";
  s.Month1 = 2;
  s.Month2 = 11;
  s.Years1 = {2027, 2026};
  s.Years2 = {2026, 2025};
}

TEST(SznMultipliersPage, StartShowsBothMultipliersToFifteenDigits) {
  struct Row {
    double value;
    const char* shown;
  };
  const Row rows[] = {{1.0, "1"},       {2.5, "2.5"}, {0.1, "0.1"}, {-3.0, "-3"}, {1.0 / 3.0, "0.333333333333333"},
                      {1e-20, "1e-20"}, {0.0, "0"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.shown);
    SznPages w;
    Spread(w.State(), 2);
    w.State().Multiplier1 = row.value;
    w.State().Multiplier2 = 1.0;
    w.Start(IDD_SZN_MULT);
    FakeControls& c = w.Controls(IDD_SZN_MULT);
    EXPECT_EQ(c.GetDlgItemTextA(IDC_SZN_MULT_1, 256), row.shown);
    EXPECT_EQ(c.GetDlgItemTextA(IDC_SZN_MULT_2, 256), "1");
  }
}

TEST(SznMultipliersPage, FinishTakesAnyNumberAndBuildsTheLabels) {
  struct Row {
    int formSel;
    const char* typed1;
    const char* typed2;
    double multiplier1, multiplier2;
    std::vector<std::string> labels;
  };
  const Row rows[] = {
      {2, "2.5", "1", 2.5, 1.0, {"2.50 * MSFT - INDU.X", "2.50 * MSFT - INDU.X"}},
      {2, "0", "-1.25", 0.0, -1.25, {"0.00 * MSFT - -1.25 * INDU.X", "0.00 * MSFT - -1.25 * INDU.X"}},
      {3, " 1 ", "1e3", 1.0, 1000.0, {"@C2027H - 1000.00 * @S2026Z", "@C2026H - 1000.00 * @S2025Z"}},
      {4, "-1e-3", "1", -0.001, 1.0, {"-0.00 * MSFT - @S2026Z", "-0.00 * MSFT - @S2025Z"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.typed1) + " / " + row.typed2);
    SznPages w;
    Spread(w.State(), row.formSel);
    w.Start(IDD_SZN_MULT);
    FakeControls& c = w.Controls(IDD_SZN_MULT);
    c.TypeText(IDC_SZN_MULT_1, row.typed1);
    c.TypeText(IDC_SZN_MULT_2, row.typed2);
    ASSERT_TRUE(w.Wizard().PressFinish());
    EXPECT_EQ(w.Wizard().Result(), 1);
    EXPECT_EQ(w.State().Multiplier1, row.multiplier1);
    EXPECT_EQ(w.State().Multiplier2, row.multiplier2);
    EXPECT_EQ(w.State().Labels, row.labels);
    EXPECT_TRUE(c.Beeps().empty());
    EXPECT_TRUE(c.MessageBoxes().empty());
  }
}

TEST(SznMultipliersPage, AFieldThatDoesNotReadRefusesFinishAfterStoringThePagesValues) {
  struct Row {
    const char* typed1;
    const char* typed2;
    int focus;
    double multiplier1, multiplier2;
  };
  const Row rows[] = {
      // The reading stops at the first field that doesn't read; the second keeps what the page held.
      {"abc", "4", IDC_SZN_MULT_1, 3.0, 0.5},
      {"", "4", IDC_SZN_MULT_1, 3.0, 0.5},
      {".0", "4", IDC_SZN_MULT_1, 3.0, 0.5},  // zero is read only from a leading 0
      {"6", "1.5x", IDC_SZN_MULT_2, 6.0, 0.5},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.typed1) + " / " + row.typed2);
    SznPages w;
    Spread(w.State(), 2);
    w.State().Multiplier1 = 3.0;
    w.State().Multiplier2 = 0.5;
    w.Start(IDD_SZN_MULT);
    FakeControls& c = w.Controls(IDD_SZN_MULT);
    c.TypeText(IDC_SZN_MULT_1, row.typed1);
    c.TypeText(IDC_SZN_MULT_2, row.typed2);
    EXPECT_FALSE(w.Wizard().PressFinish());
    EXPECT_TRUE(w.Wizard().IsRunning());
    EXPECT_EQ(c.Beeps(), std::vector<unsigned>{orv::kBeepSimple});
    EXPECT_EQ(c.FocusHistory().back(), row.focus);
    EXPECT_TRUE(c.MessageBoxes().empty());
    EXPECT_EQ(w.State().Multiplier1, row.multiplier1);
    EXPECT_EQ(w.State().Multiplier2, row.multiplier2);
    EXPECT_TRUE(w.State().Labels.empty());
  }
}

TEST(SznMultipliersPage, BackStoresTheMultipliersAndLeadsByTheForm) {
  struct Row {
    int formSel;
    int back;
  };
  // A futures spread goes back past Second Futures to First Futures, a cash futures spread (and
  // any other form) to the Under Construction page.
  const Row rows[] = {{2, IDD_SZN_CASHSPRD}, {3, IDD_SZN_FUT1}, {4, IDD_SZN_CONSTR}, {1, IDD_SZN_CONSTR}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.formSel);
    SznPages w;
    Spread(w.State(), row.formSel);
    w.Start(IDD_SZN_MULT);
    FakeControls& c = w.Controls(IDD_SZN_MULT);
    c.TypeText(IDC_SZN_MULT_1, "-7");
    c.TypeText(IDC_SZN_MULT_2, "0.25");
    ASSERT_TRUE(w.Wizard().PressBack());
    EXPECT_EQ(w.CurrentDialog(), row.back);
    EXPECT_EQ(w.State().Multiplier1, -7.0);
    EXPECT_EQ(w.State().Multiplier2, 0.25);
    EXPECT_TRUE(w.State().Labels.empty());
  }
}

TEST(SznMultipliersPage, BackWithAFieldThatDoesNotReadStoresAndStays) {
  // Back names the Under Construction page, but leaving the page reads the fields again, and
  // a field that doesn't read keeps the user on the page.
  SznPages w;
  Spread(w.State(), 2);
  w.State().Multiplier2 = 9.0;
  w.Start(IDD_SZN_MULT);
  FakeControls& c = w.Controls(IDD_SZN_MULT);
  EXPECT_EQ(w.PageOf(IDD_SZN_MULT).OnWizardBack(), IDD_SZN_CASHSPRD);  // fields as shown: they read
  c.TypeText(IDC_SZN_MULT_1, "2");
  c.TypeText(IDC_SZN_MULT_2, "nine");
  EXPECT_EQ(w.PageOf(IDD_SZN_MULT).OnWizardBack(), IDD_SZN_CONSTR);
  EXPECT_EQ(w.State().Multiplier1, 2.0);
  EXPECT_EQ(w.State().Multiplier2, 9.0);
  EXPECT_FALSE(w.Wizard().PressBack());
  EXPECT_EQ(w.CurrentDialog(), IDD_SZN_MULT);
  EXPECT_TRUE(c.MessageBoxes().empty());
  EXPECT_EQ(c.FocusHistory().back(), IDC_SZN_MULT_2);
}

}  // namespace
