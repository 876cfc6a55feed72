#pragma once
// CSznWzrdPgCashSprd: the wizard page of the two symbols of a cash spread. Next stores both in
// the state and asks for both; that they differ is asked of the user in the help text only.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgCashSprd final : public orv::seasonal::CWzrdPg<CSznWzrdPgCashSprd, IDD_SZN_CASHSPRD> {
 public:
  using CWzrdPg::CWzrdPg;

  int OnWizardNext() override;
  int OnWizardBack() override;

 protected:
  bool OnInitPage() override;
};
