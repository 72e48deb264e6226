// Tells of errors in the two files when they are about to be sent to the joystick. It only tells: the files
// are sent all the same.
#pragma once

#include "workbench/Notices.h"
#include "workbench/Problems.h"

namespace tarvik {

class Preflight {
 public:
  Preflight(Documents& documents, Problems& problems, Notices& notices);

  /// Looks at the files. What was told once is not told again until they had no errors in between.
  void Look();

 private:
  void LookAtErrors();
  void Answered();

  Documents& documents_;
  Problems& problems_;
  Notices& notices_;
  bool told_ = false;
  Connection mended_;
};

}  // namespace tarvik
