#pragma once
// A strict stand-in for the object that opened a sheet (CChartPages): it records every
// StatusEvent, and can be told to fail, as a host's sink could.

#include <cstdint>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "xml/XmlError.h"

namespace orv {

struct StatusEvent {
  std::int32_t type;
  std::string value;
  std::int32_t lValue;
  std::string xmlExtra;
  friend bool operator==(const StatusEvent&, const StatusEvent&) = default;
  friend std::ostream& operator<<(std::ostream& out, const StatusEvent& e) {
    return out << "StatusEvent(" << e.type << ", \"" << e.value << "\", " << e.lValue << ", \"" << e.xmlExtra << "\")";
  }
};

class FakeSheetOwner {
 public:
  orv::Status FireStatusEvent(std::int32_t type, const std::string& value, std::int32_t lValue,
                              const std::string& xmlExtra, std::int32_t& result) {
    events.push_back({type, value, lValue, xmlExtra});
    if (throwOnFire) throw std::runtime_error("the sink failed");
    result = 7;  // a host's answer, which the sheet must ignore
    return 1;
  }
  std::vector<StatusEvent> events;
  bool throwOnFire = false;
};

// The markup of a document without the line breaks and indentation MSXML may add.
inline std::string Compact(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' || text[i] == '\n' || text[i] == '\t') continue;
    out += text[i];
  }
  return out;
}

// The event with its text compacted: what the host reads, whatever indentation the DOM adds.
inline StatusEvent Compacted(StatusEvent event) {
  event.value = Compact(event.value);
  return event;
}

}  // namespace orv
