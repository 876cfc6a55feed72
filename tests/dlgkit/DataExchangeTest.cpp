// Data exchange and validation on in-memory controls; the float and integer field readers.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "dlgkit/DataExchange.h"
#include "dlgkit/FloatParse.h"
#include "dlgkit/fake/ControlsFake.h"

namespace {

using orv::FakeControlKind;

constexpr int kEdit = 1001;
constexpr int kCheck = 1002;
constexpr int kCombo = 1003;
constexpr int kOther = 1004;

struct Dialog : CWinDataExchangeZel<Dialog> {
  orv::FakeControls controls;
  orv::Controls& Ctl() { return controls; }
  Dialog() {
    controls.Add(kEdit, FakeControlKind::Edit)
        .Add(kCheck, FakeControlKind::CheckBox)
        .Add(kCombo, FakeControlKind::ComboBox)
        .Add(kOther, FakeControlKind::Edit);
    controls.Control(kCheck).threeState = true;
    controls.SetFocus(kOther);
  }
  // A refusal is a beep and the focus on the refused control.
  void ExpectRefusedAt(int id, std::size_t beeps = 1) {
    EXPECT_EQ(controls.Beeps().size(), beeps);
    if (!controls.Beeps().empty()) {
      EXPECT_EQ(controls.Beeps().back(), 0xFFFFFFFFu);
    }
    EXPECT_EQ(controls.GetFocus(), id);
  }
  void ExpectNoRefusal() {
    EXPECT_TRUE(controls.Beeps().empty());
    EXPECT_EQ(controls.GetFocus(), kOther);
    EXPECT_TRUE(controls.MessageBoxes().empty());
  }
};

TEST(FloatParse, ReadsWholeFieldsOnly) {
  struct Case {
    const char* text;
    std::optional<double> expected;
  };
  const Case cases[] = {
      {"0", 0.0},
      {"0.0", 0.0},
      {"  0.5", 0.5},
      {"1.5 ", 1.5},
      {"\t-2.25\t ", -2.25},
      {"1e3", 1000.0},
      {"100000", 100000.0},
      {"-7", -7.0},
      {".0", std::nullopt},
      {"-0", std::nullopt},
      {"-0.0", std::nullopt},  // a zero not starting with 0
      {"1.5x", std::nullopt},
      {"abc", std::nullopt},
      {"", std::nullopt},
      {"   ", std::nullopt},
      {"1.5 2", std::nullopt},
      {"1,5", std::nullopt},
      {"inf", std::nullopt},
      {"nan", std::nullopt},
      {"1e999", std::nullopt},  // nothing a field can hold
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(orv::ParseFloatField(c.text), c.expected);
  }
  // The field ends at its first NUL, as the control's text would.
  EXPECT_EQ(orv::ParseFloatField(std::string_view("2.5\0junk", 8)), 2.5);
}

TEST(DlgItemInt, ReadsWholeNumbersThatFit) {
  using orv::ParseDlgItemInt;
  EXPECT_EQ(ParseDlgItemInt(" 42 ", true), 42u);
  EXPECT_EQ(ParseDlgItemInt("-5", true), static_cast<unsigned>(-5));
  EXPECT_EQ(ParseDlgItemInt("+5", false), 5u);
  EXPECT_EQ(ParseDlgItemInt("-2147483648", true), 0x80000000u);
  EXPECT_EQ(ParseDlgItemInt("2147483647", true), 2147483647u);
  EXPECT_EQ(ParseDlgItemInt("4294967295", false), 4294967295u);
  EXPECT_FALSE(ParseDlgItemInt("2147483648", true));
  EXPECT_FALSE(ParseDlgItemInt("-2147483649", true));
  EXPECT_FALSE(ParseDlgItemInt("4294967296", false));
  EXPECT_FALSE(ParseDlgItemInt("99999999999999999999999", false));
  EXPECT_FALSE(ParseDlgItemInt("-5", false));
  EXPECT_FALSE(ParseDlgItemInt("12abc", true));
  EXPECT_FALSE(ParseDlgItemInt("1.5", true));
  EXPECT_FALSE(ParseDlgItemInt("", true));
  EXPECT_FALSE(ParseDlgItemInt("-", true));
  EXPECT_EQ(orv::FormatDlgItemInt(static_cast<unsigned>(-12), true), "-12");
  EXPECT_EQ(orv::FormatDlgItemInt(static_cast<unsigned>(-12), false), "4294967284");
}

TEST(DdxCheck, MovesTheCheckedStateBothWays) {
  Dialog d;
  bool value = true;
  d.DDX_Check(kCheck, &value, false);
  EXPECT_EQ(d.controls.IsDlgButtonChecked(kCheck), orv::kBstChecked);
  value = false;
  d.DDX_Check(kCheck, &value, false);
  EXPECT_EQ(d.controls.IsDlgButtonChecked(kCheck), orv::kBstUnchecked);
  // Only state 1 counts as checked: the indeterminate state reads as false.
  d.controls.CheckDlgButton(kCheck, orv::kBstIndeterminate);
  value = true;
  d.DDX_Check(kCheck, &value, true);
  EXPECT_FALSE(value);
  d.controls.CheckDlgButton(kCheck, orv::kBstChecked);
  d.DDX_Check(kCheck, &value, true);
  EXPECT_TRUE(value);
}

TEST(DdxInt, WritesAndReadsSignedAndUnsigned) {
  Dialog d;
  int value = -17;
  EXPECT_TRUE(d.DDX_Int(kEdit, &value, true, false));
  EXPECT_EQ(d.controls.GetDlgItemTextA(kEdit, 32), "-17");
  d.controls.TypeText(kEdit, " 250 ");
  value = 0;
  EXPECT_TRUE(d.DDX_Int(kEdit, &value, false, true));
  EXPECT_EQ(value, 250);
  d.controls.SetFocus(kOther);
  d.ExpectNoRefusal();
}

TEST(DdxInt, BadNumberBeepsFocusesAndKeepsTheMember) {
  Dialog d;
  d.controls.TypeText(kEdit, "12abc");
  d.controls.SetFocus(kOther);
  int value = 7;
  EXPECT_FALSE(d.DDX_Int(kEdit, &value, true, true));
  EXPECT_EQ(value, 7);
  d.ExpectRefusedAt(kEdit);
  EXPECT_TRUE(d.controls.MessageBoxes().empty());  // the exchange only beeps
}

TEST(DdxInt, ValidationIsInclusiveAndStoresTheRejectedValue) {
  Dialog d;
  int value = 0;
  d.controls.SetDlgItemTextA(kEdit, "10");
  EXPECT_TRUE(d.DDX_Int(kEdit, &value, true, true, true, 1, 10));
  d.controls.SetDlgItemTextA(kEdit, "1");
  EXPECT_TRUE(d.DDX_Int(kEdit, &value, true, true, true, 1, 10));
  d.ExpectNoRefusal();
  d.controls.SetDlgItemTextA(kEdit, "11");
  EXPECT_FALSE(d.DDX_Int(kEdit, &value, true, true, true, 1, 10));
  EXPECT_EQ(value, 11);
  d.ExpectRefusedAt(kEdit);
  EXPECT_TRUE(d.controls.MessageBoxes().empty());
  // Without validate the same text passes.
  EXPECT_TRUE(d.DDX_Int(kEdit, &value, true, true, false, 1, 10));
}

TEST(DdxInt, MissingControlIsAFailedWrite) {
  Dialog d;
  int value = 3;
  EXPECT_FALSE(d.DDX_Int(4242, &value, true, false));
  EXPECT_EQ(d.controls.Beeps().size(), 1u);
}

// Texts of any length go both ways whole; a control that isn't there is a failure.
TEST(DdxText, MovesTheWholeTextBothWays) {
  for (std::size_t length : {0u, 1u, 254u, 255u, 256u, 511u, 512u, 5000u}) {
    SCOPED_TRACE(length);
    Dialog d;
    std::string value(length, 'x');
    if (length > 0) value.back() = 'y';
    EXPECT_TRUE(d.DDX_Text(kEdit, &value, false));
    EXPECT_EQ(d.controls.Control(kEdit).text, value);
    std::string back = "before";
    EXPECT_TRUE(d.DDX_Text(kEdit, &back, true));
    EXPECT_EQ(back, value);
    d.ExpectNoRefusal();
  }
}

TEST(DdxText, MissingControlFailsBothWaysAndKeepsTheMember) {
  for (bool save : {false, true}) {
    SCOPED_TRACE(save);
    Dialog d;
    std::string value = "kept";
    EXPECT_FALSE(d.DDX_Text(4242, &value, save));
    EXPECT_EQ(value, "kept");
    EXPECT_EQ(d.controls.Beeps(), std::vector<unsigned>{0xFFFFFFFFu});
    EXPECT_TRUE(d.controls.MessageBoxes().empty());
  }
}

TEST(DdxFloat, WritesWithPrecisionAndReadsBack) {
  Dialog d;
  double value = 1.0 / 3.0;
  EXPECT_TRUE(d.DDX_Float(kEdit, &value, false, false, 0, 0, 15));
  EXPECT_EQ(d.controls.GetDlgItemTextA(kEdit, 64), "0.333333333333333");
  value = 1234.5;
  EXPECT_TRUE(d.DDX_Float(kEdit, &value, false, false, 0, 0, 3));
  EXPECT_EQ(d.controls.GetDlgItemTextA(kEdit, 64), "1.23e+03");
  // The largest doubles still fit the 32 characters, at any precision asked.
  value = -std::numeric_limits<double>::max();
  EXPECT_TRUE(d.DDX_Float(kEdit, &value, false, false, 0, 0, 99));
  double back = 0;
  EXPECT_TRUE(d.DDX_Float(kEdit, &back, true));
  EXPECT_EQ(back, value);
}

TEST(DdxFloat, RefusesWhatTheParserRefusesAndKeepsTheMember) {
  for (const char* text : {".0", "1.5x", "", "-0"}) {
    SCOPED_TRACE(text);
    Dialog d;
    d.controls.SetDlgItemTextA(kEdit, text);
    double value = 9.0;
    EXPECT_FALSE(d.DDX_Float(kEdit, &value, true));
    EXPECT_EQ(value, 9.0);
    d.ExpectRefusedAt(kEdit);
  }
  Dialog d;
  d.controls.SetDlgItemTextA(kEdit, "1.5 ");
  double value = 0;
  EXPECT_TRUE(d.DDX_Float(kEdit, &value, true));
  EXPECT_EQ(value, 1.5);
}

TEST(DdxFloat, ReadsAtMost31Characters) {
  Dialog d;
  // 31 characters of a number and then a letter that the 32-character buffer never sees.
  const std::string text = "1." + std::string(29, '0') + "x";
  ASSERT_EQ(text.size(), 32u);
  d.controls.SetDlgItemTextA(kEdit, text);
  double value = 0;
  EXPECT_TRUE(d.DDX_Float(kEdit, &value, true));
  EXPECT_EQ(value, 1.0);
}

TEST(DdxFloat, ValidationIsInclusiveOnBothEnds) {
  Dialog d;
  double value = -1;
  d.controls.SetDlgItemTextA(kEdit, "0");
  EXPECT_TRUE(d.DDX_Float(kEdit, &value, true, true, 0.0, 100000.0));
  EXPECT_EQ(value, 0.0);
  d.controls.SetDlgItemTextA(kEdit, "100000");
  EXPECT_TRUE(d.DDX_Float(kEdit, &value, true, true, 0.0, 100000.0));
  d.ExpectNoRefusal();
  d.controls.SetDlgItemTextA(kEdit, "100000.5");
  EXPECT_FALSE(d.DDX_Float(kEdit, &value, true, true, 0.0, 100000.0));
  EXPECT_EQ(value, 100000.5);  // overwritten before the range test
  d.ExpectRefusedAt(kEdit);
  EXPECT_TRUE(d.controls.MessageBoxes().empty());
}

TEST(DdvMinMaxFloat, LowerBoundIsExclusive) {
  Dialog d;
  EXPECT_TRUE(d.DDV_MinMaxFloat(kEdit, 100000.0, true, 0.0, 100000.0));
  EXPECT_TRUE(d.DDV_MinMaxFloat(kEdit, 0.001, true, 0.0, 100000.0));
  d.ExpectNoRefusal();
  EXPECT_FALSE(d.DDV_MinMaxFloat(kEdit, 0.0, true, 0.0, 100000.0));
  ASSERT_EQ(d.controls.MessageBoxes().size(), 1u);
  EXPECT_EQ(d.controls.MessageBoxes()[0].text, "0 out of range: [0,100000]");
  EXPECT_EQ(d.controls.MessageBoxes()[0].caption, "Error");
  EXPECT_EQ(d.controls.MessageBoxes()[0].flags, 0u);
  d.ExpectRefusedAt(kEdit);
  EXPECT_FALSE(d.DDV_MinMaxFloat(kEdit, 100000.5, true, 0.0, 100000.0));
  EXPECT_EQ(d.controls.MessageBoxes().back().text, "100000 out of range: [0,100000]");  // %g rounds to 6 digits
  EXPECT_FALSE(d.DDV_MinMaxFloat(kEdit, 1.5e-7, true, 0.5, 2.25));
  EXPECT_EQ(d.controls.MessageBoxes().back().text, "1.5e-07 out of range: [0.5,2.25]");
  // Towards the control nothing is checked.
  EXPECT_TRUE(d.DDV_MinMaxFloat(kEdit, -5.0, false, 0.0, 1.0));
  EXPECT_EQ(d.controls.MessageBoxes().size(), 3u);
}

TEST(DdvMinMaxInt, BothBoundsInclusiveWithItsMessage) {
  Dialog d;
  EXPECT_TRUE(d.DDV_MinMaxInt(kEdit, 1, true, 1, 99));
  EXPECT_TRUE(d.DDV_MinMaxInt(kEdit, 99, true, 1, 99));
  EXPECT_TRUE(d.DDV_MinMaxInt(kEdit, 500, false, 1, 99));
  d.ExpectNoRefusal();
  EXPECT_FALSE(d.DDV_MinMaxInt(kEdit, -3, true, 1, 99));
  ASSERT_EQ(d.controls.MessageBoxes().size(), 1u);
  EXPECT_EQ(d.controls.MessageBoxes()[0].text, "-3 out of range: [1,99]");
  EXPECT_EQ(d.controls.MessageBoxes()[0].caption, "Error");
  d.ExpectRefusedAt(kEdit);
}

TEST(OnDataValidateError, UnknownTypeBuildsNoTextButStillBeepsAndFocuses) {
  Dialog d;
  CDataValidateError error;
  error.nDataType = 3;
  d.OnDataValidateError(kEdit, true, error);
  EXPECT_TRUE(d.controls.MessageBoxes().empty());
  d.ExpectRefusedAt(kEdit);
}

TEST(DdxComboData, SelectsByItemDataAndReadsTheSelection) {
  Dialog d;
  d.controls.ComboAddString(kCombo, "Daily", 10);
  d.controls.ComboAddString(kCombo, "Weekly", 20);
  d.controls.ComboAddString(kCombo, "Weekly again", 20);
  int value = 20;
  EXPECT_TRUE(d.DDX_ComboData(kCombo, &value, false));
  EXPECT_EQ(d.controls.ComboGetCurSel(kCombo), 1);  // the first item holding 20
  value = 99;                                       // no item holds it: item 0
  EXPECT_TRUE(d.DDX_ComboData(kCombo, &value, false));
  EXPECT_EQ(d.controls.ComboGetCurSel(kCombo), 0);
  d.controls.SelectComboItem(kCombo, 2);
  EXPECT_TRUE(d.DDX_ComboData(kCombo, &value, true));
  EXPECT_EQ(value, 20);
  d.controls.ComboSetCurSel(kCombo, -1);  // nothing selected counts as item 0
  EXPECT_TRUE(d.DDX_ComboData(kCombo, &value, true));
  EXPECT_EQ(value, 10);
}

TEST(DdxComboData, EmptyComboLeavesMemberAndSelection) {
  Dialog d;
  int value = 42;
  EXPECT_TRUE(d.DDX_ComboData(kCombo, &value, true));
  EXPECT_EQ(value, 42);
  EXPECT_TRUE(d.DDX_ComboData(kCombo, &value, false));
  EXPECT_EQ(d.controls.ComboGetCurSel(kCombo), -1);
  d.ExpectNoRefusal();
}

// A dialog that puts its own failure handling in place of the kit's, as a page may.
struct QuietDialog : CWinDataExchangeZel<QuietDialog> {
  orv::FakeControls controls;
  int failures = 0;
  orv::Controls& Ctl() { return controls; }
  void OnDataExchangeError(int, bool) { ++failures; }
};

TEST(DataExchange, DialogMayReplaceTheFailureHandling) {
  QuietDialog d;
  d.controls.Add(kEdit, FakeControlKind::Edit, "x");
  double value = 0;
  EXPECT_FALSE(d.DDX_Float(kEdit, &value, true));
  EXPECT_EQ(d.failures, 1);
  EXPECT_TRUE(d.controls.Beeps().empty());
}

}  // namespace
