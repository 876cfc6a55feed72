// The host services: which host is current, help over it, the in-process theme host, and the
// strictness of the test fake itself.
#include "dlgkit/HostServices.h"

#include <gtest/gtest.h>

#include "dlgkit/HostServicesInProcess.h"
#include "dlgkit/fake/FakeHostServices.h"

namespace {

using orv::FakeHostServices;

TEST(HostServicesTest, ShowHelpGoesToTheHelpServiceOrAnswersMinusOne) {
  FakeHostServices host;
  orv::ScopedHostServices scope(host);
  host.ExpectHelp("CHARTX", 4711, 0, 7);
  host.ExpectNoHelpService();
  EXPECT_EQ(orv::ShowHelp("CHARTX", 4711), 7);
  EXPECT_EQ(orv::ShowHelp("CHARTX", 4711), -1);
  EXPECT_TRUE(host.AllExpectationsMet());
}

TEST(HostServicesTest, InProcessHostServesItsThemeAndNoHelp) {
  ThemeColors served;
  served[0] = 0x203040;
  served[30] = 0x0A0B0C;
  orv::InProcessHostServices host(served);
  orv::ScopedHostServices scope(host);
  auto settings = orv::CurrentHostServices().CreateSettingsService();
  ASSERT_NE(settings, nullptr);
  ThemeColors received;
  std::int32_t result = 5;
  settings->GetTheme(received, 0, result);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(received[0], 0x203040u);
  EXPECT_EQ(received[30], 0x0A0B0Cu);
  EXPECT_EQ(orv::ShowHelp("CHARTX", 1), -1);
}

}  // namespace
