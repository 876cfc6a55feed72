#pragma once
// CLsPgPosition: the dialog side that the Day and Intra position pages share: the vertex radio
// buttons, the value box, the lock box and the snap box, the updating guard, vertex changes,
// validation on leaving and the apply message. CLsPgDayPosition and CLsPgIntraPosition add what
// differs (a date picker, or a bar position with its date, time and tick); the templates
// CLsPgDayBase<id> and CLsPgIntraBase<id> give them their dialog id.

#include <cstdint>
#include <string>

#include "dlgkit/ThemedPage.h"
#include "linestudies/LineStudiesRes.h"
#include "linestudies/LsPgBase.h"

class CLsPgPosition : public orv::ThemedPage<CLsPgPosition>, public CLsPgBase {
 public:
  static constexpr int kFirstVertexButton = IDC_LS_VERTEX_0;
  static constexpr int kLastVertexButton = IDC_LS_VERTEX_5;
  // Hiding the vertex buttons hides the first five; a sixth stays as its template has it.
  static constexpr int kLastHiddenVertexButton = IDC_LS_VERTEX_4;

  // LineStudyPage
  orv::Page& AsPage() override { return *this; }
  void BindWindow(orv::Controls& controls, orv::WindowHandle window) override { RebindWindow(controls, window); }
  bool InitFurtherWindow() override { return OnInit(); }
  void ReloadWindow() override;

  // Page
  void OnCommand(int id, int code) override;
  bool OnNotify(int id, int code, const void* payload, std::intptr_t& result) override;
  bool OnKillActive() override { return ValidatePage(); }
  orv::ApplyResult OnApply() override;

  // The dialog side's operations. A controlId of -1 means every control.
  virtual bool OnInit();
  virtual void SetModified(bool flag);
  virtual void OnVertexChange(int index);
  virtual bool Exchange(bool save, int controlId) = 0;
  virtual bool ExchangeExtra(bool save, int controlId) = 0;
  // Takes the price of the vertex's bar when its snap code asks for one and the chart has it.
  void SnapToPrice(int vertex);
  // Saves every control into the current vertex; false (with the focus on the culprit) keeps
  // the user on the page.
  bool ValidatePage();

  int ValueId() const { return valueId_; }
  int SnapId() const { return snapId_; }

 protected:
  CLsPgPosition() = default;

  bool OnInitPage() final { return OnInit(); }
  // The bar of a vertex for snapping; negative when there is none.
  virtual std::int32_t SnapPosition(const CXYCoord& point) = 0;
  // The common part of OnInit that differs between Day and Intra.
  virtual void InitPositionControls() {}
  // Called before the controls are first loaded, after snapping (the horizontal line's mean).
  virtual void BeforeControlsLoaded() {}
  // After the snap box's choice is saved.
  virtual void OnSnapChanged() {}
  // Commands from a page's own controls; the base marks a change for nothing else.
  virtual void OnPageCommand(int id, int code) {}
  // Visibility and enabling from the state; pages add theirs after calling this.
  virtual void UpdateControls();

  // Loads the controls of the current vertex with updating set; updating is cleared only when
  // both exchanges succeed.
  bool LoadControls();
  void FillSnapBox();
  bool ExchangeValue(bool save, int controlId);
  void ExchangeLock(bool save, int controlId);
  void LoadVertexRadios();
  // The snap box and lSnap of the current vertex.
  bool ExchangeSnap(bool save, int controlId);
  // A check box holding 0, 1 or 2; on load another value is taken as 0.
  void ExchangeCheckField(int boxId, std::int32_t& field, bool save, int controlId);
  // A text field kept as text, read through a buffer of `bufferSize` characters; the box shows
  // and takes at most what that buffer reads back (see LimitTextField).
  void ExchangeTextField(int boxId, std::string& field, std::size_t bufferSize, bool save, int controlId);
  // Runs the hooks of a successful saving exchange.
  void ValuesSaved();
  // Lets the user enter no more into a text field's box than its buffer reads back.
  void LimitTextField(int boxId, std::size_t bufferSize) {
    if (boxId && bufferSize) Ctl().LimitDlgItemText(boxId, bufferSize - 1);
  }
  static bool Covers(int controlId, int id) { return controlId == -1 || controlId == id; }

  int valueId_ = 0;           // 0: the page has no value box
  int snapId_ = 0;            // 0: the page has no snap box
  bool bestFitRule_ = false;  // the snap box is off on vertex 1 when vertex 0 snaps by best fit
};

// The Day form: a vertex placed by calendar date through date picker 1465.
class CLsPgDayPosition : public CLsPgPosition {
 public:
  static constexpr const char* kHolidayText = "Holiday or other invalid date:\n%s\nPlease Re-enter";

  bool Exchange(bool save, int controlId) override;
  bool ExchangeExtra(bool save, int controlId) override;
  // The holiday message for the date picker, a beep and the focus for any other control.
  void OnExchangeFailed(int controlId, bool flag) override;
  // A date with a bar of its own on the chart; always false without chart data.
  bool DateOk(std::int32_t date, bool save);
  // The base load of a Day page: CLineStudy, its points and PosLock.
  bool LoadPoints(XmlNode propertyPage) { return CLsPgBase::Load(propertyPage); }

 protected:
  CLsPgDayPosition() { valueId_ = IDC_LS_DAY_VALUE; }
  std::int32_t SnapPosition(const CXYCoord& point) override;
  bool ExchangeDate(bool save, int controlId);
};

// The Intra form: a vertex placed by bar position (spin 1508), with its date, time and tick shown.
class CLsPgIntraPosition : public CLsPgPosition {
 public:
  bool Exchange(bool save, int controlId) override;
  bool ExchangeExtra(bool save, int controlId) override { return true; }
  bool OnNotify(int id, int code, const void* payload, std::intptr_t& result) override;
  // 1: intraday with seconds; 2 without chart data.
  virtual std::int32_t GetTimeKind();
  // The date, time and tick texts of the current vertex's bar, from the chart.
  virtual void UpdatePosText(bool save);
  // UDN_DELTAPOS of the spin: save, move the bar, reload.
  void OnSpin(int delta);
  // The base load of an Intra page: MaxPos, then CLineStudy, its points and PosLock.
  bool LoadPoints(XmlNode propertyPage) { return LoadWithMaxPos(propertyPage); }

 protected:
  CLsPgIntraPosition() { valueId_ = IDC_LS_INTRA_VALUE; }
  void InitPositionControls() override;
  std::int32_t SnapPosition(const CXYCoord& point) override { return point.xPos; }
};

// The position page templates: the dialog id is the page's template, help topic and apply code.
template <int id>
class CLsPgDayBase : public CLsPgDayPosition {
 public:
  static constexpr int kDialogId = id;
  int DialogId() const override { return id; }
};

template <int id>
class CLsPgIntraBase : public CLsPgIntraPosition {
 public:
  static constexpr int kDialogId = id;
  int DialogId() const override { return id; }
};
