// The wizard's history in the current user's registry: what a finished run writes, the next run
// reads; values of the wrong type read as absent. The key is restored afterwards.
#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "seasonal/WizardSeasonState.h"

namespace orv::seasonal {
namespace {

// Every value the wizard writes, as it stood before the test; put back by the destructor.
class SavedWizardKey {
 public:
  explicit SavedWizardKey(SettingsStore& store) : store_(store) {
    for (const char* format :
         {kHistStartEndMonth, kHistSelYears, kHistSymbol, kHistFutureRoot, kHistFutureYr1, kHistFutureYr2}) {
      for (std::size_t i = 1; i <= kHistoryLimit; ++i) {
        std::string name = format;
        name.replace(name.find("%d"), 2, std::to_string(i));
        Save(name);
      }
    }
    Save(kValueFormSel);
    Save(kValueYearsBack);
  }
  ~SavedWizardKey() {
    for (const Saved& saved : saved_) {
      if (saved.text) {
        store_.WriteString(kSeasonalKey, saved.name, *saved.text);
      } else if (saved.dword) {
        store_.WriteDword(kSeasonalKey, saved.name, *saved.dword);
      } else {
        store_.DeleteValue(kSeasonalKey, saved.name);
      }
    }
  }

 private:
  struct Saved {
    std::string name;
    std::optional<std::string> text;
    std::optional<std::uint32_t> dword;
  };
  void Save(const std::string& name) {
    saved_.push_back({name, store_.ReadString(kSeasonalKey, name), store_.ReadDword(kSeasonalKey, name)});
  }
  SettingsStore& store_;
  std::vector<Saved> saved_;
};

TEST(WizardHistoryRegistry, AFinishedRunIsWhatTheNextRunReads) {
  std::unique_ptr<SettingsStore> store = CreateUserSettingsStore();
  ASSERT_TRUE(store);
  SavedWizardKey saved(*store);
  store->WriteString(kSeasonalKey, "Snl3WizSymbol_7", "stale");

  WizardSeasonState finished;
  finished.Start = MakeSeasonDate(2026, 11, 1);
  finished.End = MakeSeasonDate(2027, 2, 28);
  finished.YearsBack = 7;
  finished.SelYearIndexes = {0, 2, 5};
  finished.FormSel = kFormFuturesSpread;
  finished.Symbol1 = "CL";
  finished.Symbol2 = "HO";
  finished.Root1 = "@W";
  finished.Root2 = "@K";
  finished.Month1 = 2;
  finished.Month2 = 11;
  finished.Years1 = {2027, 2026};
  finished.Years2 = {2026, 2025};
  finished.Multiplier1 = 2.5;
  finished.Multiplier2 = 0.75;
  WriteHistory(finished, *store);

  EXPECT_EQ(store->ReadString(kSeasonalKey, "Snl3WizStartEndMonth_1"), "46327?46446");
  EXPECT_EQ(store->ReadString(kSeasonalKey, "Snl3WizFutureRoot_1"), "@W?@K?2?11?2.500000?0.750000");
  EXPECT_EQ(store->ReadDword(kSeasonalKey, kValueFormSel), 3u);
  EXPECT_FALSE(store->ReadString(kSeasonalKey, "Snl3WizSymbol_7"));
  EXPECT_FALSE(store->ReadString(kSeasonalKey, "Snl3WizSymbol_2"));

  WizardSeasonState next;
  ReadHistory(next, *store, FixedClock(DateTime{2026, 11, 24}));
  EXPECT_EQ(next.Start.value, 46327.0);
  EXPECT_EQ(next.End.value, 46446.0);
  EXPECT_EQ(next.YearsBack, 7);
  EXPECT_EQ(next.SelYearIndexes, (std::vector<int>{5, 2, 0}));  // most recent first
  EXPECT_EQ(next.FormSel, kFormFuturesSpread);
  EXPECT_EQ(next.Symbol1, "CL");
  EXPECT_EQ(next.Symbol2, "HO");
  EXPECT_EQ(next.Root1, "@W");
  EXPECT_EQ(next.Root2, "@K");
  EXPECT_EQ(next.Month1, 2);
  EXPECT_EQ(next.Month2, 11);
  EXPECT_EQ(next.Multiplier1, 2.5);
  EXPECT_EQ(next.Multiplier2, 0.75);
  EXPECT_EQ(next.Years1, (std::vector<int>{2026, 2027}));
  EXPECT_EQ(next.Years2, (std::vector<int>{2025, 2026}));
}

// A value of a raw registry type, as another program might have left it.
void SetRaw(const char* name, DWORD type, const void* data, DWORD size) {
  HKEY key = nullptr;
  ASSERT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, kSeasonalKey, 0, nullptr, 0, KEY_SET_VALUE, nullptr, &key, nullptr),
            ERROR_SUCCESS);
  EXPECT_EQ(RegSetValueExA(key, name, 0, type, static_cast<const BYTE*>(data), size), ERROR_SUCCESS);
  RegCloseKey(key);
}

// FormSel and YearsBack of another type than DWORD, the lists' values of another type than text.
TEST(WizardHistoryRegistry, ValuesOfOtherRegistryTypesReadAsAbsent) {
  std::unique_ptr<SettingsStore> store = CreateUserSettingsStore();
  ASSERT_TRUE(store);
  const DWORD three = 3;
  const unsigned long long seven = 7;
  for (const bool asText : {true, false}) {
    SCOPED_TRACE(asText ? "as text" : "binary and QWORD");
    SavedWizardKey saved(*store);
    if (asText) {
      SetRaw(kValueFormSel, REG_SZ, "3", 2);
      SetRaw(kValueYearsBack, REG_SZ, "7", 2);
    } else {
      SetRaw(kValueFormSel, REG_BINARY, &three, sizeof three);
      SetRaw(kValueYearsBack, REG_QWORD, &seven, sizeof seven);
    }
    SetRaw("Snl3WizSymbol_1", REG_EXPAND_SZ, "CL?HO", 6);
    SetRaw("Snl3WizSymbol_2", REG_SZ, "NG?HO", 6);
    SetRaw("Snl3WizSelYears_1", REG_DWORD, &three, sizeof three);
    WizardSeasonState next;
    ReadHistory(next, *store, FixedClock(DateTime{2026, 11, 24}));
    EXPECT_EQ(next.FormSel, 0);
    EXPECT_EQ(next.YearsBack, -1);
    EXPECT_EQ(next.Symbol1, "NG");
    EXPECT_TRUE(next.SelYearIndexes.empty());
  }
}

}  // namespace
}  // namespace orv::seasonal
