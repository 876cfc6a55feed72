#pragma once
// CChartPages: the object through which a host opens the modal sheets (ProgID
// "OrvChartDlgs.ChartPages"). IChartPages is dual, its IDispatch served from the type library;
// _IChartPagesEvents goes to every connected sink. Apartment-threaded, single-thread counts,
// plain or aggregated. It is the owner the sheets fire StatusEvent through.

#include <windows.h>
#include <ocidl.h>

#include <cstdint>
#include <string>

#include "OrvChartDlgs_h.h"
#include "dlgkit/SheetOwner.h"
#include "host/ConnectionPoint.h"
#include "host/Module.h"

namespace orv::host {

class CChartPages final : public IChartPages,
                          public IConnectionPointContainer,
                          public IProvideClassInfo2,
                          public ISupportErrorInfo,
                          public orv::SheetOwner {
 public:
  // `outer` null: a plain object; otherwise the object is aggregated and its interfaces'
  // IUnknown methods go to `outer`. Starts with no reference: query it (NonDelegatingUnknown()).
  explicit CChartPages(IUnknown* outer) noexcept;
  CChartPages(const CChartPages&) = delete;
  CChartPages& operator=(const CChartPages&) = delete;

  // The object's own IUnknown: counts its life; the one an aggregating outer keeps.
  IUnknown& NonDelegatingUnknown() noexcept { return inner_; }

  // IUnknown: the controlling unknown's.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // IDispatch, from the type library.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID lcid, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID lcid, DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID lcid, WORD flags, DISPPARAMS* params, VARIANT* result,
                                   EXCEPINFO* exception, UINT* argError) override;

  // IChartPages. The result goes to *plReturn when that is not null; the call status is S_OK
  // whatever the sheet did, and a failure passing through is the status, with error info.
  HRESULT STDMETHODCALLTYPE DoModal(IUnknown* DOC, LONG* plReturn) override;
  HRESULT STDMETHODCALLTYPE TerminatePage(LONG lPage, LONG* plReturn) override;
  HRESULT STDMETHODCALLTYPE DoModal2(IUnknown* DOC, IUnknown* pChartData, LONG* plReturn) override;

  // IConnectionPointContainer: one point, for _IChartPagesEvents.
  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

  // IProvideClassInfo2.
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* guid) override;

  // ISupportErrorInfo: IChartPages sets error info on failure.
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override;

  // Raises StatusEvent (dispatch id 101) on every connected sink in array order, skipping empty
  // slots: lType, value, lValue, xmlExtra, &result. Returns the last sink's Invoke status, 0
  // without sinks. Narrow texts are in the thread's code page; a string that can't be made
  // raises XmlComError(E_OUTOFMEMORY). A sink's failure does not stop the others.
  orv::Status FireStatusEvent(std::int32_t type, const std::string& value, std::int32_t lValue,
                              const std::string& xmlExtra, std::int32_t& result) override;

 private:
  class Inner final : public IUnknown {
   public:
    explicit Inner(CChartPages& object) noexcept : object_(object) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

   private:
    CChartPages& object_;
  };

  ~CChartPages() = default;

  ModuleLock lock_;
  ULONG refs_ = 0;
  Inner inner_{*this};
  IUnknown* controlling_;  // the outer unknown, or &inner_; not owned
  ConnectionPoint events_{*this, DIID__IChartPagesEvents};
};

}  // namespace orv::host
