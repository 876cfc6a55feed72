#pragma once
// CSznWzrdPgForm: the wizard page of the contract form, one of five. The help text at the left
// describes the form that is checked; a form the page has no radio for checks none.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgForm final : public orv::seasonal::CWzrdPg<CSznWzrdPgForm, IDD_SZN_FORM> {
 public:
  using CWzrdPg::CWzrdPg;

  // The radios in the order of the forms (kFormSingleInstrument first).
  static constexpr int kFormButtons[5] = {IDC_SZN_FORM_SNGLINST, IDC_SZN_FORM_SNGLROOTFUT, IDC_SZN_FORM_CASHSPRD,
                                          IDC_SZN_FORM_FUTSPRD, IDC_SZN_FORM_CASHFUTSPRD};

  // The description of a form; "" for a value that is no form.
  static const char* FormText(int formSel);

  int OnWizardNext() override;
  int OnWizardBack() override;
  void OnCommand(int id, int code) override;

 protected:
  bool OnInitPage() override;

 private:
  // The index of the checked radio, -1 when none is.
  int ReadFormGroup();
};
