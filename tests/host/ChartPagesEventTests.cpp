// StatusEvent into strict C++ sinks: the connection point's bookkeeping, the exact call each
// sink receives, the order, skipped empty slots, and the firing's result.
#include "ChartPagesTesting.h"

#include <oleauto.h>

#include <functional>
#include <string>
#include <vector>

namespace orv::host::testing {
namespace {

// One received StatusEvent, as the sink saw it.
struct Received {
  std::string sink;
  DISPID id = 0;
  bool nullIid = false;
  LCID lcid = 0;
  WORD flags = 0;
  UINT named = 0;
  std::vector<VARTYPE> types;  // as passed, last argument first
  LONG type = 0;
  std::wstring value;
  LONG lValue = 0;
  std::wstring extra;
  LONG resultIn = 0;
};

// A sink of _IChartPagesEvents that records each Invoke and answers with `answer` through
// plReturn and `status` as its own. Any other call of IDispatch fails the test.
class StrictSink final : public IDispatch {
 public:
  StrictSink(std::string name, std::vector<Received>& journal, LONG answer, HRESULT status)
      : name_(std::move(name)), journal_(journal), answer_(answer), status_(status) {}
  ~StrictSink() { EXPECT_EQ(refs, 1u) << name_ << " still referenced"; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    *object = nullptr;
    if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch) || IsEqualIID(iid, DIID__IChartPagesEvents)) {
      *object = static_cast<IDispatch*>(this);
      AddRef();
      return S_OK;
    }
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
  ULONG STDMETHODCALLTYPE Release() override { return --refs; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override {
    ADD_FAILURE() << "GetTypeInfoCount on " << name_;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override {
    ADD_FAILURE() << "GetTypeInfo on " << name_;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    ADD_FAILURE() << "GetIDsOfNames on " << name_;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID lcid, WORD flags, DISPPARAMS* params, VARIANT*,
                                   EXCEPINFO*, UINT*) override {
    Received call;
    call.sink = name_;
    call.id = id;
    call.nullIid = IsEqualIID(iid, IID_NULL);
    call.lcid = lcid;
    call.flags = flags;
    call.named = params->cNamedArgs;
    for (UINT i = 0; i < params->cArgs; ++i) call.types.push_back(params->rgvarg[i].vt);
    if (call.types == std::vector<VARTYPE>{VT_BYREF | VT_I4, VT_BSTR, VT_I4, VT_BSTR, VT_I4}) {
      VARIANTARG* args = params->rgvarg;
      call.resultIn = *args[0].plVal;
      *args[0].plVal = answer_;
      call.extra.assign(args[1].bstrVal, SysStringLen(args[1].bstrVal));
      call.lValue = args[2].lVal;
      call.value.assign(args[3].bstrVal, SysStringLen(args[3].bstrVal));
      call.type = args[4].lVal;
    }
    journal_.push_back(call);
    if (during) during();
    return status_;
  }

  ULONG refs = 1;
  std::function<void()> during;  // runs inside Invoke (reentrant Advise/Unadvise)

 private:
  std::string name_;
  std::vector<Received>& journal_;
  LONG answer_;
  HRESULT status_;
};

class StatusEventTest : public ChartPagesTest {
 protected:
  void SetUp() override {
    ChartPagesTest::SetUp();
    pages_ = Create();
    ComPtr<IConnectionPointContainer> container;
    ASSERT_EQ(pages_.As(IID_IConnectionPointContainer, container), S_OK);
    ASSERT_EQ(container->FindConnectionPoint(DIID__IChartPagesEvents, point_.put()), S_OK);
  }
  void TearDown() override {
    point_.reset();
    pages_.reset();
    ChartPagesTest::TearDown();
  }
  DWORD Advise(IUnknown& sink) {
    DWORD cookie = 0;
    EXPECT_EQ(point_->Advise(&sink, &cookie), S_OK);
    return cookie;
  }

  ComPtr<IChartPages> pages_;
  ComPtr<IConnectionPoint> point_;
  std::vector<Received> journal_;
};

TEST_F(StatusEventTest, EverySinkGetsTheCallInOrderAndTheLastStatusIsTheResult) {
  StrictSink first("first", journal_, 11, S_OK);
  StrictSink second("second", journal_, 22, S_OK);
  StrictSink third("third", journal_, 33, static_cast<HRESULT>(0x00040007));
  DWORD cookies[] = {Advise(first), Advise(second), Advise(third)};
  EXPECT_EQ(cookies[0], 1u);
  EXPECT_EQ(cookies[1], 2u);
  EXPECT_EQ(cookies[2], 3u);
  EXPECT_EQ(first.refs, 2u) << "the point holds one reference per connection";
  ASSERT_EQ(point_->Unadvise(cookies[1]), S_OK);
  EXPECT_EQ(second.refs, 1u);

  std::int32_t result = 9;
  std::string value = "<PropertySheet Name=\"LSPs\"><PropertyPageList/></PropertySheet>";
  value += '\0';  // counted strings: nothing is cut at a NUL
  value += "x";
  EXPECT_EQ(Object(pages_).FireStatusEvent(3, value, -4, "extra", result), 0x00040007) << "the last sink's status";
  EXPECT_EQ(result, 33) << "the last sink's answer";
  ASSERT_EQ(journal_.size(), 2u);
  EXPECT_EQ(journal_[0].sink, "first");
  EXPECT_EQ(journal_[1].sink, "third") << "the empty slot is skipped";
  std::wstring wideValue = L"<PropertySheet Name=\"LSPs\"><PropertyPageList/></PropertySheet>";
  wideValue += L'\0';
  wideValue += L"x";
  for (const Received& call : journal_) {
    EXPECT_EQ(call.id, 101);
    EXPECT_TRUE(call.nullIid);
    EXPECT_EQ(call.lcid, static_cast<LCID>(LOCALE_USER_DEFAULT));
    EXPECT_EQ(call.flags, DISPATCH_METHOD);
    EXPECT_EQ(call.named, 0u);
    ASSERT_EQ(call.types, (std::vector<VARTYPE>{VT_BYREF | VT_I4, VT_BSTR, VT_I4, VT_BSTR, VT_I4}));
    EXPECT_EQ(call.type, 3);
    EXPECT_EQ(call.value, wideValue);
    EXPECT_EQ(call.lValue, -4);
    EXPECT_EQ(call.extra, L"extra");
  }
  EXPECT_EQ(journal_[0].resultIn, 9);
  EXPECT_EQ(journal_[1].resultIn, 11) << "plReturn is one variable passed along the sinks";

  // A failing sink doesn't stop the next one; the status is still the last sink's.
  StrictSink failing("failing", journal_, 44, E_FAIL);
  EXPECT_EQ(Advise(failing), 2u) << "the empty slot is reused";
  journal_.clear();
  EXPECT_EQ(Object(pages_).FireStatusEvent(0, "", 0, "", result), 0x00040007);
  ASSERT_EQ(journal_.size(), 3u);
  EXPECT_EQ(journal_[1].sink, "failing");
  EXPECT_EQ(journal_[0].value, L"");
  EXPECT_EQ(point_->Unadvise(cookies[0]), S_OK);
  EXPECT_EQ(point_->Unadvise(2), S_OK);
  EXPECT_EQ(point_->Unadvise(cookies[2]), S_OK);
  journal_.clear();
  EXPECT_EQ(Object(pages_).FireStatusEvent(0, "x", 0, "", result), 0) << "only empty slots: nothing is called";
  EXPECT_TRUE(journal_.empty());
}

TEST_F(StatusEventTest, TextIsConvertedFromTheThreadCodePage) {
  if (GetACP() != 1252) GTEST_SKIP() << "the prefix's code page is " << GetACP();
  StrictSink sink("sink", journal_, 0, S_OK);
  DWORD cookie = Advise(sink);
  std::int32_t result = 0;
  Object(pages_).FireStatusEvent(0, "Caf\xe9 \x80", 0, "\xfc", result);
  ASSERT_EQ(journal_.size(), 1u);
  EXPECT_EQ(journal_[0].value, L"Caf\u00e9 \u20ac");
  EXPECT_EQ(journal_[0].extra, L"\u00fc");
  point_->Unadvise(cookie);
}

TEST_F(StatusEventTest, ConnectionBookkeepingRefusesWhatIsWrong) {
  StrictSink sink("sink", journal_, 0, S_OK);
  // An object that is no sink of these events: ChartPages itself.
  const ULONG refs = RefCount(pages_.get());
  DWORD cookie = 77;
  EXPECT_EQ(point_->Advise(pages_.get(), &cookie), CONNECT_E_CANNOTCONNECT);
  EXPECT_EQ(cookie, 0u);
  EXPECT_EQ(RefCount(pages_.get()), refs);
  EXPECT_EQ(point_->Advise(nullptr, &cookie), E_POINTER);
  EXPECT_EQ(point_->Advise(&sink, nullptr), E_POINTER);
  EXPECT_EQ(point_->Unadvise(0), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(point_->Unadvise(1), CONNECT_E_NOCONNECTION);
  cookie = Advise(sink);
  EXPECT_EQ(point_->Unadvise(cookie + 1), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(point_->Unadvise(cookie), S_OK);
  EXPECT_EQ(point_->Unadvise(cookie), CONNECT_E_NOCONNECTION) << "a cookie is good once";

  IID iid = GUID_NULL;
  ASSERT_EQ(point_->GetConnectionInterface(&iid), S_OK);
  EXPECT_TRUE(IsEqualIID(iid, DIID__IChartPagesEvents));
  ComPtr<IConnectionPointContainer> container;
  ASSERT_EQ(pages_.As(IID_IConnectionPointContainer, container), S_OK);
  ComPtr<IConnectionPoint> other;
  EXPECT_EQ(container->FindConnectionPoint(IID_IChartPages, other.put()), CONNECT_E_NOCONNECTION);
  EXPECT_FALSE(other);
}

TEST_F(StatusEventTest, EnumeratorsGiveTheOnePointAndTheLiveConnections) {
  ComPtr<IConnectionPointContainer> container;
  ASSERT_EQ(pages_.As(IID_IConnectionPointContainer, container), S_OK);
  ComPtr<IEnumConnectionPoints> points;
  ASSERT_EQ(container->EnumConnectionPoints(points.put()), S_OK);
  IConnectionPoint* found[2] = {};
  ULONG fetched = 0;
  EXPECT_EQ(points->Next(2, found, &fetched), S_FALSE);
  ASSERT_EQ(fetched, 1u);
  EXPECT_EQ(found[0], point_.get());
  found[0]->Release();
  ComPtr<IEnumConnectionPoints> clone;
  ASSERT_EQ(points->Clone(clone.put()), S_OK);
  EXPECT_EQ(clone->Next(1, found, nullptr), S_FALSE) << "a clone keeps the position";
  EXPECT_EQ(clone->Reset(), S_OK);
  EXPECT_EQ(clone->Skip(1), S_OK);
  EXPECT_EQ(clone->Skip(1), S_FALSE);

  StrictSink a("a", journal_, 0, S_OK), b("b", journal_, 0, S_OK), c("c", journal_, 0, S_OK);
  Advise(a);
  DWORD middle = Advise(b);
  Advise(c);
  point_->Unadvise(middle);
  ComPtr<IEnumConnections> connections;
  ASSERT_EQ(point_->EnumConnections(connections.put()), S_OK);
  point_->Unadvise(3);  // a snapshot: later changes don't show
  CONNECTDATA data[3] = {};
  EXPECT_EQ(connections->Next(3, data, &fetched), S_FALSE);
  ASSERT_EQ(fetched, 2u);
  EXPECT_EQ(data[0].dwCookie, 1u);
  EXPECT_EQ(data[0].pUnk, static_cast<IUnknown*>(&a));
  EXPECT_EQ(data[1].dwCookie, 3u);
  EXPECT_EQ(data[1].pUnk, static_cast<IUnknown*>(&c));
  EXPECT_EQ(connections->Next(2, data, nullptr), E_POINTER) << "several items need the fetched count";
  for (ULONG i = 0; i < fetched; ++i) data[i].pUnk->Release();
  connections.reset();
  EXPECT_EQ(c.refs, 1u) << "the enumerator gave back its snapshot";
  point_->Unadvise(1);
}

TEST_F(StatusEventTest, SinksMayConnectAndDisconnectFromInsideTheEvent) {
  StrictSink leaving("leaving", journal_, 1, S_OK);
  StrictSink next("next", journal_, 2, S_OK);
  StrictSink reused("reused", journal_, 3, S_OK);
  StrictSink appended("appended", journal_, 4, S_OK);
  DWORD leavingCookie = Advise(leaving);
  DWORD nextCookie = Advise(next);
  DWORD reusedCookie = 0, appendedCookie = 0;
  leaving.during = [&] {
    EXPECT_EQ(point_->Unadvise(leavingCookie), S_OK);
    reusedCookie = Advise(reused);
    appendedCookie = Advise(appended);
  };
  std::int32_t result = 0;
  EXPECT_EQ(Object(pages_).FireStatusEvent(0, "v", 0, "", result), 0);
  EXPECT_EQ(leaving.refs, 1u) << "released once its call returned";
  EXPECT_EQ(reusedCookie, 1u) << "the freed slot is taken again";
  EXPECT_EQ(appendedCookie, 3u);
  std::vector<std::string> order;
  for (const Received& call : journal_) order.push_back(call.sink);
  EXPECT_EQ(order, (std::vector<std::string>{"leaving", "next", "appended"}))
      << "a slot behind the firing is not called this time, one ahead of it is";
  journal_.clear();
  EXPECT_EQ(Object(pages_).FireStatusEvent(0, "v", 0, "", result), 0);
  order.clear();
  for (const Received& call : journal_) order.push_back(call.sink);
  EXPECT_EQ(order, (std::vector<std::string>{"reused", "next", "appended"}));
  EXPECT_EQ(result, 4);
  point_->Unadvise(reusedCookie);
  point_->Unadvise(nextCookie);
  point_->Unadvise(appendedCookie);
}

TEST_F(StatusEventTest, ReleasingTheObjectReleasesItsSinks) {
  StrictSink sink("sink", journal_, 0, S_OK);
  Advise(sink);
  EXPECT_EQ(sink.refs, 2u);
  point_.reset();
  pages_.reset();
  EXPECT_EQ(sink.refs, 1u);
}

}  // namespace
}  // namespace orv::host::testing
