// The traces in tests/traces/, each with what must come of it below its lines. With TARVIK_PROMOTE=1 in the
// environment they are written anew, for someone to look at.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "support/Played.h"
#include "support/TraceFiles.h"

namespace tarvik::play {
namespace {

TEST(Traces, AreTheGoldenOnes) {
  for (const TraceFile& file : TraceFiles()) {
    const fs::path& path = file.path;
    const Played played(file.joystick, file.macros);
    const PlayedFiles files = file.Files();
    const auto read = ReadTrace(file.text, played.program);
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
