// BuildContractLabels: the texts of the charts the host reads, for every contract form, the
// month letters at and beyond their ends, the multipliers and year lists shorter than the years.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "seasonal/WizardSeasonState.h"

namespace orv::seasonal {
namespace {

using Strings = std::vector<std::string>;

struct LabelCase {
  const char* name;
  int form;
  int yearEnterMode;
  std::vector<int> selYears;
  int month1, month2;
  std::vector<int> years1, years2;
  Strings labels;
  double multiplier1 = 1.0, multiplier2 = 1.0;
};

WizardSeasonState StateOf(const LabelCase& c) {
  WizardSeasonState s;
  s.FormSel = c.form;
  s.YearEnterMode = c.yearEnterMode;
  s.SelYears = c.selYears;
  s.Symbol1 = "MSFT";
  s.Symbol2 = "INDU.X";
  s.Root1 = "@C";
  s.Root2 = "@S";
  s.Month1 = c.month1;
  s.Month2 = c.month2;
  s.Years1 = c.years1;
  s.Years2 = c.years2;
  s.Multiplier1 = c.multiplier1;
  s.Multiplier2 = c.multiplier2;
  s.Labels = {"left over"};
  return s;
}

TEST(ContractLabels, OneTextForEachChartYearByTheForm) {
  const std::vector<int> three = {2026, 2025, 2024};
  const LabelCase cases[] = {
      {"single instrument, years from a list", 0, 0, three, 0, 0, {}, {}, {"MSFT", "MSFT", "MSFT"}, 2.0, 3.0},
      {"single instrument, one contract", 0, 1, three, 0, 0, {}, {}, {"MSFT"}},
      {"single instrument, a count of years", 0, 2, three, 0, 0, {}, {}, {}},
      {"single instrument, no years", 0, 0, {}, 0, 0, {}, {}, {}},
      {"single root futures: no multiplier text", 1, 0, {1, 2}, 11, 0, {2027, 5}, {}, {"@C2027Z", "@C0005Z"}, 2.5},
      {"single root futures: month below 0 is F, past Z is none", 1, 0, {1}, -4, 0, {2026}, {}, {"@C2026F"}},
      {"single root futures: month 12 has no letter", 1, 0, {1}, 12, 0, {2026}, {}, {"@C2026"}},
      {"single root futures: a short year list reads 0", 1, 0, {1, 2}, 6, 0, {2026}, {}, {"@C2026N", "@C0000N"}},
      {"cash spread: multipliers rounded", 2, 0, {1}, 0, 0, {}, {}, {"-0.13 * MSFT - 0.00 * INDU.X"}, -0.126, 0.0},
      {"futures: short lists read 0", 3, 0, {1, 2}, 0, 11, {2027}, {}, {"@C2027F - @S0000Z", "@C0000F - @S0000Z"}},
      {"no years: no labels for form 1", 1, 0, {}, 0, 0, {2026}, {}, {}},
      {"no years: no labels for form 2", 2, 0, {}, 0, 0, {}, {}, {}},
      {"no years: no labels for form 3", 3, 0, {}, 0, 0, {2026}, {2026}, {}},
      {"no years: no labels for form 4", 4, 0, {}, 0, 0, {}, {2026}, {}},
      {"unknown form", 5, 0, three, 0, 0, {}, {}, {}},
      {"no form", -1, 0, three, 0, 0, {}, {}, {}},
  };
  for (const LabelCase& c : cases) {
    WizardSeasonState state = StateOf(c);
    BuildContractLabels(state);
    EXPECT_EQ(state.Labels, c.labels) << c.name;
  }
}

TEST(ContractLabels, ShortYearListsAreGrownWithZerosUpToTheIndexRead) {
  WizardSeasonState state = StateOf({"", 3, 0, {2026, 2025, 2024}, 0, 0, {2027}, {}, {}});
  BuildContractLabels(state);
  EXPECT_EQ(state.Years1, (std::vector<int>{2027, 0, 0}));
  EXPECT_EQ(state.Years2, (std::vector<int>{0, 0, 0}));
}

}  // namespace
}  // namespace orv::seasonal
