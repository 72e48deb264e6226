// The sticks and throttles of the machine, all of them at once: which are there, and every change of them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace tarvik {

struct StickInfo {
  int number = 0;    ///< of its own as long as the program runs; one that comes back gets another
  std::string guid;  ///< of its kind
  std::string name;  ///< UTF-8
  std::string path;  ///< the socket where it is plugged in, empty where that is not known
  int axes = 0;
  int buttons = 0;
  int hats = 0;

  bool operator==(const StickInfo&) const = default;
};

enum class StickChangeKind : std::uint8_t {
  Button,  ///< 0 or 1
  Hat,     ///< bits: 1 up, 2 right, 4 down, 8 left
  Axis,    ///< from -32768 to 32767
};

struct StickChange {
  int stick = 0;
  StickChangeKind kind = StickChangeKind::Button;
  int number = 0;  ///< of the button, hat or axis, from 0
  int value = 0;
  bool atStart = false;  ///< so it stood when the stick was found

  bool operator==(const StickChange&) const = default;
};

/// Nothing is looked for before somebody listens.
class Sticks {
 public:
  virtual ~Sticks() = default;
  /// Tells of the sticks that are there and how they stand, then of every change. False where sticks cannot
  /// be read on this machine. It has been stopped before.
  virtual bool Start() = 0;
  /// Nothing is told from now on, also of sticks that go.
  virtual void Stop() = 0;

  // Who listens; set before the start. Each may stop it.
  std::function<void(const StickInfo& stick)> plugged;
  std::function<void(int stick)> unplugged;
  std::function<void(const StickChange& change)> changed;
};

}  // namespace tarvik
