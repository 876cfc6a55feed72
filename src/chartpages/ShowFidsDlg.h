#pragma once
// CShowFidsDlg: "Select Field", the picker of the data window's custom field. It lists the host's
// fields of one field group (the groups list beside it), shows the chosen field's description,
// and ends with the field's id and text on OK or a double click.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "chartpages/ChartPagesRes.h"
#include "dlgkit/FieldRecords.h"
#include "dlgkit/HostServices.h"
#include "dlgkit/SettingsStore.h"
#include "dlgkit/ThemedPage.h"

class CShowFidsDlg final : public orv::ThemedPage<CShowFidsDlg> {
 public:
  static constexpr const char* kGroupKey = "Software\\ZEL\\Gridlet";
  static constexpr const char* kGroupValue = "SetColumn";
  static constexpr const char* kDefaultGroup = "Frequently Used";
  static constexpr const char* kAllGroup = "All";
  static constexpr const char* kEmptyRow = " <Empty>";
  // NM_DBLCLK.
  static constexpr int kNmDblClk = -3;

  // `current` is the field selected when the list opens, `currentText` its text; `fields` the
  // host's field service (none: the list stays empty); `store` where the group to show is kept
  // (null: the current user's).
  CShowFidsDlg(std::int32_t current, std::string currentText, std::unique_ptr<orv::FieldService> fields,
               orv::SettingsStore* store = nullptr);

  int DialogId() const override { return IDD_SHOW_FIDS_DLG; }
  void OnCommand(int id, int code) override;
  bool OnNotify(int id, int code, const void* payload, std::intptr_t& result) override;
  orv::ApplyResult OnApply() override;

  // The field chosen: the one given until OK or a double click takes the selected row.
  std::int32_t FieldId() const { return fieldId_; }
  const std::string& FieldText() const { return fieldText_; }
  // A double click took a row and closed the dialog as OK does.
  bool EndedByDoubleClick() const { return doubleClicked_; }

  struct Row {
    std::int32_t id;
    std::string text;
  };
  const std::vector<Row>& Rows() const { return rows_; }

 protected:
  bool OnInitPage() override;

 private:
  void Fill(const std::string& group, bool first);
  bool HasGroup(const std::string& group);
  void SelectGroup(const std::string& group);
  void ShowDescription(int row);
  bool TakeSelected();

  std::int32_t fieldId_;
  std::string fieldText_;
  std::unique_ptr<orv::FieldService> fields_;
  orv::SettingsStore* store_;
  std::vector<Row> rows_;
  bool doubleClicked_ = false;
};
