#pragma once
// The platform's colour buttons of a chart page's window. A page keeps its colours itself and
// hands them to the buttons when its window opens; while the window lives the buttons hold what
// the user picks. Without a platform maker (natively, in the headless tests) a page has no
// buttons and its held colours are all there is.

#include <cstdint>
#include <memory>

#include "dlgkit/Window.h"

namespace orv {

class PageColorButtons {
 public:
  virtual ~PageColorButtons() = default;
  // Makes control `id` of `dialog` a colour button showing `color`; `offerNoColor` lets its
  // drop-down choose no colour ("Hide"). Before the dialog's theme is loaded.
  virtual void Attach(WindowHandle dialog, int id, bool offerNoColor, std::uint32_t color) = 0;
  virtual bool IsAttached(int id) const = 0;
  virtual std::uint32_t Color(int id) const = 0;
  // Sets the colour and repaints the button.
  virtual void SetColor(int id, std::uint32_t color) = 0;
};

using PageColorButtonsMaker = std::unique_ptr<PageColorButtons> (*)();
// The platform's maker; null (the default) for none. Returns the previous one.
PageColorButtonsMaker SetPageColorButtonsMaker(PageColorButtonsMaker maker) noexcept;
// A new set from the platform's maker, or null.
std::unique_ptr<PageColorButtons> MakePageColorButtons();

}  // namespace orv
