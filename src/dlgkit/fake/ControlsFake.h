#pragma once
// FakeControls: one dialog's controls in memory, for tests. A test adds the controls a dialog
// template would have, plays user input on them (typing, clicks, selections) and reads what
// the page did: texts, checks, visibility, beeps, focus, message boxes, sheet calls.
//
// Like the real controls, user input produces the notifications a page receives (EN_CHANGE,
// BN_CLICKED, CBN_SELCHANGE, LBN_SELCHANGE, LVN_ITEMCHANGED), and so do the programmatic
// changes that produce them on the platform: setting an edit's text sends EN_CHANGE, setting a
// list view item's check state sends LVN_ITEMCHANGED; CheckDlgButton and CB_SETCURSEL send nothing.
//
// Playing input on a control that a user couldn't reach (absent, hidden, disabled, wrong kind)
// throws std::logic_error: the test is wrong, or the page is.

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "dlgkit/Controls.h"
#include "dlgkit/FontInfo.h"

namespace orv {

class Page;

// A check box holds the indeterminate state too when it is threeState (AUTO3STATE).
enum class FakeControlKind {
  Static,
  Edit,
  PushButton,
  CheckBox,
  RadioButton,
  ComboBox,
  ListBox,
  ListView,
  UpDown,
  DatePicker,
  GroupBox
};

struct FakeRect {
  int left = 0, top = 0, right = 0, bottom = 0;
  friend bool operator==(const FakeRect&, const FakeRect&) = default;
};

struct FakeListItem {
  std::string text;
  std::intptr_t data = 0;
  bool selected = false;  // list boxes of several selections
};

struct FakeListViewRow {
  std::vector<std::string> texts;  // [0] the item, then the sub-items
  bool checked = false;
  bool selected = false;
};

struct FakeControl {
  FakeControlKind kind = FakeControlKind::Static;
  std::string text;
  std::size_t textLimit = 0;  // edits: what the user may enter at most (EM_LIMITTEXT); 0: no limit
  int check = kBstUnchecked;
  int radioGroup = 0;        // radio buttons with the same group exclude each other
  bool threeState = false;   // a check box that goes checked, indeterminate, unchecked
  bool automatic = true;     // a check box or radio button that checks itself when clicked
  bool readOnly = false;     // an edit the user can't type into
  bool digitsOnly = false;   // an edit that takes digits only
  bool multiSelect = false;  // a list box of several selections (LBS_MULTIPLESEL)
  bool visible = true;
  bool enabled = true;
  FakeRect rect;
  std::vector<FakeListItem> items;  // combo and list boxes
  int curSel = -1;
  std::vector<std::string> columns;  // list views
  std::vector<FakeListViewRow> rows;
  std::uint32_t listViewExStyle = 0;    // list views: LVS_EX_*
  int lower = 0, upper = 100, pos = 0;  // up-downs
  std::optional<DateTime> date;         // date pickers
};

struct FakeMessageBox {
  std::string text;
  std::string caption;
  unsigned flags = 0;
};

// A font dialog's font and colour: what it started from, or the user's choice.
struct FakeFontDialog {
  LogFont font;
  std::uint32_t color = 0;
};

class FakeControls final : public Controls {
 public:
  FakeControls() = default;
  FakeControls(const FakeControls&) = delete;
  FakeControls& operator=(const FakeControls&) = delete;

  // --- building the dialog (what the template would hold) ---
  FakeControls& Add(int id, FakeControlKind kind, std::string text = {});
  FakeControls& AddRadio(int id, int group, std::string text = {});
  FakeControl& Control(int id);  // throws std::logic_error when absent
  const FakeControl& Control(int id) const;

  // --- the page that receives notifications (none: they are dropped) ---
  void AttachPage(Page* page) { page_ = page; }

  // --- playing user input ---
  // Replaces the text, as far as the box's limit lets the user enter it; EN_CHANGE.
  void TypeText(int id, std::string_view text);
  // Push button, check box (toggles; a three-state box goes unchecked, checked, indeterminate
  // and round again, as the platform's does), radio; BN_CLICKED.
  void Click(int id);
  void SelectComboItem(int id, int index);  // CBN_SELCHANGE
  void SelectListItem(int id, int index);   // LBN_SELCHANGE
  // A click on a row of a list box of several selections: the row's selection toggles and the
  // caret moves there; LBN_SELCHANGE.
  void ToggleListItem(int id, int index);
  void ClickListViewCheck(int id, int item);             // toggles the check; LVN_ITEMCHANGED
  void PickDate(int id, std::optional<DateTime> value);  // DTN_DATETIMECHANGE (typed in the field)
  // Picks a day in the drop-down calendar: DTN_DATETIMECHANGE, then DTN_CLOSEUP.
  void PickDateFromCalendar(int id, DateTime value);
  // Presses an up-down's arrow: UDN_DELTAPOS with `delta` (+1 up, -1 down). Unless the page
  // answers non-zero, the position then moves by delta within the range, as the control's would.
  void ClickSpin(int id, int delta);

  // --- what the page did ---
  const std::vector<unsigned>& Beeps() const { return beeps_; }
  const std::vector<int>& FocusHistory() const { return focusHistory_; }
  const std::vector<FakeMessageBox>& MessageBoxes() const { return messageBoxes_; }
  // The next message box gets this answer; without one queued a box answers with its first
  // button (as Enter would).
  void AnswerNextMessageBox(int result) { answers_.push_back(result); }
  bool IsSheetChanged() const { return sheetChanged_; }
  void ClearSheetChanged() { sheetChanged_ = false; }
  int SheetChangedCalls() const { return sheetChangedCalls_; }
  int SheetUnchangedCalls() const { return sheetUnchangedCalls_; }
  const std::vector<int>& PageApplySent() const { return pageApplySent_; }
  // Who answers kWmLsPageApply (the sheet); without one the answer is 0.
  void SetPageApplyHandler(std::function<std::intptr_t(int dialogId)> handler) { applyHandler_ = std::move(handler); }
  // Who hears PSM_SETWIZBUTTONS (the wizard: its buttons are the sheet's, not a page's).
  void SetWizardButtonsHandler(std::function<void(unsigned flags)> handler) { wizardHandler_ = std::move(handler); }
  // RunModalDialog hands the dialog to this handler (a test that opens and drives it, e.g. on
  // template controls of its own) and gives its answer; without one it is -1.
  void SetModalDialogHandler(std::function<std::intptr_t(Page& dialog)> handler) {
    dialogHandler_ = std::move(handler);
  }
  const std::vector<std::pair<std::string, int>>& HelpRequests() const { return helpRequests_; }
  // The font dialog: each request (the font and colour it started from) is recorded; it answers
  // with the next queued choice (OK), or as Cancel when none is queued.
  void AnswerNextFontDialog(const LogFont& font, std::uint32_t color) { fontAnswers_.push_back({font, color}); }
  const std::vector<FakeFontDialog>& FontDialogs() const { return fontDialogs_; }

  // --- Controls ---
  std::string GetDlgItemTextA(int id, std::size_t bufferSize) override;
  bool SetDlgItemTextA(int id, std::string_view text) override;
  unsigned GetDlgItemInt(int id, bool* translated, bool isSigned) override;
  bool SetDlgItemInt(int id, unsigned value, bool isSigned) override;
  bool LimitDlgItemText(int id, std::size_t maxChars) override;
  int IsDlgButtonChecked(int id) override;
  bool CheckDlgButton(int id, int state) override;
  bool HasDlgItem(int id) override;
  bool ShowDlgItem(int id, bool show) override;
  bool IsDlgItemVisible(int id) override;
  bool EnableDlgItem(int id, bool enable) override;
  bool IsDlgItemEnabled(int id) override;
  bool MoveDlgItemTo(int id, int placeId) override;
  bool ComboResetContent(int id) override;
  int ComboAddString(int id, std::string_view text, std::intptr_t itemData) override;
  int ComboGetCount(int id) override;
  int ComboGetCurSel(int id) override;
  bool ComboSetCurSel(int id, int index) override;
  std::intptr_t ComboGetItemData(int id, int index) override;
  std::string ComboGetLBText(int id, int index) override;
  int ComboFindItemData(int id, std::intptr_t itemData) override;
  bool ListResetContent(int id) override;
  int ListAddString(int id, std::string_view text, std::intptr_t itemData) override;
  int ListGetCount(int id) override;
  int ListGetCurSel(int id) override;
  bool ListSetCurSel(int id, int index) override;
  std::intptr_t ListGetItemData(int id, int index) override;
  std::string ListGetText(int id, int index) override;
  int ListFindItemData(int id, std::intptr_t itemData) override;
  bool ListSetSel(int id, int index, bool select) override;
  bool ListGetSel(int id, int index) override;
  std::vector<int> ListGetSelItems(int id) override;
  bool ListViewInsertColumn(int id, int column, std::string_view heading, int width) override;
  bool ListViewDeleteAllItems(int id) override;
  int ListViewInsertItem(int id, int index, std::string_view text) override;
  int ListViewGetItemCount(int id) override;
  std::string ListViewGetItemText(int id, int item, int subItem) override;
  bool ListViewSetItemText(int id, int item, int subItem, std::string_view text) override;
  bool ListViewGetCheckState(int id, int item) override;
  bool ListViewSetCheckState(int id, int item, bool checked) override;
  int ListViewGetSelectedItem(int id) override;
  bool ListViewSelectItem(int id, int item) override;
  bool UpDownSetRange(int id, int lower, int upper) override;
  int UpDownGetPos(int id) override;
  bool UpDownSetPos(int id, int pos) override;
  std::optional<DateTime> DateTimeGetSystemTime(int id) override;
  bool DateTimeSetSystemTime(int id, const DateTime& value) override;
  bool SetFocus(int id) override;
  int GetFocus() override { return focus_; }
  void MessageBeep(unsigned type) override { beeps_.push_back(type); }
  int OrvMessageBox(std::string_view text, std::string_view caption, unsigned flags) override;
  void ShowHelp(std::string_view book, int topic) override { helpRequests_.emplace_back(std::string(book), topic); }
  bool ChooseFontA(LogFont& font, std::uint32_t& color) override;
  void SheetChanged() override;
  void SheetUnchanged() override;
  std::intptr_t SendPageApply(int dialogId) override;
  bool ListViewSetExtendedStyle(int id, std::uint32_t style) override;
  std::intptr_t RunModalDialog(Page& dialog) override { return dialogHandler_ ? dialogHandler_(dialog) : -1; }
  void SetWizardButtons(unsigned flags) override {
    if (wizardHandler_) wizardHandler_(flags);
  }

 private:
  FakeControl* Find(int id);
  FakeControl* FindKind(int id, FakeControlKind kind);
  FakeControl& Reachable(int id, const char* action);
  std::vector<FakeListItem>* Items(int id, FakeControlKind kind);
  bool ResetItems(int id, FakeControlKind kind);
  int AddItem(int id, FakeControlKind kind, std::string_view text, std::intptr_t itemData);
  int ItemCount(int id, FakeControlKind kind);
  int CurSel(int id, FakeControlKind kind);
  bool SetCurSel(int id, FakeControlKind kind, int index);
  const FakeListItem* Item(int id, FakeControlKind kind, int index);
  int FindItemData(int id, FakeControlKind kind, std::intptr_t itemData);
  void Command(int id, int code);
  void NotifyItemChanged(int id, int item, const FakeListViewRow& before, const FakeListViewRow& after);

  std::map<int, FakeControl> controls_;
  Page* page_ = nullptr;
  int focus_ = 0;
  std::vector<unsigned> beeps_;
  std::vector<int> focusHistory_;
  std::vector<FakeMessageBox> messageBoxes_;
  std::deque<int> answers_;
  std::deque<FakeFontDialog> fontAnswers_;
  std::vector<FakeFontDialog> fontDialogs_;
  bool sheetChanged_ = false;
  int sheetChangedCalls_ = 0;
  int sheetUnchangedCalls_ = 0;
  std::vector<int> pageApplySent_;
  std::function<std::intptr_t(int)> applyHandler_;
  std::function<void(unsigned)> wizardHandler_;
  std::function<std::intptr_t(Page&)> dialogHandler_;
  std::vector<std::pair<std::string, int>> helpRequests_;
};

// The first button of a message box with these flags: what Enter presses by default.
int FirstMessageBoxButton(unsigned flags);

}  // namespace orv
