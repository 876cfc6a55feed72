#include "dlgkit/SettingsStore.h"

#include <fstream>
#include <system_error>

namespace orv {

namespace {

std::string_view UpToNul(std::string_view text) { return text.substr(0, text.find('\0')); }

std::string Fold(std::string_view text) {
  std::string folded(UpToNul(text));
  for (char& c : folded) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return folded;
}

// "\\Software\\Orv\\" and "Software\\Orv" are one key.
std::string_view TrimSeparators(std::string_view path) {
  path = UpToNul(path);
  while (!path.empty() && path.front() == '\\') path.remove_prefix(1);
  while (!path.empty() && path.back() == '\\') path.remove_suffix(1);
  return path;
}

bool MustEscape(unsigned char c, bool inValue) {
  if (c < 0x20 || c == 0x7F || c == '%') return true;
  return !inValue && (c == '=' || c == '[' || c == ']' || c == ';' || c == '#');
}

std::string Escape(std::string_view text, bool inValue) {
  static const char kHex[] = "0123456789ABCDEF";
  std::string out;
  out.reserve(text.size());
  for (char ch : text) {
    const auto c = static_cast<unsigned char>(ch);
    if (MustEscape(c, inValue)) {
      out += '%';
      out += kHex[c >> 4];
      out += kHex[c & 15];
    } else {
      out += ch;
    }
  }
  return out;
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

std::optional<std::string> Unescape(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%') {
      out += text[i];
      continue;
    }
    const int high = i + 1 < text.size() ? HexDigit(text[i + 1]) : -1;
    const int low = i + 2 < text.size() ? HexDigit(text[i + 2]) : -1;
    if (high < 0 || low < 0) return std::nullopt;
    out += static_cast<char>(high * 16 + low);
    i += 2;
  }
  return out;
}

std::optional<std::uint32_t> ParseDword(std::string_view text) {
  if (text.empty() || text.size() > 10) return std::nullopt;
  std::uint64_t value = 0;
  for (char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + static_cast<unsigned>(c - '0');
  }
  if (value > 0xFFFFFFFFu) return std::nullopt;
  return static_cast<std::uint32_t>(value);
}

constexpr std::size_t kMaxFileBytes = 4u << 20;

}  // namespace

// --- MemorySettingsStore ---

void MemorySettingsStore::Put(std::string_view keyPath, std::string_view name, Value value) {
  const std::string_view path = TrimSeparators(keyPath);
  Key& key = keys_[Fold(path)];
  if (key.path.empty()) key.path = std::string(path);
  const std::string folded = Fold(name);
  key.names.try_emplace(folded, std::string(UpToNul(name)));
  key.values[folded] = std::move(value);
}

const MemorySettingsStore::Value* MemorySettingsStore::Get(std::string_view keyPath, std::string_view name) const {
  auto key = keys_.find(Fold(TrimSeparators(keyPath)));
  if (key == keys_.end()) return nullptr;
  auto value = key->second.values.find(Fold(name));
  return value == key->second.values.end() ? nullptr : &value->second;
}

std::optional<std::string> MemorySettingsStore::ReadString(std::string_view keyPath, std::string_view name) {
  const Value* value = Get(keyPath, name);
  if (!value || value->isDword) return std::nullopt;
  return value->text;
}

std::optional<std::uint32_t> MemorySettingsStore::ReadDword(std::string_view keyPath, std::string_view name) {
  const Value* value = Get(keyPath, name);
  if (!value || !value->isDword) return std::nullopt;
  return value->dword;
}

bool MemorySettingsStore::WriteString(std::string_view keyPath, std::string_view name, std::string_view value) {
  if (TrimSeparators(keyPath).empty()) return false;
  Put(keyPath, name, Value{false, std::string(UpToNul(value)), 0});
  return true;
}

bool MemorySettingsStore::WriteDword(std::string_view keyPath, std::string_view name, std::uint32_t value) {
  if (TrimSeparators(keyPath).empty()) return false;
  Put(keyPath, name, Value{true, {}, value});
  return true;
}

bool MemorySettingsStore::DeleteValue(std::string_view keyPath, std::string_view name) {
  auto key = keys_.find(Fold(TrimSeparators(keyPath)));
  if (key == keys_.end()) return false;
  const std::string folded = Fold(name);
  key->second.names.erase(folded);
  // The key itself stays, as a registry key does when its last value goes.
  return key->second.values.erase(folded) != 0;
}

// --- FileSettingsStore ---

MemorySettingsStore FileSettingsStore::Parse(std::string_view text) {
  MemorySettingsStore store;
  std::optional<std::string> section;  // nullopt: before any header, or under a bad one
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (line.empty() || line.front() == ';' || line.front() == '#') continue;
    if (line.front() == '[') {
      section.reset();
      if (line.size() >= 2 && line.back() == ']') section = Unescape(line.substr(1, line.size() - 2));
      continue;
    }
    if (!section) continue;
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    const auto name = Unescape(line.substr(0, equals));
    const std::string_view typed = line.substr(equals + 1);
    if (!name || typed.size() < 2 || typed[1] != ':') continue;
    const std::string_view body = typed.substr(2);
    if (typed[0] == 's') {
      if (auto value = Unescape(body)) store.WriteString(*section, *name, *value);
    } else if (typed[0] == 'd') {
      if (auto value = ParseDword(body)) store.WriteDword(*section, *name, *value);
    }
  }
  return store;
}

std::string FileSettingsStore::Serialize(const MemorySettingsStore& store) {
  std::string out = "; Settings of OrvChartDlgs: [key path], then name=s:text or name=d:number\n";
  for (const auto& [foldedPath, key] : store.keys()) {
    out += '[' + Escape(key.path, false) + "]\n";
    for (const auto& [foldedName, value] : key.values) {
      out += Escape(key.names.at(foldedName), false);
      out += value.isDword ? "=d:" + std::to_string(value.dword) : "=s:" + Escape(value.text, true);
      out += '\n';
    }
  }
  return out;
}

MemorySettingsStore FileSettingsStore::Load() const {
  std::ifstream in(file_, std::ios::binary);
  if (!in) return {};
  std::string text(kMaxFileBytes, '\0');
  in.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(in.gcount()));
  return Parse(text);
}

bool FileSettingsStore::Save(const MemorySettingsStore& store) const {
  std::error_code error;
  if (file_.has_parent_path()) std::filesystem::create_directories(file_.parent_path(), error);
  std::filesystem::path temporary = file_;
  temporary += ".tmp";
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    if (!out) return false;
    const std::string text = Serialize(store);
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.flush();
    if (!out) {
      out.close();
      std::filesystem::remove(temporary, error);
      return false;
    }
  }
  // The rename replaces the file whole: a reader never sees half a file.
  std::filesystem::rename(temporary, file_, error);
  if (error) {
    std::filesystem::remove(temporary, error);
    return false;
  }
  return true;
}

std::optional<std::string> FileSettingsStore::ReadString(std::string_view keyPath, std::string_view name) {
  return Load().ReadString(keyPath, name);
}

std::optional<std::uint32_t> FileSettingsStore::ReadDword(std::string_view keyPath, std::string_view name) {
  return Load().ReadDword(keyPath, name);
}

bool FileSettingsStore::WriteString(std::string_view keyPath, std::string_view name, std::string_view value) {
  MemorySettingsStore store = Load();
  return store.WriteString(keyPath, name, value) && Save(store);
}

bool FileSettingsStore::WriteDword(std::string_view keyPath, std::string_view name, std::uint32_t value) {
  MemorySettingsStore store = Load();
  return store.WriteDword(keyPath, name, value) && Save(store);
}

bool FileSettingsStore::DeleteValue(std::string_view keyPath, std::string_view name) {
  MemorySettingsStore store = Load();
  if (!store.DeleteValue(keyPath, name)) return false;
  return Save(store);
}

}  // namespace orv
