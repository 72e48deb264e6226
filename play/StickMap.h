// Which control of the hardware each button, hat and axis of a stick of today stands for. A map is a value:
// it is made in a form, kept as lines of text, and played by a StickReader.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarvik::play {

/// Equal sticks have the same GUID and name, and differ in their path, which is that of the socket they are
/// plugged into.
struct StickId {
  std::string guid;
  std::string name;
  std::string path;

  bool operator==(const StickId&) const = default;
};

enum class StickPart : std::uint8_t { Button, Hat, Axis };

/// Whole: all of a button, a hat or an axis. Turned: an axis from its other end. The directions are those of
/// a hat, Low and High the two ends of an axis.
enum class StickWay : std::uint8_t { Whole, Turned, Up, Right, Down, Left, Low, High };

struct StickInput {
  StickPart part = StickPart::Button;
  std::uint8_t number = 0;  ///< from 0
  StickWay way = StickWay::Whole;

  bool operator==(const StickInput&) const = default;
};

/// As "button 1", "hat 1 up", "axis 3 turned"; the numbers begin with 1.
[[nodiscard]] std::string InWords(const StickInput& input);
[[nodiscard]] std::optional<StickInput> InputIn(std::string_view words);

/// What an input can stand for.
enum class TargetKind : std::uint8_t {
  Control,      ///< "S1", "H1U", "RKR UP"
  Hat,          ///< "H1": all of its positions
  Axis,         ///< "THR"
  Rocker,       ///< "RKR": up, middle and down
  Switch,       ///< "DOGFIGHT": the three places of the switch
  SwitchPlace,  ///< "DOGFIGHT UP", "DOGFIGHT DOWN": there while it is held, in the middle else
};

/// None for a name that no controller has. Names are taken in either case of the letters.
[[nodiscard]] std::optional<TargetKind> TargetNamed(std::string_view name);
/// All names that an input can be given, the hats and the dogfight switch as a whole too.
[[nodiscard]] std::span<const std::string> AllTargets();
[[nodiscard]] bool Fits(const StickInput& input, TargetKind target);

class StickMap {
 public:
  struct Row {
    StickInput input;
    std::string control;  ///< in capital letters

    bool operator==(const Row&) const = default;
  };
  struct Stick {
    StickId id;
    std::vector<Row> rows;  ///< sorted by input

    bool operator==(const Stick&) const = default;
  };

  /// The control of an input; empty for none. A stick whose path is new has what its equal has.
  [[nodiscard]] std::string_view Find(const StickId& stick, const StickInput& input) const;
  /// Puts the control in the place of what the input stood for. False: the input cannot stand for it.
  bool Set(const StickId& stick, const StickInput& input, std::string_view control);
  void Remove(const StickId& stick, const StickInput& input);
  /// The stick stands for nothing any more, and its equals keep what they have.
  void Clear(const StickId& stick);

  /// The stick itself or, where its path is new, its equal; null where there is neither.
  [[nodiscard]] const Stick* StickOf(const StickId& id) const;
  [[nodiscard]] const std::vector<Stick>& Sticks() const { return sticks_; }

  /// A line for each stick and for each row.
  [[nodiscard]] std::vector<std::string> Lines() const;
  /// Lines that cannot be read are left out.
  [[nodiscard]] static StickMap Read(std::span<const std::string> lines);

  bool operator==(const StickMap&) const = default;

 private:
  Stick& Own(const StickId& id);
  static void TakeOut(std::vector<Row>& rows, const StickInput& input);

  std::vector<Stick> sticks_;
};

}  // namespace tarvik::play
