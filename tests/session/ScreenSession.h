// Holds up the toolkit while sessions run on real widgets.
#pragma once

#include <memory>

namespace tarvik::session {

class ScreenSession {
 public:
  ScreenSession(bool wanted, int& count, char** arguments);
  ~ScreenSession();

 private:
  struct Toolkit;
  std::unique_ptr<Toolkit> toolkit_;
};

}  // namespace tarvik::session
