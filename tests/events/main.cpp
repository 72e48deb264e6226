// tarvik_events SEED COUNT [ROUND]: a random user at every window, on real widgets. Each round has a program
// of its own, a tool to begin with, and half of them lose the editor on the way. Ends at the first crash,
// hang or broken document with what was done last; the same seed and round do it again.
#include <signal.h>
#include <unistd.h>

#include <QApplication>
#include <QTimer>
#include <cstring>
#include <iostream>
#include <memory>

#include "events/Hands.h"
#include "events/World.h"
#include "screen/widgets/Picture.h"
#include "support/SoundDocument.h"

namespace tarvik::events {
namespace {

constexpr unsigned kRoundLength = 36;     // events
constexpr unsigned kPatience = 30;        // seconds without an event
constexpr unsigned kWaitsAtMost = 30;     // events within one that waits for its end
constexpr unsigned kStuck = 400;          // such events
constexpr int kLines = 40;                // of the trail
constexpr std::size_t kLineLength = 200;  // bytes

/// What was done last. It lies where the handler of a fatal signal can still write it.
char trail[kLines][kLineLength];
unsigned done = 0;
bool tellsAll = false;

void Note(const std::string& what) {
  if (tellsAll) std::cout << what << std::endl;
  char* const line = trail[done++ % kLines];
  line[what.copy(line, kLineLength - 1)] = '\0';
}

/// What is said twice in a row is said once.
void NoteAgain(const std::string& what) {
  if (done == 0 || what != trail[(done - 1) % kLines]) Note(what);
}

void WriteTrail() {
  for (unsigned i = done > kLines ? done - kLines : 0; i < done; ++i) {
    const char* const line = trail[i % kLines];
    (void)!write(STDERR_FILENO, line, std::strlen(line));
    (void)!write(STDERR_FILENO, "\n", 1);
  }
}

/// Also one that comes of a stack that is full.
void WatchFatalSignals(void (*handle)(int)) {
  static char stack[1 << 16];
  const stack_t own{stack, 0, sizeof stack};
  sigaltstack(&own, nullptr);
  struct sigaction action {};
  action.sa_handler = handle;
  action.sa_flags = SA_ONSTACK;
  for (const int fatal : {SIGSEGV, SIGABRT, SIGFPE, SIGILL, SIGBUS, SIGALRM})
    sigaction(fatal, &action, nullptr);
}

void OnFatalSignal(int number) {
  WriteTrail();
  constexpr char kHung[] = "The program hangs.\n";
  if (number == SIGALRM) (void)!write(STDERR_FILENO, kHung, sizeof kHung - 1);
  signal(number, SIG_DFL);
  raise(number == SIGALRM ? SIGABRT : number);
}

/// One round. Every event comes out of the toolkit's loop and has the next one in the queue before it acts,
/// so that the user goes on also inside whatever the program waits for.
class Round {
 public:
  Round(unsigned seed, unsigned number, const std::string& data)
      : chance_(seed, number),
        world_(chance_, data),
        hands_(chance_),
        way_(number / 2 % World::Ways()),
        losesEditor_(number % 2 == 1) {
    Note("-- round " + std::to_string(number) + ": " + World::NameOf(way_) +
         (losesEditor_ ? ", then without the editor" : ""));
  }

  void Run() {
    QueueNext();
    while (!over_) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

 private:
  void QueueNext() {
    QTimer::singleShot(0, &context_, [this] { Next(); });
  }

  void Next() {
    QueueNext();
    const bool waits = depth_ > 0 || world_.Waits();
    over_ = !waits && (count_ >= kRoundLength || world_.application().Ended());
    if (over_) return;
    ++count_;
    alarm(kPatience);
    inside_ = waits ? inside_ + 1 : 0;
    ++depth_;
    Act();
    --depth_;
    CheckDocuments();
  }

  void Act() {
    if (inside_ > kWaitsAtMost || (inside_ > 0 && count_ >= kRoundLength)) {
      Require(inside_ < kStuck);
      return NoteAgain("  giving up: " + hands_.GiveUp());
    }
    if (count_ == 1) return world_.Open(way_);
    const bool blocked = QApplication::activeModalWidget() || QApplication::activePopupWidget();
    if (losesEditor_ && count_ >= kRoundLength / 3 && !blocked) {
      losesEditor_ = false;
      Note("the editor is closed");
      world_.application().CloseEditor();
    } else if (chance_.OneIn(8)) {
      Note("something happens");
      world_.Happen();
    } else {
      Note(hands_.Act());
    }
  }

  void CheckDocuments() const {
    const Editor& editor = world_.editor();
    RequireSound(editor.Joystick);
    RequireSound(editor.Macro);
  }

  Chance chance_;
  World world_;
  Hands hands_;
  std::size_t way_;
  bool losesEditor_;
  bool over_ = false;
  unsigned count_ = 0;
  unsigned depth_ = 0;   // of events that wait
  unsigned inside_ = 0;  // events since the outermost of them began
  QObject context_;
};

}  // namespace
}  // namespace tarvik::events

int main(int count, char** arguments) {
  using namespace tarvik;
  if (const auto decoded = screen::RunAsDecoder(count, arguments)) return *decoded;
  const auto number = [&](int at, unsigned otherwise) {
    return count > at ? static_cast<unsigned>(std::stoul(arguments[at])) : otherwise;
  };
  const unsigned seed = number(1, 1);
  const unsigned rounds = (number(2, 2000) + events::kRoundLength - 1) / events::kRoundLength;
  const unsigned first = number(3, 0);
  events::tellsAll = count > 3;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication toolkit(count, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
  events::WatchFatalSignals(events::OnFatalSignal);
  for (unsigned round = first; round < first + rounds; ++round) {
    events::Round(seed, round, TARVIK_DATA).Run();
  }
  std::cout << rounds * events::kRoundLength << " events with the seed " << seed << "\n";
}
