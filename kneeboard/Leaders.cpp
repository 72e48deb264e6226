#include <cstdlib>

#include "kneeboard/Layout.h"

namespace tarvik::kneeboard {
namespace {

constexpr std::string_view kEnd = "-leader\"";

/// What stands in quotes behind the name of an attribute, from a place on; empty where it is not there.
std::string ValueOf(std::string_view svg, std::string_view attribute) {
  const std::size_t at = svg.substr(0, svg.find('>')).find(attribute);
  if (at == std::string_view::npos) return {};
  svg.remove_prefix(at + attribute.size());
  return std::string(svg.substr(0, svg.find('"')));
}

/// The corners of a path that goes by M, H and L, all of them from the drawing's corner.
std::vector<Spot> CornersOf(const std::string& path) {
  std::vector<Spot> corners;
  const char* at = path.c_str();
  while (*at != '\0') {
    const char step = *at++;
    if (step != 'M' && step != 'H' && step != 'L') continue;
    char* end = nullptr;
    const double x = std::strtod(at, &end);
    at = end;
    double y = corners.empty() ? 0 : corners.back().y;
    if (step != 'H' && *at == ',') {
      y = std::strtod(at + 1, &end);
      at = end;
    }
    corners.push_back({x, y});
  }
  return corners;
}

}  // namespace

std::vector<DrawnLeader> LeadersIn(std::string_view svg) {
  std::vector<DrawnLeader> leaders;
  for (std::size_t at = 0; (at = svg.find(kEnd, at)) != std::string_view::npos; at += kEnd.size()) {
    const std::size_t from = svg.rfind('"', at) + 1;
    std::vector<Spot> corners = CornersOf(ValueOf(svg.substr(at + kEnd.size()), " d=\""));
    if (corners.size() > 1) leaders.push_back({std::string(svg.substr(from, at - from)), std::move(corners)});
  }
  return leaders;
}

}  // namespace tarvik::kneeboard
