// Sends the strokes that come in, and lets go of all that is down at their end.
#pragma once

#include <array>
#include <string_view>

#include "keys/KeyDevice.h"

namespace tarvik::keys {

class Sender {
 public:
  explicit Sender(KeyDevice& device) : device_(device) {}
  ~Sender() { LetGo(); }
  Sender(const Sender&) = delete;
  Sender& operator=(const Sender&) = delete;

  /// The bytes that came, which need not end with a record. 0, or the error of the system after which nothing
  /// more is sent.
  int Take(std::string_view bytes);
  /// Everything goes up.
  void LetGo();
  /// The same, and what comes from now on is not sent.
  void End();

 private:
  static constexpr std::size_t kPositions = 0x300;  // KEY_CNT

  int Send(const keypipe::Stroke& stroke);

  KeyDevice& device_;
  std::array<bool, kPositions> isDown_ = {};
  keypipe::Record begun_ = {};
  std::size_t have_ = 0;  // bytes of begun_
  bool hasEnded_ = false;
};

}  // namespace tarvik::keys
