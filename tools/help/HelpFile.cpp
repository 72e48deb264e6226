#include "tools/help/HelpFile.h"

#include <algorithm>
#include <cctype>

#include "controls/Component.h"
#include "text/Blanks.h"
#include "text/CodePage.h"

namespace tarvik {
namespace {

constexpr std::string_view kTitle = "# ";
constexpr std::string_view kNoteStart = "<!--";
constexpr std::string_view kNoteEnd = "-->";
constexpr std::string_view kGroup = "group:";

std::string_view Trimmed(std::string_view text) { return WithoutBlanks(text, " \t\r\n"); }

/// Takes the text up to the separator, and the separator, off the front.
std::string_view TakeUpTo(std::string_view& text, char separator) {
  const std::size_t end = std::min(text.find(separator), text.size());
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return Trimmed(part);
}

/// The blanks in front of an example belong to it.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line.substr(0, line.find_last_not_of(" \t\r") + 1);
}

bool IsNote(std::string_view line) {
  return line.size() >= kNoteStart.size() + kNoteEnd.size() && line.starts_with(kNoteStart) &&
         line.ends_with(kNoteEnd);
}

void TakeNote(std::string_view keywords, HelpTopic& topic) {
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

bool IsOfWord(char character) {
  return (character & 0x80) || std::isalnum(static_cast<unsigned char>(character));
}

std::vector<std::string> WordsOf(std::string_view text) {
  std::string rest = LowerCase(text);
  std::replace(rest.begin(), rest.end(), '\t', ' ');
  std::vector<std::string> words;
  for (std::string_view left = Trimmed(rest); !left.empty(); left = Trimmed(left)) {
    words.emplace_back(TakeUpTo(left, ' '));
  }
  return words;
}

/// A sign such as the "/" of "/U" begins anywhere, letters and digits only where no other stands before them.
std::vector<SearchHit> HitsOf(std::string_view wanted, std::string_view lowerText) {
  std::vector<SearchHit> hits;
  for (std::size_t at = lowerText.find(wanted); at != std::string_view::npos;
       at = lowerText.find(wanted, at + 1)) {
    if (at == 0 || !IsOfWord(wanted.front()) || !IsOfWord(lowerText[at - 1]))
      hits.push_back({at, wanted.size()});
  }
  return hits;
}

bool HasAll(std::string_view text, const std::vector<std::string>& words) {
  const std::string lower = LowerCase(text);
  return std::all_of(words.begin(), words.end(),
                     [&lower](const std::string& word) { return !HitsOf(word, lower).empty(); });
}

/// The keywords and the text of a topic, which are searched beside its title.
std::string WholeOf(const HelpTopic& topic) {
  std::string whole;
  for (const std::string& keyword : topic.keywords) whole += keyword + "\n";
  return whole + topic.text;
}

}  // namespace

HelpFile::HelpFile(std::string_view text) {
  std::string group;
  while (!text.empty()) {
    std::string_view line = TakeLine(text);
    if (line.starts_with(kTitle)) {
      topics_.push_back({std::string(line.substr(kTitle.size())), group, {}, {}, {}});
    }
    const bool note = IsNote(line);
    if (note)
      line = Trimmed(line.substr(kNoteStart.size(), line.size() - kNoteStart.size() - kNoteEnd.size()));
    if (note && line.starts_with(kGroup)) {
      group = Trimmed(line.substr(kGroup.size()));
    } else if (note && !topics_.empty()) {
      TakeNote(line, topics_.back());
    } else if (!topics_.empty()) {
      topics_.back().text.append(line).append("\n");
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
  if (beginning) return beginning;
  const std::string_view word = std::string_view(wanted).substr(0, wanted.find_first_of(" (\r\n", 1));
  const std::string_view name = word.substr(0, word.find_last_not_of("0123456789") + 1);
  const std::string_view shorter = word.size() < wanted.size() ? word : name;
  return shorter.size() < wanted.size() ? WithKeyword(shorter) : nullptr;
}

std::vector<const HelpTopic*> HelpFile::Search(std::string_view words) const {
  const std::vector<std::string> wanted = WordsOf(words);
  std::vector<const HelpTopic*> found;
  std::vector<const HelpTopic*> others;
  for (const HelpTopic& topic : topics_) {
    if (HasAll(topic.title, wanted)) {
      found.push_back(&topic);
    } else if (HasAll(WholeOf(topic), wanted)) {
      others.push_back(&topic);
    }
  }
  found.insert(found.end(), others.begin(), others.end());
  return found;
}

std::vector<SearchHit> HitsIn(std::string_view text, std::string_view words) {
  const std::string lower = LowerCase(text);
  std::vector<SearchHit> hits;
  for (const std::string& word : WordsOf(words)) {
    const std::vector<SearchHit> more = HitsOf(word, lower);
    hits.insert(hits.end(), more.begin(), more.end());
  }
  return hits;
}

}  // namespace tarvik
