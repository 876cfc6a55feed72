// The locale's short date: the picture the platform gives turned into a mask, and the date by it.

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "FakeDateLocale.h"
#include "format/DateFormat.h"

namespace {

// Monday 6 July 2009, 15:04:05
constexpr double kAfternoon = 40000.0 + (15 * 3600 + 4 * 60 + 5) / 86400.0;

struct PictureCase {
  const char* picture;
  const char* mask;
};

void PrintTo(const PictureCase& c, std::ostream* os) { *os << "\"" << c.picture << "\" \"" << c.mask << "\""; }

class Picture : public testing::TestWithParam<PictureCase> {};

TEST_P(Picture, BecomesAMask) {
  EXPECT_EQ(orv::ConvertDatePicture(GetParam().picture), GetParam().mask) << GetParam().picture;
}

INSTANTIATE_TEST_SUITE_P(Pictures, Picture,
                         testing::Values(PictureCase{"M/d/yyyy", "%#m/%#d/%Y"}, PictureCase{"dd.MM.yyyy", "%d.%m.%Y"},
                                         PictureCase{"yy/MM/dd", "%y/%m/%d"}, PictureCase{"d-MMM-y", "%#d-%b-%#y"},
                                         PictureCase{"dddd, MMMM d, yyyy", "%A, %B %#d, %Y"}, PictureCase{"ddd", "%a"},
                                         PictureCase{"dddddd MMMMMM", "%A %B"}, PictureCase{"yyy yyyyy", "%Y %Y"},
                                         PictureCase{"gg yyyy", "A.D. %Y"}, PictureCase{"g", "A.D."},
                                         // quoted text is literal; two quotes are one, inside quotes or out
                                         PictureCase{"d 'de' MMMM", "%#d de %B"}, PictureCase{"'dMy'", "dMy"},
                                         PictureCase{"'it''s' d", "it's %#d"}, PictureCase{"d''M", "%#d'%#m"},
                                         PictureCase{"'open d", "open d"}, PictureCase{"''''", "''"},
                                         // '%' must not start a conversion; time letters are plain text in a date
                                         PictureCase{"100%", "100%%"}, PictureCase{"'%d'", "%%d"},
                                         PictureCase{"%d", "%%%#d"}, PictureCase{"h:mm tt", "h:mm tt"},
                                         PictureCase{"", ""}));

#if !defined(_WIN32)
// Natively every locale answers as the United States'; on Windows the platform's locale does.
TEST(LocaleDate, TheUsersLocaleIsTheUnitedStatesNatively) {
  EXPECT_EQ(FormatLocaleDate(kAfternoon, 0), "7/6/2009");
  EXPECT_EQ(FormatLocaleDate(40471.0, 1031), "10/20/2010");
  EXPECT_EQ(FormatLocaleDate(1e12, 0), "Invalid DateTime");
}
#endif

TEST(LocaleDate, FollowsThePictureOfTheLocaleAsked) {
  FakeDateLocale locale;
  orv::ScopedDateLocale scope(locale);
  EXPECT_EQ(FormatLocaleDate(kAfternoon, 1031), "06.07.2009");
  EXPECT_EQ(locale.askedLocale, 1031u);
  locale.picture = "dddd d 'de' MMMM 'de' yyyy";
  EXPECT_EQ(FormatLocaleDate(kAfternoon, 3082), "Monday 6 de July de 2009");
  locale.picture = "'%Y' yy";
  EXPECT_EQ(FormatLocaleDate(kAfternoon, 0), "%Y 09");
  // a locale without a picture gets the United States one
  locale.picture = "";
  EXPECT_EQ(FormatLocaleDate(kAfternoon, 0), "7/6/2009");
}

TEST(LocaleDate, Id224IsTheUsersDefaultLocale) {
  FakeDateLocale locale;
  orv::ScopedDateLocale scope(locale);
  std::string text;
  EXPECT_EQ(FormatDateValue(kAfternoon, 224, text), 0);
  EXPECT_EQ(text, "06.07.2009");
  EXPECT_EQ(locale.askedLocale, 0u);
}

}  // namespace
