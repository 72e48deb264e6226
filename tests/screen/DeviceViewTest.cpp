// The labels of the Composer's drawings, which tell what the joystick file assigns.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QToolTip>

#include "app/Editor.h"
#include "screen/ProgramOnScreen.h"
#include "screen/widgets/DeviceView.h"
#include "tools/composer/InsertOptions.h"

namespace tarvik::screen {
namespace {

using testing::HasSubstr;
using testing::Not;

class DeviceViewTest : public testing::Test, public ProgramOnScreen {
 protected:
  DeviceViewTest() { application.editor().JoystickText.SelText = std::string("BTN S1 <Gun>\r\n"); }

  DeviceLabel& LabelOf(const char* name) { return Find<DeviceLabel>(composer.hardware(name)); }

  /// The colour of the label's ground, beside its words.
  static QColor Ground(DeviceLabel& label) {
    QApplication::processEvents();
    return label.window()->grab().toImage().pixelColor(label.mapTo(label.window(), QPoint(8, 8)));
  }

  static std::string TipAt(QWidget& widget, QPoint place) {
    QHelpEvent rests(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &rests);
    return QToolTip::text().toStdString();
  }

  InsertOptions& composer = Show<InsertOptions>();
};

TEST_F(DeviceViewTest, TheLabelOfAnAssignedControlIsFilled) {
  EXPECT_NE(Ground(LabelOf("BTN(0)")), Ground(LabelOf("BTN(1)")));
  application.editor().JoystickText.SelText = std::string("BTN S2 Bomb\r\n");
  EXPECT_EQ(Ground(LabelOf("BTN(0)")), Ground(LabelOf("BTN(1)")));
  Pane& pane = application.editor().JoystickText;
  pane.Select({0, pane.Characters().size()});
  pane.SelText = std::string();
  EXPECT_EQ(Ground(LabelOf("BTN(0)")), Ground(LabelOf("HAT(0)")));
}

TEST_F(DeviceViewTest, TheTipHasTheStatementBelowAndThePropertyStaysAsItIs) {
  DeviceLabel& label = LabelOf("BTN(0)");
  EXPECT_THAT(TipAt(label, {5, 5}), HasSubstr("Insert or find this button statement<br/>BTN S1 &lt;Gun&gt;"));
  EXPECT_EQ(composer.hardware("BTN(0)").ToolTipText.Get(), "Insert or find this button statement");
  EXPECT_EQ(label.toolTip().toStdString(), "Insert or find this button statement");
  EXPECT_THAT(TipAt(LabelOf("BTN(1)"), {5, 5}), Not(HasSubstr("<br/>")));
}

TEST_F(DeviceViewTest, TheControlHasTheTipOfItsLabel) {
  DeviceLabel& label = LabelOf("BTN(0)");
  auto& view = *dynamic_cast<DeviceView*>(label.parentWidget());
  view.Point(&label);
  EXPECT_THAT(TipAt(view, {5, 5}), HasSubstr("BTN S1"));
}

TEST_F(DeviceViewTest, TheFilledLabelIsThatOfTheButtonsNameJustNow) {
  application.workbench.settings.ThrottleName = 2;  // a WCS
  composer.ShowApproriateTabs();
  composer.SSTabHardware.Tab = 3;
  application.editor().JoystickText.SelText = std::string("BTN T7 Flaps\r\n");
  EXPECT_THAT(TipAt(LabelOf("BTN(16)"), {5, 5}), HasSubstr("BTN T7 Flaps"));
  composer.hardware("BTN(16)").Caption = std::string("RKR UP");
  EXPECT_THAT(TipAt(LabelOf("BTN(16)"), {5, 5}), Not(HasSubstr("<br/>")));
}

TEST_F(DeviceViewTest, EveryLabelHasRoomForThePlaceOfItsControlInWords) {
  for (const tables::HardwareRow& row : tables::kHardware) {
    const DeviceLabel& label = Find<DeviceLabel>(composer.LabelOf(row));
    EXPECT_EQ(label.accessibleDescription().toStdString(), row.place);
    for (const int height : {24, 28, 56, 112, 224}) {
      QFont font = label.font();
      font.setPixelSize(std::max(9, 17 * height / 56));
      EXPECT_LE(QFontMetrics(font).horizontalAdvance(label.accessibleDescription()), 170 * height / 56 - 4)
          << row.place << " at " << height;
    }
  }
}

}  // namespace
}  // namespace tarvik::screen
