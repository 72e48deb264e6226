#include "kneeboard/Page.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "kneeboard/Layout.h"

namespace tarvik::kneeboard {
namespace {

constexpr double kRuleWidth = 0.35;
/// The sides of a page for which sizes of type are told.
constexpr double kUsualPage = 210.0 * 297;

std::string Joined(const std::vector<std::string>& parts) {
  std::string all;
  for (const std::string& part : parts) {
    if (part.empty()) continue;
    all.append(all.empty() ? "" : " · ").append(part);
  }
  return all;
}

std::string ProblemsIn(const Contents& contents) {
  const std::string count = std::to_string(contents.problems);
  const char* const what = contents.problems == 1 ? " problem in the files" : " problems in the files";
  return Joined({contents.problems == 0 ? std::string() : count + what,
                 contents.lacksMacros ? "No keys: there are no macros" : ""});
}

}  // namespace

PageMaker::PageMaker(const Contents& contents, Spot size, Typesetter& setter)
    : title_(contents.title),
      problems_(ProblemsIn(contents)),
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
  PutWords(page.sheet, setter_, problems_, {margin_, last}, alarm);
  const Sheet signs = LegendOf(legend);
  const double top = last - signs.height;
  page.legend = legend;
  page.legendAt = {margin_, top};
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

void PageMaker::PutFeet(std::vector<Page>& pages) const {
  const Style style = {Sized(6.5), false, {Ink::Dim}};
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const std::string number = std::to_string(i + 1) + " / " + std::to_string(pages.size());
    const Spot right = pages[i].number;
    Legend told;
    std::ranges::copy_if(pages[i].legend, std::back_inserter(told),
                         [&](const LegendItem& item) { return (pages[i].sheet.marks & item.mark) != 0; });
    Place(pages[i].sheet, LegendOf(told), pages[i].legendAt);
    PutWords(pages[i].sheet, setter_, number, {right.x - setter_.Width(number, style), right.y}, style);
  }
}

}  // namespace tarvik::kneeboard
