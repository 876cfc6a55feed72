#pragma once
// The records of the host's field service (HostServices.h): one field each, kFieldRecordSize
// bytes. The field id is the first 32-bit word (little-endian), a second word tells its kind, the
// description is a NUL-ended text from byte 28, the group text one from byte 2204; a group text
// of several groups has them separated by '|'. The other bytes are the host's.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orv {

inline constexpr std::size_t kFieldRecordSize = 2460;
inline constexpr std::size_t kFieldDescriptionOffset = 28;
inline constexpr std::size_t kFieldGroupOffset = 2204;
// A record of this kind is never listed.
inline constexpr std::int32_t kFieldKindHidden = 111;

struct FieldRecord {
  std::int32_t id = 0;
  std::int32_t kind = 0;
  std::string description;
  std::vector<std::string> groups;  // split on '|', in order; empty names kept
  friend bool operator==(const FieldRecord&, const FieldRecord&) = default;
};

// The whole records of `bytes`, in order; a trailing part shorter than a record is not read. A
// text runs to its first NUL or to the end of its field.
std::vector<FieldRecord> ReadFieldRecords(std::string_view bytes);

// One record as the service hands it: the texts cut to their fields, NUL-filled.
std::string MakeFieldRecord(std::int32_t id, std::int32_t kind, std::string_view description,
                            std::string_view groupText);

}  // namespace orv
