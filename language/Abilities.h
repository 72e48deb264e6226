// What each controller can: which controls it has, which slash modifiers, axes and statements it knows. The
// rows are drawn from the Composer's tables; what is attached picks among them.
#pragma once

#include <span>

#include "language/FilePair.h"

namespace tarvik::model {

/// The devices as far as their abilities differ, each a bit. What they are together is one number.
enum Device : unsigned {
  kF22Stick = 1,
  kFlcsStick = 2,
  kPlainStick = 4,
  kTqsThrottle = 8,
  kWcsBesideNumbered = 16,
  kWcsBesidePlain = 32,
  kPedals = 64,
};

inline constexpr unsigned kNumberedSticks = kF22Stick | kFlcsStick;
inline constexpr unsigned kSticks = kNumberedSticks | kPlainStick;
inline constexpr unsigned kAnyWcs = kWcsBesideNumbered | kWcsBesidePlain;
inline constexpr unsigned kAnyThrottle = kTqsThrottle | kAnyWcs;
inline constexpr unsigned kAnyDevice = kSticks | kAnyThrottle | kPedals;

/// What an ability is about. The names are the words of the language: a control such as "H1U" or "RKR UP", a
/// modifier's letter, the word of a statement.
enum class AbilityKind : std::uint8_t { Control, Axis, Slash, Statement };

struct Ability {
  AbilityKind kind = AbilityKind::Control;
  std::string name;
  unsigned devices = 0;  ///< that have it
};

/// All that any controller can, sorted by kind and name.
[[nodiscard]] std::span<const Ability> AllAbilities();

class Abilities {
 public:
  explicit Abilities(const Hardware& hardware);

  enum class Place {
    Here,       ///< what is attached has it
    Elsewhere,  ///< another controller has it
    Nowhere,
  };
  /// In either case of the letters. `name` has one blank between its words.
  [[nodiscard]] Place Of(AbilityKind kind, std::string_view name) const;
  [[nodiscard]] bool Has(AbilityKind kind, std::string_view name) const {
    return Of(kind, name) == Place::Here;
  }
  /// The dogfight switch stands on the throttle.
  [[nodiscard]] bool HasDogfightSwitch() const { return (devices_ & kAnyThrottle) != 0; }
  /// What is attached, or may be where that is not known.
  [[nodiscard]] unsigned Devices() const { return devices_; }

 private:
  unsigned devices_;
};

/// The devices in words, for "only ... has it"; those of a word in the order of the enumeration.
[[nodiscard]] std::string InWords(unsigned devices);
/// The devices that have it; none for what no controller can.
[[nodiscard]] unsigned DevicesWith(AbilityKind kind, std::string_view name);

}  // namespace tarvik::model
