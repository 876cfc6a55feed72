#pragma once
// The chart pages' colour buttons on the platform: CWtlColorBtn on the page's owner-drawn buttons.

#include <memory>

#include "chartpages/PageColorButtons.h"

namespace orv::host {

std::unique_ptr<orv::PageColorButtons> MakeWin32PageColorButtons();

}  // namespace orv::host
