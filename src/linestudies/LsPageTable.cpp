#include "linestudies/LsPageTable.h"

#include "linestudies/GraphObjLinePg.h"
#include "linestudies/LsPgAdvanced.h"
#include "linestudies/LsPgDayCycfnd.h"
#include "linestudies/LsPgDayFibo.h"
#include "linestudies/LsPgDayGann.h"
#include "linestudies/LsPgDayHorz.h"
#include "linestudies/LsPgDayLRC.h"
#include "linestudies/LsPgDayParallel.h"
#include "linestudies/LsPgDayPfork.h"
#include "linestudies/LsPgDayTrend.h"
#include "linestudies/LsPgDayVWAP.h"
#include "linestudies/LsPgDayVert.h"
#include "linestudies/LsPgIntraCycfnd.h"
#include "linestudies/LsPgIntraFibo.h"
#include "linestudies/LsPgIntraGann.h"
#include "linestudies/LsPgIntraLRC.h"
#include "linestudies/LsPgIntraParallel.h"
#include "linestudies/LsPgIntraPfork.h"
#include "linestudies/LsPgIntraTrend.h"
#include "linestudies/LsPgIntraVWAP.h"
#include "linestudies/LsPgIntraVert.h"
#include "linestudies/LsPgLineFibo.h"
#include "linestudies/LsPgLineGann.h"
#include "linestudies/LsPgLineParallel.h"
#include "linestudies/LsPgLinePfork.h"
#include "linestudies/LsPgText.h"

namespace orv {

namespace {

template <class P>
std::unique_ptr<LineStudyPage> Make() {
  return std::make_unique<P>();
}

// The Day and Intra pages, the statistics position page and the volume profile page take chart
// data; the line pages, text, advanced and statistics display pages don't.
constexpr LsPageInfo kPages[kLsPageCount] = {
    {"GraphObjLinePg", "CGraphObjLinePg", 1335, &Make<CGraphObjLinePg>, false},
    {"LsPgDayFibo", "CLsPgDayFibo", 1314, &Make<CLsPgDayFibo>, true},
    {"LsPgDayVert", "CLsPgDayVert", 1319, &Make<CLsPgDayVert>, true},
    {"LsPgDayHorz", "CLsPgDayHorz", 1318, &Make<CLsPgDayHorz>, true},
    {"LsPgDayTrend", "CLsPgDayTrend", 1317, &Make<CLsPgDayTrend>, true},
    {"LsPgDayGann", "CLsPgDayGann", 1315, &Make<CLsPgDayGann>, true},
    {"LsPgDayPfork", "CLsPgDayPfork", 1316, &Make<CLsPgDayPfork>, true},
    {"LsPgDayShape", "CLsPgDayShape", 1320, nullptr, true},
    {"LsPgDayCycfnd", "CLsPgDayCycfnd", 1321, &Make<CLsPgDayCycfnd>, true},
    {"LsPgIntraTrend", "CLsPgIntraTrend", 1326, &Make<CLsPgIntraTrend>, true},
    {"LsPgIntraVert", "CLsPgIntraVert", 1327, &Make<CLsPgIntraVert>, true},
    {"LsPgIntraFibo", "CLsPgIntraFibo", 1323, &Make<CLsPgIntraFibo>, true},
    {"LsPgIntraGann", "CLsPgIntraGann", 1324, &Make<CLsPgIntraGann>, true},
    {"LsPgIntraPfork", "CLsPgIntraPfork", 1325, &Make<CLsPgIntraPfork>, true},
    {"LsPgIntraShape", "CLsPgIntraShape", 1328, nullptr, true},
    {"LsPgIntraCycfnd", "CLsPgIntraCycfnd", 1329, &Make<CLsPgIntraCycfnd>, true},
    {"LsPgLineFibo", "CLsPgLineFibo", 1330, &Make<CLsPgLineFibo>, false},
    {"LsPgLineGann", "CLsPgLineGann", 1331, &Make<CLsPgLineGann>, false},
    {"LsPgLinePfork", "CLsPgLinePfork", 1332, &Make<CLsPgLinePfork>, false},
    {"LsPgText", "CLsPgText", 1333, &Make<CLsPgText>, false},
    {"LsPgAdvanced", "CLsPgAdvanced", 1352, &Make<CLsPgAdvanced>, false},
    {"LsPgStatsShow", "CLsPgStatsShow", 1353, nullptr, false},
    {"LsPgStatsPos", "CLsPgStatsPos", 1354, nullptr, true},
    {"LsPgVolProf", "CLsPgVolProf", 1357, nullptr, true},
    {"LsPgDayVWAP", "CLsPgDayVWAP", 1363, &Make<CLsPgDayVWAP>, true},
    {"LsPgIntraVWAP", "CLsPgIntraVWAP", 1364, &Make<CLsPgIntraVWAP>, true},
    {"LsPgDayLRC", "CLsPgDayLRC", 1365, &Make<CLsPgDayLRC>, true},
    {"LsPgIntraLRC", "CLsPgIntraLRC", 1366, &Make<CLsPgIntraLRC>, true},
    {"LsPgDayParallel", "CLsPgDayParallel", 1394, &Make<CLsPgDayParallel>, true},
    {"LsPgIntraParallel", "CLsPgIntraParallel", 1395, &Make<CLsPgIntraParallel>, true},
    {"LsPgLineParallel", "CLsPgLineParallel", 1396, &Make<CLsPgLineParallel>, false},
};

}  // namespace

std::span<const LsPageInfo, kLsPageCount> LsPageTable() { return std::span<const LsPageInfo, kLsPageCount>(kPages); }

}  // namespace orv
