// Times an operation beside a peer in one process, both sides taking turns, and prints the ratio of the
// medians with the goal beside it.
#pragma once

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

namespace tarvik::bench {

using Seconds = double;

/// The time that this thread has had on a core: what else the machine does is left out.
inline Seconds ThreadTime() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<Seconds>(time.tv_sec) + static_cast<Seconds>(time.tv_nsec) * 1e-9;
}

inline Seconds TimeOf(const std::function<void()>& work, int repeats) {
  const Seconds start = ThreadTime();
  for (int i = 0; i < repeats; ++i) work();
  return (ThreadTime() - start) / repeats;
}

/// How often to repeat `work` so that a measurement takes some milliseconds.
inline int RepeatsFor(const std::function<void()>& work) {
  constexpr Seconds kEnough = 0.004;
  return std::max(1, static_cast<int>(kEnough / std::max(TimeOf(work, 1), 1e-9)));
}

inline Seconds Median(std::vector<Seconds> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

struct Medians {
  Seconds own;
  Seconds peer;
};

/// Both sides warm, and in turns.
inline Medians Measure(const std::function<void()>& own, const std::function<void()>& peer, int rounds = 9) {
  const int ownRepeats = RepeatsFor(own);
  const int peerRepeats = RepeatsFor(peer);
  std::vector<Seconds> ownTimes;
  std::vector<Seconds> peerTimes;
  for (int i = 0; i < rounds; ++i) {
    ownTimes.push_back(TimeOf(own, ownRepeats));
    peerTimes.push_back(TimeOf(peer, peerRepeats));
  }
  return {Median(ownTimes), Median(peerTimes)};
}

/// What is wanted of the ratio of the peer's time to the own one.
enum class Goal { AtLeast, AtMost };

inline bool Report(const std::string& what, const Medians& times, Goal goal, double value) {
  // A goal "at most" is told as the own time over the peer's.
  const double ratio = goal == Goal::AtLeast ? times.peer / times.own : times.own / times.peer;
  const bool holds = goal == Goal::AtLeast ? ratio >= value : ratio <= value;
  std::printf("%-58s %10.1f us %12.1f us   %9.2f   goal %s %-7g %s\n", what.c_str(), times.own * 1e6,
              times.peer * 1e6, ratio, goal == Goal::AtLeast ? ">=" : "<=", value,
              holds ? "holds" : "MISSED");
  std::fflush(stdout);
  return holds;
}

}  // namespace tarvik::bench
