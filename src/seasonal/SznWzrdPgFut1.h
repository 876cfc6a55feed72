#pragma once
// CSznWzrdPgFut1: the wizard page of the first set of futures contracts: root, month, years.

#include "seasonal/SznFuturesPage.h"

class CSznWzrdPgFut1 final : public orv::seasonal::CSznFuturesPage<CSznWzrdPgFut1, IDD_SZN_FUT1> {
 public:
  using CSznFuturesPage::CSznFuturesPage;
  static const orv::seasonal::SznFuturesTraits kFutures;
};
