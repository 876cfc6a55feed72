#pragma once
// CSznWzrdPgSnglRootFut: the wizard page of the futures of one root: root, month, years.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgSnglRootFut final : public orv::seasonal::CWzrdPg<CSznWzrdPgSnglRootFut, IDD_SZN_SNGLROOTFUT> {
 public:
  using CWzrdPg::CWzrdPg;
};
