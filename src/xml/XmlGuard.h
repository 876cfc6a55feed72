#pragma once
// The guard at the door of XmlLoadString: one portable scan of the text, so that both DOM
// backends refuse the same texts. MSXML under Wine ignores ProhibitDTD, and pugixml is lax (it
// takes a bare '&', references to control characters, a malformed XML declaration, '<' in an
// attribute value, "--" in a comment ...), so neither parser is trusted with these checks: the
// guard holds every text to the XML 1.0 grammar of a document without a DTD.

#include <string_view>

namespace orv {

// Deepest element nesting that is loaded; the root element is depth 1.
inline constexpr int kXmlMaxDepth = 256;

enum class XmlTextVerdict {
  Acceptable,
  Empty,
  MarkupDeclaration,  // <!DOCTYPE, <!ENTITY, ...: anything after "<!" but a comment or CDATA
  TooDeep,            // elements nested deeper than kXmlMaxDepth
  BadCharacter,       // NUL or another control character XML does not allow
  BadReference,       // '&' that starts no reference, "&name;" other than the five predefined, or a
                      // character reference to no XML character
  Unterminated,       // a comment, CDATA section, processing instruction, tag or element that never ends
  Malformed,          // anything else the grammar refuses: the declaration's form and place, names,
                      // attribute syntax and repeats, end tags that match no start tag, "--" in a
                      // comment, "]]>" in text, content outside the one root element
};

// Names are checked by the XML name rules. Natively the text is UTF-8: it is decoded, a byte
// sequence that is no UTF-8 character is a BadCharacter, and non-ASCII characters are held to the
// rules too. On Windows the text is in the ANSI code page: the rules are applied to ASCII, and
// every byte from 0x80 up counts as a name character (MSXML judges those itself).
XmlTextVerdict ScreenXmlText(std::string_view text);

}  // namespace orv
