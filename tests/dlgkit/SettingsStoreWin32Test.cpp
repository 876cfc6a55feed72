// The registry store on the real (Wine) registry: the shared rules, and registry values of
// types and shapes that other programs or users may leave.

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "SettingsStoreRules.h"
#include "dlgkit/win32/SettingsStoreWin32.h"

namespace {

class RegistryStoreTest : public ::testing::Test {
 protected:
  void SetUp() override {
    key_ = "Software\\OrvChartDlgsTest\\" + std::to_string(::GetCurrentProcessId()) + "_" +
           ::testing::UnitTest::GetInstance()->current_test_info()->name();
  }
  void TearDown() override { ::RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\OrvChartDlgsTest"); }
  // Writes a raw value the store itself would never write.
  void WriteRaw(const char* name, DWORD type, const void* data, DWORD size) {
    HKEY key = nullptr;
    ASSERT_EQ(::RegCreateKeyExA(HKEY_CURRENT_USER, key_.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &key, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(::RegSetValueExA(key, name, 0, type, static_cast<const BYTE*>(data), size), ERROR_SUCCESS);
    ::RegCloseKey(key);
  }
  std::string key_;
  orv::RegistrySettingsStore store_;
};

TEST_F(RegistryStoreTest, KeepsTheRulesOfEveryStore) { orv::test::ExpectStoreRules(store_, key_); }

TEST_F(RegistryStoreTest, OtherTypesAndShapesReadAsAbsent) {
  WriteRaw("Expand", REG_EXPAND_SZ, "%TEMP%", 7);
  WriteRaw("Binary", REG_BINARY, "\x01\x02", 2);
  const unsigned long long big = 5;
  WriteRaw("Qword", REG_QWORD, &big, sizeof big);
  WriteRaw("ShortDword", REG_DWORD, "\x01\x02", 2);
  for (const char* name : {"Expand", "Binary", "Qword", "ShortDword", "Missing"}) {
    SCOPED_TRACE(name);
    EXPECT_FALSE(store_.ReadString(key_, name));
    EXPECT_FALSE(store_.ReadDword(key_, name));
  }
}

TEST_F(RegistryStoreTest, StringsWithoutTerminatorOrWithInnerNulsReadUpToTheNul) {
  WriteRaw("NoTerminator", REG_SZ, "Corn", 4);
  WriteRaw("InnerNul", REG_SZ, "ab\0cd", 6);
  WriteRaw("Empty", REG_SZ, "", 0);
  EXPECT_EQ(store_.ReadString(key_, "NoTerminator"), "Corn");
  EXPECT_EQ(store_.ReadString(key_, "InnerNul"), "ab");
  EXPECT_EQ(store_.ReadString(key_, "Empty"), "");
  const std::string longText(100000, 'x');
  ASSERT_TRUE(store_.WriteString(key_, "Long", longText));
  EXPECT_EQ(store_.ReadString(key_, "Long"), longText);
}

}  // namespace
