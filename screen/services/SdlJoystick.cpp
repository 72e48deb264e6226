#include "screen/services/SdlJoystick.h"

#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <QLibrary>
#include <algorithm>
#include <utility>

namespace tarvik::screen {
namespace {

enum Axis { kX, kY, kZ, kR };
constexpr int kButtons = 32;

// A function of the library by its name; null where there is none.
class Symbol {
 public:
  explicit Symbol(const char* name) : found_(QLibrary(QStringLiteral("SDL2-2.0"), 0).resolve(name)) {}

  template <typename Function>
  operator Function*() const {  // NOLINT(google-explicit-constructor): the place it goes to tells its type
    return reinterpret_cast<Function*>(found_);
  }

 private:
  QFunctionPointer found_;
};

struct SdlCalls {
  decltype(&SDL_GetVersion) GetVersion = Symbol("SDL_GetVersion");
  decltype(&SDL_SetMainReady) SetMainReady = Symbol("SDL_SetMainReady");
  decltype(&SDL_SetHint) SetHint = Symbol("SDL_SetHint");
  decltype(&SDL_InitSubSystem) InitSubSystem = Symbol("SDL_InitSubSystem");
  decltype(&SDL_JoystickEventState) JoystickEventState = Symbol("SDL_JoystickEventState");
  decltype(&SDL_JoystickGetAxis) JoystickGetAxis = Symbol("SDL_JoystickGetAxis");
  decltype(&SDL_QuitSubSystem) QuitSubSystem = Symbol("SDL_QuitSubSystem");
  decltype(&SDL_JoystickUpdate) JoystickUpdate = Symbol("SDL_JoystickUpdate");
  decltype(&SDL_JoystickGetAttached) JoystickGetAttached = Symbol("SDL_JoystickGetAttached");
  decltype(&SDL_NumJoysticks) NumJoysticks = Symbol("SDL_NumJoysticks");
  decltype(&SDL_JoystickGetDeviceInstanceID) JoystickGetDeviceInstanceID =
      Symbol("SDL_JoystickGetDeviceInstanceID");
  decltype(&SDL_JoystickOpen) JoystickOpen = Symbol("SDL_JoystickOpen");
  decltype(&SDL_JoystickClose) JoystickClose = Symbol("SDL_JoystickClose");
  decltype(&SDL_JoystickNumAxes) JoystickNumAxes = Symbol("SDL_JoystickNumAxes");
  decltype(&SDL_JoystickNumButtons) JoystickNumButtons = Symbol("SDL_JoystickNumButtons");
  decltype(&SDL_JoystickGetButton) JoystickGetButton = Symbol("SDL_JoystickGetButton");
};

// SDL brings some forty libraries of sound and windows with it. It is loaded when a stick is first asked for,
// so that neither the start nor the memory of those who ask for none pays for it.
const SdlCalls& Sdl() {
  static const SdlCalls calls;
  return calls;
}

Failure NoDevice() { return {joystick::kNoDevice, "There is no joystick", 0}; }

bool Start() {
  if (!Sdl().SetMainReady) return false;  // the library is not there
  Sdl().SetMainReady();
  Sdl().SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
  Sdl().SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  // The library's own drivers of such devices rearrange the axes, and run in threads.
  Sdl().SetHint(SDL_HINT_JOYSTICK_HIDAPI, "0");
  if (Sdl().InitSubSystem(SDL_INIT_JOYSTICK) != 0) return false;
  Sdl().JoystickEventState(SDL_IGNORE);  // the stick is asked for its state, and nobody would read events
  return true;
}

int AxisOf(SDL_Joystick* stick, Axis axis) {
  return Sdl().JoystickGetAxis(stick, axis) - SDL_JOYSTICK_AXIS_MIN;
}

}  // namespace

SdlJoystick::~SdlJoystick() {
  Close();
  if (started_) Sdl().QuitSubSystem(SDL_INIT_JOYSTICK);
}

bool SdlJoystick::Update() {
  if (!started_) started_ = Start();
  if (started_) Sdl().JoystickUpdate();
  return started_;
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
  for (int i = 0; i < std::min(kButtons, Sdl().JoystickNumButtons(stick_)); ++i) {
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
