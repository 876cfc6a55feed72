#pragma once
// CSznWzrdPgFut1: the wizard page of the first set of futures contracts: root, month, years.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgFut1 final : public orv::seasonal::CWzrdPg<CSznWzrdPgFut1, IDD_SZN_FUT1> {
 public:
  using CWzrdPg::CWzrdPg;
};
