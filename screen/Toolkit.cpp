#include "screen/Toolkit.h"

#include <exception>
#include <new>

namespace tarvik::screen {

bool Toolkit::notify(QObject* receiver, QEvent* event) {
  Failure failure{error::kUnexpected, {}, 0};
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::bad_alloc&) {
    failure.number = error::kOutOfMemory;
  } catch (const std::exception& thrown) {
    failure.text = thrown.what();
  }
  if (failed) failed(failure);
  return true;
}

}  // namespace tarvik::screen
