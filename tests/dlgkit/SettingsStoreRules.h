#pragma once
// The rules every SettingsStore keeps, shared by the tests of each store.

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "dlgkit/SettingsStore.h"

namespace orv::test {

inline constexpr const char* kKey = "Software\\Orv\\Seasonal";

inline void ExpectStoreRules(orv::SettingsStore& store, std::string_view key = kKey) {
  EXPECT_FALSE(store.ReadString(key, "History1"));
  EXPECT_FALSE(store.ReadDword("Software\\Nobody", "X"));
  // Never the root of the user's settings.
  EXPECT_FALSE(store.WriteString("\\", "X", "y"));
  EXPECT_FALSE(store.ReadString("", "X"));
  ASSERT_TRUE(store.WriteString(key, "History1", "Corn \"Dec\" = 5%; [x]\r\nline2\ttab"));
  ASSERT_TRUE(store.WriteDword(key, "Count", 4294967295u));
  EXPECT_EQ(store.ReadString(key, "History1"), "Corn \"Dec\" = 5%; [x]\r\nline2\ttab");
  EXPECT_EQ(store.ReadDword(key, "Count"), 4294967295u);
  // Another type than asked is absent.
  EXPECT_FALSE(store.ReadDword(key, "History1"));
  EXPECT_FALSE(store.ReadString(key, "Count"));
  // Names and key paths compare as the registry's do.
  std::string otherCase = "\\" + std::string(key) + "\\";
  for (char& c : otherCase) {
    if (c >= 'a' && c <= 'z')
      c = static_cast<char>(c - 32);
    else if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c + 32);
  }
  EXPECT_EQ(store.ReadDword(otherCase, "COUNT"), 4294967295u);
  ASSERT_TRUE(store.WriteDword(key, "count", 3));
  EXPECT_EQ(store.ReadDword(key, "Count"), 3u);
  // A name with the format's own characters.
  ASSERT_TRUE(store.WriteString(key, "a=b[c];%", ""));
  EXPECT_EQ(store.ReadString(key, "a=b[c];%"), "");
  // Texts end at their first NUL.
  ASSERT_TRUE(store.WriteString(key, "Nul", std::string_view("ab\0cd", 5)));
  EXPECT_EQ(store.ReadString(key, "Nul"), "ab");
  EXPECT_TRUE(store.DeleteValue(key, "COUNT"));
  EXPECT_FALSE(store.DeleteValue(key, "Count"));
  EXPECT_FALSE(store.ReadDword(key, "Count"));
  EXPECT_EQ(store.ReadString(key, "History1"), "Corn \"Dec\" = 5%; [x]\r\nline2\ttab");
}

}  // namespace orv::test
