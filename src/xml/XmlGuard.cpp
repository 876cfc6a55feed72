#include "xml/XmlGuard.h"

#include <algorithm>
#include <cstdint>

namespace orv {
namespace {

bool IsForbiddenByte(unsigned char c) { return c < 0x20 && c != '\t' && c != '\n' && c != '\r'; }

bool IsXmlChar(std::uint32_t c) {
  return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFFFD) ||
         (c >= 0x10000 && c <= 0x10FFFF);
}

// Checks the reference that starts with '&' at `at`; on success `at` moves past its ';'.
bool SkipReference(std::string_view text, std::size_t& at) {
  const std::size_t semicolon = text.find(';', at + 1);
  if (semicolon == std::string_view::npos) return false;
  const std::string_view body = text.substr(at + 1, semicolon - at - 1);
  bool ok = false;
  if (body.size() >= 2 && body[0] == '#') {
    const bool hex = body[1] == 'x';
    const std::string_view digits = body.substr(hex ? 2 : 1);
    std::uint32_t value = 0;
    ok = !digits.empty() && digits.size() <= 8;
    for (char d : digits) {
      if (!ok) break;
      int v = -1;
      if (d >= '0' && d <= '9') v = d - '0';
      else if (hex && d >= 'a' && d <= 'f') v = d - 'a' + 10;
      else if (hex && d >= 'A' && d <= 'F') v = d - 'A' + 10;
      ok = v >= 0;
      value = value * (hex ? 16 : 10) + static_cast<std::uint32_t>(std::max(v, 0));
    }
    ok = ok && IsXmlChar(value);
  } else {
    ok = body == "lt" || body == "gt" || body == "amp" || body == "apos" || body == "quot";
  }
  if (ok) at = semicolon + 1;
  return ok;
}

}  // namespace

XmlTextVerdict ScreenXmlText(std::string_view text) {
  if (text.empty()) return XmlTextVerdict::Empty;
  if (std::any_of(text.begin(), text.end(), [](char c) { return IsForbiddenByte(static_cast<unsigned char>(c)); }))
    return XmlTextVerdict::BadCharacter;

  // Skips to just past `terminator`, searching from `from`; false when it never comes.
  auto skipPast = [&](std::size_t& at, std::size_t from, std::string_view terminator) {
    const std::size_t end = text.find(terminator, from);
    if (end == std::string_view::npos) return false;
    at = end + terminator.size();
    return true;
  };

  int depth = 0;
  std::size_t i = 0;
  const std::size_t n = text.size();
  while (i < n) {
    const char c = text[i];
    if (c == '&') {
      if (!SkipReference(text, i)) return XmlTextVerdict::BadReference;
      continue;
    }
    if (c != '<') {
      ++i;
      continue;
    }
    const std::string_view rest = text.substr(i);
    if (rest.starts_with("<!--")) {
      if (!skipPast(i, i + 4, "-->")) return XmlTextVerdict::Unterminated;
    } else if (rest.starts_with("<![CDATA[")) {
      if (!skipPast(i, i + 9, "]]>")) return XmlTextVerdict::Unterminated;
    } else if (rest.starts_with("<!")) {
      return XmlTextVerdict::MarkupDeclaration;
    } else if (rest.starts_with("<?")) {
      if (!skipPast(i, i + 2, "?>")) return XmlTextVerdict::Unterminated;
    } else if (rest.starts_with("</")) {
      if (!skipPast(i, i + 2, ">")) return XmlTextVerdict::Unterminated;
      depth = std::max(depth - 1, 0);  // a stray end tag is the parser's to refuse
    } else {
      // A start tag: runs to the first '>' outside a quoted attribute value.
      std::size_t j = i + 1;
      char quote = 0;
      while (j < n) {
        const char t = text[j];
        if (quote != 0) {
          if (t == quote) {
            quote = 0;
          } else if (t == '&') {
            if (!SkipReference(text, j)) return XmlTextVerdict::BadReference;
            continue;
          }
        } else if (t == '"' || t == '\'') {
          quote = t;
        } else if (t == '>') {
          break;
        }
        ++j;
      }
      if (j >= n) return XmlTextVerdict::Unterminated;
      const bool selfClosing = text[j - 1] == '/' && quote == 0 && j - 1 > i;
      if (!selfClosing && ++depth > kXmlMaxDepth) return XmlTextVerdict::TooDeep;
      i = j + 1;
    }
  }
  return XmlTextVerdict::Acceptable;
}

}  // namespace orv
