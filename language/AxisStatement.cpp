#include "language/AxisStatement.h"

#include <algorithm>

namespace tarvik::model {
namespace {

Number ReadNumber(TokenCursor& cursor) {
  const std::string_view word = cursor.IsWord() ? cursor.Words() : std::string_view{};
  return {cursor.TakeWord(), NumberIn(word)};
}

}  // namespace

const AxisShape* FindAxis(std::string_view word) {
  const AxisShape* shape =
      std::ranges::find_if(kAxisShapes, [word](const AxisShape& each) { return SameWord(each.word, word); });
  return shape == std::end(kAxisShapes) ? nullptr : shape;
}

Axis ReadAxis(TokenCursor& cursor, const AxisShape& shape) {
  Axis axis{.shape = &shape, .word = cursor.Take(), .type = ReadNumber(cursor), .steps = {}, .keys = {}};
  const std::uint32_t type = axis.type.value.value_or(0);
  const std::size_t steps = type >= 1 && type <= std::size(shape.steps) ? shape.steps[type - 1] : 0;
  for (std::size_t i = 0; i < steps; ++i) axis.steps.push_back(ReadNumber(cursor));
  axis.keys = ReadSequence(cursor);
  return axis;
}

}  // namespace tarvik::model
