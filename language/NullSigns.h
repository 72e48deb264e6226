// The signs that stand for no key in a joystick file: those that NULLCHR names, and ^ where it names none.
#pragma once

#include "language/JoystickFile.h"

namespace tarvik::model {

/// It refers to the text.
class NullSigns {
 public:
  NullSigns(const JoystickFile& file, std::string_view text);

  /// In either case of the letters.
  [[nodiscard]] bool Hold(std::string_view word) const;

 private:
  std::vector<std::string_view> signs_;
};

}  // namespace tarvik::model
