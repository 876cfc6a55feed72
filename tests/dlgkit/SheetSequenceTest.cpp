// The shared sheet sessions on the headless sheet: every page hears what the platform's sheet
// would tell it, in the same order.
#include <gtest/gtest.h>

#include "SheetSequences.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"

namespace {

using namespace orv::seqtest;

class HeadlessDriver final : public SheetDriver {
 public:
  explicit HeadlessDriver(orv::HeadlessSheetRunner& runner) : runner_(runner) {}
  int CurrentTab() override { return runner_.Sheet().CurrentPage(); }
  bool ApplyEnabled() override { return runner_.Sheet().IsApplyEnabled(); }
  void ClickTab(int index) override { runner_.Sheet().SelectPage(index); }
  void TypeIntoCurrentPage() override { runner_.Tab(CurrentTab()).TypeText(IDC_SEQ_EDIT, "1"); }
  void PressApply() override { runner_.Sheet().PressApply(); }
  void PressOk() override { runner_.Sheet().PressOk(); }
  void PressCancel() override { runner_.Sheet().PressCancel(); }
  bool WizardButtonEnabled(unsigned button) override { return runner_.Sheet().IsWizardButtonEnabled(button); }
  void PressBack() override { runner_.Sheet().PressBack(); }
  void PressNext() override { runner_.Sheet().PressNext(); }
  void PressFinish() override { runner_.Sheet().PressFinish(); }

 private:
  orv::HeadlessSheetRunner& runner_;
};

class SheetSequence : public ::testing::TestWithParam<SequenceCase> {};

TEST_P(SheetSequence, PagesHearWhatThePlatformSheetTellsThem) {
  const SequenceCase& c = GetParam();
  Session session(c);
  orv::HeadlessSheetRunner runner;
  for (int id : {IDD_SEQ_PAGE_A, IDD_SEQ_PAGE_B, IDD_SEQ_PAGE_C})
    runner.SetLayout(id, [](orv::FakeControls& controls) { controls.Add(IDC_SEQ_EDIT, orv::FakeControlKind::Edit); });
  bool leftOpen = false;
  runner.SetScript([&](orv::HeadlessSheetRunner& sheet) {
    HeadlessDriver driver(sheet);
    for (const Step& step : c.steps) {
      if (!sheet.Sheet().IsRunning()) break;
      PlayStep(step, driver, session.log);
    }
    leftOpen = sheet.Sheet().IsRunning();
  });
  const std::intptr_t result = runner.Run(session.setup);
  session.log.push_back("result " + std::to_string(result));
  EXPECT_FALSE(leftOpen) << "the session's last step closes the sheet";
  EXPECT_EQ(session.log, c.expected);
}

INSTANTIATE_TEST_SUITE_P(Sessions, SheetSequence, ::testing::ValuesIn(SequenceCases()),
                         [](const auto& info) { return CaseName(info.param); });

}  // namespace
