// ChartPages as a host sees it: creation plain and aggregated, its interfaces, late binding
// through the type library, the results of DoModal/DoModal2/TerminatePage, and failures.
#include "ChartPagesTesting.h"

#include <oleauto.h>

#include <string>

#include "host/SheetDispatcher.h"
#include "xml/msxml/MsxmlGuids.h"

namespace orv::host::testing {
namespace {

// An aggregating outer: keeps the inner unknown, answers IUnknown itself, hands everything else
// to the inner. Counts its own references, which the inner's interfaces must use.
class Outer final : public IUnknown {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    if (IsEqualIID(iid, IID_IUnknown)) {
      *object = static_cast<IUnknown*>(this);
      AddRef();
      return S_OK;
    }
    return inner.get() ? inner->QueryInterface(iid, object) : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
  ULONG STDMETHODCALLTYPE Release() override { return --refs; }  // on the stack: never deleted
  ULONG refs = 1;
  ComPtr<IUnknown> inner;
};

TEST_F(ChartPagesTest, PlainObjectHasOneIdentityAndCountsItsReferences) {
  ComPtr<IChartPages> pages = Create();
  ASSERT_TRUE(pages);
  EXPECT_EQ(ModuleLockCount(), locksBefore_ + 1);
  EXPECT_EQ(RefCount(pages.get()), 1u);

  ComPtr<IUnknown> identity;
  ASSERT_EQ(pages.As(IID_IUnknown, identity), S_OK);
  const IID* supported[] = {
      &IID_IUnknown,          &IID_IDispatch,          &IID_IChartPages,      &IID_IConnectionPointContainer,
      &IID_IProvideClassInfo, &IID_IProvideClassInfo2, &IID_ISupportErrorInfo};
  for (const IID* iid : supported) {
    ComPtr<IUnknown> asked;
    ASSERT_EQ(pages->QueryInterface(*iid, reinterpret_cast<void**>(asked.put())), S_OK);
    ComPtr<IUnknown> back;
    ASSERT_EQ(asked.As(IID_IUnknown, back), S_OK);
    EXPECT_EQ(back.get(), identity.get()) << "every interface leads to the same IUnknown";
  }
  EXPECT_EQ(RefCount(pages.get()), 2u) << "the queries released what they took";

  const IID* unsupported[] = {
      &IID_IPersist,         &IID_IConnectionPoint,        &IID_IMarshal, &IID_IClassFactory, &DIID__IChartPagesEvents,
      &IID_ICmnDateRangeDlg, &orv::msxml::kIID_IXMLDOMNode};
  for (const IID* iid : unsupported) {
    void* asked = reinterpret_cast<void*>(1);
    EXPECT_EQ(pages->QueryInterface(*iid, &asked), E_NOINTERFACE);
    EXPECT_EQ(asked, nullptr);
  }
  EXPECT_EQ(pages->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(ChartPagesTest, AggregatedObjectDelegatesToItsOuter) {
  Outer outer;
  void* object = reinterpret_cast<void*>(1);
  EXPECT_EQ(CreateChartPages(&outer, IID_IChartPages, &object), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(ModuleLockCount(), locksBefore_) << "a refused creation leaves nothing behind";

  ASSERT_EQ(CreateChartPages(&outer, IID_IUnknown, reinterpret_cast<void**>(outer.inner.put())), S_OK);
  EXPECT_EQ(RefCount(outer.inner.get()), 1u) << "the inner unknown counts the object itself";
  {
    ComPtr<IChartPages> pages;
    ASSERT_EQ(outer.QueryInterface(IID_IChartPages, reinterpret_cast<void**>(pages.put())), S_OK);
    EXPECT_EQ(outer.refs, 2u) << "an interface of the inner counts on the outer";
    EXPECT_EQ(RefCount(outer.inner.get()), 1u);
    ComPtr<IUnknown> identity;
    ASSERT_EQ(pages.As(IID_IUnknown, identity), S_OK);
    EXPECT_EQ(identity.get(), static_cast<IUnknown*>(&outer)) << "IUnknown through the inner is the outer's";
    ComPtr<IConnectionPointContainer> points;
    ASSERT_EQ(pages.As(IID_IConnectionPointContainer, points), S_OK);
    ComPtr<IConnectionPoint> point;
    ASSERT_EQ(points->FindConnectionPoint(DIID__IChartPagesEvents, point.put()), S_OK);
    ComPtr<IConnectionPointContainer> container;
    ASSERT_EQ(point->GetConnectionPointContainer(container.put()), S_OK);
    ComPtr<IUnknown> containerIdentity;
    ASSERT_EQ(container.As(IID_IUnknown, containerIdentity), S_OK);
    EXPECT_EQ(containerIdentity.get(), static_cast<IUnknown*>(&outer));
  }
  EXPECT_EQ(outer.refs, 1u);
  outer.inner.reset();
  EXPECT_EQ(ModuleLockCount(), locksBefore_);
}

TEST_F(ChartPagesTest, CreationRefusesBadArguments) {
  EXPECT_EQ(CreateChartPages(nullptr, IID_IChartPages, nullptr), E_POINTER);
  void* object = reinterpret_cast<void*>(1);
  EXPECT_EQ(CreateChartPages(nullptr, IID_IPersist, &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
}

// Late binding: names and calls go through the type library, as a script or VB host's do.
TEST_F(ChartPagesTest, DispatchServesNamesAndCallsFromTheTypeLibrary) {
  ComPtr<IChartPages> pages = Create();
  UINT count = 0;
  ASSERT_EQ(pages->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 1u);
  ComPtr<ITypeInfo> info;
  ASSERT_EQ(pages->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.put()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
  EXPECT_TRUE(IsEqualGUID(attributes->guid, IID_IChartPages));
  info->ReleaseTypeAttr(attributes);
  EXPECT_EQ(pages->GetTypeInfo(1, LOCALE_USER_DEFAULT, info.put()), DISP_E_BADINDEX);

  struct Named {
    const wchar_t* name;
    DISPID id;
  } names[] = {{L"DoModal", 1}, {L"TerminatePage", 2}, {L"DoModal2", 3}, {L"terminatepage", 2}};
  for (const Named& named : names) {
    LPOLESTR name = const_cast<LPOLESTR>(named.name);
    DISPID id = 0;
    EXPECT_EQ(pages->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), S_OK);
    EXPECT_EQ(id, named.id);
  }
  LPOLESTR unknown = const_cast<LPOLESTR>(L"StatusEvent");
  DISPID id = 0;
  EXPECT_EQ(pages->GetIDsOfNames(IID_NULL, &unknown, 1, LOCALE_USER_DEFAULT, &id), DISP_E_UNKNOWNNAME);

  // TerminatePage(lPage) returns its result as the call's value.
  for (auto [page, expected] : {std::pair{0L, 1L}, std::pair{7L, 0L}, std::pair{0L, 1L}}) {
    VARIANTARG arg;
    VariantInit(&arg);
    arg.vt = VT_I4;
    arg.lVal = page;
    DISPPARAMS params{&arg, nullptr, 1, 0};
    Variant result;
    ASSERT_EQ(pages->Invoke(2, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, result.put(), nullptr, nullptr),
              S_OK);
    EXPECT_EQ(result.get().vt, VT_I4);
    EXPECT_EQ(result.get().lVal, expected) << "TerminatePage(" << page << ")";
  }

  // DoModal(Nothing) by late binding: no sheet, 2.
  VARIANTARG nothing;
  VariantInit(&nothing);
  nothing.vt = VT_UNKNOWN;
  nothing.punkVal = nullptr;
  DISPPARAMS params{&nothing, nullptr, 1, 0};
  Variant result;
  ASSERT_EQ(pages->Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, result.put(), nullptr, nullptr),
            S_OK);
  EXPECT_EQ(result.get().vt, VT_I4);
  EXPECT_EQ(result.get().lVal, 2);
  // A script's null (VT_NULL) is no document either.
  nothing.vt = VT_NULL;
  ASSERT_EQ(pages->Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, result.put(), nullptr, nullptr),
            S_OK);
  EXPECT_EQ(result.get().lVal, 2);
  DISPPARAMS none{nullptr, nullptr, 0, 0};
  EXPECT_EQ(pages->Invoke(2, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, result.put(), nullptr, nullptr),
            DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(
      pages->Invoke(2, IID_IChartPages, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, result.put(), nullptr, nullptr),
      DISP_E_UNKNOWNINTERFACE);
}

TEST_F(ChartPagesTest, ClassInfoNamesTheClassAndItsEvents) {
  ComPtr<IChartPages> pages = Create();
  ComPtr<IProvideClassInfo2> classInfo;
  ASSERT_EQ(pages.As(IID_IProvideClassInfo2, classInfo), S_OK);
  ComPtr<ITypeInfo> info;
  ASSERT_EQ(classInfo->GetClassInfo(info.put()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
  EXPECT_TRUE(IsEqualGUID(attributes->guid, CLSID_ChartPages));
  EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
  info->ReleaseTypeAttr(attributes);

  GUID events = GUID_NULL;
  ASSERT_EQ(classInfo->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
  EXPECT_TRUE(IsEqualGUID(events, DIID__IChartPagesEvents));
  EXPECT_EQ(classInfo->GetGUID(2, &events), E_INVALIDARG);
  EXPECT_EQ(classInfo->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, nullptr), E_POINTER);

  ComPtr<ISupportErrorInfo> errors;
  ASSERT_EQ(pages.As(IID_ISupportErrorInfo, errors), S_OK);
  EXPECT_EQ(errors->InterfaceSupportsErrorInfo(IID_IChartPages), S_OK);
  EXPECT_EQ(errors->InterfaceSupportsErrorInfo(IID_IConnectionPointContainer), S_FALSE);
}

// Requests that name no sheet: result 2, no window, the host's document is left as it was, and
// DoModal2's chart data is held only for the call.
TEST_F(ChartPagesTest, DoModalWithoutAKnownSheetReturnsTwoAndLeavesTheDocument) {
  ComPtr<IChartPages> pages = Create();
  ComPtr<IChartPages> chartData = Create();  // any object: it is not called for these requests
  LONG result = -7;
  EXPECT_EQ(pages->DoModal(nullptr, &result), S_OK);
  EXPECT_EQ(result, 2);

  const char* requests[] = {
      "<Chart><Lines/></Chart>",
      "<Chart><PropertySheet Name=\"lsps\"/></Chart>",
      "<PropertySheet Name=\"LSPs \"/>",
      "<PropertySheet Title=\"no name\"/>",
      "<Chart><Sheet Name=\"LSPs\"/><propertysheet Name=\"LSPs\"/></Chart>",
      "<Chart><PropertySheet Name=\"Unknown\"/><PropertySheet Name=\"LSPs\"/></Chart>",  // the first one wins
  };
  for (const char* request : requests) {
    XmlNode document = Document(request);
    std::string before = XmlGetXml(document);
    result = -7;
    EXPECT_EQ(pages->DoModal(XmlDomNodeOf(document), &result), S_OK) << request;
    EXPECT_EQ(result, 2) << request;
    result = -7;
    EXPECT_EQ(pages->DoModal2(XmlDomNodeOf(document), chartData.get(), &result), S_OK) << request;
    EXPECT_EQ(result, 2) << request;
    EXPECT_EQ(XmlGetXml(document), before);
  }
  EXPECT_EQ(pages->DoModal(nullptr, nullptr), S_OK) << "the result may be dropped";
  EXPECT_EQ(pages->DoModal2(nullptr, nullptr, nullptr), S_OK);
  // An object that is no DOM node is no request either.
  EXPECT_EQ(pages->DoModal(pages.get(), &result), S_OK);
  EXPECT_EQ(result, 2);
  EXPECT_EQ(GetActiveWindow(), nullptr) << "no window was left behind";
  EXPECT_EQ(RefCount(chartData.get()), 1u);
}

TEST_F(ChartPagesTest, TerminatePageDestroysTheDispatcherOnlyForZero) {
  ComPtr<IChartPages> pages = Create();
  LONG result = -1;
  ASSERT_EQ(pages->DoModal(nullptr, &result), S_OK);
  EXPECT_TRUE(SheetDispatcherExists()) << "made on first use";
  EXPECT_EQ(pages->TerminatePage(7, &result), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(pages->TerminatePage(-1, &result), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_TRUE(SheetDispatcherExists());
  EXPECT_EQ(pages->TerminatePage(0, &result), S_OK);
  EXPECT_EQ(result, 1);
  EXPECT_FALSE(SheetDispatcherExists());
  EXPECT_EQ(pages->TerminatePage(0, &result), S_OK);
  EXPECT_EQ(result, 1) << "a second TerminatePage(0) answers 1 as well";
  EXPECT_EQ(pages->TerminatePage(0, nullptr), S_OK);
  ASSERT_EQ(pages->DoModal(nullptr, &result), S_OK);
  EXPECT_EQ(result, 2);
  EXPECT_TRUE(SheetDispatcherExists()) << "the next DoModal makes a new one";
}

// A host object whose QueryInterface fails with an odd status: the failure is the call's
// status, with error info, and the object gets back every reference it gave.
class FailingDocument final : public IUnknown {
 public:
  explicit FailingDocument(HRESULT status) : status_(status) {}
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    *object = nullptr;
    if (IsEqualIID(iid, IID_IUnknown)) {
      *object = this;
      AddRef();
      return S_OK;
    }
    ++queries;
    return status_;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
  ULONG STDMETHODCALLTYPE Release() override { return --refs; }
  ULONG refs = 1;
  int queries = 0;

 private:
  HRESULT status_;
};

TEST_F(ChartPagesTest, FailureInsideDoModalIsTheStatusWithErrorInfo) {
  ComPtr<IChartPages> pages = Create();
  FailingDocument document(E_ACCESSDENIED);
  LONG result = -7;
  SetErrorInfo(0, nullptr);
  EXPECT_EQ(pages->DoModal(&document, &result), E_ACCESSDENIED);
  EXPECT_EQ(result, -7) << "no result on failure";
  EXPECT_EQ(document.queries, 1);
  EXPECT_EQ(document.refs, 1u);
  ComPtr<IErrorInfo> error;
  ASSERT_EQ(GetErrorInfo(0, error.put()), S_OK);
  Bstr description;
  ASSERT_EQ(error->GetDescription(description.put()), S_OK);
  std::wstring text(description.get(), description.size());
  EXPECT_NE(text.find(L"DoModal"), std::wstring::npos) << "the description names the method";
  EXPECT_NE(text.find(L"0x80070005"), std::wstring::npos) << "and the status";
  GUID iid = GUID_NULL;
  ASSERT_EQ(error->GetGUID(&iid), S_OK);
  EXPECT_TRUE(IsEqualGUID(iid, IID_IChartPages));
  Bstr source;
  ASSERT_EQ(error->GetSource(source.put()), S_OK);
  EXPECT_STREQ(source.get(), L"OrvChartDlgs.ChartPages");

  EXPECT_EQ(pages->DoModal2(&document, nullptr, &result), E_ACCESSDENIED);
  EXPECT_EQ(document.refs, 1u);

  // Late bound, the failure arrives as an exception with the same status and words.
  VARIANTARG arg;
  VariantInit(&arg);
  arg.vt = VT_UNKNOWN;
  arg.punkVal = &document;
  DISPPARAMS params{&arg, nullptr, 1, 0};
  Variant value;
  EXCEPINFO exception{};
  EXPECT_EQ(pages->Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, value.put(), &exception, nullptr),
            DISP_E_EXCEPTION);
  EXPECT_EQ(exception.scode, E_ACCESSDENIED);
  ASSERT_NE(exception.bstrDescription, nullptr);
  EXPECT_NE(std::wstring(exception.bstrDescription).find(L"DoModal"), std::wstring::npos);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrHelpFile);
  EXPECT_EQ(document.refs, 1u);
}

}  // namespace
}  // namespace orv::host::testing
