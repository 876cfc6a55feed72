#include "dlgkit/LineProp.h"

void ReadLinePropAttrs(XmlNode element, CLineProp& line) {
  XmlGetAttr(element, "Name", line.Name);
  XmlGetAttrValue(element, "Color", line.Color);
  XmlGetAttrValue(element, "Weight", line.Weight);
  XmlGetAttrValue(element, "Style", line.Style);
  XmlGetAttrValue(element, "Flags", line.Flags);
}

void WriteLinePropAttrs(XmlNode element, const CLineProp& line) {
  XmlSetAttr(element, "Name", line.Name);
  XmlSetAttrValue(element, "Color", line.Color);
  XmlSetAttrValue(element, "Weight", line.Weight);
  XmlSetAttrValue(element, "Style", line.Style);
  XmlSetAttrValue(element, "Flags", line.Flags);
}

void ReadLinePropElements(XmlNode lineProp, CLineProp& line) {
  XmlGetChildText(lineProp, "LineName", line.Name);
  std::int32_t visible = line.Set;
  XmlGetChildValue(lineProp, "LineVis", visible);
  line.Set = visible ? 1 : 0;
  XmlGetChildValue(lineProp, "LineColor", line.Color);
  XmlGetChildValue(lineProp, "LineWeight", line.Weight);
  XmlGetChildValue(lineProp, "LineStyle", line.Style);
  XmlGetChildValue(lineProp, "LineFlag", line.Flags);
}

void WriteLinePropElements(XmlNode lineProp, const CLineProp& line) {
  XmlAddTextChild(lineProp, "LineName", line.Name);
  XmlAddValueChild(lineProp, "LineVis", line.Set ? 1 : 0, XmlValueKind::Bool);
  XmlAddValueChild(lineProp, "LineColor", line.Color, XmlValueKind::Color);
  XmlAddValueChild(lineProp, "LineWeight", line.Weight);
  XmlAddValueChild(lineProp, "LineStyle", line.Style);
  XmlAddValueChild(lineProp, "LineFlag", line.Flags);
}

namespace orv {

namespace {

constexpr LineChoice kStyles[] = {{"Solid _________", 0},
                                  {"Dash ---------", 1},
                                  {"Dots .........", 2},
                                  {"Dash Dot -.-.-.-.-.", 3},
                                  {"Dash Dot Dot -..-..-..", 4}};
constexpr LineChoice kWeights[] = {{"Thin", 1}, {"Medium", 2}, {"Thick", 3}};

}  // namespace

std::span<const LineChoice> LineStyleChoices() { return kStyles; }
std::span<const LineChoice> LineWeightChoices() { return kWeights; }

void FillLineChoices(Controls& controls, int id, std::span<const LineChoice> choices) {
  controls.ComboResetContent(id);
  for (const LineChoice& choice : choices) controls.ComboAddString(id, choice.text, choice.value);
}

}  // namespace orv
