// Keys and mouse buttons that are really sent, to whatever program has the focus.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace tarvik {

/// How they are sent.
enum class KeyWay : std::uint8_t {
  None,
  Uinput,  ///< by a keyboard of our own, which the kernel makes: it works everywhere
  Xtest,   ///< by the X server
};

/// What there is on this desktop.
struct KeyOutputState {
  KeyWay way = KeyWay::None;
  std::string why;      ///< a better way, or any, is not there; empty for Uinput
  std::string mend;     ///< the command that mends that; empty where there is none
  bool hotKey = false;  ///< Ctrl+Alt+End is heard in whatever program has the focus

  bool operator==(const KeyOutputState&) const = default;
};

class KeyOutput {
 public:
  virtual ~KeyOutput() = default;
  /// Looks for a way; `answered` tells what was found. It has been stopped before.
  virtual void Start() = 0;
  /// Everything goes up. Nothing is told from now on.
  virtual void Stop() = 0;
  /// Once it has answered with a way. `position` is a KEY_ or BTN_ number of linux/input-event-codes.h.
  /// Nobody is told anything before it returns.
  virtual void Send(std::uint16_t position, bool down) = 0;

  // Who listens; set before the start. Each may stop it.
  std::function<void(const KeyOutputState& state)> answered;
  /// It goes no longer, for a reason in words; everything is up.
  std::function<void(const std::string& why)> lost;
  /// The user has pressed the hot key; everything is up.
  std::function<void()> hotKeyPressed;
};

}  // namespace tarvik
