// The real sticks. Each wakes the program through a second opening of its own file; nothing is polled but
// sticks without a file, and once a second whether another one has been plugged in.
#pragma once

#include <QObject>
#include <QTimer>
#include <memory>
#include <vector>

#include "platform/Sticks.h"

struct _SDL_Joystick;
union SDL_Event;

namespace tarvik::screen {

namespace sdl {
class Running;
}

class SdlSticks : public Sticks {
 public:
  SdlSticks();
  ~SdlSticks() override;
  SdlSticks(const SdlSticks&) = delete;
  SdlSticks& operator=(const SdlSticks&) = delete;

  bool Start() override;
  void Stop() override;

 private:
  /// What a stick's own file is waited for with.
  class File;
  struct Stick {
    int number = 0;
    _SDL_Joystick* handle = nullptr;
    std::unique_ptr<File> file;  // null where it has none
    bool starting = true;        // what it does is not told yet
  };

  /// Reads what has happened, and tells it.
  void Update();
  void FindNew();
  void Open(int index);
  void TellStart(const Stick& stick);
  void Remove(int number);
  void TakeTimers();
  void Take(const SDL_Event& event);
  [[nodiscard]] Stick* Find(int number);
  [[nodiscard]] StickInfo InfoOf(const Stick& stick) const;

  QObject life_;  // of the waiting for files
  std::unique_ptr<sdl::Running> running_;
  bool isOn_ = false;
  int starts_ = 0;  // so that telling ends where it was stopped on the way
  std::vector<Stick> sticks_;
  std::vector<StickChange> waiting_;
  std::vector<int> gone_;
  bool another_ = false;  // a stick has been plugged in
  QTimer plugging_;
  QTimer withoutFile_;
};

}  // namespace tarvik::screen
