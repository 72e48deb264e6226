#include "language/FilePair.h"

#include "language/Controllers.h"

namespace tarvik::model {
namespace {

constexpr std::string_view kUse = "USE";

/// A word behind USE that says what throttle, or what rudders, are attached.
struct AttachedRow {
  std::string_view word;
  std::optional<int> Hardware::*part;
  int number;
};

constexpr int kContradicted = -1;
constexpr AttachedRow kAttached[] = {
    {"TQS", &Hardware::throttle, kTqs},          {"WCS", &Hardware::throttle, kWcs},
    {"NOTHR", &Hardware::throttle, kNoThrottle}, {"RCS", &Hardware::rudders, kRcs},
    {"NORDDR", &Hardware::rudders, kNoRudders},
};

}  // namespace

Hardware AttachedHardware(const JoystickFile& file, std::string_view text, Hardware known) {
  Hardware said;
  const auto take = [&](const AttachedRow& row) {
    const bool contradicts = (said.*row.part).value_or(row.number) != row.number;
    said.*row.part = contradicts ? kContradicted : row.number;
    known.*row.part = contradicts ? std::nullopt : std::optional(row.number);
  };
  for (std::size_t i = 0; i < file.size(); ++i) {
    const Setting* setting = std::get_if<Setting>(&file[i].body);
    if (setting == nullptr || file[i].row->word != kUse || setting->values.empty()) continue;
    const std::string_view word = In(file.LinesOf(i, text), setting->values.front());
    for (const AttachedRow& row : kAttached) {
      if (SameWord(row.word, word)) take(row);
    }
  }
  return known;
}

}  // namespace tarvik::model
