// The host services: which host is current, help over it, the in-process theme host, and how
// often one open asks the host for its settings service.
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

// One open against hosts of three kinds: how often each is asked for its settings service.
TEST(HostServicesTest, OneOpenAsksAHostWithoutSettingsServiceOnce) {
  struct Case {
    const char* host;
    int servicesGiven;  // settings services the host can make before it has none
    int uses;           // creations during the open
    int asked;          // creations that reach the host
    int made;           // services the open received
  };
  const Case cases[] = {
      {"bare host", 0, 3, 1, 0},
      {"host with a service", 3, 3, 3, 3},
      {"service that goes away", 1, 3, 2, 1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.host);
    FakeHostServices host;
    orv::ScopedHostServices hostScope(host);
    for (int i = 0; i < c.servicesGiven; ++i) host.ExpectNoTheme();
    if (c.asked > c.servicesGiven) host.ExpectNoSettingsService();
    int made = 0;
    {
      orv::OneOpenHostServices open;
      EXPECT_EQ(&orv::CurrentHostServices(), &open);
      for (int i = 0; i < c.uses; ++i) {
        auto service = orv::CurrentHostServices().CreateSettingsService();
        if (!service) continue;
        ++made;
        ThemeColors theme;
        std::int32_t result = 0;
        service->GetTheme(theme, 0, result);
      }
    }
    EXPECT_EQ(made, c.made);
    EXPECT_TRUE(host.UnexpectedCalls().empty());  // a further creation would have been one
    EXPECT_TRUE(host.AllExpectationsMet());
    EXPECT_EQ(&orv::CurrentHostServices(), &host);
  }
}

TEST(HostServicesTest, NextOpenAsksAgainAndHelpIsAskedAtEachUse) {
  FakeHostServices host;
  orv::ScopedHostServices hostScope(host);
  host.ExpectNoSettingsService();
  host.ExpectNoTheme();
  host.ExpectNoHelpService();
  host.ExpectHelp("CHARTX", 1352, 0, 0);
  {
    orv::OneOpenHostServices open;
    EXPECT_EQ(orv::CurrentHostServices().CreateSettingsService(), nullptr);
    EXPECT_EQ(orv::CurrentHostServices().CreateSettingsService(), nullptr);
    // No help service once does not stop the next request from reaching the host.
    EXPECT_EQ(orv::ShowHelp("CHARTX", 1352), -1);
    EXPECT_EQ(orv::ShowHelp("CHARTX", 1352), 0);
  }
  // The host registered its service between two opens.
  orv::OneOpenHostServices next;
  auto service = orv::CurrentHostServices().CreateSettingsService();
  ASSERT_NE(service, nullptr);
  ThemeColors theme;
  std::int32_t result = 0;
  service->GetTheme(theme, 0, result);
  EXPECT_EQ(result, 1);
  EXPECT_TRUE(host.AllExpectationsMet());
}

}  // namespace
