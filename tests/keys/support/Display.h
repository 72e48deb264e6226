// A display of its own, a client on it, and tarvik-keys as Tarvik starts it.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>

#include "platform/KeyPipe.h"
#include "platform/Process.h"

namespace tarvik::keys {

/// An X server, and DISPLAY set to it.
class Server {
 public:
  Server() {
    std::array<int, 2> ends = {};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return;
    const auto xvfb = FindInPath("Xvfb");
    if (!xvfb) return;
    auto started =
        ChildProcess::Start({.file = *xvfb,
                             .arguments = {"-noreset", "-displayfd", "1", "-screen", "0", "640x480x24"},
                             .output = ends[1]});
    close(ends[1]);
    std::string number;
    for (char digit = 0; read(ends[0], &digit, 1) == 1 && digit != '\n';) number.push_back(digit);
    close(ends[0]);
    if (!started || number.empty()) return;
    process_ = std::make_unique<ChildProcess>(*std::move(started));
    setenv("DISPLAY", (":" + number).c_str(), 1);
    unsetenv("WAYLAND_DISPLAY");
  }
  [[nodiscard]] bool IsThere() const { return process_ != nullptr; }

 private:
  std::unique_ptr<ChildProcess> process_;
};

/// A program that keys go to, and a keyboard of the user's.
class Client {
 public:
  Client();
  ~Client();
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  /// What arrives next; a position of 0 for nothing within a second.
  keypipe::Stroke Next();
  [[nodiscard]] int KeysDown();
  /// The user presses keys by their positions, one after another, and lets go of them.
  void PressByHand(std::initializer_list<unsigned> positions);

 private:
  struct Connection;
  std::unique_ptr<Connection> connection_;
};

/// Gives the focus to the largest window there is, once there is one.
void FocusTopWindow();

/// tarvik-keys with a pipe either way.
class Keys {
 public:
  explicit Keys(const char* program = TARVIK_KEYS) {
    std::array<int, 2> in = {};
    std::array<int, 2> out = {};
    if (pipe2(in.data(), O_CLOEXEC) != 0 || pipe2(out.data(), O_CLOEXEC) != 0) return;
    auto started = ChildProcess::Start({.file = program, .input = in[0], .output = out[1]});
    close(in[0]);
    close(out[1]);
    strokes_ = in[1];
    answers_ = out[0];
    if (started) process_ = std::make_unique<ChildProcess>(*std::move(started));
  }
  ~Keys() {
    End();
    close(answers_);
  }
  Keys(const Keys&) = delete;
  Keys& operator=(const Keys&) = delete;

  void Send(const keypipe::Stroke& stroke) const {
    const keypipe::Record record = keypipe::Packed(stroke);
    [[maybe_unused]] const ssize_t written = write(strokes_, record.data(), record.size());
  }
  void End() {
    if (strokes_ >= 0) close(std::exchange(strokes_, -1));
  }
  /// Empty at the end.
  [[nodiscard]] std::string NextLine() const {
    std::string line;
    for (char c = 0; read(answers_, &c, 1) == 1 && c != '\n';) line.push_back(c);
    return line;
  }
  /// The lines until strokes may come.
  std::string Answer() const {
    std::string answer;
    for (std::string line = NextLine(); !line.empty() && line != keypipe::kReady; line = NextLine()) {
      answer.append(line).append("\n");
    }
    return answer;
  }
  ChildProcess& process() { return *process_; }

 private:
  int strokes_ = -1;
  int answers_ = -1;
  std::unique_ptr<ChildProcess> process_;
};

}  // namespace tarvik::keys
