// The pairs of files in tests/pairs/, by which the language is tested as a whole.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "language/Controllers.h"

namespace tarvik::model {

/// The bytes of a file, none of one that is not there.
inline std::string Read(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

/// A pair, by the path of its joystick file.
struct Pair {
  std::filesystem::path path;
  std::filesystem::path macroPath;
  std::string joystick;
  std::string macros;

  [[nodiscard]] bool IsTidy() const { return path.string().find("/tidy/") != std::string::npos; }
};

/// The pairs in a folder and those below it, sorted by their paths.
inline std::vector<Pair> PairsIn(const std::filesystem::path& folder) {
  std::set<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) paths.insert(entry.path());
  std::vector<Pair> pairs;
  for (const std::filesystem::path& path : paths) {
    for (const Endings& endings : kEndings) {
      if (path.extension() != "." + std::string(endings.joystick)) continue;
      std::filesystem::path macros = path;
      macros.replace_extension(endings.macro);
      pairs.push_back({path, macros, Read(path), Read(macros)});
    }
  }
  return pairs;
}

/// Those of tests/pairs/.
inline const std::vector<Pair>& Pairs() {
  static const std::vector<Pair> kAll = PairsIn(TARVIK_DATA "/../tests/pairs");
  return kAll;
}

}  // namespace tarvik::model
