#include "play/Writer.h"

#include <algorithm>

#include "play/Keys.h"
#include "text/CodePage.h"

namespace tarvik::play {
namespace {

using model::Branch;
using model::In;
using model::Item;
using model::ItemKind;
using model::kBreakCode;
using model::kCodesOfPause;
using model::kExtendedCode;
using model::kPauseCode;
using model::SlashGroup;

/// What one press may be written to, and how often its instructions may be done.
constexpr std::size_t kMostOps = 4096;
constexpr std::size_t kMostItems = 8192;
constexpr std::size_t kMostOpsAtAll = 400000;
constexpr std::int64_t kMostTimes = 10000;
constexpr int kMostDepth = 40;
constexpr std::int64_t kMicrosInMilli = 1000;

struct PrefixKey {
  std::string_view word;
  Key key;
};
constexpr PrefixKey kPrefixKeys[] = {{"SHF", kShift}, {"CTL", kControl}, {"ALT", kAlt}};

std::int64_t RateOf(const model::FilePair& pair, const Timing& timing) {
  std::int64_t hold = timing.hold.count();
  for (std::size_t i = 0; i < pair.joystick.size(); ++i) {
    const auto& each = pair.joystick[i];
    if (each.row == nullptr || each.row->word != "RATE") continue;
    const auto& values = std::get<model::Setting>(each.body).values;
    if (values.empty()) continue;
    const auto number = model::NumberIn(In(pair.joystick.LinesOf(i, pair.joystickText), values[0]));
    if (number && *number > 0) hold = std::min<std::int64_t>(*number, 65535) * timing.rateUnit.count();
  }
  return hold;
}

}  // namespace

Writer::Writer(const model::FilePair& pair, Program& program)
    : pair_(pair),
      program_(program),
      names_(pair.joystick, pair.joystickText, pair.macros, pair.macroText),
      nullSigns_(pair.joystick, pair.joystickText),
      hold_(RateOf(pair, program.timing)) {}

std::uint32_t Writer::AddSource(const Text& text, Range range) {
  Source source = text.source;
  source.range = {text.start + range.start, range.length};
  source.layer = layer_;
  const auto same = [&](const Source& each) {
    return each.file == source.file && each.range == source.range && each.layer == source.layer &&
           each.statement == source.statement;
  };
  if (!same(program_.sources.back())) program_.sources.push_back(source);
  return static_cast<std::uint32_t>(program_.sources.size() - 1);
}

void Writer::TellCut(const Text& text, Range range, std::string why) {
  const Range inText{text.start + range.start, range.length};
  const auto same = [&](const Cut& each) { return each.file == text.source.file && each.range == inText; };
  if (std::ranges::none_of(program_.cuts, same)) {
    program_.cuts.push_back({text.source.file, inText, std::move(why)});
  }
}

Entry Writer::Write(const Text& text, const model::Sequence& sequence, std::size_t layer, bool press) {
  layerNumber_ = layer;
  press_ = press;
  begin_ = Here();
  keyEnd_ = 0;
  walked_ = 0;
  work_ = 1;
  Walk(text, sequence, {});
  return Finish();
}

Entry Writer::WriteKeys(const Text& text, std::span<const Item> items) {
  press_ = true;
  begin_ = Here();
  keyEnd_ = 0;
  walked_ = 0;
  work_ = 1;
  WalkItems(text, items, {.named = true});
  return Finish();
}

Entry Writer::Finish() {
  layer_.clear();
  if (Here() == begin_) return 0;
  // What is sent next for the same control does not come in the same moment.
  Add({OpKind::Wait, 0, 0, 0, program_.timing.gap.count()});
  Add({});
  return begin_;
}

void Writer::Add(Op op) { program_.ops.push_back(op); }

bool Writer::IsLive(const Branch& branch) const {
  if (branch.slash == nullptr) return false;
  switch (branch.slash->letter) {
    case 'U':
      return layerNumber_ / 2 == 0;
    case 'M':
      return layerNumber_ / 2 == 1;
    case 'D':
      return layerNumber_ / 2 == 2;
    case 'I':
      return layerNumber_ % 2 == 1;
    case 'O':
      return layerNumber_ % 2 == 0;
    default:
      return true;
  }
}

std::optional<Writer::Manner> Writer::Behind(const Branch& branch, Manner manner) const {
  if (!IsLive(branch)) return std::nullopt;
  const char letter = branch.slash->letter;
  if (letter == 'P' || letter == 'R') {
    manner.named = true;
    manner.press = letter == 'P';
  }
  if (letter == 'N') manner.once = true;
  if (letter == 'F') manner.whole = true;
  if (letter == 'Q') manner.atOnce = true;
  if (letter == 'H') manner.once = manner.whole = manner.atOnce = false;
  if (!manner.layer.empty()) manner.layer.push_back(' ');
  manner.layer.push_back('/');
  manner.layer.push_back(letter);
  return manner;
}

void Writer::Walk(const Text& text, const model::Sequence& sequence, const Manner& manner) {
  const bool branchesFollow = std::ranges::any_of(sequence.branches, [&](const Branch& each) {
    return IsLive(each) && each.slash->group != SlashGroup::Press;
  });
  Manner forItems = manner;
  forItems.last = manner.last && !branchesFollow;
  layer_ = manner.layer;
  const Entry from = Here();
  WalkItems(text, sequence.items, forItems);
  const bool repeats = press_ && manner.last && !manner.named && manner.whole && !manner.once;
  if (repeats && Here() > from) WriteAgain(text, sequence.items, forItems);
  if (manner.depth < kMostDepth) WalkBranches(text, sequence, manner);
}

void Writer::WriteAgain(const Text& text, std::span<const Item> items, const Manner& manner) {
  const Timing& timing = program_.timing;
  // The first wait is longer than the others, so that all is written behind it once more.
  const Entry first = Here();
  Add({OpKind::RepeatIfHeld, 0, 0, first + 2,
       (manner.atOnce ? timing.repeatPeriod : timing.repeatDelay).count()});
  Add({OpKind::Jump});
  keyEnd_ = 0;
  WalkItems(text, items, manner);
  Add({OpKind::RepeatIfHeld, 0, 0, first + 2, timing.repeatPeriod.count()});
  program_.ops[first + 1].target = Here();
}

void Writer::WalkBranches(const Text& text, const model::Sequence& sequence, const Manner& manner) {
  const std::span<const Branch> branches = sequence.branches;
  for (std::size_t i = 0; i < branches.size(); ++i) {
    if (branches[i].slash != nullptr && branches[i].slash->group == SlashGroup::Turns) {
      std::size_t end = i;
      while (end < branches.size() && branches[end].slash != nullptr &&
             branches[end].slash->group == SlashGroup::Turns) {
        ++end;
      }
      WalkTurns(text, branches.subspan(i, end - i), manner);
      i = end - 1;
      continue;
    }
    auto behind = Behind(branches[i], manner);
    if (!behind) continue;
    ++behind->depth;
    Walk(text, branches[i].sequence, *behind);
  }
}

void Writer::WalkTurns(const Text& text, std::span<const Branch> turns, const Manner& manner) {
  const std::pair place(text.start * 2 + (text.source.file == model::FileKind::Macros ? 1 : 0),
                        turns[0].modifier.start);
  const auto [turn, isNew] = turns_.try_emplace(place, program_.turns);
  if (isNew) ++program_.turns;
  const Entry table = Here() + 1;
  Add({press_ ? OpKind::Turn : OpKind::SameTurn, 0, 0, turn->second,
       static_cast<std::int64_t>(turns.size())});
  for (std::size_t i = 0; i < turns.size(); ++i) Add({OpKind::Jump});
  std::vector<Entry> ends;
  for (std::size_t i = 0; i < turns.size(); ++i) {
    program_.ops[table + i].target = Here();
    if (press_) Add({OpKind::Latch});
    keyEnd_ = 0;
    auto behind = Behind(turns[i], manner);
    ++behind->depth;
    Walk(text, turns[i].sequence, *behind);
    ends.push_back(Here());
    Add({OpKind::Jump});
  }
  for (const Entry end : ends) program_.ops[end].target = Here();
  keyEnd_ = 0;
  const auto written = std::span(program_.ops).subspan(table);
  const bool isEmpty = std::ranges::all_of(
      written, [](const Op& op) { return op.kind == OpKind::Jump || op.kind == OpKind::SameTurn; });
  // Most turns have nothing for the release.
  if (!press_ && isEmpty) program_.ops.resize(table - 1);
}

void Writer::WalkItems(const Text& text, std::span<const Item> items, const Manner& manner) {
  held_.clear();
  for (std::size_t i = 0; i < items.size(); ++i) {
    const Item& item = items[i];
    if (++walked_ > kMostItems || Here() - begin_ > kMostOps || program_.ops.size() > kMostOpsAtAll) {
      return TellCut(text, item.range,
                     "This is too much for one press, and what comes from here on is left out");
    }
    if (item.kind == ItemKind::Repeat && item.number) {
      const std::int64_t times = TimesOf(text, item);
      if (times == 1) continue;
      if (times > 1) WriteRepeated(text, items.subspan(i), manner, times);
      return;
    }
    Manner here = manner;
    here.last = manner.last && i + 1 == items.size();
    WriteItem(text, item, here);
  }
}

std::int64_t Writer::TimesOf(const Text& text, const Item& item) {
  const std::int64_t times = *item.number;
  if (work_ * times <= kMostTimes) return times;
  TellCut(text, item.range, "So many repetitions would take too long, and some are left out");
  return kMostTimes / work_;
}

void Writer::WriteRepeated(const Text& text, std::span<const Item> items, const Manner& manner,
                           std::int64_t times) {
  if (items.size() > 1 && items[1].kind != ItemKind::Delay) BeginKey();
  const std::int64_t outer = work_;
  work_ *= times;
  const Entry from = Here();
  Add({OpKind::LoopBegin, 0, 0, 0, times});
  Manner here = manner;
  here.last = false;
  keyEnd_ = 0;
  WalkItems(text, items.subspan(1), here);
  work_ = outer;
  if (Here() == from + 1) return program_.ops.resize(from);
  if (keyEnd_ == Here()) Add({OpKind::Wait, 0, 0, 0, program_.timing.gap.count()});
  Add({OpKind::LoopEnd, 0, 0, from + 1, 0});
}

void Writer::WriteItem(const Text& text, const Item& item, const Manner& manner) {
  const std::string_view word = In(text.lines, item.range);
  if (nullSigns_.Hold(word)) return held_.clear();
  // A macro may have branches for the other of the two.
  if (manner.press != press_ && item.kind != ItemKind::Name) return;
  switch (item.kind) {
    case ItemKind::Prefix:
      for (const PrefixKey& each : kPrefixKeys) {
        if (model::SameWord(each.word, word)) held_.push_back(each.key);
      }
      return;
    case ItemKind::Key:
      return WriteKey(text, item, manner);
    case ItemKind::Raw:
      return WriteRaw(text, item);
    case ItemKind::Delay:
      return WriteDelay(item);
    case ItemKind::Reset:
      return Add({OpKind::Reset, 0, AddSource(text, item.range), 0, 0});
    case ItemKind::Name:
      return WriteMacro(text, item, manner);
    default:
      return;
  }
}

void Writer::BeginKey() {
  if (keyEnd_ != 0 && keyEnd_ == Here()) Add({OpKind::Wait, 0, 0, 0, program_.timing.gap.count()});
}

void Writer::WriteKey(const Text& text, const Item& item, const Manner& manner) {
  const auto named = KeyNamed(In(text.lines, item.range));
  std::vector<Key> with = std::move(held_);
  held_.clear();
  if (!named) return;
  if (named->shifted && std::ranges::find(with, kShift) == with.end()) with.push_back(kShift);
  BeginKey();
  const Entry from = Here();
  const std::uint32_t source = AddSource(text, item.range);
  const std::int64_t lead = program_.timing.lead.count();
  for (const Key key : with) {
    Add({OpKind::Make, key, source, 0, 0});
    Add({OpKind::Wait, 0, 0, 0, lead});
  }
  Add({OpKind::Make, named->key, source, 0, 0});
  Add({OpKind::Wait, 0, 0, 0, hold_});
  const bool stays = manner.last && !manner.named && !manner.once && !manner.whole;
  if (stays && !manner.atOnce) Add({OpKind::AwaitRelease});
  Add({OpKind::Break, named->key, source, 0, 0});
  for (auto key = with.rbegin(); key != with.rend(); ++key) {
    Add({OpKind::Wait, 0, 0, 0, lead});
    Add({OpKind::Break, *key, source, 0, 0});
  }
  if (stays && manner.atOnce) Add({OpKind::RepeatIfHeld, 0, 0, from, program_.timing.repeatPeriod.count()});
  keyEnd_ = Here();
}

void Writer::WriteDelay(const Item& item) {
  if (!item.number) return;
  Add({OpKind::Wait, 0, 0, 0, std::min<std::int64_t>(*item.number, 3600000) * kMicrosInMilli});
}

void Writer::WriteRaw(const Text& text, const Item& item) {
  BeginKey();
  Key extended = 0;
  bool released = false;
  int passedOver = 0;
  for (const model::RawCode& code : RawCodesOf(text.lines, item)) {
    const std::uint8_t value = code.value.value_or(0);
    if (value == kPauseCode) passedOver = kCodesOfPause;
    if (value == kExtendedCode) extended = kExtended;
    if (value == kBreakCode) released = true;
    if (value == kExtendedCode || value == kBreakCode || value == kPauseCode) continue;
    const bool ofPause = passedOver > 0;
    if (ofPause && --passedOver == 0 && !released) {
      WriteRawCode(AddSource(text, code.range), 0, kPause, false);
      WriteRawCode(AddSource(text, code.range), 0, kPause, true);
    }
    if (!ofPause && code.value) WriteRawCode(AddSource(text, code.range), value, extended, released);
    extended = 0;
    released = false;
  }
  keyEnd_ = Here();
}

void Writer::WriteRawCode(std::uint32_t source, std::uint8_t code, Key extended, bool released) {
  const auto key = static_cast<Key>(extended + code);
  const Op& last = program_.ops.back();
  // A key that goes down and up again is held as one that is named.
  const bool isTap = released && Here() > begin_ + 1 && last.kind == OpKind::Wait &&
                     program_.ops[Here() - 2].kind == OpKind::RawMake && program_.ops[Here() - 2].key == key;
  if (isTap) program_.ops.back().value = hold_;
  Add({released ? OpKind::RawBreak : OpKind::RawMake, key, source, 0, 0});
  Add({OpKind::Wait, 0, 0, 0, program_.timing.lead.count()});
}

void Writer::WriteMacro(const Text& text, const Item& item, const Manner& manner) {
  held_.clear();
  const model::MacroNames* macro = names_.FindMacro(In(text.lines, item.range));
  if (macro == nullptr || macro->definitions.empty()) return;
  const std::size_t index = macro->definitions.front().statement;
  const auto& definition = std::get<model::MacroDefinition>(pair_.macros[index].body);
  const auto* sequence = std::get_if<model::Sequence>(&definition.sends);
  if (sequence == nullptr) return;
  if (std::ranges::find(open_, index) != open_.end()) {
    return TellCut(text, item.range, "The macro contains itself, and what would never end is left out");
  }
  if (manner.depth >= kMostDepth) return TellCut(text, item.range, "The macros stand too deep in each other");
  Text inside{pair_.macros.LinesOf(index, pair_.macroText), pair_.macros.RangeOf(index).start, text.source};
  inside.source.file = model::FileKind::Macros;
  inside.source.macro = static_cast<std::int32_t>(index);
  Manner here = manner;
  ++here.depth;
  open_.push_back(index);
  const std::string layer = layer_;
  Walk(inside, *sequence, here);
  layer_ = layer;
  open_.pop_back();
}

}  // namespace tarvik::play
