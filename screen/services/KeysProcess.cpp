#include "screen/services/KeysProcess.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QSocketNotifier>
#include <QTimer>
#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>
#include <utility>

#include "platform/KeyPipe.h"

namespace tarvik::screen {
namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "tarvik-keys";

fs::path ProgramNow() {
  const fs::path own = QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString();
  fs::path beside = own / kName;
  std::error_code ignored;
  return fs::exists(beside, ignored) ? beside : own.parent_path() / "libexec" / "tarvik" / kName;
}

KeyWay WayNamed(std::string_view name) {
  if (name == keypipe::kUinput) return KeyWay::Uinput;
  return name == keypipe::kXtest ? KeyWay::Xtest : KeyWay::None;
}

void Close(int& file) {
  if (file >= 0) close(std::exchange(file, -1));
}

}  // namespace

KeysProcess::KeysProcess() : program_(ProgramNow()) {
  // A stroke for a process that is gone is told by the write.
  std::signal(SIGPIPE, SIG_IGN);
}

KeysProcess::~KeysProcess() { KeysProcess::Stop(); }

void KeysProcess::Start() {
  life_ = std::make_unique<QObject>();
  found_ = {};
  begun_.clear();
  std::array<int, 2> in = {-1, -1};
  std::array<int, 2> out = {-1, -1};
  if (pipe2(in.data(), O_CLOEXEC) != 0 || pipe2(out.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
    for (int* const each : {in.data(), &in[1], out.data(), &out[1]}) Close(*each);
    return Lose(std::generic_category().message(errno) + ".");
  }
  auto started = ChildProcess::Start({.file = program_, .input = in[0], .output = out[1]});
  Close(in[0]);
  Close(out[1]);
  strokes_ = in[1];
  answers_ = out[0];
  // A process that does not read must not hold up this one.
  fcntl(strokes_, F_SETFL, O_NONBLOCK);
  if (!started) return Lose(program_.filename().string() + ": " + started.failure().text + ".");
  process_ = std::make_unique<ChildProcess>(*std::move(started));
  auto* const notifier = new QSocketNotifier(answers_, QSocketNotifier::Read, life_.get());
  QObject::connect(notifier, &QSocketNotifier::activated, life_.get(), [this] { Hear(); });
}

void KeysProcess::Stop() {
  life_.reset();
  down_.clear();
  // It lets go of everything at the end of the strokes.
  Close(strokes_);
  Close(answers_);
  process_.reset();
}

void KeysProcess::Send(std::uint16_t position, bool down) {
  if (strokes_ < 0) return;
  const keypipe::Record record = keypipe::Packed({position, down});
  const ssize_t written = write(strokes_, record.data(), record.size());
  if (written != static_cast<ssize_t>(record.size()))
    return Lose(std::generic_category().message(errno) + ".");
  if (down) {
    down_.insert(position);
  } else {
    down_.erase(position);
  }
}

void KeysProcess::Hear() {
  constexpr std::size_t kMost = 1024;
  std::array<char, kMost> bytes = {};
  const ssize_t count = read(answers_, bytes.data(), bytes.size());
  if (count < 0) return;
  if (count == 0) return Lose("tarvik-keys has ended.");
  begun_.append(bytes.data(), static_cast<std::size_t>(count));
  // Who hears of a line may stop it.
  const auto life = life_.get();
  for (std::size_t end = begun_.find('\n'); end != std::string::npos; end = begun_.find('\n')) {
    const std::string line = begun_.substr(0, end);
    begun_.erase(0, end + 1);
    Take(line);
    if (life_.get() != life) return;
  }
}

void KeysProcess::Take(const std::string& line) {
  const std::size_t blank = std::min(line.find(' '), line.size());
  const std::string_view word = std::string_view(line).substr(0, blank);
  const std::string text = line.substr(std::min(blank + 1, line.size()));
  if (word == keypipe::kWay) found_.way = WayNamed(text);
  if (word == keypipe::kWhy) found_.why = text;
  if (word == keypipe::kMend) found_.mend = text;
  if (word == keypipe::kHotKey) found_.hotKey = true;
  if (word == keypipe::kReady) answered(found_);
  if (word == keypipe::kStop) hotKeyPressed();
  if (word == keypipe::kLost) Lose(text + ".");
}

void KeysProcess::Lose(const std::string& why) {
  Close(strokes_);
  LetGo();
  QTimer::singleShot(0, life_.get(), [this, why] { lost(why); });
}

void KeysProcess::LetGo() {
  std::array<int, 2> in = {-1, -1};
  if (down_.empty() || pipe2(in.data(), O_CLOEXEC) != 0) return;
  for (const std::uint16_t position : std::exchange(down_, {})) {
    for (const bool down : {true, false}) {
      const keypipe::Record record = keypipe::Packed({position, down});
      [[maybe_unused]] const ssize_t written = write(in[1], record.data(), record.size());
    }
  }
  [[maybe_unused]] const auto started = StartDetached({.file = program_, .input = in[0]});
  for (int& file : in) Close(file);
}

}  // namespace tarvik::screen
