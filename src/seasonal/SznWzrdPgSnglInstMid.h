#pragma once
// CSznWzrdPgSnglInstMid: the wizard page of the symbol of a cash futures spread, before the
// futures set. Next takes the symbol.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgSnglInstMid final : public orv::seasonal::CWzrdPg<CSznWzrdPgSnglInstMid, IDD_SZN_SNGLINSTMID> {
 public:
  using CWzrdPg::CWzrdPg;

  int OnWizardNext() override;
  int OnWizardBack() override;

 protected:
  bool OnInitPage() override;
};
