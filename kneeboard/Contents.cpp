#include "kneeboard/Contents.h"

#include <algorithm>
#include <cmath>

#include "kneeboard/Actions.h"
#include "kneeboard/KeyUses.h"
#include "kneeboard/Scales.h"
#include "kneeboard/Titles.h"
#include "language/Checking.h"
#include "language/ComposerTables.h"
#include "language/Controllers.h"
#include "text/CodePage.h"

namespace tarvik::kneeboard {
namespace {

using model::Said;
using tables::HardwareRow;
using tables::Picture;

constexpr std::string_view kBackStop = "MT";

struct HatPlace {
  std::string_view name;  ///< in the language
  char position;          ///< in the drawing
  std::string_view words;
};

constexpr HatPlace kHatPlaces[] = {
    {"U", 'U', "up"},      {"R", 'R', "right"},         {"D", 'D', "down"},
    {"L", 'L', "left"},    {"M", 'M', "in the middle"}, {"UL", 0, "up left"},
    {"UR", 0, "up right"}, {"DL", 0, "down left"},      {"DR", 0, "down right"},
};

std::string LabelOf(const HardwareRow& row) {
  std::string label(row.array);
  if (row.index >= 0) label.append("-").append(std::to_string(row.index));
  return label;
}

std::string_view WithoutBlank(std::string_view caption) {
  return caption.substr(std::min(caption.find_first_not_of(' '), caption.size()));
}

/// Fills the page of one device.
class DeviceWriter {
 public:
  DeviceWriter(const DeedWriter& writer, bool besidePlain) : writer_(writer), besidePlain_(besidePlain) {}

  [[nodiscard]] DevicePage PageOf(std::string_view title, std::string_view drawing, Picture picture) const {
    DevicePage page{.title = std::string(title), .drawing = std::string(drawing)};
    for (const HardwareRow& row : tables::kHardware) {
      if (row.picture == picture) Add(page, row);
    }
    return page;
  }

  [[nodiscard]] DevicePage PedalsPage(std::string_view title) const {
    DevicePage page{.title = std::string(title), .drawing = "pedals-rcs"};
    AddScales(page, "RDDR", "pedals", "ROTARY-2");
    return page;
  }

 private:
  void Add(DevicePage& page, const HardwareRow& row) const {
    const std::string label = LabelOf(row);
    if (row.array == "HAT") {
      AddHat(page, row, label);
    } else if (row.array == "TRIG") {
      for (const std::string_view name : tables::kTriggers) {
        AddControl(page, name, std::string(row.place), label, 0);
      }
    } else if (row.array == "ROTARY") {
      AddRotary(page, row, label);
    } else if (const std::string_view name = NameOf(row); !name.empty()) {
      AddControl(page, name, std::string(row.place), label, 0);
    }
  }

  /// The buttons of a WCS are called by the language of the stick.
  [[nodiscard]] std::string_view NameOf(const HardwareRow& row) const {
    if (row.picture != Picture::Wcs) return WithoutBlank(row.caption);
    const auto* const named = std::ranges::find(tables::kWcsButtons, row.index, &tables::WcsRow::button);
    if (named == std::end(tables::kWcsButtons)) return {};
    return besidePlain_ ? named->plain : named->numbered;
  }

  void AddHat(DevicePage& page, const HardwareRow& row, const std::string& label) const {
    const std::string_view hat = WithoutBlank(row.caption);
    for (const HatPlace& place : kHatPlaces) {
      const std::string name = Said({hat, place.name});
      // Corners are for those who use them, and the middle, which does nothing by itself.
      const bool isRare = place.position == 0 || place.position == 'M';
      if (isRare && !IsAssigned(name)) continue;
      AddControl(page, name, Said({row.place, " ", place.words}), label, place.position);
    }
  }

  void AddRotary(DevicePage& page, const HardwareRow& row, const std::string& label) const {
    const std::string_view axis = tables::kRotaries[row.index].search;
    if (model::FindAxis(axis) == nullptr) return;
    AddScales(page, axis, row.place, label);
    if (axis == "THR" && IsAssigned(kBackStop)) AddControl(page, kBackStop, "lever right back", label, 0);
  }

  [[nodiscard]] bool IsAssigned(std::string_view name) const {
    const model::ControlNames* const control = writer_.speaker().Names().FindControl(name);
    return control != nullptr && !control->assignments.empty();
  }

  void AddControl(DevicePage& page, std::string_view name, std::string place, const std::string& label,
                  char position) const {
    Control control{
        .name = std::string(name), .place = std::move(place), .label = label, .position = position};
    const model::ControlNames* const names = writer_.speaker().Names().FindControl(name);
    if (names != nullptr) control.actions = ActionsOf(writer_, *names);
    page.controls.push_back(std::move(control));
  }

  void AddScales(DevicePage& page, std::string_view axis, std::string_view place,
                 const std::string& label) const {
    for (Scale& scale : ScalesOf(writer_, axis)) {
      scale.name = axis;
      scale.place = place;
      scale.label = label;
      page.scales.push_back(std::move(scale));
    }
  }

  const DeedWriter& writer_;
  bool besidePlain_;
};

/// What is attached. Where the files leave the stick open it is an F-22 Pro.
void AddDevices(const DeedWriter& writer, Contents& contents) {
  const model::FilePair& pair = writer.speaker().Pair();
  const model::Hardware hardware = model::AttachedHardware(pair.joystick, pair.joystickText, pair.hardware);
  const int stick = hardware.joystick.value_or(kF22Pro);
  const bool plain = IsPlain(stick);
  const DeviceWriter devices(writer, plain);
  const JoystickRow* const row = RowOf(kJoysticks, stick);
  contents.devices.push_back(devices.PageOf(row == nullptr ? "Joystick" : row->inComposer,
                                            plain ? "stick-fcs" : "stick-flcs",
                                            plain ? Picture::PlainStick : Picture::Stick));
  const int throttle = hardware.throttle.value_or(kNoThrottle);
  const PartRow* const lever = RowOf(kThrottles, throttle);
  if (lever != nullptr && throttle != kNoThrottle) {
    const bool tqs = throttle == kTqs;
    contents.devices.push_back(devices.PageOf(lever->name, tqs ? "throttle-tqs" : "throttle-wcs",
                                              tqs ? Picture::Tqs : Picture::Wcs));
    return;  // with the pedals
  }
  const int number = hardware.rudders.value_or(kNoRudders);
  const PartRow* const rudders = RowOf(kRudders, number);
  DevicePage pedals =
      devices.PedalsPage(rudders == nullptr || number == kNoRudders ? "Rudders" : rudders->name);
  if (!pedals.scales.empty()) contents.devices.push_back(std::move(pedals));
}

void AddFlags(const DeedWriter& writer, Contents& contents) {
  const model::FilePair& pair = writer.speaker().Pair();
  for (const model::FlagNames& flag : writer.speaker().Names().Flags()) {
    FlagRow row{.name = Said({"X", std::to_string(flag.number)})};
    if (!flag.definitions.empty()) {
      row.source = flag.definitions.front();
      const auto* body = std::get_if<model::Definition>(&pair.joystick[row.source.statement].body);
      const std::string_view lines = pair.joystick.LinesOf(row.source.statement, pair.joystickText);
      if (body != nullptr) row.condition = ToUtf8(writer.speaker().InWords(lines, body->condition));
    }
    row.sends = ActionsOf(writer, flag.buttons);
    if (!row.condition.empty() || !row.sends.empty()) contents.flags.push_back(std::move(row));
  }
}

/// What holds for the whole file, and the buttons of the game port.
void AddFacts(const DeedWriter& writer, Contents& contents) {
  const model::FilePair& pair = writer.speaker().Pair();
  for (std::size_t i = 0; i < pair.joystick.size(); ++i) {
    const model::JoystickStatement& statement = pair.joystick[i];
    const std::string_view lines = pair.joystick.LinesOf(i, pair.joystickText);
    const auto words = [&](Range range) { return model::In(lines, range); };
    if (const auto* port = std::get_if<model::Port>(&statement.body);
        port != nullptr && port->control.length > 0) {
      contents.facts.push_back({Said({"Game port ", words(statement.word).substr(5)}),
                                ToUtf8(model::ControlInWords(words(port->control)))});
    }
    if (std::holds_alternative<model::Command>(statement.body) &&
        model::SameWord(words(statement.word), "SWAPTG")) {
      contents.facts.push_back({"Trigger", "both stages exchanged"});
    }
    const auto* setting = std::get_if<model::Setting>(&statement.body);
    if (setting == nullptr || setting->values.size() < 2 ||
        !model::SameWord(words(setting->values[0]), "MTYPE"))
      continue;
    contents.facts.push_back({"Mouse", Said({"type ", ToUtf8(words(setting->values[1]))})});
  }
}

void AddHeadings(const DeedWriter& writer, Contents& contents) {
  for (const model::MacroNames& macro : writer.speaker().Names().Macros()) {
    std::string heading = ToUtf8(writer.HeadingOf(macro));
    if (!heading.empty() && std::ranges::find(contents.headings, heading) == contents.headings.end()) {
      contents.headings.push_back(std::move(heading));
    }
  }
}

std::size_t ProblemsOf(const model::FilePair& pair) {
  const auto problems = model::ProblemsIn(pair);
  return static_cast<std::size_t>(std::ranges::count_if(
      problems, [](const model::Problem& each) { return each.rule->severity != model::Severity::Hint; }));
}

/// Whether the macro file is missing rather than one of its macros.
bool LacksMacros(const model::NameIndex& names) {
  const auto& macros = names.Macros();
  return !macros.empty() &&
         std::ranges::all_of(macros, [](const model::MacroNames& each) { return each.definitions.empty(); });
}

}  // namespace

std::string Percent(double value) { return std::to_string(std::lround(value)); }

Contents ContentsOf(const model::FilePair& pair, const model::NameIndex& names) {
  const DeedWriter writer(pair, names);
  Contents contents;
  contents.title = TitleOf(pair);
  AddDevices(writer, contents);
  AddFlags(writer, contents);
  AddFacts(writer, contents);
  AddHeadings(writer, contents);
  contents.keys = KeyUsesOf(writer);
  contents.problems = ProblemsOf(pair);
  contents.lacksMacros = LacksMacros(names);
  return contents;
}

}  // namespace tarvik::kneeboard
