// The library that reads sticks. It brings some forty libraries of sound and windows with it, and is loaded
// when a stick is first asked for, so that neither the start nor the memory of those who ask for none pays.
#pragma once

#include <QLibrary>

#define SDL_MAIN_HANDLED
#include <SDL.h>

namespace tarvik::screen::sdl {

/// A function of the library by its name; null where there is none.
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

struct Calls {
  decltype(&SDL_GetVersion) GetVersion = Symbol("SDL_GetVersion");
  decltype(&SDL_SetMainReady) SetMainReady = Symbol("SDL_SetMainReady");
  decltype(&SDL_SetHint) SetHint = Symbol("SDL_SetHint");
  decltype(&SDL_InitSubSystem) InitSubSystem = Symbol("SDL_InitSubSystem");
  decltype(&SDL_QuitSubSystem) QuitSubSystem = Symbol("SDL_QuitSubSystem");
  decltype(&SDL_SetEventFilter) SetEventFilter = Symbol("SDL_SetEventFilter");
  decltype(&SDL_JoystickEventState) JoystickEventState = Symbol("SDL_JoystickEventState");
  decltype(&SDL_JoystickUpdate) JoystickUpdate = Symbol("SDL_JoystickUpdate");
  decltype(&SDL_JoystickGetAttached) JoystickGetAttached = Symbol("SDL_JoystickGetAttached");
  decltype(&SDL_NumJoysticks) NumJoysticks = Symbol("SDL_NumJoysticks");
  decltype(&SDL_JoystickGetDeviceInstanceID) JoystickGetDeviceInstanceID =
      Symbol("SDL_JoystickGetDeviceInstanceID");
  decltype(&SDL_JoystickOpen) JoystickOpen = Symbol("SDL_JoystickOpen");
  decltype(&SDL_JoystickClose) JoystickClose = Symbol("SDL_JoystickClose");
  decltype(&SDL_JoystickName) JoystickName = Symbol("SDL_JoystickName");
  decltype(&SDL_JoystickGetGUID) JoystickGetGUID = Symbol("SDL_JoystickGetGUID");
  decltype(&SDL_JoystickGetGUIDString) JoystickGetGUIDString = Symbol("SDL_JoystickGetGUIDString");
  decltype(&SDL_JoystickPath) JoystickPath = Symbol("SDL_JoystickPath");  ///< null before version 2.24
  decltype(&SDL_JoystickNumAxes) JoystickNumAxes = Symbol("SDL_JoystickNumAxes");
  decltype(&SDL_JoystickNumButtons) JoystickNumButtons = Symbol("SDL_JoystickNumButtons");
  decltype(&SDL_JoystickNumHats) JoystickNumHats = Symbol("SDL_JoystickNumHats");
  decltype(&SDL_JoystickGetAxis) JoystickGetAxis = Symbol("SDL_JoystickGetAxis");
  decltype(&SDL_JoystickGetButton) JoystickGetButton = Symbol("SDL_JoystickGetButton");
  decltype(&SDL_JoystickGetHat) JoystickGetHat = Symbol("SDL_JoystickGetHat");
};

[[nodiscard]] const Calls& Sdl();

/// The reading of sticks is on as long as one of these that was started lives.
class Running {
 public:
  Running() = default;
  ~Running() { End(); }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

  /// False where the library is not there, or cannot read sticks.
  bool Start();
  void End();

 private:
  bool started_ = false;
};

}  // namespace tarvik::screen::sdl
