#include "seasonal/SznPageTable.h"

#include "seasonal/SznWzrdPgSeason.h"
#include "seasonal/SznWzrdPgYears.h"
#include "seasonal/SznWzrdPgYrCount.h"
#include "seasonal/SznWzrdPgForm.h"
#include "seasonal/SznWzrdPgFut1.h"
#include "seasonal/SznWzrdPgFut2.h"
#include "seasonal/SznWzrdPgCashSprd.h"
#include "seasonal/SznWzrdPgSnglRootFut.h"
#include "seasonal/SznWzrdPgSnglInst.h"
#include "seasonal/SznWzrdPgSnglInstMid.h"
#include "seasonal/SznWzrdPgMult.h"
#include "seasonal/SznWzrdPgConstr.h"

namespace orv::seasonal {

std::unique_ptr<CPgBase> MakeSznPage(std::size_t index, SznWzrdContext& context) {
  switch (index) {
    case 0:
      return std::make_unique<CSznWzrdPgSeason>(context, kSznPages[0].position);
    case 1:
      return std::make_unique<CSznWzrdPgYears>(context, kSznPages[1].position);
    case 2:
      return std::make_unique<CSznWzrdPgYrCount>(context, kSznPages[2].position);
    case 3:
      return std::make_unique<CSznWzrdPgForm>(context, kSznPages[3].position);
    case 4:
      return std::make_unique<CSznWzrdPgFut1>(context, kSznPages[4].position);
    case 5:
      return std::make_unique<CSznWzrdPgFut2>(context, kSznPages[5].position);
    case 6:
      return std::make_unique<CSznWzrdPgCashSprd>(context, kSznPages[6].position);
    case 7:
      return std::make_unique<CSznWzrdPgSnglRootFut>(context, kSznPages[7].position);
    case 8:
      return std::make_unique<CSznWzrdPgSnglInst>(context, kSznPages[8].position);
    case 9:
      return std::make_unique<CSznWzrdPgSnglInstMid>(context, kSznPages[9].position);
    case 10:
      return std::make_unique<CSznWzrdPgMult>(context, kSznPages[10].position);
    case 11:
      return std::make_unique<CSznWzrdPgConstr>(context, kSznPages[11].position);
    default:
      return nullptr;
  }
}

}  // namespace orv::seasonal
