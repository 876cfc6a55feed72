#include "linestudies/LsPageTable.h"

#include "linestudies/LsPgAdvanced.h"

namespace orv {

namespace {

template <class P>
std::unique_ptr<LineStudyPage> Make() {
  return std::make_unique<P>();
}

// The Day and Intra pages, the statistics position page and the volume profile page take chart
// data; the line pages, text, advanced and statistics display pages don't.
constexpr LsPageInfo kPages[kLsPageCount] = {
    {"GraphObjLinePg", "CGraphObjLinePg", 1335, nullptr, false},
    {"LsPgDayFibo", "CLsPgDayFibo", 1314, nullptr, true},
    {"LsPgDayVert", "CLsPgDayVert", 1319, nullptr, true},
    {"LsPgDayHorz", "CLsPgDayHorz", 1318, nullptr, true},
    {"LsPgDayTrend", "CLsPgDayTrend", 1317, nullptr, true},
    {"LsPgDayGann", "CLsPgDayGann", 1315, nullptr, true},
    {"LsPgDayPfork", "CLsPgDayPfork", 1316, nullptr, true},
    {"LsPgDayShape", "CLsPgDayShape", 1320, nullptr, true},
    {"LsPgDayCycfnd", "CLsPgDayCycfnd", 1321, nullptr, true},
    {"LsPgIntraTrend", "CLsPgIntraTrend", 1326, nullptr, true},
    {"LsPgIntraVert", "CLsPgIntraVert", 1327, nullptr, true},
    {"LsPgIntraFibo", "CLsPgIntraFibo", 1323, nullptr, true},
    {"LsPgIntraGann", "CLsPgIntraGann", 1324, nullptr, true},
    {"LsPgIntraPfork", "CLsPgIntraPfork", 1325, nullptr, true},
    {"LsPgIntraShape", "CLsPgIntraShape", 1328, nullptr, true},
    {"LsPgIntraCycfnd", "CLsPgIntraCycfnd", 1329, nullptr, true},
    {"LsPgLineFibo", "CLsPgLineFibo", 1330, nullptr, false},
    {"LsPgLineGann", "CLsPgLineGann", 1331, nullptr, false},
    {"LsPgLinePfork", "CLsPgLinePfork", 1332, nullptr, false},
    {"LsPgText", "CLsPgText", 1333, nullptr, false},
    {"LsPgAdvanced", "CLsPgAdvanced", 1352, &Make<CLsPgAdvanced>, false},
    {"LsPgStatsShow", "CLsPgStatsShow", 1353, nullptr, false},
    {"LsPgStatsPos", "CLsPgStatsPos", 1354, nullptr, true},
    {"LsPgVolProf", "CLsPgVolProf", 1357, nullptr, true},
    {"LsPgDayVWAP", "CLsPgDayVWAP", 1363, nullptr, true},
    {"LsPgIntraVWAP", "CLsPgIntraVWAP", 1364, nullptr, true},
    {"LsPgDayLRC", "CLsPgDayLRC", 1365, nullptr, true},
    {"LsPgIntraLRC", "CLsPgIntraLRC", 1366, nullptr, true},
    {"LsPgDayParallel", "CLsPgDayParallel", 1394, nullptr, true},
    {"LsPgIntraParallel", "CLsPgIntraParallel", 1395, nullptr, true},
    {"LsPgLineParallel", "CLsPgLineParallel", 1396, nullptr, false},
};

}  // namespace

std::span<const LsPageInfo, kLsPageCount> LsPageTable() { return std::span<const LsPageInfo, kLsPageCount>(kPages); }

}  // namespace orv
