// BuildContractLabels: the texts of the contracts a seasonal chart shows, one for each chart year.
#include <cstddef>
#include <string>

#include "seasonal/WizardSeasonState.h"
#include "xml/StrFormat.h"

namespace orv::seasonal {

namespace {

// The month letter of an index: below 0 counts as 0, past the end gives "".
std::string MonthCode(int index) {
  if (index < 0) index = 0;
  constexpr std::size_t kCount = sizeof(kMonthCodes) - 1;
  if (static_cast<std::size_t>(index) >= kCount) return {};
  return std::string(1, kMonthCodes[index]);
}

// "" for exactly 1.0, else "%.2lf * ".
std::string MultiplierText(double multiplier) {
  return multiplier == 1.0 ? std::string() : orv::StrFormat("%.2lf * ", multiplier);
}

// The i-th year of a list; a list shorter than that is grown with zeros up to it.
int YearAt(std::vector<int>& years, std::size_t i) {
  if (years.size() <= i) years.resize(i + 1, 0);
  return years[i];
}

}  // namespace

void BuildContractLabels(WizardSeasonState& state) {
  const std::string code1 = MonthCode(state.Month1);
  const std::string code2 = MonthCode(state.Month2);
  const std::string mult1 = MultiplierText(state.Multiplier1);
  const std::string mult2 = MultiplierText(state.Multiplier2);
  const std::size_t n = state.SelYears.size();
  state.Labels.clear();
  switch (state.FormSel) {
    case kFormSingleInstrument:
      if (state.YearEnterMode == 0) {
        state.Labels.assign(n, state.Symbol1);
      } else if (state.YearEnterMode == 1) {
        state.Labels.push_back(state.Symbol1);
      }
      break;
    case kFormSingleRootFutures:
      for (std::size_t i = 0; i < n; ++i)
        state.Labels.push_back(orv::StrFormat("%s%04d%s", state.Root1.c_str(), YearAt(state.Years1, i), code1.c_str()));
      break;
    case kFormCashSpread:
      for (std::size_t i = 0; i < n; ++i)
        state.Labels.push_back(
            orv::StrFormat("%s%s - %s%s", mult1.c_str(), state.Symbol1.c_str(), mult2.c_str(), state.Symbol2.c_str()));
      break;
    case kFormFuturesSpread:
      for (std::size_t i = 0; i < n; ++i) {
        const int year1 = YearAt(state.Years1, i);
        const int year2 = YearAt(state.Years2, i);
        state.Labels.push_back(orv::StrFormat("%s%s%04d%s - %s%s%04d%s", mult1.c_str(), state.Root1.c_str(), year1,
                                              code1.c_str(), mult2.c_str(), state.Root2.c_str(), year2, code2.c_str()));
      }
      break;
    case kFormCashFuturesSpread:
      for (std::size_t i = 0; i < n; ++i)
        state.Labels.push_back(orv::StrFormat("%s%s - %s%s%04d%s", mult1.c_str(), state.Symbol1.c_str(), mult2.c_str(),
                                              state.Root2.c_str(), YearAt(state.Years2, i), code2.c_str()));
      break;
    default:
      break;
  }
}

}  // namespace orv::seasonal
