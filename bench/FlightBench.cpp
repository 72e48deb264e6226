// tarvik_flight_bench: how long it takes from a stick's event to the key in another program, on an X server
// of the bench's own, woken by the stick's file and beside that by looking every 10 ms.
#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <cmath>
#include <functional>
#include <random>
#include <thread>

#include "Compare.h"
#include "screen/services/KeysProcess.h"
#include "screen/services/QtAlarm.h"
#include "support/BareWorkbench.h"
#include "support/Display.h"

namespace {

using namespace tarvik;
using namespace tarvik::bench;
using Clock = std::chrono::steady_clock;

constexpr int kEvents = 400;
constexpr std::chrono::milliseconds kPoll(10);
constexpr const char* kHeld = "BTN S1 /H a\r\n";

Seconds Since(Clock::time_point start) {
  return std::chrono::duration<Seconds>(Clock::now() - start).count();
}

/// A stick whose button goes down and up when bytes come through a pipe.
class PipedStick {
 public:
  explicit PipedStick(session::ScriptedSticks& sticks) : sticks_(sticks) {
    [[maybe_unused]] const int made = pipe2(ends_.data(), O_CLOEXEC | O_NONBLOCK);
    StickInfo info;
    info.name = info.guid = info.path = "Stick";
    info.buttons = 1;
    stick_ = sticks.Plug(info);
  }
  ~PipedStick() {
    for (const int end : ends_) close(end);
  }
  PipedStick(const PipedStick&) = delete;
  PipedStick& operator=(const PipedStick&) = delete;

  [[nodiscard]] play::StickId Id() const { return {"Stick", "Stick", "Stick"}; }
  [[nodiscard]] int File() const { return ends_[0]; }
  /// From another thread.
  void Press(bool down) const {
    const char byte = down ? 1 : 0;
    [[maybe_unused]] const ssize_t written = write(ends_[1], &byte, 1);
  }
  void Read() {
    for (char byte = 0; read(ends_[0], &byte, 1) == 1;)
      sticks_.Move(stick_, StickChangeKind::Button, 0, byte);
  }

 private:
  session::ScriptedSticks& sticks_;
  std::array<int, 2> ends_ = {-1, -1};
  int stick_ = 0;
};

/// Everything but the stick is the real thing.
class Flown {
 public:
  explicit Flown(const std::string& joystick)
      : bare_(nullptr, {.keys = &keys_, .alarm = &alarm_}), stick(bare_.outside.sticks) {
    bare_.joystick.text.Text = joystick;
    bare_.outside.seat.Turn(false);
    play::StickMap map;
    map.Set(stick.Id(), {play::StickPart::Button, 0, play::StickWay::Whole}, "S1");
    bare_.workbench.sticks.Use(map);
    bare_.workbench.flight.Begin();
    while (!bare_.workbench.flight.IsSending())
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }

  /// The times that `work` measures with a program on the server, as the user's hand.
  std::vector<Seconds> Measure(const std::function<void(keys::Client&, std::vector<Seconds>&)>& work) {
    std::vector<Seconds> times;
    std::thread hand([&] {
      keys::Client client;
      work(client, times);
      QMetaObject::invokeMethod(qApp, [] { qApp->exit(); });
    });
    QCoreApplication::exec();
    hand.join();
    std::ranges::sort(times);
    return times;
  }
  /// The times from button to key.
  std::vector<Seconds> FromButtonToKey() {
    return Measure([this](keys::Client& client, std::vector<Seconds>& times) {
      std::mt19937 random(3);
      for (int i = 0; i < kEvents; ++i) {
        // Longer than a key is held at least.
        std::this_thread::sleep_for(std::chrono::microseconds(40000 + random() % 20000));
        const auto start = Clock::now();
        stick.Press(i % 2 == 0);
        client.Next();
        times.push_back(Since(start));
      }
    });
  }

 private:
  screen::KeysProcess keys_;
  screen::QtAlarm alarm_;
  BareWorkbench bare_;

 public:
  PipedStick stick;
};

/// The stick's file wakes the program.
class Waker {
 public:
  explicit Waker(PipedStick& stick) : notifier_(stick.File(), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [&stick] { stick.Read(); });
  }

 private:
  QSocketNotifier notifier_;
};

std::vector<Seconds> Woken() {
  Flown flown(kHeld);
  const Waker waker(flown.stick);
  return flown.FromButtonToKey();
}

std::vector<Seconds> Polled() {
  Flown flown(kHeld);
  QTimer timer;
  timer.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer, &QTimer::timeout, &timer, [&] { flown.stick.Read(); });
  timer.start(kPoll);
  return flown.FromButtonToKey();
}

/// How far a macro's delay is off, on 50 presses.
std::vector<Seconds> Delays() {
  constexpr int kPresses = 50;
  constexpr Seconds kDelay = 0.1;
  Flown flown("BTN S1 a DLY(100) b\r\n");
  const Waker waker(flown.stick);
  return flown.Measure([&](keys::Client& client, std::vector<Seconds>& times) {
    for (int i = 0; i < kPresses; ++i) {
      flown.stick.Press(true);
      client.Next();
      client.Next();
      const auto up = Clock::now();
      client.Next();
      times.push_back(std::abs(Since(up) - kDelay));
      flown.stick.Press(false);
      client.Next();
      std::this_thread::sleep_for(kPoll);
    }
  });
}

}  // namespace

int main(int argc, char* argv[]) {
  const keys::Server server;
  if (!server.IsThere()) return 1;
  const QCoreApplication application(argc, argv);
  const std::vector<Seconds> woken = Woken();
  const std::vector<Seconds> polled = Polled();
  constexpr std::size_t kLate = kEvents * 99 / 100;
  bool holds = true;
  holds &= Report("from a button to its key, beside looking every 10 ms",
                  {woken[kEvents / 2], polled[kEvents / 2]}, Goal::AtMost, 0.3);
  holds &= Report("the same at the 99th percentile", {woken[kLate], polled[kLate]}, Goal::AtMost, 0.5);
  holds &= Report("the median beside 1 ms", {woken[kEvents / 2], 1e-3}, Goal::AtMost, 1);
  holds &= Report("the 99th percentile beside 3 ms", {woken[kLate], 3e-3}, Goal::AtMost, 1);
  const std::vector<Seconds> delays = Delays();
  holds &= Report("a macro's delay of 100 ms is off by, beside 2 ms",
                  {delays[delays.size() * 98 / 100], 2e-3}, Goal::AtMost, 1);
  return holds ? 0 : 1;
}
