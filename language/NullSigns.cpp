#include "language/NullSigns.h"

#include <algorithm>

namespace tarvik::model {

NullSigns::NullSigns(const JoystickFile& file, std::string_view text) {
  for (std::size_t i = 0; i < file.size(); ++i) {
    if (file[i].row == nullptr || file[i].row->word != "NULLCHR") continue;
    const std::string_view lines = file.LinesOf(i, text);
    for (const Range& value : std::get<Setting>(file[i].body).values) signs_.push_back(In(lines, value));
  }
  if (signs_.empty()) signs_.push_back("^");
}

bool NullSigns::Hold(std::string_view word) const {
  return std::ranges::any_of(signs_, [word](std::string_view sign) { return SameWord(sign, word); });
}

}  // namespace tarvik::model
