// The fakes' tables against the platform: the program carries TemplateFixture.rc as a resource,
// the platform creates the dialog from it, and every control it made is the generated row's
// (class, button type, styles, rectangle through the dialog's own units).

#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <string>

#include "TemplateFixture.h"
#include "dlgkit/fake/TemplateLayout.h"

namespace orv {
namespace {

INT_PTR CALLBACK QuietDialogProc(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG; }

const char* ClassOf(FakeControlKind kind) {
  switch (kind) {
    case FakeControlKind::Static:
      return "Static";
    case FakeControlKind::Edit:
      return "Edit";
    case FakeControlKind::PushButton:
    case FakeControlKind::CheckBox:
    case FakeControlKind::RadioButton:
    case FakeControlKind::GroupBox:
      return "Button";
    case FakeControlKind::ComboBox:
      return "ComboBox";
    case FakeControlKind::ListBox:
      return "ListBox";
    case FakeControlKind::ListView:
      return "SysListView32";
    case FakeControlKind::UpDown:
      return "msctls_updown32";
    case FakeControlKind::DatePicker:
      return "SysDateTimePick32";
  }
  return "";
}

// The button type the row stands for.
LONG ButtonTypeOf(const TemplateControl& row) {
  switch (row.kind) {
    case FakeControlKind::CheckBox:
      if (row.threeState) return row.automatic ? BS_AUTO3STATE : BS_3STATE;
      return row.automatic ? BS_AUTOCHECKBOX : BS_CHECKBOX;
    case FakeControlKind::RadioButton:
      return row.automatic ? BS_AUTORADIOBUTTON : BS_RADIOBUTTON;
    case FakeControlKind::GroupBox:
      return BS_GROUPBOX;
    default:
      return -1;
  }
}

class Dialog {
 public:
  explicit Dialog(int id)
      : window_(CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(id), nullptr, QuietDialogProc, 0)) {}
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;
  ~Dialog() {
    if (window_) DestroyWindow(window_);
  }
  HWND get() const { return window_; }

 private:
  HWND window_;
};

TEST(TemplateLayoutWin32, ThePlatformCreatesWhatTheTablesSay) {
  INITCOMMONCONTROLSEX init = {sizeof(init), ICC_DATE_CLASSES | ICC_UPDOWN_CLASS | ICC_STANDARD_CLASSES};
  ASSERT_TRUE(InitCommonControlsEx(&init));
  const TemplateDialog* fixture = FindTemplate(templates::kDialogs, IDD_FIXTURE);
  ASSERT_NE(fixture, nullptr);
  Dialog dialog(IDD_FIXTURE);
  ASSERT_NE(dialog.get(), nullptr) << GetLastError();

  for (const TemplateControl& row : fixture->controls) {
    if (row.id == -1) continue;
    SCOPED_TRACE(row.line);
    HWND control = GetDlgItem(dialog.get(), row.id);
    ASSERT_NE(control, nullptr);
    char name[64] = {};
    GetClassNameA(control, name, sizeof(name));
    EXPECT_STRCASEEQ(name, ClassOf(row.kind));
    const LONG style = GetWindowLongA(control, GWL_STYLE);
    if (const LONG type = ButtonTypeOf(row); type != -1) {
      EXPECT_EQ(style & BS_TYPEMASK, type);
    }
    if (row.kind == FakeControlKind::PushButton) {
      EXPECT_LE(style & BS_TYPEMASK, BS_DEFPUSHBUTTON);
    }
    EXPECT_EQ((style & WS_VISIBLE) != 0, row.visible);
    EXPECT_EQ((style & WS_DISABLED) == 0, row.enabled);
    EXPECT_EQ((style & WS_GROUP) != 0, row.group);
    if (row.kind == FakeControlKind::Edit) {
      EXPECT_EQ((style & ES_READONLY) != 0, row.edit.readOnly);
      EXPECT_EQ((style & ES_NUMBER) != 0, row.edit.number);
    }
    char text[128] = {};
    if (row.kind != FakeControlKind::Edit && row.kind != FakeControlKind::ComboBox &&
        row.kind != FakeControlKind::DatePicker && row.kind != FakeControlKind::ListBox) {
      GetWindowTextA(control, text, sizeof(text));
      EXPECT_STREQ(text, row.text);
    }

    // The rectangle in dialog units, through the dialog's own font. Some controls size
    // themselves: a drop-down list is as tall as it is closed, a list box a whole number of
    // lines, an up-down as wide as the system's arrows; there only the place and what is left
    // of the size count.
    // The platform maps the place and the size each on its own.
    RECT place = {row.rect.left, row.rect.top, row.rect.left, row.rect.top};
    RECT size = {0, 0, row.rect.right - row.rect.left, row.rect.bottom - row.rect.top};
    ASSERT_TRUE(MapDialogRect(dialog.get(), &place));
    ASSERT_TRUE(MapDialogRect(dialog.get(), &size));
    const RECT expected = {place.left, place.top, place.left + size.right, place.top + size.bottom};
    RECT actual{};
    GetWindowRect(control, &actual);
    MapWindowPoints(nullptr, dialog.get(), reinterpret_cast<POINT*>(&actual), 2);
    EXPECT_EQ(actual.left, expected.left);
    EXPECT_EQ(actual.top, expected.top);
    if (row.kind != FakeControlKind::UpDown) {
      EXPECT_EQ(actual.right, expected.right);
    }
    if (row.kind != FakeControlKind::ComboBox && row.kind != FakeControlKind::ListBox) {
      EXPECT_EQ(actual.bottom, expected.bottom);
    }
  }
}

}  // namespace
}  // namespace orv
