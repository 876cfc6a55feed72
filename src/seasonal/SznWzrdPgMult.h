#pragma once
// CSznWzrdPgMult: the wizard page of the conversion multipliers of a spread. Any number is taken,
// 0 and negative ones too. Leaving the page, by Back or Finish, stores what the page holds in the
// state, also when a field doesn't read; such a field keeps the user on the page.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgMult final : public orv::seasonal::CWzrdPg<CSznWzrdPgMult, IDD_SZN_MULT> {
 public:
  using CWzrdPg::CWzrdPg;

  bool OnKillActive() override;
  int OnWizardBack() override;
  bool OnWizardFinish() override;

 protected:
  bool OnInitPage() override;

 private:
  // Reads both fields (stopping at the first that doesn't read) and stores the page's values in
  // the state; true when both read.
  bool ReadMultipliers();

  double multiplier1_ = 1.0;
  double multiplier2_ = 1.0;
};
