#pragma once
// Per-user named strings and DWORDs under a key path: the current user's registry on Windows,
// a file in the user's configuration folder natively, memory in tests.
//
// A key path is relative to the user's root, its parts separated by '\\'
// ("Software\\Orv\\Seasonal"; separators at either end don't count); the name "" is the key's
// default value. An empty key path is refused: nothing is read from or written to the root.
// Key paths and names compare case-insensitively (ASCII), as the registry's do.
// Absent is not an error: a missing key or value, or a value of another type than asked
// (a DWORD read as a string, a REG_EXPAND_SZ, a binary value ...), reads as std::nullopt.
// Texts end at their first NUL, as the registry's strings do for their readers.

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace orv {

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual std::optional<std::string> ReadString(std::string_view keyPath, std::string_view name) = 0;
  virtual std::optional<std::uint32_t> ReadDword(std::string_view keyPath, std::string_view name) = 0;
  // Creates the key as needed; false when the store can't be written.
  virtual bool WriteString(std::string_view keyPath, std::string_view name, std::string_view value) = 0;
  virtual bool WriteDword(std::string_view keyPath, std::string_view name, std::uint32_t value) = 0;
  // True when the value existed and is gone.
  virtual bool DeleteValue(std::string_view keyPath, std::string_view name) = 0;
};

// The current user's store: the registry under HKEY_CURRENT_USER on Windows, natively the file
// DefaultSettingsFilePath().
std::unique_ptr<SettingsStore> CreateUserSettingsStore();

// Values kept in memory (tests; and the working set of the file store).
class MemorySettingsStore : public SettingsStore {
 public:
  struct Value {
    bool isDword = false;
    std::string text;
    std::uint32_t dword = 0;
  };
  struct Key {
    std::string path;                          // as first written
    std::map<std::string, std::string> names;  // folded name -> name as written
    std::map<std::string, Value> values;       // folded name -> value
  };
  using Keys = std::map<std::string, Key>;  // folded key path -> key

  std::optional<std::string> ReadString(std::string_view keyPath, std::string_view name) override;
  std::optional<std::uint32_t> ReadDword(std::string_view keyPath, std::string_view name) override;
  bool WriteString(std::string_view keyPath, std::string_view name, std::string_view value) override;
  bool WriteDword(std::string_view keyPath, std::string_view name, std::uint32_t value) override;
  bool DeleteValue(std::string_view keyPath, std::string_view name) override;

  const Keys& keys() const { return keys_; }
  void Clear() { keys_.clear(); }

 protected:
  void Put(std::string_view keyPath, std::string_view name, Value value);
  const Value* Get(std::string_view keyPath, std::string_view name) const;
  Keys keys_;
};

// The native store: an INI-like text file, read anew for every call and rewritten whole (through
// a temporary file and a rename) for every change. Format:
//   [Software\Orv\Seasonal]
//   History1=s:Corn
//   Count=d:5
// '%' followed by two hex digits stands for a byte (control characters, '%', and in key paths and
// names also '=', '[', ']', ';', '#'). Lines starting with ';' or '#' are comments. A malformed line
// is ignored and so are the values under a malformed header; everything else still reads. A line
// that couldn't be read is not written back. Only the first 4 MiB of the file are read.
class FileSettingsStore final : public SettingsStore {
 public:
  explicit FileSettingsStore(std::filesystem::path file) : file_(std::move(file)) {}
  std::optional<std::string> ReadString(std::string_view keyPath, std::string_view name) override;
  std::optional<std::uint32_t> ReadDword(std::string_view keyPath, std::string_view name) override;
  bool WriteString(std::string_view keyPath, std::string_view name, std::string_view value) override;
  bool WriteDword(std::string_view keyPath, std::string_view name, std::uint32_t value) override;
  bool DeleteValue(std::string_view keyPath, std::string_view name) override;
  const std::filesystem::path& file() const { return file_; }

  // The text form, exposed for tests and the fuzz target.
  static MemorySettingsStore Parse(std::string_view text);
  static std::string Serialize(const MemorySettingsStore& store);

 private:
  MemorySettingsStore Load() const;
  bool Save(const MemorySettingsStore& store) const;
  std::filesystem::path file_;
};

// $XDG_CONFIG_HOME/orvchartdlgs/settings.ini, or ~/.config/orvchartdlgs/settings.ini.
std::filesystem::path DefaultSettingsFilePath();

}  // namespace orv
