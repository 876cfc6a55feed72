#include "seasonal/SznWzrdPgSeason.h"

#include <limits>

#include "format/Calendar.h"
#include "format/DateObject.h"
#include "seasonal/SznFlow.h"
#include "seasonal/SznTables.h"
#include "xml/StrFormat.h"

using namespace orv::seasonal;

namespace {

constexpr char kHelp[] =
    "Select a starting and ending month to define a season.\r\n\r\n   A season is one to twelve months long,    "
    "begins on the first day of the start month, and concludes on the last day of the end month.\r\n\r\n   "
    "To define a season which spans midnight of new-years day, set the ending month prior to the beginning month.";

bool Usable(const SeasonDate& date) { return MonthOf(date) > 0; }

// The date's text by the mask; a date of invalid status prints as the date object's invalid text.
std::string DateText(const SeasonDate& date) {
  const orv::DateObject object(date.status == kDateValid ? date.value : std::numeric_limits<double>::quiet_NaN());
  return object.Format("%b/%d/%Y");
}

// The month (1-12) of a list's selection, 1 when nothing is selected.
int SelectedMonth(orv::Controls& ctl, int comboId) {
  const int selection = ctl.ComboGetCurSel(comboId);
  return selection < 0 ? 1 : static_cast<int>(ctl.ComboGetItemData(comboId, selection));
}

void SelectMonth(orv::Controls& ctl, int comboId, int month) {
  ctl.ComboSetCurSel(comboId, month >= 1 && month <= 12 ? month - 1 : -1);
}

}  // namespace

bool CSznWzrdPgSeason::OnInitPage() {
  orv::Controls& ctl = Ctl();
  for (int combo : {IDC_SZN_SEASON_START, IDC_SZN_SEASON_END}) {
    ctl.ComboResetContent(combo);
    for (int month = 1; month <= 12; ++month) ctl.ComboAddString(combo, kMonthNames[month - 1], month);
  }
  ctl.SetDlgItemTextA(IDC_SZN_SEASON_HELP, kHelp);
  ctl.SetDlgItemTextA(IDC_SZN_SEASON_YEAR, orv::StrFormat("Season (for year %d)", YearOf(State().Start)));
  SelectMonth(ctl, IDC_SZN_SEASON_START, MonthOf(State().Start));
  SelectMonth(ctl, IDC_SZN_SEASON_END, MonthOf(State().End));
  ctl.SetFocus(IDC_SZN_SEASON_START);
  return false;  // the focus is set
}

bool CSznWzrdPgSeason::OnSetActive() {
  StoreDates();
  ShowPreview();
  return CWzrdPg::OnSetActive();
}

int CSznWzrdPgSeason::OnWizardNext() { return SznFlowNext(kDialogId, State()); }

void CSznWzrdPgSeason::OnCommand(int id, int code) {
  if (code != orv::kCbnSelChange || (id != IDC_SZN_SEASON_START && id != IDC_SZN_SEASON_END)) return;
  StoreDates();
  ShowPreview();
}

void CSznWzrdPgSeason::StoreDates() {
  WizardSeasonState& state = State();
  const int year = YearOf(state.Start);
  const int startMonth = SelectedMonth(Ctl(), IDC_SZN_SEASON_START);
  const int endMonth = SelectedMonth(Ctl(), IDC_SZN_SEASON_END);
  state.Start = MakeSeasonDate(year, startMonth, 1);
  state.End = MakeSeasonDate(year, endMonth, endMonth >= 1 && endMonth <= 12 ? kDaysInMonth[endMonth] : 0);
}

void CSznWzrdPgSeason::ShowPreview() { Ctl().SetDlgItemTextA(IDC_SZN_SEASON_PREVIEW, SeasonPreview(State())); }

std::string CSznWzrdPgSeason::SeasonPreview(const WizardSeasonState& state) {
  SeasonDate end = state.End;
  if (Usable(state.Start) && Usable(end) && state.Start.value > end.value) {
    orv::DateParts parts;
    orv::BreakDownDate(end.value, parts);
    end = MakeSeasonDate(parts.year + 1, parts.month, parts.day);
  }
  return orv::StrFormat("%s - %s", DateText(state.Start).c_str(), DateText(end).c_str());
}
