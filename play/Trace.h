// A run as a text: what was pressed and when, and below each line what came of it. One line a thing:
//
//   ~ a remark
//   S3 down
//   > 0.000 S3 /I a down strike.b22:4
//   120ms
//   THR 40%
//   DOGFIGHT up
//   stop
#pragma once

#include <variant>

#include "play/Engine.h"

namespace tarvik::play {

/// What a line asks for: an event, a time to pass, or the end of the run.
struct TraceStep {
  enum class Kind : std::uint8_t { Event, Wait, Stop };

  std::size_t line = 0;  ///< in Trace::lines
  Kind kind = Kind::Event;
  Event event = {};
  Time wait = {};
};

struct Trace {
  std::vector<std::string> lines;  ///< all but what was expected
  std::vector<TraceStep> steps;
  std::vector<std::string> expected;      ///< the lines with ">", without it
  std::vector<std::size_t> expectedLine;  ///< the number of each in the text, from 1
  std::vector<std::string> files;         ///< of "plays NAME" lines
};

/// A line that cannot be read.
struct TraceError {
  std::size_t line = 0;  ///< from 1
  std::string text;
};

/// The files by the names that are shown, with their texts.
struct PlayedFiles {
  std::string joystickName;
  std::string_view joystickText;
  std::string macroName;
  std::string_view macroText;
};

/// `program` knows the controls.
[[nodiscard]] std::variant<Trace, TraceError> ReadTrace(std::string_view text, const Program& program);

/// What `ReadTrace` reads as this event, or as so much time to pass.
[[nodiscard]] std::string LineOf(const Event& event, const Program& program);
[[nodiscard]] std::string LineOf(Time wait);

/// What came, by the lines of the trace.
struct Outcomes {
  std::vector<std::vector<std::string>> outputs;  ///< one list for each of Trace::lines
  bool keysLeft = false;                          ///< a key was down after the end

  [[nodiscard]] std::vector<std::string> All() const;
};

/// The first line that came otherwise than expected.
struct TraceDifference {
  std::size_t line = 0;  ///< of the trace, from 1
  std::string expected;
  std::string came;
};
/// None for a trace that expects nothing.
[[nodiscard]] std::optional<TraceDifference> DifferenceOf(const Trace& trace, const Outcomes& run);

/// Plays on for a second after the last line, and lets go of all then.
[[nodiscard]] Outcomes Play(const Trace& trace, const Program& program, const PlayedFiles& files);
/// The trace with what came below its lines.
[[nodiscard]] std::string Printed(const Trace& trace, const Outcomes& run);
/// An output as a line: the time in seconds, the control, its layer, the key or button, and the line of the
/// file.
[[nodiscard]] std::string Printed(const Output& output, const Program& program, const PlayedFiles& files);

}  // namespace tarvik::play
