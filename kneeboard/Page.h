// A page with its head and foot, and boxes that flow through the columns of as many pages as they need.
#pragma once

#include <string>
#include <vector>

#include "kneeboard/Box.h"
#include "kneeboard/Contents.h"

namespace tarvik::kneeboard {

/// A line of the legend at the foot: a sign and what it means.
struct LegendItem {
  Sign sign = Sign::None;
  std::string text;
  std::uint64_t mark = 0;  ///< it is told on the pages that have this one
};
using Legend = std::vector<LegendItem>;

/// What stands over a page, beside what comes from the title of the files.
struct PageHead {
  std::string name;    ///< "F-22 Pro"
  std::string second;  ///< "S3 held in"; empty for none
};

struct Page {
  Sheet sheet;
  Area body;    ///< what is free between head and foot
  Spot number;  ///< the right end of the page's number
  Legend legend = {};
  Spot legendAt = {};  ///< there is room for all of it
};

class PageMaker {
 public:
  /// Of pages of that size, in millimetres.
  PageMaker(const Contents& contents, Spot size, Typesetter& setter);

  [[nodiscard]] Page Begin(const PageHead& head, const Legend& legend) const;
  /// Writes what was not known as a page began at the foot of each: "2 / 5" and the like, and of the legend
  /// what stands on that page.
  void PutFeet(std::vector<Page>& pages) const;

  /// A size of type in points, less on small pages, and never less than what can be read.
  [[nodiscard]] double Sized(double points) const;
  [[nodiscard]] Typesetter& setter() const { return setter_; }

 private:
  enum class Side { Left, Right };
  /// In as many lines as it needs; says where the next one begins.
  double PutFitted(Sheet& onto, const std::string& text, Area where, Style style, Side side) const;
  void PutRule(Sheet& onto, double y, Colour colour) const;
  double PutHead(Sheet& onto, const PageHead& head) const;
  [[nodiscard]] Sheet LegendOf(const Legend& legend) const;
  /// Says where it begins.
  double PutFoot(Page& page, const Legend& legend) const;

  const TitleBlock& title_;
  std::string problems_;
  Spot size_;
  double margin_;
  double factor_;
  Typesetter& setter_;
};

/// Boxes below each other, column by column and page by page. A box that is too long goes on in the next
/// column. `first` stands above the columns of the first page. What goes on one page has columns of about the
/// same height.
[[nodiscard]] std::vector<Page> FlowPages(const PageMaker& maker, const PageHead& head, const Legend& legend,
                                          const std::vector<BoxContent>& boxes, const Sheet& first = {});

/// Between boxes, columns and the drawing, for that size of type.
[[nodiscard]] constexpr double SpaceBetween(double type) { return type * 0.7 * kPoint; }

}  // namespace tarvik::kneeboard
