// Tells a second start of the program that one is running already: a lock on a file beside the executable,
// which the system takes back when the process ends, however it ends.
#pragma once

#include <filesystem>
#include <utility>

#include "platform/Platform.h"

namespace tarvik {

class InstanceLock : public SingleInstance {
 public:
  /// `file` is made where it is missing and stays behind; only its lock counts.
  explicit InstanceLock(std::filesystem::path file) : file_(std::move(file)) {}
  InstanceLock(const InstanceLock&) = delete;
  InstanceLock& operator=(const InstanceLock&) = delete;
  ~InstanceLock() override;

  /// True also where the file cannot be made or locked: a program in a read-only folder is to start all the
  /// same.
  bool Acquire() override;

 private:
  std::filesystem::path file_;
  int descriptor_ = -1;
};

}  // namespace tarvik
