// The page of the window that tries the two files out: the device on the left, and what comes of it.
#include <QPainter>

#include "play/Keys.h"
#include "screen/pages/KeyFaces.h"
#include "screen/pages/Pages.h"
#include "screen/widgets/Conversions.h"
#include "screen/widgets/DeviceView.h"

namespace tarvik::screen {
namespace {

constexpr int kWatchedWidth = 380;
// Pixels to the twip of the keyboard.
constexpr double kUsualKeys = 1 / 15.0;
constexpr double kSmallestKeys = 1 / 19.0;
constexpr int kControlsWidth = 210;
constexpr int kFlagsWidth = 90;

/// A keyboard whose keys go down and up as they are sent.
class PlayedKeyboard : public QWidget {
 public:
  PlayedKeyboard(TryOut& form, Bindings& bindings) : form_(form) {
    setAccessibleName(tr("Keys that are down"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bindings.Bind(form.KeysDown.Caption, [this] {
      setAccessibleDescription(ToScreen(form_.KeysDown.Caption.Get()));
      update();
    });
  }

  [[nodiscard]] QSize sizeHint() const override { return KeyboardExtent() * kUsualKeys; }
  [[nodiscard]] QSize minimumSizeHint() const override { return KeyboardExtent() * kSmallestKeys; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = KeyScaleIn(size());
    painter.translate((width() - KeyboardExtent().width() * scale) / 2,
                      (height() - KeyboardExtent().height() * scale) / 2);
    for (const KeyRow& row : kKeys) {
      const Place& place = row.place;
      const QRectF area(place.left * scale, place.top * scale, place.width * scale, place.height * scale);
      PaintKey(painter, area, scale, QString::fromLatin1(row.caption), LookOf(row));
    }
  }

 private:
  [[nodiscard]] KeyLook LookOf(const KeyRow& row) const {
    const bool isDown = form_.IsDown(play::KeyOf(row));
    return {palette(),
            font(),
            isDown ? kHeldKey : palette().color(QPalette::Button),
            isDown ? QColor(Qt::black) : palette().color(QPalette::ButtonText),
            isDown,
            false};
  }

  TryOut& form_;
};

QLayout* Device(TryOut& form, const FormLayout& in, tables::Picture picture, const char* drawing) {
  auto* const view = new DeviceView(QString::fromLatin1(drawing), in.bindings());
  view->SetHint(QObject::tr("Hold a control down; a hat goes where you press it"));
  for (const tables::HardwareRow& row : tables::kHardware) {
    if (row.picture != picture) continue;
    view->Add(form.LabelOf(row), ToScreen(std::string(row.place)));
  }
  view->HoldDown([&form](const Label& label, QPointF place) { form.Press(label, place.x(), place.y()); },
                 [&form] { form.Release(); });
  return Column({view});
}

/// A lever with its name, which goes with it.
void AddAxis(TryOut& form, const FormLayout& in, int axis, const char* name, std::vector<QWidget*>& cells) {
  Slider& lever = form.Axes(axis);
  QWidget* const slider = in.Show(lever);
  QLabel* const label = LabelOf(name, slider);
  in.bindings().Bind(lever.Visible, [label, &lever] { label->setVisible(lever.Visible); });
  cells.insert(cells.end(), {label, slider});
}

QLayout* Levers(TryOut& form, const FormLayout& in) {
  constexpr const char* kNames[] = {"Throttle", "Range", "Antenna", "Roll", "Pitch", "Rudder"};
  std::vector<QWidget*> cells;
  for (int i = 0; i < form.Axes.Count(); ++i) AddAxis(form, in, i, kNames[i], cells);
  return Grid(cells, 4);
}

QWidget* Side(TryOut& form, const FormLayout& in) {
  QWidget* const devices =
      in.Show(form.Devices, {Device(form, in, tables::Picture::Stick, "stick-flcs.svg"),
                             Device(form, in, tables::Picture::PlainStick, "stick-fcs.svg"),
                             Device(form, in, tables::Picture::Tqs, "throttle-tqs.svg"),
                             Device(form, in, tables::Picture::Wcs, "throttle-wcs.svg")});
  auto* const side = new QWidget;
  side->setFixedWidth(kWatchedWidth);
  side->setLayout(Framed(
      {}, Column({Filling(devices),
                  Row({in.Show(form.S3), Stretch(), Words("Dogfight switch"), in.Show(form.Dogfight(0)),
                       in.Show(form.Dogfight(1)), in.Show(form.Dogfight(2))}),
                  Levers(form, in)})));
  return side;
}

QLayout* Lists(TryOut& form, const FormLayout& in) {
  QWidget* const flags = in.Show(form.Flags);
  flags->setFixedWidth(kFlagsWidth);
  QWidget* const controls = in.Show(form.Controls);
  controls->setFixedWidth(kControlsWidth);
  return Row({Above("Controls", controls), Filling(Above("What was sent", in.Show(form.Log))),
              Above("Flags", flags)});
}

}  // namespace

QLayout* Page(TryOut& form, const FormLayout& in) {
  QWidget* const speed = Named(in.Show(form.Speed), QStringLiteral("Time"));
  QLayout* const seen =
      Column({Filling(Lists(form, in)), Row({Words("Buttons"), in.Show(form.ButtonsDown), Stretch()}),
              new PlayedKeyboard(form, in.bindings())});
  return Column({Filling(Row({Side(form, in), Filling(seen)})),
                 Row({LabelOf("Time", speed), speed, in.Show(form.StepOn), in.Show(form.LetGo),
                      in.Show(form.Begin), Filling(in.Show(form.Told))}),
                 Row({in.Show(form.OpenRun), in.Show(form.PlayAgain), in.Show(form.SaveRun), Stretch(),
                      in.Show(form.FlyButton), in.Show(form.Done)})});
}

}  // namespace tarvik::screen
