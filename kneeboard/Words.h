// The names and remarks of the two files as words that a pilot reads.
#pragma once

#include <string>
#include <string_view>

namespace tarvik::kneeboard {

/// "Gear toggle" of "Gear_Toggle", "GearToggle" and "GEAR_TOGGLE". Short words in capital letters stay as
/// they are where the name has small letters beside them: "ECM on" of "ECM_On".
[[nodiscard]] std::string ReadableName(std::string_view name);
/// The text without blanks, rules and the sign of a remark at either end, with one blank between its words.
[[nodiscard]] std::string BareRemark(std::string_view remark);

}  // namespace tarvik::kneeboard
