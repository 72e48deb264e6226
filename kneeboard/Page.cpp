#include "kneeboard/Page.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "kneeboard/Layout.h"

namespace tarvik::kneeboard {
namespace {

constexpr double kRuleWidth = 0.35;
/// The sides of a page for which sizes of type are told.
constexpr double kUsualPage = 210.0 * 297;
/// Columns are at least as wide as this many times the size of type.
constexpr double kColumn = 9.2;

std::string Joined(const std::vector<std::string>& parts) {
  std::string all;
  for (const std::string& part : parts) {
    if (part.empty()) continue;
    all.append(all.empty() ? "" : "  ·  ").append(part);
  }
  return all;
}

std::string ProblemsIn(std::size_t problems) {
  if (problems == 0) return {};
  return std::to_string(problems) + (problems == 1 ? " problem" : " problems") + " in the files";
}

}  // namespace

PageMaker::PageMaker(const Contents& contents, Spot size, Typesetter& setter)
    : title_(contents.title),
      problems_(contents.problems),
      size_(size),
      margin_(MarginOf(size)),
      factor_(std::min(1.0, std::sqrt(size.x * size.y / kUsualPage))),
      setter_(setter) {}

double PageMaker::Sized(double points) const { return std::max(kSmallest, points * factor_); }

double PageMaker::PutFitted(Sheet& onto, const std::string& text, Area where, Style style, Side side) const {
  const Style shrunk = setter_.Shrunk(text, where.width, style, std::max(kSmallest, style.size * 0.6));
  double y = where.y;
  for (const std::string& line : setter_.Wrapped(text, where.width, shrunk)) {
    const double x = side == Side::Left ? where.x : where.Right() - setter_.Width(line, shrunk);
    PutWords(onto, setter_, line, {x, y}, shrunk);
    y += LineHeight(shrunk.size);
  }
  return y;
}

void PageMaker::PutRule(Sheet& onto, double y, Colour colour) const {
  onto.lines.push_back({{{margin_, y}, {size_.x - margin_, y}}, kRuleWidth * factor_, colour});
}

double PageMaker::PutHead(Sheet& onto, const PageHead& head) const {
  const double wide = size_.x - 2 * margin_;
  const Area left = {margin_, margin_, wide * 0.48, 0};
  const Area right = {margin_ + wide * 0.52, margin_, wide * 0.48, 0};
  const Style second = {Sized(8), false, {Ink::Dim}};
  const double lineLeft = PutFitted(onto, head.name, left, {Sized(15), true, {}}, Side::Left);
  const double offset = (Sized(15) - Sized(11)) * kBaseline * kPoint;
  const double lineRight = PutFitted(onto, title_.title, {right.x, right.y + offset, right.width, 0},
                                     {Sized(11), true, {}}, Side::Right);
  const std::string about = Joined({title_.game, title_.author, title_.date});
  const double middle = std::max(lineLeft, lineRight);
  double end = PutFitted(onto, head.second, {left.x, middle, left.width, 0}, second, Side::Left);
  end = std::max(end, PutFitted(onto, about, {right.x, middle, right.width, 0}, second, Side::Right));
  end += 0.25 * second.size * kPoint;
  PutRule(onto, end, {Ink::Accent});
  return end + 0.7 * second.size * kPoint;
}

Sheet PageMaker::LegendOf(const Legend& legend) const {
  const Style style = {Sized(6.5), false, {Ink::Dim}};
  const double wide = size_.x - 2 * margin_;
  Sheet sheet;
  double x = 0;
  double y = 0;
  for (const LegendItem& item : legend) {
    const double before = item.sign == Sign::None ? 0 : SignWidth(style.size);
    const double width = before + setter_.Width(item.text, style);
    if (x > 0 && x + width > wide) {
      x = 0;
      y += LineHeight(style.size);
    }
    PutSign(sheet, item.sign, {x, y}, style.size, {});
    PutWords(sheet, setter_, item.text, {x + before, y}, style);
    x += width + style.size * 1.3 * kPoint;
  }
  sheet.width = wide;
  sheet.height = legend.empty() ? 0 : y + LineHeight(style.size);
  return sheet;
}

double PageMaker::PutFoot(Page& page, const Legend& legend) const {
  const Style style = {Sized(6.5), false, {Ink::Dim}};
  const double last = size_.y - margin_ - LineHeight(style.size);
  page.number = {size_.x - margin_, last};
  Style alarm = style;
  alarm.bold = true;
  alarm.colour = {Ink::Alarm};
  PutWords(page.sheet, setter_, ProblemsIn(problems_), {margin_, last}, alarm);
  const Sheet signs = LegendOf(legend);
  const double top = last - signs.height;
  Place(page.sheet, signs, {margin_, top});
  const double rule = top - 0.25 * style.size * kPoint;
  PutRule(page.sheet, rule, {Ink::Rule});
  return rule - 0.7 * style.size * kPoint;
}

Page PageMaker::Begin(const PageHead& head, const Legend& legend) const {
  Page page;
  page.sheet.width = size_.x;
  page.sheet.height = size_.y;
  const double top = PutHead(page.sheet, head);
  page.body = {margin_, top, size_.x - 2 * margin_, PutFoot(page, legend) - top};
  return page;
}

void PageMaker::PutNumbers(std::vector<Page>& pages) const {
  const Style style = {Sized(6.5), false, {Ink::Dim}};
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const std::string number = std::to_string(i + 1) + " / " + std::to_string(pages.size());
    const Spot right = pages[i].number;
    PutWords(pages[i].sheet, setter_, number, {right.x - setter_.Width(number, style), right.y}, style);
  }
}

Flow::Flow(const PageMaker& maker, PageHead head, Legend legend, const Sheet& first)
    : maker_(maker), head_(std::move(head)), legend_(std::move(legend)), type_(maker.Sized(8)) {
  BeginPage();
  if (first.height <= 0) return;
  Place(page().sheet, first, {page().body.x, page().body.y});
  top_ = y_ = page().body.y + first.height + SpaceBetween(type_);
}

void Flow::BeginPage() {
  pages_.push_back(maker_.Begin(head_, legend_));
  columns_ = std::max(1, static_cast<int>(page().body.width / (type_ * kColumn)));
  const double between = SpaceBetween(type_);
  width_ = (page().body.width - (columns_ - 1) * between) / columns_;
  column_ = 0;
  top_ = y_ = page().body.y;
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
  return last - first;
}

void Flow::Put(const SetBox& box, std::size_t first, std::size_t last) {
  const Sheet sheet = Assembled(box, first, last);
  Place(page().sheet, sheet, {page().body.x + column_ * (width_ + SpaceBetween(type_)), y_});
  y_ += sheet.height + SpaceBetween(type_);
}

void Flow::Add(const BoxContent& content) {
  const SetBox box = BoxSetter(maker_.setter(), type_, nullptr).Set(content, width_);
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
    if (last < box.rows.size()) NextColumn();
    first = last;
  }
}

}  // namespace tarvik::kneeboard
