#pragma once
// CLsPgBase: what every position page of a drawn study shares, whatever its dialog: the control
// points and their XML, the snap choices the page offers, the vertex shown, the dirty and
// updating flags, the position lock and the chart's values. The dialog side lives in the
// templates CLsPgDayBase<id> (a vertex placed by date) and CLsPgIntraBase<id> (by bar position).
//
// The sheet's PSN_KILLACTIVE and PSN_APPLY reach the page through orv::Page (OnKillActive,
// OnApply); the templates answer them for every study page, so they are not repeated here.

#include <cstdint>
#include <string>
#include <vector>

#include "dlgkit/ChartData.h"
#include "linestudies/LineStudyPage.h"
#include "linestudies/XYCoord.h"
#include "xml/Xml.h"

class CLsPgBase : public orv::LineStudyPage {
 public:
  ~CLsPgBase() override = default;

  bool IsDirty() const override { return dirty_; }
  virtual void SetDirty(bool dirty) { dirty_ = dirty; }
  virtual void HideVertexButtons() { hideVertexButtons_ = true; }
  // A saving exchange failed on `controlId`; the base does nothing.
  virtual void OnExchangeFailed(int controlId, bool flag) {}
  // After a successful saving exchange.
  virtual void OnValuesSaved() {}
  // After OnValuesSaved, and at Apply when the page is dirty.
  virtual void OnBeforeApply() {}

  // Reads CLineStudy (a deep search from the PropertyPage, on through the following pages), its
  // LS_CtrlPtList, whose points are appended to those the page holds, and PosLock. False, with
  // the points as they were, when either element is absent.
  bool Load(XmlNode propertyPage) override;
  // Appends CLineStudy with PosLock and LS_CtrlPtList to `parent` (the page's wrapper element).
  void Save(XmlNode parent) override;
  void SetChartData(orv::ChartDataRef chartData) override { chartData_ = std::move(chartData); }

  // The control point at `index`; an index past the end grows the list with default points
  // (a page may show vertex 1 of an empty list). A negative index is vertex 0.
  CXYCoord& Point(int index);
  std::size_t PointCount() const { return points_.size(); }
  const std::vector<SnapEntry>& SnapEntries() const { return snapEntries_; }
  int CurrentVertex() const { return currentVertex_; }
  bool VertexButtonsHidden() const { return hideVertexButtons_; }
  bool PosLock() const { return posLock_; }
  bool HasPosLock() const { return hasPosLock_; }
  std::int32_t MaxPos() const { return maxPos_; }
  bool IsUpdating() const { return updating_; }
  bool ValueEdited() const { return valueEdited_; }
  const orv::ChartDataRef& Chart() const { return chartData_; }

 protected:
  // The Intra form: MaxPos, a direct child of the PropertyPage, then Load.
  bool LoadWithMaxPos(XmlNode propertyPage);
  // SnapEntryList (deep search): each SnapEntry's text is an index into kSnapTable. An index
  // outside the table is passed over. The entries are appended to those of an earlier load.
  void LoadSnapEntries(XmlNode propertyPage);
  // VertexButtons/@Show, a direct child of the PropertyPage: anything but "No" (any case) shows
  // the radio buttons; no element hides them.
  void LoadVertexButtons(XmlNode propertyPage);
  // The row of the snap entries whose code is `code`, or -1.
  int SnapRowOf(std::int32_t code) const;

  std::vector<CXYCoord> points_;
  std::vector<SnapEntry> snapEntries_;
  bool hideVertexButtons_ = false;
  bool dirty_ = false;
  bool valueEdited_ = false;
  bool updating_ = false;
  bool posLock_ = false;
  bool hasPosLock_ = false;
  int currentVertex_ = 0;
  std::int32_t maxPos_ = 0;
  orv::ChartDataRef chartData_;
};
