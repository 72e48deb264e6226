#include "language/PicturedControls.h"

#include "text/Blanks.h"

namespace tarvik {

std::vector<std::string> ControlsOf(const tables::HardwareRow& row, std::string_view caption) {
  if (row.array == "TRIG") return {std::begin(tables::kTriggers), std::end(tables::kTriggers)};
  if (row.array == "ROTARY") return {std::string(WithoutBlanks(tables::kRotaries[row.index].search))};
  if (row.array == "BTN") return {std::string(WithoutBlanks(caption))};
  std::vector<std::string> tokens;
  const auto add = [&](const auto& positions) {
    for (const std::string_view position : positions) {
      tokens.push_back(std::string(tables::kHats[row.index]).append(position));
    }
  };
  add(tables::kHatPositions);
  add(tables::kHatCorners);
  return tokens;
}

}  // namespace tarvik
