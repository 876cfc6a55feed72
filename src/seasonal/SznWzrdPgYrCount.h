#pragma once
// CSznWzrdPgYrCount: the wizard page of the number of years of history to chart.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgYrCount final : public orv::seasonal::CWzrdPg<CSznWzrdPgYrCount, IDD_SZN_YRCOUNT> {
 public:
  using CWzrdPg::CWzrdPg;
};
