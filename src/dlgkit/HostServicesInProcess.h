#pragma once
// A host inside the process that serves one given theme and has no help service: the demo
// program uses it to show a themed dialog without a registered host application. It keeps no
// values and no documents: those calls answer result 1 (none).

#include "dlgkit/HostServices.h"

namespace orv {

class InProcessHostServices : public HostServices {
 public:
  explicit InProcessHostServices(const ThemeColors& theme) : theme_(theme) {}
  std::unique_ptr<SettingsService> CreateSettingsService() override;
  std::unique_ptr<HelpService> CreateHelpService() override { return nullptr; }

 private:
  ThemeColors theme_;
};

}  // namespace orv
