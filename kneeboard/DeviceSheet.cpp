#include "kneeboard/DeviceSheet.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <utility>

#include "kneeboard/Column.h"

namespace tarvik::kneeboard {
namespace {

/// The drawing's share of the width of a page: as much as the boxes leave.
constexpr double kShares[] = {0.24, 0.3, 0.35, 0.4, 0.46, 0.52};
constexpr double kLargestShare = kShares[std::size(kShares) - 1];
constexpr double kLargestType = 9;
constexpr double kTypeStep = 0.5;
/// How much words that are broken or shrink, smaller type and a smaller drawing cost.
constexpr double kStrainCost = 8;
constexpr double kTypeCost = 7;
constexpr double kShareCost = 3;
/// Where notes need more of a page, boxes that have some go overleaf.
constexpr double kMostNotes = 0.25;
/// For a size of type of 1.
constexpr double kLeaderWidth = 0.035;

/// One way to lay the page.
struct Attempt {
  double type = kSmallest;
  double share = kShares[0];
  Column left = {};
  Column right = {};
  Notes notes = {};
  Sheet noteBox = {};
  Area body = {};  ///< without the notes
  Area drawing = {};
  double channel = 0;  ///< between a column and the drawing
  double columnWidth = 0;
  bool hasRoomForNotes = true;
  std::size_t rows = 0;
  std::size_t strained = 0;

  /// The part of the rows that shrank or were broken.
  [[nodiscard]] double Strain() const {
    return rows == 0 ? 0 : static_cast<double>(strained) / static_cast<double>(rows);
  }
  [[nodiscard]] double Space() const { return SpaceBetween(type); }
  [[nodiscard]] bool Fits() const {
    return HeightOf(left, Space()) <= body.height && HeightOf(right, Space()) <= body.height;
  }
};

BoxContent NoteBoxOf(const Notes& notes) {
  BoxContent box = {"Notes"};
  for (std::size_t i = 0; i < notes.size(); ++i) {
    box.rows.push_back({{{Sign::None, std::to_string(i + 1), true, {Ink::Accent}}}, notes[i]});
  }
  return box;
}

class DeviceSheet {
 public:
  DeviceSheet(const DeviceSubject& subject, const PageMaker& maker)
      : subject_(subject), maker_(maker), part_(subject.plan.whole) {
    // What goes beyond is in the way of the leaders from the boxes.
    for (const DrawnLeader& leader : subject.plan.leaders) {
      for (const Spot& corner : leader.corners) {
        const double right = std::max(part_.Right(), corner.x);
        part_.x = std::min(part_.x, corner.x);
        part_.width = right - part_.x;
      }
    }
  }

  std::vector<Page> Laid(const PageHead& head, const Legend& legend, std::vector<BoxContent>& more) {
    Page page = maker_.Begin(head, legend);
    Attempt attempt = Best(page.body);
    std::vector<BoxContent> overleaf;
    Settle(attempt, page.body, overleaf);
    Sheet below;
    std::vector<BoxContent> loose = subject_.loose;
    for (std::vector<BoxContent>* boxes : {&loose, &more}) {
      PutBelow(below, attempt, *boxes);
      PutBeside(attempt, *boxes);
    }
    std::ranges::move(loose, std::back_inserter(overleaf));
    Put(page.sheet, attempt, below);
    std::vector<Page> pages = {std::move(page)};
    if (overleaf.empty()) return pages;
    const PageHead continued = {head.name + ", continued", head.second};
    for (Page& each : FlowPages(maker_, continued, legend, overleaf)) pages.push_back(std::move(each));
    return pages;
  }

 private:
  [[nodiscard]] const DrawnLeader* LeaderOf(const std::string& label) const {
    const auto found = std::ranges::find(subject_.plan.leaders, label, &DrawnLeader::label);
    return found == subject_.plan.leaders.end() ? nullptr : &*found;
  }

  /// Large type, a large drawing, and few lines that are broken: of what has room, the best of all that.
  [[nodiscard]] Attempt Best(const Area& body) const {
    const double largest = std::ceil(maker_.Sized(kLargestType) / kTypeStep) * kTypeStep;
    std::optional<Attempt> best;
    double lowest = 0;
    for (double type = largest; type >= kSmallest; type -= kTypeStep) {
      const double typeCost = kTypeCost * (largest - type) / largest;
      if (best && typeCost >= lowest) break;
      // What has no room beside a small drawing has none beside a larger one.
      for (const double share : kShares) {
        const double shareCost = kShareCost * (kLargestShare - share);
        Attempt attempt = Try(body, type, share);
        if (!attempt.Fits()) break;
        const double cost = typeCost + shareCost + kStrainCost * attempt.Strain();
        if (best && cost >= lowest) continue;
        lowest = cost;
        best = std::move(attempt);
      }
    }
    return best ? std::move(*best) : Try(body, kSmallest, kShares[0]);
  }

  [[nodiscard]] Attempt Try(const Area& body, double type, double share) const {
    Attempt attempt;
    attempt.type = type;
    attempt.body = body;
    attempt.channel = std::max(3.5, body.width * 0.03);
    attempt.drawing.width = std::min(body.width * share, body.height * part_.width / part_.height);
    attempt.columnWidth = (body.width - attempt.drawing.width - 2 * attempt.channel) / 2;
    for (const BoxContent& box : subject_.boxes) {
      const DrawnLeader& leader = *LeaderOf(box.label);
      const bool isLeft = leader.corners.front().x < part_.Middle().x;
      BesideBox beside;
      beside.content = &box;
      beside.leader = leader.corners;
      (isLeft ? attempt.left : attempt.right).push_back(std::move(beside));
    }
    for (Column* column : {&attempt.left, &attempt.right}) {
      std::ranges::stable_sort(*column, {}, &BesideBox::Entry);
      for (BesideBox& each : *column) SetBox(each, attempt);
    }
    SetNotes(attempt);
    FitDrawing(attempt);
    return attempt;
  }

  void FitDrawing(Attempt& attempt) const {
    attempt.drawing.width = std::min(attempt.drawing.width, attempt.body.height * part_.width / part_.height);
    attempt.drawing.height = attempt.drawing.width * part_.height / part_.width;
  }

  void SetBox(BesideBox& each, Attempt& attempt) const {
    const BoxSetter setter(maker_.setter(), attempt.type, &attempt.notes);
    const std::size_t first = attempt.notes.size();
    const kneeboard::SetBox box = setter.Set(*each.content, attempt.columnWidth);
    each.box = Assembled(box, 0, box.rows.size());
    each.noted = 0;
    for (std::size_t i = first; i < attempt.notes.size(); ++i) each.noted += attempt.notes[i].size();
    attempt.rows += box.rows.size();
    attempt.strained += box.strained;
  }

  void SetNotes(Attempt& attempt) const {
    if (attempt.notes.empty()) return;
    const BoxSetter setter(maker_.setter(), std::max(kSmallest, attempt.type * 0.85), nullptr);
    const kneeboard::SetBox box = setter.Set(NoteBoxOf(attempt.notes), attempt.body.width);
    attempt.hasRoomForNotes = box.Height() <= attempt.body.height * kMostNotes;
    if (!attempt.hasRoomForNotes) return;
    attempt.noteBox = Assembled(box, 0, box.rows.size());
    attempt.body.height -= attempt.noteBox.height + attempt.Space();
  }

  /// Moves boxes overleaf until the others have room, and all their notes. The notes of those that are moved
  /// go with them.
  void Settle(Attempt& attempt, const Area& body, std::vector<BoxContent>& overleaf) const {
    for (;;) {
      const bool moved =
          attempt.hasRoomForNotes ? MoveOverleaf(attempt, overleaf) : MoveNoted(attempt, overleaf);
      if (!moved) return;
      attempt.notes.clear();
      attempt.noteBox = {};
      attempt.hasRoomForNotes = true;
      attempt.body = body;
      for (Column* column : {&attempt.left, &attempt.right}) {
        for (BesideBox& each : *column) {
          if (each.content != nullptr) SetBox(each, attempt);
        }
      }
      SetNotes(attempt);
      FitDrawing(attempt);
    }
  }

  /// The box with the longest notes.
  bool MoveNoted(Attempt& attempt, std::vector<BoxContent>& overleaf) const {
    BesideBox* longest = nullptr;
    for (Column* column : {&attempt.left, &attempt.right}) {
      for (BesideBox& each : *column) {
        if (each.noted > 0 && (longest == nullptr || each.noted > longest->noted)) longest = &each;
      }
    }
    if (longest != nullptr) Move(*longest, attempt, overleaf);
    return longest != nullptr;
  }

  /// What stays of it says where it is.
  void Move(BesideBox& each, const Attempt& attempt, std::vector<BoxContent>& overleaf) const {
    overleaf.push_back(*each.content);
    each.box = StubOf(*std::exchange(each.content, nullptr), attempt);
    each.noted = 0;
  }

  /// Boxes, until the others have room: the shortest one that makes enough, or else the longest. Whether
  /// there was one.
  bool MoveOverleaf(Attempt& attempt, std::vector<BoxContent>& overleaf) const {
    const std::size_t before = overleaf.size();
    for (Column* column : {&attempt.left, &attempt.right}) {
      for (double missing = 1; missing > 0;) {
        missing = HeightOf(*column, attempt.Space()) - attempt.body.height;
        BesideBox* moved = nullptr;
        for (BesideBox& each : *column) {
          if (missing <= 0 || each.content == nullptr) continue;
          const auto rank = [&](const BesideBox& box) {
            const double made = box.box.height - StubOf(*box.content, attempt).height;
            return made >= missing ? 1e6 - made : made;
          };
          if (moved == nullptr || rank(each) > rank(*moved)) moved = &each;
        }
        if (moved == nullptr) break;
        Move(*moved, attempt, overleaf);
      }
    }
    return overleaf.size() > before;
  }

  [[nodiscard]] Sheet StubOf(const BoxContent& content, const Attempt& attempt) const {
    BoxContent stub = content;
    stub.bar.clear();
    stub.rows = {{{}, "see overleaf", {}, {Ink::Dim}}};
    const BoxSetter setter(maker_.setter(), attempt.type, nullptr);
    const kneeboard::SetBox box = setter.Set(stub, attempt.columnWidth);
    return Assembled(box, 0, box.rows.size());
  }

  void Put(Sheet& onto, Attempt& attempt, const Sheet& below) const {
    const Area& body = attempt.body;
    const double free = body.height - attempt.drawing.height - below.height;
    attempt.drawing.x = body.Middle().x - attempt.drawing.width / 2;
    attempt.drawing.y = body.y + free * 0.4;
    onto.drawings.push_back({subject_.drawing, attempt.drawing, part_, subject_.hidden});
    Place(onto, below, {attempt.drawing.x, attempt.drawing.Bottom()});
    PutColumn(onto, attempt, attempt.left, body.x);
    PutColumn(onto, attempt, attempt.right, body.Right() - attempt.columnWidth);
    Place(onto, attempt.noteBox, {body.x, body.Bottom() + attempt.Space()});
  }

  /// Boxes that have room below the drawing, with the space above them. They are taken out of `boxes`.
  void PutBelow(Sheet& below, const Attempt& attempt, std::vector<BoxContent>& boxes) const {
    const double room = attempt.body.height - attempt.drawing.height;
    const BoxSetter setter(maker_.setter(), attempt.type, nullptr);
    std::erase_if(boxes, [&](const BoxContent& content) {
      const kneeboard::SetBox box = setter.Set(content, attempt.drawing.width);
      const Sheet sheet = Assembled(box, 0, box.rows.size());
      const double space = below.height > 0 ? attempt.Space() : 3 * attempt.Space();
      if (below.height + space + sheet.height > room) return false;
      Place(below, sheet, {0, below.height + space});
      below.height += space + sheet.height;
      return true;
    });
  }

  /// Boxes for which a column has room below those of the controls. They are taken out of `boxes`.
  void PutBeside(Attempt& attempt, std::vector<BoxContent>& boxes) const {
    const BoxSetter setter(maker_.setter(), attempt.type, nullptr);
    std::erase_if(boxes, [&](const BoxContent& content) {
      const kneeboard::SetBox box = setter.Set(content, attempt.columnWidth);
      Sheet sheet = Assembled(box, 0, box.rows.size());
      const double left = HeightOf(attempt.left, attempt.Space());
      const double right = HeightOf(attempt.right, attempt.Space());
      if (std::min(left, right) + attempt.Space() + sheet.height > attempt.body.height) return false;
      BesideBox beside;
      beside.box = std::move(sheet);
      (left < right ? attempt.left : attempt.right).push_back(std::move(beside));
      return true;
    });
  }

  [[nodiscard]] Spot OnSheet(const Attempt& attempt, Spot spot) const {
    const double scale = attempt.drawing.width / part_.width;
    return {attempt.drawing.x + (spot.x - part_.x) * scale, attempt.drawing.y + (spot.y - part_.y) * scale};
  }

  void PutColumn(Sheet& onto, const Attempt& attempt, Column& column, double x) const {
    for (BesideBox& each : column) {
      for (Spot& corner : each.leader) corner = OnSheet(attempt, corner);
    }
    Spread(column, attempt.body.y, attempt.body.Bottom(), attempt.Space());
    const bool isLeft = x < attempt.drawing.x;
    for (const BesideBox& each : column) {
      Place(onto, each.box, {x, each.y});
      if (each.leader.empty()) continue;
      const double edge = isLeft ? x + attempt.columnWidth : x;
      onto.lines.push_back(LeaderFrom(each, edge, isLeft ? attempt.channel : -attempt.channel, attempt.type));
    }
  }

  /// Level from the box into the channel between it and the drawing, across that, and level on.
  static Line LeaderFrom(const BesideBox& each, double edge, double channel, double type) {
    const double inset = std::min(1.2, each.box.height / 2);
    const double from = std::clamp(each.Entry(), each.y + inset, each.y + each.box.height - inset);
    Line line = {{{edge, from}}, type * kLeaderWidth, {Ink::Accent}, LineKind::Leader};
    if (std::abs(from - each.Entry()) > 0.01) {
      line.corners.push_back({edge + channel * 0.2, from});
      line.corners.push_back({edge + channel, each.Entry()});
    }
    line.corners.insert(line.corners.end(), each.leader.begin() + 1, each.leader.end());
    return line;
  }

  const DeviceSubject& subject_;
  const PageMaker& maker_;
  Area part_;
};

}  // namespace

std::vector<Page> DevicePagesOf(const DeviceSubject& subject, const PageMaker& maker, const PageHead& head,
                                const Legend& legend, std::vector<BoxContent>& more) {
  return DeviceSheet(subject, maker).Laid(head, legend, more);
}

}  // namespace tarvik::kneeboard
