// The sessions both sheets play, with what every page must hear. Pages are A, B, C in tab order.
#include "SheetSequences.h"

#include <string_view>
#include <utility>

namespace orv::seqtest {

namespace {

// A log written as one text, its entries separated by "; ".
Log Lines(std::string_view text) {
  Log log;
  for (std::size_t at = 0;;) {
    const std::size_t end = text.find("; ", at);
    log.emplace_back(text.substr(at, end - at));
    if (end == std::string_view::npos) return log;
    at = end + 2;
  }
}

// One session; its log is written as one text, as for Lines.
SequenceCase Case(const char* name, std::vector<PageRole> pages, int startPage, bool wizard, std::vector<Step> steps,
                  std::string_view log) {
  return {name, std::move(pages), startPage, wizard, std::move(steps), Lines(log)};
}

}  // namespace

const std::vector<SequenceCase>& SequenceCases() {
  static const std::vector<SequenceCase> cases = {
      Case("CancelAtOnceResetsOnlyTheStartPage", {{}, {}, {}}, 0, false, {kCancel},
           "sheet initialized; A init; A set; "
           "now A; press Cancel; A querycancel; A reset; "
           "result 0"),
      Case("AnotherStartPageIsTheOnlyOneCreated", {{}, {}, {}}, 1, false, {kCancel},
           "sheet initialized; B init; B set; "
           "now B; press Cancel; B querycancel; B reset; "
           "result 0"),
      Case("TabChangesCreateEachPageOnceAndLeaveItAlive", {{}, {}, {}}, 0, false,
           {Click(2), Click(0), Click(1), Click(2), kCancel},
           "sheet initialized; A init; A set; "
           "now A; click C; A kill; C init; C set; "
           "now C; click A; C kill; A set; "
           "now A; click B; A kill; B init; B set; "
           "now B; click C; B kill; C set; "
           "now C; press Cancel; C querycancel; A reset; B reset; C reset; "
           "result 0"),
      Case("ApplyReachesEveryCreatedPageInTabOrderAndOkAgain", {{}, {}, {}}, 0, false, {kEdit, Click(2), kApply, kOk},
           "sheet initialized; A init; A set; "
           "now A; type; A changed; "
           "now A, Apply on; click C; A kill; C init; C set; "
           "now C, Apply on; press Apply; C kill; A apply; sheet apply A; C apply; sheet apply C; C set; "
           "now C; press OK; C kill; A apply; sheet apply A; C apply; sheet apply C; "
           "result 1"),
      Case("ApplyButtonStaysOffWithoutAChange", {{}, {}, {}}, 0, false, {Click(1), kApply, kCancel},
           "sheet initialized; A init; A set; "
           "now A; click B; A kill; B init; B set; "
           "now B; press Apply; "
           "now B; press Cancel; B querycancel; A reset; B reset; "
           "result 0"),
      Case("OkLeavesPagesNeverVisitedAlone", {{}, {}, {}}, 0, false, {kEdit, kOk},
           "sheet initialized; A init; A set; "
           "now A; type; A changed; "
           "now A, Apply on; press OK; A kill; A apply; sheet apply A; "
           "result 1"),
      Case("CancelAfterApplyResetsAndGivesZero", {{}, {}, {}}, 0, false, {kEdit, Click(1), kApply, kCancel},
           "sheet initialized; A init; A set; "
           "now A; type; A changed; "
           "now A, Apply on; click B; A kill; B init; B set; "
           "now B, Apply on; press Apply; B kill; A apply; sheet apply A; B apply; sheet apply B; B set; "
           "now B; press Cancel; B querycancel; A reset; B reset; "
           "result 0"),
      Case("APageThatMayNotBeLeftKeepsItsTabAndRefusesOk", {{}, {.refuseLeave = 2}, {}}, 0, false,
           {kEdit, Click(1), Click(2), kOk, kOk},
           "sheet initialized; A init; A set; "
           "now A; type; A changed; "
           "now A, Apply on; click B; A kill; B init; B set; "
           "now B, Apply on; click C; B kill; "
           "now B, Apply on; press OK; B kill; "
           "now B, Apply on; press OK; B kill; A apply; sheet apply A; B apply; sheet apply B; "
           "result 1"),
      Case("ARefusedApplyShowsTheRefusingPage", {{.firstApply = ApplyResult::Invalid}, {}, {}}, 0, false,
           {kEdit, Click(2), kApply, kCancel},
           "sheet initialized; A init; A set; "
           "now A; type; A changed; "
           "now A, Apply on; click C; A kill; C init; C set; "
           "now C, Apply on; press Apply; C kill; A apply; "
           "now A, Apply on; press Cancel; A querycancel; A reset; C reset; "
           "result 0"),
      Case("ARefusedApplyThatKeepsThePageStaysPut", {{.firstApply = ApplyResult::InvalidNoChangePage}, {}, {}}, 0,
           false, {kEdit, Click(2), kApply, kCancel},
           "sheet initialized; A init; A set; "
           "now A; type; A changed; "
           "now A, Apply on; click C; A kill; C init; C set; "
           "now C, Apply on; press Apply; C kill; A apply; "
           "now C, Apply on; press Cancel; C querycancel; A reset; C reset; "
           "result 0"),
      Case("APageRefusingToShowIsPassedOverForwards", {{}, {.refuseShow = true}, {}}, 0, false,
           {Click(1), Click(1), kCancel},
           "sheet initialized; A init; A set; "
           "now A; click B; A kill; B init; B set; C init; C set; "
           "now C; click B; C kill; B set; C set; "
           "now C; press Cancel; C querycancel; A reset; B reset; C reset; "
           "result 0"),
      Case("ALastPageRefusingToShowIsShownAllTheSame", {{}, {}, {.refuseShow = true}}, 0, false, {Click(2), kCancel},
           "sheet initialized; A init; A set; "
           "now A; click C; A kill; C init; C set; "
           "now C; press Cancel; C querycancel; A reset; C reset; "
           "result 0"),
      Case("ARefusedCancelKeepsTheSheetUp", {{.refuseCancel = true}, {}, {}}, 0, false, {kCancel, kCancel},
           "sheet initialized; A init; A set; "
           "now A; press Cancel; A querycancel; "
           "now A; press Cancel; A querycancel; A reset; "
           "result 0"),
      Case("AChangeTheStartPageMakesWhileItStartsLeavesApplyOff", {{.changesOnInit = true}, {}, {}}, 0, false,
           {Click(1), kCancel},
           "sheet initialized; A init; A set; "
           "now A; click B; A kill; B init; B set; "
           "now B; press Cancel; B querycancel; A reset; B reset; "
           "result 0"),
      Case("AChangeALaterPageMakesWhileItStartsTurnsApplyOn", {{}, {.changesOnInit = true}, {}}, 0, false,
           {Click(1), kApply, kCancel},
           "sheet initialized; A init; A set; "
           "now A; click B; A kill; B init; B set; "
           "now B, Apply on; press Apply; B kill; A apply; sheet apply A; B apply; sheet apply B; B set; "
           "now B; press Cancel; B querycancel; A reset; B reset; "
           "result 0"),
      Case("WizardGoesNextNextAndFinishes",
           {{.wizardButtons = kWizNext},
            {.wizardButtons = kWizBack | kWizNext},
            {.wizardButtons = kWizBack | kWizFinish}},
           0, true, {kNext, kNext, kFinish},
           "sheet initialized; A init; A set; "
           "now A, Next; press Next; A next; A kill; B init; B set; "
           "now B, Back, Next; press Next; B next; B kill; C init; C set; "
           "now C, Back, Finish; press Finish; C finish; "
           "result 1"),
      Case("WizardPageThatMayNotBeLeftKeepsNextAndBackGoesBack",
           {{.wizardButtons = kWizNext},
            {.refuseLeave = 1, .wizardButtons = kWizBack | kWizNext},
            {.wizardButtons = kWizBack | kWizFinish}},
           0, true, {kNext, kNext, kBack, kNext, kCancel},
           "sheet initialized; A init; A set; "
           "now A, Next; press Next; A next; A kill; B init; B set; "
           "now B, Back, Next; press Next; B next; B kill; "
           "now B, Back, Next; press Back; B back; B kill; A set; "
           "now A, Next; press Next; A next; A kill; B set; "
           "now B, Back, Next; press Cancel; B querycancel; A reset; B reset; "
           "result 0"),
      Case("WizardOffersBackAndNextUntilAPageSaysOtherwise", {{}, {}, {}}, 0, true,
           {kFinish, kNext, kNext, kNext, kCancel},
           "sheet initialized; A init; A set; "
           "now A, Back, Next; press Finish; "
           "now A, Back, Next; press Next; A next; A kill; B init; B set; "
           "now B, Back, Next; press Next; B next; B kill; C init; C set; "
           "now C, Back, Next; press Next; C next; "
           "now C, Back, Next; press Cancel; C querycancel; A reset; B reset; C reset; "
           "result 0"),
      Case("WizardButtonsAreTheWizardsNotThePages",
           {{.wizardButtons = kWizNext}, {}, {.wizardButtons = kWizBack | kWizFinish}}, 0, true,
           {kNext, kNext, kBack, kFinish},
           "sheet initialized; A init; A set; "
           "now A, Next; press Next; A next; A kill; B init; B set; "
           "now B, Next; press Next; B next; B kill; C init; C set; "
           "now C, Back, Finish; press Back; C back; C kill; B set; "
           "now B, Back, Finish; press Finish; B finish; "
           "result 1"),
  };
  return cases;
}

}  // namespace orv::seqtest
