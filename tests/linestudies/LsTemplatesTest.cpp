// The dialog templates of the trendline pages, read from their .rc files: the fake layouts the
// headless tests use hold the same controls (ids, kinds, which start hidden), and nothing on a
// page overlaps, leaves its group box or the dialog, or is obviously too narrow for its text.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "LsPageLayouts.h"

namespace {

namespace fs = std::filesystem;
using orv::FakeControlKind;

struct RcControl {
  std::string keyword;
  std::string text;
  int id = -1;
  FakeControlKind kind = FakeControlKind::Static;
  int x = 0, y = 0, w = 0, h = 0;
  bool visible = true;
  std::string line;
};

struct RcDialog {
  int id = 0;
  int width = 0, height = 0;
  std::vector<RcControl> controls;
};

std::string Trim(std::string s) {
  const auto b = s.find_first_not_of(" \t\r");
  const auto e = s.find_last_not_of(" \t\r");
  return b == std::string::npos ? "" : s.substr(b, e - b + 1);
}

// Splits on commas outside quotes.
std::vector<std::string> Fields(const std::string& text) {
  std::vector<std::string> out(1);
  bool quoted = false;
  for (char c : text) {
    if (c == '"') quoted = !quoted;
    if (c == ',' && !quoted) {
      out.emplace_back();
    } else {
      out.back() += c;
    }
  }
  for (auto& f : out) f = Trim(f);
  return out;
}

std::map<std::string, int> ReadDefines() {
  std::map<std::string, int> defines{{"-1", -1}};
  std::ifstream in(fs::path(ORV_LINESTUDIES_DIR) / "LineStudiesRes.h");
  std::string word, name;
  int value = 0;
  for (std::string line; std::getline(in, line);) {
    std::istringstream fields(line);
    if (fields >> word >> name >> value && word == "#define") defines[name] = value;
  }
  return defines;
}

std::map<int, RcDialog> ReadDialogs() {
  const auto defines = ReadDefines();
  auto number = [&](const std::string& token) {
    auto it = defines.find(token);
    return it != defines.end() ? it->second : std::stoi(token);
  };
  std::map<int, RcDialog> dialogs;
  for (const auto& entry : fs::directory_iterator(ORV_LINESTUDIES_DIR)) {
    if (entry.path().extension() != ".rc") continue;
    std::ifstream in(entry.path());
    RcDialog* dialog = nullptr;
    for (std::string line; std::getline(in, line);) {
      line = Trim(line);
      if (const auto at = line.find(" DIALOGEX "); at != std::string::npos) {
        const auto size = Fields(line.substr(at + 10));
        RcDialog& d = dialogs[number(line.substr(0, at))];
        d.id = number(line.substr(0, at));
        d.width = std::stoi(size[2]);
        d.height = std::stoi(size[3]);
        dialog = &d;
        continue;
      }
      if (!dialog || line.empty() || line == "BEGIN" || line == "END" || line.rfind("//", 0) == 0) continue;
      const auto space = line.find(' ');
      RcControl c;
      c.keyword = line.substr(0, space);
      if (c.keyword == "STYLE" || c.keyword == "CAPTION" || c.keyword == "FONT" || c.keyword == "#include") continue;
      const auto f = Fields(line.substr(space + 1));
      c.line = line;
      c.visible = line.find("NOT WS_VISIBLE") == std::string::npos;
      std::size_t at = 0;
      if (c.keyword != "EDITTEXT" && c.keyword != "COMBOBOX") c.text = f[at++];
      c.id = number(f[at++]);
      if (c.keyword == "CONTROL") {
        const std::string cls = f[at++];
        c.kind = cls == "\"SysDateTimePick32\"" ? FakeControlKind::DatePicker : FakeControlKind::UpDown;
        ++at;  // style
      } else if (c.keyword == "EDITTEXT") {
        c.kind = FakeControlKind::Edit;
      } else if (c.keyword == "COMBOBOX") {
        c.kind = FakeControlKind::ComboBox;
      } else if (c.keyword == "AUTORADIOBUTTON") {
        c.kind = FakeControlKind::RadioButton;
      } else if (c.keyword == "AUTOCHECKBOX") {
        c.kind = FakeControlKind::CheckBox;
      } else if (c.keyword == "AUTO3STATE") {
        c.kind = FakeControlKind::ThreeStateCheckBox;
      }
      c.x = std::stoi(f[at]), c.y = std::stoi(f[at + 1]), c.w = std::stoi(f[at + 2]), c.h = std::stoi(f[at + 3]);
      // A drop-down list's height is its open list; closed it is one line.
      if (c.kind == FakeControlKind::ComboBox) c.h = 14;
      dialog->controls.push_back(c);
    }
  }
  return dialogs;
}

// The Windows build runs its tests where the sources may not be reachable by that path.
#define REQUIRE_SOURCES()                                                          \
  if (!fs::is_directory(ORV_LINESTUDIES_DIR)) GTEST_SKIP() << "no sources at " ORV_LINESTUDIES_DIR

TEST(LsTemplates, FakeLayoutsHoldTheTemplatesControls) {
  REQUIRE_SOURCES();
  const auto dialogs = ReadDialogs();
  const auto defines = ReadDefines();
  for (int dialogId : lstest::kTrendlineDialogs) {
    SCOPED_TRACE(dialogId);
    ASSERT_TRUE(dialogs.count(dialogId)) << "no template";
    orv::FakeControls fake;
    ASSERT_TRUE(lstest::LsPageLayout(dialogId, fake));
    int ids = 0;
    for (const RcControl& c : dialogs.at(dialogId).controls) {
      if (c.id == -1) continue;
      ++ids;
      ASSERT_TRUE(fake.HasDlgItem(c.id)) << c.line;
      EXPECT_EQ(fake.Control(c.id).kind, c.kind) << c.line;
      EXPECT_EQ(fake.Control(c.id).visible, c.visible) << c.line;
    }
    int fakeIds = 0;
    for (const auto& [name, value] : defines) fakeIds += value > 0 && value != dialogId && fake.HasDlgItem(value);
    EXPECT_EQ(fakeIds, ids) << "the fake has controls the template lacks";
  }
}

TEST(LsTemplates, ControlsFitTheirDialogAndGroupsAndDontOverlap) {
  REQUIRE_SOURCES();
  ASSERT_GE(ReadDialogs().size(), 10u) << "the Advanced page and the nine trendline pages";
  for (const auto& [id, dialog] : ReadDialogs()) {
    SCOPED_TRACE(id);
    std::vector<const RcControl*> boxes, others;
    for (const RcControl& c : dialog.controls) (c.keyword == "GROUPBOX" ? boxes : others).push_back(&c);
    auto inside = [](const RcControl& a, const RcControl& box) {
      return a.x >= box.x && a.y >= box.y && a.x + a.w <= box.x + box.w && a.y + a.h <= box.y + box.h;
    };
    auto overlap = [](const RcControl& a, const RcControl& b) {
      return a.x < b.x + b.w && b.x < a.x + a.w && a.y < b.y + b.h && b.y < a.y + a.h;
    };
    for (const RcControl& c : dialog.controls) {
      EXPECT_GE(c.x, 0) << c.line;
      EXPECT_GE(c.y, 0) << c.line;
      EXPECT_LE(c.x + c.w, dialog.width) << c.line;
      EXPECT_LE(c.y + c.h, dialog.height) << c.line;
      // About 4 dialog units a character in the dialog font, 12 more for a box or a radio.
      if (c.keyword != "GROUPBOX" && !c.text.empty() && c.text != "\"\"") {
        const int needs = static_cast<int>(c.text.size() - 2) * 4 + (c.kind == FakeControlKind::Static ? 0 : 12);
        EXPECT_LE(needs, c.w) << "too narrow for its text: " << c.line;
      }
    }
    for (std::size_t i = 0; i < others.size(); ++i) {
      for (std::size_t j = i + 1; j < others.size(); ++j) {
        EXPECT_FALSE(overlap(*others[i], *others[j])) << others[i]->line << "\n" << others[j]->line;
      }
      // Either within a group box, or clear of it.
      for (const RcControl* box : boxes) {
        EXPECT_TRUE(inside(*others[i], *box) || !overlap(*others[i], *box)) << others[i]->line << "\n" << box->line;
      }
    }
  }
}

}  // namespace
