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
  /// Null where no topic has the number.
  [[nodiscard]] const HelpTopic* WithContext(int context) const;
  /// The topic with this keyword, else the first with one that begins with it, else that of the first word,
  /// without its number where it has one; else null. Case and blanks around it do not matter.
  [[nodiscard]] const HelpTopic* WithKeyword(std::string_view keyword) const;

  /// The topics whose title, keywords or text hold the words, in the order of the file; all for none.
  [[nodiscard]] std::vector<const HelpTopic*> Search(std::string_view words) const;

 private:
  std::vector<HelpTopic> topics_;
};

}  // namespace tarvik
