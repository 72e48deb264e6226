// What the lines of a session may look like: a shape for each kind of line, against which every line is held
// before the session begins. A line that fits no shape is a mistake of whoever wrote it.
#pragma once

#include <string_view>

#include "session/Script.h"

namespace tarvik::session {

/// Whether a line fits a shape. A shape is made of the words of the line. Words in capitals are kinds of
/// word: CONTROL, FORM, NAME, PROPERTY, NUMBER, COUNT, HEX, KEY, TIME and TEXT; all others stand as they are.
/// "|" stands between words that can take each other's place, "[ ]" around a word that may be missing. "..."
/// behind a word means any number of it, and by itself at the end that everything behind the verb may come
/// again. A ":" at the end wants indented lines below, "[:]" allows them, "WORD|:" wants either; other shapes
/// have none.
[[nodiscard]] bool Fits(const Line& line, std::string_view shape);

/// The verb of a shape or a line, for the choice of the shapes that are told with a mistake.
[[nodiscard]] std::string_view Verb(std::string_view shape);

}  // namespace tarvik::session
