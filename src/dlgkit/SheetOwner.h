#pragma once
// What a sheet needs of the object that opened it: raising StatusEvent to the host.

#include <cstdint>
#include <string>

#include "xml/XmlError.h"

namespace orv {

class SheetOwner {
 public:
  virtual ~SheetOwner() = default;
  // Raises StatusEvent(type, value, lValue, xmlExtra, &result) on every connected sink in order.
  // Returns the last sink's status, 0 when no sink is connected. Texts are narrow, in the
  // thread's code page; the owner turns them into the event's strings.
  virtual Status FireStatusEvent(std::int32_t type, const std::string& value, std::int32_t lValue,
                                 const std::string& xmlExtra, std::int32_t& result) = 0;
};

}  // namespace orv
