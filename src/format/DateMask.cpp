#include "format/DateMask.h"

#include <charconv>

namespace orv {

namespace {

constexpr const char* kWeekdays[7] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
constexpr const char* kMonths[12] = {"January", "February", "March",     "April",   "May",      "June",
                                     "July",    "August",   "September", "October", "November", "December"};

// Parts come from the calendar, but a caller may hand any numbers: names are looked up safely.
std::string_view Weekday(const DateParts& parts) {
  return parts.dayOfWeek >= 0 && parts.dayOfWeek < 7 ? kWeekdays[parts.dayOfWeek] : "?";
}
std::string_view Month(const DateParts& parts) {
  return parts.month >= 1 && parts.month <= 12 ? kMonths[parts.month - 1] : "?";
}

class MaskWriter {
 public:
  MaskWriter(const DateParts& parts, std::size_t limit, std::string& text)
      : parts_(parts), limit_(limit), text_(text) {}

  // False as soon as the text no longer fits.
  bool Write(std::string_view mask) {
    for (std::size_t i = 0; i < mask.size(); ++i) {
      if (mask[i] != '%' || i + 1 == mask.size()) {
        text_ += mask[i];
      } else {
        const bool noZeros = mask[i + 1] == '#';
        if (noZeros && i + 2 == mask.size()) {
          text_ += "%#";
          ++i;
        } else {
          const char conversion = mask[i + (noZeros ? 2 : 1)];
          Convert(conversion, noZeros);
          i += noZeros ? 2 : 1;
        }
      }
      if (text_.size() > limit_) return false;
    }
    return true;
  }

 private:
  void Number(long long value, int width, bool noZeros) {
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, value < 0 ? -value : value).ptr;
    const int length = static_cast<int>(end - digits);
    if (value < 0) text_ += '-';
    if (!noZeros)
      for (int pad = length; pad < width; ++pad) text_ += '0';
    text_.append(digits, end);
  }

  void Long(bool withTime) {
    text_ += Weekday(parts_);
    text_ += ", ";
    text_ += Month(parts_);
    text_ += ' ';
    Number(parts_.day, 2, true);
    text_ += ", ";
    Number(parts_.year, 0, false);
    if (withTime) {
      text_ += ", ";
      Write("%H:%M:%S");
    }
  }

  void Convert(char conversion, bool noZeros) {
    const DateParts& p = parts_;
    const int hour12 = p.hour % 12 == 0 ? 12 : p.hour % 12;
    const int dayIndex = p.dayOfYear - 1;
    switch (conversion) {
      case 'a':
        text_ += Weekday(p).substr(0, 3);
        break;
      case 'A':
        text_ += Weekday(p);
        break;
      case 'b':
      case 'h':
        text_ += Month(p).substr(0, 3);
        break;
      case 'B':
        text_ += Month(p);
        break;
      case 'd':
        Number(p.day, 2, noZeros);
        break;
      case 'm':
        Number(p.month, 2, noZeros);
        break;
      case 'y':
        Number(p.year % 100, 2, noZeros);
        break;
      case 'Y':
        Number(p.year, 0, noZeros);
        break;
      case 'H':
        Number(p.hour, 2, noZeros);
        break;
      case 'I':
        Number(hour12, 2, noZeros);
        break;
      case 'M':
        Number(p.minute, 2, noZeros);
        break;
      case 'S':
        Number(p.second, 2, noZeros);
        break;
      case 'p':
        text_ += p.hour < 12 ? "AM" : "PM";
        break;
      case 'j':
        Number(p.dayOfYear, 3, noZeros);
        break;
      case 'w':
        Number(p.dayOfWeek, 1, noZeros);
        break;
      case 'U':
        Number((dayIndex + 7 - p.dayOfWeek) / 7, 2, noZeros);
        break;
      case 'W':
        Number((dayIndex + 7 - (p.dayOfWeek + 6) % 7) / 7, 2, noZeros);
        break;
      case 'x':
        if (noZeros)
          Long(false);
        else
          Write("%m/%d/%y");
        break;
      case 'X':
        Write("%H:%M:%S");
        break;
      case 'c':
        if (noZeros)
          Long(true);
        else
          Write("%m/%d/%y %H:%M:%S");
        break;
      case '%':
        text_ += '%';
        break;
      case 'z':
      case 'Z':
        break;
      default:
        text_ += noZeros ? "%#" : "%";
        text_ += conversion;
        break;
    }
  }

  const DateParts& parts_;
  std::size_t limit_;
  std::string& text_;
};

}  // namespace

bool FormatDateMask(std::string_view mask, const DateParts& parts, std::size_t capacity, std::string& text) {
  text.clear();
  // Room for the terminator, as strftime counts it: a capacity of 0 holds not even that.
  if (capacity == 0) return false;
  if (!MaskWriter(parts, capacity - 1, text).Write(mask) || text.size() > capacity - 1) {
    text.clear();
    return false;
  }
  return true;
}

}  // namespace orv
