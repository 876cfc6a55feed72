#pragma once
// Colour buttons for the headless tests: while a FakePageColorButtons lives it is the platform's
// maker, and every button a page attaches is recorded here, with its colour and whether it offers
// no colour. `Pick` plays the user's choice in the drop-down: the button takes the colour and
// the page hears the button's click (BN_CLICKED through the fake controls), as on the platform.

#include <cstdint>
#include <map>
#include <memory>

#include "dlgkit/PageColorButtons.h"
#include "dlgkit/fake/ControlsFake.h"

namespace orv {

class FakePageColorButtons {
 public:
  struct Button {
    bool offerNoColor = false;
    std::uint32_t color = 0;
  };

  FakePageColorButtons() : previous_(SetPageColorButtonsMaker(&Make)) {
    previousCurrent_ = current_;
    current_ = this;
  }
  ~FakePageColorButtons() {
    SetPageColorButtonsMaker(previous_);
    current_ = previousCurrent_;
  }
  FakePageColorButtons(const FakePageColorButtons&) = delete;
  FakePageColorButtons& operator=(const FakePageColorButtons&) = delete;

  // The buttons attached so far, by control id (a later window's attach replaces a button).
  const std::map<int, Button>& Attached() const { return buttons_; }
  bool IsAttached(int id) const { return buttons_.count(id) != 0; }
  std::uint32_t Color(int id) const { return buttons_.at(id).color; }
  // The user picks `color` in the drop-down of button `id`; the page hears the click.
  void Pick(FakeControls& controls, int id, std::uint32_t color) {
    buttons_.at(id).color = color;
    controls.Click(id);
  }
  // The button holds `color` without a click (what a page reads when it reads every button).
  void Hold(int id, std::uint32_t color) { buttons_.at(id).color = color; }

 private:
  class Set final : public PageColorButtons {
   public:
    explicit Set(FakePageColorButtons& owner) : owner_(owner) {}
    void Attach(WindowHandle, int id, bool offerNoColor, std::uint32_t color) override {
      owner_.buttons_[id] = Button{offerNoColor, color};
    }
    bool IsAttached(int id) const override { return owner_.buttons_.count(id) != 0; }
    std::uint32_t Color(int id) const override {
      auto found = owner_.buttons_.find(id);
      return found == owner_.buttons_.end() ? 0 : found->second.color;
    }
    void SetColor(int id, std::uint32_t color) override {
      auto found = owner_.buttons_.find(id);
      if (found != owner_.buttons_.end()) found->second.color = color;
    }

   private:
    FakePageColorButtons& owner_;
  };
  static std::unique_ptr<PageColorButtons> Make() { return std::make_unique<Set>(*current_); }

  std::map<int, Button> buttons_;
  PageColorButtonsMaker previous_;
  FakePageColorButtons* previousCurrent_ = nullptr;
  static inline FakePageColorButtons* current_ = nullptr;
};

}  // namespace orv
