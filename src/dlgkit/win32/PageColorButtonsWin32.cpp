#include "dlgkit/win32/PageColorButtonsWin32.h"

#include <windows.h>

#include <map>

#include "dlgkit/win32/ColorPickerWin32.h"

namespace orv {

namespace {

class Win32PageColorButtons final : public orv::PageColorButtons {
 public:
  void Attach(WindowHandle dialog, int id, bool offerNoColor, std::uint32_t color) override {
    HWND control = ::GetDlgItem(static_cast<HWND>(dialog), id);
    if (control == nullptr) return;
    auto button = std::make_unique<CWtlColorBtn>();
    button->m_color = color;
    button->Popup().offerNoColor = offerNoColor;
    if (!button->SubclassWindow(control)) return;
    buttons_[id] = std::move(button);
  }
  bool IsAttached(int id) const override { return buttons_.count(id) != 0; }
  std::uint32_t Color(int id) const override {
    auto found = buttons_.find(id);
    return found == buttons_.end() ? 0 : found->second->m_color;
  }
  void SetColor(int id, std::uint32_t color) override {
    auto found = buttons_.find(id);
    if (found == buttons_.end()) return;
    found->second->m_color = color;
    ::InvalidateRect(found->second->Window(), nullptr, TRUE);
  }

 private:
  std::map<int, std::unique_ptr<CWtlColorBtn>> buttons_;
};

}  // namespace

std::unique_ptr<orv::PageColorButtons> MakeWin32PageColorButtons() { return std::make_unique<Win32PageColorButtons>(); }

}  // namespace orv
