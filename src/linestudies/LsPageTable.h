#pragma once
// The line study sheet's table of pages, in the order a page name is compared at load. The
// dialog id is the page's template, and its code in the apply message.

#include <memory>
#include <span>

#include "linestudies/LineStudyPage.h"

namespace orv {

struct LsPageInfo {
  const char* name;       // the PropertyPage's Name, compared case-sensitively
  const char* className;  // the page's class
  int dialogId;
  // Makes the page; null for a page that is not built yet (its name is then passed over).
  std::unique_ptr<LineStudyPage> (*create)();
  bool takesChartData;
};

inline constexpr std::size_t kLsPageCount = 31;

std::span<const LsPageInfo, kLsPageCount> LsPageTable();

}  // namespace orv
