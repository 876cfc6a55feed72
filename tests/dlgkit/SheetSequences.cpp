// The sessions both sheets play, with what every page must hear. Pages are A, B, C in tab order.
#include "SheetSequences.h"

namespace orv::seqtest {

namespace {

PageRole Plain() { return {}; }
PageRole ChangesWhileCreated() {
  PageRole role;
  role.changesOnInit = true;
  return role;
}
PageRole RefusesToLeave(int times) {
  PageRole role;
  role.refuseLeave = times;
  return role;
}
PageRole RefusesToShow() {
  PageRole role;
  role.refuseShow = true;
  return role;
}
PageRole RefusesFirstApply(ApplyResult answer) {
  PageRole role;
  role.firstApply = answer;
  return role;
}
PageRole Offers(unsigned buttons) {
  PageRole role;
  role.wizardButtons = buttons;
  return role;
}
PageRole OffersAndRefusesToLeave(unsigned buttons, int times) {
  PageRole role = Offers(buttons);
  role.refuseLeave = times;
  return role;
}
PageRole RefusesCancelOnce() {
  PageRole role;
  role.refuseCancel = true;
  return role;
}

}  // namespace

const std::vector<SequenceCase>& SequenceCases() {
  static const std::vector<SequenceCase> cases = {
      {"CancelAtOnceResetsOnlyTheStartPage",
       {Plain(), Plain(), Plain()},
       0,
       false,
       {kCancel},
       {"sheet initialized", "A init", "A set",               //
        "now A", "press Cancel", "A querycancel", "A reset",  //
        "result 0"}},
      {"AnotherStartPageIsTheOnlyOneCreated",
       {Plain(), Plain(), Plain()},
       1,
       false,
       {kCancel},
       {"sheet initialized", "B init", "B set",               //
        "now B", "press Cancel", "B querycancel", "B reset",  //
        "result 0"}},
      {"TabChangesCreateEachPageOnceAndLeaveItAlive",
       {Plain(), Plain(), Plain()},
       0,
       false,
       {Click(2), Click(0), Click(1), Click(2), kCancel},
       {"sheet initialized",
        "A init",
        "A set",  //
        "now A",
        "click C",
        "A kill",
        "C init",
        "C set",  //
        "now C",
        "click A",
        "C kill",
        "A set",  //
        "now A",
        "click B",
        "A kill",
        "B init",
        "B set",  //
        "now B",
        "click C",
        "B kill",
        "C set",  //
        "now C",
        "press Cancel",
        "C querycancel",
        "A reset",
        "B reset",
        "C reset",  //
        "result 0"}},
      {"ApplyReachesEveryCreatedPageInTabOrderAndOkAgain",
       {Plain(), Plain(), Plain()},
       0,
       false,
       {kEdit, Click(2), kApply, kOk},
       {"sheet initialized",
        "A init",
        "A set",  //
        "now A",
        "type",
        "A changed",  //
        "now A, Apply on",
        "click C",
        "A kill",
        "C init",
        "C set",  //
        "now C, Apply on",
        "press Apply",
        "C kill",
        "A apply",
        "sheet apply A",
        "C apply",
        "sheet apply C",
        "C set",  //
        "now C",
        "press OK",
        "C kill",
        "A apply",
        "sheet apply A",
        "C apply",
        "sheet apply C",  //
        "result 1"}},
      {"ApplyButtonStaysOffWithoutAChange",
       {Plain(), Plain(), Plain()},
       0,
       false,
       {Click(1), kApply, kCancel},
       {"sheet initialized", "A init", "A set",                          //
        "now A", "click B", "A kill", "B init", "B set",                 //
        "now B", "press Apply",                                          //
        "now B", "press Cancel", "B querycancel", "A reset", "B reset",  //
        "result 0"}},
      {"OkLeavesPagesNeverVisitedAlone",
       {Plain(), Plain(), Plain()},
       0,
       false,
       {kEdit, kOk},
       {"sheet initialized", "A init", "A set",                               //
        "now A", "type", "A changed",                                         //
        "now A, Apply on", "press OK", "A kill", "A apply", "sheet apply A",  //
        "result 1"}},
      {"CancelAfterApplyResetsAndGivesZero",
       {Plain(), Plain(), Plain()},
       0,
       false,
       {kEdit, Click(1), kApply, kCancel},
       {"sheet initialized",
        "A init",
        "A set",  //
        "now A",
        "type",
        "A changed",  //
        "now A, Apply on",
        "click B",
        "A kill",
        "B init",
        "B set",  //
        "now B, Apply on",
        "press Apply",
        "B kill",
        "A apply",
        "sheet apply A",
        "B apply",
        "sheet apply B",
        "B set",  //
        "now B",
        "press Cancel",
        "B querycancel",
        "A reset",
        "B reset",  //
        "result 0"}},
      {"APageThatMayNotBeLeftKeepsItsTabAndRefusesOk",
       {Plain(), RefusesToLeave(2), Plain()},
       0,
       false,
       {kEdit, Click(1), Click(2), kOk, kOk},
       {"sheet initialized",
        "A init",
        "A set",  //
        "now A",
        "type",
        "A changed",  //
        "now A, Apply on",
        "click B",
        "A kill",
        "B init",
        "B set",  //
        "now B, Apply on",
        "click C",
        "B kill",  //
        "now B, Apply on",
        "press OK",
        "B kill",  //
        "now B, Apply on",
        "press OK",
        "B kill",
        "A apply",
        "sheet apply A",
        "B apply",
        "sheet apply B",  //
        "result 1"}},
      {"ARefusedApplyShowsTheRefusingPage",
       {RefusesFirstApply(ApplyResult::Invalid), Plain(), Plain()},
       0,
       false,
       {kEdit, Click(2), kApply, kCancel},
       {"sheet initialized",
        "A init",
        "A set",  //
        "now A",
        "type",
        "A changed",  //
        "now A, Apply on",
        "click C",
        "A kill",
        "C init",
        "C set",  //
        "now C, Apply on",
        "press Apply",
        "C kill",
        "A apply",  //
        "now A, Apply on",
        "press Cancel",
        "A querycancel",
        "A reset",
        "C reset",  //
        "result 0"}},
      {"ARefusedApplyThatKeepsThePageStaysPut",
       {RefusesFirstApply(ApplyResult::InvalidNoChangePage), Plain(), Plain()},
       0,
       false,
       {kEdit, Click(2), kApply, kCancel},
       {"sheet initialized",
        "A init",
        "A set",  //
        "now A",
        "type",
        "A changed",  //
        "now A, Apply on",
        "click C",
        "A kill",
        "C init",
        "C set",  //
        "now C, Apply on",
        "press Apply",
        "C kill",
        "A apply",  //
        "now C, Apply on",
        "press Cancel",
        "C querycancel",
        "A reset",
        "C reset",  //
        "result 0"}},
      {"APageRefusingToShowIsPassedOverForwards",
       {Plain(), RefusesToShow(), Plain()},
       0,
       false,
       {Click(1), Click(1), kCancel},
       {"sheet initialized",
        "A init",
        "A set",  //
        "now A",
        "click B",
        "A kill",
        "B init",
        "B set",
        "C init",
        "C set",  //
        "now C",
        "click B",
        "C kill",
        "B set",
        "C set",  //
        "now C",
        "press Cancel",
        "C querycancel",
        "A reset",
        "B reset",
        "C reset",  //
        "result 0"}},
      {"ALastPageRefusingToShowIsShownAllTheSame",
       {Plain(), Plain(), RefusesToShow()},
       0,
       false,
       {Click(2), kCancel},
       {"sheet initialized", "A init", "A set",                          //
        "now A", "click C", "A kill", "C init", "C set",                 //
        "now C", "press Cancel", "C querycancel", "A reset", "C reset",  //
        "result 0"}},
      {"ARefusedCancelKeepsTheSheetUp",
       {RefusesCancelOnce(), Plain(), Plain()},
       0,
       false,
       {kCancel, kCancel},
       {"sheet initialized", "A init", "A set",               //
        "now A", "press Cancel", "A querycancel",             //
        "now A", "press Cancel", "A querycancel", "A reset",  //
        "result 0"}},
      {"AChangeTheStartPageMakesWhileItStartsLeavesApplyOff",
       {ChangesWhileCreated(), Plain(), Plain()},
       0,
       false,
       {Click(1), kCancel},
       {"sheet initialized", "A init", "A set",                          //
        "now A", "click B", "A kill", "B init", "B set",                 //
        "now B", "press Cancel", "B querycancel", "A reset", "B reset",  //
        "result 0"}},
      {"AChangeALaterPageMakesWhileItStartsTurnsApplyOn",
       {Plain(), ChangesWhileCreated(), Plain()},
       0,
       false,
       {Click(1), kApply, kCancel},
       {"sheet initialized",
        "A init",
        "A set",  //
        "now A",
        "click B",
        "A kill",
        "B init",
        "B set",  //
        "now B, Apply on",
        "press Apply",
        "B kill",
        "A apply",
        "sheet apply A",
        "B apply",
        "sheet apply B",
        "B set",  //
        "now B",
        "press Cancel",
        "B querycancel",
        "A reset",
        "B reset",  //
        "result 0"}},
      {"WizardGoesNextNextAndFinishes",
       {Offers(kWizNext), Offers(kWizBack | kWizNext), Offers(kWizBack | kWizFinish)},
       0,
       true,
       {kNext, kNext, kFinish},
       {"sheet initialized", "A init", "A set",                                    //
        "now A, Next", "press Next", "A next", "A kill", "B init", "B set",        //
        "now B, Back, Next", "press Next", "B next", "B kill", "C init", "C set",  //
        "now C, Back, Finish", "press Finish", "C finish",                         //
        "result 1"}},
      {"WizardPageThatMayNotBeLeftKeepsNextAndBackGoesBack",
       {Offers(kWizNext), OffersAndRefusesToLeave(kWizBack | kWizNext, 1), Offers(kWizBack | kWizFinish)},
       0,
       true,
       {kNext, kNext, kBack, kNext, kCancel},
       {"sheet initialized", "A init",       "A set",                                         //
        "now A, Next",       "press Next",   "A next",        "A kill",  "B init",  "B set",  //
        "now B, Back, Next", "press Next",   "B next",        "B kill",                       //
        "now B, Back, Next", "press Back",   "B back",        "B kill",  "A set",             //
        "now A, Next",       "press Next",   "A next",        "A kill",  "B set",             //
        "now B, Back, Next", "press Cancel", "B querycancel", "A reset", "B reset",           //
        "result 0"}},
      {"WizardOffersBackAndNextUntilAPageSaysOtherwise",
       {Plain(), Plain(), Plain()},
       0,
       true,
       {kFinish, kNext, kNext, kNext, kCancel},
       {"sheet initialized", "A init",       "A set",                                           //
        "now A, Back, Next", "press Finish",                                                    //
        "now A, Back, Next", "press Next",   "A next",        "A kill",  "B init",  "B set",    //
        "now B, Back, Next", "press Next",   "B next",        "B kill",  "C init",  "C set",    //
        "now C, Back, Next", "press Next",   "C next",                                          //
        "now C, Back, Next", "press Cancel", "C querycancel", "A reset", "B reset", "C reset",  //
        "result 0"}},
      {"WizardButtonsAreTheWizardsNotThePages",
       {Offers(kWizNext), Plain(), Offers(kWizBack | kWizFinish)},
       0,
       true,
       {kNext, kNext, kBack, kFinish},
       {"sheet initialized",
        "A init",
        "A set",  //
        "now A, Next",
        "press Next",
        "A next",
        "A kill",
        "B init",
        "B set",  //
        "now B, Next",
        "press Next",
        "B next",
        "B kill",
        "C init",
        "C set",  //
        "now C, Back, Finish",
        "press Back",
        "C back",
        "C kill",
        "B set",  //
        "now B, Back, Finish",
        "press Finish",
        "B finish",  //
        "result 1"}},
  };
  return cases;
}

}  // namespace orv::seqtest
