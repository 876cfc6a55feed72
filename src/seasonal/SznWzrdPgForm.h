#pragma once
// CSznWzrdPgForm: the wizard page of the contract form, one of five.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgForm final : public orv::seasonal::CWzrdPg<CSznWzrdPgForm, IDD_SZN_FORM> {
 public:
  using CWzrdPg::CWzrdPg;
};
