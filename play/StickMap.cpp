#include "play/StickMap.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <tuple>

#include "language/Abilities.h"
#include "language/ComposerTables.h"
#include "play/Program.h"
#include "text/CodePage.h"

namespace tarvik::play {
namespace {

constexpr char kBetween = '|';
constexpr char kEscape = '%';
constexpr int kMostInputs = 256;

constexpr std::string_view kPartWords[] = {"button", "hat", "axis"};
constexpr std::string_view kWayWords[] = {"", "turned", "up", "right", "down", "left", "low", "high"};

struct Target {
  TargetKind kind;
  std::string_view name;
};

// Those that are no control by themselves.
constexpr Target kGroups[] = {
    {TargetKind::Hat, "H1"},
    {TargetKind::Hat, "H2"},
    {TargetKind::Hat, "H3"},
    {TargetKind::Hat, "H4"},
    {TargetKind::Hat, "H"},
    {TargetKind::Rocker, "RKR"},
    {TargetKind::Switch, "DOGFIGHT"},
    {TargetKind::SwitchPlace, "DOGFIGHT UP"},
    {TargetKind::SwitchPlace, "DOGFIGHT DOWN"},
};

bool IsWayOf(StickPart part, StickWay way) {
  if (way == StickWay::Whole) return true;
  if (part == StickPart::Hat) return way >= StickWay::Up && way <= StickWay::Left;
  return part == StickPart::Axis && (way == StickWay::Turned || way >= StickWay::Low);
}

bool IsAllOfAnAxis(const StickInput& input) {
  return input.part == StickPart::Axis && (input.way == StickWay::Whole || input.way == StickWay::Turned);
}

/// An input that stands for a control hides these others of the same part.
bool Excludes(const StickInput& one, const StickInput& other) {
  if (one.part != other.part || one.number != other.number) return false;
  if (one.part == StickPart::Axis && IsAllOfAnAxis(one)) return IsAllOfAnAxis(other);
  if (one.part == StickPart::Hat && (one.way == StickWay::Whole) != (other.way == StickWay::Whole))
    return true;
  return one.way == other.way;
}

auto Order(const StickInput& input) { return std::tuple(input.part, input.number, input.way); }

std::string_view NextWord(std::string_view& words) {
  const std::size_t end = std::min(words.find(' '), words.size());
  const std::string_view word = words.substr(0, end);
  words.remove_prefix(std::min(end + 1, words.size()));
  return word;
}

template <std::size_t N>
std::optional<std::size_t> PlaceOf(std::string_view word, const std::string_view (&words)[N]) {
  const auto* const found = std::ranges::find(words, word);
  if (found == std::end(words)) return std::nullopt;
  return static_cast<std::size_t>(found - words);
}

bool IsPlain(char c) {
  constexpr unsigned char kDelete = 0x7F;
  return c != kBetween && c != kEscape && codepage::Byte(c) >= ' ' && codepage::Byte(c) != kDelete;
}

/// What would end a field or a line becomes a sign and two digits.
void AppendField(std::string& line, std::string_view field) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  for (const char c : field) {
    if (IsPlain(c)) {
      line.push_back(c);
      continue;
    }
    line.push_back(kEscape);
    line.push_back(kDigits[codepage::Byte(c) >> 4U]);
    line.push_back(kDigits[codepage::Byte(c) & 0xFU]);
  }
}

std::string Unescaped(std::string_view field) {
  constexpr int kHex = 16;
  std::string text;
  for (std::size_t i = 0; i < field.size(); ++i) {
    unsigned byte = 0;
    const char* const digits = field.data() + i + 1;
    if (field[i] == kEscape && i + 2 < field.size() &&
        std::from_chars(digits, digits + 2, byte, kHex).ptr == digits + 2) {
      text.push_back(static_cast<char>(byte));
      i += 2;
    } else {
      text.push_back(field[i]);
    }
  }
  return text;
}

std::vector<std::string> FieldsOf(std::string_view line) {
  std::vector<std::string> fields;
  while (true) {
    const std::size_t end = line.find(kBetween);
    fields.push_back(Unescaped(line.substr(0, end)));
    if (end == std::string_view::npos) return fields;
    line.remove_prefix(end + 1);
  }
}

}  // namespace

// Inputs.

std::string InWords(const StickInput& input) {
  std::string words(kPartWords[static_cast<std::size_t>(input.part)]);
  words.append(" ").append(std::to_string(input.number + 1));
  const std::string_view way = kWayWords[static_cast<std::size_t>(input.way)];
  if (!way.empty()) words.append(" ").append(way);
  return words;
}

std::optional<StickInput> InputIn(std::string_view words) {
  const auto part = PlaceOf(NextWord(words), kPartWords);
  const std::string_view digits = NextWord(words);
  const auto way = PlaceOf(words, kWayWords);
  int number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  const bool isNumber = error == std::errc{} && end == digits.data() + digits.size();
  if (!part || !way || !isNumber || number < 1 || number > kMostInputs) return std::nullopt;
  const StickInput input{static_cast<StickPart>(*part), static_cast<std::uint8_t>(number - 1),
                         static_cast<StickWay>(*way)};
  return IsWayOf(input.part, input.way) ? std::optional(input) : std::nullopt;
}

// What they stand for.

std::optional<TargetKind> TargetNamed(std::string_view name) {
  const std::string wanted = UpperCase(name);
  for (const Target& each : kGroups) {
    if (each.name == wanted) return each.kind;
  }
  if (FindAxis(wanted)) return TargetKind::Axis;
  // The throttle against its back stop is told by its axis.
  if (wanted == "MT" || model::DevicesWith(model::AbilityKind::Control, wanted) == 0) return std::nullopt;
  return TargetKind::Control;
}

std::span<const std::string> AllTargets() {
  static const std::vector<std::string> all = [] {
    std::vector<std::string> names;
    for (const Target& each : kGroups) names.emplace_back(each.name);
    for (const std::string_view axis : kAxisNames) names.emplace_back(axis);
    for (const model::Ability& each : model::AllAbilities()) {
      if (each.kind == model::AbilityKind::Control && each.name != "MT") names.push_back(each.name);
    }
    return names;
  }();
  return all;
}

bool Fits(const StickInput& input, TargetKind target) {
  switch (target) {
    case TargetKind::Hat:
      return input.part == StickPart::Hat && input.way == StickWay::Whole;
    case TargetKind::Axis:
    case TargetKind::Rocker:
    case TargetKind::Switch:
      return IsAllOfAnAxis(input);
    case TargetKind::SwitchPlace:
      return !IsAllOfAnAxis(input) && (input.part != StickPart::Hat || input.way != StickWay::Whole);
    default:
      return input.part != StickPart::Hat || input.way != StickWay::Whole;
  }
}

// The map.

const StickMap::Stick* StickMap::StickOf(const StickId& id) const {
  const Stick* equal = nullptr;
  for (const Stick& each : sticks_) {
    if (each.id.guid != id.guid) continue;
    if (each.id.path == id.path) return &each;
    if (equal == nullptr) equal = &each;
  }
  return equal;
}

std::string_view StickMap::Find(const StickId& stick, const StickInput& input) const {
  const Stick* const known = StickOf(stick);
  if (known == nullptr) return {};
  const auto found = std::ranges::find(known->rows, input, &Row::input);
  return found == known->rows.end() ? std::string_view() : found->control;
}

/// A stick whose path is new begins with what its equal has.
StickMap::Stick& StickMap::Own(const StickId& id) {
  const auto isIt = [&id](const Stick& each) { return each.id.guid == id.guid && each.id.path == id.path; };
  const auto found = std::ranges::find_if(sticks_, isIt);
  if (found != sticks_.end()) return *found;
  const Stick* const equal = StickOf(id);
  Stick made{id, equal == nullptr ? std::vector<Row>() : equal->rows};
  return sticks_.emplace_back(std::move(made));
}

bool StickMap::Set(const StickId& stick, const StickInput& input, std::string_view control) {
  const auto target = TargetNamed(control);
  if (!target || !IsWayOf(input.part, input.way) || !Fits(input, *target)) return false;
  std::vector<Row>& rows = Own(stick).rows;
  TakeOut(rows, input);
  const Row row{input, UpperCase(control)};
  const auto behind = [](const Row& one, const Row& other) { return Order(one.input) < Order(other.input); };
  rows.insert(std::ranges::lower_bound(rows, row, behind), row);
  return true;
}

void StickMap::TakeOut(std::vector<Row>& rows, const StickInput& input) {
  std::erase_if(rows, [&input](const Row& row) { return Excludes(input, row.input); });
}

void StickMap::Remove(const StickId& stick, const StickInput& input) {
  if (Find(stick, input).empty()) return;
  TakeOut(Own(stick).rows, input);
}

void StickMap::Clear(const StickId& stick) {
  if (StickOf(stick) != nullptr) Own(stick).rows.clear();
}

// As text: a line with the three fields of a stick, and behind it lines with the two of a row.

std::vector<std::string> StickMap::Lines() const {
  std::vector<std::string> lines;
  for (const Stick& stick : sticks_) {
    std::string& head = lines.emplace_back();
    AppendField(head, stick.id.guid);
    for (const std::string* const field : {&stick.id.path, &stick.id.name}) {
      head.push_back(kBetween);
      AppendField(head, *field);
    }
    for (const Row& row : stick.rows) {
      std::string& line = lines.emplace_back(InWords(row.input));
      line.push_back(kBetween);
      line.append(row.control);
    }
  }
  return lines;
}

StickMap StickMap::Read(std::span<const std::string> lines) {
  constexpr std::size_t kOfStick = 3;
  StickMap map;
  std::optional<StickId> stick;
  for (const std::string& line : lines) {
    const std::vector<std::string> fields = FieldsOf(line);
    if (fields.size() == kOfStick && !fields[0].empty()) {
      stick = StickId{fields[0], fields[2], fields[1]};
      const Stick* const known = map.StickOf(*stick);
      if (known == nullptr || known->id.path != stick->path) map.sticks_.push_back({*stick, {}});
    } else if (fields.size() == 2 && stick) {
      if (const auto input = InputIn(fields[0])) map.Set(*stick, *input, fields[1]);
    }
  }
  return map;
}

}  // namespace tarvik::play
