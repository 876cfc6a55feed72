// Any bytes as the host field service's answer: the records read are the whole records of it, in
// order; a record made again from what was read reads back the same; nothing may crash or leak.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dlgkit/FieldRecords.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Short inputs are spread over a whole record so that the texts are reached.
  std::string bytes(reinterpret_cast<const char*>(data), size);
  if (!bytes.empty() && bytes.size() < orv::kFieldRecordSize) {
    std::string spread(orv::kFieldRecordSize, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) spread[(i * 97) % orv::kFieldRecordSize] = bytes[i];
    bytes = spread;
  }
  const std::vector<orv::FieldRecord> records = orv::ReadFieldRecords(bytes);
  if (records.size() != bytes.size() / orv::kFieldRecordSize) __builtin_trap();
  for (const orv::FieldRecord& record : records) {
    if (record.groups.empty()) __builtin_trap();
    std::string groupText;
    for (std::size_t i = 0; i < record.groups.size(); ++i) groupText += (i ? "|" : "") + record.groups[i];
    const std::vector<orv::FieldRecord> again =
        orv::ReadFieldRecords(orv::MakeFieldRecord(record.id, record.kind, record.description, groupText));
    if (again.size() != 1 || again[0].id != record.id || again[0].kind != record.kind) __builtin_trap();
    // A text that filled its whole field loses its last character to the terminator.
    if (record.description.rfind(again[0].description, 0) != 0) __builtin_trap();
    if (again[0].description.size() + 1 < record.description.size()) __builtin_trap();
  }
  return 0;
}
