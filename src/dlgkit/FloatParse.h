#pragma once
// The one reader of decimal numbers typed into an edit control (DDX_Float uses it).

#include <optional>
#include <string_view>

namespace orv {

// Reads a whole field as a double: blanks and tabs may surround the number, nothing else may.
// strtod's 0.0 counts as a failure unless the first non-blank character is the digit 0,
// so "0" and "0.0" are read while ".0", "-0" and "abc" are refused. Values that aren't
// finite ("inf", "nan", "1e999") are refused too.
// The text ends at its first NUL, as the control's text would.
std::optional<double> ParseFloatField(std::string_view text);

}  // namespace orv
