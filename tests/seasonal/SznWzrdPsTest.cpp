// The seasonal wizard as a host meets it: a request with the twelve pages, a user who walks each
// contract form from the first page to Finish, and the document that comes back, compared whole;
// where Back leads from every page; Cancel; a second run that starts from the first one's
// history; and what every page shows at its start (its buttons, its help).

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "SznSheetRun.h"
#include "SznPageDriver.h"
#include "dlgkit/Page.h"
#include "dlgkit/fake/FakeHostServices.h"
#include "seasonal/SznPageTable.h"

namespace {

using orv::HeadlessSheetRunner;
using orv::MemorySettingsStore;
using WizardRun = szntest::SheetRun;

// The twelve pages in the order of the page table.
constexpr const char* kPageNames[] = {"SznWzrdPgSeason",      "SznWzrdPgYears",       "SznWzrdPgYrCount",
                                      "SznWzrdPgForm",        "SznWzrdPgFut1",        "SznWzrdPgFut2",
                                      "SznWzrdPgCashSprd",    "SznWzrdPgSnglRootFut", "SznWzrdPgSnglInst",
                                      "SznWzrdPgSnglInstMid", "SznWzrdPgMult",        "SznWzrdPgConstr"};

std::string PageList() {
  std::string list = "<PropertyPageList>";
  for (const char* name : kPageNames) list += std::string("<PropertyPage Name=\"") + name + "\"/>";
  return list + "</PropertyPageList>";
}

// The host's request; a year mode below 0 leaves YearEnterMode out.
std::string Request(int yearEnterMode, const std::string& context = "") {
  std::string sheet = "<PropertySheet Name=\"SznWzrdPs\">";
  if (yearEnterMode >= 0) sheet += "<YearEnterMode>" + std::to_string(yearEnterMode) + "</YearEnterMode>";
  return "<Chart>" + sheet + PageList() + context + "</PropertySheet></Chart>";
}

// What comes back after Finish: the request's PropertySheet, then the contract list and the
// rewritten Context.
std::string Finished(int yearEnterMode, const std::string& contracts, const std::string& context) {
  std::string sheet = "<PropertySheet Name=\"SznWzrdPs\">";
  if (yearEnterMode >= 0) sheet += "<YearEnterMode>" + std::to_string(yearEnterMode) + "</YearEnterMode>";
  return sheet + PageList() + contracts + context + "</PropertySheet>";
}

// What Finish adds for the years list 2026, 2025, 2024: the months, YearsBack and one contract a
// year, each year's symbol from `symbolOf`.
std::string Contracts(const std::function<std::string(int year)>& symbolOf) {
  std::string list = "<StartMonthIndex>1</StartMonthIndex><EndMonthIndex>12</EndMonthIndex><YearsBack>5</YearsBack>";
  list += "<ContractList>";
  for (int year : {2026, 2025, 2024})
    list += "<Contract Symbol=\"" + symbolOf(year) + "\" Year=\"" + std::to_string(year) + "\"/>";
  return list + "</ContractList>";
}

// The rewritten Context of a first run in 2026 (season January to December, the three most
// recent years picked): the form, the symbols, the two futures and the two year lists as markup.
std::string FirstRunContext(int form, const std::string& symbols, const std::string& futures,
                            const std::string& yearLists) {
  return "<Context><FormSel>" + std::to_string(form) +
         "</FormSel><YearsBack>5</YearsBack><MonthDayWindow Start=\"46023\" End=\"46387\"/>"
         "<SelYearList><SelYear>0</SelYear><SelYear>1</SelYear><SelYear>2</SelYear></SelYearList><SymbolList>" +
         symbols + "</SymbolList><FutureList>" + futures + "</FutureList><YearListList>" + yearLists +
         "</YearListList></Context>";
}

std::string Future(const std::string& root, int month, const char* multiplier = "1.000000") {
  return "<Future Root=\"" + root + "\" Month=\"" + std::to_string(month) + "\" Multiplier=\"" + multiplier + "\"/>";
}

constexpr const char* kDefaultFutures =
    "<Future Root=\"@C\" Month=\"0\" Multiplier=\"1.000000\"/><Future Root=\"@S\" Month=\"0\" "
    "Multiplier=\"1.000000\"/>";
constexpr const char* kNoYearLists = "<YearList/><YearList/>";
constexpr const char* kPickedYears = "<YearList><Year>2026</Year><Year>2025</Year><Year>2024</Year></YearList>";

void Press(WizardRun& run, bool (orv::HeadlessRunner::*button)(), int expectedDialogId) {
  (run.runner.Sheet().*button)();
  ASSERT_EQ(run.CurrentDialogId(), expectedDialogId);
}

// Season, Years (the first run's picks: 2026, 2025, 2024), then the form's radio and Next.
void ToForm(WizardRun& run, int radio, int landing) {
  Press(run, &orv::HeadlessRunner::PressNext, IDD_SZN_YEARS);
  Press(run, &orv::HeadlessRunner::PressNext, IDD_SZN_FORM);
  run.Current().Click(radio);
  Press(run, &orv::HeadlessRunner::PressNext, landing);
}

struct FormWalk {
  const char* name;
  std::function<void(WizardRun&)> script;
  std::string expected;
};

std::vector<FormWalk> FormWalks() {
  using R = orv::HeadlessRunner;
  return {
      {"single instrument",
       [](WizardRun& run) {
         ToForm(run, IDC_SZN_FORM_SNGLINST, IDD_SZN_SNGLINST);
         run.Current().TypeText(IDC_SZN_SNGLINST_SYMBOL, "CORN");
         EXPECT_TRUE(run.runner.Sheet().PressFinish());
       },
       Finished(-1, Contracts([](int) { return "CORN"; }),
                FirstRunContext(0, "<Symbol>CORN</Symbol><Symbol>INDU.X</Symbol>", kDefaultFutures, kNoYearLists))},
      {"single root futures",
       [](WizardRun& run) {
         ToForm(run, IDC_SZN_FORM_SNGLROOTFUT, IDD_SZN_SNGLROOTFUT);
         orv::FakeControls& page = run.Current();
         page.TypeText(IDC_SZN_SNGLROOT_ROOT, "QNG");
         page.SelectComboItem(IDC_SZN_SNGLROOT_MONTH, 2);
         // Rows start ten years ahead: row 9 is 2027.
         for (int row : {9, 10, 11}) page.ToggleListItem(IDC_SZN_SNGLROOT_YEARS, row);
         EXPECT_TRUE(run.runner.Sheet().PressFinish());
       },
       Finished(
           -1, Contracts([](int year) { return "QNG" + std::to_string(year + 1) + "H"; }),
           FirstRunContext(1, "<Symbol>MSFT</Symbol><Symbol>INDU.X</Symbol>", Future("QNG", 2) + Future("@S", 0),
                           "<YearList><Year>2027</Year><Year>2026</Year><Year>2025</Year></YearList><YearList/>"))},
      {"cash spread",
       [](WizardRun& run) {
         ToForm(run, IDC_SZN_FORM_CASHSPRD, IDD_SZN_CASHSPRD);
         run.Current().TypeText(IDC_SZN_CASHSPRD_SYMBOL1, "HO");
         run.Current().TypeText(IDC_SZN_CASHSPRD_SYMBOL2, "CL");
         Press(run, &R::PressNext, IDD_SZN_MULT);
         run.Current().TypeText(IDC_SZN_MULT_1, "2.5");
         EXPECT_TRUE(run.runner.Sheet().PressFinish());
       },
       Finished(-1, Contracts([](int) { return "2.50 * HO - CL"; }),
                FirstRunContext(2, "<Symbol>HO</Symbol><Symbol>CL</Symbol>",
                                Future("@C", 0, "2.500000") + Future("@S", 0), kNoYearLists))},
      {"futures spread",
       [](WizardRun& run) {
         ToForm(run, IDC_SZN_FORM_FUTSPRD, IDD_SZN_FUT1);
         // The chart years (rows 10 to 12) come selected; the month is December.
         run.Current().SelectComboItem(IDC_SZN_FUT1_MONTH, 11);
         Press(run, &R::PressNext, IDD_SZN_FUT2);
         orv::FakeControls& second = run.Current();
         second.TypeText(IDC_SZN_FUT2_ROOT, "QHO");
         for (int row : {10, 13}) second.ToggleListItem(IDC_SZN_FUT2_YEARS, row);  // 2026 out, 2023 in
         Press(run, &R::PressNext, IDD_SZN_MULT);
         EXPECT_TRUE(run.runner.Sheet().PressFinish());
       },
       Finished(-1, Contracts([](int y) { return "@C" + std::to_string(y) + "Z - QHO" + std::to_string(y - 1) + "F"; }),
                FirstRunContext(3, "<Symbol>MSFT</Symbol><Symbol>INDU.X</Symbol>", Future("@C", 11) + Future("QHO", 0),
                                std::string(kPickedYears) +
                                    "<YearList><Year>2025</Year><Year>2024</Year><Year>2023</Year></YearList>"))},
      {"cash futures spread",
       [](WizardRun& run) {
         ToForm(run, IDC_SZN_FORM_CASHFUTSPRD, IDD_SZN_SNGLINSTMID);
         run.Current().TypeText(IDC_SZN_SNGLINSTMID_SYMBOL, "PCACG00");
         Press(run, &R::PressNext, IDD_SZN_FUT2);
         run.Current().TypeText(IDC_SZN_FUT2_ROOT, "QCL");
         run.Current().SelectComboItem(IDC_SZN_FUT2_MONTH, 11);
         Press(run, &R::PressNext, IDD_SZN_MULT);
         run.Current().TypeText(IDC_SZN_MULT_2, "-1");
         EXPECT_TRUE(run.runner.Sheet().PressFinish());
       },
       Finished(-1, Contracts([](int year) { return "PCACG00 - -1.00 * QCL" + std::to_string(year) + "Z"; }),
                FirstRunContext(4, "<Symbol>PCACG00</Symbol><Symbol>INDU.X</Symbol>",
                                Future("@C", 0) + Future("QCL", 11, "-1.000000"),
                                std::string("<YearList/>") + kPickedYears))},
  };
}

TEST(SznWizard, EachFormWalkedToFinishGivesTheHostItsWholeDocumentOnce) {
  for (const FormWalk& walk : FormWalks()) {
    MemorySettingsStore store;
    WizardRun run(store);
    const std::string request = Request(-1);
    XmlNode host = szntest::SheetNode(request);
    run.runner.SetScript([&](HeadlessSheetRunner&) { walk.script(run); });
    EXPECT_EQ(run.wizard.Run(host, run.runner), 1) << walk.name;
    EXPECT_EQ(run.Events(), std::vector<std::string>{walk.expected}) << walk.name;
    EXPECT_EQ(orv::Compact(XmlGetXml(host)), orv::Compact(XmlGetXml(szntest::SheetNode(request))))
        << walk.name << ": the host's document is read, never changed";
    EXPECT_FALSE(store.keys().empty()) << walk.name << ": a finished run keeps its history";
  }
}

TEST(SznWizard, CountOfYearsTakesTheShortPathToOneSymbol) {
  struct Row {
    int yearEnterMode;
    std::string contracts;  // what the host gets besides the Context
  };
  const Row rows[] = {
      // One contract of a year nobody picked, and YearsBack to go by.
      {1,
       "<StartMonthIndex>1</StartMonthIndex><EndMonthIndex>12</EndMonthIndex><YearsBack>3</YearsBack>"
       "<ContractList><Contract Symbol=\"CORN\" Year=\"-1\"/></ContractList>"},
      // No contract list at all: only YearsBack.
      {2, "<StartMonthIndex>1</StartMonthIndex><EndMonthIndex>12</EndMonthIndex><YearsBack>3</YearsBack>"},
  };
  for (const Row& row : rows) {
    MemorySettingsStore store;
    WizardRun run(store);
    const auto result = run.Run(Request(row.yearEnterMode), [&](HeadlessSheetRunner&) {
      Press(run, &orv::HeadlessRunner::PressNext, IDD_SZN_YRCOUNT);
      EXPECT_EQ(run.Current().Control(IDC_SZN_YRCOUNT_COUNT).text, "5");
      run.Current().TypeText(IDC_SZN_YRCOUNT_COUNT, "3");
      Press(run, &orv::HeadlessRunner::PressNext, IDD_SZN_SNGLINST);
      run.Current().TypeText(IDC_SZN_SNGLINST_SYMBOL, "CORN");
      EXPECT_TRUE(run.runner.Sheet().PressFinish());
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(run.Events(), std::vector<std::string>{Finished(
                                row.yearEnterMode, row.contracts,
                                std::string("<Context><FormSel>0</FormSel><YearsBack>3</YearsBack>") +
                                    "<MonthDayWindow Start=\"46023\" End=\"46387\"/><SelYearList/><SymbolList>"
                                    "<Symbol>CORN</Symbol><Symbol>INDU.X</Symbol></SymbolList><FutureList>" +
                                    kDefaultFutures +
                                    "</FutureList><YearListList><YearList/><YearList/>"
                                    "</YearListList></Context>")})
        << "mode " << row.yearEnterMode;
  }
}

TEST(SznWizard, BackFromEveryPageLandsWhereTheFlowSays) {
  using R = orv::HeadlessRunner;
  struct Row {
    const char* name;
    int radio;               // the form picked on the form page; 0: the walk doesn't pass it
    std::vector<int> pages;  // where Next leads, from the form page on (else from Season on)
    int back;
  };
  const Row rows[] = {
      {"years", 0, {IDD_SZN_YEARS}, IDD_SZN_SEASON},
      {"form", 0, {IDD_SZN_YEARS, IDD_SZN_FORM}, IDD_SZN_YEARS},
      {"symbol", IDC_SZN_FORM_SNGLINST, {IDD_SZN_SNGLINST}, IDD_SZN_FORM},
      {"single root futures", IDC_SZN_FORM_SNGLROOTFUT, {IDD_SZN_SNGLROOTFUT}, IDD_SZN_FORM},
      {"symbols", IDC_SZN_FORM_CASHSPRD, {IDD_SZN_CASHSPRD}, IDD_SZN_FORM},
      {"first futures", IDC_SZN_FORM_FUTSPRD, {IDD_SZN_FUT1}, IDD_SZN_FORM},
      {"second futures of a futures spread", IDC_SZN_FORM_FUTSPRD, {IDD_SZN_FUT1, IDD_SZN_FUT2}, IDD_SZN_FUT1},
      {"symbol of a cash futures spread", IDC_SZN_FORM_CASHFUTSPRD, {IDD_SZN_SNGLINSTMID}, IDD_SZN_FORM},
      {"second futures of a cash futures spread",
       IDC_SZN_FORM_CASHFUTSPRD,
       {IDD_SZN_SNGLINSTMID, IDD_SZN_FUT2},
       IDD_SZN_SNGLINSTMID},
      {"multipliers of a cash spread", IDC_SZN_FORM_CASHSPRD, {IDD_SZN_CASHSPRD, IDD_SZN_MULT}, IDD_SZN_CASHSPRD},
      {"multipliers of a futures spread skip the second futures",
       IDC_SZN_FORM_FUTSPRD,
       {IDD_SZN_FUT1, IDD_SZN_FUT2, IDD_SZN_MULT},
       IDD_SZN_FUT1},
      {"multipliers of a cash futures spread land under construction",
       IDC_SZN_FORM_CASHFUTSPRD,
       {IDD_SZN_SNGLINSTMID, IDD_SZN_FUT2, IDD_SZN_MULT},
       IDD_SZN_CONSTR},
  };
  for (const Row& row : rows) {
    MemorySettingsStore store;
    WizardRun run(store);
    run.Run(Request(-1), [&](HeadlessSheetRunner&) {
      std::size_t next = 0;
      if (row.radio != 0) ToForm(run, row.radio, row.pages[next++]);
      for (; next < row.pages.size(); ++next) Press(run, &R::PressNext, row.pages[next]);
      run.runner.Sheet().PressBack();
      EXPECT_EQ(run.CurrentDialogId(), row.back) << row.name;
    });
    EXPECT_TRUE(run.owner.events.empty()) << row.name;
  }
  MemorySettingsStore store;
  {
    // Back from Multipliers whose field doesn't read answers Under Construction, but the page
    // then refuses to be left, as the platform asks it (kill-active) before it changes page.
    WizardRun run(store);
    run.Run(Request(-1), [&](HeadlessSheetRunner&) {
      ToForm(run, IDC_SZN_FORM_CASHSPRD, IDD_SZN_CASHSPRD);
      Press(run, &R::PressNext, IDD_SZN_MULT);
      run.Current().TypeText(IDC_SZN_MULT_1, "two");
      Press(run, &R::PressBack, IDD_SZN_MULT);
    });
  }
  {
    // Under Construction goes to its neighbour in the request's order: Multipliers.
    WizardRun run(store);
    run.Run(Request(-1), [&](HeadlessSheetRunner&) {
      ToForm(run, IDC_SZN_FORM_CASHFUTSPRD, IDD_SZN_SNGLINSTMID);
      Press(run, &R::PressNext, IDD_SZN_FUT2);
      Press(run, &R::PressNext, IDD_SZN_MULT);
      Press(run, &R::PressBack, IDD_SZN_CONSTR);
      Press(run, &R::PressBack, IDD_SZN_MULT);
    });
  }
  // The count page and the symbol after it, on the short path.
  WizardRun run(store);
  run.Run(Request(1), [&](HeadlessSheetRunner&) {
    Press(run, &R::PressNext, IDD_SZN_YRCOUNT);
    Press(run, &R::PressNext, IDD_SZN_SNGLINST);
    Press(run, &R::PressBack, IDD_SZN_YRCOUNT);
    Press(run, &R::PressBack, IDD_SZN_SEASON);
  });
  EXPECT_TRUE(store.keys().empty()) << "none of these runs finished";
}

TEST(SznWizard, ReturningByBackKeepsWhatTheUserLeftOnAPage) {
  MemorySettingsStore store;
  WizardRun run(store);
  run.Run(Request(-1), [&](HeadlessSheetRunner&) {
    ToForm(run, IDC_SZN_FORM_CASHSPRD, IDD_SZN_CASHSPRD);
    run.Current().TypeText(IDC_SZN_CASHSPRD_SYMBOL1, "HO");
    Press(run, &orv::HeadlessRunner::PressBack, IDD_SZN_FORM);
    Press(run, &orv::HeadlessRunner::PressNext, IDD_SZN_CASHSPRD);
    EXPECT_EQ(run.Current().Control(IDC_SZN_CASHSPRD_SYMBOL1).text, "HO");
  });
}

TEST(SznWizard, CancelOnAnyPageLeavesTheDocumentAndTheStoreAsTheyWere) {
  using R = orv::HeadlessRunner;
  const std::function<void(WizardRun&)> reach[] = {
      [](WizardRun&) {},
      [](WizardRun& r) { ToForm(r, IDC_SZN_FORM_SNGLINST, IDD_SZN_SNGLINST); },
      [](WizardRun& r) {
        ToForm(r, IDC_SZN_FORM_FUTSPRD, IDD_SZN_FUT1);
        Press(r, &R::PressNext, IDD_SZN_FUT2);
        Press(r, &R::PressNext, IDD_SZN_MULT);
      },
  };
  for (const auto& path : reach) {
    MemorySettingsStore store;
    store.WriteString("Software\\ZEL\\Chart", "Snl3WizSymbol_1", "HO?CL");
    const std::string before = orv::FileSettingsStore::Serialize(store);
    WizardRun run(store);
    const std::string request = Request(-1, "<Context><FormSel>3</FormSel></Context>");
    XmlNode host = szntest::SheetNode(request);
    run.runner.SetScript([&](HeadlessSheetRunner&) {
      path(run);
      EXPECT_TRUE(run.runner.Sheet().PressCancel());
    });
    EXPECT_EQ(run.wizard.Run(host, run.runner), 0);
    EXPECT_TRUE(run.owner.events.empty());
    EXPECT_EQ(orv::FileSettingsStore::Serialize(store), before);
    EXPECT_EQ(XmlGetXml(host), XmlGetXml(szntest::SheetNode(request)));
  }
}

TEST(SznWizard, ASecondRunStartsFromTheFirstRunsHistory) {
  MemorySettingsStore store;
  {
    WizardRun first(store);
    first.Run(Request(-1), [&](HeadlessSheetRunner&) {
      first.Current().SelectComboItem(IDC_SZN_SEASON_START, 10);  // Nov
      first.Current().SelectComboItem(IDC_SZN_SEASON_END, 1);     // Feb
      Press(first, &orv::HeadlessRunner::PressNext, IDD_SZN_YEARS);
      first.Current().ToggleListItem(IDC_SZN_YEARS_LIST, 0);  // 2025 and 2024 remain
      Press(first, &orv::HeadlessRunner::PressNext, IDD_SZN_FORM);
      first.Current().Click(IDC_SZN_FORM_CASHSPRD);
      Press(first, &orv::HeadlessRunner::PressNext, IDD_SZN_CASHSPRD);
      first.Current().TypeText(IDC_SZN_CASHSPRD_SYMBOL1, "HO");
      Press(first, &orv::HeadlessRunner::PressNext, IDD_SZN_MULT);
      EXPECT_TRUE(first.runner.Sheet().PressFinish());
    });
    ASSERT_EQ(first.owner.events.size(), 1u);
  }
  WizardRun second(store);
  second.Run(Request(-1), [&](HeadlessSheetRunner&) {
    orv::FakeControls& season = second.Current();
    EXPECT_EQ(season.Control(IDC_SZN_SEASON_START).curSel, 10);
    EXPECT_EQ(season.Control(IDC_SZN_SEASON_END).curSel, 1);
    EXPECT_EQ(season.Control(IDC_SZN_SEASON_PREVIEW).text, "Nov/01/2026 - Feb/28/2027");
    Press(second, &orv::HeadlessRunner::PressNext, IDD_SZN_YEARS);
    EXPECT_EQ(second.Current().ListGetSelItems(IDC_SZN_YEARS_LIST), (std::vector<int>{1, 2}));
    EXPECT_EQ(second.Current().Control(IDC_SZN_YEARS_COUNT).text, "Total: 2");
    Press(second, &orv::HeadlessRunner::PressNext, IDD_SZN_FORM);
    EXPECT_EQ(second.Current().IsDlgButtonChecked(IDC_SZN_FORM_CASHSPRD), orv::kBstChecked);
    Press(second, &orv::HeadlessRunner::PressNext, IDD_SZN_CASHSPRD);
    EXPECT_EQ(second.Current().Control(IDC_SZN_CASHSPRD_SYMBOL1).text, "HO");
    EXPECT_EQ(second.Current().Control(IDC_SZN_CASHSPRD_SYMBOL2).text, "INDU.X");
    EXPECT_TRUE(second.runner.Sheet().PressCancel());
  });
}

TEST(SznWizard, TheRequestsContextComesBeforeTheHistory) {
  MemorySettingsStore store;
  store.WriteString("Software\\ZEL\\Chart", "Snl3WizSymbol_1", "HO?CL");
  WizardRun run(store);
  run.Run(Request(-1, "<Context><FormSel>5</FormSel><SymbolList><Symbol>ZW</Symbol></SymbolList></Context>"),
          [&](HeadlessSheetRunner&) {
            Press(run, &orv::HeadlessRunner::PressNext, IDD_SZN_YEARS);
            Press(run, &orv::HeadlessRunner::PressNext, IDD_SZN_FORM);
            // A form past the five checks no radio, and Next lands under construction.
            for (int radio = IDC_SZN_FORM_SNGLINST; radio <= IDC_SZN_FORM_CASHFUTSPRD; ++radio)
              EXPECT_EQ(run.Current().IsDlgButtonChecked(radio), orv::kBstUnchecked);
            Press(run, &orv::HeadlessRunner::PressNext, IDD_SZN_CONSTR);
            Press(run, &orv::HeadlessRunner::PressBack, IDD_SZN_MULT);
          });
  EXPECT_EQ(run.wizard.State().Symbol1, "ZW");
  EXPECT_EQ(run.wizard.State().Symbol2, "INDU.X") << "the history fills only an empty first symbol";
}

// The sheet comes up themed and tells the host's settings service of one use of the wizard; a
// host whose service is missing or fails that call still gets its wizard.
TEST(SznWizard, OpeningTellsTheHostOfOneUseWhateverItAnswers) {
  for (int variant = 0; variant < 3; ++variant) {
    orv::FakeHostServices host;
    host.ExpectNoTheme();  // the sheet's own children
    if (variant == 0) host.ExpectSetValue("Displays/Seasonal", "ByWizard", 1, 4, 5);
    if (variant == 1) host.ExpectSettingsFailure(orv::SettingsCall::SetValue, orv::kStatusFail);
    if (variant == 2) host.ExpectNoSettingsService();
    host.ExpectNoTheme();  // the first page
    orv::ScopedHostServices scoped(host);
    MemorySettingsStore store;
    WizardRun run(store);
    EXPECT_EQ(run.Run(Request(-1), [&](HeadlessSheetRunner&) { EXPECT_TRUE(run.runner.Sheet().PressCancel()); }), 0);
    EXPECT_TRUE(host.AllExpectationsMet()) << "variant " << variant;
    EXPECT_TRUE(host.UnexpectedCalls().empty()) << "variant " << variant;
  }
}

// Each page at its start: the wizard buttons of its place in the wizard, and its help text (the
// form's and the futures pages' are their own tests'); the lookup buttons stay hidden.
TEST(SznWizard, EveryPageStartsWithItsButtonsAndItsHelp) {
  constexpr unsigned kMiddle = orv::kWizBack | orv::kWizNext, kLast = orv::kWizBack | orv::kWizFinish;
  constexpr char kSymbolHelp[] =
      "Enter a single contract symbol.\r\n\r\n   Orvane will split the historical data between different years by "
      "season.";
  struct Row {
    int dialogId;
    unsigned buttons;
    int help;  // 0: no help of its own here
    const char* text;
  };
  const Row rows[] = {
      {IDD_SZN_SEASON, orv::kWizNext, IDC_SZN_SEASON_HELP,
       "Select a starting and ending month to define a season.\r\n\r\n   A season is one to twelve months long,    "
       "begins on the first day of the start month, and concludes on the last day of the end month.\r\n\r\n   "
       "To define a season which spans midnight of new-years day, set the ending month prior to the beginning month."},
      {IDD_SZN_YEARS, kMiddle, IDC_SZN_YEARS_HELP,
       "Select the years to chart.\r\n\r\n   Orvane will create one chart per selected year.\r\n\r\n   When a season "
       "spans two calendar years (includes midnight of new-years day),    Orvane begins the season on the starting "
       "month year."},
      {IDD_SZN_YRCOUNT, kMiddle, IDC_SZN_YRCOUNT_HELP,
       "Specify the number of years of history to chart.\r\n\r\n   Orvane will create one chart for every year "
       "beginning always with the most recent year.\r\n\r\n   When a season spans two calendar years (includes "
       "midnight of new-years day),    Orvane begins the season on the starting month year."},
      {IDD_SZN_FORM, kMiddle, 0, nullptr},
      {IDD_SZN_FUT1, kMiddle, 0, nullptr},
      {IDD_SZN_FUT2, kMiddle, 0, nullptr},
      {IDD_SZN_CASHSPRD, kMiddle, IDC_SZN_CASHSPRD_HELP,
       "Enter two different contract instruments to    create a cash spread.    Orvane will create the "
       "difference of the two contracts and split the    result by the yearly seasons."},
      {IDD_SZN_SNGLROOTFUT, kLast, 0, nullptr},
      {IDD_SZN_SNGLINST, kLast, IDC_SZN_SNGLINST_HELP, kSymbolHelp},
      {IDD_SZN_SNGLINSTMID, kMiddle, IDC_SZN_SNGLINSTMID_HELP, kSymbolHelp},
      {IDD_SZN_MULT, kLast, IDC_SZN_MULT_HELP,
       "Select spread mutlipliers or skip.     To compare items with different units of measure, enter an "
       "appropriate     units conversion may be applied to spreads.     Orvanx applies Multiplier1 to the first "
       "column of symbols and     Multiplier2 to the second column.     Press finish if you do not wish to enter "
       "any conversion multipliers."},
      {IDD_SZN_CONSTR, kLast, 0, nullptr},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.dialogId);
    szntest::SznPages pages;
    pages.State() = szntest::FirstRunState();
    pages.Start(row.dialogId);
    for (unsigned button : {orv::kWizBack, orv::kWizNext, orv::kWizFinish})
      EXPECT_EQ(pages.Wizard().IsWizardButtonEnabled(button), (row.buttons & button) != 0) << "button " << button;
    orv::FakeControls& c = pages.Controls(row.dialogId);
    if (row.help != 0) {
      EXPECT_EQ(c.GetDlgItemTextA(row.help, 4096), row.text);
    }
    for (int lookup : {IDC_SZN_SNGLINST_LOOKUP, IDC_SZN_SNGLINSTMID_LOOKUP, IDC_SZN_CASHSPRD_LOOKUP1,
                       IDC_SZN_CASHSPRD_LOOKUP2, IDC_SZN_FUT1_LOOKUP, IDC_SZN_FUT2_LOOKUP, IDC_SZN_SNGLROOT_LOOKUP}) {
      if (c.HasDlgItem(lookup)) {
        EXPECT_FALSE(c.IsDlgItemVisible(lookup)) << "lookup " << lookup;
      }
    }
  }
}

TEST(SznWizard, EveryPageAnswersHelpWithItsOwnTopic) {
  for (const auto& info : orv::seasonal::kSznPages) {
    szntest::SznPages pages;
    pages.Start(info.dialogId);
    EXPECT_TRUE(pages.PageOf(info.dialogId).OnHelp()) << info.name;
    EXPECT_EQ(pages.Controls(info.dialogId).HelpRequests(),
              (std::vector<std::pair<std::string, int>>{{"CHARTX", info.dialogId}}))
        << info.name;
  }
}

}  // namespace
