#pragma once
// TStrHash<V, CStringTraits>: the string-keyed map that pages use for named records
// (line and shade properties by name, wizard pages by name).
//
// CString is the program's narrow string: here simply std::string, in the thread's code page.
// A key ends at its first NUL, as the C string it stands for would: "ab\0c" and "ab" are one key.
// Keys compare byte-wise and case-sensitively: "Name" and "name" are two entries.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "xml/XmlError.h"

using CString = std::string;

struct CStringTraits {
  // 64-bit accumulator from 0; for each byte up to the terminator, taken unsigned: acc * 33 + byte.
  static std::uint64_t Hash(std::string_view key) {
    std::uint64_t acc = 0;
    for (char c : key) {
      if (c == '\0') break;
      acc = acc * 33 + static_cast<unsigned char>(c);
    }
    return acc;
  }
  // Byte-wise, case-sensitive, up to the terminator.
  static bool Equal(std::string_view a, std::string_view b) {
    return a.substr(0, a.find('\0')) == b.substr(0, b.find('\0'));
  }

  // Adaptors for the standard map.
  struct Hasher {
    std::size_t operator()(const CString& key) const { return static_cast<std::size_t>(Hash(key)); }
  };
  struct KeyEqual {
    bool operator()(const CString& a, const CString& b) const { return Equal(a, b); }
  };
};

template <class K, class V, class Traits>
class THashX {
 public:
  using Map = std::unordered_map<K, V, typename Traits::Hasher, typename Traits::KeyEqual>;
  using iterator = typename Map::iterator;
  using const_iterator = typename Map::const_iterator;

  THashX() = default;
  THashX(const THashX&) = default;
  THashX& operator=(const THashX&) = default;
  THashX(THashX&&) noexcept = default;
  THashX& operator=(THashX&&) noexcept = default;
  virtual ~THashX() = default;

  std::size_t GetCount() const { return map_.size(); }
  bool IsEmpty() const { return map_.empty(); }
  void RemoveAll() { map_.clear(); }

  iterator begin() { return map_.begin(); }
  iterator end() { return map_.end(); }
  const_iterator begin() const { return map_.begin(); }
  const_iterator end() const { return map_.end(); }

 protected:
  Map map_;
};

// The string-key operations; a null key is a fatal error (E_FAIL).
template <class V, class Traits>
class TStrHashImpl : public THashX<CString, V, Traits> {
 public:
  // Adds or replaces.
  void SetAt(const char* key, V value) { this->map_.insert_or_assign(Key(key), std::move(value)); }
  void SetAt(std::string_view key, V value) { this->map_.insert_or_assign(Key(key), std::move(value)); }

  // The stored value, or nullptr when the key is absent.
  V* Find(const char* key) { return Find(KeyView(key)); }
  V* Find(std::string_view key) {
    auto it = this->map_.find(Key(key));
    return it == this->map_.end() ? nullptr : &it->second;
  }
  const V* Find(const char* key) const { return Find(KeyView(key)); }
  const V* Find(std::string_view key) const {
    auto it = this->map_.find(Key(key));
    return it == this->map_.end() ? nullptr : &it->second;
  }

  // Copies the value to `out` when present; otherwise `out` stays as it was.
  bool Lookup(const char* key, V& out) const { return Lookup(KeyView(key), out); }
  bool Lookup(std::string_view key, V& out) const {
    const V* found = Find(key);
    if (!found) return false;
    out = *found;
    return true;
  }

  bool RemoveKey(const char* key) { return RemoveKey(KeyView(key)); }
  bool RemoveKey(std::string_view key) { return this->map_.erase(Key(key)) != 0; }

 private:
  static std::string_view KeyView(const char* key) {
    if (!key) throw XmlComError(orv::kStatusFail, "TStrHash: null key");
    return key;
  }
  static CString Key(const char* key) { return CString(KeyView(key)); }
  static CString Key(std::string_view key) { return CString(key.substr(0, key.find('\0'))); }
};

template <class V, class Traits = CStringTraits>
class TStrHash final : public TStrHashImpl<V, Traits> {};
