#pragma once
// CXYCoord: one control point of a drawn study, as the host's XML carries it (a CXYCoord
// element with XY_* children), and the fixed table of snap choices a position page may offer.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "xml/Xml.h"

// The host's "no data" value of a price; anything of this size or above means no data.
inline constexpr double kLsNoDataValue = 1.8041099e36;
inline constexpr double kLsNoDataLimit = 1e36;

struct CXYCoord {
  // 27 July 1998 by the day number rule; kept as the host's plain constant.
  static constexpr std::int32_t kDefaultDate = 36001;

  std::int32_t xPos = -1;  // bar position; negative: unknown
  double yValue = 0.0;
  std::int32_t lDate = kDefaultDate;  // day number (1 January 1900 = 0)
  std::int32_t lTime = 0;             // time of day, minutes as the time formats read it
  std::int32_t lSec = 0;              // seconds of the day
  std::int32_t lSnap = -1;            // snap code; -1 no snapping
  // Shown only, never written.
  std::uint32_t tick = 0;
  std::string dateText;
  std::string timeText;
  std::string tickText;

  // Reads the XY_* children that are there over the current values.
  void Load(XmlNode element);
  // Appends a CXYCoord element with the six XY_* children, in the host's order.
  void Save(XmlNode parent) const;
};

// One choice of a snap box.
struct SnapEntry {
  std::string_view text;  // compared by content: a literal's address may differ between modules
  std::int32_t code;
  friend bool operator==(const SnapEntry&, const SnapEntry&) = default;
};

inline constexpr std::int32_t kSnapNone = -1;
inline constexpr std::int32_t kSnapAvgClose = 256;
inline constexpr std::int32_t kSnapBestFit = 257;

// The XML names a page's choices by index into this table.
inline constexpr std::array<SnapEntry, 7> kSnapTable = {{
    {"None", kSnapNone},
    {"Close", 0},
    {"High", 1},
    {"Low", 2},
    {"Open", 3},
    {"Avg Close", kSnapAvgClose},
    {"Best Fit", kSnapBestFit},
}};

// Reads the text of the direct child `name` as a double (as "%f" or any decimal form wrote it);
// the value is left as it was when the child is absent or its text is no finite number.
XmlNode LsGetChildDouble(XmlNode parent, const char* name, double& value);
// True when `node` is an element (not text, a comment or a processing instruction).
bool LsIsElement(XmlNode node);
