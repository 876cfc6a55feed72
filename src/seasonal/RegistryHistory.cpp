// RegistryHistory: a bounded list of strings in numbered values of one key, most recent first.
#include <algorithm>
#include <string>

#include "seasonal/WizardSeasonState.h"
#include "xml/StrFormat.h"

namespace orv::seasonal {

RegistryHistory::RegistryHistory(SettingsStore& store, std::string keyPath, std::string nameFormat, std::size_t limit)
    : store_(store), keyPath_(std::move(keyPath)), nameFormat_(std::move(nameFormat)), limit_(limit) {}

std::string RegistryHistory::NameOf(std::size_t number) const {
  // The format is one of the wizard's own, with exactly one %d.
#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#endif
  return orv::StrFormat(nameFormat_.c_str(), static_cast<int>(number));
#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif
}

void RegistryHistory::Load() {
  entries_.clear();
  for (std::size_t i = 1; i <= limit_; ++i) {
    std::string text = store_.ReadString(keyPath_, NameOf(i)).value_or(std::string());
    if (text.empty() || std::find(entries_.begin(), entries_.end(), text) != entries_.end()) continue;
    entries_.push_back(std::move(text));
  }
}

void RegistryHistory::Add(std::string_view text) {
  if (text.empty()) return;
  auto same = std::find(entries_.begin(), entries_.end(), text);
  if (same != entries_.end()) entries_.erase(same);
  entries_.insert(entries_.begin(), std::string(text));
  if (entries_.size() > limit_) entries_.pop_back();
}

void RegistryHistory::Save() {
  for (std::size_t i = 0; i < entries_.size(); ++i) store_.WriteString(keyPath_, NameOf(i + 1), entries_[i]);
  for (std::size_t number = entries_.size() + 1; number <= limit_; ++number)
    store_.DeleteValue(keyPath_, NameOf(number));
}

}  // namespace orv::seasonal
