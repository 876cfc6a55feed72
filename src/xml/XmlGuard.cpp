#include "xml/XmlGuard.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace orv {
namespace {

bool IsForbiddenByte(unsigned char c) { return c < 0x20 && c != '\t' && c != '\n' && c != '\r'; }

bool IsXmlChar(std::uint32_t c) {
  return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFFFD) ||
         (c >= 0x10000 && c <= 0x10FFFF);
}

// Natively the program's narrow text is UTF-8, and the guard decodes it: pugixml takes any bytes.
// On Windows it is in the ANSI code page, every byte is a character, and MSXML judges the
// characters of names itself.
#ifdef _WIN32
constexpr bool kNarrowIsUtf8 = false;
#else
constexpr bool kNarrowIsUtf8 = true;
#endif
constexpr std::uint32_t kNoCharacter = 0xFFFFFFFF;

// The character of the UTF-8 sequence at `at`, moving `at` past it; kNoCharacter for a malformed,
// overlong or surrogate sequence.
std::uint32_t DecodeUtf8(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(text[at++]);
  if (lead < 0x80) return lead;
  int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : -1;
  if (more < 0 || lead > 0xF4) return kNoCharacter;
  std::uint32_t c = lead & (0x3F >> more);
  for (int i = 0; i < more; ++i) {
    if (at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80) return kNoCharacter;
    c = (c << 6) | (static_cast<unsigned char>(text[at++]) & 0x3F);
  }
  const std::uint32_t least[] = {0, 0x80, 0x800, 0x10000};
  if (c < least[more] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return kNoCharacter;
  return c;
}

bool IsNameStartCharacter(std::uint32_t c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == ':' || (c >= 0xC0 && c <= 0xD6) ||
         (c >= 0xD8 && c <= 0xF6) || (c >= 0xF8 && c <= 0x2FF) || (c >= 0x370 && c <= 0x37D) ||
         (c >= 0x37F && c <= 0x1FFF) || (c >= 0x200C && c <= 0x200D) || (c >= 0x2070 && c <= 0x218F) ||
         (c >= 0x2C00 && c <= 0x2FEF) || (c >= 0x3001 && c <= 0xD7FF) || (c >= 0xF900 && c <= 0xFDCF) ||
         (c >= 0xFDF0 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0xEFFFF);
}
bool IsNameCharacter(std::uint32_t c) {
  return IsNameStartCharacter(c) || (c >= '0' && c <= '9') || c == '-' || c == '.' || c == 0xB7 ||
         (c >= 0x300 && c <= 0x36F) || (c >= 0x203F && c <= 0x2040);
}

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
bool IsAsciiLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return x == y || (IsAsciiLetter(x) && IsAsciiLetter(y) && (x | 0x20) == (y | 0x20));
         });
}

// The value of a character reference's digits, or 0 (no XML character) when there are none or a
// digit is wrong; values beyond the last character stay beyond it however many digits follow.
std::uint32_t CharacterReferenceValue(std::string_view digits, bool hex) {
  if (digits.empty()) return 0;
  std::uint32_t value = 0;
  for (char d : digits) {
    std::uint32_t v = 0;
    if (IsDigit(d))
      v = static_cast<std::uint32_t>(d - '0');
    else if (hex && d >= 'a' && d <= 'f')
      v = static_cast<std::uint32_t>(d - 'a' + 10);
    else if (hex && d >= 'A' && d <= 'F')
      v = static_cast<std::uint32_t>(d - 'A' + 10);
    else
      return 0;
    value = std::min<std::uint32_t>(value * (hex ? 16 : 10) + v, 0x110000);
  }
  return value;
}

// The character a reference's body (between '&' and ';') stands for: one of the five predefined
// entities or a character reference; 0 (no XML character) for anything else.
std::uint32_t ReferenceCharacter(std::string_view body) {
  if (body.starts_with("#x")) return CharacterReferenceValue(body.substr(2), true);
  if (body.starts_with("#")) return CharacterReferenceValue(body.substr(1), false);
  if (body == "lt") return '<';
  if (body == "gt") return '>';
  if (body == "amp") return '&';
  if (body == "apos") return '\'';
  if (body == "quot") return '"';
  return 0;
}

// One pass over the text by the grammar of a document without a DTD. Each Scan* operation
// starts at its construct's first character and leaves `at_` just past it, or answers a refusal.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : text_(text) {}

  XmlTextVerdict Run() {
    using V = XmlTextVerdict;
    if (text_.substr(0, 5) == "<?xml" && (At(5, '?') || IsSpace(Char(5)))) {
      if (V v = ScanDeclaration(); v != V::Acceptable) return v;
    }
    bool sawRoot = false;
    while (at_ < text_.size()) {
      const char c = text_[at_];
      if (!open_.empty() && c != '<') {
        if (V v = ScanText(); v != V::Acceptable) return v;
        continue;
      }
      if (IsSpace(c)) {
        ++at_;
        continue;
      }
      if (c != '<') return V::Malformed;  // text outside the root element
      const std::string_view rest = text_.substr(at_);
      V v = V::Acceptable;
      if (rest.starts_with("<!--")) {
        v = ScanComment();
      } else if (rest.starts_with("<![CDATA[")) {
        if (open_.empty()) return V::Malformed;
        v = SkipPast(at_ + 9, "]]>");
      } else if (rest.starts_with("<!")) {
        return V::MarkupDeclaration;
      } else if (rest.starts_with("<?")) {
        v = ScanProcessingInstruction();
      } else if (rest.starts_with("</")) {
        v = ScanEndTag();
      } else {
        if (open_.empty() && sawRoot) return V::Malformed;  // a second root element
        sawRoot = true;
        v = ScanStartTag();
      }
      if (v != V::Acceptable) return v;
    }
    if (!open_.empty()) return V::Unterminated;
    return sawRoot ? V::Acceptable : V::Malformed;
  }

 private:
  char Char(std::size_t i) const { return i < text_.size() ? text_[i] : '\0'; }
  bool At(std::size_t i, char c) const { return i < text_.size() && text_[i] == c; }
  void SkipSpace() {
    while (at_ < text_.size() && IsSpace(text_[at_])) ++at_;
  }
  // A name from `at_`; empty when none starts there.
  std::string_view TakeName() {
    const std::size_t begin = at_;
    while (at_ < text_.size()) {
      const std::size_t from = at_;
      const auto byte = static_cast<unsigned char>(text_[at_]);
      bool ok = true;
      if (byte < 0x80 || kNarrowIsUtf8) {
        const std::uint32_t c = DecodeUtf8(text_, at_);
        ok = from == begin ? IsNameStartCharacter(c) : IsNameCharacter(c);
      } else {
        ++at_;
      }
      if (!ok) {
        at_ = from;
        break;
      }
    }
    return text_.substr(begin, at_ - begin);
  }

  XmlTextVerdict SkipPast(std::size_t from, std::string_view terminator) {
    const std::size_t end = text_.find(terminator, from);
    if (end == std::string_view::npos) return XmlTextVerdict::Unterminated;
    at_ = end + terminator.size();
    return XmlTextVerdict::Acceptable;
  }

  // '&' at `at_`: one of the five predefined entities or a reference to an XML character.
  XmlTextVerdict ScanReference() {
    const std::size_t semicolon = text_.find(';', at_ + 1);
    if (semicolon == std::string_view::npos) return XmlTextVerdict::BadReference;
    if (!IsXmlChar(ReferenceCharacter(text_.substr(at_ + 1, semicolon - at_ - 1)))) return XmlTextVerdict::BadReference;
    at_ = semicolon + 1;
    return XmlTextVerdict::Acceptable;
  }

  // Character data up to the next '<': references checked, "]]>" refused.
  XmlTextVerdict ScanText() {
    while (at_ < text_.size() && text_[at_] != '<') {
      if (text_[at_] == '&') {
        if (XmlTextVerdict v = ScanReference(); v != XmlTextVerdict::Acceptable) return v;
        continue;
      }
      if (text_.substr(at_, 3) == "]]>") return XmlTextVerdict::Malformed;
      ++at_;
    }
    return XmlTextVerdict::Acceptable;
  }

  // A quoted value at `at_`: no '<', references checked. `value` is what lies between the quotes.
  XmlTextVerdict ScanQuoted(std::string_view& value) {
    if (at_ >= text_.size()) return XmlTextVerdict::Unterminated;
    const char quote = text_[at_];
    if (quote != '"' && quote != '\'') return XmlTextVerdict::Malformed;
    const std::size_t begin = ++at_;
    while (at_ < text_.size() && text_[at_] != quote) {
      if (text_[at_] == '<') return XmlTextVerdict::Malformed;
      if (text_[at_] == '&') {
        if (XmlTextVerdict v = ScanReference(); v != XmlTextVerdict::Acceptable) return v;
        continue;
      }
      ++at_;
    }
    if (at_ >= text_.size()) return XmlTextVerdict::Unterminated;
    value = text_.substr(begin, at_ - begin);
    ++at_;
    return XmlTextVerdict::Acceptable;
  }

  // S? '=' S? at `at_`.
  bool TakeEquals() {
    SkipSpace();
    if (!At(at_, '=')) return false;
    ++at_;
    SkipSpace();
    return true;
  }

  // "<?xml" at the very start: version, then optionally encoding and standalone, in that order.
  XmlTextVerdict ScanDeclaration() {
    using V = XmlTextVerdict;
    if (text_.find("?>", 5) == std::string_view::npos) return V::Unterminated;
    at_ = 5;
    const char* const order[] = {"version", "encoding", "standalone"};
    std::size_t next = 0;
    for (;;) {
      const std::size_t beforeSpace = at_;
      SkipSpace();
      if (text_.substr(at_, 2) == "?>") break;
      if (at_ == beforeSpace) return V::Malformed;  // pseudo-attributes are separated by white space
      const std::string_view name = TakeName();
      std::size_t which = next;
      while (which < std::size(order) && name != order[which]) ++which;
      // Unknown, repeated or out of order; and the version comes first.
      if (which == std::size(order) || (next == 0 && which != 0)) return V::Malformed;
      if (!TakeEquals()) return V::Malformed;
      std::string_view value;
      if (V v = ScanQuoted(value); v != V::Acceptable) return v == V::Unterminated ? v : V::Malformed;
      if (!PseudoAttributeValueIsGood(which, value)) return V::Malformed;
      next = which + 1;
    }
    if (next == 0) return V::Malformed;  // no version
    at_ += 2;
    return V::Acceptable;
  }

  // Encoding names msxml3 accepts in a loaded text (measured under Wine 8), any case. The text
  // reaches either parser already decoded, so the name changes nothing else; "latin1", "cp1252",
  // "UCS-2", "UTF-32", "Shift_JIS" and the like are refused there.
  static constexpr std::string_view kEncodings[] = {
      "UTF-8",        "UTF8",         "UTF-16",       "UTF16",        "UTF-16LE",     "UTF-16BE",     "US-ASCII",
      "ASCII",        "ISO-8859-1",   "ISO-8859-2",   "ISO-8859-3",   "ISO-8859-4",   "ISO-8859-5",   "ISO-8859-6",
      "ISO-8859-7",   "ISO-8859-8",   "ISO-8859-9",   "ISO-8859-10",  "ISO-8859-11",  "ISO-8859-13",  "ISO-8859-14",
      "ISO-8859-15",  "ISO-8859-16",  "windows-1250", "windows-1251", "windows-1252", "windows-1253", "windows-1254",
      "windows-1255", "windows-1256", "windows-1257", "windows-1258"};

  static bool PseudoAttributeValueIsGood(std::size_t which, std::string_view value) {
    switch (which) {
      case 0:  // version: "1." and digits, all read as 1.0
        return value.size() > 2 && value.starts_with("1.") && std::all_of(value.begin() + 2, value.end(), IsDigit);
      case 1:  // encoding: one that both parsers take
        return std::any_of(std::begin(kEncodings), std::end(kEncodings),
                           [&](std::string_view known) { return EqualsIgnoringCase(value, known); });
      default:  // standalone
        return value == "yes" || value == "no";
    }
  }

  XmlTextVerdict ScanComment() {
    // "--" may only end the comment, and only as "-->".
    const std::size_t dashes = text_.find("--", at_ + 4);
    if (dashes == std::string_view::npos) return XmlTextVerdict::Unterminated;
    if (!At(dashes + 2, '>'))
      return dashes + 2 >= text_.size() ? XmlTextVerdict::Unterminated : XmlTextVerdict::Malformed;
    at_ = dashes + 3;
    return XmlTextVerdict::Acceptable;
  }

  XmlTextVerdict ScanProcessingInstruction() {
    at_ += 2;
    const std::string_view target = TakeName();
    if (target.empty() || EqualsIgnoringCase(target, "xml")) return XmlTextVerdict::Malformed;
    if (text_.substr(at_, 2) == "?>") {
      at_ += 2;
      return XmlTextVerdict::Acceptable;
    }
    if (at_ >= text_.size()) return XmlTextVerdict::Unterminated;
    if (!IsSpace(text_[at_])) return XmlTextVerdict::Malformed;
    return SkipPast(at_, "?>");
  }

  XmlTextVerdict ScanStartTag() {
    using V = XmlTextVerdict;
    ++at_;
    const std::string_view name = TakeName();
    if (name.empty()) return V::Malformed;
    std::vector<std::pair<std::string_view, std::string_view>> attributes;  // name, value as written
    for (;;) {
      const std::size_t beforeSpace = at_;
      SkipSpace();
      if (at_ >= text_.size()) return V::Unterminated;
      if (text_[at_] == '>' || text_.substr(at_, 2) == "/>") break;
      if (at_ == beforeSpace) return V::Malformed;  // attributes are separated by white space
      const std::string_view attribute = TakeName();
      if (attribute.empty()) return V::Malformed;
      if (!TakeEquals()) return at_ >= text_.size() ? V::Unterminated : V::Malformed;
      std::string_view value;
      if (V v = ScanQuoted(value); v != V::Acceptable) return v;
      attributes.emplace_back(attribute, value);
    }
    const std::size_t level = open_.size() + 1;
    if (!DeclareNamespaces(attributes, level) || !HasKnownPrefix(name, false) || !AttributesAreDistinct(attributes))
      return V::Malformed;
    if (text_[at_] == '/') {
      at_ += 2;
      ForgetNamespaces(level);
      return V::Acceptable;
    }
    ++at_;
    open_.push_back(name);
    return open_.size() > static_cast<std::size_t>(kXmlMaxDepth) ? V::TooDeep : V::Acceptable;
  }

  // Namespaces, as MSXML reads every document: prefixes are declared before use, "xmlns:p" binds
  // a non-empty name, "xml" keeps its own namespace and "xmlns" none, and no element carries two
  // attributes of one local name in one namespace.
  static constexpr std::string_view kXmlNamespace = "http://www.w3.org/XML/1998/namespace";

  struct Binding {
    std::string prefix;
    std::string uri;
    std::size_t level;
  };

  // A name without a colon, or a prefix and a local part, neither empty nor holding a colon.
  static bool IsQualifiedName(std::string_view name) {
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos) return true;
    return colon > 0 && colon + 1 < name.size() && name.find(':', colon + 1) == std::string_view::npos;
  }

  bool DeclareNamespaces(const std::vector<std::pair<std::string_view, std::string_view>>& attributes,
                         std::size_t level) {
    for (const auto& [name, value] : attributes) {
      if (!name.starts_with("xmlns:")) continue;
      const std::string_view prefix = name.substr(6);
      const std::string uri = Expand(value);
      if (prefix.empty() || prefix.find(':') != std::string_view::npos || uri.empty() || prefix == "xmlns" ||
          (prefix == "xml") != (uri == kXmlNamespace))
        return false;
      bindings_.push_back({std::string(prefix), uri, level});
    }
    return true;
  }

  void ForgetNamespaces(std::size_t level) {
    while (!bindings_.empty() && bindings_.back().level >= level) bindings_.pop_back();
  }

  // The namespace of a prefixed name, or nothing for a prefix not declared.
  const std::string* NamespaceOf(std::string_view prefix) const {
    static const std::string xml(kXmlNamespace);
    for (auto b = bindings_.rbegin(); b != bindings_.rend(); ++b)
      if (b->prefix == prefix) return &b->uri;
    return prefix == "xml" ? &xml : nullptr;
  }

  bool HasKnownPrefix(std::string_view name, bool attribute) const {
    if (!IsQualifiedName(name)) return false;
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos) return true;
    const std::string_view prefix = name.substr(0, colon);
    if (prefix == "xmlns") return attribute;
    return NamespaceOf(prefix) != nullptr;
  }

  // No name twice, and no two prefixed names of one local name in one namespace. Sorted, so that
  // an element with very many attributes costs no more than its length.
  bool AttributesAreDistinct(const std::vector<std::pair<std::string_view, std::string_view>>& attributes) const {
    std::vector<std::string_view> names;
    std::vector<std::pair<std::string_view, std::string_view>> expanded;  // namespace, local name
    for (const auto& [name, value] : attributes) {
      names.push_back(name);
      if (name != "xmlns" && !HasKnownPrefix(name, true)) return false;
      const std::size_t colon = name.find(':');
      if (colon == std::string_view::npos || name.starts_with("xmlns:")) continue;
      expanded.emplace_back(*NamespaceOf(name.substr(0, colon)), name.substr(colon + 1));
    }
    std::sort(names.begin(), names.end());
    std::sort(expanded.begin(), expanded.end());
    return std::adjacent_find(names.begin(), names.end()) == names.end() &&
           std::adjacent_find(expanded.begin(), expanded.end()) == expanded.end();
  }

  // An attribute value as written, its references replaced (character references as UTF-8).
  static std::string Expand(std::string_view value) {
    std::string out;
    for (std::size_t i = 0; i < value.size(); ++i) {
      if (value[i] != '&') {
        out += value[i];
        continue;
      }
      const std::size_t semicolon = value.find(';', i);
      const std::uint32_t c = ReferenceCharacter(value.substr(i + 1, semicolon - i - 1));
      i = semicolon;
      if (c < 0x80) {
        out += static_cast<char>(c);
      } else {
        const int more = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
        const std::uint32_t lead[] = {0, 0xC0, 0xE0, 0xF0};
        out += static_cast<char>(lead[more] | (c >> (6 * more)));
        for (int k = more - 1; k >= 0; --k) out += static_cast<char>(0x80 | ((c >> (6 * k)) & 0x3F));
      }
    }
    return out;
  }

  XmlTextVerdict ScanEndTag() {
    at_ += 2;
    const std::string_view name = TakeName();
    SkipSpace();
    if (at_ >= text_.size()) return XmlTextVerdict::Unterminated;
    if (name.empty() || text_[at_] != '>' || open_.empty() || open_.back() != name) return XmlTextVerdict::Malformed;
    ForgetNamespaces(open_.size());
    open_.pop_back();
    ++at_;
    return XmlTextVerdict::Acceptable;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::vector<std::string_view> open_;  // names of the elements open at `at_`
  std::vector<Binding> bindings_;       // namespace declarations in scope, innermost last
};

}  // namespace

XmlTextVerdict ScreenXmlText(std::string_view text) {
  if (text.empty()) return XmlTextVerdict::Empty;
  if (std::any_of(text.begin(), text.end(), [](char c) { return IsForbiddenByte(static_cast<unsigned char>(c)); }))
    return XmlTextVerdict::BadCharacter;
  if (kNarrowIsUtf8) {
    for (std::size_t at = 0; at < text.size();)
      if (!IsXmlChar(DecodeUtf8(text, at))) return XmlTextVerdict::BadCharacter;
  }
  return Scanner(text).Run();
}

}  // namespace orv
