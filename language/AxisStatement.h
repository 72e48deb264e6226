// An axis as keys, which stands in the joystick file as a statement and in the macro file behind a name. All
// ranges count from the beginning of the statement.
#pragma once

#include <array>

#include "language/Sequence.h"

namespace tarvik::model {

/// A number that a statement asks for. Where none comes, the range is empty; where another word stands in its
/// place, there is no value.
struct Number {
  Range range;
  std::optional<std::uint32_t> value;

  friend bool operator==(const Number&, const Number&) = default;
};

/// How many numbers of steps stand behind the type of an axis statement, before the keys.
struct AxisShape {
  std::string_view word;
  std::size_t steps[3];  ///< of the types 1, 2 and 3
};

inline constexpr AxisShape kAxisShapes[] = {
    {"THR", {2, 2, 0}}, {"RNG", {1, 1, 0}}, {"ANT", {1, 1, 0}},
    {"JSX", {1, 1, 0}}, {"JSY", {1, 1, 0}}, {"RDDR", {1, 1, 0}},
};

struct Axis {
  const AxisShape* shape = nullptr;  ///< a row of kAxisShapes
  Range word;
  Number type;
  std::vector<Number> steps;
  Sequence keys;

  friend bool operator==(const Axis&, const Axis&) = default;
};

/// The row of an axis' word, in either case; null for any other word.
[[nodiscard]] const AxisShape* FindAxis(std::string_view word);
/// Reads up to the end, from the axis' word on.
[[nodiscard]] Axis ReadAxis(TokenCursor& cursor, const AxisShape& shape);

}  // namespace tarvik::model
