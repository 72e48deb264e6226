#include "kneeboard/Titles.h"

#include <algorithm>
#include <span>

#include "language/Lines.h"
#include "text/CodePage.h"

namespace tarvik::kneeboard {
namespace {

constexpr std::string_view kRule = "#*-=_~+/ \t";

/// The words of a remark, without its sign and without what only rules it off; empty for a line of the latter
/// alone.
std::string_view WordsOf(std::string_view remark) {
  remark.remove_prefix(std::min<std::size_t>(remark.starts_with('~') ? 1 : 3, remark.size()));
  const std::size_t first = remark.find_first_not_of(kRule);
  if (first == std::string_view::npos) return {};
  return remark.substr(first, remark.find_last_not_of(kRule) - first + 1);
}

/// What stands behind a beginning, in either case; empty where the words begin otherwise.
std::string Behind(std::string_view words, std::string_view beginning) {
  if (words.size() <= beginning.size() || !model::SameWord(words.substr(0, beginning.size()), beginning))
    return {};
  return ToUtf8(model::WithoutIndent(words.substr(beginning.size())));
}

void TakeFirst(std::string_view words, TitleBlock& title) {
  constexpr std::string_view kFor = " for ";
  const std::size_t game = words.find(kFor);
  title.title = ToUtf8(words.substr(0, game));
  if (game != std::string_view::npos) title.game = ToUtf8(words.substr(game + kFor.size()));
}

void Take(std::string_view words, TitleBlock& title) {
  const bool tellsOfDevices = !Behind(words, "for:").empty();
  if (words.empty() || tellsOfDevices) return;
  std::string author = Behind(words, "by ");
  std::string date = Behind(words, "last modified:");
  if (title.author.empty() && !author.empty()) {
    title.author = std::move(author);
  } else if (title.date.empty() && !date.empty()) {
    title.date = std::move(date);
  } else if (title.title.empty()) {
    TakeFirst(words, title);
  }
}

/// The remarks before the first statement. Words that are ruled off and say nothing of who or when are a
/// heading.
template <class File>
TitleBlock TitleOf(const File& file, std::string_view text) {
  TitleBlock title;
  bool isRuledOff = false;
  for (std::size_t i = 0; i < file.size(); ++i) {
    const auto* remark = std::get_if<model::Remark>(&file[i].body);
    if (remark != nullptr) {
      const std::string_view words = WordsOf(model::In(file.LinesOf(i, text), remark->comment));
      isRuledOff = isRuledOff || (words.empty() && title.title.empty());
      Take(words, title);
    } else if (!std::holds_alternative<model::Blank>(file[i].body) || !title.title.empty()) {
      break;  // the title ends at the first blank line below it
    }
  }
  const bool isHeading = isRuledOff && title.game.empty() && title.author.empty() && title.date.empty();
  return isHeading ? TitleBlock() : title;
}

}  // namespace

TitleBlock TitleOf(const model::FilePair& pair) {
  TitleBlock title = TitleOf(pair.joystick, pair.joystickText);
  return title.title.empty() ? TitleOf(pair.macros, pair.macroText) : title;
}

}  // namespace tarvik::kneeboard
