#include "host/SheetDispatcher.h"

#include <cstring>
#include <memory>
#include <string>

#include "host/ActivationContext.h"
#include "host/ChartPages.h"

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
  ScopedUiActivation activation;
  switch (kind) {
    case SheetKind::CustomLines:
    case SheetKind::LineStudies:
    case SheetKind::SeasonalWizard:
    case SheetKind::None:
      break;
  }
  (void)owner;
  (void)chartData;
  (void)withChartData;
  (void)parent;
  return result;
}

SheetDispatcher& TheSheetDispatcher() {
  if (!g_dispatcher) g_dispatcher = std::make_unique<SheetDispatcher>();
  return *g_dispatcher;
}

void DestroySheetDispatcher() noexcept { g_dispatcher.reset(); }

bool SheetDispatcherExists() noexcept { return static_cast<bool>(g_dispatcher); }

}  // namespace orv::host
