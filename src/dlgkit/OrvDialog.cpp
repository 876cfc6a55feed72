#include "dlgkit/OrvDialog.h"

#include <cctype>
#include <cstring>

namespace orv {
namespace {

bool ClassIs(const char* className, const char* expected) {
  for (; *className && *expected; ++className, ++expected)
    if (std::tolower(static_cast<unsigned char>(*className)) != std::tolower(static_cast<unsigned char>(*expected)))
      return false;
  return *className == *expected;
}

// The platform's notification records, as far as reflection reads them.
struct NotifyHeader {
  WindowHandle hwndFrom;
  std::uintptr_t idFrom;
  unsigned code;
};
struct DrawItemHead {  // DRAWITEMSTRUCT; COMPAREITEMSTRUCT has hwndItem at the same place
  unsigned ctlType, ctlId, itemId, itemAction, itemState;
  WindowHandle hwndItem;
};
struct CompareItemHead {
  unsigned ctlType, ctlId;
  WindowHandle hwndItem;
};
struct DeleteItemHead {
  unsigned ctlType, ctlId, itemId;
  WindowHandle hwndItem;
};
struct MeasureItemHead {
  unsigned ctlType, ctlId;
};

template <class Record>
const Record* As(std::intptr_t lParam) {
  return reinterpret_cast<const Record*>(lParam);
}

}  // namespace

double DisplayScale(WindowOps& ops) {
  int dpi = ops.GetDisplayLogPixelsY();
  return dpi > 0 ? dpi / 96.0 : 1.0;
}

void ScanDialogChildren(WindowOps& ops, WindowHandle dialog, bool themeActive, const ThemeColors& colors,
                        std::vector<std::unique_ptr<COrvThemedControl>>& controls, COrvTabbyCtrl*& tabControl,
                        std::vector<WindowHandle>& themeTargets) {
  const auto themeRecord = reinterpret_cast<std::intptr_t>(&colors);
  for (WindowHandle child = ops.GetWindow(dialog, kGwChild); child; child = ops.GetWindow(child, kGwHwndNext)) {
    char className[50] = {};
    char text[20] = {};
    ops.GetClassNameA(child, className, sizeof className);
    ops.GetWindowTextA(child, text, sizeof text);  // fetched as the dialogs always did; unused
    const std::int32_t style = ops.GetWindowLongA(child, kGwlStyle);

    std::unique_ptr<COrvThemedControl> control;
    bool themeOnly = false;  // no object, but the theme and a place among the targets
    if (ClassIs(className, "Button")) {
      const int kind = style & 15;
      if (kind == 7)
        control = std::make_unique<COrvGroupBox>();
      else if (kind < 2)
        control = std::make_unique<COrvButton>();
      else if (kind == 2 || kind == 3 || (style & 4) || kind == 9)
        control = std::make_unique<COrvRadioOrCheck>();
      else
        themeOnly = true;  // owner-drawn and the like, colour buttons among them
    } else if (ClassIs(className, "ComboBox")) {
      if (style & 16) {
        std::uint32_t answer = 0;
        ops.SendMessageA(child, WM_ORV_THEME_QUERY, 0, reinterpret_cast<std::intptr_t>(&answer));
      }
      control = std::make_unique<COrvComboBox>();
    } else if (ClassIs(className, "SysListView32")) {
      control = std::make_unique<COrvListViewCtrl>();
    } else if (ClassIs(className, "msctls_updown32")) {
      control = std::make_unique<COrvUpDownCtrl>();
    } else if (ClassIs(className, "SysTabControl32")) {
      control = std::make_unique<COrvTabbyCtrl>();
    } else if (ClassIs(className, "ColorWnd")) {
      themeOnly = true;
    } else if (ClassIs(className, "Edit")) {
      control = std::make_unique<COrvEditCtrl>();
    } else if (ClassIs(className, "LISTBOX")) {
      control = std::make_unique<COrvListBox>();
      ops.SetWindowLongA(child, kGwlStyle, style | kLbsNotify);
      ops.MeasureListBoxHorizontalExtent(child);
    } else if (ClassIs(className, "Static")) {
      // Right-aligned, centred, icon and frame statics stay plain.
      if ((style & 31) == 0) control = std::make_unique<COrvStaticText>();
    }

    if (control) {
      if (control->SubclassWindow(ops, child)) {
        if (themeActive) ops.SendMessageA(child, WM_ORV_THEME, 0, themeRecord);
        themeTargets.push_back(child);
        control->SetControlId(ops.GetDlgCtrlID(child));
        if (control->Kind() == ThemedControlKind::Tab) tabControl = static_cast<COrvTabbyCtrl*>(control.get());
        controls.push_back(std::move(control));
        continue;
      }
      // A window that can't be subclassed still gets the theme messages.
      themeOnly = true;
    }
    if (themeOnly) {
      if (themeActive) ops.SendMessageA(child, WM_ORV_THEME, 0, themeRecord);
      themeTargets.push_back(child);
    }
  }
}

WindowHandle NotificationSource(WindowOps& ops, WindowHandle dialog, unsigned message, std::uintptr_t wParam,
                                std::intptr_t lParam) {
  switch (message) {
    case kWmCommand:
      return reinterpret_cast<WindowHandle>(lParam);
    case kWmNotify:
      return lParam ? As<NotifyHeader>(lParam)->hwndFrom : nullptr;
    case kWmParentNotify: {
      const unsigned event = wParam & 0xFFFF;
      if (event == kWmCreate || event == kWmDestroy) return reinterpret_cast<WindowHandle>(lParam);
      return ops.GetDlgItem(dialog, static_cast<int>((wParam >> 16) & 0xFFFF));
    }
    // A zero wParam means a menu sent it, not a control.
    case kWmDrawItem:
      return wParam && lParam ? As<DrawItemHead>(lParam)->hwndItem : nullptr;
    case kWmMeasureItem:
      return wParam && lParam ? ops.GetDlgItem(dialog, static_cast<int>(As<MeasureItemHead>(lParam)->ctlId)) : nullptr;
    case kWmCompareItem:
      return wParam && lParam ? As<CompareItemHead>(lParam)->hwndItem : nullptr;
    case kWmDeleteItem:
      return wParam && lParam ? As<DeleteItemHead>(lParam)->hwndItem : nullptr;
    case kWmVKeyToItem:
    case kWmCharToItem:
    case kWmHScroll:
    case kWmVScroll:
    case kWmCtlColorMsgBox:
    case kWmCtlColorEdit:
    case kWmCtlColorListBox:
    case kWmCtlColorBtn:
    case kWmCtlColorDlg:
    case kWmCtlColorScrollBar:
    case kWmCtlColorStatic:
      return reinterpret_cast<WindowHandle>(lParam);
    default:
      return nullptr;
  }
}

}  // namespace orv
