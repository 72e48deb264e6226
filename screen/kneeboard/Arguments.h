// The command line of tarvik-kneeboard.
#pragma once

#include <ostream>
#include <string>
#include <variant>

#include "kneeboard/Options.h"
#include "kneeboard/Press.h"

namespace tarvik::screen {

/// What the program's exit status says.
enum Status : int {
  kFine = 0,
  kErrors = 1,      ///< the kneeboard was written, and a file has errors
  kUnreadable = 2,  ///< a file cannot be read or written, or the command line not be understood
};

enum class Format { Pdf, Svg, Png, Text };

/// Where the program writes: what it was asked for, and what went wrong.
struct Streams {
  std::ostream& out;
  std::ostream& error;
};

struct Arguments {
  std::string file;             ///< a joystick file or a macro file
  std::string output;           ///< the file to write
  Format format = Format::Pdf;  ///< by the ending of `output`
  kneeboard::Options options;
  kneeboard::Colouring inks = kneeboard::Colouring::Colours;
  int dotsPerInch = 150;
};

/// The status is that of a command line that asks for no kneeboard: for help, or for what there is not. It
/// has been written then.
[[nodiscard]] std::variant<Arguments, Status> ReadArguments(int count, const char* const* words,
                                                            const Streams& streams);

}  // namespace tarvik::screen
