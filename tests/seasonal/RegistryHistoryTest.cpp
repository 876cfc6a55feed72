// RegistryHistory: numbered values of one key, most recent first, no repeats, bounded; and the
// text splitting the history's records rely on.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "seasonal/WizardSeasonState.h"

namespace orv::seasonal {
namespace {

using Strings = std::vector<std::string>;
constexpr char kKey[] = "Software\\ZEL\\Chart";

// Every value of the key as "s:text" or "d:number", by the name it was written with.
std::map<std::string, std::string> ValuesOf(const MemorySettingsStore& store, const std::string& key) {
  std::map<std::string, std::string> out;
  for (const auto& [folded, k] : store.keys()) {
    if (k.path != key) continue;
    for (const auto& [name, value] : k.values)
      out[k.names.at(name)] = value.isDword ? "d:" + std::to_string(value.dword) : "s:" + value.text;
  }
  return out;
}

TEST(RegistryHistory, LoadSkipsEmptyAndRepeatedValuesAndStopsAtTheLimit) {
  MemorySettingsStore store;
  store.WriteString(kKey, "Hist_1", "Corn");
  store.WriteString(kKey, "Hist_2", "");
  store.WriteString(kKey, "Hist_3", "Wheat");
  store.WriteString(kKey, "Hist_4", "Corn");
  store.WriteDword(kKey, "Hist_5", 7);  // of the wrong type: absent
  store.WriteString(kKey, "Hist_6", "Oats");
  store.WriteString(kKey, "Hist_7", "Rice");  // past the limit of 6
  store.WriteString(kKey, "Hist_0", "Zero");  // numbering starts at 1

  RegistryHistory history(store, kKey, "Hist_%d", 6);
  history.Load();
  EXPECT_EQ(history.Entries(), (Strings{"Corn", "Wheat", "Oats"}));

  history.Load();  // a second load starts afresh
  EXPECT_EQ(history.Entries(), (Strings{"Corn", "Wheat", "Oats"}));
}

TEST(RegistryHistory, AddPutsTheTextInFrontWithoutRepeatsAndDropsTheOldest) {
  struct Row {
    const char* name;
    Strings before;
    const char* text;
    Strings after;
  };
  const Row rows[] = {
      {"into empty", {}, "A", {"A"}},
      {"in front", {"A", "B"}, "C", {"C", "A", "B"}},
      {"repeat moves to front", {"A", "B", "C"}, "C", {"C", "A", "B"}},
      {"front stays", {"A", "B"}, "A", {"A", "B"}},
      {"empty ignored", {"A"}, "", {"A"}},
      {"over the limit drops the last", {"A", "B", "C"}, "D", {"D", "A", "B"}},
      {"repeat at the limit keeps all", {"A", "B", "C"}, "B", {"B", "A", "C"}},
      {"case counts", {"a"}, "A", {"A", "a"}},
  };
  for (const Row& row : rows) {
    MemorySettingsStore store;
    for (std::size_t i = 0; i < row.before.size(); ++i)
      store.WriteString(kKey, "H" + std::to_string(i + 1), row.before[i]);
    RegistryHistory history(store, kKey, "H%d", 3);
    history.Load();
    history.Add(row.text);
    EXPECT_EQ(history.Entries(), row.after) << row.name;
  }
}

TEST(RegistryHistory, SaveWritesFromOneAndDeletesTheRestUpToTheLimit) {
  MemorySettingsStore store;
  for (int i = 1; i <= 5; ++i) store.WriteString(kKey, "H" + std::to_string(i), "old" + std::to_string(i));
  store.WriteString(kKey, "H6", "beyond the limit");
  store.WriteString(kKey, "Other", "kept");

  RegistryHistory history(store, kKey, "H%d", 5);  // fresh: not loaded
  history.Add("x");
  history.Add("y");
  history.Save();
  EXPECT_EQ(ValuesOf(store, kKey),
            (std::map<std::string, std::string>{
                {"H1", "s:y"}, {"H2", "s:x"}, {"H6", "s:beyond the limit"}, {"Other", "s:kept"}}));

  RegistryHistory empty(store, kKey, "H%d", 5);
  empty.Save();
  EXPECT_EQ(ValuesOf(store, kKey),
            (std::map<std::string, std::string>{{"H6", "s:beyond the limit"}, {"Other", "s:kept"}}));
}

TEST(SplitText, SplitsAtTheWholeSeparator) {
  struct Row {
    const char* text;
    const char* separator;
    bool keepEmpty;
    Strings pieces;
  };
  const Row rows[] = {
      {"a?b?c", "?", false, {"a", "b", "c"}},
      {"?b??c?", "?", false, {"b", "c"}},
      {"?b??c?", "?", true, {"", "b", "", "c", ""}},
      {"", "?", false, {}},
      {"", "?", true, {""}},
      {"abc", "?", false, {"abc"}},
      {"a--b-c", "--", false, {"a", "b-c"}},
      {"a?b", "", false, {"a?b"}},
      {"", "", false, {}},
  };
  for (const Row& row : rows)
    EXPECT_EQ(SplitText(row.text, row.separator, row.keepEmpty), row.pieces)
        << '"' << row.text << "\" at \"" << row.separator << '"' << (row.keepEmpty ? " keeping empties" : "");
}

}  // namespace
}  // namespace orv::seasonal
