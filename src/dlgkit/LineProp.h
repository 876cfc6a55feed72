#pragma once
// CLineProp: how one line is drawn (name, colour, style, weight, flags), with its two XML forms
// and the style and weight choices every page that edits a line offers.
//
// The attribute form, on one element: Name, Color, Weight, Style, Flags (the chart draw page's
// "LP" entries, the graph object line page's "Line" elements). The element form, the line tabs'
// "LineProp": LineName, LineVis, LineColor, LineWeight, LineStyle, LineFlag as child elements.

#include <cstdint>
#include <span>

#include "dlgkit/Controls.h"
#include "dlgkit/StrHash.h"
#include "xml/Xml.h"

class CLineProp {
 public:
  CLineProp() = default;
  CLineProp(const CLineProp&) = default;
  CLineProp& operator=(const CLineProp&) = default;
  virtual ~CLineProp() = default;

  CString Name;             // the attribute form writes it as Name
  std::uint32_t Color = 0;  // COLORREF, red in the low byte
  std::int32_t Style = 0;
  std::int32_t Weight = 1;
  // Set on construction, so a line is visible by default. The attribute form never reads or
  // writes it; the element form carries it as LineVis.
  std::uint8_t Set = 1;
  std::uint32_t Flags = 0;  // bit 2: the line has no style; bit 4: no weight
};

// The attribute form. The reader reads the attributes present into `line` (Name, Color, Weight,
// Style, Flags); absent ones keep its values. The writer sets all five on `element`.
void ReadLinePropAttrs(XmlNode element, CLineProp& line);
void WriteLinePropAttrs(XmlNode element, const CLineProp& line);

// The element form. The reader reads the children of `lineProp` that are there; the writer
// appends them in the order LineName, LineVis (Boolean), LineColor (colour), LineWeight,
// LineStyle, LineFlag.
void ReadLinePropElements(XmlNode lineProp, CLineProp& line);
void WriteLinePropElements(XmlNode lineProp, const CLineProp& line);

namespace orv {

// One choice of a style or weight box: its text and the value it stands for.
struct LineChoice {
  const char* text;
  std::int32_t value;
};

// "Solid _________" 0 ... "Dash Dot Dot -..-..-.." 4, and "Thin" 1, "Medium" 2, "Thick" 3.
std::span<const LineChoice> LineStyleChoices();
std::span<const LineChoice> LineWeightChoices();

// Fills combo box `id` with `choices`, each with its value as the item's data.
void FillLineChoices(Controls& controls, int id, std::span<const LineChoice> choices);

// Bits of CLineProp::Flags that take a line's style box and weight box away.
inline constexpr std::uint32_t kLineFlagNoStyle = 2;
inline constexpr std::uint32_t kLineFlagNoWeight = 4;

}  // namespace orv
