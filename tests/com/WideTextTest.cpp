// The one conversion between the program's narrow text and the wide text of the COM boundary:
// it follows the thread's code page, keeps every character of a length (NULs too), and loses
// only what the code page cannot hold.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "com/WideText.h"

namespace orv {
namespace {

// Runs a test body under another thread locale (and so another thread code page).
class ThreadLocale {
 public:
  explicit ThreadLocale(LANGID language) : old_(GetThreadLocale()) {
    SetThreadLocale(MAKELCID(language, SORT_DEFAULT));
  }
  ThreadLocale(const ThreadLocale&) = delete;
  ThreadLocale& operator=(const ThreadLocale&) = delete;
  ~ThreadLocale() { SetThreadLocale(old_); }

 private:
  LCID old_;
};

constexpr LANGID kEnglish = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);  // code page 1252
constexpr LANGID kRussian = MAKELANGID(LANG_RUSSIAN, SUBLANG_DEFAULT);     // code page 1251
constexpr LANGID kJapanese = MAKELANGID(LANG_JAPANESE, SUBLANG_DEFAULT);   // code page 932

struct RoundTrip {
  const char* name;
  LANGID language;
  std::string narrow;
  std::wstring wide;
};

const RoundTrip kRoundTrips[] = {
    {"ascii", kEnglish, "PropertySheet", L"PropertySheet"},
    {"empty", kEnglish, "", L""},
    {"latin in 1252", kEnglish, "caf\xE9", L"caf\x00E9"},
    {"the same byte in 1251", kRussian, "caf\xE9", L"caf\x0439"},
    {"cyrillic in 1251", kRussian, "\xC4\xE0\xF2\xE0", L"\x0414\x0430\x0442\x0430"},
    {"double-byte in 932", kJapanese, "\x82\xA0-\x93\xFA", L"\x3042-\x65E5"},
    {"embedded NULs", kEnglish, std::string("a\0b\0", 4), std::wstring(L"a\0b\0", 4)},
};

TEST(WideText, FollowsTheThreadCodePageBothWays) {
  for (const RoundTrip& row : kRoundTrips) {
    SCOPED_TRACE(row.name);
    ThreadLocale locale(row.language);
    EXPECT_EQ(Widen(row.narrow), row.wide);
    EXPECT_EQ(Narrow(row.wide), row.narrow);

    Bstr text = MakeBstr(row.narrow);
    ASSERT_NE(text.get(), nullptr);  // the empty text is a string too, not null
    EXPECT_EQ(text.size(), row.wide.size());
    EXPECT_EQ(WideFromBstr(text.get()), row.wide);
    EXPECT_EQ(NarrowFromBstr(text.get()), row.narrow);
  }
}

TEST(WideText, TextOutsideTheCodePageIsNotKept) {
  ThreadLocale english(kEnglish);
  EXPECT_EQ(Narrow(L"\x4E2D"), "?");
  EXPECT_EQ(Narrow(L"x\x0439y"), "x?y");
  ThreadLocale russian(kRussian);
  EXPECT_EQ(Narrow(L"\x00E9"), "e");  // 1251 maps it to its best fit
}

TEST(WideText, NullBstrIsTheEmptyText) {
  EXPECT_EQ(NarrowFromBstr(nullptr), "");
  EXPECT_EQ(WideFromBstr(nullptr), L"");
}

TEST(WideText, AnExplicitCodePageWinsOverTheThread) {
  ThreadLocale russian(kRussian);
  EXPECT_EQ(Widen("\xC3\xA9", CP_UTF8), L"\x00E9");
  EXPECT_EQ(Narrow(L"\x0439", CP_UTF8), "\xD0\xB9");
  EXPECT_EQ(Widen("\xE9", 1252), L"\x00E9");
}

struct Strict {
  const char* bytes;
  bool valid;
};

TEST(WideText, StrictReadingRefusesWhatTheCodePageCannotRead) {
  const Strict rows[] = {
      {"", true}, {"plain", true}, {"\xC3\xA9", true}, {"\xC3", false}, {"caf\xE9", false}, {"\xED\xA0\x80", false},
  };
  for (const Strict& row : rows) {
    SCOPED_TRACE(row.bytes);
    const std::optional<std::wstring> wide = WidenStrict(row.bytes, CP_UTF8);
    EXPECT_EQ(wide.has_value(), row.valid);
    if (wide) {
      EXPECT_EQ(Narrow(*wide, CP_UTF8), row.bytes);
    }
  }
}

}  // namespace
}  // namespace orv
