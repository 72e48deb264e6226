// Where the keywords of a table of passes stand in a file, found in one walk over the file instead of one a
// pass. The painting of whole files works on it.
#pragma once

#include <cstdint>
#include <vector>

#include "language/Passes.h"

namespace tarvik {

class KeywordHits {
 public:
  /// Takes at most 64 passes, and a text below 4 GB.
  KeywordHits(std::string_view text, std::span<const Pass> passes);

  /// The positions of all hits of a pass's text under its options, in order; of a FollowedWord, those before
  /// its follow character. Hits may overlap.
  [[nodiscard]] std::span<const std::uint32_t> Of(std::size_t pass) const { return hits_[pass]; }

 private:
  void Add(std::uint64_t passes, std::size_t hit);

  std::string_view text_;
  std::span<const Pass> passes_;
  std::vector<std::vector<std::uint32_t>> hits_;
};

}  // namespace tarvik
