// The words in which opening, saving and asking differ for the two files, and the filters of the file
// dialogs.
#pragma once

#include <string>
#include <string_view>

#include "language/Controllers.h"
#include "workbench/Document.h"

namespace tarvik {

/// The words in which the commands differ for the two files.
struct FileWords {
  const char* newQuestion;
  const char* loadQuestion;
  const char* refused;
  const char* created;
  const char* opening;
  const char* opened;  ///< null: nothing more is said
  const char* loadTag;
  const char* saveTag;
  std::string_view Endings::*ending;
  const char* kind;        ///< in the filters
  const char* kindToSave;  ///< in the filters of saving, behind a family of joysticks
};

[[nodiscard]] const FileWords& WordsOf(const Document& document);

/// `extension` is the one of the user's own hardware, which comes first.
[[nodiscard]] std::string FilterToOpen(const FileWords& words, const std::string& extension);
[[nodiscard]] std::string FilterToSave(const FileWords& words, const std::string& extension);
/// Of both kinds of files at once.
[[nodiscard]] std::string PairFilter(const std::string& joystick, const std::string& macro);

}  // namespace tarvik
