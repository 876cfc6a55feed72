// The date object: its status, what null and invalid dates print, and the null mask.

#include <gtest/gtest.h>

#include <limits>

#include "FakeDateLocale.h"
#include "format/DateObject.h"
#include "xml/XmlError.h"

namespace {

using orv::DateObject;

TEST(DateObject, StatusFollowsWhatTheCalendarCanBreakDown) {
  EXPECT_EQ(DateObject().GetStatus(), DateObject::Status::Null);
  EXPECT_EQ(DateObject(40000.25).GetStatus(), DateObject::Status::Valid);
  EXPECT_EQ(DateObject(-657434.0).GetStatus(), DateObject::Status::Valid);
  EXPECT_EQ(DateObject(-657435.0).GetStatus(), DateObject::Status::Invalid);
  EXPECT_EQ(DateObject(2958466.0).GetStatus(), DateObject::Status::Invalid);
  EXPECT_EQ(DateObject(std::numeric_limits<double>::quiet_NaN()).GetStatus(), DateObject::Status::Invalid);
  EXPECT_EQ(DateObject(40000.25).GetDate(), 40000.25);
}

TEST(DateObject, NullPrintsNothingAndInvalidPrintsTheModulesText) {
  EXPECT_EQ(DateObject().Format("%m/%d/%y"), "");
  EXPECT_EQ(DateObject(1e12).Format("%m/%d/%y"), "Invalid DateTime");
  EXPECT_EQ(DateObject(40000.25).Format("%m/%d/%y %H:%M"), "07/06/09 06:00");

  FakeDateLocale locale;
  locale.invalidText = "Ungueltiges Datum";
  orv::ScopedDateLocale scope(locale);
  EXPECT_EQ(DateObject(1e12).Format("%m/%d/%y"), "Ungueltiges Datum");
  EXPECT_EQ(orv::InvalidDateText(), "Ungueltiges Datum");
}

TEST(DateObject, PartsOnlyWhenValid) {
  orv::DateParts parts{1, 1, 1, 0, 0, 0, 0, 1};
  EXPECT_FALSE(DateObject().GetParts(parts));
  EXPECT_FALSE(DateObject(-1e9).GetParts(parts));
  EXPECT_EQ(parts.year, 1);
  ASSERT_TRUE(DateObject(36585.75).GetParts(parts));
  EXPECT_EQ(parts, (orv::DateParts{2000, 2, 29, 18, 0, 0, 2, 60}));
}

TEST(DateObject, NullMaskIsAnInvalidArgumentWhateverTheDate) {
  for (const DateObject& date : {DateObject(), DateObject(40000.0), DateObject(-1e9)}) {
    try {
      date.Format(nullptr);
      ADD_FAILURE() << "no exception";
    } catch (const XmlComError& error) {
      EXPECT_EQ(error.status(), orv::kStatusInvalidArg);
    }
  }
}

TEST(DateObject, ATextLongerThanTheBufferIsEmpty) {
  std::string mask;
  for (int i = 0; i < 63; ++i) mask += "%B";  // "July": 252 characters
  EXPECT_EQ(DateObject(40000.0).Format(mask.c_str()).size(), 252u);
  mask += "%B";
  EXPECT_EQ(DateObject(40000.0).Format(mask.c_str()), "");
}

}  // namespace
