#include "dlgkit/PageColorButtons.h"

namespace orv {

namespace {
PageColorButtonsMaker g_maker = nullptr;
}  // namespace

PageColorButtonsMaker SetPageColorButtonsMaker(PageColorButtonsMaker maker) noexcept {
  const PageColorButtonsMaker previous = g_maker;
  g_maker = maker;
  return previous;
}

std::unique_ptr<PageColorButtons> MakePageColorButtons() { return g_maker ? g_maker() : nullptr; }

}  // namespace orv
