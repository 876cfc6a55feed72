#pragma once
// The seasonal wizard's twelve pages: table key, dialog id, title, position. The sheet makes one
// object of each, in this order, and enters it in its page table under its key.

#include <array>
#include <memory>

#include "seasonal/SznWzrdPg.h"

namespace orv::seasonal {

struct SznPageInfo {
  const char* name;  // the PropertyPage Name a host gives
  int dialogId;
  const char* title;  // the template's caption
  int position;       // WizardPagePosition
};

inline constexpr std::array<SznPageInfo, 12> kSznPages = {{
    {"SznWzrdPgSeason", IDD_SZN_SEASON, "Season", kPosFirst},
    {"SznWzrdPgYears", IDD_SZN_YEARS, "Years", kPosMiddle},
    {"SznWzrdPgYrCount", IDD_SZN_YRCOUNT, "Year Count", kPosMiddle},
    {"SznWzrdPgForm", IDD_SZN_FORM, "Contract Form", kPosMiddle},
    {"SznWzrdPgFut1", IDD_SZN_FUT1, "First Futures Contracts", kPosMiddle},
    {"SznWzrdPgFut2", IDD_SZN_FUT2, "Second Futures Contracts", kPosMiddle},
    {"SznWzrdPgCashSprd", IDD_SZN_CASHSPRD, "Symbols", kPosMiddle},
    {"SznWzrdPgSnglRootFut", IDD_SZN_SNGLROOTFUT, "Single Root Futures", kPosLast},
    {"SznWzrdPgSnglInst", IDD_SZN_SNGLINST, "Symbol", kPosLast},
    {"SznWzrdPgSnglInstMid", IDD_SZN_SNGLINSTMID, "Symbol", kPosMiddle},
    {"SznWzrdPgMult", IDD_SZN_MULT, "Multipliers", kPosLast},
    {"SznWzrdPgConstr", IDD_SZN_CONSTR, "Under Construction", kPosLast},
}};

// The page object of kSznPages[index], working on `context`.
std::unique_ptr<CPgBase> MakeSznPage(std::size_t index, SznWzrdContext& context);

}  // namespace orv::seasonal
