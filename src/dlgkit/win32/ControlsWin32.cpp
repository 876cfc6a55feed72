#include "dlgkit/win32/ControlsWin32.h"

#include <windows.h>
#include <commctrl.h>
#include <commdlg.h>

#include <climits>
#include <string>
#include <vector>

#include "dlgkit/HostServices.h"
#include "dlgkit/MessageBox.h"
#include "dlgkit/Page.h"
#include "dlgkit/win32/DialogHost.h"
#include "dlgkit/win32/FontOpsWin32.h"
#include "dlgkit/win32/SheetRunnerWin32.h"

namespace orv {

namespace {

HWND Dlg(WindowHandle dialog) { return static_cast<HWND>(dialog); }

std::string Z(std::string_view text) { return std::string(text.substr(0, text.find('\0'))); }

LRESULT Send(HWND control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  return ::SendMessageA(control, message, wParam, lParam);
}

// Text of an item whose length a message tells first (CB_GETLBTEXTLEN / LB_GETTEXTLEN).
std::string ItemText(HWND control, int index, UINT lengthMessage, UINT textMessage) {
  if (!control) return {};
  const LRESULT length = Send(control, lengthMessage, static_cast<WPARAM>(index));
  if (length < 0) return {};
  std::vector<char> buffer(static_cast<std::size_t>(length) + 1, '\0');
  const LRESULT copied =
      Send(control, textMessage, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer.data()));
  if (copied < 0) return {};
  return std::string(buffer.data());
}

int AddWithData(HWND control, UINT addMessage, UINT dataMessage, std::string_view text, std::intptr_t data) {
  if (!control) return -1;
  const std::string textZ = Z(text);
  const LRESULT index = Send(control, addMessage, 0, reinterpret_cast<LPARAM>(textZ.c_str()));
  if (index < 0) return -1;
  Send(control, dataMessage, static_cast<WPARAM>(index), static_cast<LPARAM>(data));
  return static_cast<int>(index);
}

int FindData(HWND control, UINT countMessage, UINT dataMessage, std::intptr_t data) {
  if (!control) return -1;
  const LRESULT count = Send(control, countMessage);
  for (LRESULT i = 0; i < count; ++i) {
    if (Send(control, dataMessage, static_cast<WPARAM>(i)) == static_cast<LRESULT>(data)) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace

#define ITEM(id) ::GetDlgItem(Dlg(dialog_), (id))

std::string Win32Controls::GetDlgItemTextA(int id, std::size_t bufferSize) {
  if (bufferSize == 0 || !ITEM(id)) return {};
  const int size = bufferSize > INT_MAX ? INT_MAX : static_cast<int>(bufferSize);
  std::vector<char> buffer(static_cast<std::size_t>(size), '\0');
  const UINT copied = ::GetDlgItemTextA(Dlg(dialog_), id, buffer.data(), size);
  return std::string(buffer.data(), std::min<std::size_t>(copied, static_cast<std::size_t>(size - 1)));
}

bool Win32Controls::SetDlgItemTextA(int id, std::string_view text) {
  if (!ITEM(id)) return false;
  return ::SetDlgItemTextA(Dlg(dialog_), id, Z(text).c_str()) != FALSE;
}

unsigned Win32Controls::GetDlgItemInt(int id, bool* translated, bool isSigned) {
  if (translated) *translated = false;
  if (!ITEM(id)) return 0;
  // Read as text and parse with the kit's own rule, so a field means the same everywhere.
  const auto value = ParseDlgItemInt(GetDlgItemTextA(id, kDlgItemIntBuffer), isSigned);
  if (!value) return 0;
  if (translated) *translated = true;
  return *value;
}

bool Win32Controls::SetDlgItemInt(int id, unsigned value, bool isSigned) {
  return SetDlgItemTextA(id, FormatDlgItemInt(value, isSigned));
}

bool Win32Controls::LimitDlgItemText(int id, std::size_t maxChars) {
  HWND control = ITEM(id);
  if (!control) return false;
  ::SendMessageA(control, EM_LIMITTEXT, static_cast<WPARAM>(maxChars), 0);
  return true;
}

int Win32Controls::IsDlgButtonChecked(int id) {
  return ITEM(id) ? static_cast<int>(::IsDlgButtonChecked(Dlg(dialog_), id)) : kBstUnchecked;
}

bool Win32Controls::CheckDlgButton(int id, int state) {
  if (!ITEM(id)) return false;
  return ::CheckDlgButton(Dlg(dialog_), id, static_cast<UINT>(state)) != FALSE;
}

bool Win32Controls::HasDlgItem(int id) { return ITEM(id) != nullptr; }

bool Win32Controls::ShowDlgItem(int id, bool show) {
  HWND control = ITEM(id);
  if (!control) return false;
  ::ShowWindow(control, show ? SW_SHOW : SW_HIDE);
  return true;
}

bool Win32Controls::IsDlgItemVisible(int id) {
  HWND control = ITEM(id);
  // The control's own style: a page not yet shown still knows which of its controls are visible.
  return control && (::GetWindowLongA(control, GWL_STYLE) & WS_VISIBLE) != 0;
}

bool Win32Controls::EnableDlgItem(int id, bool enable) {
  HWND control = ITEM(id);
  if (!control) return false;
  ::EnableWindow(control, enable ? TRUE : FALSE);
  return true;
}

bool Win32Controls::IsDlgItemEnabled(int id) {
  HWND control = ITEM(id);
  return control && ::IsWindowEnabled(control);
}

bool Win32Controls::MoveDlgItemTo(int id, int placeId) {
  HWND control = ITEM(id);
  HWND place = ITEM(placeId);
  if (!control || !place) return false;
  RECT rect{};
  if (!::GetWindowRect(place, &rect)) return false;
  ::MapWindowPoints(nullptr, Dlg(dialog_), reinterpret_cast<POINT*>(&rect), 2);
  return ::SetWindowPos(control, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                        SWP_NOZORDER | SWP_NOACTIVATE) != FALSE;
}

// --- combo boxes ---

bool Win32Controls::ComboResetContent(int id) {
  HWND control = ITEM(id);
  if (!control) return false;
  Send(control, CB_RESETCONTENT);
  return true;
}

int Win32Controls::ComboAddString(int id, std::string_view text, std::intptr_t itemData) {
  return AddWithData(ITEM(id), CB_ADDSTRING, CB_SETITEMDATA, text, itemData);
}

int Win32Controls::ComboGetCount(int id) {
  HWND control = ITEM(id);
  return control ? static_cast<int>(Send(control, CB_GETCOUNT)) : -1;
}

int Win32Controls::ComboGetCurSel(int id) {
  HWND control = ITEM(id);
  return control ? static_cast<int>(Send(control, CB_GETCURSEL)) : -1;
}

bool Win32Controls::ComboSetCurSel(int id, int index) {
  HWND control = ITEM(id);
  if (!control) return false;
  return Send(control, CB_SETCURSEL, static_cast<WPARAM>(index)) != CB_ERR || index == -1;
}

std::intptr_t Win32Controls::ComboGetItemData(int id, int index) {
  HWND control = ITEM(id);
  if (!control || index < 0 || index >= ComboGetCount(id)) return 0;
  return static_cast<std::intptr_t>(Send(control, CB_GETITEMDATA, static_cast<WPARAM>(index)));
}

std::string Win32Controls::ComboGetLBText(int id, int index) {
  return ItemText(ITEM(id), index, CB_GETLBTEXTLEN, CB_GETLBTEXT);
}

int Win32Controls::ComboFindItemData(int id, std::intptr_t itemData) {
  return FindData(ITEM(id), CB_GETCOUNT, CB_GETITEMDATA, itemData);
}

// --- list boxes ---

bool Win32Controls::ListResetContent(int id) {
  HWND control = ITEM(id);
  if (!control) return false;
  Send(control, LB_RESETCONTENT);
  return true;
}

int Win32Controls::ListAddString(int id, std::string_view text, std::intptr_t itemData) {
  return AddWithData(ITEM(id), LB_ADDSTRING, LB_SETITEMDATA, text, itemData);
}

int Win32Controls::ListGetCount(int id) {
  HWND control = ITEM(id);
  return control ? static_cast<int>(Send(control, LB_GETCOUNT)) : -1;
}

int Win32Controls::ListGetCurSel(int id) {
  HWND control = ITEM(id);
  return control ? static_cast<int>(Send(control, LB_GETCURSEL)) : -1;
}

bool Win32Controls::ListSetCurSel(int id, int index) {
  HWND control = ITEM(id);
  if (!control) return false;
  return Send(control, LB_SETCURSEL, static_cast<WPARAM>(index)) != LB_ERR || index == -1;
}

std::intptr_t Win32Controls::ListGetItemData(int id, int index) {
  HWND control = ITEM(id);
  if (!control || index < 0 || index >= ListGetCount(id)) return 0;
  return static_cast<std::intptr_t>(Send(control, LB_GETITEMDATA, static_cast<WPARAM>(index)));
}

std::string Win32Controls::ListGetText(int id, int index) {
  return ItemText(ITEM(id), index, LB_GETTEXTLEN, LB_GETTEXT);
}

int Win32Controls::ListFindItemData(int id, std::intptr_t itemData) {
  return FindData(ITEM(id), LB_GETCOUNT, LB_GETITEMDATA, itemData);
}

bool Win32Controls::ListSetSel(int id, int index, bool select) {
  HWND control = ITEM(id);
  if (!control) return false;
  return Send(control, LB_SETSEL, select ? TRUE : FALSE, static_cast<LPARAM>(index)) != LB_ERR;
}

bool Win32Controls::ListGetSel(int id, int index) {
  HWND control = ITEM(id);
  return control && Send(control, LB_GETSEL, static_cast<WPARAM>(index)) > 0;
}

std::vector<int> Win32Controls::ListGetSelItems(int id) {
  std::vector<int> rows;
  HWND control = ITEM(id);
  if (!control) return rows;
  const LRESULT count = Send(control, LB_GETSELCOUNT);
  if (count <= 0) return rows;  // LB_ERR: a box of one selection
  rows.resize(static_cast<std::size_t>(count));
  const LRESULT got = Send(control, LB_GETSELITEMS, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(rows.data()));
  rows.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
  return rows;
}

// --- list views ---

bool Win32Controls::ListViewInsertColumn(int id, int column, std::string_view heading, int width) {
  HWND control = ITEM(id);
  if (!control) return false;
  std::string headingZ = Z(heading);
  LVCOLUMNA col{};
  col.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
  col.pszText = headingZ.data();
  col.cx = width;
  col.iSubItem = column;
  return Send(control, LVM_INSERTCOLUMNA, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&col)) >= 0;
}

bool Win32Controls::ListViewDeleteAllItems(int id) {
  HWND control = ITEM(id);
  return control && Send(control, LVM_DELETEALLITEMS) != FALSE;
}

int Win32Controls::ListViewInsertItem(int id, int index, std::string_view text) {
  HWND control = ITEM(id);
  if (!control) return -1;
  std::string textZ = Z(text);
  LVITEMA item{};
  item.mask = LVIF_TEXT;
  item.iItem = index < 0 ? 0 : index;
  item.pszText = textZ.data();
  return static_cast<int>(Send(control, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item)));
}

int Win32Controls::ListViewGetItemCount(int id) {
  HWND control = ITEM(id);
  return control ? static_cast<int>(Send(control, LVM_GETITEMCOUNT)) : 0;
}

std::string Win32Controls::ListViewGetItemText(int id, int item, int subItem) {
  HWND control = ITEM(id);
  if (!control || item < 0 || item >= ListViewGetItemCount(id)) return {};
  // The message gives no length: grow the buffer until the text fits with room to spare.
  for (std::size_t size = 256; size <= (1u << 20); size *= 4) {
    std::vector<char> buffer(size, '\0');
    LVITEMA request{};
    request.iSubItem = subItem;
    request.pszText = buffer.data();
    request.cchTextMax = static_cast<int>(size);
    const LRESULT length =
        Send(control, LVM_GETITEMTEXTA, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&request));
    if (length < static_cast<LRESULT>(size) - 1) return std::string(buffer.data());
  }
  return {};
}

bool Win32Controls::ListViewSetItemText(int id, int item, int subItem, std::string_view text) {
  HWND control = ITEM(id);
  if (!control) return false;
  std::string textZ = Z(text);
  LVITEMA request{};
  request.iSubItem = subItem;
  request.pszText = textZ.data();
  return Send(control, LVM_SETITEMTEXTA, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&request)) != FALSE;
}

bool Win32Controls::ListViewGetCheckState(int id, int item) {
  HWND control = ITEM(id);
  if (!control) return false;
  const LRESULT state = Send(control, LVM_GETITEMSTATE, static_cast<WPARAM>(item), LVIS_STATEIMAGEMASK);
  // State image 1 is the empty box, 2 the checked one.
  return ((static_cast<UINT>(state) & LVIS_STATEIMAGEMASK) >> 12) == 2;
}

bool Win32Controls::ListViewSetCheckState(int id, int item, bool checked) {
  HWND control = ITEM(id);
  if (!control || item < 0 || item >= ListViewGetItemCount(id)) return false;
  LVITEMA request{};
  request.stateMask = LVIS_STATEIMAGEMASK;
  request.state = INDEXTOSTATEIMAGEMASK(checked ? 2 : 1);
  return Send(control, LVM_SETITEMSTATE, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&request)) != FALSE;
}

int Win32Controls::ListViewGetSelectedItem(int id) {
  HWND control = ITEM(id);
  return control ? static_cast<int>(Send(control, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED)) : -1;
}

bool Win32Controls::ListViewSelectItem(int id, int item) {
  HWND control = ITEM(id);
  if (!control || item < -1 || item >= ListViewGetItemCount(id)) return false;
  LVITEMA clear{};
  clear.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  Send(control, LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&clear));
  if (item < 0) return true;
  LVITEMA select{};
  select.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  select.state = LVIS_SELECTED | LVIS_FOCUSED;
  return Send(control, LVM_SETITEMSTATE, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&select)) != FALSE;
}

// --- up-downs ---

bool Win32Controls::UpDownSetRange(int id, int lower, int upper) {
  HWND control = ITEM(id);
  if (!control) return false;
  Send(control, UDM_SETRANGE32, static_cast<WPARAM>(lower), static_cast<LPARAM>(upper));
  return true;
}

int Win32Controls::UpDownGetPos(int id) {
  HWND control = ITEM(id);
  return control ? static_cast<int>(Send(control, UDM_GETPOS32)) : 0;
}

bool Win32Controls::UpDownSetPos(int id, int pos) {
  HWND control = ITEM(id);
  if (!control) return false;
  Send(control, UDM_SETPOS32, 0, static_cast<LPARAM>(pos));
  return true;
}

// --- date pickers ---

std::optional<DateTime> Win32Controls::DateTimeGetSystemTime(int id) {
  HWND control = ITEM(id);
  if (!control) return std::nullopt;
  SYSTEMTIME st{};
  if (Send(control, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&st)) != GDT_VALID) return std::nullopt;
  return DateTime{st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond};
}

bool Win32Controls::DateTimeSetSystemTime(int id, const DateTime& value) {
  HWND control = ITEM(id);
  if (!control) return false;
  SYSTEMTIME st{};
  st.wYear = static_cast<WORD>(value.year);
  st.wMonth = static_cast<WORD>(value.month);
  st.wDay = static_cast<WORD>(value.day);
  st.wHour = static_cast<WORD>(value.hour);
  st.wMinute = static_cast<WORD>(value.minute);
  st.wSecond = static_cast<WORD>(value.second);
  return Send(control, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&st)) != FALSE;
}

// --- focus, sound, box, help ---

bool Win32Controls::SetFocus(int id) {
  HWND control = ITEM(id);
  if (!control || !::IsWindowEnabled(control)) return false;
  // WM_NEXTDLGCTL rather than SetFocus: the dialog manager then moves the default button too.
  Send(Dlg(dialog_), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
  return true;
}

int Win32Controls::GetFocus() {
  HWND focus = ::GetFocus();
  // The focus may sit in a child of a control (a combo box's edit): climb to the dialog's child.
  while (focus && ::GetParent(focus) != Dlg(dialog_)) focus = ::GetParent(focus);
  return focus ? ::GetDlgCtrlID(focus) : 0;
}

void Win32Controls::MessageBeep(unsigned type) { ::MessageBeep(type); }

int Win32Controls::OrvMessageBox(std::string_view text, std::string_view caption, unsigned flags) {
  return ::OrvMessageBox(dialog_, text, caption, flags);
}

void Win32Controls::ShowHelp(std::string_view book, int topic) { orv::ShowHelp(std::string(book), topic, 0); }

bool Win32Controls::ChooseFontA(LogFont& font, std::uint32_t& color) {
  LOGFONTA chosen = ToLOGFONTA(font);
  CHOOSEFONTA box = {};
  box.lStructSize = sizeof(box);
  box.hwndOwner = Dlg(dialog_);
  box.lpLogFont = &chosen;
  box.Flags = CF_SCREENFONTS | CF_EFFECTS | CF_INITTOLOGFONTSTRUCT;
  box.rgbColors = color;
  if (!::ChooseFontA(&box)) return false;
  font = FromLOGFONTA(chosen);
  color = box.rgbColors;
  return true;
}

// --- the sheet ---

void Win32Controls::SheetChanged() {
  Send(::GetParent(Dlg(dialog_)), PSM_CHANGED, reinterpret_cast<WPARAM>(Dlg(dialog_)));
}

void Win32Controls::SheetUnchanged() {
  Send(::GetParent(Dlg(dialog_)), PSM_UNCHANGED, reinterpret_cast<WPARAM>(Dlg(dialog_)));
}

std::intptr_t Win32Controls::SendPageApply(int dialogId) {
  // lParam: the page's window, so the sheet can tell which tab spoke.
  return static_cast<std::intptr_t>(Send(::GetParent(Dlg(dialog_)), kWmLsPageApply, static_cast<WPARAM>(dialogId),
                                         reinterpret_cast<LPARAM>(Dlg(dialog_))));
}

bool Win32Controls::ListViewSetExtendedStyle(int id, std::uint32_t style) {
  HWND list = ::GetDlgItem(Dlg(dialog_), id);
  if (!list) return false;
  ListView_SetExtendedListViewStyle(list, style);
  return true;
}

std::intptr_t Win32Controls::RunModalDialog(Page& dialog) {
  return RunPageDialog(dialog, KitModule(), dialog.DialogId(), Dlg(dialog_));
}

void Win32Controls::SetWizardButtons(unsigned flags) {
  // Posted, not sent: the sheet updates its buttons after the page's notification returns.
  ::PostMessageA(::GetParent(Dlg(dialog_)), PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(flags));
}

#undef ITEM

}  // namespace orv
