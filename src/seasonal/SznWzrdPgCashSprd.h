#pragma once
// CSznWzrdPgCashSprd: the wizard page of the two symbols of a cash spread.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgCashSprd final : public orv::seasonal::CWzrdPg<CSznWzrdPgCashSprd, IDD_SZN_CASHSPRD> {
 public:
  using CWzrdPg::CWzrdPg;
};
