#pragma once
// CLsPgAnchors<Base>: the position page of a study with several anchors (Base: CLsPgDayBase<id> or
// CLsPgIntraBase<id>): the study's wrapper element around the control points, and the snap box.
// The Gann and pitchfork pages are this alone; the Fibonacci pages add the font of their labels
// (LsPgFibo.h), the parallel channel its extend boxes and the rules that keep it parallel
// (LsPgParallel.h).

#include "linestudies/LsPgPosition.h"
#include "xml/Xml.h"

struct LsAnchorsLayout {
  const char* wrapper;  // CFibonacci, CGann, CPitchfork, CParallel
  int snapId;
  bool bestFitRule;  // the snap box is off on vertex 1 when vertex 0 snaps by best fit
};

template <class Base>
class CLsPgAnchors : public Base {
 public:
  // The points (MaxPos first on an Intra page) and the snap entries. The wrapper holds nothing
  // more of the page's own here.
  bool Load(XmlNode propertyPage) override {
    const bool loaded = this->LoadPoints(propertyPage);
    this->LoadSnapEntries(propertyPage);
    return loaded;
  }

  // The wrapper, with CLineStudy (PosLock, LS_CtrlPtList) in it; gives the wrapper.
  void Save(XmlNode parent) override { SaveWrapper(parent); }

  bool ExchangeExtra(bool save, int controlId) override {
    if (!Base::ExchangeExtra(save, controlId)) return false;
    return this->ExchangeSnap(save, controlId);
  }

  const LsAnchorsLayout& Layout() const { return layout_; }

 protected:
  explicit CLsPgAnchors(const LsAnchorsLayout& layout) : layout_(layout) {
    this->snapId_ = layout.snapId;
    this->bestFitRule_ = layout.bestFitRule;
  }

  XmlNode SaveWrapper(XmlNode parent) {
    XmlNode wrapper = XmlAddChild(parent, layout_.wrapper);
    CLsPgBase::Save(wrapper);
    return wrapper;
  }

 private:
  LsAnchorsLayout layout_;
};
