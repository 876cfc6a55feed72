// orvhost as the property frame of a standalone chart page: it creates the page object by class
// id or ProgID, gives it a chart object of its own (IChartPageHost, serving the page's properties
// from the document and printing what the page writes back) and a site, and shows the page in a
// frame of its own with OK, Cancel and Apply, as a host application's frame does (the platform's
// OleCreatePropertyFrame never calls Apply under Wine). The frame answers the property sheet
// messages the script driver sends, so the same scripts drive it.
#pragma once

#include "Options.h"

#include <windows.h>
#include <msxml2.h>
#include <ocidl.h>

#include <cstdio>
#include <string>

#include "OrvChartDlgs_h.h"
#include "com/ComObject.h"
#include "com/ComPtr.h"

namespace orv::host_app {

// The chart object a page is given. GetPageProperties fills the page's root with the children of
// the document's first element named as the root (found 1), or leaves it (found 0);
// SetPageProperties prints "SetPageProperties: <scope> <xml>" (escaped as event texts are).
// Each call is printed: "GetPageProperties: <scope> <root name> found|not found".
class PageHostObject final : public ComObject<PageHostObject, IChartPageHost> {
 public:
  static std::span<const ComInterfaceEntry> Interfaces();
  PageHostObject(ComPtr<IXMLDOMDocument2> document, std::FILE* out) : document_(std::move(document)), out_(out) {}

  HRESULT STDMETHODCALLTYPE GetPageProperties(LONG scope, IUnknown* root, LONG* found) override;
  HRESULT STDMETHODCALLTYPE SetPageProperties(LONG scope, IUnknown* root, LONG* result) override;

 private:
  ComPtr<IXMLDOMDocument2> document_;
  std::FILE* out_;
};

// The page object of --page: through the DLL (direct) or COM (registered).
class PageInstance {
 public:
  PageInstance() = default;
  PageInstance(const PageInstance&) = delete;
  PageInstance& operator=(const PageInstance&) = delete;
  ~PageInstance();
  bool Create(const Options& options, std::string& error);
  IPropertyPage* Page() const { return page_.get(); }

 private:
  HMODULE library_ = nullptr;
  ComPtr<IPropertyPage> page_;  // released before the library is freed
};

// Shows `page` with `host` as its object until OK or Cancel; prints each status the page reports
// ("OnStatusChange: <flags>"). The result: 1 closed by OK, 0 by Cancel, -1 the page could not be
// shown (`error` says why).
int RunPageFrame(IPropertyPage* page, IUnknown* host, std::FILE* out, std::string& error);

}  // namespace orv::host_app
