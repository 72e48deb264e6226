// The topics of the help file, by number and by keyword. The help window shows them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

struct HelpTopic {
  std::string title;
  std::string group;  ///< the heading that it stands under in the contents
  std::vector<int> contexts;
  std::vector<std::string> keywords;
  std::string text;  ///< Markdown, the title included
};

/// The file is Markdown in the code page. A line "# Title" begins a topic; the line below it may be
/// "<!-- 3110 3111: find, search text -->" with its numbers and keywords. A line "<!-- group: Editing -->"
/// puts the topics that follow under that heading. What else stands before the first topic, and a note that
/// is malformed, is passed over.
class HelpFile {
 public:
  HelpFile() = default;
  explicit HelpFile(std::string_view text);

  [[nodiscard]] const std::vector<HelpTopic>& Topics() const { return topics_; }
  /// The topic of that number, null where none has it.
  [[nodiscard]] const HelpTopic* WithContext(int context) const;
  /// The topic with this keyword, else the first with one that begins with it, else that of the first word,
  /// without its number where it has one; else null. Case and blanks around it do not matter.
  [[nodiscard]] const HelpTopic* WithKeyword(std::string_view keyword) const;

  /// The topics in which each of the words begins one, in the order of the file: those first where all do so
  /// in the title, then those where they do in the keywords or the text. All topics for no words.
  [[nodiscard]] std::vector<const HelpTopic*> Search(std::string_view words) const;

 private:
  std::vector<HelpTopic> topics_;
};

/// A stretch of a text.
struct SearchHit {
  std::size_t start;
  std::size_t length;
};

/// Where a word of the text begins with one of the words that are searched for, whatever their case.
[[nodiscard]] std::vector<SearchHit> HitsIn(std::string_view text, std::string_view words);

}  // namespace tarvik
