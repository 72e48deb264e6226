// Where the user is: at the program, at another one, or leaving the machine.
#pragma once

#include <functional>
#include <string>

namespace tarvik {

class Seat {
 public:
  virtual ~Seat() = default;
  /// From now on what follows is told. The machine waits a moment before it sleeps, until that is heard.
  virtual void Watch() = 0;
  virtual void Leave() = 0;
  /// Whether a window of the program has the focus.
  [[nodiscard]] virtual bool IsInProgram() const = 0;

  // Who listens; set before the watch. Each may end it.
  std::function<void()> turned;  ///< IsInProgram() is another
  /// The machine goes to sleep, or the session is locked: in words.
  std::function<void(const std::string& why)> left;
};

}  // namespace tarvik
