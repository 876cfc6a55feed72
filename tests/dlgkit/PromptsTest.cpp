// The users of the host's settings and help services: prompts from "LANGUAGE", the colour
// table from "PREFS", help, and a theme refreshed into a dialog. Every host call is stated.
#include "dlgkit/Prompts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dlgkit/fake/FakeHostServices.h"
#include "xml/Xml.h"

namespace {

using orv::FakeHostServices;
using orv::SettingsCall;

class HostPrefsTest : public ::testing::Test {
 protected:
  void TearDown() override {
    EXPECT_TRUE(host.AllExpectationsMet());
    EXPECT_TRUE(host.UnexpectedCalls().empty());
  }
  FakeHostServices host;
  orv::ScopedHostServices scope{host};
};

std::string PromptXPath(const std::string& tag) { return "//Language/Prompts/Prompt[@Tag=\"" + tag + "\"]"; }

TEST_F(HostPrefsTest, PromptIsTheHostsTextOrTheTagItself) {
  struct Case {
    const char* tag;
    const char* answer;
    std::int32_t result;
    const char* expected;
  } cases[] = {
      {"OK", "Accept", 0, "Accept"},
      {"Fibonacci", "Retracement levels", 0, "Retracement levels"},
      {"NoSuchTag", "", 1, "NoSuchTag"},      // the host found nothing
      {"EmptyPrompt", "", 0, "EmptyPrompt"},  // found, but empty: the tag stays
      {"Odd", "Text", 7, "Text"},             // a text counts whatever the result says
      {"", "", 1, ""},
  };
  for (const Case& c : cases) {
    host.ExpectDocumentValue("LANGUAGE", PromptXPath(c.tag), "", 17, c.answer, c.result);
    EXPECT_EQ(orv::GetPrompt(c.tag), c.expected) << c.tag;
  }
}

TEST_F(HostPrefsTest, PromptWithoutServiceIsTheTag) {
  host.ExpectNoSettingsService();
  EXPECT_EQ(orv::GetPrompt("Caption"), "Caption");
}

TEST_F(HostPrefsTest, PromptTagsEndAtNulAndQuotesStayLiterals) {
  host.ExpectDocumentValue("LANGUAGE", PromptXPath("Cut"), "", 17, "", 1);
  EXPECT_EQ(orv::GetPrompt(std::string_view("Cut\0after", 9)), "Cut");
  host.ExpectDocumentValue("LANGUAGE", "//Language/Prompts/Prompt[@Tag='Say \"hi\"']", "", 17, "Hello", 0);
  EXPECT_EQ(orv::GetPrompt("Say \"hi\""), "Hello");
  host.ExpectDocumentValue("LANGUAGE", PromptXPath("It's"), "", 17, "Its", 0);
  EXPECT_EQ(orv::GetPrompt("It's"), "Its");
  // Both quotes: no XPath literal can hold it, and the host isn't asked.
  EXPECT_EQ(orv::GetPrompt("'both\""), "'both\"");
}

TEST_F(HostPrefsTest, PromptCallFailureRaises) {
  host.ExpectSettingsFailure(SettingsCall::GetDocumentValue, orv::kStatusFail);
  try {
    orv::GetPrompt("OK");
    ADD_FAILURE() << "no exception";
  } catch (const XmlComError& error) {
    EXPECT_EQ(error.status(), orv::kStatusFail);
  }
}

XmlNode LoadPrefs(const std::string& text) {
  XmlNode document = XmlCreateDocument();
  EXPECT_TRUE(XmlLoadString(document, text));
  return XmlFindNode(document, "ColorTable", true);
}

TEST_F(HostPrefsTest, ColorTableTakesEveryColorChildInOrder) {
  XmlNode table = LoadPrefs(
      "<Prefs><General><ColorTable>"
      "<Color ThemeTag=\"Background\">RGB(16,32,48)</Color>"
      "<!-- a comment -->"
      "<Colour ThemeTag=\"Misspelt\">RGB(1,1,1)</Colour>"
      "<Color ThemeTag=\"Text\">0x00FF00</Color>"
      "<color ThemeTag=\"LowerCase\">1</color>"
      "<Color>255</Color>"
      "<Color ThemeTag=\"Broken\">not a colour</Color>"
      "<Color ThemeTag=\"Empty\"/>"
      "</ColorTable></General></Prefs>");
  host.ExpectDocumentNode("PREFS", "//General/ColorTable", table);
  std::vector<orv::ColorTableItem> list{{"Kept", 0x123456}};
  orv::LoadColorTable(list);
  const std::vector<std::pair<std::string, std::uint32_t>> expected = {
      {"Kept", 0x123456}, {"Background", 0x302010},  {"Text", 0x00FF00},
      {"", 255},          {"Broken", orv::kNoColor}, {"Empty", orv::kNoColor}};
  ASSERT_EQ(list.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(list[i].tag, expected[i].first) << i;
    EXPECT_EQ(list[i].color, expected[i].second) << i;
  }
}

TEST_F(HostPrefsTest, ColorTableAbsentLeavesTheListAlone) {
  host.ExpectDocumentNode("PREFS", "//General/ColorTable", nullptr, 1);
  std::vector<orv::ColorTableItem> list;
  orv::LoadColorTable(list);
  EXPECT_TRUE(list.empty());
}

TEST_F(HostPrefsTest, ColorTableWithoutServiceOrWithFailedCallRaises) {
  host.ExpectNoSettingsService();
  host.ExpectSettingsFailure(SettingsCall::GetDocumentNode, orv::kStatusInvalidArg);
  std::vector<orv::ColorTableItem> list;
  for (orv::Status expected : {orv::kStatusPointer, orv::kStatusInvalidArg}) {
    try {
      orv::LoadColorTable(list);
      ADD_FAILURE() << "no exception";
    } catch (const XmlComError& error) {
      EXPECT_EQ(error.status(), expected);
    }
  }
  EXPECT_TRUE(list.empty());
}

}  // namespace
