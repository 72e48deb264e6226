#include "tools/programs/Shell32.h"

#include <vector>

#include "tools/programs/ProgramWait.h"

namespace tarvik {
namespace {

const Failure kBusy{70, "Permission denied", 0};

Failure StartFailed(Failure why) {
  why.number = static_cast<int>(0x80040000U + static_cast<unsigned>(why.number));
  return why;
}

/// While it lives the timers of all forms stand still.
class TimersHeld {
 public:
  explicit TimersHeld(const Shell& shell) {
    for (const Form* const form : shell.Forms()) {
      for (Component* const child : form->Children()) {
        auto* const timer = dynamic_cast<Timer*>(child);
        if (!timer || !timer->Enabled) continue;
        timer->Enabled = false;
        held_.push_back(timer);
      }
    }
  }
  ~TimersHeld() {
    for (Timer* const timer : held_) timer->Enabled = true;
  }
  TimersHeld(const TimersHeld&) = delete;
  TimersHeld& operator=(const TimersHeld&) = delete;

 private:
  std::vector<Timer*> held_;
};

/// While it lives the status bar says what is waited for; afterwards it says again what it said before.
class WaitAnnouncement {
 public:
  WaitAnnouncement(Panel& panel, const std::string& text) : panel_(panel), before_(panel.Text) {
    panel_.Text = text;
  }
  ~WaitAnnouncement() { panel_.Text = before_; }
  WaitAnnouncement(const WaitAnnouncement&) = delete;
  WaitAnnouncement& operator=(const WaitAnnouncement&) = delete;

 private:
  Panel& panel_;
  std::string before_;
};

/// Shows the window of the wait until the program ends, the user stops it, or the time is up. Gives how the
/// wait for a program that has not ended came to its end.
WaitEnd ShowWait(Workbench& bench, Shell& shell, RunningProgram& program, const std::string& commandLine,
                 int timeout) {
  bench.journals.Write();  // its timer is held as well, and another program may take the machine along
  const TimersHeld held(shell);
  const std::string waiting = "Waiting for " + commandLine + " to end ...";
  const WaitAnnouncement announcement(bench.documents.status.Panels(panel::kSaid), waiting);
  auto& window = shell.Tool<ProgramWait>();
  window.Label1.Caption = waiting;
  window.Modal = true;
  window.Visible = true;
  const auto timedOut = [&] { return timeout != kNoLimit && window.Waited >= timeout; };
  shell.WaitWhile([&] {
    return program.State() == ProgramState::Running && window.Visible && !timedOut() && !shell.Ended();
  });
  if (!window.Visible) return WaitEnd::Abandoned;
  shell.Unload(window);
  return timedOut() ? WaitEnd::TimedOut : WaitEnd::Abandoned;
}

}  // namespace

Outcome<WaitEnd> ShellAndWait(Workbench& bench, Shell& shell, const std::string& commandLine,
                              std::optional<int> /*windowStyle*/, int timeout) {
  if (shell.LoadedTool<ProgramWait>()) return StartFailed(kBusy);
  auto program = bench.platform.programs.StartToWait(commandLine, WindowStyle::Normal);
  if (!program) return StartFailed(program.failure());
  const bool running = (*program)->State() == ProgramState::Running;
  const WaitEnd unfinished =
      running ? ShowWait(bench, shell, **program, commandLine, timeout) : WaitEnd::Abandoned;
  return (*program)->State() == ProgramState::Ended ? WaitEnd::Ended : unfinished;
}

}  // namespace tarvik
