// The wizard's flow by dialog id: where Next and Back lead from each page, for every form and
// both ways of giving years.
#include "seasonal/SznFlow.h"

#include <gtest/gtest.h>

#include "dlgkit/Page.h"
#include "seasonal/SeasonalRes.h"

namespace orv::seasonal {
namespace {

WizardSeasonState StateOf(int yearEnterMode, int formSel) {
  WizardSeasonState state;
  state.YearEnterMode = yearEnterMode;
  state.FormSel = formSel;
  return state;
}

TEST(SznFlow, NextFollowsTheFormAndTheWayYearsAreGiven) {
  struct Row {
    int page, yearEnterMode, formSel, next;
  };
  const Row rows[] = {
      {IDD_SZN_SEASON, 0, 0, IDD_SZN_YEARS},     {IDD_SZN_SEASON, 1, 0, IDD_SZN_YRCOUNT},
      {IDD_SZN_SEASON, 2, 0, IDD_SZN_YRCOUNT},   {IDD_SZN_YEARS, 0, 0, IDD_SZN_FORM},
      {IDD_SZN_YRCOUNT, 1, 3, IDD_SZN_SNGLINST}, {IDD_SZN_FORM, 0, 0, IDD_SZN_SNGLINST},
      {IDD_SZN_FORM, 0, 1, IDD_SZN_SNGLROOTFUT}, {IDD_SZN_FORM, 0, 2, IDD_SZN_CASHSPRD},
      {IDD_SZN_FORM, 0, 3, IDD_SZN_FUT1},        {IDD_SZN_FORM, 0, 4, IDD_SZN_SNGLINSTMID},
      {IDD_SZN_FORM, 0, 5, IDD_SZN_CONSTR},      {IDD_SZN_FORM, 0, 77, IDD_SZN_CONSTR},
      {IDD_SZN_FUT1, 0, 3, IDD_SZN_FUT2},        {IDD_SZN_FUT2, 0, 3, IDD_SZN_MULT},
      {IDD_SZN_CASHSPRD, 0, 2, IDD_SZN_MULT},    {IDD_SZN_SNGLINSTMID, 0, 4, IDD_SZN_FUT2},
      {IDD_SZN_SNGLINST, 0, 0, kWizardDefault},  {IDD_SZN_SNGLROOTFUT, 0, 1, kWizardDefault},
      {IDD_SZN_MULT, 0, 2, kWizardDefault},      {IDD_SZN_CONSTR, 0, 5, kWizardDefault},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(SznFlowNext(row.page, StateOf(row.yearEnterMode, row.formSel)), row.next)
        << "page " << row.page << " mode " << row.yearEnterMode << " form " << row.formSel;
  }
}

TEST(SznFlow, BackKeepsTheMultipliersPagesAsymmetry) {
  struct Row {
    int page, yearEnterMode, formSel;
    bool readOk;
    int back;
  };
  const Row rows[] = {
      {IDD_SZN_SEASON, 0, 0, true, kWizardDefault},    {IDD_SZN_YEARS, 0, 0, true, IDD_SZN_SEASON},
      {IDD_SZN_YRCOUNT, 1, 0, true, IDD_SZN_SEASON},   {IDD_SZN_FORM, 0, 0, true, IDD_SZN_YEARS},
      {IDD_SZN_FUT1, 0, 3, true, IDD_SZN_FORM},        {IDD_SZN_FUT2, 0, 3, true, IDD_SZN_FUT1},
      {IDD_SZN_FUT2, 0, 4, true, IDD_SZN_SNGLINSTMID}, {IDD_SZN_CASHSPRD, 0, 2, true, IDD_SZN_FORM},
      {IDD_SZN_SNGLINSTMID, 0, 4, true, IDD_SZN_FORM}, {IDD_SZN_SNGLROOTFUT, 0, 1, true, IDD_SZN_FORM},
      {IDD_SZN_SNGLINST, 0, 0, true, IDD_SZN_FORM},    {IDD_SZN_SNGLINST, 1, 0, true, IDD_SZN_YRCOUNT},
      {IDD_SZN_SNGLINST, 2, 0, true, IDD_SZN_YRCOUNT}, {IDD_SZN_MULT, 0, 2, true, IDD_SZN_CASHSPRD},
      {IDD_SZN_MULT, 0, 3, true, IDD_SZN_FUT1},        {IDD_SZN_MULT, 0, 4, true, IDD_SZN_CONSTR},
      {IDD_SZN_MULT, 0, 2, false, IDD_SZN_CONSTR},     {IDD_SZN_CONSTR, 0, 4, true, kWizardDefault},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(SznFlowBack(row.page, StateOf(row.yearEnterMode, row.formSel), row.readOk), row.back)
        << "page " << row.page << " mode " << row.yearEnterMode << " form " << row.formSel;
  }
}

}  // namespace
}  // namespace orv::seasonal
