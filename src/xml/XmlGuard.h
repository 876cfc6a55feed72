#pragma once
// The guard at the door of XmlLoadString: one portable pre-scan of the text, so that both DOM
// backends refuse the same texts. MSXML under Wine ignores ProhibitDTD and pugixml would keep
// unknown entities as text, so neither parser is trusted with these checks.

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
  BadReference,       // "&name;" other than the five predefined, or a character reference to no character
  Unterminated,       // a comment, CDATA section, processing instruction or tag that never ends
};

// Comments, CDATA sections, processing instructions and quoted attribute values are skipped as
// the XML grammar has them. Everything else (well-formedness) is left to the parser.
XmlTextVerdict ScreenXmlText(std::string_view text);

}  // namespace orv
