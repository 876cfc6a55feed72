#pragma once
// CSznWzrdPgConstr: the wizard page of where a form without pages of its own lands.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgConstr final : public orv::seasonal::CWzrdPg<CSznWzrdPgConstr, IDD_SZN_CONSTR> {
 public:
  using CWzrdPg::CWzrdPg;
};
