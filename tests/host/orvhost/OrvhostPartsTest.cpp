// orvhost's own parts: the command line, the script language, the synthetic chart behind
// IChartData and the StatusEvent sink, without the component.
#include "ComObjects.h"
#include "Options.h"
#include "Script.h"
#include "com/WideText.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace orv::host_app {
namespace {

TEST(OrvhostOptions, DefaultsAndEveryOption) {
  ParsedOptions p = ParseOptions({});
  EXPECT_TRUE(p.error.empty());
  EXPECT_EQ(p.options.activation, Activation::Manifest);
  EXPECT_FALSE(p.options.noChartData);
  EXPECT_FALSE(p.options.noServices);

  p = ParseOptions({L"--activate", L"direct", L"--dll", L"x.dll", L"--doc", L"d.xml", L"--script", L"ok",
                    L"--screenshot", L"s.png", L"--box-screenshot", L"b.png", L"--intraday", L"--language", L"l.xml",
                    L"--prefs", L"p.xml"});
  ASSERT_TRUE(p.error.empty()) << p.error;
  EXPECT_EQ(p.options.activation, Activation::Direct);
  EXPECT_EQ(p.options.dllPath, L"x.dll");
  EXPECT_EQ(p.options.docPath, L"d.xml");
  EXPECT_EQ(p.options.script, L"ok");
  EXPECT_EQ(p.options.screenshot, L"s.png");
  EXPECT_EQ(p.options.boxScreenshot, L"b.png");
  EXPECT_TRUE(p.options.intraday);
  EXPECT_EQ(p.options.languagePath, L"l.xml");
  EXPECT_EQ(p.options.prefsPath, L"p.xml");

  p = ParseOptions(
      {L"--activate", L"registered", L"--progid", L"OrvChartDlgs.ChartPages", L"--no-chart-data", L"--no-services"});
  ASSERT_TRUE(p.error.empty()) << p.error;
  EXPECT_EQ(p.options.activation, Activation::Registered);
  EXPECT_EQ(p.options.progId, L"OrvChartDlgs.ChartPages");
  EXPECT_TRUE(p.options.noChartData);
  EXPECT_TRUE(p.options.noServices);

  p = ParseOptions({L"--activate", L"registered", L"--page", L"OrvChartDlgs.ChartDrawPg"});
  ASSERT_TRUE(p.error.empty()) << p.error;
  EXPECT_EQ(p.options.pageClass, L"OrvChartDlgs.ChartDrawPg");
}

TEST(OrvhostOptions, RefusesWhatItWouldIgnoreOrCannotRead) {
  const std::vector<std::vector<std::wstring>> bad = {
      {L"--activate"},                                  // no value
      {L"--activate", L"registry"},                     // unknown way
      {L"--doc", L""},                                  // empty value
      {L"--box-screenshot"},                            // no value
      {L"--bogus"},                                     // unknown option
      {L"--dll", L"x.dll"},                             // --dll without direct
      {L"--activate", L"direct", L"--progid", L"P.1"},  // a ProgID means nothing to direct
      {L"--activate", L"registered", L"--manifest", L"m"},
      {L"--intraday", L"--no-chart-data"},
      {L"--no-services", L"--prefs", L"p.xml"},
      {L"--language"},
      {L"--page", L"{6D73A8E6-1A90-438E-A317-B76226F7B7EA}"},  // the default, manifest, has no page frame
      {L"--activate", L"direct", L"--page"},
  };
  for (const auto& args : bad) {
    const ParsedOptions p = ParseOptions(args);
    EXPECT_FALSE(p.error.empty()) << "accepted: " << args.size() << " args starting "
                                  << std::string(args[0].begin(), args[0].end());
  }
}

TEST(OrvhostScript, ParsesEveryCommandWithSeparatorsQuotesAndComments) {
  const ParsedScript s = ParseScript(
      "# set up\n"
      "  text 1463 12.5 ;click 4646\n"
      "select 2271 3; tab 1\n"
      "text 1500 \"a; b \\\"c\\\"\"\n"
      "apply;ok;cancel;next;back;finish\n"
      "wait 200\n"
      "screenshot out dir/sheet.png\n"
      "spin 1508 3; spin 1508 -12\n"
      "text 1463\ntext 1464 \"\"\n"
      "toggle 4462 12\n"
      "expect 4446 \"Season (for year 2000)\"\n"
      "color 2402 62");
  ASSERT_TRUE(s.error.empty()) << s.error;
  ASSERT_EQ(s.steps.size(), 20u);
  EXPECT_EQ(s.steps[0].op, ScriptOp::Text);
  EXPECT_EQ(s.steps[0].id, 1463);
  EXPECT_EQ(s.steps[0].text, "12.5");
  EXPECT_EQ(s.steps[1].op, ScriptOp::Click);
  EXPECT_EQ(s.steps[1].id, 4646);
  EXPECT_EQ(s.steps[2].op, ScriptOp::Select);
  EXPECT_EQ(s.steps[2].index, 3);
  EXPECT_EQ(s.steps[3].op, ScriptOp::Tab);
  EXPECT_EQ(s.steps[3].index, 1);
  EXPECT_EQ(s.steps[4].text, "a; b \"c\"");
  const ScriptOp buttons[] = {ScriptOp::Apply, ScriptOp::Ok,   ScriptOp::Cancel,
                              ScriptOp::Next,  ScriptOp::Back, ScriptOp::Finish};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(s.steps[5 + i].op, buttons[i]);
  EXPECT_EQ(s.steps[11].milliseconds, 200);
  EXPECT_EQ(s.steps[12].op, ScriptOp::Screenshot);
  EXPECT_EQ(s.steps[12].text, "out dir/sheet.png");
  EXPECT_EQ(s.steps[1].source, "click 4646");
  EXPECT_EQ(s.steps[13].op, ScriptOp::Spin);
  EXPECT_EQ(s.steps[13].id, 1508);
  EXPECT_EQ(s.steps[13].index, 3);
  EXPECT_EQ(s.steps[14].index, -12);
  EXPECT_EQ(s.steps[15].op, ScriptOp::Text);
  EXPECT_EQ(s.steps[15].text, "");  // text may be empty, quoted or not
  EXPECT_EQ(s.steps[16].text, "");
  EXPECT_EQ(s.steps[17].op, ScriptOp::Toggle);
  EXPECT_EQ(s.steps[17].id, 4462);
  EXPECT_EQ(s.steps[17].index, 12);
  EXPECT_EQ(s.steps[18].op, ScriptOp::Expect);
  EXPECT_EQ(s.steps[18].id, 4446);
  EXPECT_EQ(s.steps[18].text, "Season (for year 2000)");
  EXPECT_EQ(s.steps[19].op, ScriptOp::Color);
  EXPECT_EQ(s.steps[19].id, 2402);
  EXPECT_EQ(s.steps[19].index, 62);
}

TEST(OrvhostScript, BadScriptsNameTheCommandAndTheFault) {
  struct Case {
    const char* script;
    const char* says;
  };
  const Case cases[] = {
      {"click 4646; clik 4647", "script command 2 (\"clik 4647\"): unknown command \"clik\""},
      {"click", "click needs a control id"},
      {"click 0", "click needs a control id"},
      {"click 70000", "click needs a control id"},
      {"click 12x", "click needs a control id"},
      {"click 5 6", "unexpected \"6\" after click"},
      {"select 5", "select needs an item index"},
      {"select 5 -1", "select needs an item index"},
      {"toggle 4462", "toggle needs an item index"},
      {"toggle 0 1", "toggle needs a control id"},
      {"expect", "expect needs a control id"},
      {"tab", "tab needs a tab index"},
      {"spin 1508", "spin needs a number of steps"},
      {"spin 1508 0", "spin needs a number of steps"},
      {"spin 0 1", "spin needs a control id"},
      {"color 2402", "color needs a grid cell from 0 to 62"},
      {"color 2402 63", "color needs a grid cell from 0 to 62"},
      {"color 0 5", "color needs a control id"},
      {"wait 60001", "wait needs milliseconds"},
      {"ok now", "unexpected \"now\" after ok"},
      {"text 5 \"open", "no closing quote"},
      {"text 5 \"a\" b", "text after the closing quote"},
      {"screenshot", "screenshot needs a file name"},
      {"", "the script has no commands"},
      {" ; # only a comment\n;", "the script has no commands"},
  };
  for (const Case& c : cases) {
    const ParsedScript s = ParseScript(c.script);
    EXPECT_NE(s.error.find(c.says), std::string::npos) << c.script << " -> " << s.error;
    EXPECT_TRUE(s.steps.empty()) << c.script;
  }
}

// The chart as the component sees it: through the IChartData vtable.
class OrvhostChartData : public testing::TestWithParam<bool> {};

TEST_P(OrvhostChartData, PositionsAndDatesAgree) {
  const bool intraday = GetParam();
  const ComPtr<IChartData> chart = MakeChartData(HostChart(intraday));
  LONG kind = -1, count = 0;
  ASSERT_EQ(chart->GetTimeKind(&kind), S_OK);
  EXPECT_EQ(kind, intraday ? 1 : 0);
  ASSERT_EQ(chart->GetBarCount(&count), S_OK);
  EXPECT_EQ(count, intraday ? 780 : 500);

  LONG previousDate = -1, previousSeconds = -1;
  for (LONG pos = 0; pos < count; ++pos) {
    LONG date = 0, time = -1, seconds = -1, only = 0;
    ASSERT_EQ(chart->PosToDate(pos, &date, &time, &seconds, 0, 0), S_OK);
    ASSERT_EQ(chart->PosToDateOnly(pos, &only, 0), S_OK);
    EXPECT_EQ(only, date);
    EXPECT_TRUE(SyntheticChartData::IsTradingDay(date)) << pos;
    if (intraday) {
      EXPECT_EQ(time, seconds / 60);
      EXPECT_TRUE(date > previousDate || seconds > previousSeconds) << pos;
    } else {
      EXPECT_EQ(time, 0);
      EXPECT_EQ(seconds, 0);
      EXPECT_GT(date, previousDate);
    }
    // Back from the stamp to the same bar, exactly.
    LONG found = -7, exact = -7;
    ASSERT_EQ(chart->DateToPos(date, intraday ? time : 0, 0, 0, &exact, &found), S_OK);
    EXPECT_EQ(found, pos);
    EXPECT_EQ(exact, 1);
    previousDate = date;
    previousSeconds = seconds;
  }
  double value = 0;
  LONG date = 0;
  EXPECT_EQ(chart->GetValue(0, count - 1, &value), S_OK);
  EXPECT_EQ(chart->GetValue(4, 0, &value), E_INVALIDARG);
  EXPECT_EQ(chart->GetValue(0, count, &value), E_INVALIDARG);
  EXPECT_EQ(chart->GetValue(0, -1, &value), E_INVALIDARG);
  EXPECT_LT(chart->PosToDate(count, &date, nullptr, nullptr, 0, 0), 0);
  EXPECT_LT(chart->PosToDateOnly(-1, &date, 0), 0);
}

INSTANTIATE_TEST_SUITE_P(DailyAndIntraday, OrvhostChartData, testing::Values(false, true));

TEST(OrvhostChartData, DatesBetweenBarsFindTheNextBar) {
  const ComPtr<IChartData> chart = MakeChartData(HostChart(false));
  LONG pos = -7, exact = -7;
  // Saturday 22 June 2024: the next bar is Monday 24 June.
  ASSERT_EQ(chart->DateToPos(SyntheticChartData::DayNumber(2024, 6, 22), 0, 0, 0, &exact, &pos), S_OK);
  LONG date = 0;
  ASSERT_EQ(chart->PosToDateOnly(pos, &date, 0), S_OK);
  EXPECT_EQ(date, SyntheticChartData::DayNumber(2024, 6, 24));
  EXPECT_EQ(exact, 0);
  // Christmas 2023, a Monday: Tuesday's bar.
  ASSERT_EQ(chart->DateToPos(SyntheticChartData::DayNumber(2023, 12, 25), 0, 0, 0, nullptr, &pos), S_OK);
  ASSERT_EQ(chart->PosToDateOnly(pos, &date, 0), S_OK);
  EXPECT_EQ(date, SyntheticChartData::DayNumber(2023, 12, 26));
  // After the last bar: none.
  EXPECT_LT(chart->DateToPos(SyntheticChartData::DayNumber(2024, 7, 1), 0, 0, 0, &exact, &pos), 0);
  EXPECT_EQ(pos, -1);
  // Before the first bar: the first.
  ASSERT_EQ(chart->DateToPos(0, 0, 0, 0, &exact, &pos), S_OK);
  EXPECT_EQ(pos, 0);
  EXPECT_EQ(exact, 0);
}

TEST(OrvhostEvents, EscapingKeepsOneEventOnOneLineAndReadable) {
  const std::wstring text = L"<a x=\"1\">\\t\u00e9</a>\r\n\t\x01";
  EXPECT_EQ(EscapeEventText(text.c_str(), static_cast<UINT>(text.size())),
            "<a x=\"1\">\\\\t\xC3\xA9</a>\\r\\n\\t\\x01");
}

// Fires a StatusEvent into the sink as the component does: five positional arguments, last first.
HRESULT Fire(IDispatch* sink, DISPID id, const wchar_t* value, LONG& answer, UINT count = 5) {
  Bstr text = MakeBstr(value);
  Bstr extra = MakeBstr(L"");
  VARIANT args[5];
  for (VARIANT& v : args) VariantInit(&v);
  args[4].vt = VT_I4;
  args[4].lVal = 0;
  args[3].vt = VT_BSTR;
  args[3].bstrVal = text.get();
  args[2].vt = VT_I4;
  args[2].lVal = 0;
  args[1].vt = VT_BSTR;
  args[1].bstrVal = extra.get();
  args[0].vt = VT_I4 | VT_BYREF;
  args[0].plVal = &answer;
  DISPPARAMS params{args + (5 - count), nullptr, count, 0};
  return sink->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, nullptr, nullptr, nullptr);
}

TEST(OrvhostEvents, SinkPrintsEachEventAndAnswersZero) {
  std::FILE* out = std::tmpfile();
  ASSERT_NE(out, nullptr);
  const ComPtr<StatusEventPrinter> sink = StatusEventPrinter::Make(out);
  ComPtr<IDispatch> events;
  ASSERT_EQ(sink->QueryInterface(DIID__IChartPagesEvents, reinterpret_cast<void**>(events.put())), S_OK);

  LONG answer = 42;
  EXPECT_EQ(Fire(events.get(), 101, L"<PropertySheet Name=\"LSPs\"/>\r\n", answer), S_OK);
  EXPECT_EQ(answer, 0);
  answer = 42;
  EXPECT_EQ(Fire(events.get(), 102, L"x", answer), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(Fire(events.get(), 101, L"x", answer, 4), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(answer, 42);
  EXPECT_EQ(Fire(events.get(), 101, L"second", answer), S_OK);
  EXPECT_EQ(sink->EventCount(), 2);

  std::rewind(out);
  char buffer[256] = {};
  const std::size_t read = std::fread(buffer, 1, sizeof(buffer) - 1, out);
  std::fclose(out);
  EXPECT_EQ(std::string(buffer, read), "StatusEvent: <PropertySheet Name=\"LSPs\"/>\\r\\n\nStatusEvent: second\n");
}

}  // namespace
}  // namespace orv::host_app
