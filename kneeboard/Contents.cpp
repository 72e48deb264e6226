#include "kneeboard/Contents.h"

#include <algorithm>

#include "kneeboard/Actions.h"
#include "kneeboard/KeyboardUses.h"
#include "language/ComposerTables.h"
#include "language/Controllers.h"
#include "language/Problems.h"

namespace tarvik::kneeboard {
namespace {

using model::In;
using tables::Picture;

/// Fills the controls of a page with what their statements send.
struct Filler {
  const model::FilePair& pair;
  const model::NameIndex& names;
  const Deeds& deeds;

  void Add(DevicePage& page, std::string name, const std::string& label, std::string place,
           char position) const {
    Control control{std::move(name), std::move(place), label, position, {}};
    if (const model::ControlNames* found = names.FindControl(control.name)) {
      for (const model::Mention& each : found->assignments) Assign(control, each.statement);
    }
    page.controls.push_back(std::move(control));
  }

 private:
  void Assign(Control& control, std::size_t statement) const {
    const auto* button = std::get_if<model::Button>(&pair.joystick[statement].body);
    if (button == nullptr) return;
    const std::string_view lines = pair.joystick.LinesOf(statement, pair.joystickText);
    const model::Mention source{model::FileKind::Joystick, statement, pair.joystick.RangeOf(statement)};
    for (Action& action : ActionsOf(deeds, lines, button->sends, source)) {
      control.actions.push_back(std::move(action));
    }
  }
};

std::string LabelOf(const tables::HardwareRow& row) {
  std::string label(row.array);
  if (row.index >= 0) label.append("-").append(std::to_string(row.index));
  return label;
}

std::string PlaceOf(const tables::HardwareRow& row, std::string_view position) {
  constexpr std::pair<std::string_view, std::string_view> kWords[] = {
      {"U", " up"},       {"R", " right"},     {"D", " down"},       {"L", " left"},       {"M", " middle"},
      {"UL", " up left"}, {"UR", " up right"}, {"DL", " down left"}, {"DR", " down right"}};
  std::string place(row.place);
  for (const auto& [letters, words] : kWords) {
    if (letters == position) place.append(words);
  }
  return place;
}

void AddHat(const Filler& filler, DevicePage& page, const tables::HardwareRow& row) {
  std::string hat(row.caption);
  hat.erase(0, hat.find_first_not_of(' '));
  const std::string label = LabelOf(row);
  for (const std::string_view position : tables::kHatPositions) {
    filler.Add(page, hat + std::string(position), label, PlaceOf(row, position), position.front());
  }
  if (hat == "H") return;
  for (const std::string_view corner : tables::kHatCorners) {
    filler.Add(page, hat + std::string(corner), label, PlaceOf(row, corner), 0);
  }
}

void AddWcsButton(const Filler& filler, DevicePage& page, const tables::HardwareRow& row, bool plain) {
  const auto* button = std::ranges::find(tables::kWcsButtons, row.index, &tables::WcsRow::button);
  if (button == std::end(tables::kWcsButtons)) return;
  const std::string name(plain ? button->plain : button->numbered);
  if (name.empty()) return;
  const bool isRocker = row.place.starts_with("rocker");
  const char position = !isRocker                     ? '\0'
                        : row.place.ends_with("up")   ? 'U'
                        : row.place.ends_with("down") ? 'D'
                                                      : 'M';
  filler.Add(page, name, LabelOf(row), std::string(row.place), position);
}

DevicePage PageOf(const Filler& filler, Picture picture, bool plain) {
  DevicePage page;
  for (const tables::HardwareRow& row : tables::kHardware) {
    if (row.picture != picture || row.array == "ROTARY") continue;
    if (row.array == "HAT") {
      AddHat(filler, page, row);
    } else if (row.array == "TRIG") {
      for (const std::string_view each : tables::kTriggers) {
        filler.Add(page, std::string(each), "TRIG", each == "TG1" ? "trigger first" : "trigger second", 0);
      }
    } else if (picture == Picture::Wcs) {
      AddWcsButton(filler, page, row, plain);
    } else {
      filler.Add(page, std::string(row.caption), LabelOf(row), std::string(row.place), 0);
    }
  }
  return page;
}

/// A page for the stick, and one for the throttle where there is one.
std::vector<DevicePage> DevicesOf(const Filler& filler) {
  const model::Hardware attached =
      AttachedHardware(filler.pair.joystick, filler.pair.joystickText, filler.pair.hardware);
  const int joystick = std::clamp(attached.joystick.value_or(kF22Pro), 0, static_cast<int>(kFcs));
  const bool plain = IsPlain(joystick);
  std::vector<DevicePage> pages;
  pages.push_back(PageOf(filler, plain ? Picture::PlainStick : Picture::Stick, plain));
  pages.back().title = kJoysticks[joystick].inComposer;
  pages.back().drawing = plain ? "stick-fcs" : "stick-flcs";
  const int throttle = attached.throttle.value_or(kNoThrottle);
  if (throttle > kNoThrottle && throttle <= kWcs) {
    const bool isTqs = throttle == kTqs;
    pages.push_back(PageOf(filler, isTqs ? Picture::Tqs : Picture::Wcs, plain));
    pages.back().title = kThrottles[throttle].name;
    pages.back().drawing = isTqs ? "throttle-tqs" : "throttle-wcs";
    if (isTqs) filler.Add(pages.back(), "MT", "ROTARY-5", "lever at back stop", 0);
  }
  return pages;
}

std::vector<FlagRow> FlagsOf(const Filler& filler) {
  std::vector<FlagRow> rows;
  const model::FilePair& pair = filler.pair;
  for (const model::FlagNames& flag : filler.names.Flags()) {
    if (flag.definitions.empty()) continue;
    const std::size_t at = flag.definitions.front().statement;
    const auto* definition = std::get_if<model::Definition>(&pair.joystick[at].body);
    if (definition == nullptr) continue;
    const std::string_view lines = pair.joystick.LinesOf(at, pair.joystickText);
    FlagRow row{"X" + std::to_string(flag.number),
                filler.deeds.Speaker().InWords(lines, definition->condition),
                {},
                {model::FileKind::Joystick, at, pair.joystick.RangeOf(at)}};
    for (const model::Mention& each : flag.buttons) {
      const auto* button = std::get_if<model::Button>(&pair.joystick[each.statement].body);
      if (button == nullptr) continue;
      const std::string_view words = pair.joystick.LinesOf(each.statement, pair.joystickText);
      for (Action& action : ActionsOf(filler.deeds, words, button->sends, each)) {
        row.sends.push_back(std::move(action.deed));
      }
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace

Contents ContentsOf(const model::FilePair& pair, const model::NameIndex& names) {
  const Deeds deeds(pair, names);
  const Filler filler{pair, names, deeds};
  Contents contents;
  contents.devices = DevicesOf(filler);
  contents.flags = FlagsOf(filler);
  contents.headings = deeds.Headings();
  contents.keys = KeyUsesOf(deeds);
  for (const model::Problem& each : model::ProblemsIn(pair)) {
    if (each.rule->severity != model::Severity::Hint) ++contents.problems;
  }
  return contents;
}

}  // namespace tarvik::kneeboard
