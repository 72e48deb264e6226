#include "screen/services/SdlJoystick.h"

#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <algorithm>
#include <utility>

namespace tarvik::screen {
namespace {

enum Axis { kX, kY, kZ, kR };
constexpr int kButtons = 32;

Failure NoDevice() { return {joystick::kNoDevice, "There is no joystick", 0}; }

bool Start() {
  SDL_SetMainReady();
  SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  // Those drivers rearrange the axes, and run in threads.
  SDL_SetHint(SDL_HINT_JOYSTICK_HIDAPI, "0");
  if (SDL_InitSubSystem(SDL_INIT_JOYSTICK) != 0) return false;
  SDL_JoystickEventState(SDL_IGNORE);  // it is asked; nobody would read events
  return true;
}

int AxisOf(SDL_Joystick* stick, Axis axis) {
  return SDL_JoystickGetAxis(stick, axis) - SDL_JOYSTICK_AXIS_MIN;
}

}  // namespace

SdlJoystick::~SdlJoystick() {
  Close();
  if (started_) SDL_QuitSubSystem(SDL_INIT_JOYSTICK);
}

bool SdlJoystick::Update() {
  if (!started_) started_ = Start();
  if (started_) SDL_JoystickUpdate();
  return started_;
}

bool SdlJoystick::IsAttached() const { return stick_ && SDL_JoystickGetAttached(stick_); }

/// The first stick that came after another one.
void SdlJoystick::Open(int newerThan) {
  for (int i = 0; i < SDL_NumJoysticks() && !stick_; ++i) {
    if (SDL_JoystickGetDeviceInstanceID(i) > newerThan) stick_ = SDL_JoystickOpen(i);
  }
}

void SdlJoystick::Close() {
  if (!stick_) return;
  SDL_JoystickClose(std::exchange(stick_, nullptr));
  newest_ = -1;
  for (int i = 0; i < SDL_NumJoysticks(); ++i) {
    newest_ = std::max(newest_, SDL_JoystickGetDeviceInstanceID(i));
  }
}

Outcome<JoyCaps> SdlJoystick::GetDevCaps() {
  if (!Update()) return NoDevice();
  if (!IsAttached()) {
    Close();
    Open(-1);
  }
  had_ = stick_ != nullptr;
  if (!stick_) return NoDevice();
  return JoyCaps{SDL_JoystickNumAxes(stick_) > kZ, SDL_JoystickNumAxes(stick_) > kR};
}

Outcome<JoyInfo> SdlJoystick::GetPosEx() {
  if (!Update() || !had_) return NoDevice();
  if (!IsAttached()) {
    Close();
    Open(newest_);
  }
  if (!stick_) return Failure{joystick::kUnplugged, "The joystick is unplugged", 0};
  JoyInfo info{AxisOf(stick_, kX), AxisOf(stick_, kY), AxisOf(stick_, kZ), AxisOf(stick_, kR), 0};
  for (int i = 0; i < std::min(kButtons, SDL_JoystickNumButtons(stick_)); ++i) {
    if (SDL_JoystickGetButton(stick_, i)) info.buttons |= 1U << i;
  }
  return info;
}

}  // namespace tarvik::screen
