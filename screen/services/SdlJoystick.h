// The real joystick. Nothing is set up before a tool asks for it first.
#pragma once

#include <QString>
#include <memory>

#include "platform/Joystick.h"

struct _SDL_Joystick;

namespace tarvik::screen {

namespace sdl {
class Running;
}

/// Device 0 is the first stick that is found. One that is unplugged keeps its place, for itself or another
/// that is plugged in for it; a stick that was there all along does not take it over unasked.
class SdlJoystick : public Joystick {
 public:
  SdlJoystick();
  ~SdlJoystick() override;
  SdlJoystick(const SdlJoystick&) = delete;
  SdlJoystick& operator=(const SdlJoystick&) = delete;

  Outcome<JoyCaps> GetDevCaps() override;
  Outcome<JoyInfo> GetPosEx() override;

  /// Of the library, which is loaded for the answer; empty where it is not there.
  static QString LibraryVersion();

 private:
  bool Update();
  [[nodiscard]] bool IsAttached() const;
  void Open(int newerThan);
  void Close();

  std::unique_ptr<sdl::Running> running_;
  _SDL_Joystick* stick_ = nullptr;
  bool had_ = false;  // a stick, since one was asked for last
  int newest_ = -1;   // of the sticks that were there when it was lost, by the order of their coming
};

}  // namespace tarvik::screen
