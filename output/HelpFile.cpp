#include "output/HelpFile.h"

#include <algorithm>

#include "controls/Component.h"
#include "platform/CodePage.h"

namespace tarvik {
namespace {

constexpr std::string_view kTitle = "# ";
constexpr std::string_view kNoteStart = "<!--";
constexpr std::string_view kNoteEnd = "-->";

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") + 1 - first);
}

/// Takes the text up to the separator, and the separator, off the front.
std::string_view TakeUpTo(std::string_view& text, char separator) {
  const std::size_t end = std::min(text.find(separator), text.size());
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return Trimmed(part);
}

void TakeNote(std::string_view line, HelpTopic& topic) {
  std::string_view keywords =
      line.substr(kNoteStart.size(), line.size() - kNoteStart.size() - kNoteEnd.size());
  std::string_view numbers = TakeUpTo(keywords, ':');
  while (!numbers.empty()) {
    int number = 0;
    if (ParseText(TakeUpTo(numbers, ' '), number)) topic.contexts.push_back(number);
  }
  while (!keywords.empty()) {
    if (const std::string_view keyword = TakeUpTo(keywords, ','); !keyword.empty()) {
      topic.keywords.push_back(LowerCase(keyword));
    }
  }
}

}  // namespace

HelpFile::HelpFile(std::string_view text) {
  while (!text.empty()) {
    const std::string_view line = TakeUpTo(text, '\n');
    if (line.starts_with(kTitle)) topics_.push_back({std::string(line.substr(kTitle.size())), {}, {}, {}});
    if (topics_.empty()) continue;
    HelpTopic& topic = topics_.back();
    const bool note = line.size() >= kNoteStart.size() + kNoteEnd.size() && line.starts_with(kNoteStart) &&
                      line.ends_with(kNoteEnd);
    if (note) {
      TakeNote(line, topic);
    } else {
      topic.text.append(line).append("\n");
    }
  }
}

const HelpTopic* HelpFile::WithContext(int context) const {
  for (const HelpTopic& topic : topics_) {
    if (std::find(topic.contexts.begin(), topic.contexts.end(), context) != topic.contexts.end())
      return &topic;
  }
  return nullptr;
}

const HelpTopic* HelpFile::WithKeyword(std::string_view keyword) const {
  const std::string wanted = LowerCase(Trimmed(keyword));
  if (wanted.empty()) return nullptr;
  const HelpTopic* beginning = nullptr;
  for (const HelpTopic& topic : topics_) {
    for (const std::string& known : topic.keywords) {
      if (known == wanted) return &topic;
      if (!beginning && known.starts_with(wanted)) beginning = &topic;
    }
  }
  return beginning;
}

}  // namespace tarvik
