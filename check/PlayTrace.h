// Plays a joystick file and its macro file by a trace.
#pragma once

#include "check/Arguments.h"

namespace tarvik::check {

/// Of the paths the first is the joystick file, the second the trace. Without expectations in the trace what
/// came is written, and with them what differs.
[[nodiscard]] Status PlayTrace(const Arguments& arguments, const Streams& streams);

}  // namespace tarvik::check
