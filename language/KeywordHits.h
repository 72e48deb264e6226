// Where the texts of a table of passes stand in a file, found in one walk over the file instead of one a
// pass. The painting of whole files works on it.
#pragma once

#include <vector>

#include "language/Passes.h"

namespace tarvik {

class KeywordHits {
 public:
  KeywordHits(const SearchableText& in, std::span<const Pass> passes);

  /// The positions of all hits of a pass's text under its options, in order. Hits may overlap.
  [[nodiscard]] std::span<const std::size_t> Of(std::size_t pass) const { return hits_[pass]; }

 private:
  std::vector<std::vector<std::size_t>> hits_;
};

}  // namespace tarvik
