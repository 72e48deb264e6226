#include "check/PlayTrace.h"

#include <algorithm>

#include "check/PairFiles.h"
#include "play/Trace.h"

namespace tarvik::check {
namespace {

namespace fs = std::filesystem;

void Complain(const Streams& streams, const fs::path& path, std::string_view why) {
  streams.error << "tarvik-check: " << path.string() << ": " << why << '\n';
}

/// The first line that came otherwise than expected.
Status Compare(const play::Trace& trace, const std::vector<std::string>& came, const std::string& path,
               const Arguments& arguments, const Streams& streams) {
  const auto [expected, got] = std::ranges::mismatch(trace.expected, came);
  if (expected == trace.expected.end() && got == came.end()) return kFine;
  if (arguments.quiet) return kErrors;
  const auto index = static_cast<std::size_t>(expected - trace.expected.begin());
  const bool isMore = expected == trace.expected.end();
  streams.out << path << ':' << (isMore ? trace.expectedLine.back() : trace.expectedLine[index])
              << ": expected " << (isMore ? "nothing more" : *expected) << ", came "
              << (got == came.end() ? "nothing more" : *got) << '\n';
  return kErrors;
}

Status PlayFiles(const fs::path& joystickPath, const fs::path& tracePath, const Arguments& arguments,
                 const Streams& streams) {
  const auto joystick = ReadText(joystickPath);
  if (!joystick) return Complain(streams, joystickPath, joystick.failure().text), kUnreadable;
  const fs::path macroPath = MacroFileOf(joystickPath, *joystick);
  const auto macros = macroPath.empty() ? Outcome<std::string>(std::string()) : ReadText(macroPath);
  if (!macros) return Complain(streams, macroPath, macros.failure().text), kUnreadable;
  const auto text = ReadText(tracePath);
  if (!text) return Complain(streams, tracePath, text.failure().text), kUnreadable;
  const model::JoystickFile joystickFile(*joystick);
  const model::MacroFile macroFile(*macros);
  const play::Program program = play::Compile({joystickFile, *joystick, macroFile, *macros});
  const auto read = play::ReadTrace(*text, program);
  if (const auto* wrong = std::get_if<play::TraceError>(&read)) {
    streams.error << tracePath.string() << ':' << wrong->line << ": " << wrong->text << '\n';
    return kUnreadable;
  }
  const auto& trace = std::get<play::Trace>(read);
  const std::vector<std::string> came =
      play::Play(trace, program,
                 {joystickPath.filename().string(), *joystick, macroPath.filename().string(), *macros})
          .All();
  if (!trace.expected.empty()) return Compare(trace, came, tracePath.string(), arguments, streams);
  for (const std::string& each : came) {
    if (!arguments.quiet) streams.out << each << '\n';
  }
  return kFine;
}

}  // namespace

Status PlayTrace(const Arguments& arguments, const Streams& streams) {
  if (arguments.paths.size() != 2 || RoleOf(arguments.paths[0]) != Role::Joystick) {
    streams.error << "tarvik-check: --play wants a joystick file and a trace\n";
    return kUnreadable;
  }
  return PlayFiles(arguments.paths[0], arguments.paths[1], arguments, streams);
}

}  // namespace tarvik::check
