// A column of boxes beside a drawing: each as near to its control as the others let it be.
#pragma once

#include <vector>

#include "kneeboard/Box.h"

namespace tarvik::kneeboard {

/// A box beside the drawing, and the leader that goes from it.
class BesideBox {
 public:
  const BoxContent* content = nullptr;
  std::vector<Spot> leader =
      {};  ///< from the edge of the drawing, on the sheet; none for a box of no control
  Sheet box = {};
  double y = 0;           ///< of the upper edge of the box
  std::size_t noted = 0;  ///< letters of its notes

  /// Boxes without a leader come last.
  [[nodiscard]] double Entry() const { return leader.empty() ? kFarBelow : leader.front().y; }

 private:
  static constexpr double kFarBelow = 1e6;
};
using Column = std::vector<BesideBox>;

/// How high all boxes are with `space` between them.
[[nodiscard]] double HeightOf(const Column& column, double space);

/// Gives each box its `y` between `top` and `bottom`: they keep their order and their space, and their
/// middles are as near to their entries as can be. They must have room.
void Spread(Column& column, double top, double bottom, double space);

}  // namespace tarvik::kneeboard
