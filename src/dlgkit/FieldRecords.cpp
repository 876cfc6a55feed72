#include "dlgkit/FieldRecords.h"

#include <algorithm>

namespace orv {
namespace {

std::int32_t ReadWord(std::string_view record, std::size_t offset) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < 4; ++i)
    value |= static_cast<std::uint32_t>(static_cast<unsigned char>(record[offset + i])) << (8 * i);
  return static_cast<std::int32_t>(value);
}

void WriteWord(std::string& record, std::size_t offset, std::int32_t value) {
  const auto bits = static_cast<std::uint32_t>(value);
  for (std::size_t i = 0; i < 4; ++i) record[offset + i] = static_cast<char>((bits >> (8 * i)) & 0xFF);
}

std::string ReadText(std::string_view record, std::size_t begin, std::size_t end) {
  std::string_view field = record.substr(begin, end - begin);
  return std::string(field.substr(0, field.find('\0')));
}

std::vector<std::string> Split(const std::string& text) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (;;) {
    const std::size_t bar = text.find('|', start);
    parts.push_back(text.substr(start, bar == std::string::npos ? std::string::npos : bar - start));
    if (bar == std::string::npos) return parts;
    start = bar + 1;
  }
}

}  // namespace

std::vector<FieldRecord> ReadFieldRecords(std::string_view bytes) {
  std::vector<FieldRecord> records;
  for (std::size_t at = 0; at + kFieldRecordSize <= bytes.size(); at += kFieldRecordSize) {
    const std::string_view record = bytes.substr(at, kFieldRecordSize);
    FieldRecord field;
    field.id = ReadWord(record, 0);
    field.kind = ReadWord(record, 4);
    field.description = ReadText(record, kFieldDescriptionOffset, kFieldGroupOffset);
    field.groups = Split(ReadText(record, kFieldGroupOffset, kFieldRecordSize));
    records.push_back(std::move(field));
  }
  return records;
}

std::string MakeFieldRecord(std::int32_t id, std::int32_t kind, std::string_view description,
                            std::string_view groupText) {
  std::string record(kFieldRecordSize, '\0');
  WriteWord(record, 0, id);
  WriteWord(record, 4, kind);
  const std::size_t descriptionRoom = kFieldGroupOffset - kFieldDescriptionOffset - 1;
  const std::size_t groupRoom = kFieldRecordSize - kFieldGroupOffset - 1;
  const std::string_view d = description.substr(0, std::min(description.size(), descriptionRoom));
  const std::string_view g = groupText.substr(0, std::min(groupText.size(), groupRoom));
  std::copy(d.begin(), d.end(), record.begin() + kFieldDescriptionOffset);
  std::copy(g.begin(), g.end(), record.begin() + kFieldGroupOffset);
  return record;
}

}  // namespace orv
