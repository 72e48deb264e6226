#include "keys/Sender.h"

namespace tarvik::keys {

int Sender::Take(std::string_view bytes) {
  for (const char byte : bytes) {
    begun_[have_++] = static_cast<unsigned char>(byte);
    if (have_ < begun_.size()) continue;
    have_ = 0;
    if (const int error = Send(keypipe::Unpacked(begun_)); error != 0) return error;
  }
  return 0;
}

int Sender::Send(const keypipe::Stroke& stroke) {
  if (hasEnded_ || stroke.position >= kPositions || isDown_[stroke.position] == stroke.down) return 0;
  const int error = device_.Send(stroke);
  // One that may have arrived counts as down, so that it goes up.
  isDown_[stroke.position] = stroke.down;
  if (error != 0) End();
  return error;
}

void Sender::LetGo() {
  for (std::size_t i = 0; i < isDown_.size(); ++i) {
    if (!isDown_[i]) continue;
    isDown_[i] = false;
    device_.Send({static_cast<std::uint16_t>(i), false});
  }
}

void Sender::End() {
  hasEnded_ = true;
  LetGo();
}

}  // namespace tarvik::keys
