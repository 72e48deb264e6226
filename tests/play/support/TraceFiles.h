// The traces in tests/traces/ with the files that they play.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "play/Trace.h"
#include "support/Pairs.h"

namespace tarvik::play {

namespace fs = std::filesystem;

struct TraceFile {
  fs::path path;
  std::string text;
  fs::path joystickPath;
  std::string joystick;
  fs::path macroPath;
  std::string macros;

  [[nodiscard]] PlayedFiles Files() const {
    return {joystickPath.filename(), joystick, macroPath.filename(), macros};
  }
};

/// A trace says in its first line which joystick file it plays, beside itself or elsewhere.
inline TraceFile ReadTraceFile(const fs::path& path) {
  constexpr std::string_view kPlays = "plays ";
  TraceFile file{path, model::Read(path), {}, {}, {}, {}};
  EXPECT_TRUE(file.text.starts_with(kPlays)) << path;
  const std::string name = file.text.substr(kPlays.size(), file.text.find('\n') - kPlays.size());
  file.joystickPath = path.parent_path() / name;
  EXPECT_TRUE(fs::exists(file.joystickPath)) << path;
  file.joystick = model::Read(file.joystickPath);
  for (const Endings& each : kEndings) {
    if (file.joystickPath.extension() != "." + std::string(each.joystick)) continue;
    file.macroPath = fs::path(file.joystickPath).replace_extension(each.macro);
  }
  file.macros = model::Read(file.macroPath);
  return file;
}

inline std::vector<TraceFile> TraceFiles() {
  std::vector<fs::path> paths;
  for (const auto& each : fs::recursive_directory_iterator(TARVIK_DATA "/../tests/traces")) {
    if (each.path().extension() == ".trace") paths.push_back(each.path());
  }
  std::ranges::sort(paths);
  std::vector<TraceFile> files;
  for (const fs::path& path : paths) files.push_back(ReadTraceFile(path));
  return files;
}

}  // namespace tarvik::play
