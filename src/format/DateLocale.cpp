#include "format/DateLocale.h"

namespace orv {

namespace {
// One thread, the host's: the apartment is the guard, as for the other seams of the program.
const DateLocale* g_override = nullptr;

// The length of the run of `letter` starting at `i`.
std::size_t RunLength(std::string_view picture, std::size_t i) {
  std::size_t end = i;
  while (end < picture.size() && picture[end] == picture[i]) ++end;
  return end - i;
}
}  // namespace

const DateLocale& CurrentDateLocale() { return g_override ? *g_override : PlatformDateLocale(); }

ScopedDateLocale::ScopedDateLocale(const DateLocale& locale) : previous_(g_override) { g_override = &locale; }

ScopedDateLocale::~ScopedDateLocale() { g_override = previous_; }

std::string ConvertDatePicture(std::string_view picture) {
  static constexpr const char* kDay[] = {"%#d", "%d", "%a", "%A"};
  static constexpr const char* kMonth[] = {"%#m", "%m", "%b", "%B"};
  static constexpr const char* kYear[] = {"%#y", "%y", "%Y"};
  std::string mask;
  for (std::size_t i = 0; i < picture.size();) {
    const char c = picture[i];
    const std::size_t run = RunLength(picture, i);
    if (c == 'd') {
      mask += kDay[run < 4 ? run - 1 : 3];
    } else if (c == 'M') {
      mask += kMonth[run < 4 ? run - 1 : 3];
    } else if (c == 'y') {
      mask += kYear[run < 3 ? run - 1 : 2];
    } else if (c == 'g') {
      // The Gregorian calendar's one era, however many letters.
      mask += "A.D.";
    } else if (c == '\'' && i + 1 < picture.size() && picture[i + 1] == '\'') {
      // Two quotes outside quoted text stand for one.
      mask += '\'';
      i += 2;
      continue;
    } else if (c == '\'') {
      // Quoted text up to the closing quote (or the end); a doubled quote is one quote.
      std::size_t j = i + 1;
      for (; j < picture.size(); ++j) {
        if (picture[j] != '\'') {
          mask += picture[j] == '%' ? std::string_view("%%") : picture.substr(j, 1);
        } else if (j + 1 < picture.size() && picture[j + 1] == '\'') {
          mask += '\'';
          ++j;
        } else {
          break;
        }
      }
      i = j + 1;
      continue;
    } else {
      for (std::size_t k = 0; k < run; ++k) mask += c == '%' ? "%%" : std::string(1, c);
    }
    i += run;
  }
  return mask;
}

}  // namespace orv
