#pragma once
// CSznWzrdPgSnglInst: the wizard page of the one symbol of a single instrument.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgSnglInst final : public orv::seasonal::CWzrdPg<CSznWzrdPgSnglInst, IDD_SZN_SNGLINST> {
 public:
  using CWzrdPg::CWzrdPg;
};
