#pragma once
// CSznWzrdPgSnglInst: the wizard page of the one symbol of a single instrument, the last page of
// that form. Finish takes the symbol and builds the contract labels.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgSnglInst final : public orv::seasonal::CWzrdPg<CSznWzrdPgSnglInst, IDD_SZN_SNGLINST> {
 public:
  using CWzrdPg::CWzrdPg;

  int OnWizardBack() override;
  bool OnWizardFinish() override;

 protected:
  bool OnInitPage() override;
};
