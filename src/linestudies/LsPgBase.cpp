#include "linestudies/LsPgBase.h"

#include <cctype>

namespace {

// A list longer than this is a broken document, not a study: the rest is passed over so that a
// hostile list can't make the page hold millions of points.
constexpr std::size_t kMaxPoints = 4096;
constexpr std::size_t kMaxSnapEntries = 64;

bool EqualsNoCase(const std::string& text, const char* word) {
  std::size_t i = 0;
  for (; word[i]; ++i) {
    if (i >= text.size()) return false;
    if (std::tolower(static_cast<unsigned char>(text[i])) != std::tolower(static_cast<unsigned char>(word[i])))
      return false;
  }
  return i == text.size();
}

}  // namespace

bool CLsPgBase::Load(XmlNode propertyPage) {
  XmlNode study = XmlFindNode(propertyPage, "CLineStudy", true);
  if (!study) return false;
  XmlNode list = XmlFindNode(study, "LS_CtrlPtList", true);
  if (!list) return false;
  // The points are appended: a page loaded twice (its name twice in the sheet) holds the first
  // element's points and then the second's.
  for (XmlNode child = XmlFirstChild(list); child && points_.size() < kMaxPoints; child = XmlNextSibling(child)) {
    if (!LsIsElement(child)) continue;
    CXYCoord point;
    point.Load(child);
    points_.push_back(std::move(point));
  }
  std::int32_t lock = 0;
  hasPosLock_ = static_cast<bool>(XmlGetChildValue(study, "PosLock", lock)) || hasPosLock_;
  posLock_ = lock != 0;
  return true;
}

bool CLsPgBase::LoadWithMaxPos(XmlNode propertyPage) {
  XmlGetChildValue(propertyPage, "MaxPos", maxPos_);
  return CLsPgBase::Load(propertyPage);
}

void CLsPgBase::Save(XmlNode parent) {
  XmlNode study = XmlAddChild(parent, "CLineStudy");
  XmlAddValueChild(study, "PosLock", posLock_ ? 1 : 0, XmlValueKind::Bool);
  XmlNode list = XmlAddChild(study, "LS_CtrlPtList");
  for (const CXYCoord& point : points_) point.Save(list);
}

CXYCoord& CLsPgBase::Point(int index) {
  const std::size_t at = index < 0 ? 0 : static_cast<std::size_t>(index);
  if (at >= points_.size()) points_.resize(at + 1);
  return points_[at];
}

void CLsPgBase::LoadSnapEntries(XmlNode propertyPage) {
  XmlNode list = XmlFindNode(propertyPage, "SnapEntryList", true);
  if (!list) return;
  // Appended like the points: a second load adds its entries behind the first's.
  for (XmlNode entry = XmlFindChild(list, "SnapEntry"); entry && snapEntries_.size() < kMaxSnapEntries;
       entry = XmlFindNode(XmlNextSibling(entry), "SnapEntry", false)) {
    std::string text;
    XmlGetNodeText(entry, text);
    std::int32_t index = -1;
    if (!XmlParseValue(text, index) || index < 0 || static_cast<std::size_t>(index) >= kSnapTable.size()) continue;
    snapEntries_.push_back(kSnapTable[static_cast<std::size_t>(index)]);
  }
}

void CLsPgBase::LoadVertexButtons(XmlNode propertyPage) {
  std::string show = "No";
  XmlGetAttr(XmlFindChild(propertyPage, "VertexButtons"), "Show", show);
  if (EqualsNoCase(show, "No")) HideVertexButtons();
}

int CLsPgBase::SnapRowOf(std::int32_t code) const {
  for (std::size_t row = 0; row < snapEntries_.size(); ++row) {
    if (snapEntries_[row].code == code) return static_cast<int>(row);
  }
  return -1;
}
