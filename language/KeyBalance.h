// Which keys the RAW codes of the two files leave pressed: those that a statement presses and does not let
// go, with the macros that it uses.
#pragma once

#include "language/Checking.h"

namespace tarvik::model {

/// In the order of the files. Behind /H it is the stick that lets go, so that nothing there counts.
[[nodiscard]] std::vector<KeyLeftDown> KeysLeftDown(const Checked& checked);
/// The make code of a key, as it is written.
[[nodiscard]] std::string CodeInWords(std::size_t key);

}  // namespace tarvik::model
