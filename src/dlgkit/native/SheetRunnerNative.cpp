// Natively there is no platform sheet: a run cannot show anything.
#include "dlgkit/SheetRunner.h"

namespace orv {

namespace {

class NoSheetRunner final : public SheetRunner {
 public:
  std::intptr_t Run(const SheetSetup&) override { return -1; }
};

}  // namespace

std::unique_ptr<SheetRunner> CreatePlatformSheetRunner() { return std::make_unique<NoSheetRunner>(); }

}  // namespace orv
