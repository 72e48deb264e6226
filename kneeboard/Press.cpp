#include "kneeboard/Press.h"

#include "language/Checking.h"
#include "text/CodePage.h"

namespace tarvik::kneeboard {

std::vector<std::string> FilesOf(const std::string& path, std::size_t sheets) {
  const std::size_t point = path.find_last_of("./\\");
  const bool hasEnding = point != std::string::npos && path[point] == '.';
  const std::string_view base = std::string_view(path).substr(0, hasEnding ? point : path.size());
  const std::string_view ending = std::string_view(path).substr(base.size());
  if (sheets < 2 || LowerCase(ending) == ".pdf") return {path};
  std::vector<std::string> files;
  for (std::size_t i = 1; i <= sheets; ++i)
    files.push_back(model::Said({base, "-", std::to_string(i), ending}));
  return files;
}

}  // namespace tarvik::kneeboard
