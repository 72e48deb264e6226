// The page of the keyboard: the keys as they lie, and below them what each sends, by heading in colours.
#pragma once

#include <vector>

#include "kneeboard/Options.h"
#include "kneeboard/Page.h"

namespace tarvik::kneeboard {

[[nodiscard]] std::vector<Page> KeyboardPagesOf(const Contents& contents, const PageMaker& maker);

}  // namespace tarvik::kneeboard
