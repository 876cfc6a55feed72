#pragma once
// CLsPgTrendline<Base>: what the studies that are one straight line add to a position page
// (Base: CLsPgDayBase<id> or CLsPgIntraBase<id>): their wrapper element, the extend boxes, the
// channel's multiplier and the snap box. Each page of the family only says which of them it has.

#include <cstdint>
#include <string>

#include "linestudies/LsPgPosition.h"
#include "xml/Xml.h"

// Which of the family's elements and controls a page has; 0 for a control it lacks.
struct LsTrendlineLayout {
  const char* wrapper;  // CTrendline, CLinRegChan, VolWgtAvgPrice
  int snapId;
  int extendLeftId;         // LSTrl_Extendpt1
  int extendRightId;        // LSTrl_Extendpt2
  int multiplierId;         // Multiplier
  bool readsVertexButtons;  // the horizontal and vertical lines keep theirs hidden
  bool bestFitRule;         // the snap box is off on the end when the start snaps by best fit
};

template <class Base>
class CLsPgTrendline : public Base {
 public:
  // The buffer the channel's multiplier is read through: the box holds 31 characters.
  static constexpr std::size_t kMultiplierBuffer = 32;

  bool Load(XmlNode propertyPage) override {
    const bool loaded = this->LoadPoints(propertyPage);
    this->LoadSnapEntries(propertyPage);
    XmlNode wrapper = XmlFindNode(propertyPage, layout_.wrapper, true);
    if (layout_.extendLeftId) XmlGetChildValue(wrapper, "LSTrl_Extendpt1", extend1_);
    if (layout_.extendRightId) XmlGetChildValue(wrapper, "LSTrl_Extendpt2", extend2_);
    if (layout_.multiplierId) XmlGetChildText(wrapper, "Multiplier", multiplier_);
    if (layout_.readsVertexButtons) this->LoadVertexButtons(propertyPage);
    return loaded;
  }

  void Save(XmlNode parent) override {
    XmlNode wrapper = XmlAddChild(parent, layout_.wrapper);
    CLsPgBase::Save(wrapper);
    if (layout_.extendLeftId) XmlAddValueChild(wrapper, "LSTrl_Extendpt1", extend1_);
    if (layout_.extendRightId) XmlAddValueChild(wrapper, "LSTrl_Extendpt2", extend2_);
    if (layout_.multiplierId) XmlAddTextChild(wrapper, "Multiplier", multiplier_);
  }

  bool OnInit() override {
    this->LimitTextField(layout_.multiplierId, kMultiplierBuffer);
    return Base::OnInit();
  }

  bool ExchangeExtra(bool save, int controlId) override {
    if (!Base::ExchangeExtra(save, controlId)) return false;
    this->ExchangeCheckField(layout_.extendLeftId, extend1_, save, controlId);
    this->ExchangeCheckField(layout_.extendRightId, extend2_, save, controlId);
    this->ExchangeTextField(layout_.multiplierId, multiplier_, kMultiplierBuffer, save, controlId);
    return this->ExchangeSnap(save, controlId);
  }

  std::int32_t ExtendLeft() const { return extend1_; }
  std::int32_t ExtendRight() const { return extend2_; }
  const std::string& Multiplier() const { return multiplier_; }
  const LsTrendlineLayout& Layout() const { return layout_; }

 protected:
  explicit CLsPgTrendline(const LsTrendlineLayout& layout) : layout_(layout) {
    this->snapId_ = layout.snapId;
    this->bestFitRule_ = layout.bestFitRule;
  }

  void OnPageCommand(int id, int code) override {
    // The extend boxes and the multiplier are the user's changes like any other.
    const bool extend = (id == layout_.extendLeftId || id == layout_.extendRightId) && code == orv::kBnClicked;
    const bool multiplier = id == layout_.multiplierId && code == orv::kEnChange;
    if (id != 0 && (extend || multiplier) && !this->updating_) this->SetModified(true);
  }

 private:
  LsTrendlineLayout layout_;
  std::int32_t extend1_ = 0;
  std::int32_t extend2_ = 0;
  std::string multiplier_;
};
