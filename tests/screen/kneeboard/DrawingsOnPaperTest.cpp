// The drawings of the devices as they are printed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>

#include "language/ComposerTables.h"
#include "screen/kneeboard/DeviceDrawings.h"

namespace tarvik::screen {
namespace {

constexpr const char* kDrawings[] = {"stick-flcs", "stick-fcs", "throttle-tqs", "throttle-wcs", "pedals-rcs"};

TEST(DrawingsOnPaper, EveryDrawingIsThere) {
  const DeviceDrawings drawings;
  for (const char* name : kDrawings) {
    const kneeboard::DrawingPlan* plan = drawings.Find(name);
    ASSERT_NE(plan, nullptr) << name;
    EXPECT_GT(plan->whole.width, 300) << name;
    EXPECT_LT(plan->whole.Right(), 900) << name;
    EXPECT_GT(plan->whole.x, 100) << name;
    EXPECT_FALSE(plan->leaders.empty()) << name;
    EXPECT_EQ(drawings.Find(name), plan) << "it is read once";
  }
  EXPECT_EQ(drawings.Find("no-such-drawing"), nullptr);
}

std::string LabelOf(const tables::HardwareRow& row) {
  std::string label(row.array);
  if (row.index >= 0) label.append("-").append(std::to_string(row.index));
  return label;
}

TEST(DrawingsOnPaper, EachLabelHasALeaderThatBeginsLevel) {
  constexpr const char* kFiles[] = {"stick-flcs", "stick-fcs", "throttle-tqs", "throttle-wcs"};
  const DeviceDrawings drawings;
  for (const tables::HardwareRow& row : tables::kHardware) {
    const auto& leaders = drawings.Find(kFiles[static_cast<std::size_t>(row.picture)])->leaders;
    const auto found = std::ranges::find(leaders, LabelOf(row), &kneeboard::DrawnLeader::label);
    ASSERT_NE(found, leaders.end()) << LabelOf(row);
    EXPECT_EQ(found->corners[0].y, found->corners[1].y) << LabelOf(row);
  }
}

QImage Painted(const DeviceDrawings& drawings, const kneeboard::Drawing& drawing, bool isGrey) {
  QImage image(450, 500, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  drawings.Paint(painter, drawing, image.rect(), isGrey);
  return image;
}

TEST(DrawingsOnPaper, TheirOwnLabelsAreNotPainted) {
  const DeviceDrawings drawings;
  const QImage image = Painted(drawings, {"stick-flcs", {}, {0, 0, 900, 1000}, {}}, false);
  // The columns of the labels' boxes.
  for (int y = 0; y < image.height(); ++y) {
    ASSERT_EQ(image.pixel(6, y), qRgb(255, 255, 255)) << y;
    ASSERT_EQ(image.pixel(440, y), qRgb(255, 255, 255)) << y;
  }
}

TEST(DrawingsOnPaper, WithoutRuddersThereAreNoPedals) {
  const DeviceDrawings drawings;
  const auto isBlank = [&](std::vector<std::string> hidden) {
    const QImage image = Painted(drawings, {"throttle-tqs", {}, {0, 0, 900, 1000}, std::move(hidden)}, false);
    QImage blank = image.copy(390, 370, 50, 50);
    blank.fill(Qt::white);
    return image.copy(390, 370, 50, 50) == blank;
  };
  EXPECT_FALSE(isBlank({}));
  EXPECT_TRUE(isBlank({"ROTARY-2"}));
}

TEST(DrawingsOnPaper, InGreyTheyHaveNoColours) {
  const DeviceDrawings drawings;
  for (const char* name : kDrawings) {
    EXPECT_TRUE(Painted(drawings, {name, {}, {0, 0, 900, 1000}, {}}, true).isGrayscale()) << name;
  }
}

}  // namespace
}  // namespace tarvik::screen
