// Keys are sent by tarvik-keys, a process of its own, so that they go up however this one ends.
#pragma once

#include <QObject>
#include <memory>
#include <set>
#include <string>

#include "platform/KeyOutput.h"
#include "platform/Process.h"

namespace tarvik::screen {

class KeysProcess : public KeyOutput {
 public:
  /// The program beside this one, or where packages put it.
  KeysProcess();
  ~KeysProcess() override;
  KeysProcess(const KeysProcess&) = delete;
  KeysProcess& operator=(const KeysProcess&) = delete;

  void Start() override;
  void Stop() override;
  void Send(std::uint16_t position, bool down) override;

 private:
  void Hear();
  void Take(const std::string& line);
  /// Tells it when what runs now has run.
  void Lose(const std::string& why);
  /// Another process lets go of what the one that was lost had down.
  void LetGo();

  std::filesystem::path program_;
  std::unique_ptr<ChildProcess> process_;
  std::unique_ptr<QObject> life_;  // of what is waited for
  int strokes_ = -1;
  int answers_ = -1;
  std::string begun_;  // of a line
  KeyOutputState found_;
  std::set<std::uint16_t> down_;
};

}  // namespace tarvik::screen
