// A stick that exists within the library alone.
#pragma once

#define SDL_MAIN_HANDLED
#include <SDL.h>
#include <gtest/gtest.h>

namespace tarvik::screen {

/// A stick that is plugged in for as long as it lives.
class VirtualStick {
 public:
  VirtualStick(Uint16 axes, Uint16 buttons, const char* name = "Stick", Uint16 hats = 0) {
    SDL_VirtualJoystickDesc description;
    SDL_zero(description);
    description.version = SDL_VIRTUAL_JOYSTICK_DESC_VERSION;
    description.type = SDL_JOYSTICK_TYPE_FLIGHT_STICK;
    description.naxes = axes;
    description.nbuttons = buttons;
    description.nhats = hats;
    description.name = name;
    const int index = SDL_JoystickAttachVirtualEx(&description);
    EXPECT_GE(index, 0);
    id_ = SDL_JoystickGetDeviceInstanceID(index);
    handle_ = SDL_JoystickOpen(index);
  }
  ~VirtualStick() {
    for (int i = 0; i < SDL_NumJoysticks(); ++i) {
      if (SDL_JoystickGetDeviceInstanceID(i) == id_) SDL_JoystickDetachVirtual(i);
    }
    SDL_JoystickClose(handle_);
    SDL_JoystickUpdate();
  }
  VirtualStick(const VirtualStick&) = delete;
  VirtualStick& operator=(const VirtualStick&) = delete;

  void Move(std::initializer_list<Sint16> axes) {
    int axis = 0;
    for (const Sint16 value : axes) SDL_JoystickSetVirtualAxis(handle_, axis++, value);
  }
  void Press(int button, bool down = true) { SDL_JoystickSetVirtualButton(handle_, button, down ? 1 : 0); }
  void Turn(int hat, Uint8 bits) { SDL_JoystickSetVirtualHat(handle_, hat, bits); }
  [[nodiscard]] int Number() const { return id_; }

 private:
  SDL_JoystickID id_ = -1;
  SDL_Joystick* handle_ = nullptr;
};

}  // namespace tarvik::screen
