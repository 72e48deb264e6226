#include "check/PlayTrace.h"

#include <algorithm>

#include "pairs/PairFiles.h"
#include "pairs/PairOnDisk.h"
#include "play/Trace.h"

namespace tarvik::check {
namespace {

namespace fs = std::filesystem;

Status Complain(const Streams& streams, std::string_view why) {
  streams.error << "tarvik-check: " << why << '\n';
  return kUnreadable;
}

Status PlayFiles(const fs::path& joystickPath, const fs::path& tracePath, const Arguments& arguments,
                 const Streams& streams) {
  const auto pair = pairs::PairOnDisk::Read(joystickPath);
  if (!pair) return Complain(streams, pair.failure().text);
  const auto text = pairs::ReadText(tracePath);
  if (!text) return Complain(streams, tracePath.string() + ": " + text.failure().text);
  const model::FilePair view = pair->View();
  const play::Program program = play::Compile(view);
  const auto read = play::ReadTrace(*text, program);
  if (const auto* wrong = std::get_if<play::TraceError>(&read)) {
    streams.error << tracePath.string() << ':' << wrong->line << ": " << wrong->text << '\n';
    return kUnreadable;
  }
  const auto& trace = std::get<play::Trace>(read);
  const play::Outcomes run = play::Play(
      trace, program,
      {std::string(view.names.joystick), view.joystickText, std::string(view.names.macros), view.macroText});
  const auto other = play::DifferenceOf(trace, run);
  if (other && !arguments.quiet) {
    streams.out << tracePath.string() << ':' << other->line << ": expected " << other->expected << ", came "
                << other->came << '\n';
  }
  if (other) return kErrors;
  for (const std::string& each : run.All()) {
    if (trace.expected.empty() && !arguments.quiet) streams.out << each << '\n';
  }
  return kFine;
}

}  // namespace

Status PlayTrace(const Arguments& arguments, const Streams& streams) {
  const bool hasBoth =
      arguments.paths.size() == 2 && pairs::RoleOf(arguments.paths[0]) == pairs::Role::Joystick;
  if (!hasBoth) return Complain(streams, "--play wants a joystick file and a trace");
  return PlayFiles(arguments.paths[0], arguments.paths[1], arguments, streams);
}

}  // namespace tarvik::check
