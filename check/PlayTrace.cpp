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
  const std::vector<std::string> came = play::Play(trace, program,
                                                   {std::string(view.names.joystick), view.joystickText,
                                                    std::string(view.names.macros), view.macroText})
                                            .All();
  if (!trace.expected.empty()) return Compare(trace, came, tracePath.string(), arguments, streams);
  for (const std::string& each : came) {
    if (!arguments.quiet) streams.out << each << '\n';
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
