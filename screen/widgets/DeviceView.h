// A drawing of a device with its labels, which are pressed by the mouse, there or on the control they name,
// or by the keyboard. It scales with its room and follows the desktop's light or dark colours.
#pragma once

#include <QAbstractButton>
#include <QPixmap>
#include <QSvgRenderer>

#include "screen/widgets/Binding.h"

namespace tarvik::screen {

class DeviceView;

/// A label of the drawing, which draws its box; over it come the caption, and the state of the button.
class DeviceLabel : public QAbstractButton {
 public:
  explicit DeviceLabel(DeviceView& device);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  DeviceView& device_;
};

class DeviceView : public QWidget {
 public:
  /// `drawing` is a file of the built-in devices.
  DeviceView(const QString& drawing, Bindings& bindings);

  /// The control's place in the drawing goes by its full name.
  void Add(Label& label);

  [[nodiscard]] QSize sizeHint() const override;
  /// The label that is to look as if the pointer were on it: it is on its control.
  [[nodiscard]] const DeviceLabel* Pointed() const { return pointed_; }
  void Point(DeviceLabel* label);
  /// To the nearest label in a direction.
  void MoveFocus(const DeviceLabel& from, QPoint direction);
  /// One label at a time is reached with the Tab key, and the others from there.
  void MakeTabStop(DeviceLabel& label);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  struct Spot {
    DeviceLabel* label;
    QString id;
  };

  void Draw();
  void PlaceLabels();
  [[nodiscard]] QRectF RectOf(const QString& element) const;
  [[nodiscard]] QRectF ControlOf(const Spot& spot) const;
  [[nodiscard]] QTransform ToWidget() const;
  [[nodiscard]] DeviceLabel* LabelAt(const QPointF& place) const;

  Bindings& bindings_;
  QByteArray drawing_;
  QSvgRenderer renderer_;
  QPixmap picture_;
  std::vector<Spot> spots_;
  DeviceLabel* pointed_ = nullptr;
};

}  // namespace tarvik::screen
