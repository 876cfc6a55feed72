// The examples of docs/host-guide.md on the headless line study sheet, on every build: each
// request is loaded, the user's steps are played on the pages' controls, and the events and the
// result must be what the guide says, exactly. The chart is the demo host's (orvhost's synthetic
// chart), so the intraday examples see the bars they see under Wine. guide_examples.sh runs the
// same examples through COM and the platform's sheet.

#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "LsSheetRun.h"
#include "LsTestXml.h"
#include "dlgkit/ChartData.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "dlgkit/fake/SyntheticChartData.h"
#include "linestudies/LsPs.h"
#include "xml/Xml.h"

namespace {

using orv::HeadlessSheetRunner;
using orv::SyntheticChartData;

// The charts orvhost hands over: 500 daily bars, or ten sessions of intraday bars, the last on
// Friday 28 June 2024 (orvhost's HostChart), so the examples see the bars orvhost shows.
std::shared_ptr<SyntheticChartData> HostChart(bool intraday) {
  return intraday ? SyntheticChartData::Intraday(10, 2024, 6, 28) : SyntheticChartData::Daily(500, 2024, 6, 28);
}

struct Example {
  std::string request, chart, user, events, returns;
  bool hasRequest = false, hasUser = false, hasEvents = false;
};

struct Guide {
  std::map<std::string, Example> examples;
  std::vector<std::pair<std::string, std::string>> files;  // path, the guide's copy
  std::vector<std::string> problems;
};

std::string ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

// The value of `key=` among the fence's words, or empty.
std::string Attr(const std::string& info, const std::string& key) {
  std::istringstream words(info);
  for (std::string word; words >> word;) {
    if (word.rfind(key + "=", 0) == 0) return word.substr(key.size() + 1);
  }
  return {};
}

// The guide's fenced blocks, by the same rules as guide_examples.sh.
Guide ReadGuide(const std::string& path) {
  Guide guide;
  std::istringstream lines(ReadFile(path));
  std::string line, *body = nullptr;
  bool inBlock = false;
  int number = 0;
  for (; std::getline(lines, line); ++number) {
    if (!inBlock) {
      if (line.size() > 3 && line.rfind("```", 0) == 0 && std::isalpha(static_cast<unsigned char>(line[3]))) {
        inBlock = true;
        const std::string info = line.substr(3);
        const std::string lang = info.substr(0, info.find_first_of(" \t"));
        body = nullptr;
        std::string name;
        if (!(name = Attr(info, "request")).empty()) {
          Example& e = guide.examples[name];
          e.hasRequest = true;
          e.chart = Attr(info, "chart");
          body = &e.request;
        } else if (!(name = Attr(info, "user")).empty()) {
          guide.examples[name].hasUser = true;
          body = &guide.examples[name].user;
        } else if (!(name = Attr(info, "events")).empty()) {
          Example& e = guide.examples[name];
          e.hasEvents = true;
          e.returns = Attr(info, "returns");
          body = &e.events;
        } else if (!(name = Attr(info, "file")).empty()) {
          guide.files.emplace_back(name, std::string());
          body = &guide.files.back().second;
        } else if (lang == "xml") {
          guide.problems.push_back("line " + std::to_string(number + 1) + ": an xml block that nothing checks");
        }
      }
      continue;
    }
    if (line.rfind("```", 0) == 0 && line.find_first_not_of("` \t") == std::string::npos) {
      inBlock = false;
      continue;
    }
    if (body != nullptr) *body += line + "\n";
  }
  if (inBlock) guide.problems.push_back("a block that never ends");
  return guide;
}

std::string Trim(const std::string& text) {
  const auto first = text.find_first_not_of(" \t\r");
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

// Each event document on one line: lines trimmed and joined, XML comments dropped.
std::vector<std::string> ExpectedEvents(const std::string& block) {
  std::vector<std::string> events;
  std::istringstream lines(block);
  for (std::string line; std::getline(lines, line);) {
    line = Trim(line);
    if (line.empty() ||
        (line.rfind("<!--", 0) == 0 && line.size() >= 7 && line.compare(line.size() - 3, 3, "-->") == 0)) {
      continue;
    }
    if (line.rfind("<PropertySheet", 0) == 0 || events.empty()) events.emplace_back();
    events.back() += line;
  }
  return events;
}

// The user's steps, one command a line or between semicolons; # starts a comment line.
std::vector<std::vector<std::string>> Commands(const std::string& script) {
  std::vector<std::vector<std::string>> commands;
  std::istringstream lines(script);
  for (std::string line; std::getline(lines, line);) {
    if (Trim(line).rfind('#', 0) == 0) continue;
    std::istringstream parts(line);
    for (std::string part; std::getline(parts, part, ';');) {
      std::istringstream words(part);
      std::vector<std::string> command;
      std::string word;
      if (!(words >> word)) continue;
      command.push_back(word);
      while (words >> word) command.push_back(word);
      // text <id> <value>: the value is the rest of the command as written.
      if (command[0] == "text" && command.size() > 3) {
        const std::string rest = Trim(part.substr(part.find(command[1]) + command[1].size()));
        command.resize(2);
        command.push_back(rest);
      }
      commands.push_back(std::move(command));
    }
  }
  return commands;
}

void Play(HeadlessSheetRunner& r, const std::vector<std::vector<std::string>>& commands) {
  for (const auto& c : commands) {
    SCOPED_TRACE("command: " + c[0]);
    orv::FakeControls& page = r.Tab(r.Sheet().CurrentPage());
    const auto arg = [&](std::size_t i) { return i < c.size() ? std::stoi(c[i]) : 0; };
    if (c[0] == "text" && c.size() == 3)
      page.TypeText(arg(1), c[2]);
    else if (c[0] == "click")
      page.Click(arg(1));
    else if (c[0] == "select" && page.Control(arg(1)).kind == orv::FakeControlKind::ListBox)
      page.SelectListItem(arg(1), arg(2));
    else if (c[0] == "select")
      page.SelectComboItem(arg(1), arg(2));
    else if (c[0] == "spin")
      page.ClickSpin(arg(1), arg(2));
    else if (c[0] == "tab")
      r.Sheet().SelectPage(arg(1));
    else if (c[0] == "apply")
      r.Sheet().PressApply();
    else if (c[0] == "ok")
      r.Sheet().PressOk();
    else if (c[0] == "cancel")
      r.Sheet().PressCancel();
    else
      ADD_FAILURE() << "a command the headless check doesn't play: " << c[0];
  }
}

const std::string kGuide = std::string(ORV_SOURCE_DIR) + "/docs/host-guide.md";

TEST(HostGuide, EveryBlockIsCheckedAndEveryExampleComplete) {
  const Guide guide = ReadGuide(kGuide);
  for (const std::string& problem : guide.problems) ADD_FAILURE() << "docs/host-guide.md " << problem;
  EXPECT_FALSE(guide.examples.empty());
  for (const auto& [name, e] : guide.examples) {
    EXPECT_TRUE(e.hasRequest && e.hasUser && e.hasEvents) << name << ": an example needs request=, user= and events=";
    EXPECT_TRUE(e.chart.empty() || e.chart == "daily" || e.chart == "intraday" || e.chart == "none") << name;
  }
  for (const auto& [path, copy] : guide.files) {
    EXPECT_EQ(copy, ReadFile(std::string(ORV_SOURCE_DIR) + "/" + path)) << "the guide's copy of " << path;
  }
}

TEST(HostGuide, LineStudyExamplesSendWhatTheGuideSays) {
  int played = 0;
  for (const auto& [name, e] : ReadGuide(kGuide).examples) {
    SCOPED_TRACE("example " + name);
    // The choice of sheet by name is the component's, under Wine; here the line study sheet alone.
    const XmlNode sheetNode = lstest::SheetNode(e.request);
    std::string sheetName;
    if (sheetNode) XmlGetAttr(sheetNode, "Name", sheetName);
    if (sheetName != "LSPs") continue;

    orv::ChartDataRef chart;
    if (e.chart != "none") chart = HostChart(e.chart == "intraday");
    const auto commands = Commands(e.user);
    lstest::SheetRun run;
    const std::intptr_t result = run.Run(e.request, chart, [&](HeadlessSheetRunner& r) { Play(r, commands); });
    for (const auto& event : run.owner.events) {
      EXPECT_EQ(event.type, 0);
      EXPECT_EQ(event.lValue, 0);
      EXPECT_EQ(event.xmlExtra, "");
    }
    EXPECT_EQ(run.Events(), ExpectedEvents(e.events));
    EXPECT_EQ(std::to_string(result), e.returns);
    ++played;
  }
  EXPECT_GT(played, 0);
}

}  // namespace
