#include "kneeboard/KeyboardSheet.h"

#include <algorithm>
#include <cctype>

#include "language/KeyTable.h"

namespace tarvik::kneeboard {
namespace {

/// A keyboard whose keys are narrower is not drawn.
constexpr double kSmallestKey = 4.6;
/// How wide a swatch on a key is, with the blank behind it.
constexpr double kLargestSwatch = 1.9;
/// What the keys of `kKeys` measure: one key, and all of them.
constexpr double kKeySide = 435;
constexpr int kBetweenKeys = 45;
constexpr double kTall = 1.25;
/// The names of keys, and swatches with what is around them, in parts of the height of a key.
constexpr double kName = 0.21;
constexpr double kInset = 0.07;
constexpr double kAllWidth = 10935;
constexpr double kAllHeight = 2895;

/// How wide a key may be beside its neighbour on the right.
double WidthOf(const tarvik::Place& place) {
  int width = place.width;
  for (const KeyRow& other : kKeys) {
    if (other.place.top != place.top || other.place.left <= place.left) continue;
    width = std::min(width, other.place.left - place.left - kBetweenKeys);
  }
  return width;
}

/// The table names the keys of the caret by signs that look like arrows.
Sign ArrowOf(const KeyRow& row) {
  if (row.name == "UAROW") return Sign::Up;
  if (row.name == "DAROW") return Sign::Down;
  if (row.name == "LAROW") return Sign::Left;
  return row.name == "RAROW" ? Sign::Right : Sign::None;
}

class Keyboard {
 public:
  Keyboard(const Contents& contents, const PageMaker& maker) : contents_(contents), maker_(maker) {}

  /// Nothing where the keys would be too small.
  [[nodiscard]] Sheet Drawn(double width) const {
    Sheet sheet;
    const double scale = width / kAllWidth;
    if (kKeySide * scale < kSmallestKey) return sheet;
    sheet.width = width;
    // The keys are drawn a little higher than wide, which leaves room for what is below their names.
    const double tall = scale * kTall;
    sheet.height = kAllHeight * tall;
    for (const KeyRow& row : kKeys) {
      const tarvik::Place& place = row.place;
      PutKey(sheet, row, {place.left * scale, place.top * tall, WidthOf(place) * scale, place.height * tall},
             kKeySide * tall);
    }
    return sheet;
  }

  /// A box for each heading, in their order, and one for what stands under none.
  [[nodiscard]] std::vector<BoxContent> Boxes() const {
    std::vector<BoxContent> boxes;
    for (const std::string& heading : contents_.headings) boxes.push_back({heading});
    boxes.push_back({contents_.headings.empty() ? "Keys" : "Other keys"});
    for (const KeyUse& use : contents_.keys) {
      for (const KeyUse::Press& press : use.presses) {
        const std::size_t heading = HeadingOf(press.heading);
        boxes[heading].rows.push_back(RowOf(use, press, heading));
      }
    }
    std::erase_if(boxes, [](const BoxContent& box) { return box.rows.empty(); });
    return boxes;
  }

 private:
  [[nodiscard]] std::size_t HeadingOf(const std::string& heading) const {
    const auto found = std::ranges::find(contents_.headings, heading);
    return static_cast<std::size_t>(found - contents_.headings.begin());
  }

  [[nodiscard]] Colour ColourOf(std::size_t heading) const {
    if (heading == contents_.headings.size()) return {Ink::Dim};
    return {Ink::Heading, static_cast<std::uint8_t>(heading % kHeadingColours)};
  }

  [[nodiscard]] Row RowOf(const KeyUse& use, const KeyUse::Press& press, std::size_t heading) const {
    Row row;
    std::string keys = press.with;
    keys.append(keys.empty() ? "" : " ").append(use.key);
    const bool isOnStick = !press.controls.empty();
    row.leads.push_back({isOnStick ? Sign::OnStick : Sign::OffStick, keys, true, ColourOf(heading)});
    row.leads.front().textColour = Colour{isOnStick ? Ink::Text : Ink::Dim};
    row.words = press.words;
    row.colour = {isOnStick ? Ink::Text : Ink::Dim};
    for (const std::string& control : press.controls)
      row.keys.append(row.keys.empty() ? "" : ", ").append(control);
    return row;
  }

  [[nodiscard]] const KeyUse* UseOf(const KeyRow& row) const {
    const auto found = std::ranges::find(contents_.keys, row.name, &KeyUse::key);
    return found == contents_.keys.end() || found->presses.empty() ? nullptr : &*found;
  }

  void PutKey(Sheet& sheet, const KeyRow& row, const Area& area, double unit) const {
    const KeyUse* use = UseOf(row);
    const auto isOnStick = [](const KeyUse::Press& press) { return !press.controls.empty(); };
    const bool isSent = use != nullptr && std::ranges::any_of(use->presses, isOnStick);
    Frame cap = {area, 0.8, isSent ? 0.35 : 0.18, {use != nullptr ? Ink::Text : Ink::Rule}};
    cap.fill = Colour{isSent ? Ink::Tint : Ink::Paper};
    sheet.frames.push_back(cap);
    const double inset = unit * kInset;
    const Area inside = {area.x + inset, area.y + inset, area.width - 2 * inset, area.height - 2 * inset};
    const Colour ink = {use != nullptr ? Ink::Text : Ink::Dim};
    const double below =
        PutFace(sheet, row, inside, {std::max(kSmallest, unit * kName / kPoint), use != nullptr, ink});
    if (use == nullptr) return;
    const double swatches = PutSwatches(sheet, *use, inside);
    if (use->presses.size() == 1)
      PutWordsOf(sheet, use->presses.front(), {inside.x, below, inside.width, swatches - below});
  }

  /// Says where it ends. A name that is too long for its key is left out: the key tells by its place.
  double PutFace(Sheet& sheet, const KeyRow& row, const Area& inside, Style style) const {
    Typesetter& setter = maker_.setter();
    const Sign arrow = ArrowOf(row);
    const std::string face = arrow == Sign::None ? row.caption : "";
    PutSign(sheet, arrow, {inside.x, inside.y}, style.size, style.colour);
    const double below = inside.y + LineHeight(style.size);
    style = setter.Shrunk(face, inside.width, style, kSmallest);
    if (setter.Width(face, style) <= inside.width) PutWords(sheet, setter, face, {inside.x, inside.y}, style);
    return below;
  }

  /// What the key does, if all of it has room.
  void PutWordsOf(Sheet& sheet, const KeyUse::Press& press, const Area& room) const {
    Typesetter& setter = maker_.setter();
    const Style style = {kSmallest, false, {Ink::Dim}};
    const std::vector<std::string> lines = setter.Wrapped(press.words, room.width, style);
    std::string whole;
    for (const std::string& line : lines) whole.append(whole.empty() ? "" : " ").append(line);
    if (whole != press.words || static_cast<double>(lines.size()) * LineHeight(style.size) > room.height)
      return;
    double y = room.y;
    for (const std::string& line : lines) {
      PutWords(sheet, setter, line, {room.x, y}, style);
      y += LineHeight(style.size);
    }
  }

  /// A swatch for each thing that the key does, along the lower edge of its cap. Says where they begin.
  double PutSwatches(Sheet& sheet, const KeyUse& use, const Area& inside) const {
    const double most = std::max<double>(4, static_cast<double>(use.presses.size()));
    const double type = std::min(inside.width / most, kLargestSwatch) / kPoint;
    const double y = inside.Bottom() - LineHeight(type) * 0.85;
    double x = inside.x;
    for (const KeyUse::Press& press : use.presses) {
      const Sign sign = press.controls.empty() ? Sign::OffStick : Sign::OnStick;
      PutSign(sheet, sign, {x, y}, type, ColourOf(HeadingOf(press.heading)));
      x += type * 0.95 * kPoint;
    }
    return y;
  }

  const Contents& contents_;
  const PageMaker& maker_;
};

}  // namespace

std::vector<Page> KeyboardPagesOf(const Contents& contents, const PageMaker& maker) {
  const Legend legend = {{Sign::OnStick, std::string(MeaningOf(Sign::OnStick)), MarkOf(Sign::OnStick)},
                         {Sign::OffStick, std::string(MeaningOf(Sign::OffStick)), MarkOf(Sign::OffStick)}};
  const PageHead head = {"Keyboard", "What each key does, and which control presses it"};
  const Keyboard keyboard(contents, maker);
  const Sheet drawn = keyboard.Drawn(maker.Begin(head, legend).body.width);
  return FlowPages(maker, head, legend, keyboard.Boxes(), drawn);
}

}  // namespace tarvik::kneeboard
