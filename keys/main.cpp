// tarvik-keys: sends the keys of a flight for Tarvik, as a process of its own. However Tarvik ends, the end
// of its strokes comes here, and everything goes up. It is told to end in the same way, and by signals.
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <memory>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

#include "keys/Sender.h"
#include "keys/Uinput.h"
#include "keys/Ways.h"
#include "keys/Xtest.h"

namespace {

using namespace tarvik;
using namespace tarvik::keys;

/// Until desktops have found a new keyboard.
constexpr std::chrono::milliseconds kFoundByThen(300);

/// Nobody may hear it any more.
void Say(std::string_view word, std::string_view text = {}) {
  std::string line(word);
  if (!text.empty()) line.append(" ").append(text);
  line.push_back('\n');
  [[maybe_unused]] const ssize_t written = write(STDOUT_FILENO, line.data(), line.size());
}

void Say(const KeyOutputState& state) {
  constexpr std::array<std::string_view, 3> kNames = {keypipe::kNone, keypipe::kUinput, keypipe::kXtest};
  Say(keypipe::kWay, kNames[static_cast<std::size_t>(state.way)]);
  if (!state.why.empty()) Say(keypipe::kWhy, state.why);
  if (!state.mend.empty()) Say(keypipe::kMend, state.mend);
  if (state.hotKey) Say(keypipe::kHotKey);
}

bool IsSet(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr && *value != '\0';
}

bool HasRule() {
  for (const char* const folder : {"/usr/lib", "/lib", "/etc"}) {
    std::error_code ignored;
    if (std::filesystem::exists(std::string(folder) + "/udev/rules.d/60-tarvik-uinput.rules", ignored))
      return true;
  }
  return false;
}

/// Signals that end a process, as a file that can be waited for.
int FileOfSignals() {
  sigset_t ends;
  sigemptyset(&ends);
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&ends, number);
  sigprocmask(SIG_BLOCK, &ends, nullptr);
  std::signal(SIGPIPE, SIG_IGN);
  return signalfd(-1, &ends, SFD_CLOEXEC);
}

/// Until the strokes end.
class Loop {
 public:
  Loop(KeyDevice& device, XServer* hotKey, int signals)
      : sender_(device), hotKey_(hotKey), signals_(signals) {}

  void Run() {
    std::array<pollfd, 3> files = {
        {{STDIN_FILENO, POLLIN, 0}, {signals_, POLLIN, 0}, {hotKey_ ? hotKey_->File() : -1, POLLIN, 0}}};
    bool goesOn = true;
    while (goesOn) {
      // Here, since it may have been read together with something else.
      HearHotKey();
      if (poll(files.data(), files.size(), -1) < 0) {
        goesOn = errno == EINTR;
        continue;
      }
      goesOn = files[1].revents == 0 && (files[0].revents == 0 || TakeStrokes());
    }
  }

 private:
  void HearHotKey() {
    if (!hotKey_ || !hotKey_->HotKeyPressed()) return;
    sender_.End();
    Say(keypipe::kStop);
  }

  bool TakeStrokes() {
    constexpr std::size_t kMost = 4096;
    std::array<char, kMost> bytes = {};
    const ssize_t count = read(STDIN_FILENO, bytes.data(), bytes.size());
    if (count < 0) return errno == EINTR;
    if (count == 0) return false;
    const int error = sender_.Take({bytes.data(), static_cast<std::size_t>(count)});
    if (error != 0) Say(keypipe::kLost, std::generic_category().message(error));
    return error == 0;
  }

  Sender sender_;
  XServer* hotKey_;
  int signals_;
};

}  // namespace

int main() {
  // It outlives Tarvik by as long as letting go takes.
  prctl(PR_SET_PDEATHSIG, 0);
  const int signals = FileOfSignals();
  Facts facts;
  auto made = Uinput::Make(MakeUinputCalls());
  if (const int* const error = std::get_if<int>(&made)) facts.uinputError = *error;
  facts.hasRule = HasRule();
  facts.isWayland = IsSet("WAYLAND_DISPLAY");
  const std::unique_ptr<XServer> x = facts.isWayland ? nullptr : XServer::Open();
  facts.hasX = x != nullptr;
  facts.takesTestKeys = x && x->HasTest();
  KeyOutputState state = WayBy(facts);
  state.hotKey = state.way != KeyWay::None && x && x->TakeHotKey();
  if (state.way == KeyWay::Uinput) std::this_thread::sleep_for(kFoundByThen);
  Say(state);
  Say(keypipe::kReady);
  if (state.way == KeyWay::Uinput) {
    Loop(*std::get<std::unique_ptr<Uinput>>(made), state.hotKey ? x.get() : nullptr, signals).Run();
  } else if (state.way == KeyWay::Xtest) {
    Loop(*x, state.hotKey ? x.get() : nullptr, signals).Run();
  }
  return 0;
}
