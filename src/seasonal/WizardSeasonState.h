#pragma once
// WizardSeasonState: what the seasonal wizard knows (the season, the years, the contract form,
// the symbols and the labels), and where it comes from and goes to.
//
// Sources, read in this order, each filling only what the one before left open: the Context
// element of the host's document (ReadContext), the history of the last finished run in the
// user's settings store (ReadHistory), built-in defaults (ApplyDefaults). At the end of a finished
// run: the contract list in the working document (WriteContractList), the history
// (WriteHistory), a rewritten Context (WriteContext). Nothing is written during a run, and
// Cancel writes nothing.
//
// The store is the current user's registry on Windows, key "Software\ZEL\Chart", values whose
// names begin "Snl3Wiz". Values of the wrong type, size or content read as absent.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dlgkit/Clock.h"
#include "dlgkit/SettingsStore.h"
#include "xml/Xml.h"

namespace orv::seasonal {

// A date as the wizard holds it: an automation date (day 0 = 30 December 1899) and a status
// (0 = valid). A date is usable when its status is 0 and the calendar can break its value down.
struct SeasonDate {
  double value = 0.0;
  int status = 0;
};
inline constexpr int kDateValid = 0;
inline constexpr int kDateInvalid = 1;

// The month 1-12 of a usable date, else -1. The year of a usable date, else -1.
int MonthOf(const SeasonDate& date);
int YearOf(const SeasonDate& date);
// The date of year/month/day at midnight; status invalid when the calendar can't build it.
SeasonDate MakeSeasonDate(int year, int month, int day);

// Contract forms (FormSel).
inline constexpr int kFormSingleInstrument = 0;
inline constexpr int kFormSingleRootFutures = 1;
inline constexpr int kFormCashSpread = 2;
inline constexpr int kFormFuturesSpread = 3;
inline constexpr int kFormCashFuturesSpread = 4;

struct WizardSeasonState {
  SeasonDate Start;                 // first day of the season in the season's start year
  SeasonDate End;                   // last day of the season (it carries the year of Start)
  int YearEnterMode = -1;           // 0: years from a list; above 0: a count; 1: one contract only
  int YearsBack = -1;               // years of history, 1 to 99 on the count page
  std::vector<int> SelYears;        // calendar years picked, in list order (most recent first)
  std::vector<int> SelYearIndexes;  // the same picks as distances from the current year
  int FormSel = -1;                 // kForm*
  std::vector<std::string> Labels;  // one text a contract (BuildContractLabels)
  std::string Symbol1, Symbol2;     // instrument symbols
  std::string Root1, Root2;         // futures roots
  int Month1 = -1, Month2 = -1;     // month code index 0-11 of each futures set (0 is "F")
  std::vector<int> Years1, Years2;  // contract years of each futures set
  double Multiplier1 = 1.0, Multiplier2 = 1.0;

  // Back to the initial values above (the sheet's constructor).
  void Reset() { *this = WizardSeasonState(); }
};

// Splits `text` at every `separator` (a string; an empty separator gives the text whole). Empty
// pieces are kept only when `keepEmpty`.
std::vector<std::string> SplitText(std::string_view text, std::string_view separator, bool keepEmpty);

// A bounded list of strings kept in numbered values of one key of the store, most recent first,
// without duplicates, numbered from 1 ("Snl3WizSymbol_1", "Snl3WizSymbol_2", ...).
class RegistryHistory {
 public:
  // `nameFormat` has one %d. `store` outlives the history.
  RegistryHistory(SettingsStore& store, std::string keyPath, std::string nameFormat, std::size_t limit);

  // Clears, then reads values 1 to limit in order; empty texts and repeats are passed over.
  void Load();
  // Puts `text` at the front (removing an equal entry first); the last entry goes when the list
  // is over its limit. An empty text is ignored.
  void Add(std::string_view text);
  // Writes values 1..count, then deletes values count+1..limit. Failures are silent.
  void Save();

  const std::vector<std::string>& Entries() const { return entries_; }

 private:
  std::string NameOf(std::size_t number) const;

  SettingsStore& store_;
  std::string keyPath_;
  std::string nameFormat_;
  std::size_t limit_;
  std::vector<std::string> entries_;
};

// The wizard's key and values in the store.
inline constexpr char kSeasonalKey[] = "Software\\ZEL\\Chart";
inline constexpr std::size_t kHistoryLimit = 20;
inline constexpr char kHistStartEndMonth[] = "Snl3WizStartEndMonth_%d";
inline constexpr char kHistSelYears[] = "Snl3WizSelYears_%d";
inline constexpr char kHistSymbol[] = "Snl3WizSymbol_%d";
inline constexpr char kHistFutureRoot[] = "Snl3WizFutureRoot_%d";
inline constexpr char kHistFutureYr1[] = "Snl3WizFutureYr1_%d";
inline constexpr char kHistFutureYr2[] = "Snl3WizFutureYr2_%d";
inline constexpr char kValueFormSel[] = "Snl3WizFormSel";      // DWORD
inline constexpr char kValueYearsBack[] = "Snl3WizYearsBack";  // DWORD

// The three sources, in the order the sheet calls them. `document` is the wizard's working
// document (its first child is the PropertySheet). YearEnterMode is not read here: it comes from
// the PropertySheet element (LoadSheetDocument).
void ReadContext(WizardSeasonState& state, XmlNode document);
void ReadHistory(WizardSeasonState& state, SettingsStore& store, const Clock& clock);
void ApplyDefaults(WizardSeasonState& state);

// After a finished run, in this order. WriteContractList answers false (and writes nothing) when
// there is no document; WriteContext raises XmlComError(E_POINTER) then.
bool WriteContractList(const WizardSeasonState& state, XmlNode document);
void WriteHistory(const WizardSeasonState& state, SettingsStore& store);
void WriteContext(const WizardSeasonState& state, XmlNode document);

// Rebuilds Labels from the form, the symbols, roots, months, years and multipliers.
void BuildContractLabels(WizardSeasonState& state);

// "FGHJKMNQUVXZ": the futures month letters, January to December.
inline constexpr char kMonthCodes[] = "FGHJKMNQUVXZ";

}  // namespace orv::seasonal
