// The pages of the list: every action in a row, by control or by heading.
#pragma once

#include <vector>

#include "kneeboard/Options.h"
#include "kneeboard/Page.h"

namespace tarvik::kneeboard {

[[nodiscard]] std::vector<Page> ListPagesOf(const Contents& contents, const Options& options,
                                            const PageMaker& maker, const Legend& legend);

}  // namespace tarvik::kneeboard
