#include "screen/Toolkit.h"

#include <filesystem>
#include <new>

namespace tarvik::screen {
namespace {

/// The failure that stands for the exception in hand.
Failure WhatWasThrown() {
  Failure failure{error::kUnexpected, {}, 0};
  try {
    throw;
  } catch (const std::bad_alloc&) {
    failure.number = error::kOutOfMemory;
  } catch (const std::filesystem::filesystem_error& thrown) {
    failure.text = thrown.code().message();  // its own text has names of files
  } catch (const std::exception& thrown) {
    failure.text = thrown.what();
  }
  return failure;
}

}  // namespace

bool Toolkit::notify(QObject* receiver, QEvent* event) {
  bool taken = true;
  Run([&] { taken = QApplication::notify(receiver, event); });
  return taken;
}

/// An exception that cannot even be recorded, for want of memory, is passed over: the texts go on.
void Toolkit::TellWhatWasThrown() const noexcept {
  try {
    if (failed) failed(WhatWasThrown());
  } catch (...) {
    return;
  }
}

}  // namespace tarvik::screen
