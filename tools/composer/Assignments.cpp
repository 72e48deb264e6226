#include "tools/composer/Assignments.h"

#include "language/Lines.h"
#include "language/PicturedControls.h"

namespace tarvik {
namespace {

constexpr std::size_t kLongestLine = 80;
constexpr std::string_view kPort = "PortB";

}  // namespace

std::vector<std::string> Assignments::Of(const tables::HardwareRow& row, std::string_view caption) const {
  const bool isRotary = row.array == "ROTARY";
  if (isRotary && row.index == tables::kPortLatch) return OfWord(kPort);
  std::vector<std::string> lines;
  for (const std::string& token : ControlsOf(row, caption)) {
    const bool isWord = isRotary && row.index == tables::kSwapTriggers;
    for (std::string& line : isWord ? OfWord(token) : OfControl(token)) lines.push_back(std::move(line));
  }
  return lines;
}

std::vector<std::string> Assignments::OfControl(std::string_view name) const {
  std::vector<std::string> lines;
  const model::ControlNames* const control = names_.FindControl(name);
  if (!control) return lines;
  for (const model::Mention& mention : control->assignments) lines.push_back(LineOf(mention.statement));
  return lines;
}

std::vector<std::string> Assignments::OfWord(std::string_view word) const {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < pair_.joystick.size(); ++i) {
    const model::StatementWord* const row = pair_.joystick[i].row;
    if (row && row->word.starts_with(word)) lines.push_back(LineOf(i));
  }
  return lines;
}

std::string Assignments::LineOf(std::size_t statement) const {
  const std::string_view lines = pair_.joystick.LinesOf(statement, pair_.joystickText);
  const std::string_view line = lines.substr(0, lines.find_first_of("\r\n"));
  return std::string(model::WithoutIndent(line).substr(0, kLongestLine));
}

}  // namespace tarvik
