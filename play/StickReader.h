// Turns what sticks of today do into what the controls of the hardware do, by a StickMap. It has no clock,
// and takes no memory while nothing is plugged in or mapped anew.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <utility>

#include "play/Engine.h"
#include "play/StickMap.h"

namespace tarvik::play {

/// Where a hat stands: bits, of which two neighbours may be set.
enum HatBit : int { kHatMiddle = 0, kHatUp = 1, kHatRight = 2, kHatDown = 4, kHatLeft = 8 };

/// The ends of an axis.
inline constexpr int kAxisLeast = -32768;
inline constexpr int kAxisMost = 32767;

/// What a control does.
struct ControlEvent {
  EventKind kind = EventKind::Nothing;
  std::string_view control;  ///< of a switch "DOGFIGHT"
  double position = 0;       ///< of an axis, from 0 to 1
  std::uint32_t place = 1;   ///< of the dogfight switch: 0 up, 1 in the middle, 2 down
};

/// The same for an engine; none where the program has no such control.
[[nodiscard]] std::optional<Event> EventFor(const ControlEvent& event, const Program& program);

class StickReader {
 public:
  /// Hears what the controls do, in order. The name in the event is good as long as it is heard.
  using Hear = std::function<void(const ControlEvent& event)>;
  explicit StickReader(Hear hear) : hear_(std::move(hear)) {}

  /// Lets go of all that is held, and reads by another map from then on. What is held stands for something
  /// from its next press.
  void Use(const StickMap& map);
  /// `stick` is a number of the caller's for the stick.
  void Plug(int stick, const StickId& id);
  /// Lets go of what it held.
  void Unplug(int stick);
  /// All that is held goes up, and counts from its next press.
  void LetGo();

  enum class Moment : std::uint8_t {
    Start,  ///< so it stands since it was plugged in: a button counts from its next press, an axis at once
    Now,
  };
  /// `value`: of a button 0 or 1, of a hat HatBits, of an axis from kAxisLeast to kAxisMost.
  void Change(int stick, StickPart part, int number, int value, Moment moment = Moment::Now);

 private:
  static constexpr std::size_t kPlaces = 9;
  static constexpr int kUnknown = -1;
  static constexpr std::size_t kNone = ~std::size_t{0};

  /// An input that stands for something, and where it is. A place is a position of a hat or a switch; a
  /// button has two.
  struct Binding {
    StickInput input;
    TargetKind kind = TargetKind::Control;
    std::size_t axis = kNone;                  // of kAxisNames
    std::array<std::size_t, kPlaces> at = {};  // the controls of its places, in controls_
    int place = kUnknown;
    bool holds = false;  // it pressed the control of its place
    double position = kUnknown;
  };
  struct Plugged {
    StickId id;
    std::vector<Binding> bindings;
    std::map<std::pair<StickPart, int>, int> seen;  // the last value of each part
  };
  struct Control {
    std::string name;
    int holders = 0;
  };

  void Bind(Plugged& stick);
  [[nodiscard]] Binding BindingOf(const StickInput& input, const std::string& control);
  std::size_t ControlNamed(std::string_view name);
  void Take(Binding& binding, int value, Moment moment);
  void TakeAxis(Binding& binding, double position);
  [[nodiscard]] static int PlaceIn(const Binding& binding, int value);
  void GoTo(Binding& binding, int place, Moment moment);
  void Release(Binding& binding);
  void Press(std::size_t control);
  void LetGoOf(std::size_t control);
  void TurnSwitch(std::uint32_t place);

  Hear hear_;
  StickMap map_;
  std::map<int, Plugged> sticks_;
  std::vector<Control> controls_;
  std::uint32_t switch_ = 1;
};

}  // namespace tarvik::play
