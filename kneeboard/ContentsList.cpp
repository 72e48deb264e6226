#include <algorithm>
#include <array>

#include "kneeboard/Contents.h"

namespace tarvik::kneeboard {
namespace {

constexpr std::size_t kColumns = 4;
using Row = std::array<std::string, kColumns>;

void Append(std::string& text, std::string_view words) {
  if (words.empty()) return;
  if (!text.empty()) text.push_back(' ');
  text.append(words);
}

std::string LayerInWords(const Action& action) {
  constexpr std::string_view kDogfight[] = {"", "U", "M", "D"};
  constexpr std::string_view kShift[] = {"", "I", "O"};
  constexpr std::string_view kMoment[] = {"", "press", "release"};
  std::string words(kDogfight[static_cast<std::size_t>(action.layer.dogfight)]);
  Append(words, kShift[static_cast<std::size_t>(action.layer.shift)]);
  Append(words, kMoment[static_cast<std::size_t>(action.moment)]);
  if (action.turn > 0) Append(words, "turn " + std::to_string(action.turn));
  return words;
}

/// Columns as wide as their longest words, under a title where there is one.
void AddTable(std::string& text, const std::string& title, const std::vector<Row>& rows) {
  constexpr std::size_t kGap = 2;
  if (rows.empty()) return;
  if (!text.empty()) text.push_back('\n');
  if (!title.empty()) text.append(title).append("\n");
  std::array<std::size_t, kColumns> widths{};
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < kColumns; ++i) widths[i] = std::max(widths[i], row[i].size());
  }
  for (const Row& row : rows) {
    std::string line;
    std::size_t column = 0;
    for (std::size_t i = 0; i < kColumns; ++i) {
      line.append(row[i]);
      column += widths[i] == 0 ? 0 : widths[i] + kGap;
      line.resize(column, ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text.append(line).append("\n");
  }
}

Row RowOfAction(const Control& control, const Action& action) {
  const bool isSame = action.deed.words == action.deed.keys;
  return {control.name, LayerInWords(action), action.deed.words, isSame ? "" : action.deed.keys};
}

template <class Wanted>
std::vector<Row> RowsOf(const DevicePage& page, const Wanted& wanted) {
  std::vector<Row> rows;
  for (const Control& control : page.controls) {
    for (const Action& action : control.actions) {
      if (wanted(action.deed)) rows.push_back(RowOfAction(control, action));
    }
  }
  return rows;
}

void AddHeading(std::string& text, const Contents& contents, const std::string& heading) {
  std::vector<Row> all;
  for (const DevicePage& page : contents.devices) {
    const auto rows = RowsOf(page, [&](const Deed& deed) { return deed.heading == heading; });
    all.insert(all.end(), rows.begin(), rows.end());
  }
  AddTable(text, heading.empty() ? "Under no heading" : heading, all);
}

}  // namespace

std::string ListAsText(const Contents& contents, ListOrder order) {
  std::string text;
  if (order == ListOrder::ByControl) {
    for (const DevicePage& page : contents.devices) {
      AddTable(text, page.title, RowsOf(page, [](const Deed&) { return true; }));
    }
  } else {
    for (const std::string& heading : contents.headings) AddHeading(text, contents, heading);
    AddHeading(text, contents, {});
  }
  std::vector<Row> flags;
  for (const FlagRow& flag : contents.flags) {
    flags.push_back({flag.name, "", flag.condition, ""});
    for (const Deed& deed : flag.sends)
      flags.push_back({"", "", "sends " + deed.words, deed.words == deed.keys ? "" : deed.keys});
  }
  AddTable(text, "Flags", flags);
  std::vector<Row> facts;
  for (const Fact& fact : contents.facts) facts.push_back({fact.name, "", fact.words, ""});
  AddTable(text, "Settings", facts);
  return text;
}

}  // namespace tarvik::kneeboard
