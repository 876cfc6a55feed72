#include "host/ChartPages.h"

#include <oleauto.h>

#include <climits>
#include <new>

#include "host/ChartPagesObject.h"
#include "host/ComEnumerator.h"
#include "host/ComError.h"
#include "host/SheetDispatcher.h"
#include "host/TypeLibrary.h"
#include "com/ComPtr.h"
#include "com/WideText.h"
#include "xml/msxml/XmlMsxml.h"

namespace orv::host {
namespace {

constexpr const wchar_t* kSource = L"OrvChartDlgs.ChartPages";
constexpr DISPID kDispidStatusEvent = 101;

// IChartPages' type info: loaded once per process with the library.
ITypeInfo& ChartPagesTypeInfo() {
  static const ComPtr<ITypeInfo> info = ComponentTypeInfo(IID_IChartPages);
  return *info.get();
}

}  // namespace

CChartPages::CChartPages(IUnknown* outer) noexcept : controlling_(outer != nullptr ? outer : &inner_) {}

// The object's own unknown.

HRESULT CChartPages::Inner::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  CChartPages& self = object_;
  if (IsEqualIID(iid, IID_IUnknown))
    *object = static_cast<IUnknown*>(this);
  else if (IsEqualIID(iid, IID_IDispatch) || IsEqualIID(iid, IID_IChartPages))
    *object = static_cast<IChartPages*>(&self);
  else if (IsEqualIID(iid, IID_IConnectionPointContainer))
    *object = static_cast<IConnectionPointContainer*>(&self);
  else if (IsEqualIID(iid, IID_IProvideClassInfo) || IsEqualIID(iid, IID_IProvideClassInfo2))
    *object = static_cast<IProvideClassInfo2*>(&self);
  else if (IsEqualIID(iid, IID_ISupportErrorInfo))
    *object = static_cast<ISupportErrorInfo*>(&self);
  else
    return E_NOINTERFACE;
  static_cast<IUnknown*>(*object)->AddRef();
  return S_OK;
}

ULONG CChartPages::Inner::AddRef() { return ++object_.refs_; }

ULONG CChartPages::Inner::Release() {
  ULONG left = --object_.refs_;
  if (left == 0) {
    // Sinks released by the destructor may call back into the object: keep it counted.
    object_.refs_ = 1;
    delete &object_;
  }
  return left;
}

HRESULT CChartPages::QueryInterface(REFIID iid, void** object) { return controlling_->QueryInterface(iid, object); }
ULONG CChartPages::AddRef() { return controlling_->AddRef(); }
ULONG CChartPages::Release() { return controlling_->Release(); }

// IDispatch.

HRESULT CChartPages::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT CChartPages::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  try {
    ITypeInfo& typeInfo = ChartPagesTypeInfo();
    typeInfo.AddRef();
    *info = &typeInfo;
    return S_OK;
  } catch (const XmlComError& error) {
    return error.status() < 0 ? error.status() : E_UNEXPECTED;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

HRESULT CChartPages::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  if (!IsEqualIID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  try {
    return DispGetIDsOfNames(&ChartPagesTypeInfo(), names, count, ids);
  } catch (const XmlComError& error) {
    return error.status() < 0 ? error.status() : E_UNEXPECTED;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

HRESULT CChartPages::Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                            EXCEPINFO* exception, UINT* argError) {
  if (!IsEqualIID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  try {
    // Script hosts pass "no document" as null (VT_NULL), which the type info won't turn into an
    // object: DoModal and DoModal2 take it as a null IUnknown, as VB's Nothing is.
    VARIANTARG nullable[2];
    DISPPARAMS adjusted;
    if ((id == 1 || id == 3) && params != nullptr && params->cArgs <= 2 && params->rgvarg != nullptr) {
      adjusted = *params;
      for (UINT i = 0; i < params->cArgs; ++i) {
        nullable[i] = params->rgvarg[i];
        if (nullable[i].vt == VT_NULL || nullable[i].vt == VT_EMPTY) {
          nullable[i].vt = VT_UNKNOWN;
          nullable[i].punkVal = nullptr;
        }
      }
      adjusted.rgvarg = nullable;
      params = &adjusted;
    }
    // The type info calls the vtable of IChartPages; a failing method's error info reaches
    // the caller's EXCEPINFO as DISP_E_EXCEPTION.
    return ChartPagesTypeInfo().Invoke(static_cast<IChartPages*>(this), id, flags, params, result, exception, argError);
  } catch (const XmlComError& error) {
    return error.status() < 0 ? error.status() : E_UNEXPECTED;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

// IChartPages.

HRESULT CChartPages::DoModal(IUnknown* DOC, LONG* plReturn) {
  return ComMethod(IID_IChartPages, kSource, "ChartPages.DoModal", [&]() -> HRESULT {
    // A host may release its last reference from inside StatusEvent: the object outlives the run.
    ComPtr<IUnknown> self = ComPtr<IUnknown>::Share(controlling_);
    XmlNode node = XmlWrapUnknown(DOC);
    long result = TheSheetDispatcher().RunSheet(this, node);
    if (plReturn != nullptr) *plReturn = result;
    return S_OK;
  });
}

HRESULT CChartPages::DoModal2(IUnknown* DOC, IUnknown* pChartData, LONG* plReturn) {
  return ComMethod(IID_IChartPages, kSource, "ChartPages.DoModal2", [&]() -> HRESULT {
    ComPtr<IUnknown> self = ComPtr<IUnknown>::Share(controlling_);
    ComPtr<IUnknown> chartData = ComPtr<IUnknown>::Share(pChartData);  // held for the call
    XmlNode node = XmlWrapUnknown(DOC);
    long result = TheSheetDispatcher().RunSheet2(this, node, chartData.get());
    if (plReturn != nullptr) *plReturn = result;
    return S_OK;
  });
}

HRESULT CChartPages::TerminatePage(LONG lPage, LONG* plReturn) {
  long result = 0;
  if (lPage == 0) {
    DestroySheetDispatcher();
    result = 1;
  }
  if (plReturn != nullptr) *plReturn = result;
  return S_OK;
}

// IConnectionPointContainer.

HRESULT CChartPages::EnumConnectionPoints(IEnumConnectionPoints** points) {
  if (points == nullptr) return E_POINTER;
  *points = nullptr;
  try {
    auto entries = std::make_shared<std::vector<ComPtr<IConnectionPoint>>>();
    entries->push_back(ComPtr<IConnectionPoint>::Share(&events_));
    *points = ConnectionPointEnumerator::Create(IID_IEnumConnectionPoints, std::move(entries));
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
  return *points != nullptr ? S_OK : E_OUTOFMEMORY;
}

HRESULT CChartPages::FindConnectionPoint(REFIID iid, IConnectionPoint** point) {
  if (point == nullptr) return E_POINTER;
  *point = nullptr;
  if (!IsEqualIID(iid, events_.events())) return CONNECT_E_NOCONNECTION;
  events_.AddRef();
  *point = &events_;
  return S_OK;
}

// IProvideClassInfo2.

HRESULT CChartPages::GetClassInfo(ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  try {
    ComPtr<ITypeInfo> classInfo = ComponentTypeInfo(CLSID_ChartPages);
    classInfo->AddRef();
    *info = classInfo.get();
    return S_OK;
  } catch (const XmlComError& error) {
    return error.status() < 0 ? error.status() : E_UNEXPECTED;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

HRESULT CChartPages::GetGUID(DWORD kind, GUID* guid) {
  if (guid == nullptr) return E_POINTER;
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) {
    *guid = GUID_NULL;
    return E_INVALIDARG;
  }
  *guid = DIID__IChartPagesEvents;
  return S_OK;
}

// ISupportErrorInfo.

HRESULT CChartPages::InterfaceSupportsErrorInfo(REFIID iid) {
  return IsEqualIID(iid, IID_IChartPages) ? S_OK : S_FALSE;
}

// Events.

orv::Status CChartPages::FireStatusEvent(std::int32_t type, const std::string& value, std::int32_t lValue,
                                         const std::string& xmlExtra, std::int32_t& result) {
  orv::Status status = 0;
  if (events_.SlotCount() == 0) return status;
  Bstr valueText = MakeBstr(value);
  Bstr extraText = MakeBstr(xmlExtra);
  LONG answer = result;
  // Positional arguments go last to first: plReturn, pXMLExtra, lValue, pValue, lType.
  VARIANTARG args[5];
  for (VARIANTARG& arg : args) VariantInit(&arg);
  args[0].vt = VT_BYREF | VT_I4;
  args[0].plVal = &answer;
  args[1].vt = VT_BSTR;
  args[1].bstrVal = extraText.get();
  args[2].vt = VT_I4;
  args[2].lVal = lValue;
  args[3].vt = VT_BSTR;
  args[3].bstrVal = valueText.get();
  args[4].vt = VT_I4;
  args[4].lVal = type;
  DISPPARAMS params{args, nullptr, 5, 0};
  // Index by index, re-reading the count: a sink may Advise or Unadvise while it is called.
  for (size_t slot = 0; slot < events_.SlotCount(); ++slot) {
    ComPtr<IDispatch> sink = events_.SinkAt(slot);
    if (!sink) continue;
    Variant returned;
    status = sink->Invoke(kDispidStatusEvent, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, returned.put(),
                          nullptr, nullptr);
  }
  result = answer;
  return status;
}

}  // namespace orv::host

HRESULT CreateChartPages(IUnknown* outer, REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  // An aggregating outer must take the inner unknown, and only that.
  if (outer != nullptr && !IsEqualIID(iid, IID_IUnknown)) return CLASS_E_NOAGGREGATION;
  auto* created = new (std::nothrow) orv::host::CChartPages(outer);
  if (created == nullptr) return E_OUTOFMEMORY;
  IUnknown& inner = created->NonDelegatingUnknown();
  inner.AddRef();
  HRESULT status = inner.QueryInterface(iid, object);
  inner.Release();  // deletes the object when the query failed
  return status;
}
