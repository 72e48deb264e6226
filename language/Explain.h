// What a statement means, in sentences as a person would say it.
#pragma once

#include "language/Names.h"

namespace tarvik::model {

/// The statement or the macro at a position. Empty for a blank line and for a remark.
[[nodiscard]] std::string Explain(const FilePair& pair, const NameIndex& names, FileKind file,
                                  std::size_t position);
/// The word at a position: of a macro its definition, its keys and its remark, each on a line of its own; of
/// a control and of a flag what they do; of a word of the language what it is for; of a key its name.
[[nodiscard]] std::string Hover(const FilePair& pair, const NameIndex& names, FileKind file,
                                std::size_t position);

}  // namespace tarvik::model
