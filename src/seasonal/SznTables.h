#pragma once
// Tables the seasonal wizard's pages share.

namespace orv::seasonal {

// The months as the pages' month boxes list them, January first.
inline constexpr const char* kMonthNames[12] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

}  // namespace orv::seasonal
