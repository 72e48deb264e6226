#include "language/LogicLines.h"

#include <algorithm>

namespace tarvik {

std::vector<std::string> ItemsOf(const tables::FlagListRow& list) {
  std::vector<std::string> items;
  for (const tables::ItemRun& run : list.runs) {
    if (run.prefix.empty()) break;
    if (run.count == 0) items.emplace_back(run.prefix);
    for (int i = 1; i <= run.count; ++i) items.push_back(std::string(run.prefix) + std::to_string(i));
  }
  return items;
}

std::string TokenOf(const tables::FlagInsertRow& row, const BoxTexts& boxes) {
  std::string token;
  for (const std::string_view part : row.parts) {
    const bool isBox = part.starts_with("FlagList(") || part.starts_with("TxtFlag(");
    const auto box = boxes.find(part);
    if (!isBox) {
      token += part;
    } else if (box != boxes.end()) {
      token += box->second;
    }
  }
  return token;
}

std::string SpacedToken(std::string_view token, std::string_view line, std::size_t caret) {
  const bool spaced = token != "(" && token != ")" && token != "*";
  const bool joins = caret > 0 && caret <= line.size() && line[caret - 1] != ' ';
  return (spaced && joins ? " " : "") + std::string(token);
}

Statement LogicStatement(const std::string& line) {
  Statement statement{{{line}}};
  statement.ownLine = statement.endsLine = true;
  return statement;
}

std::vector<std::string> LogicLinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty() && lines.size() < tables::kLogicLines) {
    const std::size_t end = std::min(text.find("\r\n"), text.size());
    const std::string_view line = text.substr(0, end);
    if (line.starts_with("BTN X") || line.starts_with("DEF X")) lines.emplace_back(line);
    text.remove_prefix(std::min(end + 2, text.size()));
  }
  return lines;
}

}  // namespace tarvik
