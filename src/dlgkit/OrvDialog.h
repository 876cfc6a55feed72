#pragma once
// COrvDialog<T>: the mix-in every dialog, property page and wizard page inherits. It turns the
// plain children of a dialog template into themed control objects (SubclassControls), fetches
// the host's theme and pushes it into them (LoadTheme), paints the dialog in that theme
// (ProcessThemeMessage), reflects notifications to the controls that sent them, and keeps the
// display scale.
//
// Use, from a page's init handler (the page driver hands over the WindowOps and the window):
//   AttachWindow(ops, window); SubclassControls(); LoadTheme();
// and in its message handling, behind the page's own handlers:
//   if (ProcessThemeMessage(...)) return; if (ReflectNotifications(...)) return;

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "dlgkit/HostServices.h"
#include "dlgkit/ThemeColors.h"
#include "dlgkit/ThemedControls.h"
#include "dlgkit/Window.h"
#include "dlgkit/WindowOps.h"

namespace orv {

// LOGPIXELSY of the "DISPLAY" device over 96.0; 1.0 when the device answers nonsense.
double DisplayScale(WindowOps& ops);

// The child scan over a dialog's direct children; see COrvDialog::SubclassControls.
void ScanDialogChildren(WindowOps& ops, WindowHandle dialog, bool themeActive, const ThemeColors& colors,
                        std::vector<std::unique_ptr<COrvThemedControl>>& controls, COrvTabbyCtrl*& tabControl,
                        std::vector<WindowHandle>& themeTargets);

// The child that sent a notification the way the platform's window libraries find it for
// reflection; null when the message names none.
WindowHandle NotificationSource(WindowOps& ops, WindowHandle dialog, unsigned message, std::uintptr_t wParam,
                                std::intptr_t lParam);

}  // namespace orv

template <class T>
class COrvDialog {
 public:
  // Before any window exists: the default colours, their brushes and the display scale.
  COrvDialog() : COrvDialog(orv::DefaultWindowOps()) {}
  explicit COrvDialog(orv::WindowOps& ops) : m_ops(&ops) {
    m_backgroundBrush = orv::Brush(ops, m_colors[0]);
    m_fieldBrush = orv::Brush(ops, m_colors[4]);
    m_displayScale = orv::DisplayScale(ops);
  }
  COrvDialog(const COrvDialog&) = delete;
  COrvDialog& operator=(const COrvDialog&) = delete;
  // Control objects go first (they give their windows back), then the brushes.
  virtual ~COrvDialog() = default;

  // Called once, the first time the dialog or a static asks for its colours.
  virtual void OnFirstColor() {}

  // The dialog's window, and the operations on it; before SubclassControls().
  // The whole dialog is painted again.
  void Repaint() {
    if (m_window) m_ops->InvalidateRect(m_window, nullptr, true);
  }

  void AttachWindow(orv::WindowOps& ops, orv::WindowHandle window) {
    if (&ops != m_ops) {
      // Brushes belong to the operations that made them.
      m_ops = &ops;
      m_backgroundBrush = orv::Brush(ops, m_colors[0]);
      m_fieldBrush = orv::Brush(ops, m_colors[4]);
    }
    m_window = window;
  }

  // Turns the dialog's children into themed control objects. Once per dialog: a second call
  // (or one before AttachWindow) does nothing.
  void SubclassControls() {
    if (m_scanned || !m_window) return;
    m_scanned = true;
    orv::ScanDialogChildren(*m_ops, m_window, m_themeActive, m_colors, m_controls, m_tabControl, m_themeTargets);
  }

  // Fetches the host's theme and pushes it into every theme target. False when there is no
  // settings service or no theme: the defaults stay. A failed call raises XmlComError.
  bool LoadTheme() {
    m_displayScale = orv::DisplayScale(*m_ops);
    auto settings = orv::CurrentHostServices().CreateSettingsService();
    if (!settings) return false;
    // The record is taken only when the host says it holds a theme.
    ThemeColors received = m_colors;
    std::int32_t result = 0;
    settings->GetTheme(received, 0, result);
    if (result != 0) return false;
    m_colors = received;
    m_backgroundBrush.Reset();
    m_fieldBrush.Reset();
    m_backgroundBrush = orv::Brush(*m_ops, m_colors[0]);
    m_fieldBrush = orv::Brush(*m_ops, m_colors[4]);
    for (orv::WindowHandle target : m_themeTargets)
      m_ops->SendMessageA(target, WM_ORV_THEME, 0, reinterpret_cast<std::intptr_t>(&m_colors));
    Repaint();
    m_themeActive = true;
    return true;
  }

  // The dialog's own painting; map 0 only. True when handled, with `result` the answer.
  bool ProcessThemeMessage(orv::WindowHandle window, unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                           std::intptr_t& result, unsigned long mapId = 0) {
    if (mapId != 0) return false;
    auto dc = reinterpret_cast<orv::DeviceContext>(wParam);
    switch (message) {
      case orv::kWmEraseBkgnd: {
        // Also without a theme: the default colours paint a dialog whose theme never came.
        orv::WindowRect client;
        m_ops->GetClientRect(window, client);
        m_ops->FillRect(dc, client, m_backgroundBrush.get());
        result = 0;
        return true;
      }
      case orv::kWmCtlColorDlg:
      case orv::kWmCtlColorStatic:
        return AnswerColor(dc, m_backgroundBrush, m_colors[0], result);
      case orv::kWmCtlColorEdit:
        // A date picker asks for its field's brush but draws its text in the system's colour:
        // it keeps the system's field, or a dark theme would hide its date.
        if (IsDatePicker(reinterpret_cast<orv::WindowHandle>(lParam))) return false;
        return AnswerColor(dc, m_fieldBrush, m_colors[4], result);
      case orv::kWmCtlColorListBox:
        return AnswerColor(dc, m_fieldBrush, m_colors[4], result);
      default:
        return false;
    }
  }

  // Sends a notification the dialog didn't handle back to the control that sent it, as message
  // + 0x2000 (WM_COMMAND, WM_NOTIFY, WM_DRAWITEM, WM_MEASUREITEM, WM_CTLCOLOR*, ...).
  bool ReflectNotifications(orv::WindowHandle window, unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                            std::intptr_t& result) {
    orv::WindowHandle child = orv::NotificationSource(*m_ops, window, message, wParam, lParam);
    if (!child) return false;
    result = m_ops->SendMessageA(child, message + orv::kReflectedMessageBase, wParam, lParam);
    return true;
  }

  bool IsThemeActive() const { return m_themeActive; }
  const ThemeColors& GetThemeColors() const { return m_colors; }
  double GetDisplayScale() const { return m_displayScale; }
  orv::BrushHandle GetBackgroundBrush() const { return m_backgroundBrush.get(); }
  orv::BrushHandle GetFieldBrush() const { return m_fieldBrush.get(); }
  const std::vector<std::unique_ptr<COrvThemedControl>>& GetControlObjects() const { return m_controls; }
  COrvTabbyCtrl* GetTabControl() const { return m_tabControl; }
  const std::vector<orv::WindowHandle>& GetThemeTargets() const { return m_themeTargets; }

 protected:
  bool m_themeActive = false;
  bool m_hookCalled = false;
  ThemeColors m_colors;
  orv::Brush m_backgroundBrush;
  orv::Brush m_fieldBrush;
  double m_displayScale = 1.0;
  std::vector<std::unique_ptr<COrvThemedControl>> m_controls;
  COrvTabbyCtrl* m_tabControl = nullptr;  // one of m_controls
  std::vector<orv::WindowHandle> m_themeTargets;

 private:
  bool IsDatePicker(orv::WindowHandle control) {
    char name[32] = {};
    return control && m_ops->GetClassNameA(control, name, sizeof name) > 0 &&
           std::string_view(name) == "SysDateTimePick32";
  }

  bool AnswerColor(orv::DeviceContext dc, const orv::Brush& brush, std::uint32_t brushColor, std::intptr_t& result) {
    if (!m_hookCalled) {
      m_hookCalled = true;
      OnFirstColor();
    }
    if (!m_themeActive) {
      result = 0;
      return false;
    }
    m_ops->SetBkMode(dc, orv::kBkModeTransparent);
    m_ops->SetTextColor(dc, m_colors[3]);
    // Controls that draw their text opaque (list items, a combo's field) take the brush's colour.
    m_ops->SetBkColor(dc, brushColor);
    result = reinterpret_cast<std::intptr_t>(brush.get());
    return true;
  }

  orv::WindowOps* m_ops;
  orv::WindowHandle m_window = nullptr;
  bool m_scanned = false;
};

namespace orv {

// The theme fetched anew from the host and pushed into the dialog: the display scale from the
// "DISPLAY" device, the settings service (none: false), GetTheme (a non-zero result: false),
// new brushes in the background and field colours, WM_ORV_THEME to every registered control,
// the dialog invalidated with erasing and marked as themed. COrvDialog::LoadTheme is this
// pattern; a failed call raises XmlComError.
template <class T>
bool RefreshTheme(COrvDialog<T>& dialog) {
  return dialog.LoadTheme();
}

}  // namespace orv
