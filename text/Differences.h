// In which lines two texts differ.
#pragma once

#include <string_view>
#include <vector>

#include "text/RichText.h"

namespace tarvik {

/// A place where one text has other lines than the other one. Either side may have none; positions are of
/// characters, a line's end is part of it.
struct Difference {
  Range before;
  Range after;
  std::size_t lines = 0;  ///< of the longer side

  friend bool operator==(const Difference&, const Difference&) = default;
};

/// The fewest there can be, in their order. Texts that have hardly a line in common, and are long, differ as
/// a whole: to look for the few would take too long.
[[nodiscard]] std::vector<Difference> DifferencesOf(std::string_view before, std::string_view after);

/// The same by single characters, for texts of a few thousand: it costs their length squared.
[[nodiscard]] std::vector<Difference> DifferencesByCharacter(std::string_view before, std::string_view after);

/// The lines of all of them.
[[nodiscard]] std::size_t LinesOf(const std::vector<Difference>& differences);

}  // namespace tarvik
