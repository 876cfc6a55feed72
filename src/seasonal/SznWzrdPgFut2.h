#pragma once
// CSznWzrdPgFut2: the wizard page of the second set of futures contracts: root, month, years.

#include "seasonal/SznFuturesPage.h"

class CSznWzrdPgFut2 final : public orv::seasonal::CSznFuturesPage<CSznWzrdPgFut2, IDD_SZN_FUT2> {
 public:
  using CSznFuturesPage::CSznFuturesPage;
  static const orv::seasonal::SznFuturesTraits kFutures;
};
