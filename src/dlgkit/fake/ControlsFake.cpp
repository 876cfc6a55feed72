#include "dlgkit/fake/ControlsFake.h"

#include <algorithm>
#include <stdexcept>

#include "dlgkit/Page.h"

namespace orv {

namespace {

bool ValidIndex(int index, std::size_t size) { return index >= 0 && static_cast<std::size_t>(index) < size; }

std::string Describe(int id) { return "control " + std::to_string(id); }
}  // namespace

int FirstMessageBoxButton(unsigned flags) {
  switch (flags & 0xF) {
    case 1:
      return 1;  // OK
    case 2:
      return 3;  // Abort
    case 3:
    case 4:
      return 6;  // Yes
    case 5:
      return 4;  // Retry
    case 6:
      return 2;  // Cancel
    default:
      return 1;  // OK
  }
}

FakeControls& FakeControls::Add(int id, FakeControlKind kind, std::string text) {
  FakeControl control;
  control.kind = kind;
  control.text = std::move(text);
  controls_[id] = std::move(control);
  return *this;
}

FakeControls& FakeControls::AddRadio(int id, int group, std::string text) {
  Add(id, FakeControlKind::RadioButton, std::move(text));
  controls_[id].radioGroup = group;
  return *this;
}

FakeControl& FakeControls::Control(int id) {
  FakeControl* control = Find(id);
  if (!control) throw std::logic_error("FakeControls: no " + Describe(id));
  return *control;
}

const FakeControl& FakeControls::Control(int id) const {
  auto it = controls_.find(id);
  if (it == controls_.end()) throw std::logic_error("FakeControls: no " + Describe(id));
  return it->second;
}

FakeControl* FakeControls::Find(int id) {
  auto it = controls_.find(id);
  return it == controls_.end() ? nullptr : &it->second;
}

FakeControl* FakeControls::FindKind(int id, FakeControlKind kind) {
  FakeControl* control = Find(id);
  return control && control->kind == kind ? control : nullptr;
}

FakeControl& FakeControls::Reachable(int id, const char* action) {
  FakeControl* control = Find(id);
  if (!control) throw std::logic_error(std::string("cannot ") + action + ": no " + Describe(id));
  if (!control->visible) throw std::logic_error(std::string("cannot ") + action + ": " + Describe(id) + " is hidden");
  if (!control->enabled) throw std::logic_error(std::string("cannot ") + action + ": " + Describe(id) + " is disabled");
  return *control;
}

std::vector<FakeListItem>* FakeControls::Items(int id, FakeControlKind kind) {
  FakeControl* control = FindKind(id, kind);
  return control ? &control->items : nullptr;
}

void FakeControls::Command(int id, int code) {
  if (page_) page_->OnCommand(id, code);
}

void FakeControls::NotifyItemChanged(int id, int item, const FakeListViewRow& before, const FakeListViewRow& after) {
  if (!page_) return;
  ListViewItemChanged change{item, before.checked, after.checked, before.selected, after.selected};
  std::intptr_t result = 0;
  page_->OnNotify(id, kLvnItemChanged, &change, result);
}

// --- input ---

void FakeControls::TypeText(int id, std::string_view text) {
  FakeControl& control = Reachable(id, "type");
  if (control.kind != FakeControlKind::Edit) throw std::logic_error("cannot type: " + Describe(id) + " is no edit");
  if (control.readOnly) throw std::logic_error("cannot type: " + Describe(id) + " is read-only");
  if (control.digitsOnly && text.find_first_not_of("0123456789") != std::string_view::npos)
    throw std::logic_error("cannot type: " + Describe(id) + " takes digits only");
  control.text = std::string(text.substr(0, control.textLimit ? control.textLimit : text.size()));
  SetFocus(id);
  Command(id, kEnChange);
}

void FakeControls::Click(int id) {
  FakeControl& control = Reachable(id, "click");
  switch (control.kind) {
    case FakeControlKind::PushButton:
      break;
    case FakeControlKind::CheckBox:
      if (!control.automatic) break;  // the page checks it on BN_CLICKED
      if (control.threeState) {
        control.check = control.check == kBstUnchecked ? kBstChecked
                        : control.check == kBstChecked ? kBstIndeterminate
                                                       : kBstUnchecked;
      } else {
        control.check = control.check == kBstChecked ? kBstUnchecked : kBstChecked;
      }
      break;
    case FakeControlKind::RadioButton:
      if (!control.automatic) break;
      for (auto& [otherId, other] : controls_) {
        if (other.kind == FakeControlKind::RadioButton && other.radioGroup == control.radioGroup)
          other.check = kBstUnchecked;
      }
      control.check = kBstChecked;
      break;
    default:
      throw std::logic_error("cannot click: " + Describe(id) + " is no button");
  }
  SetFocus(id);
  Command(id, kBnClicked);
}

void FakeControls::SelectComboItem(int id, int index) {
  FakeControl& control = Reachable(id, "select");
  if (control.kind != FakeControlKind::ComboBox)
    throw std::logic_error("cannot select: " + Describe(id) + " is no combo box");
  if (!ValidIndex(index, control.items.size()))
    throw std::logic_error("cannot select: no item " + std::to_string(index));
  control.curSel = index;
  Command(id, kCbnSelChange);
}

void FakeControls::SelectListItem(int id, int index) {
  FakeControl& control = Reachable(id, "select");
  if (control.kind != FakeControlKind::ListBox)
    throw std::logic_error("cannot select: " + Describe(id) + " is no list box");
  if (!ValidIndex(index, control.items.size()))
    throw std::logic_error("cannot select: no item " + std::to_string(index));
  control.curSel = index;
  Command(id, kLbnSelChange);
}

void FakeControls::ToggleListItem(int id, int index) {
  FakeControl& control = Reachable(id, "toggle");
  if (control.kind != FakeControlKind::ListBox || !control.multiSelect)
    throw std::logic_error("cannot toggle: " + Describe(id) + " is no list box of several selections");
  if (!ValidIndex(index, control.items.size()))
    throw std::logic_error("cannot toggle: no item " + std::to_string(index));
  auto& item = control.items[static_cast<std::size_t>(index)];
  item.selected = !item.selected;
  control.curSel = index;  // the caret
  Command(id, kLbnSelChange);
}

void FakeControls::ClickListViewCheck(int id, int item) {
  FakeControl& control = Reachable(id, "check");
  if (control.kind != FakeControlKind::ListView)
    throw std::logic_error("cannot check: " + Describe(id) + " is no list view");
  if (!ValidIndex(item, control.rows.size())) throw std::logic_error("cannot check: no item " + std::to_string(item));
  ListViewSetCheckState(id, item, !control.rows[static_cast<std::size_t>(item)].checked);
}

void FakeControls::PickDate(int id, std::optional<DateTime> value) {
  FakeControl& control = Reachable(id, "pick a date");
  if (control.kind != FakeControlKind::DatePicker)
    throw std::logic_error("cannot pick: " + Describe(id) + " is no date picker");
  control.date = value;
  if (page_) {
    std::intptr_t result = 0;
    page_->OnNotify(id, kDtnDateTimeChange, nullptr, result);
  }
}

void FakeControls::PickDateFromCalendar(int id, DateTime value) {
  PickDate(id, value);
  if (page_) {
    std::intptr_t result = 0;
    page_->OnNotify(id, kDtnCloseUp, nullptr, result);
  }
}

void FakeControls::ClickSpin(int id, int delta) {
  FakeControl& control = Reachable(id, "spin");
  if (control.kind != FakeControlKind::UpDown)
    throw std::logic_error("cannot spin: " + Describe(id) + " is no up-down");
  SetFocus(id);
  std::intptr_t result = 0;
  if (page_) {
    UpDownDeltaPos change{control.pos, delta};
    page_->OnNotify(id, kUdnDeltaPos, &change, result);
  }
  if (result == 0) UpDownSetPos(id, Control(id).pos + delta);
}

// --- Controls ---

std::string FakeControls::GetDlgItemTextA(int id, std::size_t bufferSize) {
  FakeControl* control = Find(id);
  if (!control || bufferSize == 0) return {};
  std::string text = control->text;
  // A drop-down list shows its selected item as its text.
  if (control->kind == FakeControlKind::ComboBox && ValidIndex(control->curSel, control->items.size())) {
    text = control->items[static_cast<std::size_t>(control->curSel)].text;
  }
  if (text.size() > bufferSize - 1) text.resize(bufferSize - 1);
  return text;
}

bool FakeControls::SetDlgItemTextA(int id, std::string_view text) {
  FakeControl* control = Find(id);
  if (!control) return false;
  control->text = std::string(text.substr(0, text.find('\0')));
  if (control->kind == FakeControlKind::Edit) Command(id, kEnChange);
  return true;
}

unsigned FakeControls::GetDlgItemInt(int id, bool* translated, bool isSigned) {
  if (translated) *translated = false;
  if (!Find(id)) return 0;
  const auto value = ParseDlgItemInt(GetDlgItemTextA(id, kDlgItemIntBuffer), isSigned);
  if (!value) return 0;
  if (translated) *translated = true;
  return *value;
}

bool FakeControls::SetDlgItemInt(int id, unsigned value, bool isSigned) {
  return SetDlgItemTextA(id, FormatDlgItemInt(value, isSigned));
}

int FakeControls::IsDlgButtonChecked(int id) {
  FakeControl* control = Find(id);
  return control ? control->check : kBstUnchecked;
}

bool FakeControls::LimitDlgItemText(int id, std::size_t maxChars) {
  FakeControl* control = FindKind(id, FakeControlKind::Edit);
  if (!control) return false;
  control->textLimit = maxChars;
  return true;
}

bool FakeControls::CheckDlgButton(int id, int state) {
  FakeControl* control = Find(id);
  if (!control) return false;
  // The platform's BM_SETCHECK: a state past what the box can show becomes the highest it can
  // (read as unsigned, so a negative one too).
  const unsigned highest = control->kind == FakeControlKind::CheckBox && control->threeState ? kBstIndeterminate
                           : control->kind == FakeControlKind::CheckBox || control->kind == FakeControlKind::RadioButton
                               ? kBstChecked
                               : ~0u;
  control->check = static_cast<unsigned>(state) > highest ? static_cast<int>(highest) : state;
  return true;
}

bool FakeControls::HasDlgItem(int id) { return Find(id) != nullptr; }

bool FakeControls::ShowDlgItem(int id, bool show) {
  FakeControl* control = Find(id);
  if (!control) return false;
  control->visible = show;
  return true;
}

bool FakeControls::IsDlgItemVisible(int id) {
  FakeControl* control = Find(id);
  return control && control->visible;
}

bool FakeControls::EnableDlgItem(int id, bool enable) {
  FakeControl* control = Find(id);
  if (!control) return false;
  control->enabled = enable;
  // A disabled control loses the focus, as on the platform.
  if (!enable && focus_ == id) focus_ = 0;
  return true;
}

bool FakeControls::IsDlgItemEnabled(int id) {
  FakeControl* control = Find(id);
  return control && control->enabled;
}

bool FakeControls::MoveDlgItemTo(int id, int placeId) {
  FakeControl* control = Find(id);
  FakeControl* place = Find(placeId);
  if (!control || !place) return false;
  control->rect = place->rect;
  return true;
}

// Combo boxes and list boxes keep their items alike; only the kind of control differs.
bool FakeControls::ResetItems(int id, FakeControlKind kind) {
  FakeControl* control = FindKind(id, kind);
  if (!control) return false;
  control->items.clear();
  control->curSel = -1;
  return true;
}

int FakeControls::AddItem(int id, FakeControlKind kind, std::string_view text, std::intptr_t itemData) {
  auto* items = Items(id, kind);
  if (!items) return -1;
  items->push_back({std::string(text), itemData});
  return static_cast<int>(items->size()) - 1;
}

int FakeControls::ItemCount(int id, FakeControlKind kind) {
  auto* items = Items(id, kind);
  return items ? static_cast<int>(items->size()) : -1;
}

int FakeControls::CurSel(int id, FakeControlKind kind) {
  FakeControl* control = FindKind(id, kind);
  return control ? control->curSel : -1;
}

bool FakeControls::SetCurSel(int id, FakeControlKind kind, int index) {
  FakeControl* control = FindKind(id, kind);
  if (!control) return false;
  if (index == -1) {
    control->curSel = -1;
    return true;
  }
  if (!ValidIndex(index, control->items.size())) return false;
  control->curSel = index;
  return true;
}

const FakeListItem* FakeControls::Item(int id, FakeControlKind kind, int index) {
  auto* items = Items(id, kind);
  return items && ValidIndex(index, items->size()) ? &(*items)[static_cast<std::size_t>(index)] : nullptr;
}

int FakeControls::FindItemData(int id, FakeControlKind kind, std::intptr_t itemData) {
  auto* items = Items(id, kind);
  if (!items) return -1;
  for (std::size_t i = 0; i < items->size(); ++i) {
    if ((*items)[i].data == itemData) return static_cast<int>(i);
  }
  return -1;
}

bool FakeControls::ComboResetContent(int id) { return ResetItems(id, FakeControlKind::ComboBox); }
int FakeControls::ComboAddString(int id, std::string_view text, std::intptr_t itemData) {
  return AddItem(id, FakeControlKind::ComboBox, text, itemData);
}
int FakeControls::ComboGetCount(int id) { return ItemCount(id, FakeControlKind::ComboBox); }
int FakeControls::ComboGetCurSel(int id) { return CurSel(id, FakeControlKind::ComboBox); }
bool FakeControls::ComboSetCurSel(int id, int index) { return SetCurSel(id, FakeControlKind::ComboBox, index); }
std::intptr_t FakeControls::ComboGetItemData(int id, int index) {
  const FakeListItem* item = Item(id, FakeControlKind::ComboBox, index);
  return item ? item->data : 0;
}
std::string FakeControls::ComboGetLBText(int id, int index) {
  const FakeListItem* item = Item(id, FakeControlKind::ComboBox, index);
  return item ? item->text : std::string();
}
int FakeControls::ComboFindItemData(int id, std::intptr_t itemData) {
  return FindItemData(id, FakeControlKind::ComboBox, itemData);
}

bool FakeControls::ListResetContent(int id) { return ResetItems(id, FakeControlKind::ListBox); }
int FakeControls::ListAddString(int id, std::string_view text, std::intptr_t itemData) {
  return AddItem(id, FakeControlKind::ListBox, text, itemData);
}
int FakeControls::ListGetCount(int id) { return ItemCount(id, FakeControlKind::ListBox); }
int FakeControls::ListGetCurSel(int id) { return CurSel(id, FakeControlKind::ListBox); }
bool FakeControls::ListSetCurSel(int id, int index) { return SetCurSel(id, FakeControlKind::ListBox, index); }
std::intptr_t FakeControls::ListGetItemData(int id, int index) {
  const FakeListItem* item = Item(id, FakeControlKind::ListBox, index);
  return item ? item->data : 0;
}
std::string FakeControls::ListGetText(int id, int index) {
  const FakeListItem* item = Item(id, FakeControlKind::ListBox, index);
  return item ? item->text : std::string();
}
int FakeControls::ListFindItemData(int id, std::intptr_t itemData) {
  return FindItemData(id, FakeControlKind::ListBox, itemData);
}
bool FakeControls::ListSetSel(int id, int index, bool select) {
  FakeControl* control = FindKind(id, FakeControlKind::ListBox);
  if (!control || !control->multiSelect) return false;
  if (index == -1) {
    for (auto& item : control->items) item.selected = select;
    return true;
  }
  if (!ValidIndex(index, control->items.size())) return false;
  control->items[static_cast<std::size_t>(index)].selected = select;
  return true;
}
bool FakeControls::ListGetSel(int id, int index) {
  FakeControl* control = FindKind(id, FakeControlKind::ListBox);
  if (!control || !ValidIndex(index, control->items.size())) return false;
  if (!control->multiSelect) return control->curSel == index;
  return control->items[static_cast<std::size_t>(index)].selected;
}
std::vector<int> FakeControls::ListGetSelItems(int id) {
  std::vector<int> rows;
  FakeControl* control = FindKind(id, FakeControlKind::ListBox);
  if (!control || !control->multiSelect) return rows;
  for (std::size_t i = 0; i < control->items.size(); ++i)
    if (control->items[i].selected) rows.push_back(static_cast<int>(i));
  return rows;
}

bool FakeControls::ListViewInsertColumn(int id, int column, std::string_view heading, int width) {
  FakeControl* control = FindKind(id, FakeControlKind::ListView);
  if (!control || column < 0) return false;
  const auto at = std::min(static_cast<std::size_t>(column), control->columns.size());
  control->columns.insert(control->columns.begin() + static_cast<std::ptrdiff_t>(at), std::string(heading));
  return true;
}

bool FakeControls::ListViewDeleteAllItems(int id) {
  FakeControl* control = FindKind(id, FakeControlKind::ListView);
  if (!control) return false;
  control->rows.clear();
  return true;
}

int FakeControls::ListViewInsertItem(int id, int index, std::string_view text) {
  FakeControl* control = FindKind(id, FakeControlKind::ListView);
  if (!control) return -1;
  const auto at = std::min(static_cast<std::size_t>(std::max(index, 0)), control->rows.size());
  FakeListViewRow row;
  row.texts.emplace_back(text);
  control->rows.insert(control->rows.begin() + static_cast<std::ptrdiff_t>(at), std::move(row));
  return static_cast<int>(at);
}

int FakeControls::ListViewGetItemCount(int id) {
  FakeControl* control = FindKind(id, FakeControlKind::ListView);
  return control ? static_cast<int>(control->rows.size()) : 0;
}

std::string FakeControls::ListViewGetItemText(int id, int item, int subItem) {
  FakeControl* control = FindKind(id, FakeControlKind::ListView);
  if (!control || !ValidIndex(item, control->rows.size())) return {};
  const auto& texts = control->rows[static_cast<std::size_t>(item)].texts;
  return ValidIndex(subItem, texts.size()) ? texts[static_cast<std::size_t>(subItem)] : std::string();
}

bool FakeControls::ListViewSetItemText(int id, int item, int subItem, std::string_view text) {
  FakeControl* control = FindKind(id, FakeControlKind::ListView);
  if (!control || !ValidIndex(item, control->rows.size()) || subItem < 0) return false;
  auto& texts = control->rows[static_cast<std::size_t>(item)].texts;
  if (texts.size() <= static_cast<std::size_t>(subItem)) texts.resize(static_cast<std::size_t>(subItem) + 1);
  texts[static_cast<std::size_t>(subItem)] = std::string(text);
  return true;
}

bool FakeControls::ListViewGetCheckState(int id, int item) {
  FakeControl* control = FindKind(id, FakeControlKind::ListView);
  return control && ValidIndex(item, control->rows.size()) && control->rows[static_cast<std::size_t>(item)].checked;
}

bool FakeControls::ListViewSetCheckState(int id, int item, bool checked) {
  FakeControl* control = FindKind(id, FakeControlKind::ListView);
  if (!control || !ValidIndex(item, control->rows.size())) return false;
  auto& row = control->rows[static_cast<std::size_t>(item)];
  if (row.checked == checked) return true;
  const FakeListViewRow before = row;
  row.checked = checked;
  NotifyItemChanged(id, item, before, row);
  return true;
}

int FakeControls::ListViewGetSelectedItem(int id) {
  FakeControl* control = FindKind(id, FakeControlKind::ListView);
  if (!control) return -1;
  for (std::size_t i = 0; i < control->rows.size(); ++i) {
    if (control->rows[i].selected) return static_cast<int>(i);
  }
  return -1;
}

bool FakeControls::ListViewSetExtendedStyle(int id, std::uint32_t style) {
  FakeControl* control = FindKind(id, FakeControlKind::ListView);
  if (!control) return false;
  control->listViewExStyle = style;
  return true;
}

bool FakeControls::ListViewSelectItem(int id, int item) {
  FakeControl* control = FindKind(id, FakeControlKind::ListView);
  if (!control || (item != -1 && !ValidIndex(item, control->rows.size()))) return false;
  for (std::size_t i = 0; i < control->rows.size(); ++i) {
    auto& row = control->rows[i];
    const bool selected = static_cast<int>(i) == item;
    if (row.selected == selected) continue;
    const FakeListViewRow before = row;
    row.selected = selected;
    NotifyItemChanged(id, static_cast<int>(i), before, row);
  }
  return true;
}

bool FakeControls::UpDownSetRange(int id, int lower, int upper) {
  FakeControl* control = FindKind(id, FakeControlKind::UpDown);
  if (!control) return false;
  control->lower = lower;
  control->upper = upper;
  return true;
}

int FakeControls::UpDownGetPos(int id) {
  FakeControl* control = FindKind(id, FakeControlKind::UpDown);
  return control ? control->pos : 0;
}

bool FakeControls::UpDownSetPos(int id, int pos) {
  FakeControl* control = FindKind(id, FakeControlKind::UpDown);
  if (!control) return false;
  // The control keeps its position inside its range, whichever way round the range is given.
  const int low = std::min(control->lower, control->upper);
  const int high = std::max(control->lower, control->upper);
  control->pos = std::clamp(pos, low, high);
  return true;
}

std::optional<DateTime> FakeControls::DateTimeGetSystemTime(int id) {
  FakeControl* control = FindKind(id, FakeControlKind::DatePicker);
  return control ? control->date : std::nullopt;
}

bool FakeControls::DateTimeSetSystemTime(int id, const DateTime& value) {
  FakeControl* control = FindKind(id, FakeControlKind::DatePicker);
  if (!control) return false;
  control->date = value;
  return true;
}

bool FakeControls::SetFocus(int id) {
  FakeControl* control = Find(id);
  if (!control || !control->enabled || !control->visible) return false;
  focus_ = id;
  focusHistory_.push_back(id);
  return true;
}

int FakeControls::OrvMessageBox(std::string_view text, std::string_view caption, unsigned flags) {
  messageBoxes_.push_back({std::string(text), std::string(caption), flags});
  if (answers_.empty()) return FirstMessageBoxButton(flags);
  const int answer = answers_.front();
  answers_.pop_front();
  return answer;
}

bool FakeControls::ChooseFontA(LogFont& font, std::uint32_t& color) {
  fontDialogs_.push_back({font, color});
  if (fontAnswers_.empty()) return false;
  font = fontAnswers_.front().font;
  color = fontAnswers_.front().color;
  fontAnswers_.pop_front();
  return true;
}

void FakeControls::SheetChanged() {
  sheetChanged_ = true;
  ++sheetChangedCalls_;
}

void FakeControls::SheetUnchanged() {
  sheetChanged_ = false;
  ++sheetUnchangedCalls_;
}

std::intptr_t FakeControls::SendPageApply(int dialogId) {
  pageApplySent_.push_back(dialogId);
  return applyHandler_ ? applyHandler_(dialogId) : 0;
}

}  // namespace orv
