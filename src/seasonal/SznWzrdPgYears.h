#pragma once
// CSznWzrdPgYears: the wizard page of the calendar years to chart, picked from a list.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgYears final : public orv::seasonal::CWzrdPg<CSznWzrdPgYears, IDD_SZN_YEARS> {
 public:
  using CWzrdPg::CWzrdPg;
};
