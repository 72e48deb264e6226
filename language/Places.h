// The names that stand at a position, and where they are defined, used and renamed. All ranges are in the
// whole text of their file.
#pragma once

#include "language/Names.h"

namespace tarvik::model {

enum class NameKind : std::uint8_t { Macro, Flag, Control };

/// A name where it stands.
struct NameHere {
  NameKind kind = NameKind::Macro;
  std::string name;  ///< as the index has it: "Gun", "X12", "RKR UP"
  Mention mention;
  bool isDefinition = false;  ///< of a macro, of a flag by DEF, or of what a control sends

  friend bool operator==(const NameHere&, const NameHere&) = default;
};

/// The name that a position is in, or behind the last letter of; none where there is no name.
[[nodiscard]] std::optional<NameHere> NameAt(const NameIndex& names, FileKind file, std::size_t position);

/// Where the name at a position gets its meaning: a macro in the macro file, a flag by DEF, a control by its
/// statement. Empty where there is no name, or nothing gives it one.
[[nodiscard]] std::vector<Mention> DefinitionsOf(const NameIndex& names, FileKind file, std::size_t position);
/// All places that use the name at a position, those of the joystick file first.
[[nodiscard]] std::vector<Mention> UsesOf(const NameIndex& names, FileKind file, std::size_t position);

/// Whether a name is looked for in remarks, too, as a whole word.
enum class InComments : std::uint8_t { No, Yes };

/// All places where the macro or flag stands that is named, in the order of the text, those of the joystick
/// file first. Empty for any other name.
[[nodiscard]] std::vector<Mention> RenamePlaces(const FilePair& pair, const NameIndex& names,
                                                std::string_view name, InComments comments);

/// A sentence why a macro or flag cannot get a new name; none where it can. The name that it has already,
/// and that in other letters, will do.
[[nodiscard]] std::optional<std::string> WhyNoName(const NameIndex& names, NameKind kind,
                                                   std::string_view oldName, std::string_view newName);

}  // namespace tarvik::model
