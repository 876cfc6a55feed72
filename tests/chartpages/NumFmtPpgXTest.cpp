// The number format page: its reading of the host's categories and selection, then the page in
// its frame on the template's controls: the type area each kind shows, the offered stretch of a
// type table, the sample of each kind, what the host gets after a change (exact XML), the
// decimal places' limits with their texts, and help.

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "ChartPagesTemplates.h"
#include "chartpages/ChartPage.h"
#include "chartpages/NumFmtPpgX.h"
#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/FakeSheetOwner.h"
#include "dlgkit/fake/TemplateLayout.h"
#include "xml/Xml.h"

namespace {

// A host object that hands the page `properties` (under its root) and keeps what Apply sends;
// `found` false answers that it has none.
class HostConnection final : public orv::ChartPageConnection {
 public:
  std::string properties;
  bool found = true;
  std::vector<std::string> sent;
  std::vector<std::uint32_t> statuses;

  std::unique_ptr<orv::ChartPageHost> QueryHost() override { return std::make_unique<Host>(*this); }
  void OnStatusChange(std::uint32_t flags) override { statuses.push_back(flags); }

 private:
  struct Host final : orv::ChartPageHost {
    explicit Host(HostConnection& owner) : owner_(owner) {}
    void GetPageProperties(std::int32_t scope, XmlNode root, std::int32_t& found) override {
      EXPECT_EQ(scope, 0);
      XmlNode source = XmlCreateDocument();
      ASSERT_TRUE(XmlLoadString(source, "<Source>" + owner_.properties + "</Source>"));
      for (XmlNode child = XmlFirstChild(XmlFindChild(source, "Source")); child; child = XmlNextSibling(child))
        XmlAppendClone(root, child, true);
      found = owner_.found ? 1 : 0;
    }
    void SetPageProperties(std::int32_t scope, XmlNode root, std::int32_t&) override {
      EXPECT_EQ(scope, 0);
      owner_.sent.push_back(orv::Compact(XmlGetXml(root)));
    }
    HostConnection& owner_;
  };
};

struct NumberPage {
  explicit NumberPage(const std::string& properties, bool found = true)
      : frame(std::make_unique<CNumFmtPpgX>(), connection), page(static_cast<CNumFmtPpgX&>(frame.page())) {
    connection.properties = properties;
    connection.found = found;
    const orv::TemplateDialog* dialog = orv::FindTemplate(orv::templates::kDialogs, IDD_NUMFMT_PPG);
    EXPECT_NE(dialog, nullptr);
    if (dialog) orv::AddTemplateControls(*dialog, controls);
    controls.AttachPage(&frame);
    frame.OnInitDialog(controls, nullptr, nullptr);
  }
  bool Visible(int id) { return controls.IsDlgItemVisible(id); }
  std::string Text(int id) { return controls.GetDlgItemTextA(id, 256); }
  std::vector<std::string> Types() {
    std::vector<std::string> rows;
    for (int i = 0; i < controls.ListGetCount(IDC_NF_TYPE); ++i) rows.push_back(controls.ListGetText(IDC_NF_TYPE, i));
    return rows;
  }
  std::string SelectedType() {
    const int row = controls.ListGetCurSel(IDC_NF_TYPE);
    return row < 0 ? "" : controls.ListGetText(IDC_NF_TYPE, row);
  }
  void SelectCategory(const std::string& name) {
    for (int i = 0; i < controls.ListGetCount(IDC_NF_CATEGORY); ++i) {
      if (controls.ListGetText(IDC_NF_CATEGORY, i) == name) return controls.SelectListItem(IDC_NF_CATEGORY, i);
    }
    ADD_FAILURE() << "no category " << name;
  }
  void SelectType(const std::string& text) {
    const std::vector<std::string> rows = Types();
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (rows[i] == text) return controls.SelectListItem(IDC_NF_TYPE, static_cast<int>(i));
    }
    ADD_FAILURE() << "no type " << text;
  }

  HostConnection connection;
  orv::ChartPageFrame frame;
  CNumFmtPpgX& page;
  orv::FakeControls controls;
};

// The host's categories as a chart's Y axis offers them: one of each kind, and one the page has
// no kind for.
const std::string kCategories =
    "<FormatList>"
    "<Category Id=\"0\" Begin=\"0\" End=\"13\" Name=\"Fraction\" Control=\"Fraction\"/>"
    "<Category Id=\"5\" Name=\"Decimal\" Control=\"decimal\"/>"
    "<Category Id=\"16\" Begin=\"0\" End=\"9\" Name=\"Date\" Control=\"DATE\"/>"
    "<Category Id=\"256\" Begin=\"0\" End=\"2\" Name=\"Time\" Control=\"Time\"/>"
    "<Category Id=\"3\" Name=\"Ticks\" Control=\"Tick\"/>"
    "</FormatList>";

// What the host puts under the page's root.
std::string Doc(const std::string& select, const std::string& list = kCategories) { return select + list; }

// The same as a document of its own.
std::string Rooted(const std::string& select, const std::string& list = kCategories) {
  return "<NumFmtPpgX>" + select + list + "</NumFmtPpgX>";
}

std::string Select(std::int32_t format, std::int32_t precision) {
  return "<Select Format=\"" + std::to_string(format) + "\" Precision=\"" + std::to_string(precision) + "\"/>";
}

std::string Sent(std::int32_t format, std::int32_t precision) {
  return "<NumFmtPpgX><Select Format=\"" + std::to_string(format) + "\" Precision=\"" + std::to_string(precision) +
         "\"/></NumFmtPpgX>";
}

const std::vector<std::string> kFractionTypes = {"Best Fit", "(1/2)",   "(1/4)",    "(1/8)",    "(1/16)",
                                                 "(1/32)",   "(1/64)",  "(1/128)",  "(1/256)",  "(1/512)",
                                                 "(1/10)",   "(1/100)", "(1/1000)", "(1/10000)"};
const std::vector<std::string> kDateTypes = {"mm/dd/yy", "mm-dd-yy", "dd-Mon-yy", "Mon-yy", "dd/mm/yy",
                                             "dd-mm-yy", "yy/mm/dd", "yy-mm-dd",  "Mon-dd", "DoW mm/dd/yy"};
const std::vector<std::string> kTimeTypes = {" 2:30 PM", "14:30", " 2:30"};

// ---- Reading: the selection and each category's kind and precision ----

struct ReadCase {
  const char* name;
  std::string document;
  int selected;
  std::vector<std::int32_t> precisions;  // per category, after the read
  std::vector<NumFmtKind> kinds;
};
void PrintTo(const ReadCase& c, std::ostream* os) { *os << c.name; }

class NumFmtRead : public testing::TestWithParam<ReadCase> {};

TEST_P(NumFmtRead, TakesTheSelectionAndTheKinds) {
  const ReadCase& c = GetParam();
  XmlNode document = XmlCreateDocument();
  ASSERT_TRUE(XmlLoadString(document, c.document));
  NumFmtProps props;
  props.Read(document);
  EXPECT_EQ(props.selected, c.selected);
  ASSERT_EQ(props.categories.size(), c.precisions.size());
  for (std::size_t i = 0; i < c.precisions.size(); ++i) {
    EXPECT_EQ(props.categories[i].precision, c.precisions[i]) << "category " << i;
    EXPECT_EQ(props.categories[i].kind, c.kinds[i]) << "category " << i;
  }
}

const std::vector<NumFmtKind> kKinds = {NumFmtKind::Fraction, NumFmtKind::Decimal, NumFmtKind::Date, NumFmtKind::Time,
                                        NumFmtKind::None};

INSTANTIATE_TEST_SUITE_P(
    Documents, NumFmtRead,
    testing::Values(
        // fractions and decimals take the Select's precision; the others keep their kind's
        ReadCase{"fraction", Rooted(Select(0, 12)), 0, {12, 2, 256, 16, 2}, kKinds},
        ReadCase{"decimal", Rooted(Select(5, 4)), 1, {11, 4, 256, 16, 2}, kKinds},
        // dates and times take the Select's format as their precision
        ReadCase{"date", Rooted(Select(16, 9)), 2, {11, 2, 16, 16, 2}, kKinds},
        ReadCase{"time", Rooted(Select(256, 9)), 3, {11, 2, 256, 256, 2}, kKinds},
        ReadCase{"no kind", Rooted(Select(3, 9)), 4, {11, 2, 256, 16, 2}, kKinds},
        ReadCase{"no such format", Rooted(Select(48, 9)), -1, {11, 2, 256, 16, 2}, kKinds},
        // without a Select: format 0 and precision 2
        ReadCase{"no select", Rooted(""), 0, {2, 2, 256, 16, 2}, kKinds},
        // the first category of the format is the one
        ReadCase{"first of two",
                 Rooted(Select(7, 3),
                        "<FormatList><Category Id=\"7\" Control=\"Decimal\"/>"
                        "<Category Id=\"7\" Control=\"Fraction\"/></FormatList>"),
                 0,
                 {3, 11},
                 {NumFmtKind::Decimal, NumFmtKind::Fraction}},
        // an Id missing is -1; found anywhere below the node given
        ReadCase{"nested",
                 "<Chart><Axis><NumFmtPpgX>" + Select(-1, 4) +
                     "<FormatList><Category Control=\"decimal\"/></FormatList></NumFmtPpgX></Axis></Chart>",
                 0,
                 {4},
                 {NumFmtKind::Decimal}},
        ReadCase{"no root", "<Chart>" + Select(0, 4) + kCategories + "</Chart>", -1, {}, {}}));

// ---- The page on its template: type area, types offered, sample ----

struct AreaCase {
  const char* name;
  std::string document;
  std::set<int> visible;  // of the type area; the rest of it hidden
  std::vector<std::string> types;
  std::string selectedType;
  std::string places;  // the edit's text where it shows
  std::string sample;
};
void PrintTo(const AreaCase& c, std::ostream* os) { *os << c.name; }

const std::set<int> kTypeArea = {IDC_NF_TYPE_LABEL, IDC_NF_TYPE, IDC_NF_PLACES_LABEL, IDC_NF_PLACES,
                                 IDC_NF_PLACES_SPIN};
const std::set<int> kList = {IDC_NF_TYPE_LABEL, IDC_NF_TYPE};
const std::set<int> kPlaces = {IDC_NF_PLACES_LABEL, IDC_NF_PLACES, IDC_NF_PLACES_SPIN};

class NumFmtArea : public testing::TestWithParam<AreaCase> {};

TEST_P(NumFmtArea, ShowsTheKindsTypesAndSample) {
  const AreaCase& c = GetParam();
  NumberPage p(c.document);
  for (int id : kTypeArea) EXPECT_EQ(p.Visible(id), c.visible.count(id) == 1) << "control " << id;
  EXPECT_EQ(p.Types(), c.types);
  EXPECT_EQ(p.SelectedType(), c.selectedType);
  if (c.visible.count(IDC_NF_PLACES)) {
    EXPECT_EQ(p.Text(IDC_NF_PLACES), c.places);
  }
  EXPECT_EQ(p.Text(IDC_NF_SAMPLE), c.sample);
  EXPECT_FALSE(p.frame.IsDirty());
}

std::string FractionList(const std::string& range) {
  return "<FormatList><Category Id=\"0\" " + range + " Name=\"Fraction\" Control=\"Fraction\"/></FormatList>";
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, NumFmtArea,
    testing::Values(
        // 123.50390625 in 32nds, the market's short form: 123 16/32
        AreaCase{"fraction", Doc(Select(0, 12)), kList, kFractionTypes, "(1/32)", "", "12316"},
        // format 0 with the best fit: the decimals that hold the value
        AreaCase{"best fit", Doc(Select(0, 100)), kList, kFractionTypes, "Best Fit", "", "123.50390625"},
        // format 5 groups the whole by threes
        AreaCase{"decimal", Doc(Select(5, 4)), kPlaces, {}, "", "4", "123.5039"},
        // 8 places or more show 7 (the page opens clean all the same); until it is stored the
        // category keeps its code, 9 (quarters): 123 2/4
        AreaCase{"decimal past 7", Doc(Select(5, 9)), kPlaces, {}, "", "7", "1232"},
        // serial 37375 + 2: 1 May 2002
        AreaCase{"date", Doc(Select(16, 0)), kList, kDateTypes, "mm/dd/yy", "", "05/01/02"},
        AreaCase{"time", Doc(Select(256, 0)), kList, kTimeTypes, "14:30", "", "14:30"},
        // no kind: nothing of the type area; 3 is the tick text
        AreaCase{"no kind", Doc(Select(3, 2)), {}, {}, "", "", "123' 50"},
        AreaCase{"nothing selected", Doc(Select(48, 2)), {}, {}, "", "", ""},
        AreaCase{"no document", "", {}, {}, "", "", ""},
        // the stretch of the table a category offers
        AreaCase{"begin and end",
                 Doc(Select(0, 10), FractionList("Begin=\"2\" End=\"4\"")),
                 kList,
                 {"(1/4)", "(1/8)", "(1/16)"},
                 "(1/8)",
                 "",
                 "1234"},
        AreaCase{"end past the table", Doc(Select(0, 4), FractionList("Begin=\"-3\" End=\"99\"")), kList,
                 kFractionTypes, "(1/10000)", "", "123.5039"},
        AreaCase{"precision not offered",
                 Doc(Select(0, 12), FractionList("Begin=\"1\" End=\"3\"")),
                 kList,
                 {"(1/2)", "(1/4)", "(1/8)"},
                 "",
                 "",
                 "12316"},
        // Begin past End: the list stays empty
        AreaCase{
            "begin past end", Doc(Select(0, 10), FractionList("Begin=\"5\" End=\"4\"")), kList, {}, "", "", "1234"},
        // no Begin and End: row 1 alone
        AreaCase{"default stretch", Doc(Select(0, 8), FractionList("")), kList, {"(1/2)"}, "(1/2)", "", "1231"}));

TEST(NumFmtPage, ListsTheCategoriesAndSelectsTheFormats) {
  NumberPage p(Doc(Select(16, 0)));
  ASSERT_EQ(p.controls.ListGetCount(IDC_NF_CATEGORY), 5);
  EXPECT_EQ(p.controls.ListGetText(IDC_NF_CATEGORY, 0), "Fraction");
  EXPECT_EQ(p.controls.ListGetText(IDC_NF_CATEGORY, 4), "Ticks");
  EXPECT_EQ(p.controls.ListGetCurSel(IDC_NF_CATEGORY), 2);
  EXPECT_EQ(p.connection.statuses, std::vector<std::uint32_t>{});
}

TEST(NumFmtPage, HostWithoutPropertiesLeavesTheDefaults) {
  NumberPage p(Doc(Select(0, 12)), false);
  EXPECT_EQ(p.controls.ListGetCount(IDC_NF_CATEGORY), 0);
  EXPECT_EQ(p.Text(IDC_NF_SAMPLE), "");
}

// ---- Changes and Apply: what the host gets ----

struct EditCase {
  const char* name;
  std::string document;
  std::function<void(NumberPage&)> edit;
  std::string sample;  // after the edit
  std::vector<std::string> sent;
};
void PrintTo(const EditCase& c, std::ostream* os) { *os << c.name; }

class NumFmtApply : public testing::TestWithParam<EditCase> {};

TEST_P(NumFmtApply, SendsTheSelectedFormatPair) {
  const EditCase& c = GetParam();
  NumberPage p(c.document);
  c.edit(p);
  EXPECT_EQ(p.Text(IDC_NF_SAMPLE), c.sample);
  EXPECT_EQ(p.frame.IsDirty(), !c.sent.empty());
  p.frame.Apply();
  EXPECT_EQ(p.connection.sent, c.sent);
  EXPECT_FALSE(p.frame.IsDirty());
}

INSTANTIATE_TEST_SUITE_P(
    Edits, NumFmtApply,
    testing::Values(
        EditCase{"nothing changed", Doc(Select(0, 12)), [](NumberPage&) {}, "12316", {}},
        EditCase{
            "fraction type", Doc(Select(0, 12)), [](NumberPage& p) { p.SelectType("(1/8)"); }, "1234", {Sent(0, 10)}},
        EditCase{"fraction best fit",
                 Doc(Select(0, 12)),
                 [](NumberPage& p) { p.SelectType("Best Fit"); },
                 "123.50390625",
                 {Sent(0, 100)}},
        EditCase{"decimal places",
                 Doc(Select(5, 4)),
                 [](NumberPage& p) { p.controls.TypeText(IDC_NF_PLACES, "2"); },
                 "123.50",
                 {Sent(5, 2)}},
        // a date or time type is the format too
        EditCase{
            "date type", Doc(Select(16, 0)), [](NumberPage& p) { p.SelectType("Mon-yy"); }, "May-02", {Sent(64, 64)}},
        EditCase{"weekday",
                 Doc(Select(16, 0)),
                 [](NumberPage& p) { p.SelectType("DoW mm/dd/yy"); },
                 "Wed 05/01/02",
                 {Sent(208, 208)}},
        EditCase{"time type",
                 Doc(Select(256, 0)),
                 [](NumberPage& p) { p.SelectType(" 2:30 PM"); },
                 " 2:30 PM",
                 {Sent(512, 512)}},
        // the time format's own text: no padding
        EditCase{"12-hour clock",
                 Doc(Select(256, 0)),
                 [](NumberPage& p) { p.SelectType(" 2:30"); },
                 "2:30",
                 {Sent(768, 768)}},
        // another category: its own pair, with its kind's precision
        EditCase{"to decimal",
                 Doc(Select(0, 12)),
                 [](NumberPage& p) { p.SelectCategory("Decimal"); },
                 "123.50",
                 {Sent(5, 2)}},
        EditCase{"to time",
                 Doc(Select(0, 12)),
                 [](NumberPage& p) {
                   p.SelectCategory("Time");
                   p.SelectType("14:30");
                 },
                 "14:30",
                 {Sent(256, 256)}},
        EditCase{"to a category without kind",
                 Doc(Select(0, 12)),
                 [](NumberPage& p) { p.SelectCategory("Ticks"); },
                 "123' 50",
                 {Sent(3, 2)}},
        // a category keeps what was chosen on it while another was shown
        EditCase{"away and back",
                 Doc(Select(0, 12)),
                 [](NumberPage& p) {
                   p.SelectType("(1/4)");
                   p.SelectCategory("Date");
                   p.SelectType("yy-mm-dd");
                   p.SelectCategory("Fraction");
                 },
                 "1232",
                 {Sent(0, 9)}},
        // a decimal category read with 8 places or more: its 7 is stored once it is shown again
        EditCase{"decimal past 7 shown again",
                 Doc(Select(5, 12)),
                 [](NumberPage& p) {
                   p.SelectCategory("Fraction");
                   p.SelectCategory("Decimal");
                 },
                 "123.5039063",
                 {Sent(5, 7)}}));

// ---- The decimal places' limits ----

struct PlacesCase {
  const char* typed;
  const char* shown;
  const char* message;  // "" for none
  std::string sent;
};
void PrintTo(const PlacesCase& c, std::ostream* os) { *os << "typed \"" << c.typed << "\""; }

class NumFmtPlaces : public testing::TestWithParam<PlacesCase> {};

TEST_P(NumFmtPlaces, HoldsThemToZeroToSeven) {
  const PlacesCase& c = GetParam();
  NumberPage p(Doc(Select(5, 4)));
  p.controls.TypeText(IDC_NF_PLACES, c.typed);
  EXPECT_EQ(p.Text(IDC_NF_PLACES), c.shown);
  if (*c.message) {
    ASSERT_EQ(p.controls.MessageBoxes().size(), 1u);
    EXPECT_EQ(p.controls.MessageBoxes()[0].text, c.message);
    EXPECT_EQ(p.controls.MessageBoxes()[0].caption, "Sorry");
    EXPECT_EQ(p.controls.MessageBoxes()[0].flags, 0x10u);  // the stop icon
    EXPECT_EQ(p.controls.GetFocus(), IDC_NF_PLACES);
  } else {
    EXPECT_TRUE(p.controls.MessageBoxes().empty());
  }
  p.frame.Apply();
  EXPECT_EQ(p.connection.sent, std::vector<std::string>{c.sent});
}

INSTANTIATE_TEST_SUITE_P(
    Typed, NumFmtPlaces,
    testing::Values(PlacesCase{"0", "0", "", Sent(5, 0)}, PlacesCase{"7", "7", "", Sent(5, 7)},
                    PlacesCase{"8", "7", "This exceeds the maximum number of decimal places.", Sent(5, 7)},
                    PlacesCase{"99999999999", "7", "This exceeds the maximum number of decimal places.", Sent(5, 7)},
                    PlacesCase{"-1", "0", "The minimum value is 0 decimal places.", Sent(5, 0)},
                    // no digits: none
                    PlacesCase{"", "", "", Sent(5, 0)}));

TEST(NumFmtPage, OpensWithTheSpinsRange) {
  NumberPage p(Doc(Select(5, 4)));
  EXPECT_EQ(p.controls.Control(IDC_NF_PLACES_SPIN).lower, 0);
  EXPECT_EQ(p.controls.Control(IDC_NF_PLACES_SPIN).upper, 7);
  EXPECT_EQ(p.controls.Control(IDC_NF_PLACES_SPIN).pos, 4);
}

TEST(NumFmtPage, AnswersHelpWithItsTopic) {
  NumberPage p(Doc(Select(0, 12)));
  EXPECT_TRUE(p.frame.OnHelp());
  ASSERT_EQ(p.controls.HelpRequests().size(), 1u);
  EXPECT_EQ(p.controls.HelpRequests()[0], (std::pair<std::string, int>{"CHARTX", 1304}));
}

TEST(NumFmtPage, KeepsTheChoiceWhenItsWindowCloses) {
  NumberPage p(Doc(Select(0, 12)));
  p.SelectType("(1/64)");
  p.frame.WindowClosing();
  p.frame.Apply();
  EXPECT_EQ(p.connection.sent, std::vector<std::string>{Sent(0, 13)});
}

}  // namespace
