// The contract form page: the radio and text it starts with, the text of each form as the user
// clicks, what Next stores and where it leads.
#include <gtest/gtest.h>

#include <string>

#include "SznPageDriver.h"

namespace {

using szntest::FirstRunState;
using szntest::SznPages;

constexpr int kRadios[] = {IDC_SZN_FORM_SNGLINST, IDC_SZN_FORM_SNGLROOTFUT, IDC_SZN_FORM_CASHSPRD, IDC_SZN_FORM_FUTSPRD,
                           IDC_SZN_FORM_CASHFUTSPRD};

struct Form {
  const char* name;
  const char* text;
  int next;
};

const Form kForms[] = {
    {"Single Instrument", "Single instruments comprise one historic set of data split among different years.",
     IDD_SZN_SNGLINST},
    {"Single Root Futures",
     "Single Root Futures are the seasonal difference of futures contracts which share a common root symbol and "
     "month code while differing by contract years.\r\n\r\nExample:\r\nQNG20F\r\nQNG19F\r\nQNG18F",
     IDD_SZN_SNGLROOTFUT},
    {"Cash Spread",
     "Cash spreads split the seasonal difference between two non-futures contracts over different years.",
     IDD_SZN_CASHSPRD},
    {"Futures Spread",
     "Futures spreads are the seasonal difference between two groups of futures contracts where those contracts "
     "are adjusted for different contract years.\r\n\r\nExample:\r\nQNG20F-QHO19Z\r\nQNG19F-QHO18Z\r\nQNG18F-QHO17Z",
     IDD_SZN_FUT1},
    {"Cash Futures Spread",
     "Cash Futures spreads are the seasonal difference between a single non-futures contract and a group of "
     "futures contracts where those contracts are adjusted for different contract years.\r\n\r\nExample:\r\n"
     "PCACG00-QCL19Z\r\nPCACG00-QCL18Z\r\nPCACG00-QCL17Z ",
     IDD_SZN_SNGLINSTMID},
};

int CheckedRadio(orv::FakeControls& c) {
  int checked = -1;
  for (int i = 0; i < 5; ++i) {
    if (c.IsDlgButtonChecked(kRadios[i]) == orv::kBstChecked) {
      EXPECT_EQ(checked, -1) << "two radios checked";
      checked = i;
    }
  }
  return checked;
}

TEST(SznWzrdPgForm, StartsOnTheFormOfTheStateWithItsText) {
  for (int form = 0; form < 5; ++form) {
    SCOPED_TRACE(form);
    auto state = FirstRunState();
    state.FormSel = form;
    SznPages run(state);
    run.Start(IDD_SZN_FORM);
    orv::FakeControls& c = run.Current();
    EXPECT_EQ(CheckedRadio(c), form);
    EXPECT_EQ(c.Control(IDC_SZN_FORM_HELP).text, kForms[form].text);
  }
}

// A form that came in from the document beyond the five checks no radio; Next then reads none
// (-1) and lands on the Under Construction page.
TEST(SznWzrdPgForm, AFormWithoutARadioChecksNoneAndNextLandsOnUnderConstruction) {
  auto state = FirstRunState();
  state.FormSel = 7;
  SznPages run(state);
  run.Start(IDD_SZN_FORM);
  EXPECT_EQ(CheckedRadio(run.Current()), -1);
  EXPECT_EQ(run.Current().Control(IDC_SZN_FORM_HELP).text, "");
  ASSERT_TRUE(run.Wizard().PressNext());
  EXPECT_EQ(run.State().FormSel, -1);
  EXPECT_EQ(run.CurrentDialog(), IDD_SZN_CONSTR);
}

TEST(SznWzrdPgForm, EachClickStoresTheFormAndShowsItsText) {
  SznPages run;
  run.Start(IDD_SZN_FORM);
  orv::FakeControls& c = run.Current();
  for (int form : {3, 1, 4, 0, 2, 2}) {
    SCOPED_TRACE(form);
    c.Click(kRadios[form]);
    EXPECT_EQ(run.State().FormSel, form);
    EXPECT_EQ(c.Control(IDC_SZN_FORM_HELP).text, kForms[form].text);
  }
}

TEST(SznWzrdPgForm, NextStoresTheCheckedFormAndLeadsToItsPage) {
  for (int form = 0; form < 5; ++form) {
    SCOPED_TRACE(kForms[form].name);
    SznPages run;
    run.Start(IDD_SZN_FORM);
    run.Current().Click(kRadios[form]);
    run.State().FormSel = 9;  // Next reads the radios again
    ASSERT_TRUE(run.Wizard().PressNext());
    EXPECT_EQ(run.State().FormSel, form);
    EXPECT_EQ(run.CurrentDialog(), kForms[form].next);
  }
}

}  // namespace
