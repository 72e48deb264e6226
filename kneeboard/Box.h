// A box of a page: a heading, and rows of signs, words and keys below it. Its rows are as high as their words
// need, and what needs too much goes to a note.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "kneeboard/Signs.h"
#include "kneeboard/Typesetter.h"

namespace tarvik::kneeboard {

/// What stands before the words of a row: a sign or a few letters. Those of the rows of a box stand below
/// each other.
struct Lead {
  Sign sign = Sign::None;
  std::string text = {};
  bool bold = false;
  Colour colour = {};
  std::optional<Colour> textColour = {};  ///< where it is not that of the sign
};

struct Row {
  std::vector<Lead> leads = {};
  std::string words = {};
  std::string keys = {};
  Colour colour = {};
  bool beginsGroup = false;  ///< a thin line goes above it
  std::optional<model::Mention> source = {};
  std::string manner = {};  ///< the letters among the keys that the legend explains
};

/// A stretch of a scale, in percent.
struct Stretch {
  double from = 0;
  double to = 0;
  bool isAfterburner = false;
};

struct BoxContent {
  std::string name = {};
  std::string place = {};
  std::string label = {};  ///< of the drawing
  bool isFaint = false;    ///< for a control that does nothing
  std::vector<Stretch> bar = {};
  std::vector<Row> rows = {};
};

/// What is told at the foot of a page. The first has the number 1.
using Notes = std::vector<std::string>;

/// A box whose words have their places, in parts that stay whole.
struct SetBox {
  Sheet head;
  std::vector<Sheet> rows;
  std::vector<bool> breaks;  ///< for each row, whether a column may begin with it
  double padding = 0;
  double size = 0;  ///< of its type
  std::string label;
  std::size_t strained = 0;  ///< rows whose words had to shrink or to be broken

  [[nodiscard]] double Height() const;
};

/// Sets boxes at a size of type. Without notes rows become as high as they need.
class BoxSetter {
 public:
  BoxSetter(Typesetter& setter, double size, Notes* notes) : setter_(setter), size_(size), notes_(notes) {}

  [[nodiscard]] SetBox Set(const BoxContent& content, double width) const;

 private:
  /// Words and keys, broken into lines.
  struct Pair {
    std::vector<std::string> words;
    std::vector<std::string> keys;
    Style wordStyle;
    Style keyStyle;
    bool areBeside = false;   ///< the keys begin in the last line of the words
    bool isStrained = false;  ///< it takes more than one line, or shrunk
  };

  [[nodiscard]] double Padding() const { return size_ * 0.5 * kPoint; }
  [[nodiscard]] double Gap() const { return size_ * 0.6 * kPoint; }
  [[nodiscard]] Pair Broken(const std::string& words, const std::string& keys, double width, Style wordStyle,
                            Style keyStyle) const;
  /// In one line at these sizes.
  [[nodiscard]] bool GoBeside(const Pair& pair, const std::string& words, const std::string& keys,
                              double width) const;
  void PutLine(Sheet& onto, const std::string& text, Spot at, const Style& style) const;
  /// Lines from `first` up to `last`, those of the words before those of the keys; says how high they are.
  double PutPair(Sheet& onto, const Pair& pair, Area where, std::size_t first, std::size_t last) const;
  [[nodiscard]] Sheet HeadOf(const BoxContent& content, double width) const;
  void PutBar(Sheet& onto, const std::vector<Stretch>& bar) const;
  [[nodiscard]] std::vector<double> LeadWidths(const std::vector<Row>& rows) const;
  void PutLeads(Sheet& onto, const Row& row, const std::vector<double>& widths, double y) const;
  void PutRow(SetBox& box, const Row& row, const BoxContent& content,
              const std::vector<double>& widths) const;
  [[nodiscard]] std::string Noted(const Row& row, const BoxContent& content) const;

  Typesetter& setter_;
  double size_;
  Notes* notes_;
};

/// The box with its rows from `first` up to `last`, in a frame.
[[nodiscard]] Sheet Assembled(const SetBox& box, std::size_t first, std::size_t last);

}  // namespace tarvik::kneeboard
