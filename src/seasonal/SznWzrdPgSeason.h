#pragma once
// CSznWzrdPgSeason: the wizard page of the season: start and end month, and its preview.

#include "seasonal/SznWzrdPg.h"

class CSznWzrdPgSeason final : public orv::seasonal::CWzrdPg<CSznWzrdPgSeason, IDD_SZN_SEASON> {
 public:
  using CWzrdPg::CWzrdPg;
};
