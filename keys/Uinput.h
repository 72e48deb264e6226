// A keyboard and a mouse of our own, made by the kernel's uinput.
#pragma once

#include <memory>
#include <variant>

#include "keys/KeyDevice.h"

namespace tarvik::keys {

/// What is asked of the system, so that a test can answer instead.
class UinputCalls {
 public:
  enum class Kind { Keyboard, Mouse };

  virtual ~UinputCalls() = default;
  /// A number for the device, or an error of the system as a negative one.
  virtual int Create(Kind kind) = 0;
  /// An event of linux/input.h; 0 or a negative error.
  virtual int Write(int device, unsigned type, unsigned code, int value) = 0;
  /// The kernel lets go of what is down on it.
  virtual void Destroy(int device) = 0;
};

/// Those of libevdev.
[[nodiscard]] std::unique_ptr<UinputCalls> MakeUinputCalls();

/// Two devices as one; they go with it.
class Uinput : public KeyDevice {
 public:
  /// The error of the system where they can't be made.
  [[nodiscard]] static std::variant<std::unique_ptr<Uinput>, int> Make(std::unique_ptr<UinputCalls> calls);
  ~Uinput() override;
  Uinput(const Uinput&) = delete;
  Uinput& operator=(const Uinput&) = delete;

  /// One report for each stroke.
  int Send(const keypipe::Stroke& stroke) override;

 private:
  Uinput(std::unique_ptr<UinputCalls> calls, int keyboard, int mouse)
      : calls_(std::move(calls)), keyboard_(keyboard), mouse_(mouse) {}

  std::unique_ptr<UinputCalls> calls_;
  int keyboard_;
  int mouse_;
};

}  // namespace tarvik::keys
