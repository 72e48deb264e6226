#include "support/HandMade.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace tarvik::kneeboard {
namespace {

constexpr Layer kLayers[] = {{},
                             {Dogfight::Up, Shift::Any},
                             {Dogfight::Any, Shift::In},
                             {Dogfight::Middle, Shift::Out},
                             {Dogfight::Down, Shift::In},
                             {Dogfight::Up, Shift::Out}};
constexpr Moment kMoments[] = {Moment::Any, Moment::Press, Moment::Release};

std::size_t ActionsOf(Amount amount) {
  return amount == Amount::Sparse ? 1 : amount == Amount::Full ? 3 : 14;
}

/// Makes actions that differ in their layers, moments and turns.
class ActionMaker {
 public:
  ActionMaker(Amount amount, std::size_t letters) : amount_(amount), letters_(letters) {}

  Deed Next() {
    ++count_;
    return {NameOfLength(letters_), count_ % 3 == 0 ? "CTL SHF F1" + std::to_string(count_ % 3) : "g",
            count_ % 2 == 0 ? "FLIGHT" : "WEAPONS"};
  }

  Control Make(const std::string& name, const std::string& place, const std::string& label,
               char position = 0) {
    Control control = {name, place, label, position};
    // Some have nothing to do.
    const std::size_t actions = amount_ == Amount::Sparse && count_ % 4 == 3 ? 0 : ActionsOf(amount_);
    for (std::size_t i = 0; i < actions; ++i) {
      Action action = {kLayers[i % std::size(kLayers)], kMoments[i % std::size(kMoments)]};
      action.turn = static_cast<std::uint8_t>(i % 4);
      action.manner = i % 2 == 0 ? "" : "HN";
      action.deed = Next();
      control.actions.push_back(action);
    }
    if (actions == 0) ++count_;
    return control;
  }

 private:
  Amount amount_;
  std::size_t letters_;
  std::size_t count_ = 0;
};

void PutHats(DevicePage& stick, ActionMaker& make) {
  for (int hat = 0; hat < 4; ++hat) {
    for (const char position : {'U', 'R', 'D', 'L', 'M'}) {
      std::string name = "H" + std::to_string(hat + 1);
      name.push_back(position);
      const std::string place = position == 'U' ? "trim hat up" : "trim hat right";
      stick.controls.push_back(make.Make(name, place, "HAT-" + std::to_string(hat), position));
    }
  }
}

DevicePage StickOf(ActionMaker& make) {
  DevicePage stick = {"F-16 FLCS", "stick-flcs"};
  PutHats(stick, make);
  for (int button = 0; button < 4; ++button) {
    const std::string number = std::to_string(button);
    stick.controls.push_back(make.Make("S" + number, "side of head", "BTN-" + number));
  }
  stick.controls.push_back(make.Make("TG1", "trigger", "TRIG"));
  stick.controls.push_back(make.Make("TG2", "trigger", "TRIG"));
  stick.controls.push_back(make.Make("MT", "against the stop", ""));
  stick.scales.push_back({"JSX", "roll", "ROTARY-3", {}, "analog", {}, {}});
  Scale pitch = {"JSY", "pitch", "ROTARY-6", {Dogfight::Up, Shift::In}, "keys in both directions", {}, {}};
  for (int i = 0; i < 6; ++i)
    pitch.steps.push_back({i * 16.0, i * 16.0 + 16, make.Next(), make.Next(), i == 5});
  stick.scales.push_back(pitch);
  return stick;
}

DevicePage ThrottleOf(ActionMaker& make) {
  DevicePage throttle = {"F-16 TQS", "throttle-tqs"};
  for (const int button : {31, 12, 13, 24, 25, 26, 14, 30, 32, 29, 28, 27, 15, 11}) {
    const std::string number = std::to_string(button);
    throttle.controls.push_back(make.Make("T" + number, "radio up", "BTN-" + number));
  }
  for (const int rotary : {0, 1, 2, 5}) {
    Scale scale = {"RNG", "range knob", "ROTARY-" + std::to_string(rotary), {}, "steps", {}, {}};
    for (int i = 0; i < 10; ++i) {
      const Deed deed = make.Next();
      scale.steps.push_back({i * 10.0, i * 10.0 + 10, i < 6 ? Deed{"Up", "KP+", ""} : deed, deed, i > 7});
    }
    throttle.scales.push_back(scale);
  }
  return throttle;
}

}  // namespace

double EvenMeasure::Width(std::string_view text, bool bold) const {
  const auto letters = std::ranges::count_if(
      text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; });
  return static_cast<double>(letters) * (bold ? 0.56 : 0.52) * kPoint;
}

RealPlans::RealPlans() {
  for (const auto& file : std::filesystem::directory_iterator(TARVIK_DATA "/devices")) {
    if (file.path().extension() != ".svg") continue;
    std::ifstream in(file.path());
    const std::string svg((std::istreambuf_iterator<char>(in)), {});
    plans_[file.path().stem()] = {{190, 30, 530, 920}, LeadersIn(svg)};
  }
}

const DrawingPlan* RealPlans::Find(const std::string& drawing) const {
  const auto found = plans_.find(drawing);
  return found == plans_.end() ? nullptr : &found->second;
}

std::vector<Sheet> Laid(const Contents& contents, const Options& options) {
  static const RealPlans kPlans;
  return SheetsOf(contents, options, EvenMeasure(), kPlans);
}

std::string NameOfLength(std::size_t letters) {
  constexpr std::string_view kLetters = "Gear Toggle and long_words without end ABCDEFGHIJKLMNOPQRSTU";
  std::string name(kLetters.substr(0, letters));
  while (name.size() < letters) name.push_back('x');
  if (letters % 2 == 0) std::ranges::replace(name, ' ', '_');
  if (name.back() == ' ') name.back() = 'x';
  return name;
}

Contents MadeOf(Amount amount, std::size_t letters) {
  ActionMaker make(amount, letters);
  Contents contents;
  contents.title = {NameOfLength(letters), "Strike 97", "Copper", "14 December 1997"};
  contents.devices = {StickOf(make), ThrottleOf(make)};
  contents.headings = {"FLIGHT", "WEAPONS", NameOfLength(letters)};
  const std::size_t rows = ActionsOf(amount) * 2;
  for (std::size_t i = 0; i < rows; ++i) {
    contents.flags.push_back({"X" + std::to_string(i), NameOfLength(letters), {{.deed = make.Next()}}, {}});
    contents.facts.push_back({"mouse", NameOfLength(letters)});
  }
  for (const char* key : {"g", "F1", "KP7", "ESC", "SPC", "LAROW", "#45", "\\"}) {
    KeyUse use = {key};
    for (std::size_t i = 0; i < ActionsOf(amount); ++i) {
      const Deed deed = make.Next();
      use.presses.push_back(
          {i % 2 == 0 ? "" : "CTL SHF", deed.words, i == 2 ? contents.headings.back() : deed.heading, {}});
      if (i % 2 == 0) use.presses.back().controls = {"H1U", "RKR UP"};
    }
    contents.keys.push_back(use);
  }
  contents.problems = letters % 3;
  return contents;
}

}  // namespace tarvik::kneeboard
