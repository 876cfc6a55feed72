#pragma once
// The platform's property sheet (PropertySheetA) as a SheetRunner.

#include <windows.h>

#include "dlgkit/SheetRunner.h"

namespace orv {

class SheetRunnerWin32 final : public SheetRunner {
 public:
  std::intptr_t Run(const SheetSetup& setup) override;
};

// The module holding the kit's code: the DLL in the component, the program in a test.
HMODULE KitModule();

}  // namespace orv
