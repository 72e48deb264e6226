#include "screen/services/SdlLibrary.h"

#include <utility>

namespace tarvik::screen::sdl {
namespace {

int users = 0;

}  // namespace

const Calls& Sdl() {
  static const Calls calls;
  return calls;
}

bool Running::Start() {
  if (started_) return true;
  if (!Sdl().SetMainReady) return false;  // the library is not there
  Sdl().SetMainReady();
  Sdl().SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
  Sdl().SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  // The library's own drivers of such devices rearrange the axes, and run in threads.
  Sdl().SetHint(SDL_HINT_JOYSTICK_HIDAPI, "0");
  started_ = Sdl().InitSubSystem(SDL_INIT_JOYSTICK) == 0;
  // Who asks for states alone would let the events pile up.
  if (started_ && users++ == 0) Sdl().JoystickEventState(SDL_IGNORE);
  return started_;
}

void Running::End() {
  if (!std::exchange(started_, false)) return;
  --users;
  Sdl().QuitSubSystem(SDL_INIT_JOYSTICK);
}

}  // namespace tarvik::screen::sdl
