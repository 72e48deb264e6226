#include "screen/services/EndSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <utility>

namespace tarvik::screen {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

std::array<int, 2> pipeEnds = {-1, -1};  // a signal's handler can reach nothing but what is global

void Tell(int number) {
  const auto told = static_cast<unsigned char>(number);
  [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &told, 1);
}

void EndBy(int number) {
  std::signal(number, SIG_DFL);
  raise(number);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> beforeEnd) {
  if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* const notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [beforeEnd = std::move(beforeEnd)] {
    unsigned char told = SIGTERM;
    if (read(pipeEnds[0], &told, 1) != 1) return;
    try {
      beforeEnd();
    } catch (...) {
      EndBy(told);
    }
    EndBy(told);
  });
  for (const int number : kSignals) {
    // Whoever started the program may have told it to ignore one, as nohup does.
    if (std::signal(number, Tell) == SIG_IGN) std::signal(number, SIG_IGN);
  }
}

EndSignals::~EndSignals() {
  for (const int number : kSignals) std::signal(number, SIG_DFL);
  for (int& end : pipeEnds) {
    if (end >= 0) close(std::exchange(end, -1));
  }
}

}  // namespace tarvik::screen
