// A pair of files by its texts, ready to be played.
#pragma once

#include "play/Trace.h"

namespace tarvik::play {

class Played {
 public:
  explicit Played(std::string joystick, std::string macros = {})
      : joystick_(std::move(joystick)),
        macros_(std::move(macros)),
        joystickFile_(joystick_),
        macroFile_(macros_),
        program(Compile({joystickFile_, joystick_, macroFile_, macros_})) {}
  Played(const Played&) = delete;
  Played& operator=(const Played&) = delete;

  /// What comes of a trace, an output a line and each with its file's line behind it.
  [[nodiscard]] std::vector<std::string> Outputs(std::string_view text) const {
    const auto trace = ReadTrace(text, program);
    if (const auto* error = std::get_if<TraceError>(&trace)) return {error->text};
    return Play(std::get<Trace>(trace), program, Files()).All();
  }
  [[nodiscard]] PlayedFiles Files() const { return {"joystick", joystick_, "macros", macros_}; }

 private:
  std::string joystick_;
  std::string macros_;
  model::JoystickFile joystickFile_;
  model::MacroFile macroFile_;

 public:
  const Program program;
};

}  // namespace tarvik::play
