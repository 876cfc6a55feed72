#include "chartpages/ShowFidsDlg.h"

#include <algorithm>
#include <utility>

#include "dlgkit/Controls.h"
#include "dlgkit/Page.h"
#include "dlgkit/WindowOps.h"

CShowFidsDlg::CShowFidsDlg(std::int32_t current, std::string currentText, std::unique_ptr<orv::FieldService> fields,
                           orv::SettingsStore* store)
    : fieldId_(current), fieldText_(std::move(currentText)), fields_(std::move(fields)), store_(store) {}

bool CShowFidsDlg::OnInitPage() {
  orv::Controls& c = Ctl();
  c.ListViewSetExtendedStyle(IDC_SF_FIELDS, orv::kLvsExFullRowSelect);
  c.ListViewInsertColumn(IDC_SF_FIELDS, 0, "Description", 250);
  std::string group = kDefaultGroup;
  std::unique_ptr<orv::SettingsStore> own;
  orv::SettingsStore* store = store_;
  if (!store) {
    own = orv::CreateUserSettingsStore();
    store = own.get();
  }
  if (store) {
    if (auto value = store->ReadString(kGroupKey, kGroupValue)) group = *value;
  }
  c.ListResetContent(IDC_SF_GROUPS);
  c.ListAddString(IDC_SF_GROUPS, kAllGroup, 0);
  Fill(group, true);
  if (!HasGroup(group)) {
    group = kAllGroup;
    Fill(group, false);
  }
  SelectGroup(group);
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (rows_[row].id != fieldId_) continue;
    c.ListViewSelectItem(IDC_SF_FIELDS, static_cast<int>(row));
    ShowDescription(static_cast<int>(row));
    break;
  }
  return true;
}

bool CShowFidsDlg::HasGroup(const std::string& group) {
  orv::Controls& c = Ctl();
  for (int i = 0; i < c.ListGetCount(IDC_SF_GROUPS); ++i) {
    if (c.ListGetText(IDC_SF_GROUPS, i) == group) return true;
  }
  return false;
}

void CShowFidsDlg::SelectGroup(const std::string& group) {
  orv::Controls& c = Ctl();
  for (int i = 0; i < c.ListGetCount(IDC_SF_GROUPS); ++i) {
    if (c.ListGetText(IDC_SF_GROUPS, i) == group) c.ListSetCurSel(IDC_SF_GROUPS, i);
  }
}

// The host's fields page by page until a page is empty; the first fill also collects the groups.
void CShowFidsDlg::Fill(const std::string& group, bool first) {
  orv::Controls& c = Ctl();
  c.ListViewDeleteAllItems(IDC_SF_FIELDS);
  rows_.clear();
  c.SetDlgItemTextA(IDC_SF_DESCRIPTION, "");
  if (!fields_) return;
  const bool all = group == kAllGroup || group.empty();
  for (std::int32_t start = 0;; start += orv::kFieldPageSize) {
    std::string bytes;
    fields_->GetFields(group, orv::kFieldListKind, start, orv::kFieldPageSize, bytes);
    const std::vector<orv::FieldRecord> records = orv::ReadFieldRecords(bytes);
    if (records.empty()) break;
    for (const orv::FieldRecord& record : records) {
      if (first) {
        for (const std::string& name : record.groups) {
          if (!name.empty() && !HasGroup(name)) c.ListAddString(IDC_SF_GROUPS, name, 0);
        }
      }
      if (record.kind == orv::kFieldKindHidden) continue;
      if (!all && std::find(record.groups.begin(), record.groups.end(), group) == record.groups.end()) continue;
      c.ListViewInsertItem(IDC_SF_FIELDS, static_cast<int>(rows_.size()), record.description);
      rows_.push_back({record.id, record.description});
    }
  }
  if (group == kAllGroup) {
    c.ListViewInsertItem(IDC_SF_FIELDS, static_cast<int>(rows_.size()), kEmptyRow);
    rows_.push_back({0, kEmptyRow});
  }
}

void CShowFidsDlg::ShowDescription(int row) {
  if (row < 0 || row >= static_cast<int>(rows_.size())) return;
  Ctl().SetDlgItemTextA(IDC_SF_DESCRIPTION, rows_[static_cast<std::size_t>(row)].text);
}

bool CShowFidsDlg::TakeSelected() {
  const int row = Ctl().ListViewGetSelectedItem(IDC_SF_FIELDS);
  if (row < 0 || row >= static_cast<int>(rows_.size())) return false;
  fieldId_ = rows_[static_cast<std::size_t>(row)].id;
  fieldText_ = rows_[static_cast<std::size_t>(row)].text;
  return true;
}

void CShowFidsDlg::OnCommand(int id, int code) {
  if (id != IDC_SF_GROUPS || code != orv::kLbnSelChange) return;
  const int index = Ctl().ListGetCurSel(IDC_SF_GROUPS);
  if (index >= 0) Fill(Ctl().ListGetText(IDC_SF_GROUPS, index), false);
}

bool CShowFidsDlg::OnNotify(int id, int code, const void* payload, std::intptr_t& result) {
  if (id != IDC_SF_FIELDS) return false;
  if (code == orv::kLvnItemChanged && payload) {
    const auto* change = static_cast<const orv::ListViewItemChanged*>(payload);
    if (change->isSelected && !change->wasSelected) ShowDescription(change->item);
    result = 0;
    return true;
  }
  if (code == kNmDblClk) {
    // As OK: the dialog closes with the row.
    if (TakeSelected()) {
      doubleClicked_ = true;
      if (Window()) orv::DefaultWindowOps().SendMessageA(Window(), orv::kWmCommand, orv::kIdOkButton, 0);
    }
    result = 0;
    return true;
  }
  return false;
}

orv::ApplyResult CShowFidsDlg::OnApply() {
  TakeSelected();
  return orv::ApplyResult::NoError;
}
