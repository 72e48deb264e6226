#include "tools/wizards/GuidePages.h"

#include <algorithm>

namespace tarvik {
namespace {

constexpr std::string_view kPage = "# ";
constexpr std::string_view kExample = "    ";

GuideRow RowOf(std::string_view line) {
  if (line.starts_with(kExample)) return {.text = line.substr(kExample.size()), .example = true};
  if (!line.ends_with(']')) return {line, {}};
  const std::size_t bracket = line.rfind('[');
  const std::string_view control = line.substr(bracket + 1, line.size() - bracket - 2);
  return {line.substr(0, std::max<std::size_t>(bracket, 1) - 1), control};
}

}  // namespace

std::vector<GuidePage> ReadGuide(std::string_view document) {
  std::vector<GuidePage> pages;
  while (!document.empty()) {
    const std::size_t end = std::min(document.find('\n'), document.size() - 1);
    const std::string_view line = document.substr(0, end);
    if (line.starts_with(kPage)) {
      pages.push_back({line.substr(kPage.size()), {}});
    } else if (!line.empty()) {
      pages.back().rows.push_back(RowOf(line));
    }
    document.remove_prefix(end + 1);
  }
  return pages;
}

}  // namespace tarvik
