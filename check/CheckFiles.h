// The job that tells what is wrong in files.
#pragma once

#include "check/Arguments.h"

namespace tarvik::check {

/// A line for each problem, "file:line:column: severity: text [rule]", sorted by file and place, or all of
/// them as JSON. Files that cannot be read are told on the error stream, and the others are checked all the
/// same.
[[nodiscard]] Status CheckFiles(const Arguments& arguments, const Streams& streams);

}  // namespace tarvik::check
