#include "screen/services/SdlJoystick.h"

#include <algorithm>
#include <utility>

#include "screen/services/SdlLibrary.h"

namespace tarvik::screen {

using sdl::Sdl;

namespace {

enum Axis { kX, kY, kZ, kR };
constexpr int kMostButtons = 32;

Failure NoDevice() { return {joystick::kNoDevice, "There is no joystick", 0}; }

int AxisOf(SDL_Joystick* stick, Axis axis) {
  return Sdl().JoystickGetAxis(stick, axis) - SDL_JOYSTICK_AXIS_MIN;
}

}  // namespace

SdlJoystick::SdlJoystick() : running_(std::make_unique<sdl::Running>()) {}

SdlJoystick::~SdlJoystick() { Close(); }

bool SdlJoystick::Update() {
  if (!running_->Start()) return false;
  Sdl().JoystickUpdate();
  return true;
}

bool SdlJoystick::IsAttached() const { return stick_ && Sdl().JoystickGetAttached(stick_); }

/// Opens the first stick that came after the one with this number.
void SdlJoystick::Open(int newerThan) {
  for (int i = 0; i < Sdl().NumJoysticks() && !stick_; ++i) {
    if (Sdl().JoystickGetDeviceInstanceID(i) > newerThan) stick_ = Sdl().JoystickOpen(i);
  }
}

void SdlJoystick::Close() {
  if (!stick_) return;
  Sdl().JoystickClose(std::exchange(stick_, nullptr));
  newest_ = -1;
  for (int i = 0; i < Sdl().NumJoysticks(); ++i) {
    newest_ = std::max(newest_, Sdl().JoystickGetDeviceInstanceID(i));
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
  return JoyCaps{Sdl().JoystickNumAxes(stick_) > kZ, Sdl().JoystickNumAxes(stick_) > kR};
}

Outcome<JoyInfo> SdlJoystick::GetPosEx() {
  if (!Update() || !had_) return NoDevice();
  if (!IsAttached()) {
    Close();
    Open(newest_);
  }
  if (!stick_) return Failure{joystick::kUnplugged, "The joystick is unplugged", 0};
  JoyInfo info{AxisOf(stick_, kX), AxisOf(stick_, kY), AxisOf(stick_, kZ), AxisOf(stick_, kR), 0};
  for (int i = 0; i < std::min(kMostButtons, Sdl().JoystickNumButtons(stick_)); ++i) {
    if (Sdl().JoystickGetButton(stick_, i)) info.buttons |= 1U << i;
  }
  return info;
}

QString SdlJoystick::LibraryVersion() {
  if (!Sdl().GetVersion) return {};
  SDL_version version{};
  Sdl().GetVersion(&version);
  return QStringLiteral("%1.%2.%3").arg(version.major).arg(version.minor).arg(version.patch);
}

}  // namespace tarvik::screen
