// The settings store: absent and wrong-typed values, case-insensitive names, and the native
// file's robustness against what a user or a crash may leave in it.

#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include "dlgkit/SettingsStore.h"
#include "SettingsStoreRules.h"

namespace {

using orv::FileSettingsStore;
using orv::MemorySettingsStore;
using orv::test::ExpectStoreRules;
using orv::test::kKey;

TEST(SettingsStore, MemoryStoreKeepsTheRules) {
  MemorySettingsStore store;
  ExpectStoreRules(store);
}

class FileStoreTest : public ::testing::Test {
 protected:
  void SetUp() override {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    dir_ = std::filesystem::temp_directory_path() /
           ("orv-settings-" + std::string(info->name()) + "-" + std::to_string(std::random_device{}()));
    file_ = dir_ / "nested" / "settings.ini";
  }
  void TearDown() override {
    std::error_code ignored;
    std::filesystem::remove_all(dir_, ignored);
  }
  void WriteFile(const std::string& text) {
    std::filesystem::create_directories(file_.parent_path());
    std::ofstream(file_, std::ios::binary) << text;
  }
  std::filesystem::path dir_, file_;
};

TEST_F(FileStoreTest, KeepsTheRulesAndCreatesItsFolder) {
  FileSettingsStore store(file_);
  ExpectStoreRules(store);
  EXPECT_TRUE(std::filesystem::exists(file_));
  EXPECT_FALSE(std::filesystem::exists(file_.string() + ".tmp"));
  // A second store over the same file sees the same values.
  FileSettingsStore again(file_);
  EXPECT_EQ(again.ReadString(kKey, "History1"), "Corn \"Dec\" = 5%; [x]\r\nline2\ttab");
}

TEST_F(FileStoreTest, MalformedLinesAreIgnoredAndNothingElseIsLost) {
  static const char kText[] =
      "orphan=s:before any key\n"
      "[Software\\Orv\\Seasonal]\r\n"
      "Good1=s:kept\n"
      "no equals sign\n"
      "Typeless=kept?\n"
      "BadType=x:1\n"
      "BadNumber=d:12a\n"
      "TooBig=d:4294967296\n"
      "BadEscape=s:50%\n"
      "BadEscape2=s:%zz\n"
      "; a comment\n"
      "\n"
      "Good2=d:42\n"
      "[Broken header\n"
      "UnderBroken=s:not read\n"
      "[Software\\Orv\\Other]\n"
      "Good3=s:%0Anewline\n"
      "[bad%G1]\n"
      "UnderBadHeader=s:not read\n"
      "\xFF\xFE\x00garbage=s:\x01\n"
      "[Software\\Orv\\Other]\n"
      "Good4=s:last";  // no final newline
  WriteFile(std::string(kText, sizeof kText - 1));
  FileSettingsStore store(file_);
  EXPECT_EQ(store.ReadString(kKey, "Good1"), "kept");
  EXPECT_EQ(store.ReadDword(kKey, "Good2"), 42u);
  EXPECT_EQ(store.ReadString("Software\\Orv\\Other", "Good3"), "\nnewline");
  EXPECT_EQ(store.ReadString("Software\\Orv\\Other", "Good4"), "last");
  for (const char* name : {"orphan", "Typeless", "BadType", "BadNumber", "TooBig", "BadEscape", "BadEscape2",
                           "UnderBroken", "UnderBadHeader"}) {
    SCOPED_TRACE(name);
    EXPECT_FALSE(store.ReadString(kKey, name));
    EXPECT_FALSE(store.ReadDword(kKey, name));
    EXPECT_FALSE(store.ReadString("Software\\Orv\\Other", name));
  }
  // A write keeps every value that could be read.
  ASSERT_TRUE(store.WriteDword(kKey, "Added", 1));
  EXPECT_EQ(store.ReadString(kKey, "Good1"), "kept");
  EXPECT_EQ(store.ReadString("Software\\Orv\\Other", "Good4"), "last");
}

TEST_F(FileStoreTest, UnwritablePlaceFailsWithoutThrowing) {
  WriteFile("");
  // The file's folder is a file: nothing can be created below it.
  FileSettingsStore store(file_ / "below-a-file.ini");
  EXPECT_FALSE(store.WriteString(kKey, "X", "y"));
  EXPECT_FALSE(store.ReadString(kKey, "X"));
  EXPECT_FALSE(store.DeleteValue(kKey, "X"));
}

TEST(SettingsStoreFormat, SerializedTextParsesBackToTheSameValues) {
  MemorySettingsStore store;
  std::string everyByte;
  for (int c = 1; c < 256; ++c) everyByte += static_cast<char>(c);
  store.WriteString("Software\\A", everyByte, everyByte);
  store.WriteDword("Software\\B", "", 0);
  MemorySettingsStore back = FileSettingsStore::Parse(FileSettingsStore::Serialize(store));
  EXPECT_EQ(back.ReadString("Software\\A", everyByte), everyByte);
  EXPECT_EQ(back.ReadDword("Software\\B", ""), 0u);
}

}  // namespace
