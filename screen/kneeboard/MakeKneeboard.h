// What tarvik-kneeboard does.
#pragma once

#include "screen/kneeboard/Arguments.h"

namespace tarvik::screen {

/// Reads the command line and writes the kneeboard. There must be a QGuiApplication.
[[nodiscard]] Status MakeKneeboard(int count, const char* const* words, const Streams& streams);

}  // namespace tarvik::screen
