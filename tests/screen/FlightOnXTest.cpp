// A stick of the library's own, the two files and an X server of the test's own: what is pressed arrives as
// keys in a program beside.
#include <QTest>

#include "VirtualStick.h"
#include "screen/services/KeysProcess.h"
#include "screen/services/QtAlarm.h"
#include "screen/services/SdlSticks.h"
#include "support/BareWorkbench.h"
#include "support/Display.h"

namespace tarvik::screen {
namespace {

using keypipe::Stroke;

class FlightOnX : public testing::Test {
 protected:
  static void SetUpTestSuite() { ASSERT_EQ(SDL_InitSubSystem(SDL_INIT_JOYSTICK), 0); }
  static void TearDownTestSuite() { SDL_QuitSubSystem(SDL_INIT_JOYSTICK); }

  void SetUp() override {
    if (!server_.IsThere()) GTEST_SKIP() << "there is no Xvfb";
    if (access("/dev/uinput", W_OK) == 0) GTEST_SKIP() << "keys would go to this machine by uinput";
    if (SDL_NumJoysticks() > 0) GTEST_SKIP() << "there is a real stick";
    client = std::make_unique<keys::Client>();
    bare.outside.seat.Turn(false);
  }

  /// A stick whose two buttons are S1 and S2.
  void Fly(const std::string& joystick) {
    bare.joystick.text.Text = joystick;
    Workbench& bench = bare.workbench;
    const auto listening = bench.sticks.Listen();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !bench.sticks.Present().empty(); }));
    play::StickMap map;
    const play::StickId id = StickFeed::IdOf(bench.sticks.Present().front());
    map.Set(id, {play::StickPart::Button, 0, play::StickWay::Whole}, "S1");
    map.Set(id, {play::StickPart::Button, 1, play::StickWay::Whole}, "S2");
    bench.sticks.Use(map);
    bench.flight.Begin();
    ASSERT_TRUE(QTest::qWaitFor([&] { return bench.flight.IsSending(); }));
  }

  void ExpectStrokes(std::initializer_list<Stroke> strokes) {
    // Keys are made while events come.
    QTest::qWait(200);
    for (const Stroke& stroke : strokes) EXPECT_EQ(client->Next(), stroke);
  }

 private:
  keys::Server server_;

 protected:
  std::unique_ptr<keys::Client> client;
  SdlSticks sticks;
  KeysProcess keys;
  QtAlarm alarm;
  BareWorkbench bare{nullptr, {.sticks = &sticks, .keys = &keys, .alarm = &alarm}};
};

constexpr std::uint16_t kA = 30;
constexpr std::uint16_t kB = 48;
constexpr std::uint16_t kShift = 42;

TEST_F(FlightOnX, WhatIsPressedArrives) {
  VirtualStick stick(1, 2, "Stick");
  Fly("BTN S1 /H a\r\nBTN S2 B DLY(60) a\r\n");
  stick.Press(0);
  ExpectStrokes({{kA, true}});
  stick.Press(0, false);
  ExpectStrokes({{kA, false}});
  stick.Press(1);
  ExpectStrokes({{kShift, true}, {kB, true}, {kB, false}, {kShift, false}, {kA, true}});
  // The last one is held as long as the button is.
  stick.Press(1, false);
  ExpectStrokes({{kA, false}});
  EXPECT_EQ(client->KeysDown(), 0);
}

TEST_F(FlightOnX, NothingIsDownWhenTheStickOrTheFlightEnds) {
  auto stick = std::make_unique<VirtualStick>(1, 2, "Stick");
  Fly("BTN S1 /H a\r\nBTN S2 /H b\r\n");
  stick->Press(0);
  ExpectStrokes({{kA, true}});
  stick.reset();
  ExpectStrokes({{kA, false}});
  bare.workbench.flight.End();
  VirtualStick other(1, 2, "Stick");
  Fly("BTN S1 /H a\r\nBTN S2 /H b\r\n");
  other.Press(1);
  ExpectStrokes({{kB, true}});
  bare.workbench.flight.End();
  ExpectStrokes({{kB, false}});
}

}  // namespace
}  // namespace tarvik::screen
