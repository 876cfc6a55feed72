#pragma once
// The one checked printf-style formatter of the program: it writes into a std::string of the
// length the text needs, never into a fixed buffer. A null format raises the invalid-argument
// status and a failed conversion the generic failure, as every string helper here does.

#include <string>

namespace orv {

std::string StrFormat(const char* format, ...)
#if defined(__GNUC__)
    __attribute__((format(printf, 1, 2)))
#endif
    ;

}  // namespace orv
