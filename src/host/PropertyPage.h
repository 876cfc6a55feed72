#pragma once
// CChartPropertyPage: the one IPropertyPage of every chart page class. A host's property frame
// makes it through the class factory, gives it a site and the chart object (SetObjects), and
// shows it: Activate makes the page's dialog as a child of the frame's window through the kit's
// dialog procedure, so the page is an ordinary orv::Page. What the page reads and writes, and
// when it is dirty, is the portable frame's (chartpages/ChartPage.h); this object only carries
// COM. Apartment-threaded, single-thread counts, plain or aggregated.

#include <windows.h>
#include <ocidl.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "chartpages/ChartPage.h"
#include "com/ComPtr.h"
#include "dlgkit/win32/DialogHost.h"
#include "host/Module.h"

namespace orv::host {

class CChartPropertyPage final : public IPropertyPage, private orv::ChartPageConnection {
 public:
  // `outer` null: a plain object; otherwise its IUnknown methods go to `outer`. Starts with no
  // reference: query NonDelegatingUnknown().
  CChartPropertyPage(IUnknown* outer, std::unique_ptr<orv::ChartPage> page);
  CChartPropertyPage(const CChartPropertyPage&) = delete;
  CChartPropertyPage& operator=(const CChartPropertyPage&) = delete;

  IUnknown& NonDelegatingUnknown() noexcept { return inner_; }

  // IUnknown: the controlling unknown's.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // IPropertyPage.
  HRESULT STDMETHODCALLTYPE SetPageSite(IPropertyPageSite* site) override;
  HRESULT STDMETHODCALLTYPE Activate(HWND parent, LPCRECT rect, BOOL modal) override;
  HRESULT STDMETHODCALLTYPE Deactivate() override;
  HRESULT STDMETHODCALLTYPE GetPageInfo(PROPPAGEINFO* info) override;
  HRESULT STDMETHODCALLTYPE SetObjects(ULONG count, IUnknown** objects) override;
  HRESULT STDMETHODCALLTYPE Show(UINT command) override;
  HRESULT STDMETHODCALLTYPE Move(LPCRECT rect) override;
  HRESULT STDMETHODCALLTYPE IsPageDirty() override;
  HRESULT STDMETHODCALLTYPE Apply() override;
  HRESULT STDMETHODCALLTYPE Help(LPCOLESTR helpDir) override;
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message) override;

  // The page's window while it is active, else null; the size Activate was given.
  HWND Window() const noexcept { return window_; }
  SIZE ActivatedSize() const noexcept { return size_; }
  orv::ChartPageFrame& Frame() noexcept { return frame_; }

 private:
  class Inner final : public IUnknown {
   public:
    explicit Inner(CChartPropertyPage& object) noexcept : object_(object) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

   private:
    CChartPropertyPage& object_;
  };

  ~CChartPropertyPage();

  // ChartPageConnection: the first object's IChartPageHost; the site.
  std::unique_ptr<orv::ChartPageHost> QueryHost() override;
  void OnStatusChange(std::uint32_t flags) override;

  void DestroyPageWindow() noexcept;

  ModuleLock lock_;
  ULONG refs_ = 0;
  Inner inner_{*this};
  IUnknown* controlling_;  // the outer unknown, or &inner_; not owned
  orv::ChartPageFrame frame_;
  ComPtr<IPropertyPageSite> site_;
  std::vector<ComPtr<IUnknown>> objects_;
  std::unique_ptr<orv::DialogHost> dialog_;
  HWND window_ = nullptr;
  SIZE size_{0, 0};
};

// Makes one page object of the class whose page `make` creates (the class table's creators).
using ChartPageMaker = std::unique_ptr<orv::ChartPage> (*)();
HRESULT CreateChartPropertyPage(IUnknown* outer, REFIID iid, void** object, ChartPageMaker make);

// The class table's creator of page class PageT.
template <class PageT>
HRESULT CreateChartPage(IUnknown* outer, REFIID iid, void** object) {
  return CreateChartPropertyPage(outer, iid, object,
                                 []() -> std::unique_ptr<orv::ChartPage> { return std::make_unique<PageT>(); });
}

// The platform's WinHelp, through which Help shows a page's help; a test puts its own in place
// and gets the previous one back.
using WinHelpFunction = BOOL(WINAPI*)(HWND window, LPCWSTR file, UINT command, ULONG_PTR data);
WinHelpFunction SetPageWinHelp(WinHelpFunction function) noexcept;

}  // namespace orv::host
