#pragma once
// What the program takes from the host's documents: the prompts of the user's language
// ("LANGUAGE") and the colour table of the preferences ("PREFS"). Both go through the current
// host's settings service, made at each call and dropped after it.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dlgkit/ThemedControls.h"  // kNoColor

namespace orv {

// The text the user sees for `tag`: the host's prompt
//   //Language/Prompts/Prompt[@Tag="<tag>"]
// of document "LANGUAGE" when it has one with a length above 0, else the tag itself. Without a
// settings service the tag itself. The tag ends at its first NUL. A tag holding a double quote
// is quoted with single quotes in the XPath; one holding both kinds of quote can't be written
// as an XPath literal and is its own text, without asking the host. A failed call raises
// XmlComError.
std::string GetPrompt(std::string_view tag);

// One colour of the host's colour table: the list shows an empty first column, the tag in the
// second and a swatch of the colour.
struct ColorTableItem {
  std::string tag;      // the element's ThemeTag attribute; empty when it has none
  std::uint32_t color;  // COLORREF, red in the low byte; 0xFF000000 (no colour) when unreadable
};

// Appends the colours of //General/ColorTable in document "PREFS" to `list`, in document
// order: each child element named exactly "Color" is one item, anything else is passed over.
// A document without the table adds nothing. Without a settings service raises XmlComError
// with kStatusPointer; a failed call raises its status.
void LoadColorTable(std::vector<ColorTableItem>& list);

}  // namespace orv
