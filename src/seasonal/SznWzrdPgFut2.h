#pragma once
// CSznWzrdPgFut2: the wizard page of the second set of futures contracts: root, month, years.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgFut2 final : public orv::seasonal::CWzrdPg<CSznWzrdPgFut2, IDD_SZN_FUT2> {
 public:
  using CWzrdPg::CWzrdPg;
};
