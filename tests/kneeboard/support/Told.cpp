#include "support/Told.h"

#include <cmath>
#include <sstream>

namespace tarvik::kneeboard {
namespace {

long Tenths(double millimetres) { return std::lround(millimetres * 10); }

std::ostream& operator<<(std::ostream& out, Spot spot) {
  return out << Tenths(spot.x) << ',' << Tenths(spot.y);
}

std::ostream& operator<<(std::ostream& out, const Area& area) {
  return out << Spot{area.x, area.y} << ' ' << Tenths(area.width) << 'x' << Tenths(area.height);
}

}  // namespace

std::string Told(const Sheet& sheet) {
  std::ostringstream out;
  out << "sheet " << Tenths(sheet.width) << 'x' << Tenths(sheet.height) << '\n';
  for (const Drawing& each : sheet.drawings) {
    out << "drawing " << each.area << ' ' << each.name;
    for (const std::string& label : each.hidden) out << " -" << label;
    out << '\n';
  }
  for (const Frame& each : sheet.frames) {
    if (each.radius > 0 && !each.fill) out << "box " << each.area << '\n';
  }
  for (const Line& each : sheet.lines) {
    if (each.kind != LineKind::Leader) continue;
    out << "leader";
    for (const Spot& corner : each.corners) out << ' ' << corner;
    out << '\n';
  }
  for (const Words& each : sheet.words) {
    out << "words " << Spot{each.area.x, each.area.y} << ' ' << Tenths(each.size)
        << (each.bold ? " bold " : " ") << each.text << '\n';
  }
  return out.str();
}

}  // namespace tarvik::kneeboard
