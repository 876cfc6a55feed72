// The wizard's state from the document's Context, the history and the defaults, and back out to
// the contract list, the history and a rewritten Context: every field, the odd reading rules, the
// exact texts the host and the next run read.
#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "XmlTestSupport.h"
#include "seasonal/WizardSeasonState.h"

namespace orv::seasonal {
namespace {

constexpr char kKey[] = "Software\\ZEL\\Chart";
const FixedClock kClock(DateTime{2026, 11, 24, 22, 15, 0});  // 1 Jan 2026 = 46023, 31 Dec = 46387

std::string Join(const std::vector<int>& values) {
  std::string out;
  for (int v : values) out += (out.empty() ? "" : ",") + std::to_string(v);
  return "[" + out + "]";
}

// Every field of the state in one line, so a case states all of what it expects.
std::string Describe(const WizardSeasonState& s) {
  std::ostringstream out;
  out << "window " << s.Start.value << (s.Start.status ? "!" : "") << "-" << s.End.value << (s.End.status ? "!" : "")
      << " mode " << s.YearEnterMode << " back " << s.YearsBack << " sel " << Join(s.SelYearIndexes) << " form "
      << s.FormSel << " sym '" << s.Symbol1 << "' '" << s.Symbol2 << "' root '" << s.Root1 << "' " << s.Month1 << " x"
      << s.Multiplier1 << " '" << s.Root2 << "' " << s.Month2 << " x" << s.Multiplier2 << " years " << Join(s.Years1)
      << " " << Join(s.Years2);
  return out.str();
}
const char kInitial[] = "window 0-0 mode -1 back -1 sel [] form -1 sym '' '' root '' -1 x1 '' -1 x1 years [] []";

XmlNode Document(const std::string& insideSheet) {
  XmlNode document = XmlCreateDocument();
  const std::string text = "<PropertySheet Name=\"SznWzrdPs\">" + insideSheet + "</PropertySheet>";
  EXPECT_TRUE(XmlLoadString(document, text)) << text;
  return document;
}

WizardSeasonState FromContext(const std::string& insideSheet) {
  WizardSeasonState state;
  ReadContext(state, Document(insideSheet));
  return state;
}

// Every value of the wizard's key as "s:text" or "d:number", by the name it was written with.
std::map<std::string, std::string> ValuesOf(const MemorySettingsStore& store) {
  std::map<std::string, std::string> out;
  for (const auto& [folded, key] : store.keys()) {
    if (key.path != kKey) continue;
    for (const auto& [name, value] : key.values)
      out[key.names.at(name)] = value.isDword ? "d:" + std::to_string(value.dword) : "s:" + value.text;
  }
  return out;
}

TEST(ReadContext, ReadsEachElementByItsOwnRule) {
  struct Row {
    const char* name;
    const char* xml;
    const char* state;
  };
  const Row rows[] = {
      {"no Context leaves the state as reset", "<FormSel>2</FormSel>", kInitial},
      {"every element",
       "<Context><FormSel>3</FormSel><YearsBack>7</YearsBack><MonthDayWindow Start=\"46327\" End=\"46446\"/>"
       "<SelYearList><SelYear>0</SelYear><SelYear>2</SelYear></SelYearList>"
       "<SymbolList><Symbol>MSFT</Symbol><Symbol>INDU.X</Symbol></SymbolList>"
       "<FutureList><Future Root=\"@C\" Month=\"2\" Multiplier=\"2.500000\"/><Future Root=\"@S\" Month=\"11\" "
       "Multiplier=\"1.000000\"/></FutureList>"
       "<YearListList><YearList><Year>2026</Year><Year>2025</Year></YearList><YearList><Year>2025</Year>"
       "<Year>2024</Year></YearList></YearListList></Context>",
       "window 46327-46446 mode -1 back 7 sel [0,2] form 3 sym 'MSFT' 'INDU.X' root '@C' 2 x2.5 '@S' 11 x1 years "
       "[2026,2025] [2025,2024]"},
      {"found at any depth", "<PropertyPageList><Context><FormSel>1</FormSel></Context></PropertyPageList>",
       "window 0-0 mode -1 back -1 sel [] form 1 sym '' '' root '' -1 x1 '' -1 x1 years [] []"},
      {"values in any integer form; YearsBack out of range is taken",
       "<Context><FormSel>0x2</FormSel><YearsBack>150</YearsBack></Context>",
       "window 0-0 mode -1 back 150 sel [] form 2 sym '' '' root '' -1 x1 '' -1 x1 years [] []"},
      {"FormSel that is no number stays", "<Context><FormSel>two</FormSel><YearsBack/></Context>", kInitial},
      {"absent window attributes give 0", "<Context><MonthDayWindow End=\"40000\"/></Context>",
       "window 0-40000 mode -1 back -1 sel [] form -1 sym '' '' root '' -1 x1 '' -1 x1 years [] []"},
      {"window attributes that are no number give 0", "<Context><MonthDayWindow Start=\"May\" End=\"\"/></Context>",
       "window 0-0 mode -1 back -1 sel [] form -1 sym '' '' root '' -1 x1 '' -1 x1 years [] []"},
      {"the window is looked for after the Context too",
       "<Context><FormSel>2</FormSel></Context><MonthDayWindow Start=\"5\" End=\"6\"/>",
       "window 5-6 mode -1 back -1 sel [] form 2 sym '' '' root '' -1 x1 '' -1 x1 years [] []"},
      {"a SelYear without number repeats the one before",
       "<Context><SelYearList><SelYear>x</SelYear><SelYear>3</SelYear><SelYear/><SelYear>y</SelYear>"
       "<SelYear>0x10</SelYear></SelYearList></Context>",
       "window 0-0 mode -1 back -1 sel [0,3,3,3,16] form -1 sym '' '' root '' -1 x1 '' -1 x1 years [] []"},
      {"symbols: an empty one leaves its place open, a third is dropped",
       "<Context><SymbolList><Symbol/><Symbol>A</Symbol><Symbol>B</Symbol><Symbol>C</Symbol></SymbolList></Context>",
       "window 0-0 mode -1 back -1 sel [] form -1 sym 'A' 'B' root '' -1 x1 '' -1 x1 years [] []"},
      {"three Futures keep two",
       "<Context><FutureList><Future Root=\"@W\" Month=\"3\" Multiplier=\"0.5\"/><Future Root=\"@K\" Month=\"4\"/>"
       "<Future Root=\"@Z\" Month=\"5\" Multiplier=\"9\"/></FutureList></Context>",
       "window 0-0 mode -1 back -1 sel [] form -1 sym '' '' root '@W' 3 x0.5 '@K' 4 x1 years [] []"},
      {"an empty Root leaves the set open for the next Future",
       "<Context><FutureList><Future Root=\"\" Month=\"4\" Multiplier=\"2\"/><Future Month=\"6\"/>"
       "<Future Root=\"@W\" Multiplier=\"abc\"/></FutureList></Context>",
       "window 0-0 mode -1 back -1 sel [] form -1 sym '' '' root '@W' 0 x0 '' -1 x1 years [] []"},
      {"a Future without attributes gives month 0 and multiplier 1",
       "<Context><FutureList><Future Root=\"@W\" Month=\"7\" Multiplier=\"3\"/><Future Root=\"@K\"/></FutureList>"
       "</Context>",
       "window 0-0 mode -1 back -1 sel [] form -1 sym '' '' root '@W' 7 x3 '@K' 0 x1 years [] []"},
      {"year lists by their number; a third is dropped; no number repeats the one before",
       "<Context><YearListList><YearList><Year>2020</Year><Year/></YearList><YearList><Year>x</Year>"
       "<Year>2019</Year></YearList><YearList><Year>1999</Year></YearList></YearListList></Context>",
       "window 0-0 mode -1 back -1 sel [] form -1 sym '' '' root '' -1 x1 '' -1 x1 years [2020,2020] "
       "[2020,2019]"},
  };
  for (const Row& row : rows) EXPECT_EQ(Describe(FromContext(row.xml)), row.state) << row.name;
}

struct HistoryValue {
  const char* name;
  const char* text;  // null: a DWORD
  std::uint32_t dword;
};

MemorySettingsStore StoreOf(std::initializer_list<HistoryValue> values) {
  MemorySettingsStore store;
  for (const HistoryValue& v : values) {
    if (v.text) {
      store.WriteString(kKey, v.name, v.text);
    } else {
      store.WriteDword(kKey, v.name, v.dword);
    }
  }
  return store;
}

TEST(ReadHistory, FillsWhatTheContextLeftOpen) {
  struct Row {
    const char* name;
    MemorySettingsStore store;
    const char* state;
  };
  const Row rows[] = {
      {"empty store: the current year, form 0, no YearsBack", StoreOf({}),
       "window 46023-46387 mode -1 back -1 sel [] form 0 sym '' '' root '' -1 x1 '' -1 x1 years [] []"},
      {"every record",
       StoreOf({{"Snl3WizStartEndMonth_1", "46327?46446", 0},
                {"Snl3WizStartEndMonth_2", "1?2", 0},
                {"Snl3WizSelYears_1", "2", 0},
                {"Snl3WizSelYears_2", "0", 0},
                {"Snl3WizSymbol_1", "CL?HO", 0},
                {"Snl3WizFormSel", nullptr, 3},
                {"Snl3WizYearsBack", nullptr, 12},
                {"Snl3WizFutureRoot_1", "@W?@K?2?11?2.500000?0.750000", 0},
                {"Snl3WizFutureYr1_1", "2026", 0},
                {"Snl3WizFutureYr1_2", "2025", 0},
                {"Snl3WizFutureYr2_1", "2024", 0}}),
       "window 46327-46446 mode -1 back 12 sel [2,0] form 3 sym 'CL' 'HO' root '@W' 2 x2.5 '@K' 11 x0.75 years "
       "[2026,2025] [2024]"},
      {"empty first fields move the later ones forward",
       StoreOf({{"Snl3WizStartEndMonth_1", "?46446", 0},
                {"Snl3WizSymbol_1", "?HO", 0},
                {"Snl3WizFutureRoot_1", "?@K?2?11?2.5?0.75", 0}}),
       "window 46446-0 mode -1 back -1 sel [] form 0 sym 'HO' '' root '@K' 11 x0.75 '2' 2 x0 years [] []"},
      {"a short record leaves multipliers of 0",
       StoreOf({{"Snl3WizStartEndMonth_1", "46327", 0}, {"Snl3WizFutureRoot_1", "@W?@K?3", 0}}),
       "window 46327-0 mode -1 back -1 sel [] form 0 sym '' '' root '@W' 3 x0 '@K' 0 x0 years [] []"},
      {"DWORDs of the wrong type read as absent", StoreOf({{"Snl3WizFormSel", "3", 0}, {"Snl3WizYearsBack", "12", 0}}),
       "window 46023-46387 mode -1 back -1 sel [] form 0 sym '' '' root '' -1 x1 '' -1 x1 years [] []"},
      {"DWORDs are taken as they stand",
       StoreOf({{"Snl3WizFormSel", nullptr, 0xFFFFFFFFu}, {"Snl3WizYearsBack", nullptr, 0}}),
       "window 46023-46387 mode -1 back 0 sel [] form -1 sym '' '' root '' -1 x1 '' -1 x1 years [] []"},
      {"numbers by atoi; repeated texts and empty values skipped",
       StoreOf({{"Snl3WizSelYears_1", "3", 0},
                {"Snl3WizSelYears_2", "3", 0},
                {"Snl3WizSelYears_3", "", 0},
                {"Snl3WizSelYears_4", "x", 0},
                {"Snl3WizSelYears_5", "03", 0},
                {"Snl3WizFutureYr2_1", "2024abc", 0}}),
       "window 46023-46387 mode -1 back -1 sel [3,0,3] form 0 sym '' '' root '' -1 x1 '' -1 x1 years [] [2024]"},
  };
  for (const Row& row : rows) {
    WizardSeasonState state;
    MemorySettingsStore store = row.store;
    ReadHistory(state, store, kClock);
    EXPECT_EQ(Describe(state), row.state) << row.name;
  }
}

TEST(ReadHistory, ReadsNothingTheContextGave) {
  MemorySettingsStore store = StoreOf({{"Snl3WizStartEndMonth_1", "1?2", 0},
                                       {"Snl3WizSelYears_1", "9", 0},
                                       {"Snl3WizSymbol_1", "CL?HO", 0},
                                       {"Snl3WizFormSel", nullptr, 3},
                                       {"Snl3WizYearsBack", nullptr, 12},
                                       {"Snl3WizFutureRoot_1", "@W?@K?2?11?2.5?0.75", 0},
                                       {"Snl3WizFutureYr1_1", "1990", 0},
                                       {"Snl3WizFutureYr2_1", "1991", 0}});
  WizardSeasonState state = FromContext(
      "<Context><FormSel>0</FormSel><YearsBack>0</YearsBack><MonthDayWindow Start=\"100\" End=\"200\"/>"
      "<SelYearList><SelYear>1</SelYear></SelYearList><SymbolList><Symbol>A</Symbol></SymbolList>"
      "<FutureList><Future Root=\"@C\"/></FutureList>"
      "<YearListList><YearList><Year>2000</Year></YearList><YearList><Year>2001</Year></YearList></YearListList>"
      "</Context>");
  const std::string before = Describe(state);
  ReadHistory(state, store, kClock);
  EXPECT_EQ(Describe(state), before);
}

TEST(ReadHistory, AContextStartOfZeroTakesTheWholeWindowFromTheHistory) {
  MemorySettingsStore store = StoreOf({{"Snl3WizStartEndMonth_1", "36831?36950", 0}});
  WizardSeasonState state = FromContext("<Context><MonthDayWindow Start=\"0\" End=\"46446\"/></Context>");
  ReadHistory(state, store, kClock);
  EXPECT_EQ(state.Start.value, 36831.0);
  EXPECT_EQ(state.End.value, 36950.0);
  EXPECT_EQ(YearOf(state.Start), 2000);
  EXPECT_EQ(MonthOf(state.End), 2);
}

TEST(ApplyDefaults, FillsOnlyWhatIsOpen) {
  WizardSeasonState open;
  open.Multiplier1 = 0.0;  // multipliers have no default
  ApplyDefaults(open);
  EXPECT_EQ(Describe(open),
            "window 0-0 mode 0 back 5 sel [] form 0 sym 'MSFT' 'INDU.X' root '@C' 0 x0 '@S' 0 x1 years [] []");

  WizardSeasonState set = FromContext(
      "<Context><FormSel>4</FormSel><YearsBack>0</YearsBack><SymbolList><Symbol>A</Symbol><Symbol>B</Symbol>"
      "</SymbolList><FutureList><Future Root=\"@W\" Month=\"3\"/><Future Root=\"@K\" Month=\"0\"/></FutureList>"
      "</Context>");
  set.YearEnterMode = 2;
  const std::string before = Describe(set);
  ApplyDefaults(set);
  EXPECT_EQ(Describe(set), before);
}

WizardSeasonState Finished() {
  WizardSeasonState s;
  s.Start = MakeSeasonDate(2026, 11, 1);
  s.End = MakeSeasonDate(2027, 2, 28);
  s.YearEnterMode = 0;
  s.YearsBack = 5;
  s.SelYears = {2026, 2025, 2024};
  s.SelYearIndexes = {0, 1, 2};
  s.FormSel = kFormFuturesSpread;
  s.Labels = {"@C2027H - @S2026K", "@C2026H - @S2025K"};
  s.Symbol1 = "MSFT";
  s.Symbol2 = "INDU.X";
  s.Root1 = "@C";
  s.Root2 = "@S";
  s.Month1 = 2;
  s.Month2 = 4;
  s.Years1 = {2027, 2026};
  s.Years2 = {2026, 2025, 2024};
  s.Multiplier1 = 2.5;
  s.Multiplier2 = 1.0;
  return s;
}

TEST(WriteContractList, ReplacesTheOldNodesUnderTheRoot) {
  const char* kOld =
      "<StartMonthIndex>9</StartMonthIndex><Context><YearsBack>3</YearsBack></Context>"
      "<ContractList><Contract Symbol=\"X\" Year=\"1\"/></ContractList><EndMonthIndex>1</EndMonthIndex>"
      "<YearsBack>7</YearsBack>";
  // The months from the window (November to February; -1 for dates that aren't), YearsBack, then
  // the row's contracts.
  struct Row {
    const char* name;
    int yearEnterMode;
    std::vector<int> selYears;
    bool validDates;
    const char* contracts;
  };
  const Row rows[] = {
      {"one contract a year; a missing label is empty",
       0,
       {2026, 2025, 2024},
       true,
       "<ContractList><Contract Symbol=\"@C2027H - @S2026K\" Year=\"2026\"/><Contract Symbol=\"@C2026H - @S2025K\" "
       "Year=\"2025\"/><Contract Symbol=\"\" Year=\"2024\"/></ContractList>"},
      {"no years, no list", 0, {}, true, ""},
      {"mode 1: exactly one contract, of year -1 without years",
       1,
       {},
       true,
       "<ContractList><Contract Symbol=\"@C2027H - @S2026K\" Year=\"-1\"/></ContractList>"},
      {"mode 1 with years still gives one",
       1,
       {2026, 2025},
       true,
       "<ContractList><Contract Symbol=\"@C2027H - @S2026K\" Year=\"2026\"/></ContractList>"},
      {"mode 2 (the Years page not on the way): no list", 2, {}, true, ""},
      {"invalid dates give month -1", 0, {}, false, ""},
  };
  for (const Row& row : rows) {
    WizardSeasonState state = Finished();
    state.YearEnterMode = row.yearEnterMode;
    state.SelYears = row.selYears;
    if (!row.validDates) {
      state.Start.status = kDateInvalid;
      state.End.value = 1e12;
    }
    XmlNode document = Document(kOld);
    EXPECT_TRUE(WriteContractList(state, document)) << row.name;
    // The YearsBack found first lies in the old Context; the one under the root stays.
    EXPECT_EQ(xmltest::Markup(XmlFirstChild(document)),
              std::string("<PropertySheet Name=\"SznWzrdPs\"><Context/><YearsBack>7</YearsBack>") +
                  (row.validDates ? "<StartMonthIndex>11</StartMonthIndex><EndMonthIndex>2</EndMonthIndex>"
                                  : "<StartMonthIndex>-1</StartMonthIndex><EndMonthIndex>-1</EndMonthIndex>") +
                  "<YearsBack>5</YearsBack>" + row.contracts + "</PropertySheet>")
        << row.name;
  }
}

TEST(WriteContractList, WithoutDocumentAnswersFalse) { EXPECT_FALSE(WriteContractList(Finished(), XmlNode())); }

TEST(WriteHistory, ReplacesEveryHistoryWithTheRun) {
  MemorySettingsStore store;
  for (int i = 1; i <= 20; ++i) {
    store.WriteString(kKey, "Snl3WizStartEndMonth_" + std::to_string(i), "old" + std::to_string(i));
    store.WriteString(kKey, "Snl3WizFutureYr2_" + std::to_string(i), std::to_string(1900 + i));
  }
  store.WriteString(kKey, "Snl3WizSymbol_21", "beyond");
  store.WriteString(kKey, "Unrelated", "kept");
  WizardSeasonState state = Finished();
  state.SelYearIndexes = {0, 3, 0, 1};
  state.Years1 = {};
  state.Multiplier2 = -0.125;
  WriteHistory(state, store);
  EXPECT_EQ(ValuesOf(store), (std::map<std::string, std::string>{
                                 {"Snl3WizStartEndMonth_1", "s:46327?46446"},
                                 {"Snl3WizSelYears_1", "s:1"},
                                 {"Snl3WizSelYears_2", "s:0"},
                                 {"Snl3WizSelYears_3", "s:3"},
                                 {"Snl3WizSymbol_1", "s:MSFT?INDU.X"},
                                 {"Snl3WizSymbol_21", "s:beyond"},
                                 {"Snl3WizFormSel", "d:3"},
                                 {"Snl3WizYearsBack", "d:5"},
                                 {"Snl3WizFutureRoot_1", "s:@C?@S?2?4?2.500000?-0.125000"},
                                 {"Snl3WizFutureYr2_1", "s:2024"},
                                 {"Snl3WizFutureYr2_2", "s:2025"},
                                 {"Snl3WizFutureYr2_3", "s:2026"},
                                 {"Unrelated", "s:kept"},
                             }));
}

TEST(WriteHistory, WritesNegativeNumbersAsTheyStand) {
  MemorySettingsStore store;
  WizardSeasonState state;  // as reset: -1 everywhere, window 0
  WriteHistory(state, store);
  EXPECT_EQ(ValuesOf(store), (std::map<std::string, std::string>{
                                 {"Snl3WizStartEndMonth_1", "s:0?0"},
                                 {"Snl3WizSymbol_1", "s:?"},
                                 {"Snl3WizFormSel", "d:4294967295"},
                                 {"Snl3WizYearsBack", "d:4294967295"},
                                 {"Snl3WizFutureRoot_1", "s:??-1?-1?1.000000?1.000000"},
                             }));
}

constexpr char kFinishedContext[] =
    "<Context><FormSel>3</FormSel><YearsBack>5</YearsBack><MonthDayWindow Start=\"46327\" End=\"46446\"/>"
    "<SelYearList><SelYear>0</SelYear><SelYear>1</SelYear><SelYear>2</SelYear></SelYearList>"
    "<SymbolList><Symbol>MSFT</Symbol><Symbol>INDU.X</Symbol></SymbolList>"
    "<FutureList><Future Root=\"@C\" Month=\"2\" Multiplier=\"2.500000\"/>"
    "<Future Root=\"@S\" Month=\"4\" Multiplier=\"1.000000\"/></FutureList>"
    "<YearListList><YearList><Year>2027</Year><Year>2026</Year></YearList>"
    "<YearList><Year>2026</Year><Year>2025</Year><Year>2024</Year></YearList></YearListList></Context>";

TEST(WriteContext, ReplacesTheContextAtTheEndOfTheRoot) {
  XmlNode document = Document("<Context><FormSel>1</FormSel></Context><ContractList/>");
  WriteContext(Finished(), document);
  EXPECT_EQ(xmltest::Markup(XmlFirstChild(document)),
            std::string("<PropertySheet Name=\"SznWzrdPs\"><ContractList/>") + kFinishedContext + "</PropertySheet>");
}

TEST(WriteContext, WritesEveryListEvenEmpty) {
  XmlNode document = Document("");
  WizardSeasonState state;
  state.Multiplier1 = 0.0;
  WriteContext(state, document);
  EXPECT_EQ(xmltest::Markup(XmlFirstChild(document)),
            "<PropertySheet Name=\"SznWzrdPs\"><Context><FormSel>-1</FormSel><YearsBack>-1</YearsBack>"
            "<MonthDayWindow Start=\"0\" End=\"0\"/><SelYearList/><SymbolList><Symbol></Symbol>"
            "<Symbol></Symbol></SymbolList><FutureList><Future Root=\"\" Month=\"-1\" Multiplier=\"0.000000\"/>"
            "<Future Root=\"\" Month=\"-1\" Multiplier=\"1.000000\"/></FutureList><YearListList><YearList/>"
            "<YearList/></YearListList></Context></PropertySheet>");
}

TEST(WriteContext, WithoutDocumentRaisesPointer) {
  try {
    WriteContext(Finished(), XmlNode());
    ADD_FAILURE() << "no exception";
  } catch (const XmlComError& e) {
    EXPECT_EQ(e.status(), kStatusPointer);
  }
}

TEST(ReadHistory, NumbersPastTheIntRangeStopAtItsEnds) {
  MemorySettingsStore store = StoreOf({{"Snl3WizSelYears_1", "99999999999", 0},
                                       {"Snl3WizSelYears_2", "-99999999999", 0},
                                       {"Snl3WizFutureRoot_1", "@C?@S?4000000000?-4000000000?1?1", 0}});
  WizardSeasonState state;
  ReadHistory(state, store, kClock);
  EXPECT_EQ(state.SelYearIndexes, (std::vector<int>{INT_MAX, INT_MIN}));
  EXPECT_EQ(state.Month1, INT_MAX);
  EXPECT_EQ(state.Month2, INT_MIN);
}

}  // namespace
}  // namespace orv::seasonal
