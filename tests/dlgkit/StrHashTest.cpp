// The string-keyed map: its hash, its case-sensitive keys, null keys.

#include <gtest/gtest.h>

#include <type_traits>

#include "dlgkit/StrHash.h"

namespace {

TEST(CStringTraits, HashOfHandWorkedKeys) {
  EXPECT_EQ(CStringTraits::Hash(""), 0u);
  EXPECT_EQ(CStringTraits::Hash("a"), 97u);
  EXPECT_EQ(CStringTraits::Hash("ab"), 3299u);
  // Bytes above 127 count as unsigned, not as negative chars.
  EXPECT_EQ(CStringTraits::Hash("\xFF"), 255u);
  // Up to the terminator.
  EXPECT_EQ(CStringTraits::Hash(std::string_view("ab\0c", 4)), CStringTraits::Hash("ab"));
}

TEST(TStrHash, KeysDifferingInCaseAreTwoEntries) {
  TStrHash<int> map;
  map.SetAt("Trend", 1);
  map.SetAt("trend", 2);
  EXPECT_EQ(map.GetCount(), 2u);
  ASSERT_NE(map.Find("Trend"), nullptr);
  EXPECT_EQ(*map.Find("Trend"), 1);
  EXPECT_EQ(*map.Find("trend"), 2);
  EXPECT_EQ(map.Find("TREND"), nullptr);
}

TEST(TStrHash, SetAtReplacesLookupLeavesOutputWhenAbsent) {
  TStrHash<std::string> map;
  map.SetAt("Fib", "one");
  map.SetAt(std::string_view("Fib"), "two");
  EXPECT_EQ(map.GetCount(), 1u);
  std::string out = "kept";
  EXPECT_FALSE(map.Lookup("Gann", out));
  EXPECT_EQ(out, "kept");
  EXPECT_TRUE(map.Lookup("Fib", out));
  EXPECT_EQ(out, "two");
  EXPECT_TRUE(map.RemoveKey("Fib"));
  EXPECT_FALSE(map.RemoveKey("Fib"));
  EXPECT_TRUE(map.IsEmpty());
}

TEST(TStrHash, KeyEndsAtItsFirstNul) {
  TStrHash<int> map;
  map.SetAt(std::string_view("ab\0c", 4), 5);
  ASSERT_NE(map.Find("ab"), nullptr);
  EXPECT_EQ(*map.Find("ab"), 5);
}

TEST(TStrHash, NullKeyIsAFatalError) {
  TStrHash<int> map;
  const char* none = nullptr;
  try {
    map.SetAt(none, 1);
    FAIL() << "a null key was accepted";
  } catch (const XmlComError& error) {
    EXPECT_EQ(static_cast<std::uint32_t>(error.status()), 0x80004005u);
  }
  EXPECT_THROW(map.Find(none), XmlComError);
  int out = 0;
  EXPECT_THROW(map.Lookup(none, out), XmlComError);
  EXPECT_THROW(map.RemoveKey(none), XmlComError);
  EXPECT_TRUE(map.IsEmpty());
}

}  // namespace
