// Boxes that flow through the columns of as many pages as they need.
#include <algorithm>

#include "kneeboard/Page.h"

namespace tarvik::kneeboard {
namespace {

constexpr double kFlowType = 8;
/// Columns are at least as wide as this many times the size of type.
constexpr double kColumn = 9.2;
/// By how much columns become higher until all boxes go on one page.
constexpr double kStep = 0.08;
/// To level columns one box of so many may go on in another column.
constexpr int kBoxesToSplit = 3;

/// Puts boxes into the columns of pages.
class Flow {
 public:
  /// Columns are that share of their full height.
  Flow(const PageMaker& maker, const PageHead& head, const Legend& legend, const Sheet& first, double share);

  void Add(const SetBox& box);
  [[nodiscard]] double ColumnWidth() const { return width_; }
  [[nodiscard]] std::vector<Page> Finish() { return std::move(pages_); }
  /// How often a box went on in another column.
  [[nodiscard]] int Splits() const { return splits_; }

 private:
  void BeginPage();
  void NextColumn();
  [[nodiscard]] double Left() const { return bottom_ - y_; }
  [[nodiscard]] Page& page() { return pages_.back(); }
  /// How many rows from `first` on go into what is left of the column.
  [[nodiscard]] std::size_t RowsThatFit(const SetBox& box, std::size_t first) const;
  void Put(const SetBox& box, std::size_t first, std::size_t last);

  const PageMaker& maker_;
  const PageHead& head_;
  const Legend& legend_;
  double type_;
  std::vector<Page> pages_;
  double width_ = 0;  ///< of a column
  double top_ = 0;
  double bottom_ = 0;
  double y_ = 0;
  int column_ = 0;
  int columns_ = 1;
  int splits_ = 0;
};

Flow::Flow(const PageMaker& maker, const PageHead& head, const Legend& legend, const Sheet& first,
           double share)
    : maker_(maker), head_(head), legend_(legend), type_(maker.Sized(kFlowType)) {
  BeginPage();
  if (first.height > 0) {
    Place(page().sheet, first, {page().body.x, page().body.y});
    top_ = y_ = page().body.y + first.height + SpaceBetween(type_);
  }
  bottom_ = top_ + (bottom_ - top_) * share;
}

void Flow::BeginPage() {
  pages_.push_back(maker_.Begin(head_, legend_));
  columns_ = std::max(1, static_cast<int>(page().body.width / (type_ * kColumn)));
  const double between = SpaceBetween(type_);
  width_ = (page().body.width - (columns_ - 1) * between) / columns_;
  column_ = 0;
  top_ = y_ = page().body.y;
  bottom_ = page().body.Bottom();
}

void Flow::NextColumn() {
  if (++column_ == columns_) return BeginPage();
  y_ = top_;
}

std::size_t Flow::RowsThatFit(const SetBox& box, std::size_t first) const {
  double height = box.head.height + box.padding;
  std::size_t last = first;
  while (last < box.rows.size() && height + box.rows[last].height <= Left())
    height += box.rows[last++].height;
  // A group stays together if it is not longer than the column.
  std::size_t whole = last;
  while (whole > first && whole < box.rows.size() && !box.breaks[whole]) --whole;
  return (whole > first ? whole : last) - first;
}

void Flow::Put(const SetBox& box, std::size_t first, std::size_t last) {
  const Sheet sheet = Assembled(box, first, last);
  Place(page().sheet, sheet, {page().body.x + column_ * (width_ + SpaceBetween(type_)), y_});
  y_ += sheet.height + SpaceBetween(type_);
}

void Flow::Add(const SetBox& box) {
  if (box.rows.empty()) {
    if (box.Height() > Left()) NextColumn();
    return Put(box, 0, 0);
  }
  constexpr std::size_t kFewest = 2;
  std::size_t first = 0;
  int tries = 0;
  while (first < box.rows.size()) {
    const std::size_t fit = RowsThatFit(box, first);
    const bool isEnough = fit >= std::min(kFewest, box.rows.size() - first);
    if (!isEnough && y_ > top_) {
      NextColumn();
      continue;
    }
    if (fit == 0 && tries++ == 0) {
      BeginPage();  // below what stands above the columns of the first page there may be too little room
      continue;
    }
    const std::size_t last = first + std::max<std::size_t>(1, fit);
    Put(box, first, last);
    tries = 0;
    if (last < box.rows.size()) {
      ++splits_;
      NextColumn();
    }
    first = last;
  }
}

}  // namespace

std::vector<Page> FlowPages(const PageMaker& maker, const PageHead& head, const Legend& legend,
                            const std::vector<BoxContent>& boxes, const Sheet& first) {
  const double width = Flow(maker, head, legend, first, 1).ColumnWidth();
  const BoxSetter setter(maker.setter(), maker.Sized(kFlowType), nullptr);
  std::vector<SetBox> set;
  set.reserve(boxes.size());
  for (const BoxContent& box : boxes) set.push_back(setter.Set(box, width));
  const auto flowOf = [&](double share) {
    Flow flow(maker, head, legend, first, share);
    for (const SetBox& box : set) flow.Add(box);
    return flow;
  };
  Flow full = flowOf(1);
  const int splits = full.Splits();
  std::vector<Page> pages = full.Finish();
  for (double share = kStep; pages.size() == 1 && share < 1; share += kStep) {
    Flow lower = flowOf(share);
    const bool isWhole = lower.Splits() <= std::max(splits, static_cast<int>(set.size()) / kBoxesToSplit);
    std::vector<Page> lowerPages = lower.Finish();
    if (isWhole && lowerPages.size() == 1) return lowerPages;
  }
  return pages;
}

}  // namespace tarvik::kneeboard
