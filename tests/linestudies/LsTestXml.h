#pragma once
// Pieces of the host's XML for the position pages, written in the form the pages write back
// (values by "%f", Booleans as TRUE/FALSE), so that what goes in can be compared with what comes out.

#include <cstdint>
#include <string>
#include <vector>

#include "xml/StrFormat.h"
#include "xml/Xml.h"

namespace lstest {

struct Pt {
  std::int32_t xPos = -1;
  double yValue = 0.0;
  std::int32_t lDate = 36001;
  std::int32_t lTime = 0;
  std::int32_t lSec = 0;
  std::int32_t lSnap = -1;
};

inline std::string PtXml(const Pt& p) {
  return orv::StrFormat(
      "<CXYCoord><XY_xPos>%d</XY_xPos><XY_yValue>%f</XY_yValue><XY_lDate>%d</XY_lDate><XY_lTime>%d</XY_lTime>"
      "<XY_lSec>%d</XY_lSec><XY_lSnap>%d</XY_lSnap></CXYCoord>",
      p.xPos, p.yValue, p.lDate, p.lTime, p.lSec, p.lSnap);
}

// CLineStudy as the pages write it: PosLock first, then the points.
inline std::string StudyXml(bool posLock, const std::vector<Pt>& points) {
  std::string text = std::string("<CLineStudy><PosLock>") + (posLock ? "TRUE" : "FALSE") + "</PosLock><LS_CtrlPtList>";
  for (const Pt& p : points) text += PtXml(p);
  return text + "</LS_CtrlPtList></CLineStudy>";
}

inline std::string SnapXml(const std::vector<int>& indexes) {
  std::string text = "<SnapEntryList>";
  for (int i : indexes) text += "<SnapEntry>" + std::to_string(i) + "</SnapEntry>";
  return text + "</SnapEntryList>";
}

inline std::string SheetXml(const std::string& pageName, const std::string& content) {
  return "<PropertySheet Name=\"LSPs\" Title=\"Study\"><PropertyPageList><PropertyPage Name=\"" + pageName + "\">" +
         content + "</PropertyPage></PropertyPageList></PropertySheet>";
}

// What the sheet sends for one page.
inline std::string EventXml(const std::string& pageName, const std::string& content) {
  return "<PropertySheet Name=\"LSPs\"><PropertyPageList><PropertyPage Name=\"" + pageName + "\">" + content +
         "</PropertyPage></PropertyPageList></PropertySheet>";
}

inline XmlNode SheetNode(const std::string& text) {
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, text)) return XmlNode();
  return XmlFindNode(document, "PropertySheet", true);
}

inline XmlNode PageNode(const std::string& text) { return XmlFindNode(SheetNode(text), "PropertyPage", true); }

}  // namespace lstest
