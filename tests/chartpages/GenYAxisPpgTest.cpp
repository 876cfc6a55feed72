// The Y axis general page in its frame on its template's controls: what a document shows (pins
// held to three states, values in the chart's price format), the enabling rules, the pins that
// "Scroll" forces and gives back, how a value edit's text is read, and what the host gets after a
// change (exact XML). Values shown use price codes of two decimals, whose text is "%.2f" of the
// value under every layout the page uses here.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "AxisPageHarness.h"
#include "chartpages/GenYAxisPpg.h"

namespace {

using axes_test::AxisPage;

struct YPage : AxisPage<CGenYAxisPpg> {
  explicit YPage(const std::string& properties) : AxisPage(properties, std::make_unique<CGenYAxisPpg>()) {}
  void ClickUntil(int id, int state) {
    for (int i = 0; i < 3 && Check(id) != state; ++i) controls.Click(id);
  }
};

// A whole document: every key, in the page's order.
struct Fields {
  int coordSys = 0, dragMode = 1, inverted = 0, pinMax = 0, pinMin = 0, pinMaj = 0, pinMnr = 0;
  int precision = 0, format = 2, market = 0;
  std::string maxRange = "150.250000", minRange = "98.500000", majorSpace = "10.000000", minorSpace = "2.500000";
  int pctOrigin = 0, pctAvg = 3;
};
std::string Doc(const Fields& f) {
  auto i = [](const char* key, int value) {
    return std::string("<") + key + ">" + std::to_string(value) + "</" + key + ">";
  };
  auto d = [](const char* key, const std::string& value) {
    return std::string("<") + key + ">" + value + "</" + key + ">";
  };
  return i("CoordSys", f.coordSys) + i("DragMode", f.dragMode) + i("Inverted", f.inverted) + i("PinMax", f.pinMax) +
         i("PinMin", f.pinMin) + i("PinMaj", f.pinMaj) + i("PinMnr", f.pinMnr) + i("Precision", f.precision) +
         i("Format", f.format) + i("Market", f.market) + d("MaxRange", f.maxRange) + d("MinRange", f.minRange) +
         d("MajorSpace", f.majorSpace) + d("MinorSpace", f.minorSpace) + i("PctOrigin", f.pctOrigin) +
         i("PctAvg", f.pctAvg);
}
std::string Sent(const Fields& f) { return "<GenYAxisPpg>" + Doc(f) + "</GenYAxisPpg>"; }
template <class Change>
Fields With(Change change) {
  Fields f;
  change(f);
  return f;
}

TEST(GenYAxisPpgShown, ValuesInThePriceFormatAndTheAverageBars) {
  YPage p(Doc(Fields{}));
  EXPECT_EQ(p.Text(IDC_YA_MAX), "150.25");
  EXPECT_EQ(p.Text(IDC_YA_MIN), "98.50");
  EXPECT_EQ(p.Text(IDC_YA_MAJOR), "10.00");
  EXPECT_EQ(p.Text(IDC_YA_MINOR), "2.50");
  // Decimal places, where there are any, stand before the format's own.
  YPage places(Doc(With([](Fields& f) { f.precision = 2, f.format = 12; })));
  EXPECT_EQ(places.Text(IDC_YA_MAX), "150.25");
  std::vector<std::string> rows;
  for (int i = 0; i < p.controls.ComboGetCount(IDC_YA_AVG_BARS); ++i) {
    rows.push_back(p.controls.ComboGetLBText(IDC_YA_AVG_BARS, i));
    EXPECT_EQ(p.controls.ComboGetItemData(IDC_YA_AVG_BARS, i), 2 * i + 1);
  }
  EXPECT_EQ(rows, (std::vector<std::string>{"1", "3", "5", "7", "9", "11", "13", "15"}));
  EXPECT_EQ(p.controls.ComboGetCurSel(IDC_YA_AVG_BARS), 1);
  EXPECT_FALSE(p.frame.IsDirty());
  EXPECT_TRUE(p.connection.statuses.empty());
}

// --- what a document shows, and what is enabled ---

struct ShownCase {
  const char* name;
  Fields fields;
  std::vector<int> checked;  // pins and radios checked (state 1)
  std::vector<int> third;    // pins in the third state
  std::vector<int> enabled;  // of the controls the rules decide
};
void PrintTo(const ShownCase& c, std::ostream* os) { *os << c.name; }

const std::vector<int> kRuled = {IDC_YA_MAX,     IDC_YA_MIN,     IDC_YA_MAJOR,   IDC_YA_MINOR,   IDC_YA_PIN_MAX,
                                 IDC_YA_PIN_MIN, IDC_YA_OLDEST,  IDC_YA_NEWEST,  IDC_YA_HIGHEST, IDC_YA_LOWEST,
                                 IDC_YA_AVERAGE, IDC_YA_FIXED_X, IDC_YA_AVG_BARS};
const std::vector<int> kChecks = {
    IDC_YA_PIN_MAX, IDC_YA_PIN_MIN,    IDC_YA_PIN_MAJ,     IDC_YA_PIN_MNR, IDC_YA_INVERT,  IDC_YA_LINEAR,
    IDC_YA_LOG,     IDC_YA_PCT_CHANGE, IDC_YA_ZERO_TO_100, IDC_YA_SCROLL,  IDC_YA_STRETCH, IDC_YA_SCROLL_STRETCH,
    IDC_YA_OLDEST,  IDC_YA_NEWEST,     IDC_YA_HIGHEST,     IDC_YA_LOWEST,  IDC_YA_AVERAGE, IDC_YA_FIXED_X};
const std::vector<int> kNormalising = {IDC_YA_OLDEST, IDC_YA_NEWEST,  IDC_YA_HIGHEST,
                                       IDC_YA_LOWEST, IDC_YA_AVERAGE, IDC_YA_FIXED_X};

std::vector<int> Plus(std::vector<int> a, const std::vector<int>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

class GenYAxisPpgRules : public testing::TestWithParam<ShownCase> {};

TEST_P(GenYAxisPpgRules, ChecksAndEnabling) {
  const ShownCase& c = GetParam();
  YPage p(Doc(c.fields));
  for (int id : kChecks) {
    const bool checked = std::find(c.checked.begin(), c.checked.end(), id) != c.checked.end();
    const bool third = std::find(c.third.begin(), c.third.end(), id) != c.third.end();
    EXPECT_EQ(p.Check(id), third ? 2 : checked ? 1 : 0) << id;
  }
  for (int id : kRuled) {
    const bool enabled = std::find(c.enabled.begin(), c.enabled.end(), id) != c.enabled.end();
    EXPECT_EQ(p.Enabled(id), enabled) << id;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Load, GenYAxisPpgRules,
    testing::Values(ShownCase{"NothingPinned",
                              Fields{},
                              {IDC_YA_LINEAR, IDC_YA_STRETCH, IDC_YA_OLDEST},
                              {},
                              {IDC_YA_PIN_MAX, IDC_YA_PIN_MIN}},
                    ShownCase{"PinsOpenTheirEdits",
                              With([](Fields& f) { f.pinMax = 1, f.pinMaj = 2, f.inverted = 1; }),
                              {IDC_YA_PIN_MAX, IDC_YA_INVERT, IDC_YA_LINEAR, IDC_YA_STRETCH, IDC_YA_OLDEST},
                              {IDC_YA_PIN_MAJ},
                              {IDC_YA_MAX, IDC_YA_MAJOR, IDC_YA_PIN_MAX, IDC_YA_PIN_MIN}},
                    ShownCase{"PinOutside0To2ShowsUnpinned",
                              With([](Fields& f) { f.pinMax = 5, f.pinMnr = -1; }),
                              {IDC_YA_LINEAR, IDC_YA_STRETCH, IDC_YA_OLDEST},
                              {},
                              {IDC_YA_PIN_MAX, IDC_YA_PIN_MIN}},
                    ShownCase{"ScrollLocksTheLimitPins",
                              With([](Fields& f) { f.dragMode = 0, f.pinMin = 1; }),
                              {IDC_YA_PIN_MIN, IDC_YA_LINEAR, IDC_YA_SCROLL, IDC_YA_OLDEST},
                              {},
                              {IDC_YA_MIN}},
                    ShownCase{"PercentChangeOpensNormalising",
                              With([](Fields& f) { f.coordSys = 2, f.pctOrigin = 3; }),
                              {IDC_YA_PCT_CHANGE, IDC_YA_STRETCH, IDC_YA_LOWEST},
                              {},
                              Plus({IDC_YA_PIN_MAX, IDC_YA_PIN_MIN, IDC_YA_AVG_BARS}, kNormalising)},
                    ShownCase{"AverageClosesTheBarsAlsoUnderPercent",
                              With([](Fields& f) { f.coordSys = 2, f.pctOrigin = 4, f.dragMode = 2; }),
                              {IDC_YA_PCT_CHANGE, IDC_YA_SCROLL_STRETCH, IDC_YA_AVERAGE},
                              {},
                              Plus({IDC_YA_PIN_MAX, IDC_YA_PIN_MIN}, kNormalising)},
                    ShownCase{"ZeroTo100KeepsNormalisingShut",
                              With([](Fields& f) { f.coordSys = 3, f.pctOrigin = 5; }),
                              {IDC_YA_ZERO_TO_100, IDC_YA_STRETCH, IDC_YA_FIXED_X},
                              {},
                              {IDC_YA_PIN_MAX, IDC_YA_PIN_MIN}}),
    [](const testing::TestParamInfo<ShownCase>& info) { return std::string(info.param.name); });

TEST(GenYAxisPpgRules, PinClickSwitchesItsEdit) {
  YPage p(Doc(Fields{}));
  p.controls.Click(IDC_YA_PIN_MNR);
  EXPECT_TRUE(p.Enabled(IDC_YA_MINOR));
  EXPECT_FALSE(p.Enabled(IDC_YA_MAJOR));
  p.controls.Click(IDC_YA_PIN_MNR);  // the third state is pinned too
  EXPECT_TRUE(p.Enabled(IDC_YA_MINOR));
  p.controls.Click(IDC_YA_PIN_MNR);
  EXPECT_FALSE(p.Enabled(IDC_YA_MINOR));
  EXPECT_EQ(p.connection.statuses, (std::vector<std::uint32_t>{1, 1, 1}));
}

TEST(GenYAxisPpgRules, CoordinatesAndOriginFollowTheClicks) {
  YPage p(Doc(Fields{}));
  p.controls.Click(IDC_YA_PCT_CHANGE);
  EXPECT_TRUE(p.Enabled(IDC_YA_AVERAGE));
  EXPECT_TRUE(p.Enabled(IDC_YA_AVG_BARS));
  p.controls.Click(IDC_YA_AVERAGE);
  EXPECT_FALSE(p.Enabled(IDC_YA_AVG_BARS));
  p.controls.Click(IDC_YA_LOG);
  EXPECT_FALSE(p.Enabled(IDC_YA_AVERAGE));
  EXPECT_FALSE(p.Enabled(IDC_YA_AVG_BARS));
}

// --- "Scroll" pins both limits, and leaving it gives back what the user had ---

TEST(GenYAxisPpgDragging, ScrollPinsBothAndLeavingItUnpinsWhatItForced) {
  YPage p(Doc(Fields{}));  // "Stretch", nothing pinned
  p.controls.Click(IDC_YA_SCROLL);
  EXPECT_EQ(p.Check(IDC_YA_PIN_MAX), 1);
  EXPECT_EQ(p.Check(IDC_YA_PIN_MIN), 1);
  EXPECT_TRUE(p.Enabled(IDC_YA_MAX));
  EXPECT_TRUE(p.Enabled(IDC_YA_MIN));
  EXPECT_FALSE(p.Enabled(IDC_YA_PIN_MAX));
  EXPECT_FALSE(p.Enabled(IDC_YA_PIN_MIN));
  p.controls.Click(IDC_YA_STRETCH);
  EXPECT_EQ(p.Check(IDC_YA_PIN_MAX), 0);
  EXPECT_EQ(p.Check(IDC_YA_PIN_MIN), 0);
  EXPECT_FALSE(p.Enabled(IDC_YA_MAX));
  EXPECT_FALSE(p.Enabled(IDC_YA_MIN));
  EXPECT_TRUE(p.Enabled(IDC_YA_PIN_MAX));
}

// Leaving "Scroll" unpins only the limit it pinned: each limit pinned by the user beforehand, in
// either pinned state, stays pinned (at 1, which "Scroll" set).
TEST(GenYAxisPpgDragging, PinsTheUserSetStayPinned) {
  struct Case {
    int userPin, userState, other;
  };
  for (const Case& c : {Case{IDC_YA_PIN_MAX, 1, IDC_YA_PIN_MIN}, Case{IDC_YA_PIN_MAX, 2, IDC_YA_PIN_MIN},
                        Case{IDC_YA_PIN_MIN, 1, IDC_YA_PIN_MAX}, Case{IDC_YA_PIN_MIN, 2, IDC_YA_PIN_MAX}}) {
    SCOPED_TRACE(testing::Message() << c.userPin << " at " << c.userState);
    YPage p(Doc(Fields{}));
    p.ClickUntil(c.userPin, c.userState);
    p.controls.Click(IDC_YA_SCROLL);
    EXPECT_EQ(p.Check(c.userPin), 1);  // "Scroll" sets both to 1
    EXPECT_EQ(p.Check(c.other), 1);
    p.controls.Click(IDC_YA_SCROLL_STRETCH);
    EXPECT_EQ(p.Check(c.userPin), 1);
    EXPECT_EQ(p.Check(c.other), 0);
  }
}

TEST(GenYAxisPpgDragging, KeepsWhatWasTypedInTheEdits) {
  YPage p(Doc(Fields{}));
  p.controls.Click(IDC_YA_PIN_MAJ);
  p.controls.TypeText(IDC_YA_MAJOR, "12.5");
  p.controls.Click(IDC_YA_SCROLL);
  EXPECT_EQ(p.Text(IDC_YA_MAJOR), "12.50");
}

// --- a value edit's text ---

struct TextCase {
  const char* name;
  const char* text;
  int precision, format;
  double value;
};
void PrintTo(const TextCase& c, std::ostream* os) { *os << c.name; }

class GenYAxisPpgValueText : public testing::TestWithParam<TextCase> {};

TEST_P(GenYAxisPpgValueText, Reads) {
  const TextCase& c = GetParam();
  GenYAxisProps props;
  props.precision = c.precision;
  props.format = c.format;
  EXPECT_DOUBLE_EQ(ReadAxisValueText(c.text, props), c.value);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, GenYAxisPpgValueText,
    testing::Values(TextCase{"EmptyIsZero", "", 0, 2, 0.0},
                    TextCase{"ThirtySecondsByTheTickMark", "123'16", 0, 12, 123.5},
                    TextCase{"HalvesByTheTickMark", "7'1", 0, 8, 7.5},
                    TextCase{"TickMarkPartsAsANumber", "10' 2.5", 0, 10, 10.3125},
                    TextCase{"TickMarkWholeByIntegerConversion", "12.9'4", 0, 9, 13.0},
                    TextCase{"TickMarkUsesFormatNotPlaces", "1'1", 3, 9, 1.25},
                    TextCase{"TickMarkUnderDecimalsIsNoNumber", "123'16", 0, 2, kNoValueNotANumber},
                    TextCase{"DecimalsToTheCodesParts", "12.344", 0, 2, 12.34},
                    TextCase{"PlacesBeforeTheFormat", "1.2344", 3, 2, 1.234},
                    TextCase{"FractionUnderEighths", "3 3/8", 0, 10, 3.375},
                    TextCase{"NoNumber", "abc", 0, 2, kNoValueNotANumber},
                    TextCase{"NoDataMarkIsNoNumber", " --- ", 0, 2, kNoValueNotANumber},
                    TextCase{"PastTheLimitOfParts", "20000000", 0, 2, kNoValueOutOfRange},
                    TextCase{"BelowTheLimitOfParts", "-20000000", 0, 2, kNoValueOutOfRange},
                    TextCase{"AtTheLimitOfParts", "19999999.99", 0, 2, 19999999.99},
                    TextCase{"PastWhatThePartsHold", "99999999999999999999", 0, 2, kNoValueOutOfRange}),
    [](const testing::TestParamInfo<TextCase>& info) { return std::string(info.param.name); });

// --- a change, Apply: what the host gets ---

struct ApplyCase {
  const char* name;
  Fields loaded;
  std::function<void(YPage&)> change;
  Fields sent;
};
void PrintTo(const ApplyCase& c, std::ostream* os) { *os << c.name; }

class GenYAxisPpgApply : public testing::TestWithParam<ApplyCase> {};

TEST_P(GenYAxisPpgApply, SendsTheExactDocument) {
  const ApplyCase& c = GetParam();
  YPage p(Doc(c.loaded));
  c.change(p);
  ASSERT_TRUE(p.frame.IsDirty());
  EXPECT_EQ(p.Applied(), Sent(c.sent));
  EXPECT_FALSE(p.frame.IsDirty());
  EXPECT_EQ(p.connection.statuses.back(), orv::kPageStatusClean);
}

INSTANTIATE_TEST_SUITE_P(
    LoadChangeApply, GenYAxisPpgApply,
    testing::Values(
        ApplyCase{"Invert", Fields{}, [](YPage& p) { p.controls.Click(IDC_YA_INVERT); },
                  With([](Fields& f) { f.inverted = 1; })},
        ApplyCase{"PinAndValue", Fields{},
                  [](YPage& p) {
                    p.controls.Click(IDC_YA_PIN_MAX);
                    p.controls.TypeText(IDC_YA_MAX, "1,234.5");
                  },
                  With([](Fields& f) { f.pinMax = 1, f.maxRange = "1234.500000"; })},
        ApplyCase{"EmptyMaximumStoresZero", With([](Fields& f) { f.pinMax = 1; }),
                  [](YPage& p) { p.controls.TypeText(IDC_YA_MAX, ""); },
                  With([](Fields& f) { f.pinMax = 1, f.maxRange = "0.000000"; })},
        ApplyCase{"TextThatIsNoPriceStoresTheMark", With([](Fields& f) { f.pinMin = 1; }),
                  [](YPage& p) { p.controls.TypeText(IDC_YA_MIN, "low"); },
                  With([](Fields& f) { f.pinMin = 1, f.minRange = "1804109699999999871992642154388258816.000000"; })},
        ApplyCase{"ThirtySecondsTypedWithTheTickMark",
                  With([](Fields& f) { f.format = 12, f.precision = 2, f.pinMnr = 1; }),
                  [](YPage& p) { p.controls.TypeText(IDC_YA_MINOR, "0'16"); },
                  With([](Fields& f) { f.format = 12, f.precision = 2, f.pinMnr = 1, f.minorSpace = "0.500000"; })},
        ApplyCase{"ScrollForcesBothLimitPins", Fields{}, [](YPage& p) { p.controls.Click(IDC_YA_SCROLL); },
                  With([](Fields& f) { f.dragMode = 0, f.pinMax = 1, f.pinMin = 1; })},
        ApplyCase{"PinOutside0To2ComesBackUnpinned", With([](Fields& f) { f.pinMax = 5; }),
                  [](YPage& p) { p.controls.Click(IDC_YA_LOG); }, With([](Fields& f) { f.coordSys = 1; })},
        ApplyCase{"NormalisingAndAverageBars", With([](Fields& f) { f.coordSys = 2; }),
                  [](YPage& p) {
                    p.controls.Click(IDC_YA_HIGHEST);
                    p.controls.SelectComboItem(IDC_YA_AVG_BARS, 7);
                  },
                  With([](Fields& f) { f.coordSys = 2, f.pctOrigin = 2, f.pctAvg = 15; })},
        ApplyCase{"CodesTheHostGaveGoBack", With([](Fields& f) { f.precision = 3, f.format = 27, f.market = 5; }),
                  [](YPage& p) { p.controls.Click(IDC_YA_INVERT); },
                  With([](Fields& f) { f.precision = 3, f.format = 27, f.market = 5, f.inverted = 1; })}),
    [](const testing::TestParamInfo<ApplyCase>& info) { return std::string(info.param.name); });

TEST(GenYAxisPpgApply, CleanPageSendsNothing) {
  YPage p(Doc(Fields{}));
  EXPECT_EQ(p.Applied(), "");
}

TEST(GenYAxisPpgApply, CleanBeforeTheHostGetsTheProperties) {
  YPage p(Doc(Fields{}));
  p.controls.Click(IDC_YA_INVERT);
  p.frame.Apply();
  EXPECT_EQ(p.connection.calls, (std::vector<std::string>{"status 1", "status 4", "set"}));
}

TEST(GenYAxisPpgApply, AppliedAfterTheWindowClosedSendsWhatItShowed) {
  YPage p(Doc(Fields{}));
  p.controls.Click(IDC_YA_PIN_MAJ);
  p.controls.TypeText(IDC_YA_MAJOR, "20");
  p.frame.WindowClosing();
  p.controls.TypeText(IDC_YA_MAJOR, "30");  // no longer the page's
  EXPECT_EQ(p.Applied(), Sent(With([](Fields& f) { f.pinMaj = 1, f.majorSpace = "20.000000"; })));
}

}  // namespace
