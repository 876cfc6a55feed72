// The headless sheet: the order in which pages hear of init, activation, apply and cancel,
// and the in-memory controls' user input.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "dlgkit/Page.h"
#include "dlgkit/fake/HeadlessRunner.h"

namespace {

using orv::ApplyResult;
using orv::FakeControlKind;
using orv::HeadlessRunner;

constexpr int kEdit = 1200;
constexpr int kCheck = 1201;
constexpr int kRadioA = 1202;
constexpr int kRadioB = 1203;
constexpr int kCombo = 1204;
constexpr int kList = 1205;

// A page that logs what it hears into a log shared by all pages of a sheet.
class LoggingPage : public orv::Page {
 public:
  LoggingPage(std::string name, int dialogId, std::vector<std::string>& log)
      : name_(std::move(name)), dialogId_(dialogId), log_(log) {}

  int DialogId() const override { return dialogId_; }
  bool OnInitDialog(orv::Controls& controls, orv::WindowHandle, orv::WindowOps*) override {
    controls_ = &controls;
    Log("init");
    return true;
  }
  bool OnSetActive() override { Log("set"); return acceptActive; }
  bool OnKillActive() override { Log("kill"); return allowLeave; }
  ApplyResult OnApply() override {
    Log("apply");
    if (applyResult == ApplyResult::NoError && controls_) controls_->SendPageApply(dialogId_);
    return applyResult;
  }
  void OnReset() override { Log("reset"); }
  bool OnQueryCancel() override { Log("querycancel"); return allowCancel; }
  int OnWizardNext() override { Log("next"); return nextAnswer; }
  int OnWizardBack() override { Log("back"); return backAnswer; }
  bool OnWizardFinish() override { Log("finish"); return allowFinish; }
  void OnCommand(int id, int code) override {
    Log("command " + std::to_string(id) + "/" + std::to_string(code));
    if (throwOnCommand) throw std::runtime_error("page failed");
    if (id == kEdit && code == orv::kEnChange) controls_->SheetChanged();
  }
  bool OnNotify(int id, int code, const void* payload, std::intptr_t&) override {
    if (code == orv::kLvnItemChanged) {
      const auto* change = static_cast<const orv::ListViewItemChanged*>(payload);
      Log("itemchanged " + std::to_string(change->item) + (change->isChecked ? " checked" : " unchecked"));
      return true;
    }
    return false;
  }

  bool acceptActive = true;
  bool allowLeave = true;
  bool allowCancel = true;
  bool allowFinish = true;
  bool throwOnCommand = false;
  ApplyResult applyResult = ApplyResult::NoError;
  int nextAnswer = orv::kWizardDefault;
  int backAnswer = orv::kWizardDefault;

 private:
  void Log(const std::string& what) { log_.push_back(name_ + " " + what); }
  std::string name_;
  int dialogId_;
  std::vector<std::string>& log_;
  orv::Controls* controls_ = nullptr;
};

struct Sheet {
  std::vector<std::string> log;
  LoggingPage a{"A", 1314, log};
  LoggingPage b{"B", 1317, log};
  LoggingPage c{"C", 1352, log};
  orv::FakeControls ca, cb, cc;
  std::vector<int> applied;
  HeadlessRunner runner;

  explicit Sheet(HeadlessRunner::Mode mode = HeadlessRunner::Mode::Sheet) : runner(mode) {
    for (auto* controls : {&ca, &cb, &cc}) controls->Add(kEdit, FakeControlKind::Edit);
    runner.AddPage(a, ca);
    runner.AddPage(b, cb);
    runner.AddPage(c, cc);
    runner.SetPageApplyHandler([this](int id) { applied.push_back(id); return 0; });
  }
  std::vector<std::string> TakeLog() { return std::exchange(log, {}); }
};

using Log = std::vector<std::string>;

TEST(HeadlessRunner, StartCreatesOnlyTheFirstPage) {
  Sheet s;
  s.runner.Start();
  EXPECT_EQ(s.TakeLog(), (Log{"A init", "A set"}));
  EXPECT_TRUE(s.runner.IsCreated(0));
  EXPECT_FALSE(s.runner.IsCreated(1));
  EXPECT_EQ(s.runner.CurrentPage(), 0);
}

TEST(HeadlessRunner, ChangingTabsCreatesLazilyAndOnce) {
  Sheet s;
  s.runner.Start();
  s.TakeLog();
  EXPECT_TRUE(s.runner.SelectPage(2));
  EXPECT_EQ(s.TakeLog(), (Log{"A kill", "C init", "C set"}));
  EXPECT_TRUE(s.runner.SelectPage(0));
  EXPECT_EQ(s.TakeLog(), (Log{"C kill", "A set"}));
  EXPECT_FALSE(s.runner.IsCreated(1));
}

TEST(HeadlessRunner, KillActiveRefusalKeepsTheTab) {
  Sheet s;
  s.runner.Start();
  s.TakeLog();
  s.a.allowLeave = false;
  EXPECT_FALSE(s.runner.SelectPage(1));
  EXPECT_EQ(s.TakeLog(), (Log{"A kill"}));
  EXPECT_EQ(s.runner.CurrentPage(), 0);
  EXPECT_FALSE(s.runner.IsCreated(1));
}

TEST(HeadlessRunner, RefusedActivationMovesOnInTheSameDirection) {
  Sheet s;
  s.b.acceptActive = false;
  s.runner.Start(1);
  EXPECT_EQ(s.TakeLog(), (Log{"B init", "B set", "C init", "C set"}));
  EXPECT_EQ(s.runner.CurrentPage(), 2);
}

TEST(HeadlessRunner, ApplyButtonNeedsAChangeThenAppliesEveryCreatedPageInOrder) {
  Sheet s;
  s.runner.Start();
  s.runner.SelectPage(2);
  s.TakeLog();
  EXPECT_FALSE(s.runner.IsApplyEnabled());
  EXPECT_FALSE(s.runner.PressApply());  // the button is off: nothing happens
  EXPECT_TRUE(s.TakeLog().empty());

  s.cc.TypeText(kEdit, "1.5");
  EXPECT_TRUE(s.runner.IsApplyEnabled());
  s.TakeLog();
  EXPECT_TRUE(s.runner.PressApply());
  // B was never shown, so it isn't asked; the current page is activated again afterwards.
  EXPECT_EQ(s.TakeLog(), (Log{"C kill", "A apply", "C apply", "C set"}));
  EXPECT_EQ(s.applied, (std::vector<int>{1314, 1352}));
  EXPECT_FALSE(s.runner.IsApplyEnabled());
  EXPECT_TRUE(s.runner.IsRunning());
}

TEST(HeadlessRunner, ApplyStopsAtTheFirstRefusal) {
  Sheet s;
  s.runner.Start();
  s.runner.SelectPage(1);
  s.runner.SelectPage(2);
  s.cc.TypeText(kEdit, "x");
  s.TakeLog();
  s.b.applyResult = ApplyResult::Invalid;
  EXPECT_FALSE(s.runner.PressApply());
  // PSNRET_INVALID: the refusing page is brought to the top, unasked; C is never asked.
  EXPECT_EQ(s.TakeLog(), (Log{"C kill", "A apply", "B apply"}));
  EXPECT_EQ(s.runner.CurrentPage(), 1);
  EXPECT_TRUE(s.runner.IsApplyEnabled());

  s.b.applyResult = ApplyResult::InvalidNoChangePage;
  s.runner.SelectPage(2);
  s.TakeLog();
  EXPECT_FALSE(s.runner.PressApply());
  EXPECT_EQ(s.TakeLog(), (Log{"C kill", "A apply", "B apply"}));
  EXPECT_EQ(s.runner.CurrentPage(), 2);
}

TEST(HeadlessRunner, KillActiveRefusalStopsApplyAndOk) {
  Sheet s;
  s.runner.Start();
  s.ca.TypeText(kEdit, "x");
  s.a.allowLeave = false;
  s.TakeLog();
  EXPECT_FALSE(s.runner.PressApply());
  EXPECT_FALSE(s.runner.PressOk());
  EXPECT_EQ(s.TakeLog(), (Log{"A kill", "A kill"}));
  EXPECT_TRUE(s.runner.IsRunning());
}

TEST(HeadlessRunner, OkAppliesAndCloses) {
  Sheet s;
  s.runner.Start();
  s.TakeLog();
  EXPECT_TRUE(s.runner.PressOk());
  EXPECT_EQ(s.TakeLog(), (Log{"A kill", "A apply"}));
  EXPECT_FALSE(s.runner.IsRunning());
  EXPECT_EQ(s.runner.Result(), 1);
}

TEST(HeadlessRunner, CancelResetsCreatedPagesAndGivesZeroEvenAfterAnApply) {
  Sheet s;
  s.runner.Start();
  s.runner.SelectPage(1);
  s.TakeLog();
  EXPECT_TRUE(s.runner.PressCancel());
  EXPECT_EQ(s.TakeLog(), (Log{"B querycancel", "A reset", "B reset"}));
  EXPECT_EQ(s.runner.Result(), 0);

  Sheet t;
  t.runner.Start();
  t.ca.TypeText(kEdit, "x");
  ASSERT_TRUE(t.runner.PressApply());
  t.a.allowCancel = false;
  EXPECT_FALSE(t.runner.PressCancel());
  EXPECT_TRUE(t.runner.IsRunning());
  t.a.allowCancel = true;
  EXPECT_TRUE(t.runner.PressCancel());
  EXPECT_EQ(t.runner.Result(), 0);
}

TEST(HeadlessRunner, PageExceptionEndsTheRunWithMinusOne) {
  struct Throwing : LoggingPage {
    using LoggingPage::LoggingPage;
    bool OnKillActive() override { throw std::runtime_error("kill failed"); }
  };
  std::vector<std::string> log;
  Throwing first{"T", 1, log};
  LoggingPage second{"S", 2, log};
  orv::FakeControls c1, c2;
  HeadlessRunner runner;
  runner.AddPage(first, c1);
  runner.AddPage(second, c2);
  runner.Start();
  EXPECT_THROW(runner.SelectPage(1), std::runtime_error);
  EXPECT_FALSE(runner.IsRunning());
  EXPECT_EQ(runner.Result(), -1);
  EXPECT_THROW(runner.PressOk(), std::logic_error);  // the run is over
}

TEST(HeadlessWizard, NextBackJumpAndStay) {
  Sheet s(HeadlessRunner::Mode::Wizard);
  s.runner.Start();
  s.TakeLog();
  EXPECT_TRUE(s.runner.PressNext());
  EXPECT_EQ(s.TakeLog(), (Log{"A next", "A kill", "B init", "B set"}));
  s.b.nextAnswer = orv::kWizardStay;
  EXPECT_FALSE(s.runner.PressNext());
  EXPECT_EQ(s.runner.CurrentPage(), 1);
  s.b.backAnswer = 1352;  // jump by dialog id, backwards in sheet order or not
  s.TakeLog();
  EXPECT_TRUE(s.runner.PressBack());
  EXPECT_EQ(s.TakeLog(), (Log{"B back", "B kill", "C init", "C set"}));
  s.b.backAnswer = orv::kWizardDefault;
  EXPECT_TRUE(s.runner.PressBack());
  EXPECT_EQ(s.runner.CurrentPage(), 1);
  EXPECT_TRUE(s.runner.PressBack());
  EXPECT_EQ(s.runner.CurrentPage(), 0);
  EXPECT_FALSE(s.runner.PressBack());  // nothing before the first page
  EXPECT_THROW(s.runner.PressApply(), std::logic_error);
}

TEST(HeadlessWizard, FinishNeedsTheButtonAndThePagesConsent) {
  Sheet s(HeadlessRunner::Mode::Wizard);
  s.runner.Start();
  s.ca.SetWizardButtons(orv::kWizNext);
  s.TakeLog();
  EXPECT_FALSE(s.runner.PressFinish());  // not offered on this page
  EXPECT_TRUE(s.TakeLog().empty());
  s.ca.SetWizardButtons(orv::kWizBack | orv::kWizFinish);
  s.a.allowFinish = false;
  EXPECT_FALSE(s.runner.PressFinish());
  EXPECT_TRUE(s.runner.IsRunning());
  s.a.allowFinish = true;
  EXPECT_TRUE(s.runner.PressFinish());
  EXPECT_EQ(s.TakeLog(), (Log{"A finish", "A finish"}));
  EXPECT_EQ(s.runner.Result(), 1);
}

TEST(FakeControls, UserInputProducesTheControlsNotifications) {
  std::vector<std::string> log;
  LoggingPage page{"P", 1, log};
  orv::FakeControls controls;
  controls.Add(kEdit, FakeControlKind::Edit)
      .Add(kCheck, FakeControlKind::CheckBox)
      .AddRadio(kRadioA, 1)
      .AddRadio(kRadioB, 1)
      .Add(kCombo, FakeControlKind::ComboBox)
      .Add(kList, FakeControlKind::ListView);
  controls.ComboAddString(kCombo, "one", 1);
  controls.ListViewInsertItem(kList, 0, "row");
  page.OnInitDialog(controls, nullptr, nullptr);
  controls.AttachPage(&page);
  log.clear();

  controls.CheckDlgButton(kCheck, 1);          // programmatic: silent
  controls.ComboSetCurSel(kCombo, 0);          // silent
  controls.Click(kCheck);
  EXPECT_EQ(controls.IsDlgButtonChecked(kCheck), 0);
  controls.Click(kRadioA);
  controls.Click(kRadioB);
  EXPECT_EQ(controls.IsDlgButtonChecked(kRadioA), 0);
  EXPECT_EQ(controls.IsDlgButtonChecked(kRadioB), 1);
  controls.SelectComboItem(kCombo, 0);
  controls.ClickListViewCheck(kList, 0);
  controls.SetDlgItemTextA(kEdit, "set");      // an edit announces even a programmatic change
  EXPECT_EQ(log, (Log{"P command 1201/0", "P command 1202/0", "P command 1203/0", "P command 1204/1",
                      "P itemchanged 0 checked", "P command 1200/768"}));
  EXPECT_TRUE(controls.IsSheetChanged());

  controls.EnableDlgItem(kEdit, false);
  EXPECT_THROW(controls.TypeText(kEdit, "x"), std::logic_error);
  controls.ShowDlgItem(kCheck, false);
  EXPECT_THROW(controls.Click(kCheck), std::logic_error);
  EXPECT_THROW(controls.Click(kEdit), std::logic_error);
  EXPECT_THROW(controls.SelectComboItem(kCombo, 5), std::logic_error);
}

// What a box keeps of each state it is given, and where a user's click takes it: the platform's
// rules, which DataExchangeWin32Test checks against real buttons with the same table.
TEST(FakeControls, CheckStatesAreWhatTheBoxCanHold) {
  struct Case {
    bool threeState;
    int set;
    int kept;
    int afterClick;
  };
  const Case cases[] = {
      {false, 0, 0, 1}, {false, 1, 1, 0}, {false, 2, 1, 0}, {false, -1, 1, 0},
      {true, 0, 0, 1},  {true, 1, 1, 2},  {true, 2, 2, 0},  {true, 7, 2, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << (c.threeState ? "three-state" : "two-state") << " set " << c.set);
    orv::FakeControls controls;
    controls.Add(kCheck, FakeControlKind::CheckBox);
    controls.Control(kCheck).threeState = c.threeState;
    EXPECT_TRUE(controls.CheckDlgButton(kCheck, c.set));
    EXPECT_EQ(controls.IsDlgButtonChecked(kCheck), c.kept);
    controls.Click(kCheck);
    EXPECT_EQ(controls.IsDlgButtonChecked(kCheck), c.afterClick);
  }
}

TEST(FakeControls, TextLimitStopsTheUserNotTheProgram) {
  orv::FakeControls controls;
  controls.Add(kEdit, FakeControlKind::Edit).Add(kCheck, FakeControlKind::CheckBox);
  EXPECT_TRUE(controls.LimitDlgItemText(kEdit, 4));
  EXPECT_FALSE(controls.LimitDlgItemText(kCheck, 4)) << "only an edit takes a limit";
  controls.TypeText(kEdit, "123456");
  EXPECT_EQ(controls.GetDlgItemTextA(kEdit, 64), "1234");
  controls.SetDlgItemTextA(kEdit, "abcdef");
  EXPECT_EQ(controls.GetDlgItemTextA(kEdit, 64), "abcdef");
}

TEST(FakeControls, MessageBoxesAreRecordedAndAnswered) {
  orv::FakeControls controls;
  EXPECT_EQ(controls.OrvMessageBox("Delete Line?", "Delete", 36), 6);  // first button: Yes
  controls.AnswerNextMessageBox(7);
  EXPECT_EQ(controls.OrvMessageBox("Again?", "Delete", 36), 7);
  ASSERT_EQ(controls.MessageBoxes().size(), 2u);
  EXPECT_EQ(controls.MessageBoxes()[1].text, "Again?");
  EXPECT_EQ(controls.MessageBoxes()[1].flags, 36u);
}

TEST(FakeControls, AbsentControlsReadEmptyAndRefuseWrites) {
  orv::FakeControls controls;
  bool translated = true;
  EXPECT_EQ(controls.GetDlgItemInt(5, &translated, true), 0u);
  EXPECT_FALSE(translated);
  EXPECT_EQ(controls.GetDlgItemTextA(5, 32), "");
  EXPECT_FALSE(controls.SetDlgItemTextA(5, "x"));
  EXPECT_EQ(controls.ComboGetCurSel(5), -1);
  EXPECT_FALSE(controls.DateTimeGetSystemTime(5));
  EXPECT_FALSE(controls.MoveDlgItemTo(5, 6));
  EXPECT_FALSE(controls.SetFocus(5));
}

}  // namespace
