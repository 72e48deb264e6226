#include "support/Geometry.h"

#include <algorithm>
#include <sstream>

#include "kneeboard/Typesetter.h"

namespace tarvik::kneeboard {
namespace {

/// What is nearer together touches.
constexpr double kTouch = 0.01;

bool Overlap(const Area& one, const Area& other) {
  return one.x < other.Right() - kTouch && other.x < one.Right() - kTouch &&
         one.y < other.Bottom() - kTouch && other.y < one.Bottom() - kTouch;
}

bool Inside(const Area& inner, const Area& outer) {
  return inner.x >= outer.x - kTouch && inner.y >= outer.y - kTouch &&
         inner.Right() <= outer.Right() + kTouch && inner.Bottom() <= outer.Bottom() + kTouch;
}

double Turn(Spot a, Spot b, Spot c) { return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x); }

bool Cross(Spot a, Spot b, Spot c, Spot d) {
  return Turn(a, b, c) * Turn(a, b, d) < 0 && Turn(c, d, a) * Turn(c, d, b) < 0;
}

bool Cross(const Line& one, const Line& other) {
  for (std::size_t i = 1; i < one.corners.size(); ++i) {
    for (std::size_t j = 1; j < other.corners.size(); ++j) {
      if (Cross(one.corners[i - 1], one.corners[i], other.corners[j - 1], other.corners[j])) return true;
    }
  }
  return false;
}

/// Whether the line comes into the area, not only to its edge.
bool Enters(const Line& line, Area area) {
  area = {area.x + 2 * kTouch, area.y + 2 * kTouch, area.width - 4 * kTouch, area.height - 4 * kTouch};
  if (area.width <= 0 || area.height <= 0) return false;
  const Line outline = {{{area.x, area.y},
                         {area.Right(), area.y},
                         {area.Right(), area.Bottom()},
                         {area.x, area.Bottom()},
                         {area.x, area.y}}};
  const auto isIn = [&](Spot spot) { return Inside({spot.x, spot.y, 0, 0}, area); };
  return Cross(line, outline) || std::ranges::any_of(line.corners, isIn);
}

Area Around(const std::vector<Spot>& corners) {
  const auto [left, right] = std::ranges::minmax(corners, {}, &Spot::x);
  const auto [top, bottom] = std::ranges::minmax(corners, {}, &Spot::y);
  return {left.x, top.y, right.x - left.x, bottom.y - top.y};
}

std::string Told(const Area& area) {
  std::ostringstream told;
  told << area.x << ' ' << area.y << ' ' << area.width << ' ' << area.height;
  return told.str();
}

class Inspector {
 public:
  Inspector(const Sheet& sheet, double margin)
      : sheet_(sheet), paper_{margin, margin, sheet.width - 2 * margin, sheet.height - 2 * margin} {}

  std::string Faults() {
    LookAtMargins();
    LookAtWords();
    LookAtFrames();
    LookAtLeaders();
    return faults_;
  }

 private:
  void Say(const std::string& what, const std::string& about) {
    faults_.append(what).append(": ").append(about).append("\n");
  }
  void MustBeIn(const Area& area, const std::string& what) {
    if (!Inside(area, paper_)) Say("outside the margins", what);
  }

  void LookAtMargins() {
    for (const Words& each : sheet_.words) MustBeIn(each.area, each.text);
    for (const Frame& each : sheet_.frames) MustBeIn(each.area, "a frame");
    for (const Shape& each : sheet_.shapes) MustBeIn(Around(each.corners), "a sign");
    for (const Line& each : sheet_.lines) MustBeIn(Around(each.corners), "a line");
    for (const Drawing& each : sheet_.drawings) MustBeIn(each.area, each.name);
  }

  void LookAtWords() {
    for (std::size_t i = 0; i < sheet_.words.size(); ++i) {
      const Words& one = sheet_.words[i];
      if (one.size < kSmallest) Say("too small", one.text);
      for (std::size_t j = i + 1; j < sheet_.words.size(); ++j) {
        if (Overlap(one.area, sheet_.words[j].area))
          Say("words over words", one.text + " | " + sheet_.words[j].text);
      }
      for (const Frame& frame : sheet_.frames) {
        if (Overlap(one.area, frame.area) && !Inside(one.area, frame.area))
          Say("words over an edge", one.text);
      }
      for (const Shape& shape : sheet_.shapes) {
        if (Overlap(one.area, Around(shape.corners))) Say("words over a sign", one.text);
      }
      for (const Drawing& drawing : sheet_.drawings) {
        if (Overlap(one.area, drawing.area)) Say("words over a drawing", one.text);
      }
    }
  }

  void LookAtFrames() {
    for (std::size_t i = 0; i < sheet_.frames.size(); ++i) {
      const Area& one = sheet_.frames[i].area;
      for (std::size_t j = i + 1; j < sheet_.frames.size(); ++j) {
        const Area& other = sheet_.frames[j].area;
        if (Overlap(one, other) && !Inside(one, other) && !Inside(other, one))
          Say("frames overlap", Told(one).append(" | ").append(Told(other)));
      }
      for (const Drawing& drawing : sheet_.drawings) {
        if (Overlap(one, drawing.area)) Say("a frame over a drawing", drawing.name);
      }
    }
  }

  void LookAtLeaders() {
    for (const Line& one : sheet_.lines) {
      if (one.kind != LineKind::Leader) continue;
      for (const Line& other : sheet_.lines) {
        if (&one < &other && other.kind == LineKind::Leader && Cross(one, other)) Say("leaders cross", "");
      }
      for (const Words& words : sheet_.words) {
        if (Enters(one, words.area)) Say("a leader over words", words.text);
      }
      for (const Frame& frame : sheet_.frames) {
        if (Enters(one, frame.area)) Say("a leader over a box", "");
      }
    }
  }

  const Sheet& sheet_;
  Area paper_;
  std::string faults_;
};

}  // namespace

std::string Faults(const Sheet& sheet, double margin) { return Inspector(sheet, margin).Faults(); }

}  // namespace tarvik::kneeboard
