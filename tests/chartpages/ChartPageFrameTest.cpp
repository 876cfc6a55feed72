// The page frame's opening and Apply over a strict fake host object and a recording site:
// what is asked and sent, with which scope and XML, and which status the site hears.

#include <gtest/gtest.h>

#include <cctype>
#include <deque>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "SampleChartPage.h"
#include "chartpages/ChartPage.h"
#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/FakeSheetOwner.h"
#include "xml/Xml.h"

namespace {

using orv::FakeControlKind;
using orv::kPageStatusClean;
using orv::kPageStatusDirty;

// One call the host object is to receive, in order. Get fills the root with `xml`'s children
// and answers `found`; Set checks the root's XML (without the indentation MSXML may add)
// against `xml`.
struct HostCall {
  enum Kind { Get, Set } kind;
  std::int32_t scope;
  std::string xml;
  std::int32_t found = 0;
};

// The host object and the site behind the frame. Strict: a call nobody expects fails the test.
class FakeConnection final : public orv::ChartPageConnection {
 public:
  bool hasHost = true;
  std::deque<HostCall> expected;
  std::vector<std::uint32_t> statuses;
  std::vector<XmlNode> rootsSeen;  // what the host kept of each call

  std::unique_ptr<orv::ChartPageHost> QueryHost() override {
    if (!hasHost) return nullptr;
    return std::make_unique<Host>(*this);
  }
  void OnStatusChange(std::uint32_t flags) override { statuses.push_back(flags); }

 private:
  class Host final : public orv::ChartPageHost {
   public:
    explicit Host(FakeConnection& owner) : owner_(owner) {}
    void GetPageProperties(std::int32_t scope, XmlNode root, std::int32_t& found) override {
      const HostCall call = Next(HostCall::Get, scope);
      owner_.rootsSeen.push_back(root);
      XmlNode source = XmlCreateDocument();
      ASSERT_TRUE(XmlLoadString(source, "<Source>" + call.xml + "</Source>"));
      for (XmlNode child = XmlFirstChild(XmlFindChild(source, "Source")); child; child = XmlNextSibling(child))
        XmlAppendClone(root, child, true);
      found = call.found;
    }
    void SetPageProperties(std::int32_t scope, XmlNode root, std::int32_t& result) override {
      const HostCall call = Next(HostCall::Set, scope);
      owner_.rootsSeen.push_back(root);
      EXPECT_EQ(orv::Compact(XmlGetXml(root)), call.xml);
      result = 1;
    }

   private:
    HostCall Next(HostCall::Kind kind, std::int32_t scope) {
      if (owner_.expected.empty() || owner_.expected.front().kind != kind) {
        ADD_FAILURE() << "unexpected " << (kind == HostCall::Get ? "GetPageProperties" : "SetPageProperties");
        throw XmlComError(orv::kStatusFail, "unexpected host call");
      }
      HostCall call = owner_.expected.front();
      owner_.expected.pop_front();
      EXPECT_EQ(scope, call.scope) << "scope";
      return call;
    }
    FakeConnection& owner_;
  };
};

// A sample page in a frame, its window's controls in memory.
struct FramedPage {
  explicit FramedPage(FakeConnection& connection, const CSampleChartPage::Options& options = {})
      : frame(std::make_unique<CSampleChartPage>(options), connection),
        page(static_cast<CSampleChartPage&>(frame.page())) {
    controls.Add(IDC_SAMPLE_VALUE, FakeControlKind::Edit).Add(IDC_SAMPLE_FLAG, FakeControlKind::CheckBox);
    controls.AttachPage(&frame);
  }
  void Open() { frame.OnInitDialog(controls, nullptr, nullptr); }

  orv::ChartPageFrame frame;
  CSampleChartPage& page;
  orv::FakeControls controls;
};

constexpr const char* kProperties = "<Value>from host</Value><Flag>1</Flag>";

// A case's words as a test name: letters and digits, the rest as underscores.
std::string TestName(const char* words) {
  std::string name;
  for (const char* c = words; *c; ++c) name += std::isalnum(static_cast<unsigned char>(*c)) ? *c : '_';
  return name;
}

struct OpenCase {
  const char* name;
  bool hasHost;
  std::int32_t scope;
  std::int32_t found;
  bool dirtyWhileOpening;
  // expected
  int loads;
  const char* shown;
  bool flagShown;
  std::vector<std::uint32_t> statuses;
};

void PrintTo(const OpenCase& c, std::ostream* os) { *os << c.name; }

class Opening : public testing::TestWithParam<OpenCase> {};

TEST_P(Opening, AsksTheHostOnANewRootAndOpensClean) {
  const OpenCase& c = GetParam();
  FakeConnection connection;
  connection.hasHost = c.hasHost;
  if (c.hasHost) connection.expected.push_back({HostCall::Get, c.scope, kProperties, c.found});
  CSampleChartPage::Options options;
  options.scope = c.scope;
  options.dirtyWhileOpening = c.dirtyWhileOpening;
  FramedPage framed(connection, options);

  framed.Open();

  EXPECT_TRUE(connection.expected.empty());
  EXPECT_EQ(framed.page.Loads(), c.loads);
  EXPECT_EQ(framed.controls.GetDlgItemTextA(IDC_SAMPLE_VALUE, 256), c.shown);
  EXPECT_EQ(framed.controls.IsDlgButtonChecked(IDC_SAMPLE_FLAG), c.flagShown ? orv::kBstChecked : orv::kBstUnchecked);
  EXPECT_EQ(connection.statuses, c.statuses);
  EXPECT_FALSE(framed.frame.IsDirty()) << "a page opens clean";
  if (c.hasHost) {
    // The root the host filled is the root element of the document the frame keeps.
    ASSERT_EQ(connection.rootsSeen.size(), 1u);
    EXPECT_EQ(XmlGetXml(XmlFindChild(framed.frame.Document(), "SampleChartPg")), XmlGetXml(connection.rootsSeen[0]));
  } else {
    EXPECT_FALSE(framed.frame.Document()) << "no exchange, no document";
  }
}

// The statuses the site hears.
const std::vector<std::uint32_t> kNone, kClean = {kPageStatusClean},
                                        kDirtyThenClean = {kPageStatusDirty, kPageStatusClean};

INSTANTIATE_TEST_SUITE_P(
    Cases, Opening,
    testing::Values(OpenCase{"found", true, 0, 1, false, 1, "from host", true, kNone},
                    OpenCase{"any non-zero found counts", true, 0, -3, false, 1, "from host", true, kNone},
                    OpenCase{"not found: the defaults show", true, 0, 0, false, 0, "default", false, kNone},
                    OpenCase{"no host object: the defaults show", false, 0, 0, false, 0, "default", false, kNone},
                    OpenCase{"scope 1 is passed", true, 1, 1, false, 1, "from host", true, kNone},
                    OpenCase{"dirty while filling", true, 0, 1, true, 1, "from host", true, kDirtyThenClean},
                    OpenCase{"dirty filling the defaults", false, 0, 0, true, 0, "default", false, kDirtyThenClean}),
    [](const testing::TestParamInfo<OpenCase>& info) { return TestName(info.param.name); });

struct ApplyCase {
  const char* name;
  bool hasHost;
  bool dirty;
  bool validates;
  bool writes;
  bool cleansBeforeExchange;
  std::int32_t scope;
  // expected
  const char* sent;                     // the root the host receives; null: no SetPageProperties
  std::vector<std::uint32_t> statuses;  // after the user's change
  bool dirtyAfter;
  int saves;
};

void PrintTo(const ApplyCase& c, std::ostream* os) { *os << c.name; }

class Applying : public testing::TestWithParam<ApplyCase> {};

constexpr const char* kTypedRoot = "<SampleChartPg><Value>typed</Value><Flag>1</Flag></SampleChartPg>";

TEST_P(Applying, SendsWhatTheUserChangedOnANewRoot) {
  const ApplyCase& c = GetParam();
  FakeConnection connection;
  connection.hasHost = c.hasHost;
  if (c.hasHost) connection.expected.push_back({HostCall::Get, c.scope, kProperties, 1});
  CSampleChartPage::Options options;
  options.scope = c.scope;
  options.validates = c.validates;
  options.writes = c.writes;
  options.cleansBeforeExchange = c.cleansBeforeExchange;
  FramedPage framed(connection, options);
  framed.Open();
  if (c.dirty) framed.controls.TypeText(IDC_SAMPLE_VALUE, "typed");
  framed.controls.CheckDlgButton(IDC_SAMPLE_FLAG, orv::kBstChecked);  // by the program: not the user's change
  connection.statuses.clear();
  XmlNode openingDocument = framed.frame.Document();
  if (c.sent != nullptr) connection.expected.push_back({HostCall::Set, c.scope, c.sent});

  framed.frame.Apply();

  EXPECT_TRUE(connection.expected.empty()) << "every expected host call was made";
  EXPECT_EQ(connection.statuses, c.statuses);
  EXPECT_EQ(framed.frame.IsDirty(), c.dirtyAfter);
  EXPECT_EQ(framed.page.Validations(), 1) << "the validators run first, dirty or not";
  EXPECT_EQ(framed.page.Saves(), c.saves);
  if (c.sent != nullptr) {
    // The document of the exchange is new, and kept: the root the host got stays readable.
    EXPECT_NE(XmlGetXml(framed.frame.Document()), XmlGetXml(openingDocument));
    EXPECT_EQ(orv::Compact(XmlGetXml(connection.rootsSeen.back())), c.sent);
    EXPECT_EQ(orv::Compact(XmlGetXml(XmlFindChild(framed.frame.Document(), "SampleChartPg"))), c.sent);
  } else if (c.hasHost && c.saves == 0) {
    EXPECT_EQ(XmlGetXml(framed.frame.Document()), XmlGetXml(openingDocument)) << "no exchange: the last one stays";
  }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Applying,
    testing::Values(
        ApplyCase{"dirty: sent, then clean", true, true, true, true, false, 0, kTypedRoot, kClean, false, 1},
        ApplyCase{"scope 1 in both calls", true, true, true, true, false, 1, kTypedRoot, kClean, false, 1},
        ApplyCase{"not dirty: nothing sent, nothing told", true, false, true, true, false, 0, nullptr, kNone, false, 0},
        ApplyCase{"validator refuses: stays dirty", true, true, false, true, false, 0, nullptr, kNone, true, 0},
        ApplyCase{"validator refuses a clean page too", true, false, false, true, false, 0, nullptr, kNone, false, 0},
        ApplyCase{"writer refuses: stays dirty", true, true, true, false, false, 0, nullptr, kNone, true, 1},
        ApplyCase{"no host object: made clean", false, true, true, true, false, 0, nullptr, kClean, false, 0},
        ApplyCase{"cleaning first: same outcome", true, true, true, true, true, 0, kTypedRoot, kClean, false, 1},
        ApplyCase{"cleaning first, writer refuses: clean", true, true, true, false, true, 0, nullptr, kClean, false, 1},
        ApplyCase{"cleaning first, validator refuses", true, true, false, true, true, 0, nullptr, kNone, true, 0}),
    [](const testing::TestParamInfo<ApplyCase>& info) { return TestName(info.param.name); });

// Failures of the host's calls reach the frame's caller as they stand; the page stays dirty.
TEST(ChartPageFrame, AHostFailureDuringApplyPassesThrough) {
  FakeConnection connection;
  connection.expected.push_back({HostCall::Get, 0, kProperties, 1});
  FramedPage framed(connection);
  framed.Open();
  framed.controls.TypeText(IDC_SAMPLE_VALUE, "typed");
  connection.statuses.clear();

  class Failing final : public orv::ChartPageConnection {
   public:
    explicit Failing(FakeConnection& inner) : inner_(inner) {}
    std::unique_ptr<orv::ChartPageHost> QueryHost() override { return std::make_unique<Host>(); }
    void OnStatusChange(std::uint32_t flags) override { inner_.OnStatusChange(flags); }

   private:
    struct Host final : orv::ChartPageHost {
      void GetPageProperties(std::int32_t, XmlNode, std::int32_t&) override { throw XmlComError(orv::kStatusFail); }
      void SetPageProperties(std::int32_t, XmlNode, std::int32_t&) override {
        throw XmlComError(static_cast<orv::Status>(0x80070005));
      }
    };
    FakeConnection& inner_;
  } failing(connection);
  orv::ChartPageFrame other(std::make_unique<CSampleChartPage>(), failing);
  orv::FakeControls controls;
  controls.Add(IDC_SAMPLE_VALUE, FakeControlKind::Edit).Add(IDC_SAMPLE_FLAG, FakeControlKind::CheckBox);
  controls.AttachPage(&other);
  EXPECT_THROW(other.OnInitDialog(controls, nullptr, nullptr), XmlComError);

  orv::ChartPageFrame applying(std::make_unique<CSampleChartPage>(), failing);
  applying.MarkDirty();
  try {
    applying.Apply();
    ADD_FAILURE() << "no exception";
  } catch (const XmlComError& error) {
    EXPECT_EQ(error.status(), static_cast<orv::Status>(0x80070005));
  }
  EXPECT_TRUE(applying.IsDirty());
  EXPECT_EQ(connection.statuses, (std::vector<std::uint32_t>{kPageStatusDirty}));
}

}  // namespace
