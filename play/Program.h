// A pair of files made ready to be played: what each control, flag and axis sends, as instructions one after
// another. All memory that playing needs is taken here.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "language/FilePair.h"

namespace tarvik::play {

using Time = std::chrono::microseconds;
inline constexpr double kPerCent = 100;

/// The times that the files leave open.
struct Timing {
  Time hold = std::chrono::milliseconds(30);          ///< of a key, where there is no RATE
  Time rateUnit = std::chrono::milliseconds(1);       ///< a RATE of 1 holds a key so long
  Time gap = std::chrono::milliseconds(10);           ///< between two keys without DLY
  Time lead = std::chrono::milliseconds(2);           ///< between a key and one held with it
  Time repeatDelay = std::chrono::milliseconds(500);  ///< before the first repeat behind /F
  Time repeatPeriod = std::chrono::milliseconds(100);
  Time late = std::chrono::milliseconds(10);  ///< what is later is put off, not made up for
  double afterburner = 0.8;                   ///< where the throttle's afterburner begins
  double hysteresis = 0.005;                  ///< how far beyond the end of a step an axis must go
  double backStop = 0.005;                    ///< at and below this MT is down
};

/// A key by its code in scan code set 2; 256 and more for those with E0 before it.
using Key = std::uint16_t;
inline constexpr Key kExtended = 256;
inline constexpr Key kPause = 512;  ///< goes down and up at once
inline constexpr std::size_t kKeyCount = 513;

/// What an instruction was made from.
struct Source {
  model::FileKind file = model::FileKind::Joystick;
  std::uint32_t statement = 0;  ///< of the joystick file, also for what a macro says
  std::int32_t macro = -1;      ///< the statement of the macro file; -1 where there is none
  Range range = {};             ///< in the whole text of its file
  std::string layer = {};       ///< the modifiers that it stands behind, such as "/U /I"
};

enum class OpKind : std::uint8_t {
  Make,
  Break,
  RawMake,  ///< a key that stays down until its break
  RawBreak,
  Wait,
  AwaitRelease,
  LoopBegin,
  LoopEnd,   ///< `target` behind its LoopBegin
  Turn,      ///< goes to the next of `value` jumps behind it; `target` is the number of its counter
  SameTurn,  ///< goes to the one that Turn took last
  Jump,
  RepeatIfHeld,  ///< waits `value`, then goes to `target` while the control is held
  Latch,         ///< keys by RAW outlive the release from here on
  Reset,
  End,
};

struct Op {
  OpKind kind = OpKind::End;
  Key key = 0;
  std::uint32_t source = 0;
  std::uint32_t target = 0;
  std::int64_t value = 0;  ///< microseconds, or how often
};

using Entry = std::uint32_t;  ///< the place of an instruction; 0 for nothing

inline constexpr std::size_t kLayers = 6;  ///< three places of the dogfight switch, S3 in or out

/// A button's statement: where its instructions begin, by layer.
struct ButtonProgram {
  std::uint32_t control = 0;
  std::array<Entry, kLayers> press = {};
  std::array<Entry, kLayers> release = {};
};

enum class AxisMode : std::uint8_t { Steps, Places, Throttle };

struct AxisProgram {
  std::uint32_t axis = 0;
  AxisMode mode = AxisMode::Steps;
  int below = 0;         ///< the steps, of a throttle those below the afterburner
  int above = 0;         ///< those in the afterburner
  bool upwards = false;  ///< the first key is that of the lower end
  std::vector<Entry> keys = {};
};

enum class TestKind : std::uint8_t { Control, And, Or, Not, Pulse, Delay, Below, Above, Never };

/// A node of a condition. Its operands are nodes before it.
struct Test {
  TestKind kind = TestKind::Never;
  bool timed = false;         ///< PULSE or DELAY stands in it
  std::uint32_t subject = 0;  ///< a control, an axis, or the number of its timer
  Time on = {};
  Time off = {};
  double limit = 0;
  std::vector<std::uint32_t> operands;
};

struct FlagProgram {
  std::uint32_t control = 0;
  std::uint32_t test = 0;
};

enum class LinkKind : std::uint8_t { Port, Mouse };

/// A control that presses a button of the game port or of the mouse.
struct Link {
  LinkKind kind = LinkKind::Port;
  std::uint8_t number = 1;
  std::uint32_t control = 0;
  std::uint32_t source = 0;
};

/// Work that was cut because it would never end.
struct Cut {
  model::FileKind file = model::FileKind::Joystick;
  Range range = {};  ///< in the whole text
  std::string text;
};

inline constexpr std::array<std::string_view, 6> kAxisNames = {"THR", "RNG", "ANT", "JSX", "JSY", "RDDR"};

struct Program {
  std::vector<std::string> controls;  ///< in capital letters, with one blank in "RKR UP"
  std::vector<Source> sources;        ///< the first is nothing's
  std::vector<Op> ops;                ///< the first is an End
  std::vector<ButtonProgram> buttons;
  std::vector<AxisProgram> axes;
  std::vector<Test> tests;
  std::vector<FlagProgram> flags;
  std::vector<Link> links;
  std::vector<Cut> cuts;
  std::uint32_t turns = 0;
  std::uint32_t timers = 0;
  bool switchOnButtons = true;  ///< T7 and T8 are the ends of the dogfight switch
  bool swapsTrigger = false;    ///< SWAPTG stands in the file
  Timing timing;

  /// The number of a control, in either case of the letters.
  [[nodiscard]] std::optional<std::uint32_t> FindControl(std::string_view name) const;
};

[[nodiscard]] std::optional<std::uint32_t> FindAxis(std::string_view name);
/// Never fails: what makes no sense sends nothing.
[[nodiscard]] Program Compile(const model::FilePair& pair, const Timing& timing = {});
/// The key's name in the files, or its code.
[[nodiscard]] std::string NameOf(Key key);

}  // namespace tarvik::play
