// Something that sends keys.
#pragma once

#include "platform/KeyPipe.h"

namespace tarvik::keys {

class KeyDevice {
 public:
  virtual ~KeyDevice() = default;
  /// 0, or the error of the system for which it could not be sent.
  virtual int Send(const keypipe::Stroke& stroke) = 0;
};

}  // namespace tarvik::keys
