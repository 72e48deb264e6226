// The traces in tests/traces/, each with what must come of it below its lines. With TARVIK_PROMOTE=1 in the
// environment they are written anew, for someone to look at.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "support/Pairs.h"
#include "support/Played.h"

namespace tarvik::play {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolder = TARVIK_DATA "/../tests/traces";

/// A trace says in its first line which joystick file it plays, beside itself or elsewhere.
fs::path FileOf(const fs::path& trace, const std::string& text) {
  constexpr std::string_view kPlays = "plays ";
  EXPECT_TRUE(text.starts_with(kPlays)) << trace;
  return trace.parent_path() / text.substr(kPlays.size(), text.find('\n') - kPlays.size());
}

fs::path MacrosOf(fs::path joystick) {
  for (const Endings& each : kEndings) {
    if (joystick.extension() == "." + std::string(each.joystick))
      return joystick.replace_extension(each.macro);
  }
  return {};
}

std::vector<fs::path> Traces() {
  std::vector<fs::path> traces;
  for (const auto& each : fs::recursive_directory_iterator(kFolder)) {
    if (each.path().extension() == ".trace") traces.push_back(each.path());
  }
  std::ranges::sort(traces);
  return traces;
}

TEST(Traces, AreTheGoldenOnes) {
  for (const fs::path& path : Traces()) {
    const std::string text = model::Read(path);
    const fs::path file = FileOf(path, text);
    ASSERT_TRUE(fs::exists(file)) << path;
    const std::string joystick = model::Read(file);
    const std::string macros = model::Read(MacrosOf(file));
    const Played played(joystick, macros);
    const PlayedFiles files{file.filename(), joystick, MacrosOf(file).filename(), macros};
    const auto read = ReadTrace(text, played.program);
    ASSERT_TRUE(std::holds_alternative<Trace>(read)) << path << ": " << std::get<TraceError>(read).text;
    const auto& trace = std::get<Trace>(read);
    const Outcomes run = Play(trace, played.program, files);
    EXPECT_FALSE(run.keysLeft) << path;
    const std::string printed = Printed(trace, run);
    EXPECT_EQ(printed, Printed(trace, Play(trace, played.program, files))) << path;
    if (std::getenv("TARVIK_PROMOTE") != nullptr) std::ofstream(path, std::ios::binary) << printed;
    EXPECT_EQ(printed, model::Read(path)) << path;
  }
}

TEST(Traces, TellTheLineThatCannotBeRead) {
  const Played played("BTN S1 a\n");
  for (const char* wrong :
       {"S1 sideways", "Z9 down", "THR 140%", "nothing", "DOGFIGHT left", "12 parsecs", "-5ms"}) {
    const auto read = ReadTrace("S1 down\n" + std::string(wrong) + "\n", played.program);
    ASSERT_TRUE(std::holds_alternative<TraceError>(read)) << wrong;
    EXPECT_EQ(std::get<TraceError>(read).line, 2u) << wrong;
  }
}

}  // namespace
}  // namespace tarvik::play
