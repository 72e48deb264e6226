#include "kneeboard/Column.h"

#include <algorithm>

namespace tarvik::kneeboard {

double HeightOf(const Column& column, double space) {
  double height = column.empty() ? 0 : -space;
  for (const BesideBox& each : column) height += each.box.height + space;
  return height;
}

void Spread(Column& column, double top, double bottom, double space) {
  // Neighbours that would overlap become one block, which stands where its boxes want to be on average.
  struct Block {
    double wish;
    std::size_t boxes;
  };
  std::vector<Block> blocks;
  double above = 0;
  for (const BesideBox& each : column) {
    blocks.push_back({each.Entry() - each.box.height / 2 - above, 1});
    above += each.box.height + space;
    while (blocks.size() > 1 && blocks[blocks.size() - 2].wish > blocks.back().wish) {
      const Block last = blocks.back();
      blocks.pop_back();
      Block& block = blocks.back();
      const auto sum =
          static_cast<double>(block.boxes) * block.wish + static_cast<double>(last.boxes) * last.wish;
      block.boxes += last.boxes;
      block.wish = sum / static_cast<double>(block.boxes);
    }
  }
  const double lowest = bottom - HeightOf(column, space);
  above = 0;
  auto box = column.begin();
  for (const Block& block : blocks) {
    for (std::size_t i = 0; i < block.boxes; ++i, ++box) {
      box->y = std::max(top, std::min(block.wish, lowest)) + above;
      above += box->box.height + space;
    }
  }
}

}  // namespace tarvik::kneeboard
