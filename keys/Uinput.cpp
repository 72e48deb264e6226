#include "keys/Uinput.h"

#include <fcntl.h>
#include <libevdev/libevdev-uinput.h>
#include <libevdev/libevdev.h>
#include <linux/input-event-codes.h>
#include <unistd.h>

#include <cerrno>
#include <map>
#include <utility>

namespace tarvik::keys {
namespace {

/// The numbers of libevdev's devices are those of their files.
class LibevdevCalls : public UinputCalls {
 public:
  LibevdevCalls() = default;
  ~LibevdevCalls() override {
    while (!devices_.empty()) LibevdevCalls::Destroy(devices_.begin()->first);
  }
  LibevdevCalls(const LibevdevCalls&) = delete;
  LibevdevCalls& operator=(const LibevdevCalls&) = delete;

  int Create(Kind kind) override {
    const int file = open("/dev/uinput", O_RDWR | O_CLOEXEC);
    if (file < 0) return -errno;
    const std::unique_ptr<libevdev, decltype(&libevdev_free)> wanted(libevdev_new(), libevdev_free);
    Describe(*wanted, kind);
    libevdev_uinput* made = nullptr;
    const int error = libevdev_uinput_create_from_device(wanted.get(), file, &made);
    if (error != 0) {
      close(file);
      return error;
    }
    devices_[file] = made;
    return file;
  }

  int Write(int device, unsigned type, unsigned code, int value) override {
    return libevdev_uinput_write_event(devices_.at(device), type, code, value);
  }

  void Destroy(int device) override {
    libevdev_uinput_destroy(devices_.at(device));
    devices_.erase(device);
    close(device);
  }

 private:
  /// No key repeats by itself: desktops repeat what is held, and the kernel's own repeats would come twice.
  static void Describe(libevdev& device, Kind kind) {
    const auto enable = [&](unsigned type, unsigned first, unsigned last) {
      for (unsigned code = first; code <= last; ++code)
        libevdev_enable_event_code(&device, type, code, nullptr);
    };
    const bool isMouse = kind == Kind::Mouse;
    libevdev_set_name(&device, isMouse ? "Tarvik mouse" : "Tarvik keyboard");
    libevdev_set_id_bustype(&device, BUS_VIRTUAL);
    if (!isMouse) return enable(EV_KEY, KEY_ESC, KEY_COMPOSE);
    enable(EV_KEY, BTN_LEFT, BTN_MIDDLE);
    // Without them it is taken for no mouse.
    enable(EV_REL, REL_X, REL_Y);
  }

  std::map<int, libevdev_uinput*> devices_;
};

}  // namespace

std::unique_ptr<UinputCalls> MakeUinputCalls() { return std::make_unique<LibevdevCalls>(); }

std::variant<std::unique_ptr<Uinput>, int> Uinput::Make(std::unique_ptr<UinputCalls> calls) {
  const int keyboard = calls->Create(UinputCalls::Kind::Keyboard);
  if (keyboard < 0) return -keyboard;
  const int mouse = calls->Create(UinputCalls::Kind::Mouse);
  if (mouse < 0) {
    calls->Destroy(keyboard);
    return -mouse;
  }
  return std::unique_ptr<Uinput>(new Uinput(std::move(calls), keyboard, mouse));
}

Uinput::~Uinput() {
  calls_->Destroy(mouse_);
  calls_->Destroy(keyboard_);
}

int Uinput::Send(const keypipe::Stroke& stroke) {
  const int device = stroke.position < BTN_MISC ? keyboard_ : mouse_;
  int error = calls_->Write(device, EV_KEY, stroke.position, stroke.down ? 1 : 0);
  if (error == 0) error = calls_->Write(device, EV_SYN, SYN_REPORT, 0);
  return -error;
}

}  // namespace tarvik::keys
