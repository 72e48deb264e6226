#include "kneeboard/Signs.h"

#include <utility>

namespace tarvik::kneeboard {
namespace {

/// The square that a sign is drawn in, in tenths of its side from its upper left corner.
class Square {
 public:
  Square(Sheet& onto, Spot at, double size, Colour colour)
      : onto_(onto), colour_(colour), side_(size * 0.8 * kPoint) {
    at_ = {at.x, at.y + (LineHeight(size) - side_) / 2};
  }

  [[nodiscard]] Spot At(Spot tenths) const {
    return {at_.x + tenths.x / 10 * side_, at_.y + tenths.y / 10 * side_};
  }

  void Fill(std::vector<Spot> corners) {
    for (Spot& corner : corners) corner = At(corner);
    onto_.shapes.push_back({std::move(corners), colour_});
  }

  void Stroke(std::vector<Spot> corners) {
    for (Spot& corner : corners) corner = At(corner);
    onto_.lines.push_back({std::move(corners), side_ / 9, colour_});
  }

  enum class Body { Full, Hollow };
  void Round(Area tenths, double radius, Body body) {
    const Spot from = At({tenths.x, tenths.y});
    Frame frame = {{from.x, from.y, tenths.width / 10 * side_, tenths.height / 10 * side_}};
    frame.radius = radius / 10 * side_;
    frame.width = side_ / 11;
    frame.edge = colour_;
    if (body == Body::Full) frame.fill = colour_;
    onto_.frames.push_back(frame);
  }

 private:
  Sheet& onto_;
  Colour colour_;
  double side_;
  Spot at_;
};

using Body = Square::Body;

/// An arrow up, turned to the right so many times.
void PutArrow(Square& square, int turns) {
  std::vector<Spot> head = {{5, 0}, {9.2, 5.2}, {0.8, 5.2}};
  std::vector<Spot> shaft = {{5, 4}, {5, 10}};
  for (int i = 0; i < turns; ++i) {
    for (Spot& spot : head) spot = {10 - spot.y, spot.x};
    for (Spot& spot : shaft) spot = {10 - spot.y, spot.x};
  }
  square.Fill(head);
  square.Stroke(shaft);
}

void PutSwitch(Square& square, double knob) {
  square.Round({2.5, 0, 5, 10}, 2.5, Body::Hollow);
  square.Round({3.4, knob, 3.2, 2.6}, 1.2, Body::Full);
}

/// A button's way: down onto its ground, or up from it.
void PutWay(Square& square, Sign sign) {
  square.Stroke({{0.8, 9.4}, {9.2, 9.4}});
  if (sign == Sign::Press) {
    square.Stroke({{5, 0}, {5, 4}});
    square.Fill({{5, 8}, {8.4, 3.4}, {1.6, 3.4}});
  } else {
    square.Fill({{5, 0}, {8.4, 4.6}, {1.6, 4.6}});
    square.Stroke({{5, 4}, {5, 8}});
  }
}

}  // namespace

Sign SignOf(Dogfight dogfight) {
  constexpr Sign kSigns[] = {Sign::None, Sign::SwitchUp, Sign::SwitchMiddle, Sign::SwitchDown};
  return kSigns[static_cast<std::size_t>(dogfight)];
}

Sign SignOf(Shift shift) {
  constexpr Sign kSigns[] = {Sign::None, Sign::ShiftIn, Sign::ShiftOut};
  return kSigns[static_cast<std::size_t>(shift)];
}

Sign SignOf(Moment moment) {
  constexpr Sign kSigns[] = {Sign::None, Sign::Press, Sign::Release};
  return kSigns[static_cast<std::size_t>(moment)];
}

Sign SignOf(char position) {
  switch (position) {
    case 'U':
      return Sign::Up;
    case 'R':
      return Sign::Right;
    case 'D':
      return Sign::Down;
    case 'L':
      return Sign::Left;
    case 'M':
      return Sign::Middle;
    default:
      return Sign::None;
  }
}

std::string_view MeaningOf(Sign sign) {
  switch (sign) {
    case Sign::SwitchUp:
      return "dogfight up";
    case Sign::SwitchMiddle:
      return "dogfight middle";
    case Sign::SwitchDown:
      return "dogfight down";
    case Sign::ShiftIn:
      return "S3 held in";
    case Sign::ShiftOut:
      return "S3 out";
    case Sign::Press:
      return "pressed";
    case Sign::Release:
      return "released";
    case Sign::WayUp:
      return "on the way up";
    case Sign::WayDown:
      return "on the way down";
    case Sign::OnStick:
      return "on the stick";
    case Sign::OffStick:
      return "not on the stick";
    default:
      return {};
  }
}

void PutSign(Sheet& onto, Sign sign, Spot at, double size, Colour colour) {
  Square square(onto, at, size, colour);
  onto.marks |= MarkOf(sign);
  switch (sign) {
    case Sign::None:
      return;
    case Sign::Up:
    case Sign::Right:
    case Sign::Down:
    case Sign::Left:
      return PutArrow(square, static_cast<int>(sign) - static_cast<int>(Sign::Up));
    case Sign::Middle:
      square.Round({1, 1, 8, 8}, 4, Body::Hollow);
      return square.Round({3.6, 3.6, 2.8, 2.8}, 1.4, Body::Full);
    case Sign::SwitchUp:
      return PutSwitch(square, 1);
    case Sign::SwitchMiddle:
      return PutSwitch(square, 3.7);
    case Sign::SwitchDown:
      return PutSwitch(square, 6.4);
    case Sign::ShiftIn:
      return square.Round({1, 1, 8, 8}, 4, Body::Full);
    case Sign::ShiftOut:
      return square.Round({1, 1, 8, 8}, 4, Body::Hollow);
    case Sign::Press:
    case Sign::Release:
      return PutWay(square, sign);
    case Sign::WayUp:
      return square.Fill({{5, 1}, {9.6, 9}, {0.4, 9}});
    case Sign::WayDown:
      return square.Fill({{5, 9}, {9.6, 1}, {0.4, 1}});
    case Sign::OnStick:
      return square.Round({0.5, 0.5, 9, 9}, 1, Body::Full);
    case Sign::OffStick:
      square.Round({0.5, 0.5, 9, 9}, 1, Body::Hollow);
      return square.Stroke({{1, 9}, {9, 1}});
  }
}

}  // namespace tarvik::kneeboard
