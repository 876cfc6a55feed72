#include "linestudies/XYCoord.h"

#include <cctype>
#include <cmath>
#include <cstdlib>

XmlNode LsGetChildDouble(XmlNode parent, const char* name, double& value) {
  std::string text;
  XmlNode child = XmlGetChildText(parent, name, text);
  if (!child) return child;
  const char* begin = text.c_str();
  while (*begin == ' ' || *begin == '\t' || *begin == '\r' || *begin == '\n') ++begin;
  if (*begin == '\0') return child;
  char* end = nullptr;
  const double parsed = std::strtod(begin, &end);
  if (end == begin) return child;
  while (*end == ' ' || *end == '\t' || *end == '\r' || *end == '\n') ++end;
  // The whole text must be the number, and a finite one: "inf" or "1e999" from the host is no price.
  if (*end != '\0' || !std::isfinite(parsed)) return child;
  value = parsed;
  return child;
}

bool LsIsElement(XmlNode node) {
  if (!node || XmlIsTextNode(node)) return false;
  // The layer names no node types; an element's markup starts with its name.
  const std::string markup = XmlGetXml(node);
  return markup.size() > 1 && markup[0] == '<' && markup[1] != '!' && markup[1] != '?';
}

void CXYCoord::Load(XmlNode element) {
  XmlGetChildValue(element, "XY_xPos", xPos);
  LsGetChildDouble(element, "XY_yValue", yValue);
  XmlGetChildValue(element, "XY_lDate", lDate);
  XmlGetChildValue(element, "XY_lTime", lTime);
  XmlGetChildValue(element, "XY_lSec", lSec);
  XmlGetChildValue(element, "XY_lSnap", lSnap);
}

void CXYCoord::Save(XmlNode parent) const {
  XmlNode element = XmlAddChild(parent, "CXYCoord");
  XmlAddValueChild(element, "XY_xPos", xPos);
  XmlAddDoubleChild(element, "XY_yValue", yValue);
  XmlAddValueChild(element, "XY_lDate", lDate);
  XmlAddValueChild(element, "XY_lTime", lTime);
  XmlAddValueChild(element, "XY_lSec", lSec);
  XmlAddValueChild(element, "XY_lSnap", lSnap);
}
