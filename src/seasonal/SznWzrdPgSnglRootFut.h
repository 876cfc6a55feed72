#pragma once
// CSznWzrdPgSnglRootFut: the wizard page of the futures of one root: root, month, years. Finish builds the labels.

#include "seasonal/SznFuturesPage.h"

class CSznWzrdPgSnglRootFut final : public orv::seasonal::CSznFuturesPage<CSznWzrdPgSnglRootFut, IDD_SZN_SNGLROOTFUT> {
 public:
  using CSznFuturesPage::CSznFuturesPage;
  static const orv::seasonal::SznFuturesTraits kFutures;
};
