#pragma once
// CLsPgParallel<Base>: the parallel channel's position page (Base: CLsPgDayBase<1394> or
// CLsPgIntraBase<1395>). Four vertices: 0 and 1 the tops of the left and right side, 2 and 3 their
// bottoms. Its rules keep the figure a channel:
// - a side is vertical: after every saving exchange the other vertex of the edited one's side
//   takes its time (the date on a Day page; date, time, seconds, their texts and the bar on an
//   Intra page);
// - at most three vertices snap: a fourth snap clears the oldest, the fourth follows from the rest;
// - a typed value is kept and one vertex of the other line moves so that both sides have the same
//   height (LsKeepParallel below).
// ExtendLeft and ExtendRight, below CParallel, are the two extend boxes.

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <type_traits>
#include <vector>

#include "linestudies/LsPgAnchors.h"

inline constexpr int kLsParallelVertices = 4;

// The other vertex of the same side: 0 with 2, 1 with 3; -1 for an index that is no vertex.
int LsParallelPartner(int vertex);

// One vertex moved to keep the channel parallel.
struct LsParallelMove {
  int vertex;
  double value;
  friend bool operator==(const LsParallelMove&, const LsParallelMove&) = default;
};

// After the user typed the value of vertex `edited`: the vertex that moves and its new value, or
// none. The edited vertex and the snapped ones are fixed. The height (top less bottom) comes from
// a side whose two vertices are fixed, the edited one's first; the vertex of the other side that
// isn't fixed takes its partner's value plus the height (a top) or less it (a bottom), and when
// both are free, the one on the line opposite the edited vertex moves. When neither side has two
// fixed vertices, the edited vertex's side keeps its height and the other side's vertex on the
// opposite line moves; if that one is snapped, the other side keeps its height and the edited
// vertex's partner moves. So the line the user edited stays where it was put. A result of size
// 1e36 or more is no price: none.
std::optional<LsParallelMove> LsKeepParallel(int edited, const std::array<double, kLsParallelVertices>& values,
                                             const std::array<bool, kLsParallelVertices>& snapped);

template <class Base>
class CLsPgParallel : public CLsPgAnchors<Base> {
 public:
  static constexpr bool kIntra = std::is_base_of_v<CLsPgIntraPosition, Base>;
  static constexpr std::size_t kMaxSnapped = 3;

  bool Load(XmlNode propertyPage) override {
    const bool loaded = CLsPgAnchors<Base>::Load(propertyPage);
    XmlNode parallel = XmlFindNode(propertyPage, "CParallel", true);
    XmlGetChildValue(parallel, "ExtendLeft", extendLeft_);
    XmlGetChildValue(parallel, "ExtendRight", extendRight_);
    return loaded;
  }

  void Save(XmlNode parent) override {
    XmlNode parallel = this->SaveWrapper(parent);
    XmlAddValueChild(parallel, "ExtendLeft", extendLeft_);
    XmlAddValueChild(parallel, "ExtendRight", extendRight_);
  }

  bool ExchangeExtra(bool save, int controlId) override {
    if (!CLsPgAnchors<Base>::ExchangeExtra(save, controlId)) return false;
    ExchangeExtend(IDC_LS_PARALLEL_EXTEND_LEFT, extendLeft_, save, controlId);
    ExchangeExtend(IDC_LS_PARALLEL_EXTEND_RIGHT, extendRight_, save, controlId);
    return true;
  }

  // The side is vertical: the partner stands at the current vertex's time.
  void OnValuesSaved() override {
    const int partner = LsParallelPartner(this->currentVertex_);
    if (partner < 0) return;
    // Grow the list to both first: a point grown afterwards would move the other.
    this->Point(std::max(partner, this->currentVertex_));
    const CXYCoord& point = this->Point(this->currentVertex_);
    CXYCoord& other = this->Point(partner);
    other.lDate = point.lDate;
    if constexpr (kIntra) {
      other.lTime = point.lTime;
      other.lSec = point.lSec;
      other.dateText = point.dateText;
      other.timeText = point.timeText;
      other.xPos = point.xPos;
    }
  }

  // A typed value is kept; the other line follows it (see LsKeepParallel).
  void OnBeforeApply() override {
    if (!this->valueEdited_ || LsParallelPartner(this->currentVertex_) < 0) return;
    std::array<double, kLsParallelVertices> values{};
    std::array<bool, kLsParallelVertices> snapped{};
    for (int i = 0; i < kLsParallelVertices; ++i) {
      values[i] = this->Point(i).yValue;
      snapped[i] = this->Point(i).lSnap != kSnapNone;
    }
    if (const auto move = LsKeepParallel(this->currentVertex_, values, snapped))
      this->Point(move->vertex).yValue = move->value;
  }

  std::int32_t ExtendLeft() const { return extendLeft_; }
  std::int32_t ExtendRight() const { return extendRight_; }
  // The vertices in the order they got their snap, oldest first.
  const std::vector<int>& SnapOrder() const { return snapOrder_; }

 protected:
  explicit CLsPgParallel(const LsAnchorsLayout& layout) : CLsPgAnchors<Base>(layout) {}

  // At most three vertices snap: the oldest snap goes when a fourth comes.
  void OnSnapChanged() override {
    const int vertex = this->currentVertex_;
    std::erase(snapOrder_, vertex);
    if (this->Point(vertex).lSnap != kSnapNone) snapOrder_.push_back(vertex);
    if (snapOrder_.size() > kMaxSnapped) {
      this->Point(snapOrder_.front()).lSnap = kSnapNone;
      snapOrder_.erase(snapOrder_.begin());
    }
  }

  void OnPageCommand(int id, int code) override {
    const bool extend = id == IDC_LS_PARALLEL_EXTEND_LEFT || id == IDC_LS_PARALLEL_EXTEND_RIGHT;
    if (extend && code == orv::kBnClicked && !this->updating_) this->SetModified(true);
  }

 private:
  // A plain check box: any value but 0 shows checked; saving gives 0 or 1.
  void ExchangeExtend(int boxId, std::int32_t& field, bool save, int controlId) {
    if (!this->Covers(controlId, boxId)) return;
    if (save) {
      field = this->Ctl().IsDlgButtonChecked(boxId) == orv::kBstChecked ? 1 : 0;
    } else {
      this->Ctl().CheckDlgButton(boxId, field != 0 ? orv::kBstChecked : orv::kBstUnchecked);
    }
  }

  std::int32_t extendLeft_ = 0;
  std::int32_t extendRight_ = 0;
  std::vector<int> snapOrder_;
};
