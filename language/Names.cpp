#include "language/Names.h"

#include <algorithm>

#include "text/CodePage.h"

namespace tarvik::model {
namespace {

constexpr std::string_view kThrottle = "THR";
constexpr std::string_view kDigitalThrottle = "@digitalthrottle";

}  // namespace

std::string NameOfControl(std::string_view words) {
  std::string name;
  for (const char byte : words) {
    const bool blank = IsBlank(byte) || byte == '\n';
    if (!blank) name.push_back(ToUpper(byte));
    if (blank && !name.ends_with(' ')) name.push_back(' ');
  }
  return name;
}

std::size_t WordHash::operator()(std::string_view word) const {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char byte : word) hash = (hash ^ codepage::Byte(ToLower(byte))) * 0x100000001B3U;
  return hash ^ hash >> 32;
}

/// Walks over the statements of both files and notes the names in them.
class NameCollector {
 public:
  explicit NameCollector(NameIndex& index) : index_(index) {}

  void CollectDefinitions(const MacroFile& file, std::string_view text) {
    Begin(FileKind::Macros);
    for (std::size_t i = 0; i < file.size(); ++i) {
      const auto* definition = std::get_if<MacroDefinition>(&file[i].body);
      if (definition == nullptr || definition->name.length == 0) continue;
      Enter(i, file.RangeOf(i), text);
      Macro(definition->name).definitions.push_back(Here(definition->name));
    }
  }

  void Collect(const JoystickFile& file, std::string_view text) {
    Begin(FileKind::Joystick);
    for (std::size_t i = 0; i < file.size(); ++i) {
      Enter(i, file.RangeOf(i), text);
      statement_ = &file[i];
      std::visit(*this, file[i].body);
    }
  }

  void CollectUses(const MacroFile& file, std::string_view text) {
    Begin(FileKind::Macros);
    for (std::size_t i = 0; i < file.size(); ++i) {
      const auto* definition = std::get_if<MacroDefinition>(&file[i].body);
      if (definition == nullptr) continue;
      Enter(i, file.RangeOf(i), text);
      const auto* axis = std::get_if<Axis>(&definition->sends);
      CollectMacros(axis == nullptr ? std::get<Sequence>(definition->sends) : axis->keys);
    }
  }

  void operator()(const Blank&) {}
  void operator()(const Remark&) {}
  void operator()(const Unknown&) {}
  void operator()(const Setting&) {}

  void operator()(const Button& button) {
    if (const auto flag = FlagIn(button.control)) {
      Flag(*flag).buttons.push_back(Here(button.control));
    } else if (button.control.length > 0) {
      Control(NameOfControl(Words(button.control))).assignments.push_back(Here(button.control));
    }
    CollectMacros(button.sends);
  }

  void operator()(const Definition& definition) {
    if (const auto flag = FlagIn(definition.flag)) Flag(*flag).definitions.push_back(Here(definition.flag));
    CollectUses(definition.condition);
  }

  void operator()(const Axis& axis) {
    AxisControl(std::string(axis.shape->word)).assignments.push_back(Here(axis.word));
    CollectMacros(axis.keys);
  }

  void operator()(const Port& port) { UseControl(port.control); }

  void operator()(const Command&) {
    if (statement_->row->word != kDigitalThrottle) return;
    Macro(statement_->word).uses.push_back(Here(statement_->word));
    AxisControl(std::string(kThrottle)).assignments.push_back(Here(statement_->word));
  }

 private:
  void Begin(FileKind kind) { kind_ = kind; }
  void Enter(std::size_t statement, Range range, std::string_view text) {
    statementIndex_ = statement;
    start_ = range.start;
    lines_ = In(text, range);
  }

  [[nodiscard]] std::string_view Words(Range range) const { return In(lines_, range); }
  [[nodiscard]] Mention Here(Range range) const {
    return {kind_, statementIndex_, {start_ + range.start, range.length}};
  }
  [[nodiscard]] std::optional<std::uint32_t> FlagIn(Range range) const { return FlagNumber(Words(range)); }

  template <class Entry, class Map, class Key>
  static Entry& EntryOf(std::vector<Entry>& entries, Map& places, const Key& key, bool& isNew) {
    const auto place = places.find(key);
    isNew = place == places.end();
    if (!isNew) return entries[place->second];
    places.emplace(key, entries.size());
    return entries.emplace_back();
  }

  MacroNames& Macro(Range range) {
    bool isNew = false;
    const std::string_view name = Words(range);
    MacroNames& entry = EntryOf(index_.macros_, index_.macroPlaces_, name, isNew);
    if (isNew) entry.name = name;
    return entry;
  }
  FlagNames& Flag(std::uint32_t number) {
    bool isNew = false;
    FlagNames& entry = EntryOf(index_.flags_, index_.flagPlaces_, number, isNew);
    entry.number = number;
    return entry;
  }
  ControlNames& Control(const std::string& name) {
    bool isNew = false;
    ControlNames& entry = EntryOf(index_.controls_, index_.controlPlaces_, name, isNew);
    if (isNew) entry.name = name;
    return entry;
  }
  ControlNames& AxisControl(const std::string& name) {
    ControlNames& axis = Control(name);
    axis.isAxis = true;
    return axis;
  }

  void UseControl(Range range) {
    if (range.length == 0) return;
    if (const auto flag = FlagIn(range)) {
      Flag(*flag).uses.push_back(Here(range));
    } else {
      Control(NameOfControl(Words(range))).uses.push_back(Here(range));
    }
  }

  void CollectUses(const Condition& condition) {
    const bool compares = condition.kind == ConditionKind::Below || condition.kind == ConditionKind::Above;
    if (condition.kind == ConditionKind::Control) UseControl(condition.range);
    if (compares && !condition.arguments.empty() && FindAxis(Words(condition.arguments[0])) != nullptr) {
      AxisControl(NameOfControl(Words(condition.arguments[0]))).uses.push_back(Here(condition.arguments[0]));
    }
    for (const Condition& operand : condition.operands) CollectUses(operand);
  }

  void CollectMacros(const Sequence& sequence) {
    for (const Item& item : sequence.items) {
      if (item.kind == ItemKind::Name) Macro(item.range).uses.push_back(Here(item.range));
    }
    for (const Branch& branch : sequence.branches) CollectMacros(branch.sequence);
  }

  NameIndex& index_;
  FileKind kind_ = FileKind::Joystick;
  std::size_t statementIndex_ = 0;
  std::size_t start_ = 0;
  std::string_view lines_;
  const JoystickStatement* statement_ = nullptr;
};

NameIndex::NameIndex(const JoystickFile& joystick, std::string_view joystickText, const MacroFile& macros,
                     std::string_view macroText) {
  macros_.reserve(macros.size());
  macroPlaces_.reserve(macros.size());
  NameCollector collector(*this);
  collector.CollectDefinitions(macros, macroText);
  collector.Collect(joystick, joystickText);
  collector.CollectUses(macros, macroText);
}

const MacroNames* NameIndex::FindMacro(std::string_view name) const {
  const auto place = macroPlaces_.find(name);
  return place == macroPlaces_.end() ? nullptr : &macros_[place->second];
}

const FlagNames* NameIndex::FindFlag(std::uint32_t number) const {
  const auto place = flagPlaces_.find(number);
  return place == flagPlaces_.end() ? nullptr : &flags_[place->second];
}

const ControlNames* NameIndex::FindControl(std::string_view name) const {
  const auto place = controlPlaces_.find(NameOfControl(name));
  return place == controlPlaces_.end() ? nullptr : &controls_[place->second];
}

bool NameIndex::Defines(std::string_view name) const {
  const MacroNames* macro = FindMacro(name);
  return macro != nullptr && !macro->definitions.empty();
}

}  // namespace tarvik::model
