// orvhost's settings and help services, registered for the test's process: first called as COM
// objects through their interfaces, then reached by the component's own client code (prompts,
// the colour table, the theme, help), which creates them by class id as in a real host.
#include "HostServiceObjects.h"
#include "com/ComApartment.h"
#include "com/WideText.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "dlgkit/HostServices.h"
#include "dlgkit/Prompts.h"

namespace orv::host_app {
namespace {

const wchar_t kLanguage[] =
    L"<Language><Prompts><Prompt Tag=\"OK\">Accept</Prompt><Prompt Tag=\"Empty\"></Prompt></Prompts></Language>";
const wchar_t kPrefs[] =
    L"<Preferences><General>"
    L"<Theme><Color>RGB(1,2,3)</Color><Color>0x00445566</Color><Other>9</Other><Color>7</Color></Theme>"
    L"<ColorTable><Color ThemeTag=\"Up\">RGB(0,128,0)</Color><Skip/><Color ThemeTag=\"Down\">255</Color></ColorTable>"
    L"<Values><Value Section=\"LinePpgX\" Key=\"Caption\">Lines</Value></Values>"
    L"</General></Preferences>";

std::string ReadAll(std::FILE* file) {
  std::string text;
  std::rewind(file);
  for (int c; (c = std::fgetc(file)) != EOF;) text += static_cast<char>(c);
  return text;
}

class OrvhostServices : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(SUCCEEDED(apartment.Status()));
    ASSERT_NE(out, nullptr);
    std::string error;
    ASSERT_TRUE(settings->AddDocument(L"LANGUAGE", kLanguage, error)) << error;
    ASSERT_TRUE(settings->AddDocument(L"Prefs", kPrefs, error)) << error;
    settings->SetOutput(out);
  }
  void TearDown() override {
    if (out != nullptr) std::fclose(out);
  }

  ComApartment apartment;
  std::FILE* out = std::tmpfile();
  std::shared_ptr<HostSettings> settings = std::make_shared<HostSettings>();
};

TEST_F(OrvhostServices, SettingsServiceAnswersFromItsDocuments) {
  const ComPtr<ISettingsService> service = MakeSettingsService(settings);
  Bstr language = MakeBstr(L"language");
  Bstr found = MakeBstr(L"//Language/Prompts/Prompt[@Tag=\"OK\"]");
  Bstr missing = MakeBstr(L"//Language/Prompts/Prompt[@Tag=\"No\"]");
  Bstr tagAttribute = MakeBstr(L"Tag");
  Bstr none = MakeBstr(L"");
  Bstr value;
  LONG result = -1;
  ASSERT_EQ(service->GetDocumentValue(language.get(), found.get(), none.get(), 17, value.put(), &result), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(std::wstring(value.get(), value.size()), L"Accept");
  ASSERT_EQ(service->GetDocumentValue(language.get(), found.get(), tagAttribute.get(), 17, value.put(), &result), S_OK);
  EXPECT_EQ(std::wstring(value.get(), value.size()), L"OK");
  ASSERT_EQ(service->GetDocumentValue(language.get(), missing.get(), none.get(), 17, value.put(), &result), S_OK);
  EXPECT_EQ(result, 1);
  EXPECT_EQ(value.size(), 0u);
  Bstr unknown = MakeBstr(L"NOSUCHDOC");
  ASSERT_EQ(service->GetDocumentValue(unknown.get(), found.get(), none.get(), 17, value.put(), &result), S_OK);
  EXPECT_EQ(result, 1);
  EXPECT_EQ(service->GetDocumentValue(language.get(), found.get(), none.get(), 17, nullptr, &result), E_POINTER);

  Variant answer;
  Bstr seasonal = MakeBstr(L"Displays/Seasonal");
  Bstr byWizard = MakeBstr(L"ByWizard");
  ASSERT_EQ(service->SetValue(seasonal.get(), byWizard.get(), 1, 4, &result), S_OK);
  ASSERT_EQ(service->GetValue(seasonal.get(), byWizard.get(), answer.put(), &result), S_OK);
  EXPECT_EQ(std::wstring(answer.get().bstrVal), L"1");
  EXPECT_EQ(ReadAll(out), "SetValue: Displays/Seasonal ByWizard 1 4\n");
}

TEST_F(OrvhostServices, TheComponentsClientReachesTheRegisteredServices) {
  {
    // Nothing registered: the component does without.
    EXPECT_EQ(orv::GetPrompt("OK"), "OK");
    EXPECT_EQ(orv::ShowHelp("CHARTX", 1301), -1);
  }
  ServiceRegistration registration;
  ASSERT_EQ(registration.Register(settings), S_OK);
  EXPECT_EQ(orv::GetPrompt("OK"), "Accept");
  EXPECT_EQ(orv::GetPrompt("Empty"), "Empty");
  EXPECT_EQ(orv::GetPrompt("Unknown"), "Unknown");

  std::vector<orv::ColorTableItem> table;
  orv::LoadColorTable(table);
  ASSERT_EQ(table.size(), 2u);
  EXPECT_EQ(table[0].tag, "Up");
  EXPECT_EQ(table[0].color, 0x008000u);
  EXPECT_EQ(table[1].tag, "Down");
  EXPECT_EQ(table[1].color, 255u);

  auto service = orv::CurrentHostServices().CreateSettingsService();
  ASSERT_NE(service, nullptr);
  ThemeColors theme;
  std::int32_t result = -1;
  service->GetTheme(theme, 0, result);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(theme[0], 0x030201u);
  EXPECT_EQ(theme[1], 0x445566u);
  EXPECT_EQ(theme[2], 7u);
  EXPECT_EQ(theme[3], 0u);  // the document gives three
  std::string caption;
  service = orv::CurrentHostServices().CreateSettingsService();
  service->GetValue("LinePpgX", "Caption", caption, result);
  EXPECT_EQ(caption, "Lines");

  EXPECT_EQ(orv::ShowHelp("CHARTX", 1301), 0);
  EXPECT_EQ(ReadAll(out), "ShowHelp: CHARTX 1301 0\n");
}

TEST_F(OrvhostServices, NoThemeWithoutOneInPrefs) {
  auto bare = std::make_shared<HostSettings>();
  std::string error;
  ASSERT_TRUE(bare->AddDocument(L"PREFS", L"<Preferences><General/></Preferences>", error)) << error;
  EXPECT_FALSE(bare->AddDocument(L"LANGUAGE", L"<Language>", error));
  EXPECT_FALSE(error.empty());
  const ComPtr<ISettingsService> service = MakeSettingsService(bare);
  LONG theme[kThemeColorCount] = {};
  LONG result = 0;
  ASSERT_EQ(service->GetTheme(theme, 0, &result), S_OK);
  EXPECT_EQ(result, 1);
  Bstr prefs = MakeBstr(L"PREFS");
  Bstr table = MakeBstr(L"//General/ColorTable");
  IUnknown* node = reinterpret_cast<IUnknown*>(1);
  ASSERT_EQ(service->GetDocumentNode(prefs.get(), table.get(), &node, &result), S_OK);
  EXPECT_EQ(node, nullptr);
  EXPECT_EQ(result, 1);
}

}  // namespace
}  // namespace orv::host_app
