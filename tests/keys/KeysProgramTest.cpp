// tarvik-keys for real, on an X server of its own: what is sent arrives, and nothing stays down however it
// ends.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include "play/DryRun.h"
#include "play/Positions.h"
#include "support/Display.h"
#include "support/Played.h"
#include "support/TraceFiles.h"

namespace tarvik::keys {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;
using testing::HasSubstr;
using Stroke = keypipe::Stroke;

class KeysProgram : public testing::Test {
 protected:
  void SetUp() override {
    if (!server_.IsThere()) GTEST_SKIP() << "there is no Xvfb";
    const bool hasUinput = access("/dev/uinput", W_OK) == 0;
    if (hasUinput) GTEST_SKIP() << "keys would go to this machine by uinput";
  }

  /// How long it takes until no key is down, at most a second.
  static milliseconds UntilUp(Client& client) {
    const auto start = steady_clock::now();
    while (client.KeysDown() > 0 && steady_clock::now() - start < std::chrono::seconds(1)) {
      std::this_thread::sleep_for(milliseconds(1));
    }
    return std::chrono::duration_cast<milliseconds>(steady_clock::now() - start);
  }

 private:
  Server server_;
};

constexpr milliseconds kSoon(50);
constexpr std::uint16_t kTen = 10;

TEST_F(KeysProgram, SaysWhichWayItGoes) {
  const Keys keys;
  const std::string answer = keys.Answer();
  EXPECT_THAT(answer, HasSubstr("way xtest\nwhy "));
  EXPECT_THAT(answer, HasSubstr("hotkey\n"));
}

TEST_F(KeysProgram, WhatAllTracesSendArrivesInItsOrder) {
  Client client;
  const Keys keys;
  keys.Answer();
  std::size_t count = 0;
  for (const play::TraceFile& file : play::TraceFiles()) {
    const play::Played played(file.joystick, file.macros);
    const auto trace = std::get<play::Trace>(play::ReadTrace(file.text, played.program));
    std::vector<Stroke> sent;
    play::DryRun run(played.program, [&](const play::Output& output) {
      const auto position = play::PositionOf(output);
      if (position) sent.push_back({*position, output.down});
    });
    run.Play(trace);
    while (run.IsPlaying()) run.Pass(milliseconds(1));
    run.Pass(std::chrono::seconds(1));
    run.LetGo();
    for (const Stroke& stroke : sent) keys.Send(stroke);
    for (const Stroke& stroke : sent) ASSERT_EQ(client.Next(), stroke) << file.path;
    ASSERT_EQ(client.KeysDown(), 0) << file.path;
    count += sent.size();
  }
  EXPECT_GT(count, 1000U);
}

TEST_F(KeysProgram, LetsGoAtTheEndOfStrokesAndBySignals) {
  Client client;
  for (const int number : {0, SIGTERM, SIGINT, SIGHUP}) {
    Keys keys;
    keys.Answer();
    for (std::uint16_t i = 0; i < kTen; ++i) keys.Send({static_cast<std::uint16_t>(16 + i), true});
    while (client.KeysDown() < kTen) std::this_thread::sleep_for(milliseconds(1));
    if (number == 0) {
      keys.End();
    } else {
      keys.process().Tell(number);
    }
    EXPECT_LT(UntilUp(client), kSoon) << number;
  }
}

/// Tarvik's part in a process that is killed: it starts tarvik-keys, and presses ten keys over and over.
[[noreturn]] void PressUntilKilled(int ready) {
  const Keys keys;
  keys.Answer();
  [[maybe_unused]] const ssize_t told = write(ready, "", 1);
  for (std::uint16_t i = 0;; ++i) {
    const bool goesDown = i / kTen % 4 != 3;
    keys.Send({static_cast<std::uint16_t>(16 + i % kTen), goesDown});
    usleep(50);
  }
}

TEST_F(KeysProgram, NothingStaysDownWhenItsOwnerIsKilled) {
  Client client;
  std::mt19937 random(5);
  int heldAny = 0;
  for (int kill = 0; kill < 200; ++kill) {
    std::array<int, 2> ready = {};
    ASSERT_EQ(pipe2(ready.data(), O_CLOEXEC), 0);
    const pid_t owner = fork();
    if (owner == 0) PressUntilKilled(ready[1]);
    close(ready[1]);
    char told = 0;
    ASSERT_EQ(read(ready[0], &told, 1), 1);
    close(ready[0]);
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 8000));
    ::kill(owner, SIGKILL);
    waitpid(owner, nullptr, 0);
    heldAny += client.KeysDown() > 0 ? 1 : 0;
    ASSERT_LT(UntilUp(client), kSoon) << kill;
    std::this_thread::sleep_for(milliseconds(2));
    ASSERT_EQ(client.KeysDown(), 0) << kill;
  }
  RecordProperty("held", heldAny);
}

TEST_F(KeysProgram, TheHotKeyLetsGoAndTellsIt) {
  Client client;
  const Keys keys;
  keys.Answer();
  keys.Send({30, true});
  EXPECT_EQ(client.Next(), (Stroke{30, true}));
  constexpr unsigned kControl = 29;
  constexpr unsigned kAlt = 56;
  constexpr unsigned kEnd = 107;
  client.PressByHand({kControl, kAlt, kEnd});
  EXPECT_EQ(keys.NextLine(), keypipe::kStop);
  EXPECT_LT(UntilUp(client), kSoon);
  keys.Send({48, true});
  std::this_thread::sleep_for(milliseconds(20));
  EXPECT_EQ(client.KeysDown(), 0);
}

}  // namespace
}  // namespace tarvik::keys
