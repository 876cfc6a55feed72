#pragma once
// CLsPgFibo<Base>: the Fibonacci position page (Base: CLsPgDayBase<1314> or CLsPgIntraBase<1323>):
// the anchors of CFibonacci, the snap box, and the font of the study's ratio labels with the
// platform's font dialog. The Day page also reads the study's LS_Style: 3 is a study with three
// anchors (Start, Anchor1, Anchor2), anything else one with two (Start, End).
//
// LS_Style and LSFib_LineColor are read, never written back: a colour picked in the font dialog
// lasts as long as the sheet. The font goes back as the CFontInfo the record makes of it.

#include <cstdint>
#include <type_traits>

#include "dlgkit/FontInfo.h"
#include "linestudies/LsPgAnchors.h"

template <class Base>
class CLsPgFibo : public CLsPgAnchors<Base> {
 public:
  static constexpr bool kReadsStyle = std::is_base_of_v<CLsPgDayPosition, Base>;
  static constexpr std::int32_t kThreeAnchors = 3;

  bool Load(XmlNode propertyPage) override {
    const bool loaded = CLsPgAnchors<Base>::Load(propertyPage);
    XmlNode fibonacci = XmlFindNode(propertyPage, "CFibonacci", true);
    if (!fibonacci) return loaded;
    if constexpr (kReadsStyle) XmlGetChildValue(XmlFindNode(fibonacci, "CLineStudy", true), "LS_Style", style_);
    XmlGetChildValue(fibonacci, "LSFib_LineColor", lineColor_);
    orv::CFontInfo info;
    if (info.Read(fibonacci)) info.ToLogFont(font_);
    return loaded;
  }

  void Save(XmlNode parent) override {
    XmlNode fibonacci = this->SaveWrapper(parent);
    orv::CFontInfo info;
    info.FromLogFont(font_);
    info.Write(fibonacci);
  }

  const orv::LogFont& Font() const { return font_; }
  std::uint32_t LineColor() const { return lineColor_; }
  std::int32_t Style() const { return style_; }

 protected:
  CLsPgFibo(const LsAnchorsLayout& layout, int fontId) : CLsPgAnchors<Base>(layout), fontId_(fontId) {}

  void UpdateControls() override {
    CLsPgAnchors<Base>::UpdateControls();
    if constexpr (kReadsStyle) {
      // A study with two anchors: the second is its end, and there is no third.
      if (style_ != kThreeAnchors) {
        this->Ctl().SetDlgItemTextA(IDC_LS_VERTEX_1, "End");
        this->Ctl().ShowDlgItem(IDC_LS_VERTEX_2, false);
      }
    }
  }

  void OnPageCommand(int id, int code) override {
    if (id == fontId_ && code == orv::kBnClicked) ChooseLabelFont();
  }

 private:
  // The platform's font dialog: screen fonts and effects, starting from the page's font and the
  // study's line colour; OK takes both, Cancel changes nothing.
  void ChooseLabelFont() {
    orv::LogFont font = font_;
    std::uint32_t color = lineColor_;
    if (!this->Ctl().ChooseFontA(font, color)) return;
    font_ = font;
    lineColor_ = color;
    if (!this->updating_) this->SetModified(true);
  }

  int fontId_;
  orv::LogFont font_;
  std::uint32_t lineColor_ = 0;
  std::int32_t style_ = 0;
};
