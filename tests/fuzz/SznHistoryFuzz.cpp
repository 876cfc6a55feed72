// Any settings file as the seasonal wizard's history: read, the defaults, the labels, written to a
// fresh store. Never a crash; the next read of what was written gives the same fields, the lists
// as the history keeps them (most recent first, without repeats, at most 20).
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "seasonal/WizardSeasonState.h"
#include "xml/StrFormat.h"

namespace {

using orv::seasonal::WizardSeasonState;

// A list as the history keeps it once each value was added in order.
std::vector<int> AsKept(const std::vector<int>& added) {
  std::vector<int> kept;
  for (int value : added) {
    kept.erase(std::remove(kept.begin(), kept.end(), value), kept.end());
    kept.insert(kept.begin(), value);
  }
  if (kept.size() > orv::seasonal::kHistoryLimit) kept.resize(orv::seasonal::kHistoryLimit);
  return kept;
}

std::string HistoryFields(const WizardSeasonState& s, bool asKept) {
  std::string out =
      orv::StrFormat("%d|%d|%d|%d|%s|%s|%s|%s|%d|%d|%f|%f|", static_cast<int>(s.Start.value),
                     static_cast<int>(s.End.value), s.FormSel, s.YearsBack, s.Symbol1.c_str(), s.Symbol2.c_str(),
                     s.Root1.c_str(), s.Root2.c_str(), s.Month1, s.Month2, s.Multiplier1, s.Multiplier2);
  for (const auto* list : {&s.SelYearIndexes, &s.Years1, &s.Years2}) {
    for (int v : asKept ? AsKept(*list) : *list) out += orv::StrFormat("%d,", v);
    out += '|';
  }
  return out;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  orv::MemorySettingsStore store = orv::FileSettingsStore::Parse(text);
  const orv::FixedClock clock(orv::DateTime{2026, 11, 24, 12, 0, 0});

  WizardSeasonState state;
  orv::seasonal::ReadHistory(state, store, clock);
  orv::seasonal::ApplyDefaults(state);
  orv::seasonal::BuildContractLabels(state);
  orv::MemorySettingsStore written;
  orv::seasonal::WriteHistory(state, written);

  WizardSeasonState next;
  orv::seasonal::ReadHistory(next, written, clock);
  if (HistoryFields(next, false) != HistoryFields(state, true)) std::abort();
  return 0;
}
