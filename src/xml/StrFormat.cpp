#include "xml/StrFormat.h"

#include <cstdarg>
#include <cstdio>

#include "xml/XmlError.h"

namespace orv {

std::string StrFormat(const char* format, ...) {
  if (!format) throw XmlComError(kStatusInvalidArg, "StrFormat");
  std::va_list args;
  va_start(args, format);
  std::va_list measure;
  va_copy(measure, args);
  const int length = std::vsnprintf(nullptr, 0, format, measure);
  va_end(measure);
  if (length < 0) {
    va_end(args);
    throw XmlComError(kStatusFail, "StrFormat");
  }
  std::string text(static_cast<std::size_t>(length), '\0');
  // vsnprintf writes the terminator too: C++ strings own one more byte behind size().
  std::vsnprintf(text.data(), text.size() + 1, format, args);
  va_end(args);
  return text;
}

}  // namespace orv
