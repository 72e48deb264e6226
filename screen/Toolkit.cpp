#include "screen/Toolkit.h"

#include <exception>
#include <filesystem>
#include <new>

namespace tarvik::screen {

bool Toolkit::notify(QObject* receiver, QEvent* event) {
  Failure failure{error::kUnexpected, {}, 0};
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::bad_alloc&) {
    failure.number = error::kOutOfMemory;
  } catch (const std::filesystem::filesystem_error& thrown) {
    failure.text = thrown.code().message();  // its own text has names of files
  } catch (const std::exception& thrown) {
    failure.text = thrown.what();
  }
  Tell(failure);
  return true;
}

/// What cannot even be recorded, for want of memory, is passed over: the texts go on.
void Toolkit::Tell(const Failure& failure) const noexcept {
  try {
    if (failed) failed(failure);
  } catch (...) {
    return;
  }
}

}  // namespace tarvik::screen
