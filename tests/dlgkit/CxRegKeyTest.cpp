// CxRegKey over an in-memory store: defaults for everything missing or of another type.
#include "dlgkit/CxRegKey.h"

#include <gtest/gtest.h>

namespace {

TEST(CxRegKeyTest, ReadsValuesOrTheDefault) {
  orv::MemorySettingsStore store;
  store.WriteDword("Software\\ZEL\\Orvane", "Count", 42);
  store.WriteString("Software\\ZEL\\Orvane", "Name", "Corn");
  orv::CxRegKey key(store);
  EXPECT_FALSE(key.IsOpen());
  EXPECT_EQ(key.QueryDWORDValue("Count", 7), 7u);  // closed
  ASSERT_TRUE(key.Open("Software\\ZEL\\Orvane"));
  EXPECT_EQ(key.QueryDWORDValue("Count", 7), 42u);
  EXPECT_EQ(key.QueryDWORDValue("count", 7), 42u);  // names ignore case, as the registry's
  EXPECT_EQ(key.QueryDWORDValue("Name", 7), 7u);    // a string is no DWORD
  EXPECT_EQ(key.QueryDWORDValue("Missing", 7), 7u);
  EXPECT_EQ(key.QueryStringValue("Name", "x"), "Corn");
  EXPECT_EQ(key.QueryStringValue("Count", "x"), "x");  // a DWORD is no string
  key.Close();
  EXPECT_EQ(key.QueryStringValue("Name", "x"), "x");
}

TEST(CxRegKeyTest, MissingKeyOpensAndReadsDefaultsButTheRootIsRefused) {
  orv::MemorySettingsStore store;
  orv::CxRegKey key(store);
  EXPECT_TRUE(key.Open("Software\\Nobody"));
  EXPECT_EQ(key.QueryDWORDValue("Anything", 3), 3u);
  for (const char* root : {"", "\\", "\\\\", "\0Software"}) {
    EXPECT_FALSE(key.Open(root)) << root;
    EXPECT_FALSE(key.IsOpen());
  }
}

TEST(CxRegKeyTest, UseOldPaletteOnlyForANonZeroDword) {
  struct Case {
    const char* what;
    void (*fill)(orv::MemorySettingsStore&);
    bool expected;
  } cases[] = {
      {"no key", [](orv::MemorySettingsStore&) {}, false},
      {"zero", [](orv::MemorySettingsStore& s) { s.WriteDword(orv::kOrvaneKey, "UseOldPalette", 0); }, false},
      {"one", [](orv::MemorySettingsStore& s) { s.WriteDword(orv::kOrvaneKey, "UseOldPalette", 1); }, true},
      {"any non-zero", [](orv::MemorySettingsStore& s) { s.WriteDword(orv::kOrvaneKey, "UseOldPalette", 0xFFFFFFFF); },
       true},
      {"a string", [](orv::MemorySettingsStore& s) { s.WriteString(orv::kOrvaneKey, "UseOldPalette", "1"); }, false},
      {"another key", [](orv::MemorySettingsStore& s) { s.WriteDword("Software\\ZEL", "UseOldPalette", 1); }, false},
  };
  for (const Case& c : cases) {
    orv::MemorySettingsStore store;
    c.fill(store);
    EXPECT_EQ(orv::UseOldPalette(store), c.expected) << c.what;
  }
}

}  // namespace
