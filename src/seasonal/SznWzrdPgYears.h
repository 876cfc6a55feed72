#pragma once
// CSznWzrdPgYears: the wizard page of the calendar years to chart, picked from a list.
//
// The list holds 50 years from the current one down. A pick is kept as row indexes (distances from
// the current year) and as the years themselves, both in list order; the page starts from the
// indexes, or from the three most recent years when there are none.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgYears final : public orv::seasonal::CWzrdPg<CSznWzrdPgYears, IDD_SZN_YEARS> {
 public:
  using CWzrdPg::CWzrdPg;

  static constexpr int kRows = 50;

  int OnWizardNext() override;
  int OnWizardBack() override;
  void OnCommand(int id, int code) override;

 protected:
  bool OnInitPage() override;

 private:
  void ShowCount();
};
