#pragma once
// CSznWzrdPgYrCount: the wizard page of the number of years of history to chart, 1 to 99. It
// stands in for the Years and Contract Form pages when the host asks for a count: its Next takes
// the single instrument form.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgYrCount final : public orv::seasonal::CWzrdPg<CSznWzrdPgYrCount, IDD_SZN_YRCOUNT> {
 public:
  using CWzrdPg::CWzrdPg;

  static constexpr int kMinYears = 1;
  static constexpr int kMaxYears = 99;

  int OnWizardNext() override;
  int OnWizardBack() override;

 protected:
  bool OnInitPage() override;
};
