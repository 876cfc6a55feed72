#pragma once
// What the line study sheet asks of each of its pages: load from its PropertyPage element, save
// into a new one, tell whether the user changed it, take the chart's values.

#include <memory>

#include "dlgkit/ChartData.h"
#include "dlgkit/Controls.h"
#include "dlgkit/Page.h"
#include "dlgkit/Window.h"
#include "xml/Xml.h"

namespace orv {

class LineStudyPage {
 public:
  virtual ~LineStudyPage() = default;

  virtual Page& AsPage() = 0;
  // Reads the page's values from its PropertyPage element (of the sheet's own copy).
  virtual bool Load(XmlNode propertyPage) = 0;
  // Appends the page's values to a new PropertyPage element.
  virtual void Save(XmlNode propertyPage) = 0;
  virtual bool IsDirty() const = 0;
  // Only the pages that take chart data (see the page table) keep it.
  virtual void SetChartData(ChartDataRef chartData) {}

  // One page object in two tabs (its name twice in the sheet): each tab has its own window and
  // controls, and the sheet points the object at the tab it is driving (LsSheetTab).
  virtual void BindWindow(Controls& controls, WindowHandle window) = 0;
  // Fills a further window of the object as its first was filled at init.
  virtual bool InitFurtherWindow() = 0;
  // Shows the object's values in the bound window again: the user worked in the other window
  // since this one was last shown.
  virtual void ReloadWindow() = 0;
};

}  // namespace orv
