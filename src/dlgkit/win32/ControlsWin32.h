#pragma once
// The controls of a real dialog window, over GetDlgItem and SendMessageA.

#include "dlgkit/Controls.h"
#include "dlgkit/Window.h"

namespace orv {

class Win32Controls final : public Controls {
 public:
  // `dialog` is the dialog's HWND; the page's sheet, where there is one, is its parent.
  explicit Win32Controls(WindowHandle dialog) : dialog_(dialog) {}
  WindowHandle dialog() const { return dialog_; }

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
  int GetFocus() override;
  void MessageBeep(unsigned type) override;
  int OrvMessageBox(std::string_view text, std::string_view caption, unsigned flags) override;
  void ShowHelp(std::string_view book, int topic) override;
  bool ChooseFontA(LogFont& font, std::uint32_t& color) override;
  void SheetChanged() override;
  void SheetUnchanged() override;
  std::intptr_t SendPageApply(int dialogId) override;
  void SetWizardButtons(unsigned flags) override;
  std::intptr_t RunModalDialog(Page& dialog) override;
  bool ListViewSetExtendedStyle(int id, std::uint32_t style) override;

 private:
  WindowHandle dialog_;
};

}  // namespace orv
