#include "screen/services/SdlSticks.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <functional>
#include <utility>

#include "screen/services/SdlLibrary.h"

namespace tarvik::screen {

using sdl::Sdl;

namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds kLookForOthers(1000);
constexpr std::chrono::milliseconds kWithoutFile(10);
constexpr const char* kSockets = "/dev/input/by-path";

/// The name of the socket, which stays when a stick is plugged in again; the file itself where there is none.
std::string SocketOf(const std::string& file) {
  std::error_code error;
  for (fs::directory_iterator each(kSockets, error), end; !error && each != end; each.increment(error)) {
    std::error_code ignored;
    if (fs::equivalent(each->path(), file, ignored)) return each->path().filename().string();
  }
  return file;
}

std::string TextOf(const char* text) { return text ? text : ""; }

std::string PathOf(SDL_Joystick* stick) {
  return Sdl().JoystickPath ? TextOf(Sdl().JoystickPath(stick)) : std::string();
}

}  // namespace

// The file of a stick.

class SdlSticks::File {
 public:
  /// `wakes` is called when there is something to read, `ends` when there never will be again.
  File(const std::string& path, QObject& life, std::function<void()> wakes, std::function<void()> ends)
      : file_(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {
    if (file_ < 0) return;
    notifier_ = std::make_unique<QSocketNotifier>(file_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, &life,
                     [this, wakes = std::move(wakes), ends = std::move(ends)] {
                       if (Drain()) return wakes();
                       notifier_->setEnabled(false);
                       // It may be called away with this file.
                       const auto last = ends;
                       last();
                     });
  }
  ~File() {
    if (notifier_) {
      notifier_->setEnabled(false);
      notifier_.release()->deleteLater();  // its own signal may be what ends it
    }
    if (file_ >= 0) close(file_);
  }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  [[nodiscard]] bool IsOpen() const { return file_ >= 0; }

 private:
  /// The library reads the events themselves. False where the stick is gone.
  [[nodiscard]] bool Drain() const {
    std::array<char, 4096> buffer;
    while (true) {
      const ssize_t count = read(file_, buffer.data(), buffer.size());
      if (count > 0) continue;
      return count < 0 && (errno == EAGAIN || errno == EINTR);
    }
  }

  int file_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

// Starting and stopping.

SdlSticks::SdlSticks() : running_(std::make_unique<sdl::Running>()) {
  plugging_.setInterval(kLookForOthers);
  plugging_.setTimerType(Qt::CoarseTimer);
  withoutFile_.setInterval(kWithoutFile);
  withoutFile_.setTimerType(Qt::PreciseTimer);
  for (QTimer* const timer : {&plugging_, &withoutFile_}) {
    QObject::connect(timer, &QTimer::timeout, &life_, [this] { Update(); });
  }
}

SdlSticks::~SdlSticks() { Stop(); }

bool SdlSticks::Start() {
  if (isOn_) return true;
  if (!running_->Start()) return false;
  isOn_ = true;
  ++starts_;
  // The library tells a quick tap as two events, which its state would not show. It calls this at once and
  // keeps none of them.
  Sdl().SetEventFilter(
      [](void* self, SDL_Event* event) {
        static_cast<SdlSticks*>(self)->Take(*event);
        return 0;
      },
      this);
  Sdl().JoystickEventState(SDL_ENABLE);
  plugging_.start();
  another_ = true;
  Update();
  return true;
}

void SdlSticks::Stop() {
  if (!std::exchange(isOn_, false)) return;
  plugging_.stop();
  withoutFile_.stop();
  Sdl().JoystickEventState(SDL_IGNORE);
  Sdl().SetEventFilter(nullptr, nullptr);
  for (Stick& each : sticks_) {
    each.file.reset();
    Sdl().JoystickClose(each.handle);
  }
  sticks_.clear();
  waiting_.clear();
  gone_.clear();
  running_->End();
}

// What there is.

SdlSticks::Stick* SdlSticks::Find(int number) {
  const auto found = std::ranges::find(sticks_, number, &Stick::number);
  return found == sticks_.end() ? nullptr : &*found;
}

StickInfo SdlSticks::InfoOf(const Stick& stick) const {
  std::array<char, 33> guid = {};
  Sdl().JoystickGetGUIDString(Sdl().JoystickGetGUID(stick.handle), guid.data(),
                              static_cast<int>(guid.size()));
  const std::string path = PathOf(stick.handle);
  return {stick.number,
          guid.data(),
          TextOf(Sdl().JoystickName(stick.handle)),
          path.empty() ? path : SocketOf(path),
          Sdl().JoystickNumAxes(stick.handle),
          Sdl().JoystickNumButtons(stick.handle),
          Sdl().JoystickNumHats(stick.handle)};
}

/// Hears of each event while the library reads it, and so only notes it.
void SdlSticks::Take(const SDL_Event& event) {
  const auto note = [this](StickChange change) {
    const Stick* const stick = Find(change.stick);
    if (stick && !stick->starting) waiting_.push_back(change);
  };
  switch (event.type) {
    case SDL_JOYAXISMOTION:
      return note({event.jaxis.which, StickChangeKind::Axis, event.jaxis.axis, event.jaxis.value});
    case SDL_JOYBUTTONDOWN:
    case SDL_JOYBUTTONUP:
      return note({event.jbutton.which, StickChangeKind::Button, event.jbutton.button, event.jbutton.state});
    case SDL_JOYHATMOTION:
      return note({event.jhat.which, StickChangeKind::Hat, event.jhat.hat, event.jhat.value});
    case SDL_JOYDEVICEADDED:
      another_ = true;
      return;
    case SDL_JOYDEVICEREMOVED:
      gone_.push_back(event.jdevice.which);
      return;
    default:
      return;
  }
}

void SdlSticks::Update() {
  if (!isOn_) return;
  const int start = starts_;
  const auto isOver = [this, start] { return !isOn_ || starts_ != start; };
  Sdl().JoystickUpdate();
  if (std::exchange(another_, false)) FindNew();
  // Who hears of it may let other events come, and this again.
  while (!waiting_.empty()) {
    const StickChange change = waiting_.front();
    waiting_.erase(waiting_.begin());
    changed(change);
    if (isOver()) return;
  }
  for (const int number : std::exchange(gone_, {})) {
    Remove(number);
    if (isOver()) return;
  }
  const auto isNew = [](const Stick& stick) { return stick.starting; };
  for (auto next = std::ranges::find_if(sticks_, isNew); next != sticks_.end();
       next = std::ranges::find_if(sticks_, isNew)) {
    next->starting = false;
    TellStart(*next);
    if (isOver()) return;
  }
  TakeTimers();
}

void SdlSticks::FindNew() {
  const std::size_t before = sticks_.size();
  for (int i = 0; i < Sdl().NumJoysticks(); ++i) {
    if (!Find(Sdl().JoystickGetDeviceInstanceID(i))) Open(i);
  }
  // Where they stand is known once they have been read.
  if (sticks_.size() > before) Sdl().JoystickUpdate();
}

void SdlSticks::Open(int index) {
  const int number = Sdl().JoystickGetDeviceInstanceID(index);
  Stick stick{number, Sdl().JoystickOpen(index), nullptr, true};
  if (!stick.handle) return;
  if (const std::string path = PathOf(stick.handle); !path.empty()) {
    stick.file = std::make_unique<File>(
        path, life_, [this] { Update(); }, [this, number] { Remove(number); });
    if (!stick.file->IsOpen()) stick.file.reset();
  }
  sticks_.push_back(std::move(stick));
}

void SdlSticks::TellStart(const Stick& stick) {
  const int start = starts_;
  SDL_Joystick* const handle = stick.handle;
  const StickInfo info = InfoOf(stick);
  std::vector<StickChange> state;
  constexpr std::size_t kUsual = 64;
  state.reserve(kUsual);
  for (int i = 0; i < info.buttons; ++i) {
    state.push_back({info.number, StickChangeKind::Button, i, Sdl().JoystickGetButton(handle, i), true});
  }
  for (int i = 0; i < info.hats; ++i) {
    state.push_back({info.number, StickChangeKind::Hat, i, Sdl().JoystickGetHat(handle, i), true});
  }
  for (int i = 0; i < info.axes; ++i) {
    state.push_back({info.number, StickChangeKind::Axis, i, Sdl().JoystickGetAxis(handle, i), true});
  }
  plugged(info);
  for (const StickChange& each : state) {
    if (!isOn_ || starts_ != start) return;
    changed(each);
  }
}

void SdlSticks::Remove(int number) {
  const auto found = std::ranges::find(sticks_, number, &Stick::number);
  if (found == sticks_.end()) return;
  const Stick stick = std::move(*found);
  sticks_.erase(found);
  Sdl().JoystickClose(stick.handle);
  std::erase_if(waiting_, [number](const StickChange& each) { return each.stick == number; });
  if (!stick.starting) unplugged(number);
}

void SdlSticks::TakeTimers() {
  const bool polls = std::ranges::any_of(sticks_, [](const Stick& each) { return !each.file; });
  if (polls && !withoutFile_.isActive()) withoutFile_.start();
  if (!polls) withoutFile_.stop();
}

}  // namespace tarvik::screen
