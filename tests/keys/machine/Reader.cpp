// Looks at the devices that tarvik-keys makes by uinput: what arrives, in which reports, how soon, and that
// nothing stays down. It runs as root in a machine of its own; with "missing" before the module is loaded.
#include <fcntl.h>
#include <linux/input.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <vector>

#include "support/Display.h"

namespace {

using namespace tarvik;
using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::microseconds;

constexpr const char* kProgram = "/bin/tarvik-keys";

int failures = 0;

void Expect(bool holds, const std::string& what) {
  std::cout << (holds ? "ok      " : "FAILED  ") << what << std::endl;
  failures += holds ? 0 : 1;
}

/// A device by its name.
class Device {
 public:
  explicit Device(const std::string& name) {
    for (const auto& each : std::filesystem::directory_iterator("/dev/input")) {
      const int file = open(each.path().c_str(), O_RDONLY | O_CLOEXEC);
      std::array<char, 64> found = {};
      if (file >= 0 && ioctl(file, EVIOCGNAME(sizeof found), found.data()) >= 0 && name == found.data()) {
        file_ = file;
        return;
      }
      if (file >= 0) close(file);
    }
  }
  ~Device() {
    if (file_ >= 0) close(file_);
  }
  Device(const Device&) = delete;
  Device& operator=(const Device&) = delete;

  [[nodiscard]] bool IsThere() const { return file_ >= 0; }
  /// The next event; false when none comes in time, or the device has gone.
  bool Next(input_event& event, int milliseconds = 1000) const {
    pollfd wait = {file_, POLLIN, 0};
    return poll(&wait, 1, milliseconds) == 1 && read(file_, &event, sizeof event) == sizeof event;
  }
  [[nodiscard]] int KeysDown() const {
    std::array<unsigned char, KEY_CNT / 8> keys = {};
    if (ioctl(file_, EVIOCGKEY(keys.size()), keys.data()) < 0) return 0;
    return static_cast<int>(
        std::count_if(keys.begin(), keys.end(), [](unsigned char byte) { return byte != 0; }));
  }

 private:
  int file_ = -1;
};

/// A stroke is one report: the key, and the end of the report.
bool Arrives(const Device& device, const keypipe::Stroke& stroke) {
  input_event event = {};
  input_event end = {};
  // Some devices tell a scan code first.
  do {
    if (!device.Next(event)) return false;
  } while (event.type == EV_MSC);
  return event.type == EV_KEY && event.code == stroke.position && event.value == (stroke.down ? 1 : 0) &&
         device.Next(end) && end.type == EV_SYN && end.code == SYN_REPORT;
}

void TryStrokes() {
  const keys::Keys keys(kProgram);
  Expect(keys.Answer().starts_with("way uinput\n"), "keys go by uinput");
  const Device keyboard("Tarvik keyboard");
  const Device mouse("Tarvik mouse");
  Expect(keyboard.IsThere() && mouse.IsThere(), "there are a keyboard and a mouse");
  bool arrives = true;
  constexpr std::uint16_t kKeys[] = {KEY_LEFTSHIFT, KEY_A,     KEY_F12,    KEY_UP,
                                     KEY_PAUSE,     KEY_SYSRQ, KEY_KPSLASH};
  for (const std::uint16_t position : kKeys) {
    for (const bool down : {true, false}) {
      keys.Send({position, down});
      arrives = arrives && Arrives(keyboard, {position, down});
    }
  }
  Expect(arrives, "each key arrives as one report");
  for (const bool down : {true, false}) {
    keys.Send({BTN_RIGHT, down});
    arrives = arrives && Arrives(mouse, {BTN_RIGHT, down});
  }
  Expect(arrives, "so do the buttons of the mouse");
  keys.Send({KEY_B, true});
  arrives = Arrives(keyboard, {KEY_B, true});
  input_event event = {};
  Expect(arrives && !keyboard.Next(event, 1500), "a held key does not repeat");
  keys.Send({KEY_B, false});
  Arrives(keyboard, {KEY_B, false});
}

void MeasureStrokes() {
  constexpr int kStrokes = 1000;
  const keys::Keys keys(kProgram);
  keys.Answer();
  const Device keyboard("Tarvik keyboard");
  std::vector<long> times;
  for (int i = 0; i < kStrokes; ++i) {
    const auto start = Clock::now();
    keys.Send({KEY_A, i % 2 == 0});
    Arrives(keyboard, {KEY_A, i % 2 == 0});
    times.push_back(std::chrono::duration_cast<Microseconds>(Clock::now() - start).count());
  }
  std::sort(times.begin(), times.end());
  const long median = times[kStrokes / 2];
  const long late = times[kStrokes * 99 / 100];
  Expect(late < 5000,
         "a stroke takes " + std::to_string(median) + " us, 99 of 100 at most " + std::to_string(late));
}

/// The keys are up, or the device has gone with them.
void TryEnd(int number, const char* what) {
  keys::Keys keys(kProgram);
  keys.Answer();
  const Device keyboard("Tarvik keyboard");
  for (std::uint16_t i = 0; i < 10; ++i) keys.Send({static_cast<std::uint16_t>(KEY_Q + i), true});
  while (keyboard.KeysDown() == 0) usleep(100);
  const auto start = Clock::now();
  if (number == 0) {
    keys.End();
  } else {
    keys.process().Tell(number);
  }
  input_event event = {};
  while (keyboard.Next(event)) {
  }
  const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
  Expect(keyboard.KeysDown() == 0 && passed < 500, std::string("nothing is down after ") + what);
}

void TryForbidden() {
  const pid_t user = fork();
  if (user == 0) {
    constexpr uid_t kNobody = 65534;
    if (setuid(kNobody) != 0) _exit(1);
    const keys::Keys keys(kProgram);
    const std::string answer = keys.Answer();
    Expect(answer.starts_with("way none\nwhy You may not open /dev/uinput yet.") &&
               answer.find("60-tarvik-uinput.rules") != std::string::npos,
           "a user without the rule is told the command");
    _exit(failures);
  }
  int status = 0;
  waitpid(user, &status, 0);
  failures += status == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char**) {
  if (argc > 1) {
    const keys::Keys keys(kProgram);
    Expect(keys.Answer().find("mend sudo modprobe uinput\n") != std::string::npos,
           "a missing module is told");
    return failures;
  }
  TryStrokes();
  MeasureStrokes();
  TryEnd(0, "the end of the strokes");
  TryEnd(SIGTERM, "SIGTERM");
  TryEnd(SIGKILL, "SIGKILL");
  TryForbidden();
  return failures;
}
