#include "host/SheetDispatcher.h"

#include <cstring>
#include <memory>
#include <string>

#include "dlgkit/SettingsStore.h"
#include "dlgkit/SheetRunner.h"
#include "dlgkit/win32/ChartDataWin32.h"
#include "dlgkit/win32/PageColorButtonsWin32.h"
#include "host/ActivationContext.h"
#include "host/ChartPages.h"
#include "linestudies/LsPs.h"
#include "seasonal/SznWzrdPs.h"

namespace orv::host {
namespace {

// One global pointer; the apartment model is its guard (only the host's thread comes here).
std::unique_ptr<SheetDispatcher> g_dispatcher;

// The sheets by PropertySheet/@Name, compared byte for byte in this order.
enum class SheetKind { None, CustomLines, LineStudies, SeasonalWizard };

SheetKind KindOf(const std::string& name) {
  if (name == "CustomLines") return SheetKind::CustomLines;
  if (name == "LSPs") return SheetKind::LineStudies;
  if (name == "SznWzrdPs") return SheetKind::SeasonalWizard;
  return SheetKind::None;
}

}  // namespace

long SheetDispatcher::RunSheet(CChartPages* owner, XmlNode doc) const {
  return Run(owner, std::move(doc), nullptr, false);
}

long SheetDispatcher::RunSheet2(CChartPages* owner, XmlNode doc, IUnknown* chartData) const {
  return Run(owner, std::move(doc), chartData, true);
}

long SheetDispatcher::Run(CChartPages* owner, XmlNode doc, IUnknown* chartData, bool withChartData) const {
  long result = kSheetNotFound;
  XmlNode sheet = XmlFindNode(doc, "PropertySheet", true);
  if (!sheet) return result;
  std::string name;
  XmlGetAttr(sheet, "Name", name);
  SheetKind kind = KindOf(name);
  if (kind == SheetKind::None) return result;

  // The sheet is parented to whatever window of this thread is active now (null is handed on).
  HWND parent = GetActiveWindow();
  // The sheet's windows are made in the component's context (comctl32 v6), whatever the host's.
  ScopedUiActivation activation;
  switch (kind) {
    case SheetKind::LineStudies: {
      // The pages' colour buttons are the platform's.
      orv::SetPageColorButtonsMaker(&orv::MakeWin32PageColorButtons);
      CLsPs<CChartPages> lineStudies(owner);
      lineStudies.InitFromXml(sheet);
      if (withChartData) lineStudies.SetChartData(orv::WrapChartData(chartData));
      result = static_cast<long>(lineStudies.DoModal(parent));
      break;
    }
    case SheetKind::SeasonalWizard: {
      // The wizard keeps its history in the current user's registry; it fires its one event
      // from inside Run, after Finish.
      const std::unique_ptr<orv::SettingsStore> store = orv::CreateUserSettingsStore();
      CSznWzrdPs<CChartPages> wizard(owner, *store);
      result = static_cast<long>(wizard.Run(sheet, *orv::CreatePlatformSheetRunner(), parent));
      break;
    }
    case SheetKind::CustomLines: {
      // Until its pages exist this sheet runs empty, with the buttons and the outcome it will have.
      orv::SheetSetup setup;
      setup.parent = parent;
      XmlGetAttr(sheet, "Title", setup.title);
      result = static_cast<long>(orv::CreatePlatformSheetRunner()->Run(setup));
      break;
    }
    case SheetKind::None:
      break;
  }
  return result;
}

SheetDispatcher& TheSheetDispatcher() {
  if (!g_dispatcher) g_dispatcher = std::make_unique<SheetDispatcher>();
  return *g_dispatcher;
}

void DestroySheetDispatcher() noexcept { g_dispatcher.reset(); }

bool SheetDispatcherExists() noexcept { return static_cast<bool>(g_dispatcher); }

}  // namespace orv::host
