// The chart pages' IPropertyPage as a host's property frame drives it, with a sample page in a
// real child dialog of a real window, a strict fake IChartPageHost as the chart object and a
// recording IPropertyPageSite: every status code, Activate/Show/Move/Deactivate, a user's
// change reaching the site, and Apply handing the host exactly the page's XML. A picture of the
// frame with the page shown is written to the test's folder (pageframe-sample.png).

#include <gtest/gtest.h>
#include <windows.h>
#include <ocidl.h>

#include <deque>
#include <span>
#include <string>
#include <vector>

#include "OrvChartDlgs_h.h"
#include "WindowCapture.h"
#include "SampleChartPage.h"
#include "com/ComApartment.h"
#include "com/ComObject.h"
#include "com/ComPtr.h"
#include "dlgkit/fake/FakeSheetOwner.h"
#include "host/Module.h"
#include "host/PropertyPage.h"
#include "xml/Xml.h"
#include "xml/msxml/XmlMsxml.h"

namespace {

using orv::ComInterface;
using orv::ComInterfaceEntry;
using orv::ComObject;
using orv::ComPtr;

// One call the chart object is to receive, in order: Get fills the root with `xml`'s children
// and answers `found`; Set must receive exactly `xml`.
struct HostCall {
  enum Kind { Get, Set } kind;
  LONG scope;
  std::string xml;
  LONG found = 0;
};

class FakePageHost final : public ComObject<FakePageHost, IChartPageHost> {
 public:
  static std::span<const ComInterfaceEntry> Interfaces() {
    static const ComInterfaceEntry table[] = {ComInterface<FakePageHost, IChartPageHost>(IID_IChartPageHost)};
    return table;
  }

  HRESULT STDMETHODCALLTYPE GetPageProperties(LONG scope, IUnknown* root, LONG* found) override {
    HostCall call;
    if (!Next(HostCall::Get, scope, call)) return E_FAIL;
    XmlNode node = XmlWrapUnknown(root);
    XmlNode source = XmlCreateDocument();
    EXPECT_TRUE(XmlLoadString(source, "<Source>" + call.xml + "</Source>"));
    for (XmlNode child = XmlFirstChild(XmlFindChild(source, "Source")); child; child = XmlNextSibling(child))
      XmlAppendClone(node, child, true);
    // The host's view: the markup without the indentation MSXML may add.
    rootNames.push_back(orv::Compact(XmlGetXml(node)));
    *found = call.found;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE SetPageProperties(LONG scope, IUnknown* root, LONG* result) override {
    HostCall call;
    if (!Next(HostCall::Set, scope, call)) return E_FAIL;
    EXPECT_EQ(orv::Compact(XmlGetXml(XmlWrapUnknown(root))), call.xml);
    *result = 1;
    return S_OK;
  }

  std::deque<HostCall> expected;
  std::vector<std::string> rootNames;

 private:
  bool Next(HostCall::Kind kind, LONG scope, HostCall& call) {
    if (expected.empty() || expected.front().kind != kind) {
      ADD_FAILURE() << "unexpected " << (kind == HostCall::Get ? "GetPageProperties" : "SetPageProperties");
      return false;
    }
    call = expected.front();
    expected.pop_front();
    EXPECT_EQ(scope, call.scope);
    return true;
  }
};

// The frame's site: records each status; the page is not to ask it anything else.
class FakeSite final : public ComObject<FakeSite, IPropertyPageSite> {
 public:
  static std::span<const ComInterfaceEntry> Interfaces() {
    static const ComInterfaceEntry table[] = {ComInterface<FakeSite, IPropertyPageSite>(IID_IPropertyPageSite)};
    return table;
  }
  HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD flags) override {
    statuses.push_back(flags);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetLocaleID(LCID*) override { return Unexpected("GetLocaleID"); }
  HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown**) override { return Unexpected("GetPageContainer"); }
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override { return Unexpected("TranslateAccelerator"); }

  std::vector<DWORD> statuses;

 private:
  HRESULT Unexpected(const char* what) {
    ADD_FAILURE() << "the page asked its site " << what;
    return E_NOTIMPL;
  }
};

// Help's WinHelp calls.
struct HelpCall {
  HWND window;
  std::wstring file;
  UINT command;
  ULONG_PTR data;
};
std::vector<HelpCall> g_helpCalls;
BOOL WINAPI RecordWinHelp(HWND window, LPCWSTR file, UINT command, ULONG_PTR data) {
  g_helpCalls.push_back({window, file, command, data});
  return TRUE;
}

// What the next page made will be.
CSampleChartPage::Options g_options;
std::unique_ptr<orv::ChartPage> MakeSamplePage() { return std::make_unique<CSampleChartPage>(g_options); }

constexpr const char* kProperties = "<Value>from host</Value><Flag>1</Flag>";
constexpr RECT kPlace{4, 6, 364, 206};

class PropertyPageTest : public testing::Test {
 protected:
  void SetUp() override {
    g_options = {};
    g_helpCalls.clear();
    previousHelp_ = orv::host::SetPageWinHelp(&RecordWinHelp);
    frameWindow_ = CreateWindowExA(0, "STATIC", "frame", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, 0, 420, 300, nullptr,
                                   nullptr, nullptr, nullptr);
    ASSERT_NE(frameWindow_, nullptr);
    ShowWindow(frameWindow_, SW_SHOW);
    locksBefore_ = orv::host::ModuleLockCount();
  }
  void TearDown() override {
    page_.reset();
    EXPECT_EQ(orv::host::ModuleLockCount(), locksBefore_) << "the page is gone with its last reference";
    EXPECT_TRUE(host_->expected.empty()) << "the host got every call it expected";
    DestroyWindow(frameWindow_);
    orv::host::SetPageWinHelp(previousHelp_);
  }

  // A page with its site and the chart object, as a frame sets it up.
  ComPtr<IPropertyPage> MakePage(bool withSite = true) {
    void* object = nullptr;
    EXPECT_EQ(orv::host::CreateChartPropertyPage(nullptr, IID_IPropertyPage, &object, &MakeSamplePage), S_OK);
    page_ = ComPtr<IPropertyPage>::Attach(static_cast<IPropertyPage*>(object));
    if (withSite) {
      EXPECT_EQ(page_->SetPageSite(site_.get()), S_OK);
    }
    IUnknown* objects[] = {host_.get()};
    EXPECT_EQ(page_->SetObjects(1, objects), S_OK);
    return page_;
  }
  HWND PageWindow() const { return FindWindowExA(frameWindow_, nullptr, nullptr, nullptr); }
  HWND Item(int id) const { return GetDlgItem(PageWindow(), id); }
  void Type(int id, const char* text) {
    SendMessageA(Item(id), EM_SETSEL, 0, -1);
    for (const char* c = text; *c; ++c) SendMessageA(Item(id), WM_CHAR, static_cast<WPARAM>(*c), 1);
  }

  orv::ComApartment apartment_;
  ComPtr<FakePageHost> host_ = FakePageHost::Make();
  ComPtr<FakeSite> site_ = FakeSite::Make();
  ComPtr<IPropertyPage> page_;
  HWND frameWindow_ = nullptr;
  long locksBefore_ = 0;
  orv::host::WinHelpFunction previousHelp_ = nullptr;
};

TEST_F(PropertyPageTest, StatusCodesWithoutAWindow) {
  ComPtr<IPropertyPage> page = MakePage(false);
  EXPECT_EQ(page->SetPageSite(nullptr), S_OK) << "no site to release";
  EXPECT_EQ(page->SetPageSite(site_.get()), S_OK);
  EXPECT_EQ(page->SetPageSite(site_.get()), E_UNEXPECTED) << "a site over a site";
  EXPECT_EQ(page->SetPageSite(nullptr), S_OK);
  EXPECT_EQ(page->SetPageSite(site_.get()), S_OK) << "a released site may be replaced";

  RECT place = kPlace;
  EXPECT_EQ(page->Show(SW_SHOW), E_UNEXPECTED);
  EXPECT_EQ(page->Move(&place), E_UNEXPECTED);
  EXPECT_EQ(page->Move(nullptr), E_UNEXPECTED);
  EXPECT_EQ(page->Deactivate(), S_OK);
  EXPECT_EQ(page->GetPageInfo(nullptr), E_POINTER);
  EXPECT_EQ(page->SetObjects(0, nullptr), E_POINTER);
  EXPECT_EQ(page->SetObjects(1, nullptr), E_POINTER);
  EXPECT_EQ(page->Activate(frameWindow_, nullptr, FALSE), E_POINTER);
  EXPECT_EQ(page->IsPageDirty(), S_FALSE) << "a fresh page is clean";
  EXPECT_EQ(page->Apply(), S_OK) << "a clean page sends nothing";
  EXPECT_EQ(page->TranslateAccelerator(nullptr), E_POINTER);
  MSG key{frameWindow_, WM_KEYDOWN, VK_TAB, 0, 0, {}};
  EXPECT_EQ(page->TranslateAccelerator(&key), S_FALSE) << "no dialog to hand it to";
  EXPECT_TRUE(site_->statuses.empty());
  EXPECT_EQ(PageWindow(), nullptr);
}

TEST_F(PropertyPageTest, PageInfoComesFromTheTemplateAndTheStringTable) {
  ComPtr<IPropertyPage> page = MakePage();
  PROPPAGEINFO info{};
  ASSERT_EQ(page->GetPageInfo(&info), S_OK);
  EXPECT_EQ(info.cb, sizeof(PROPPAGEINFO));
  EXPECT_STREQ(info.pszTitle, L"Sample Page");
  EXPECT_EQ(info.pszDocString, nullptr);
  EXPECT_STREQ(info.pszHelpFile, L"SAMPLE.HLP");
  EXPECT_EQ(info.dwHelpContext, static_cast<DWORD>(IDD_SAMPLE_CHART_PAGE));
  CoTaskMemFree(info.pszTitle);
  CoTaskMemFree(info.pszHelpFile);

  // The size is the dialog's own, in pixels: what Activate then makes.
  host_->expected.push_back({HostCall::Get, 0, kProperties, 1});
  RECT place = kPlace;
  ASSERT_EQ(page->Activate(frameWindow_, &place, FALSE), S_OK);
  RECT made{};
  GetWindowRect(PageWindow(), &made);
  EXPECT_EQ(info.size.cx, made.right - made.left);
  EXPECT_EQ(info.size.cy, made.bottom - made.top);
  EXPECT_GT(info.size.cx, 180) << "dialog units are not pixels";

  // A page class whose template the module lacks.
  g_options.dialogId = 4999;
  void* object = nullptr;
  ASSERT_EQ(orv::host::CreateChartPropertyPage(nullptr, IID_IPropertyPage, &object, &MakeSamplePage), S_OK);
  ComPtr<IPropertyPage> missing = ComPtr<IPropertyPage>::Attach(static_cast<IPropertyPage*>(object));
  PROPPAGEINFO none{};
  EXPECT_EQ(missing->GetPageInfo(&none), E_UNEXPECTED);
  EXPECT_EQ(none.pszTitle, nullptr);
}

TEST_F(PropertyPageTest, ActivateMakesTheDialogAsAChildShowMoveAndDeactivate) {
  ComPtr<IPropertyPage> page = MakePage();
  host_->expected.push_back({HostCall::Get, 0, kProperties, 1});
  RECT place = kPlace;
  ASSERT_EQ(page->Activate(frameWindow_, &place, TRUE), S_OK);
  EXPECT_EQ(host_->rootNames,
            (std::vector<std::string>{"<SampleChartPg><Value>from host</Value><Flag>1</Flag></SampleChartPg>"}));
  HWND window = PageWindow();
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(GetParent(window), frameWindow_);
  EXPECT_TRUE(GetWindowLongA(window, GWL_STYLE) & WS_CHILD);
  EXPECT_FALSE(IsWindowVisible(window)) << "shown by Show only";
  char text[64] = {};
  GetWindowTextA(Item(IDC_SAMPLE_VALUE), text, sizeof text);
  EXPECT_STREQ(text, "from host");
  EXPECT_EQ(SendMessageA(Item(IDC_SAMPLE_FLAG), BM_GETCHECK, 0, 0), BST_CHECKED);
  EXPECT_TRUE(site_->statuses.empty()) << "filling the controls is not the user's change";
  EXPECT_EQ(page->IsPageDirty(), S_FALSE);
  EXPECT_EQ(page->Activate(frameWindow_, &place, FALSE), E_UNEXPECTED) << "one window at a time";

  EXPECT_EQ(page->Show(SW_SHOW), S_OK);
  EXPECT_TRUE(IsWindowVisible(window));
  RECT moved{10, 20, 310, 220};
  EXPECT_EQ(page->Move(&moved), S_OK);
  RECT at{};
  GetWindowRect(window, &at);
  MapWindowPoints(nullptr, frameWindow_, reinterpret_cast<POINT*>(&at), 2);
  EXPECT_EQ(at.left, 10);
  EXPECT_EQ(at.top, 20);
  EXPECT_EQ(at.right, 310);
  EXPECT_EQ(at.bottom, 220);
  EXPECT_EQ(page->Move(nullptr), E_POINTER);
  // The frame with the page in it, as a user sees it (the test's folder, pageframe-sample.png).
  UpdateWindow(frameWindow_);
  EXPECT_EQ(orv::apps::CaptureWindowToPng(frameWindow_, L"pageframe-sample.png"), S_OK);
  EXPECT_EQ(page->Show(SW_HIDE), S_OK);
  EXPECT_FALSE(IsWindowVisible(window));

  EXPECT_EQ(page->Deactivate(), S_OK);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(page->Show(SW_SHOW), E_UNEXPECTED);
  EXPECT_EQ(page->Deactivate(), S_OK);

  // Activated again: a new window, the host asked again on a new root.
  host_->expected.push_back({HostCall::Get, 0, "<Value>second</Value>", 1});
  ASSERT_EQ(page->Activate(frameWindow_, &place, FALSE), S_OK);
  GetWindowTextA(Item(IDC_SAMPLE_VALUE), text, sizeof text);
  EXPECT_STREQ(text, "second");
  EXPECT_EQ(host_->rootNames.back(), "<SampleChartPg><Value>second</Value></SampleChartPg>");
}

TEST_F(PropertyPageTest, TheUsersChangeReachesTheSiteAndApplySendsTheXml) {
  ComPtr<IPropertyPage> page = MakePage();
  host_->expected.push_back({HostCall::Get, 0, kProperties, 1});
  RECT place = kPlace;
  ASSERT_EQ(page->Activate(frameWindow_, &place, FALSE), S_OK);
  ASSERT_EQ(page->Show(SW_SHOW), S_OK);

  Type(IDC_SAMPLE_VALUE, "typed");
  SendMessageA(Item(IDC_SAMPLE_FLAG), BM_CLICK, 0, 0);
  EXPECT_EQ(site_->statuses, std::vector<DWORD>(6, PROPPAGESTATUS_DIRTY)) << "each change tells the site";
  EXPECT_EQ(page->IsPageDirty(), S_OK);

  site_->statuses.clear();
  host_->expected.push_back({HostCall::Set, 0, "<SampleChartPg><Value>typed</Value><Flag>0</Flag></SampleChartPg>"});
  EXPECT_EQ(page->Apply(), S_OK);
  EXPECT_EQ(site_->statuses, std::vector<DWORD>{PROPPAGESTATUS_CLEAN});
  EXPECT_EQ(page->IsPageDirty(), S_FALSE);
  EXPECT_EQ(page->Apply(), S_OK) << "clean again: nothing more is sent";

  // A change, then the frame deactivates the page before it applies: what was shown is sent.
  Type(IDC_SAMPLE_VALUE, "kept");
  EXPECT_EQ(page->Deactivate(), S_OK);
  host_->expected.push_back({HostCall::Set, 0, "<SampleChartPg><Value>kept</Value><Flag>0</Flag></SampleChartPg>"});
  EXPECT_EQ(page->Apply(), S_OK);
  EXPECT_EQ(page->IsPageDirty(), S_FALSE);
}

struct ExchangeCase {
  const char* name;
  CSampleChartPage::Options options;
  bool hostObject;    // the object given offers IChartPageHost
  const char* shown;  // what the edit shows after opening
  const char* sent;   // what Apply sends; null: nothing
  std::vector<DWORD> statusesAtApply;
  HRESULT dirtyAfter;  // IsPageDirty after Apply
};

// The scope and the chart object reach the frame through COM; what the frame does with a
// refusing validator or writer is the frame's own and is tested with it.
TEST_F(PropertyPageTest, ExchangesByScopeAndHostObject) {
  const ExchangeCase cases[] = {
      {"scope 1 in both calls",
       {.scope = 1},
       true,
       "from host",
       "<SampleChartPg><Value>x</Value><Flag>1</Flag></SampleChartPg>",
       {PROPPAGESTATUS_CLEAN},
       S_FALSE},
      {"no IChartPageHost: defaults, no exchange", {}, false, "default", nullptr, {PROPPAGESTATUS_CLEAN}, S_FALSE},
  };
  for (const ExchangeCase& c : cases) {
    SCOPED_TRACE(c.name);
    g_options = c.options;
    ComPtr<IPropertyPage> page = MakePage();
    if (!c.hostObject) {
      IUnknown* objects[] = {site_.get()};  // an object without IChartPageHost
      ASSERT_EQ(page->SetObjects(1, objects), S_OK);
    } else {
      host_->expected.push_back({HostCall::Get, c.options.scope, kProperties, 1});
    }
    RECT place = kPlace;
    ASSERT_EQ(page->Activate(frameWindow_, &place, FALSE), S_OK);
    char text[64] = {};
    GetWindowTextA(Item(IDC_SAMPLE_VALUE), text, sizeof text);
    EXPECT_STREQ(text, c.shown);
    Type(IDC_SAMPLE_VALUE, "x");
    site_->statuses.clear();
    if (c.sent != nullptr) host_->expected.push_back({HostCall::Set, c.options.scope, c.sent});
    EXPECT_EQ(page->Apply(), S_OK);
    EXPECT_EQ(site_->statuses, c.statusesAtApply);
    EXPECT_EQ(page->IsPageDirty(), c.dirtyAfter);
    EXPECT_TRUE(host_->expected.empty());
    EXPECT_EQ(page->Deactivate(), S_OK);
    site_->statuses.clear();
    page_.reset();
  }
}

TEST_F(PropertyPageTest, HelpHandsTheJoinedPathToWinHelp) {
  ComPtr<IPropertyPage> page = MakePage();
  EXPECT_EQ(page->Help(L"C:\\Program Files\\Orvane\\Help"), S_OK);
  EXPECT_EQ(page->Help(nullptr), S_OK);
  host_->expected.push_back({HostCall::Get, 0, kProperties, 1});
  RECT place = kPlace;
  ASSERT_EQ(page->Activate(frameWindow_, &place, FALSE), S_OK);
  EXPECT_EQ(page->Help(L"D:"), S_OK);
  ASSERT_EQ(g_helpCalls.size(), 3u);
  EXPECT_EQ(g_helpCalls[0].file, L"C:\\Program Files\\Orvane\\Help\\SAMPLE.HLP");
  EXPECT_EQ(g_helpCalls[1].file, L"\\SAMPLE.HLP");
  EXPECT_EQ(g_helpCalls[2].file, L"D:\\SAMPLE.HLP");
  EXPECT_EQ(g_helpCalls[2].window, PageWindow());
  for (const HelpCall& call : g_helpCalls) {
    EXPECT_EQ(call.command, 8u);
    EXPECT_EQ(call.data, 0u);
  }
}

TEST_F(PropertyPageTest, TranslateAcceleratorHandsKeysAndMouseToTheDialog) {
  ComPtr<IPropertyPage> page = MakePage();
  host_->expected.push_back({HostCall::Get, 0, kProperties, 1});
  RECT place = kPlace;
  ASSERT_EQ(page->Activate(frameWindow_, &place, FALSE), S_OK);
  ASSERT_EQ(page->Show(SW_SHOW), S_OK);
  SetFocus(Item(IDC_SAMPLE_VALUE));
  struct Case {
    const char* name;
    HWND window;
    UINT message;
    WPARAM wParam;
    HRESULT expected;
  } cases[] = {
      {"Tab in the page", Item(IDC_SAMPLE_VALUE), WM_KEYDOWN, VK_TAB, S_OK},
      {"a character in the page", Item(IDC_SAMPLE_VALUE), WM_CHAR, 'a', S_OK},
      {"last keyboard message (265)", Item(IDC_SAMPLE_VALUE), 265, 0, S_OK},
      {"a click in the page", Item(IDC_SAMPLE_FLAG), WM_LBUTTONUP, 0, S_OK},
      {"last mouse message (526)", PageWindow(), 526, 0, S_OK},
      {"a key for the frame's own window", frameWindow_, WM_KEYDOWN, VK_TAB, S_FALSE},
      {"before the keyboard range (255)", Item(IDC_SAMPLE_VALUE), 255, 0, S_FALSE},
      {"between the ranges (WM_TIMER)", Item(IDC_SAMPLE_VALUE), WM_TIMER, 0, S_FALSE},
      {"after the mouse range (527)", PageWindow(), 527, 0, S_FALSE},
  };
  for (const Case& c : cases) {
    MSG message{c.window, c.message, c.wParam, 0, 0, {}};
    EXPECT_EQ(page->TranslateAccelerator(&message), c.expected) << c.name;
  }
  EXPECT_EQ(GetFocus(), Item(IDC_SAMPLE_FLAG)) << "the dialog manager moved the focus on Tab";
}

// What fails inside the page's window becomes the status of the page's next call, with error
// info; the window does not outlive a failed opening.
TEST_F(PropertyPageTest, AFailureInsideThePagesWindowIsTheNextCallsStatus) {
  g_options.loadFails = static_cast<orv::Status>(E_POINTER);
  ComPtr<IPropertyPage> page = MakePage();
  host_->expected.push_back({HostCall::Get, 0, kProperties, 1});
  RECT place = kPlace;
  EXPECT_EQ(page->Activate(frameWindow_, &place, FALSE), E_POINTER);
  EXPECT_EQ(PageWindow(), nullptr);
  EXPECT_EQ(page->Show(SW_SHOW), E_UNEXPECTED);
  ComPtr<IErrorInfo> info;
  ASSERT_EQ(GetErrorInfo(0, info.put()), S_OK);
  orv::Bstr description;
  ASSERT_EQ(info->GetDescription(description.put()), S_OK);
  EXPECT_NE(std::wstring(description.get()).find(L"PropertyPage.Activate"), std::wstring::npos);

  g_options = {};
  g_options.changeFails = static_cast<orv::Status>(0x80070005);
  page = MakePage();
  host_->expected.push_back({HostCall::Get, 0, kProperties, 1});
  ASSERT_EQ(page->Activate(frameWindow_, &place, FALSE), S_OK);
  Type(IDC_SAMPLE_VALUE, "x");
  EXPECT_TRUE(site_->statuses.empty());
  EXPECT_EQ(page->Apply(), static_cast<HRESULT>(0x80070005)) << "nothing is sent: the page can't be trusted";
  EXPECT_EQ(page->Deactivate(), static_cast<HRESULT>(0x80070005));
  EXPECT_EQ(PageWindow(), nullptr);
  EXPECT_EQ(page->Deactivate(), S_OK);
}

// An aggregating outer: keeps the inner unknown and hands it every interface but IUnknown.
class Outer final : public IUnknown {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    if (IsEqualIID(iid, IID_IUnknown)) {
      *object = static_cast<IUnknown*>(this);
      AddRef();
      return S_OK;
    }
    return inner ? inner->QueryInterface(iid, object) : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++refs; }
  ULONG STDMETHODCALLTYPE Release() override { return --refs; }
  ULONG refs = 1;
  ComPtr<IUnknown> inner;
};

TEST_F(PropertyPageTest, PlainOrAggregated) {
  void* object = reinterpret_cast<void*>(1);
  EXPECT_EQ(orv::host::CreateChartPropertyPage(nullptr, IID_IPersist, &object, &MakeSamplePage), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(orv::host::CreateChartPropertyPage(nullptr, IID_IPropertyPage, nullptr, &MakeSamplePage), E_POINTER);
  {
    ComPtr<IPropertyPage> page = MakePage();
    EXPECT_EQ(orv::host::ModuleLockCount(), locksBefore_ + 1) << "a live page holds the module";
    ComPtr<IUnknown> identity;
    ASSERT_EQ(page.As(IID_IUnknown, identity), S_OK);
    ComPtr<IPropertyPage2> second;
    EXPECT_EQ(page.As(IID_IPropertyPage2, second), E_NOINTERFACE);
    page_.reset();
  }

  Outer outer;
  EXPECT_EQ(orv::host::CreateChartPropertyPage(&outer, IID_IPropertyPage, &object, &MakeSamplePage),
            CLASS_E_NOAGGREGATION);
  ASSERT_EQ(orv::host::CreateChartPropertyPage(&outer, IID_IUnknown, reinterpret_cast<void**>(outer.inner.put()),
                                               &MakeSamplePage),
            S_OK);
  {
    ComPtr<IPropertyPage> page;
    ASSERT_EQ(outer.QueryInterface(IID_IPropertyPage, reinterpret_cast<void**>(page.put())), S_OK);
    EXPECT_EQ(outer.refs, 2u) << "the inner's interface counts on the outer";
    ComPtr<IUnknown> identity;
    ASSERT_EQ(page.As(IID_IUnknown, identity), S_OK);
    EXPECT_EQ(identity.get(), static_cast<IUnknown*>(&outer));
    EXPECT_EQ(page->IsPageDirty(), S_FALSE);
  }
  EXPECT_EQ(outer.refs, 1u);
  outer.inner.reset();
}

}  // namespace
