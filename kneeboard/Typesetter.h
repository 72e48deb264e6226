// How wide words are, and how they are broken into lines.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "kneeboard/Sheet.h"

namespace tarvik::kneeboard {

/// How wide words come out, by whoever paints them.
class TextMeasure {
 public:
  TextMeasure() = default;
  TextMeasure(const TextMeasure&) = delete;
  TextMeasure& operator=(const TextMeasure&) = delete;
  virtual ~TextMeasure() = default;

  /// In millimetres at a size of one point. Widths grow with the size.
  [[nodiscard]] virtual double Width(std::string_view text, bool bold) const = 0;
};

/// No words are smaller than this.
inline constexpr double kSmallest = 5.5;

struct Style {
  double size = kSmallest;
  bool bold = false;
  Colour colour = {};
};

/// Knows the width of each piece of text that it was asked for before.
class Typesetter {
 public:
  explicit Typesetter(const TextMeasure& measure) : measure_(measure) {}

  [[nodiscard]] double Width(const std::string& text, const Style& style);

  /// The words in lines that are no wider: broken at blanks, and within a word that is wider by itself.
  [[nodiscard]] std::vector<std::string> Wrapped(const std::string& text, double width, const Style& style);

  /// The style, or one with a smaller size in which the words are no wider; never below `least`.
  [[nodiscard]] Style Shrunk(const std::string& text, double width, Style style, double least);

 private:
  /// How many bytes from the beginning are no wider, whole letters and at least one.
  [[nodiscard]] std::size_t Fitting(const std::string& text, double width, const Style& style);

  const TextMeasure& measure_;
  std::unordered_map<std::string, double> widths_[2];
};

/// Puts a line of words on a sheet with its upper left corner there, and says how wide it is.
double PutWords(Sheet& onto, Typesetter& setter, const std::string& text, Spot at, const Style& style);

}  // namespace tarvik::kneeboard
