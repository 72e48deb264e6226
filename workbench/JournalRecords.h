// What stands in a journal: records, each with its length and a checksum before it, so that what a sudden end
// left half written, and what a disk changed, is told from what is whole.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "panes/Pane.h"

namespace tarvik {

/// What a text that is not saved is. The numbers stand in journals.
enum class TextKind : unsigned char { Joystick = 1, Macro = 2, Template = 3, Logic = 4 };

struct JournalHead {
  TextKind kind = TextKind::Joystick;
  std::string path;    ///< of its file, also of one that was never saved
  std::string name;    ///< by which the user knows it
  std::string host{};  ///< the host's path of the file; empty where nobody knew, as in journals of long ago
};

/// What a journal holds.
struct UnsavedText {
  JournalHead head;
  RichText text;
  std::string written;  ///< date and time of the last record, as the user's settings write them
  bool isWhole = true;  ///< false: what follows `text` is damaged
};

/// The first record of a journal.
[[nodiscard]] std::string HeadRecord(const JournalHead& head);
/// The whole text as it is now; the edits that follow belong to it.
[[nodiscard]] std::string TextRecord(const RichText& text);
/// One change of the text.
[[nodiscard]] std::string EditRecord(const PaneEdit& edit);
/// When the records before it were written.
[[nodiscard]] std::string TimeRecord(const std::string& time);

/// All that is whole, from the beginning on; nothing where not even the first text is.
[[nodiscard]] std::optional<UnsavedText> ReadJournal(std::string_view bytes);

}  // namespace tarvik
