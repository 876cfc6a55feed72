#pragma once
// CSznWzrdPgMult: the wizard page of the conversion multipliers of a spread.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgMult final : public orv::seasonal::CWzrdPg<CSznWzrdPgMult, IDD_SZN_MULT> {
 public:
  using CWzrdPg::CWzrdPg;
};
