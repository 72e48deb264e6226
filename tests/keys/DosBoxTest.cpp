// What a game of the time sees of a flight: a program in DOSBox that takes the keyboard's bytes itself, and
// the samples.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include "play/DryRun.h"
#include "play/Positions.h"
#include "support/Display.h"
#include "support/Pairs.h"
#include "support/Played.h"
#include "support/TemporaryFolder.h"

namespace tarvik::keys {
namespace {

namespace fs = std::filesystem;
using Stroke = keypipe::Stroke;
using std::chrono::milliseconds;

constexpr std::uint16_t kF11 = 87;
/// Locks, which the emulator turns over by itself, keys that a keyboard tells in another way, and what ends
/// the listening.
constexpr std::uint16_t kOtherwise[] = {58, 69, 70, 99, 119, kF11};

/// Scan code set 1, which the machine makes of what the keyboard sends: the first positions are its codes.
std::string BytesOf(const Stroke& stroke) {
  static const std::map<std::uint16_t, int> kExtended = {
      {96, 0x1C},  {97, 0x1D},  {98, 0x35},  {100, 0x38}, {102, 0x47}, {103, 0x48}, {104, 0x49},
      {105, 0x4B}, {106, 0x4D}, {107, 0x4F}, {108, 0x50}, {109, 0x51}, {110, 0x52}, {111, 0x53}};
  constexpr int kUp = 0x80;
  const auto extended = kExtended.find(stroke.position);
  const int code = extended == kExtended.end() ? stroke.position : extended->second;
  std::string bytes(extended == kExtended.end() ? "" : "\xE0");
  bytes.push_back(static_cast<char>(code + (stroke.down ? 0 : kUp)));
  return bytes;
}

/// Each control of a pair pressed for a moment, one after another.
std::vector<Stroke> StrokesOf(const model::Pair& pair) {
  const play::Played played(pair.joystick, pair.macros);
  std::vector<Stroke> strokes;
  play::DryRun run(played.program, [&](const play::Output& output) {
    const auto position = play::PositionOf(output);
    if (!position || *position >= play::kFirstMouseButton) return;
    if (std::ranges::find(kOtherwise, *position) == std::end(kOtherwise))
      strokes.push_back({*position, output.down});
  });
  for (std::uint32_t control = 0; control < played.program.controls.size(); ++control) {
    for (const play::EventKind kind : {play::EventKind::Down, play::EventKind::Up}) {
      run.Do({kind, control, 0});
      run.Pass(milliseconds(400));
    }
  }
  run.LetGo();
  return strokes;
}

class InDosBox : public testing::Test {
 protected:
  void SetUp() override {
#ifndef TARVIK_DOS_KEYS
    GTEST_SKIP() << "nasm was not there when this was built";
#else
    const auto dosBox = FindInPath("dosbox");
    if (!dosBox || !server_.IsThere()) GTEST_SKIP() << "there is no DOSBox, or no Xvfb";
    if (access("/dev/uinput", W_OK) == 0) GTEST_SKIP() << "keys would go to this machine by uinput";
    fs::copy_file(TARVIK_DOS_KEYS, folder_.path() / "KEYS.COM");
    std::ofstream(folder_.path() / "dosbox.conf") << "[sdl]\nautolock=false\nwaitonerror=false\n[mixer]"
                                                     "\nnosound=true\n[midi]\nmpu401=none\nmididevice=none\n"
                                                     "[joystick]\njoysticktype=none\n[autoexec]\nmount c \""
                                                  << folder_.path().string() << "\"\nc:\nKEYS.COM\nexit\n";
    auto started = ChildProcess::Start({.file = *dosBox,
                                        .arguments = {"-conf", (folder_.path() / "dosbox.conf").string()},
                                        .folder = folder_.path(),
                                        .environment = {"SDL_AUDIODRIVER=dummy"}});
    ASSERT_TRUE(started);
    dosBox_ = std::make_unique<ChildProcess>(*std::move(started));
    ASSERT_TRUE(Within([&] { return fs::exists(folder_.path() / "READY.OUT"); }));
    FocusTopWindow();
#endif
  }

  static bool Within(const std::function<bool()>& holds) {
    constexpr int kLooks = 300;
    for (int look = 0; look < kLooks && !holds(); ++look) usleep(100000);
    return holds();
  }
  /// All that came from the keyboard, once F11 has.
  std::string Heard() {
    Within([&] { return dosBox_->State() != ProgramState::Running; });
    std::ifstream file(folder_.path() / "KEYS.OUT", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  Server server_;
  TemporaryFolder folder_;
  std::unique_ptr<ChildProcess> dosBox_;
};

/// A key that is held comes again and again.
std::string WithoutRepeats(const std::string& bytes) {
  std::string once;
  for (std::size_t i = 0; i < bytes.size();) {
    const std::size_t length = bytes[i] == '\xE0' ? 2 : 1;
    const std::string code = bytes.substr(i, length);
    const bool isMake = (code.back() & 0x80) == 0;
    if (!isMake || !once.ends_with(code)) once.append(code);
    i += length;
  }
  return once;
}

TEST_F(InDosBox, EveryKeyOfTheSamplesArrivesInItsOrder) {
  std::string expected;
  {
    const Keys keys;
    keys.Answer();
    const auto send = [&](const Stroke& stroke) {
      keys.Send(stroke);
      expected.append(BytesOf(stroke));
      usleep(5000);
    };
    for (const model::Pair& pair : model::PairsIn(TARVIK_DATA "/samples")) {
      for (const Stroke& stroke : StrokesOf(pair)) send(stroke);
    }
    for (const bool down : {true, false}) send({kF11, down});
    usleep(200000);
  }
  EXPECT_GT(expected.size(), 300U);
  EXPECT_EQ(WithoutRepeats(Heard()), expected);
}

}  // namespace
}  // namespace tarvik::keys
