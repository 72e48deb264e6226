#include "kneeboard/Box.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace tarvik::kneeboard {
namespace {

/// Words shrink to this share of their size before they are wrapped.
constexpr double kShrink = 0.87;
/// A row with more lines goes to a note.
constexpr std::size_t kMostLines = 3;
/// Where rows have no notes, those with more lines go on in a row of their own, which another page may begin
/// with.
constexpr std::size_t kMostTogether = 6;
/// Above a row that begins a group, in parts of the size.
constexpr double kAboveGroup = 0.28;
/// Lines and the rounding of corners, for a size of type of 1.
constexpr double kThin = 0.014;
constexpr double kEdge = 0.026;
constexpr double kRound = 0.09;

Style Smaller(Style style) {
  style.size = std::max(kSmallest, style.size * kShrink);
  return style;
}

/// Letters before the words that leave less than half of the width to them are put among the words.
std::vector<Row> WithShortLeads(const BoxContent& content, const std::vector<double>& widths, double width) {
  std::vector<Row> rows = content.rows;
  if (std::accumulate(widths.begin(), widths.end(), 0.0) <= width / 2) return rows;
  for (Row& row : rows) {
    std::string words;
    for (Lead& lead : row.leads) {
      if (lead.text.empty()) continue;
      words.append(std::exchange(lead.text, {})).append(": ");
    }
    row.words.insert(0, words);
  }
  return rows;
}

}  // namespace

double SetBox::Height() const {
  double height = head.height + (rows.empty() ? 0 : padding);
  for (const Sheet& row : rows) height += row.height;
  return height;
}

bool BoxSetter::GoBeside(const Pair& pair, const std::string& words, const std::string& keys,
                         double width) const {
  const double between = words.empty() || keys.empty() ? 0 : Gap();
  return setter_.Width(words, pair.wordStyle) + between + setter_.Width(keys, pair.keyStyle) <= width;
}

BoxSetter::Pair BoxSetter::Broken(const std::string& words, const std::string& keys, double width,
                                  Style wordStyle, Style keyStyle) const {
  Pair pair = {{}, {}, wordStyle, keyStyle};
  for (int i = 0; i < 2; ++i) {
    if (GoBeside(pair, words, keys, width)) {
      if (!words.empty()) pair.words = {words};
      if (!keys.empty()) pair.keys = {keys};
      pair.areBeside = true;
      pair.isStrained = i > 0;
      return pair;
    }
    if (i == 0) pair = {{}, {}, Smaller(wordStyle), Smaller(keyStyle)};
  }
  pair.words = setter_.Wrapped(words, width, pair.wordStyle);
  pair.keys = setter_.Wrapped(keys, width, pair.keyStyle);
  pair.isStrained = true;
  pair.areBeside = !pair.words.empty() && pair.keys.size() == 1 &&
                   GoBeside(pair, pair.words.back(), pair.keys.front(), width);
  return pair;
}

void BoxSetter::PutLine(Sheet& onto, const std::string& text, Spot at, const Style& style) const {
  // On the base line of words of the full size.
  at.y += kBaseline * (size_ - style.size) * kPoint;
  PutWords(onto, setter_, text, at, style);
}

double BoxSetter::PutPair(Sheet& onto, const Pair& pair, Area where, std::size_t first,
                          std::size_t last) const {
  const double high = LineHeight(size_);
  double y = where.y;
  for (std::size_t i = first; i < last; ++i) {
    const bool isKeys = i >= pair.words.size();
    const std::string& text = isKeys ? pair.keys[i - pair.words.size()] : pair.words[i];
    const Style& style = isKeys ? pair.keyStyle : pair.wordStyle;
    if (isKeys && pair.areBeside && i > first) y -= high;
    const double x = isKeys ? where.Right() - setter_.Width(text, style) : where.x;
    PutLine(onto, text, {x, y}, style);
    y += high;
  }
  return y - where.y;
}

Sheet BoxSetter::HeadOf(const BoxContent& content, double width) const {
  Sheet head;
  head.width = width;
  const Colour name = {content.isFaint ? Ink::Dim : Ink::Accent};
  const Area inside = {Padding(), Padding() / 3, width - 2 * Padding(), 0};
  const Pair pair = Broken(content.name, content.place, inside.width, {size_, !content.isFaint, name},
                           {std::max(kSmallest, size_ * 0.88), false, {Ink::Dim}});
  head.height = PutPair(head, pair, inside, 0, pair.words.size() + pair.keys.size()) + 2 * inside.y;
  Frame band = {{0, 0, width, head.height}, size_ * kRound};
  band.fill = Colour{content.isFaint ? Ink::Paper : Ink::Tint};
  head.frames.push_back(band);
  if (!content.bar.empty()) PutBar(head, content.bar);
  if (!content.rows.empty()) head.height += Padding() / 2;
  return head;
}

void BoxSetter::PutBar(Sheet& onto, const std::vector<Stretch>& bar) const {
  const Area whole = {Padding(), onto.height + Padding() * 0.8, onto.width - 2 * Padding(),
                      size_ * 0.45 * kPoint};
  bool isDark = false;
  for (const Stretch& each : bar) {
    const double from = std::clamp(each.from, 0.0, 100.0) / 100;
    const double to = std::clamp(each.to, 0.0, 100.0) / 100;
    Frame part = {
        {whole.x + from * whole.width, whole.y, std::max(0.0, to - from) * whole.width, whole.height}};
    part.width = size_ * kThin;
    part.edge = {Ink::Dim};
    part.fill = Colour{each.isAfterburner ? Ink::Alarm : isDark ? Ink::Rule : Ink::Paper};
    isDark = !isDark;
    onto.frames.push_back(part);
  }
  onto.height = whole.Bottom() + Padding() / 3;
}

std::vector<double> BoxSetter::LeadWidths(const std::vector<Row>& rows) const {
  std::vector<double> widths;
  for (const Row& row : rows) {
    widths.resize(std::max(widths.size(), row.leads.size()));
    for (std::size_t i = 0; i < row.leads.size(); ++i) {
      const Lead& lead = row.leads[i];
      double width = lead.sign == Sign::None ? 0 : SignWidth(size_);
      if (!lead.text.empty()) width += setter_.Width(lead.text, {size_, lead.bold}) + Gap();
      widths[i] = std::max(widths[i], width);
    }
  }
  return widths;
}

void BoxSetter::PutLeads(Sheet& onto, const Row& row, const std::vector<double>& widths, double y) const {
  double x = Padding();
  for (std::size_t i = 0; i < row.leads.size(); ++i) {
    const Lead& lead = row.leads[i];
    PutSign(onto, lead.sign, {x, y}, size_, lead.colour);
    const double behind = lead.sign == Sign::None ? 0 : SignWidth(size_);
    PutLine(onto, lead.text, {x + behind, y}, {size_, lead.bold, lead.textColour.value_or(lead.colour)});
    x += widths[i];
  }
}

std::string BoxSetter::Noted(const Row& row, const BoxContent& content) const {
  std::string note = content.name;
  for (const Lead& lead : row.leads) {
    if (!lead.text.empty()) note.append(note.empty() ? "" : " ").append(lead.text);
  }
  note.append(note.empty() ? "" : ": ").append(row.words);
  if (!row.keys.empty()) note.append(" (").append(row.keys).append(")");
  notes_->push_back(std::move(note));
  return "see note " + std::to_string(notes_->size());
}

void BoxSetter::PutRow(SetBox& box, const Row& row, const BoxContent& content,
                       const std::vector<double>& widths) const {
  const double leads = row.leads.empty() ? 0 : std::accumulate(widths.begin(), widths.end(), 0.0);
  const double before = Padding() + leads;
  const double above = row.beginsGroup && !box.rows.empty() ? size_ * kAboveGroup * kPoint : 0;
  const Area inside = {before, 0, box.head.width - Padding() - before, 0};
  const Style words = {size_, false, row.colour};
  const Style keys = {std::max(kSmallest, size_ * 0.86), false, {Ink::Dim}};
  Pair pair = Broken(row.words, row.keys, inside.width, words, keys);
  if (notes_ != nullptr && (pair.words.size() > kMostLines || pair.keys.size() > kMostLines))
    pair = Broken(Noted(row, content), {}, inside.width, {size_, false, {Ink::Dim}}, keys);
  if (pair.isStrained) ++box.strained;
  const std::size_t lines = std::max<std::size_t>(1, pair.words.size() + pair.keys.size());
  for (std::size_t first = 0; first < lines; first += kMostTogether) {
    const std::size_t last = std::min(first + kMostTogether, pair.words.size() + pair.keys.size());
    Sheet part;
    part.width = box.head.width;
    const double y = first == 0 ? above : 0;
    if (first == 0) PutLeads(part, row, widths, y);
    part.height =
        y + std::max(LineHeight(size_), PutPair(part, pair, {inside.x, y, inside.width, 0}, first, last));
    part.height += size_ * 0.08 * kPoint;
    if (y > 0) {
      const Spot from = {Padding(), y / 2};
      const Spot to = {part.width - Padding(), y / 2};
      part.lines.push_back({{from, to}, size_ * kThin, {Ink::Rule}});
    }
    for (const char letter : row.keys.empty() ? "" : row.manner) part.marks |= MarkOf(letter);
    part.targets.push_back({{0, 0, part.width, part.height}, content.label, row.source});
    box.rows.push_back(std::move(part));
    box.breaks.push_back(first == 0 && row.beginsGroup);
  }
}

SetBox BoxSetter::Set(const BoxContent& content, double width) const {
  SetBox box = {HeadOf(content, width), {}, {}, Padding() / 2, size_, content.label, 0};
  const double inside = width - 2 * Padding();
  BoxContent settled = content;
  settled.rows = WithShortLeads(content, LeadWidths(content.rows), inside);
  const std::vector<double> widths = LeadWidths(settled.rows);
  for (const Row& row : settled.rows) PutRow(box, row, settled, widths);
  const bool hasGroups = std::ranges::any_of(content.rows, &Row::beginsGroup);
  if (!hasGroups) box.breaks.assign(box.rows.size(), true);
  return box;
}

Sheet Assembled(const SetBox& box, std::size_t first, std::size_t last) {
  Sheet sheet;
  sheet.width = box.head.width;
  Place(sheet, box.head, {});
  sheet.height = box.head.height;
  for (std::size_t i = first; i < last; ++i) {
    Place(sheet, box.rows[i], {0, sheet.height});
    sheet.height += box.rows[i].height;
  }
  if (first < last) sheet.height += box.padding;
  Frame frame = {{0, 0, sheet.width, sheet.height}, box.size * kRound, box.size * kEdge, {Ink::Rule}};
  sheet.frames.push_back(frame);
  sheet.targets.push_back({frame.area, box.label});
  return sheet;
}

}  // namespace tarvik::kneeboard
