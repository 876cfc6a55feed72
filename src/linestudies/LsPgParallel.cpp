#include "linestudies/LsPgParallel.h"

#include <cmath>

#include "linestudies/XYCoord.h"

int LsParallelPartner(int vertex) {
  if (vertex < 0 || vertex >= kLsParallelVertices) return -1;
  return (vertex % 2) * 2 + 2 - vertex;
}

std::optional<LsParallelMove> LsKeepParallel(int edited, const std::array<double, kLsParallelVertices>& values,
                                             const std::array<bool, kLsParallelVertices>& snapped) {
  const int partner = LsParallelPartner(edited);
  if (partner < 0) return std::nullopt;
  const int across = edited ^ 1;                        // the edited line's vertex on the other side
  const int acrossPartner = LsParallelPartner(across);  // the other side's vertex on the opposite line
  auto fixed = [&](int vertex) { return vertex == edited || snapped[static_cast<std::size_t>(vertex)]; };
  // Sides by their top vertex: 0 left, 1 right; the bottom is the top + 2.
  auto sideFixed = [&](int side) { return fixed(side) && fixed(side + 2); };
  const int editedSide = edited % 2;
  const int otherSide = 1 - editedSide;

  int heightSide = -1;
  int moving = -1;
  if (sideFixed(editedSide)) {
    heightSide = editedSide;
    moving = !fixed(acrossPartner) ? acrossPartner : !fixed(across) ? across : -1;
  } else if (sideFixed(otherSide)) {
    heightSide = otherSide;
    moving = partner;
  } else if (!fixed(acrossPartner)) {
    heightSide = editedSide;
    moving = acrossPartner;
  } else {
    heightSide = otherSide;
    moving = partner;
  }
  const int anchorVertex = LsParallelPartner(moving);
  if (moving < 0 || anchorVertex < 0) return std::nullopt;

  const double height = values[static_cast<std::size_t>(heightSide)] - values[static_cast<std::size_t>(heightSide + 2)];
  const double anchor = values[static_cast<std::size_t>(anchorVertex)];
  const double value = moving < 2 ? anchor + height : anchor - height;
  // No price: the vertex stays where it was.
  if (!(std::fabs(value) < kLsNoDataLimit)) return std::nullopt;
  return LsParallelMove{moving, value};
}
