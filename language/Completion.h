// What may stand at a position, for whoever is writing there.
#pragma once

#include "language/Abilities.h"
#include "language/Names.h"

namespace tarvik::model {

enum class CandidateKind : std::uint8_t { Statement, Control, Flag, Modifier, Macro, Key, Word };

struct Candidate {
  CandidateKind kind = CandidateKind::Word;
  Range replaces;    ///< what is written already, up to the position; in the whole text
  std::string text;  ///< what comes in its place
  std::string note;  ///< a macro's keys and remark, a word's help; empty where there is nothing to say

  friend bool operator==(const Candidate&, const Candidate&) = default;
};

/// The most that are offered.
inline constexpr std::size_t kMostCandidates = 200;

/// Those that begin with what is written first, then those in which a word inside does, no matter in which
/// case. None in a remark, and where any word may stand.
[[nodiscard]] std::vector<Candidate> CandidatesAt(const FilePair& pair, const NameIndex& names,
                                                  const Abilities& abilities, FileKind file,
                                                  std::size_t position);

}  // namespace tarvik::model
