#pragma once
// One dialog's controls, by control id: exactly what pages do with them, named after the
// platform's calls and messages (GetDlgItemInt, CB_SETCURSEL, LVM_SETITEMSTATE, PSM_CHANGED...).
// Implementations: win32/ControlsWin32 over GetDlgItem/SendMessageA, fake/ControlsFake in memory.
//
// Conventions shared by every implementation:
// - A control id that the dialog doesn't hold makes a reader return its empty value
//   (empty text, 0, -1 for a selection index, std::nullopt) and a writer return false.
// - Text is narrow, in the thread's code page.
// - Item indexes are 0-based; -1 means "none", as CB_ERR / LB_ERR / LVM_GETNEXTITEM say.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dlgkit/Clock.h"

namespace orv {

struct LogFont;  // dlgkit/FontInfo.h

// Button states of IsDlgButtonChecked / CheckDlgButton.
inline constexpr int kBstUnchecked = 0;
inline constexpr int kBstChecked = 1;
inline constexpr int kBstIndeterminate = 2;

// MessageBeep(-1): the simple beep that data exchange sounds on bad input.
inline constexpr unsigned kBeepSimple = 0xFFFFFFFFu;

// The page-apply message a page sends its sheet: wParam the page's dialog id.
inline constexpr unsigned kWmLsPageApply = 1425;

// List view extended styles (LVS_EX_*).
inline constexpr std::uint32_t kLvsExCheckBoxes = 0x4;
inline constexpr std::uint32_t kLvsExFullRowSelect = 0x20;

class Page;

class Controls {
 public:
  virtual ~Controls() = default;

  // --- text and numbers ---
  // The control's text, cut to bufferSize - 1 characters, as GetDlgItemTextA with a buffer of
  // bufferSize characters would give it (bufferSize 0 gives "").
  virtual std::string GetDlgItemTextA(int id, std::size_t bufferSize) = 0;
  virtual bool SetDlgItemTextA(int id, std::string_view text) = 0;
  // Reads the text (at most 31 characters) as a decimal integer by ParseDlgItemInt below.
  // *translated (may be null) tells success; on failure the result is 0.
  virtual unsigned GetDlgItemInt(int id, bool* translated, bool isSigned) = 0;
  virtual bool SetDlgItemInt(int id, unsigned value, bool isSigned) = 0;
  // EM_LIMITTEXT: the most characters the user can enter into an edit box. Like the platform's,
  // it stops typing and pasting only; text the program sets is not cut.
  virtual bool LimitDlgItemText(int id, std::size_t maxChars) = 0;

  // --- buttons ---
  virtual int IsDlgButtonChecked(int id) = 0;  // kBstUnchecked / kBstChecked / kBstIndeterminate
  // As BM_SETCHECK: a box holds at most what its style allows, so kBstIndeterminate stays only
  // in a three-state box; a two-state box (and a radio) takes it as kBstChecked.
  virtual bool CheckDlgButton(int id, int state) = 0;

  // --- presence, visibility, enabling, placement ---
  virtual bool HasDlgItem(int id) = 0;
  virtual bool ShowDlgItem(int id, bool show) = 0;
  virtual bool IsDlgItemVisible(int id) = 0;
  virtual bool EnableDlgItem(int id, bool enable) = 0;
  virtual bool IsDlgItemEnabled(int id) = 0;
  // Puts control `id` where control `placeId` is (same rectangle); both must exist.
  virtual bool MoveDlgItemTo(int id, int placeId) = 0;

  // --- combo boxes (CB_*) ---
  virtual bool ComboResetContent(int id) = 0;
  // Appends an item with its item data; gives its index, or -1.
  virtual int ComboAddString(int id, std::string_view text, std::intptr_t itemData) = 0;
  virtual int ComboGetCount(int id) = 0;
  virtual int ComboGetCurSel(int id) = 0;
  virtual bool ComboSetCurSel(int id, int index) = 0;             // -1 clears the selection
  virtual std::intptr_t ComboGetItemData(int id, int index) = 0;  // 0 when there is no such item
  virtual std::string ComboGetLBText(int id, int index) = 0;
  // Index of the first item whose item data equals `itemData`, or -1.
  virtual int ComboFindItemData(int id, std::intptr_t itemData) = 0;

  // --- list boxes (LB_*), the same operations ---
  virtual bool ListResetContent(int id) = 0;
  virtual int ListAddString(int id, std::string_view text, std::intptr_t itemData) = 0;
  virtual int ListGetCount(int id) = 0;
  virtual int ListGetCurSel(int id) = 0;
  virtual bool ListSetCurSel(int id, int index) = 0;
  virtual std::intptr_t ListGetItemData(int id, int index) = 0;
  virtual std::string ListGetText(int id, int index) = 0;
  virtual int ListFindItemData(int id, std::intptr_t itemData) = 0;
  // A list box of several selections (LBS_MULTIPLESEL / LBS_EXTENDEDSEL). LB_SETSEL: index -1
  // (de)selects every row; false for a box of one selection or a row that doesn't exist.
  virtual bool ListSetSel(int id, int index, bool select) = 0;
  virtual bool ListGetSel(int id, int index) = 0;  // LB_GETSEL: the row is selected
  // LB_GETSELITEMS: the selected rows in list order; empty for a box of one selection.
  virtual std::vector<int> ListGetSelItems(int id) = 0;

  // --- list views in report mode with check boxes (LVM_*) ---
  virtual bool ListViewInsertColumn(int id, int column, std::string_view heading, int width) = 0;
  virtual bool ListViewDeleteAllItems(int id) = 0;
  // Inserts an item at `index` (clamped to the end); gives its index, or -1.
  virtual int ListViewInsertItem(int id, int index, std::string_view text) = 0;
  virtual int ListViewGetItemCount(int id) = 0;
  virtual std::string ListViewGetItemText(int id, int item, int subItem) = 0;
  virtual bool ListViewSetItemText(int id, int item, int subItem, std::string_view text) = 0;
  virtual bool ListViewGetCheckState(int id, int item) = 0;
  virtual bool ListViewSetCheckState(int id, int item, bool checked) = 0;
  // LVM_SETEXTENDEDLISTVIEWSTYLE with every bit as the mask: check boxes, full-row selection.
  virtual bool ListViewSetExtendedStyle(int id, std::uint32_t style) { return false; }
  virtual int ListViewGetSelectedItem(int id) = 0;        // first selected, or -1
  virtual bool ListViewSelectItem(int id, int item) = 0;  // -1 clears the selection

  // --- up-down controls (UDM_*32) ---
  virtual bool UpDownSetRange(int id, int lower, int upper) = 0;
  virtual int UpDownGetPos(int id) = 0;
  virtual bool UpDownSetPos(int id, int pos) = 0;

  // --- date and time pickers (DTM_GETSYSTEMTIME / DTM_SETSYSTEMTIME) ---
  // std::nullopt when the picker holds no date (GDT_NONE) or isn't there.
  virtual std::optional<DateTime> DateTimeGetSystemTime(int id) = 0;
  virtual bool DateTimeSetSystemTime(int id, const DateTime& value) = 0;

  // --- focus, sound, message box, help ---
  virtual bool SetFocus(int id) = 0;
  virtual int GetFocus() = 0;  // id of the control of this dialog that has the focus, or 0
  virtual void MessageBeep(unsigned type) = 0;
  // The program's message box (OrvMessageBox), owned by this dialog; gives the button pressed.
  virtual int OrvMessageBox(std::string_view text, std::string_view caption, unsigned flags) = 0;
  // The help service: book (e.g. "CHARTX") and topic (the dialog id). Without one, nothing.
  virtual void ShowHelp(std::string_view book, int topic) = 0;
  // The platform's font dialog (ChooseFontA: screen fonts, effects, started from `font`, its
  // colour field from `color`), owned by the dialog. On OK the choice is in `font` and `color`
  // and the answer is true; on Cancel, or when the dialog can't be shown, both stay as they were.
  virtual bool ChooseFontA(LogFont& font, std::uint32_t& color) = 0;

  // --- the sheet around the page ---
  virtual void SheetChanged() = 0;    // PSM_CHANGED: the sheet's Apply button comes on
  virtual void SheetUnchanged() = 0;  // PSM_UNCHANGED
  // Sends kWmLsPageApply with the page's dialog id to the sheet; gives the sheet's answer.
  virtual std::intptr_t SendPageApply(int dialogId) = 0;
  // PSM_SETWIZBUTTONS (posted): PSWIZB_BACK 1, PSWIZB_NEXT 2, PSWIZB_FINISH 4.
  virtual void SetWizardButtons(unsigned flags) = 0;

  // --- a dialog of the kit over this one ---
  // Runs `dialog`, a plain modal dialog made from its template (its DialogId()), owned by this
  // dialog's window, until it ends: kIdOkButton, kIdCancelButton, -1 when it can't be shown.
  // Where no platform dialog can be made (natively) it isn't shown: -1.
  virtual std::intptr_t RunModalDialog(Page& dialog) { return -1; }
};

// The one reading of an integer field, shared by every Controls implementation so that a
// field means the same on every platform: blanks and tabs may surround the number; an optional
// '+' (or '-' when isSigned) and decimal digits, nothing else; the value must fit in int when
// isSigned, in unsigned otherwise. std::nullopt otherwise. The text ends at its first NUL.
std::optional<unsigned> ParseDlgItemInt(std::string_view text, bool isSigned);

// The text SetDlgItemInt writes.
std::string FormatDlgItemInt(unsigned value, bool isSigned);

// Buffer size of GetDlgItemInt's read (the platform reads a short field).
inline constexpr std::size_t kDlgItemIntBuffer = 32;

}  // namespace orv
