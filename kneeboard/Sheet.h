// A sheet of paper as a list of what is drawn on it, in millimetres from its upper left corner. Whoever
// paints it goes through the lists in their order: drawings, frames, shapes, lines, words.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "language/Names.h"

namespace tarvik::kneeboard {

struct Spot {
  double x = 0;
  double y = 0;

  friend bool operator==(const Spot&, const Spot&) = default;
};

struct Area {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  [[nodiscard]] double Right() const { return x + width; }
  [[nodiscard]] double Bottom() const { return y + height; }
  [[nodiscard]] Spot Middle() const { return {x + width / 2, y + height / 2}; }

  friend bool operator==(const Area&, const Area&) = default;
};

/// What a colour is for. Whoever paints has a palette of them.
enum class Ink : std::uint8_t {
  Text,
  Dim,     ///< what stands back: keys, places, notes
  Accent,  ///< names of controls, leaders
  Alarm,   ///< problems, the afterburner
  Rule,    ///< thin lines and edges
  Paper,
  Tint,     ///< the ground of a heading
  Heading,  ///< one of a row of colours, by its index
};

struct Colour {
  Ink ink = Ink::Text;
  std::uint8_t heading = 0;

  friend bool operator==(const Colour&, const Colour&) = default;
};

/// How many colours there are for headings; more headings begin again with the first.
inline constexpr std::size_t kHeadingColours = 10;

/// Points to millimetres.
inline constexpr double kPoint = 25.4 / 72;
/// The height of a line of words, and how far below its top they stand, for a size of 1.
inline constexpr double kLineHeight = 1.2;
inline constexpr double kBaseline = 0.94;

/// How high a line of words of so many points is, in millimetres.
[[nodiscard]] constexpr double LineHeight(double size) { return size * kLineHeight * kPoint; }

/// A line of words. They begin at the left of their area and are as wide as it.
struct Words {
  Area area = {};
  std::string text = {};  ///< UTF-8
  double size = 0;        ///< in points
  bool bold = false;
  Colour colour = {};

  friend bool operator==(const Words&, const Words&) = default;
};

struct Frame {
  Area area = {};
  double radius = 0;
  double width = 0;  ///< of its edge; 0 for none
  Colour edge = {};
  std::optional<Colour> fill = {};

  friend bool operator==(const Frame&, const Frame&) = default;
};

/// A filled polygon.
struct Shape {
  std::vector<Spot> corners = {};
  Colour colour = {};

  friend bool operator==(const Shape&, const Shape&) = default;
};

enum class LineKind : std::uint8_t { Plain, Leader };

struct Line {
  std::vector<Spot> corners = {};
  double width = 0;
  Colour colour = {};
  LineKind kind = LineKind::Plain;  ///< a leader has a dot at its last corner

  friend bool operator==(const Line&, const Line&) = default;
};

/// A part of a drawing of a device.
struct Drawing {
  std::string name = {};  ///< of its file, without its ending
  Area area = {};
  Area part = {};                        ///< in the units of the drawing; as high and wide as the area is
  std::vector<std::string> hidden = {};  ///< labels that go with all that belongs to them

  friend bool operator==(const Drawing&, const Drawing&) = default;
};

/// What a place on the sheet stands for, for whoever lights it or goes there.
struct Target {
  Area area = {};
  std::string label = {};  ///< of the drawing; empty for none
  std::optional<model::Mention> source = {};

  friend bool operator==(const Target&, const Target&) = default;
};

/// A sheet, or a part of one.
struct Sheet {
  double width = 0;
  double height = 0;
  std::vector<Drawing> drawings = {};
  std::vector<Frame> frames = {};
  std::vector<Shape> shapes = {};
  std::vector<Line> lines = {};
  std::vector<Words> words = {};
  std::vector<Target> targets = {};
  std::uint64_t marks = 0;  ///< which signs and letters stand on it that a legend may explain

  friend bool operator==(const Sheet&, const Sheet&) = default;
};

/// Puts all of a part on a sheet, with its upper left corner there.
void Place(Sheet& onto, const Sheet& part, Spot at);

}  // namespace tarvik::kneeboard
