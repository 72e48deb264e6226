#include "kneeboard/Sheet.h"

namespace tarvik::kneeboard {
namespace {

void Move(Area& area, Spot by) {
  area.x += by.x;
  area.y += by.y;
}

void Move(std::vector<Spot>& corners, Spot by) {
  for (Spot& corner : corners) corner = {corner.x + by.x, corner.y + by.y};
}

template <class Item, class Where>
void Append(std::vector<Item>& onto, const std::vector<Item>& items, Where Item::*where, Spot by) {
  onto.reserve(onto.size() + items.size());
  for (const Item& item : items) {
    onto.push_back(item);
    Move(onto.back().*where, by);
  }
}

}  // namespace

void Place(Sheet& onto, const Sheet& part, Spot at) {
  Append(onto.drawings, part.drawings, &Drawing::area, at);
  Append(onto.frames, part.frames, &Frame::area, at);
  Append(onto.shapes, part.shapes, &Shape::corners, at);
  Append(onto.lines, part.lines, &Line::corners, at);
  Append(onto.words, part.words, &Words::area, at);
  Append(onto.targets, part.targets, &Target::area, at);
  onto.marks |= part.marks;
}

}  // namespace tarvik::kneeboard
