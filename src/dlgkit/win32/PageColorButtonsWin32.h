#pragma once
// The pages' colour buttons on the platform: CWtlColorBtn on the page's owner-drawn buttons.

#include <memory>

#include "dlgkit/PageColorButtons.h"

namespace orv {

std::unique_ptr<orv::PageColorButtons> MakeWin32PageColorButtons();

}  // namespace orv
