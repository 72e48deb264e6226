// Plays a pair of files: controls and axes come in with the time, keys and buttons go out. No clock, no
// thread, and after the making of an engine no memory.
#pragma once

#include <span>

#include "play/Program.h"

namespace tarvik::play {

enum class EventKind : std::uint8_t {
  Nothing,  ///< time has passed
  Down,
  Up,
  Switch,  ///< the dogfight switch; `index` is where it goes
  Move,    ///< an axis; `index` is one of kAxisNames
};

/// The places of the dogfight switch.
inline constexpr std::uint32_t kSwitchUp = 0;
inline constexpr std::uint32_t kSwitchInMiddle = 1;
inline constexpr std::uint32_t kSwitchDown = 2;

struct Event {
  EventKind kind = EventKind::Nothing;
  std::uint32_t index = 0;  ///< of a control in Program::controls
  double position = 0;      ///< of an axis, from 0 to 1
};

enum class OutputKind : std::uint8_t { Key, Mouse, Port, Reset };

struct Output {
  Time at = {};
  OutputKind kind = OutputKind::Key;
  bool down = false;
  std::uint16_t number = 0;   ///< a Key, or the number of a button from 1
  std::uint32_t control = 0;  ///< of Program::controls, behind them the axes; kNoControl for none
  std::uint32_t source = 0;   ///< of Program::sources
};
inline constexpr std::uint32_t kNoControl = ~std::uint32_t{0};

struct StepResult {
  std::span<const Output> outputs;  ///< valid until the next step
  std::optional<Time> deadline;     ///< when the next step is due, if nothing happens before
};

class Engine {
 public:
  /// The program must outlive it.
  explicit Engine(const Program& program);

  /// `now` never goes back.
  StepResult Step(const Event& event, Time now);
  /// Lets go of everything that is down, and forgets what was to be sent.
  StepResult Stop(Time now);

  [[nodiscard]] bool IsDown(Key key) const { return holders_[key] > 0; }
  [[nodiscard]] bool AnyKeyDown() const;
  [[nodiscard]] bool IsControlDown(std::uint32_t control) const { return down_[control] != 0; }
  [[nodiscard]] bool IsRunning() const;
  /// How many presses were not played because too many were waiting.
  [[nodiscard]] std::uint64_t Lost() const { return lost_; }

 private:
  static constexpr std::size_t kMostLoops = 16;
  static constexpr std::uint32_t kNoSlot = ~std::uint32_t{0};

  /// What is sent for a statement, one press after another.
  struct Slot {
    struct Part {
      Entry entry = 0;
      bool release = false;
    };
    std::vector<Part> waiting;  // a ring
    std::size_t first = 0;
    std::size_t count = 0;
    Entry at = 0;  // 0 where nothing is being sent
    Time wake = {};
    std::array<std::int64_t, kMostLoops> loops = {};
    std::size_t depth = 0;
    std::uint32_t control = 0;
    std::uint32_t source = 0;
    std::uint8_t layer = 0;
    bool releasing = false;
    bool awaits = false;   // the release
    bool repeats = false;  // unless it is released before
    bool latched = false;
    bool passesOver = false;  // the next release, whose press was lost
  };

  struct AxisState {
    int step = 0;
    bool known = false;
  };

  void Take(const Event& event);
  void Put(std::uint32_t control, bool down);
  void Move(std::uint32_t axis, double position);
  void MoveAxis(std::size_t index, double position);
  void StepTo(std::size_t index, int step);
  [[nodiscard]] int StepAt(const AxisProgram& axis, double position, int current) const;
  [[nodiscard]] std::size_t LayerNow() const;
  bool Queue(Slot& slot, Entry entry, bool release);
  void AskFlags();
  [[nodiscard]] bool Ask(std::uint32_t test, bool enabled);
  [[nodiscard]] bool AskTimer(const Test& test, bool enabled);
  [[nodiscard]] bool AskAll(const Test& test, bool enabled);
  void RunAll();
  [[nodiscard]] bool IsDue(const Slot& slot) const;
  void Run(Slot& slot, std::uint32_t index);
  bool Begin(Slot& slot);
  void EndPart(Slot& slot, std::uint32_t index);
  /// Whether the next instruction comes at once.
  bool Do(Slot& slot, std::uint32_t index, const Op& op);
  void DoKey(const Slot& slot, std::uint32_t index, const Op& op);
  bool DoHold(Slot& slot, const Op& op);
  void Go(Slot& slot, const Op& op);
  void Press(Key key, const Slot& slot);
  void LetGo(Key key, const Slot& slot);
  void PressRaw(Key key, const Slot& slot, std::uint32_t index);
  void LetGoRaw(Key key, const Slot& slot);
  void Reset();
  void LetGoAtRest();
  void Emit(OutputKind kind, std::uint16_t number, bool down, std::uint32_t control, std::uint32_t source);
  StepResult Result();

  const Program& program_;
  Time now_ = {};
  std::vector<Slot> slots_;  // of the buttons, then of the axes
  std::vector<std::uint8_t> down_;
  std::vector<std::uint8_t> isFlag_;
  std::vector<std::uint8_t> wasDown_;
  std::vector<std::uint32_t> turns_;
  std::vector<std::optional<Time>> timers_;
  std::vector<AxisState> axes_;
  std::array<std::optional<double>, kAxisNames.size()> positions_ = {};
  std::array<std::uint16_t, kKeyCount> holders_ = {};
  std::array<std::uint32_t, kKeyCount> rawOwner_ = {};
  std::size_t rawDown_ = 0;
  std::array<std::uint16_t, 5> ports_ = {};
  std::array<std::uint16_t, 5> mouse_ = {};
  std::vector<Output> outputs_;
  std::optional<Time> flagDeadline_;
  std::uint32_t switch_ = kSwitchInMiddle;
  std::uint64_t lost_ = 0;
  bool resets_ = false;
  std::uint32_t s3_, mt_, tg1_, tg2_, t7_, t8_;
};

}  // namespace tarvik::play
