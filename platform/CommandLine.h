// A command line taken apart into the file of its program and the rest, and what kind of program that is.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "platform/Drives.h"

namespace tarvik {

struct ParsedCommand {
  std::string program;         ///< as it is written
  std::filesystem::path file;  ///< of the host
  std::string rest;            ///< behind the blank that ends the program's name, as it stands
};

/// Nothing when no part of the command line up to a blank, nor what stands in quotation marks at its
/// beginning, names a file.
[[nodiscard]] std::optional<ParsedCommand> ParseCommandLine(const std::string& commandLine,
                                                            const Drives& drives);

enum class ProgramKind { None, Native, Windows, Dos };

/// Tells it by its first bytes. A .com program and a batch file have no signature: they are taken for what
/// their name says when they are nothing else.
[[nodiscard]] ProgramKind KindOf(const std::filesystem::path& file);

}  // namespace tarvik
