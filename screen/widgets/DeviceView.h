// A drawing of a device with its labels, which are pressed by the mouse, there or on the control they name,
// or by the keyboard. It scales with its room and follows the desktop's light or dark colours.
#pragma once

#include <QAbstractButton>
#include <QPixmap>
#include <QSvgRenderer>
#include <functional>
#include <map>

#include "screen/widgets/Binding.h"

namespace tarvik::screen {

class DeviceView;

/// A label of the drawing, which draws its box; over it come the caption with the place of the control in
/// words below, and the state of the button. It is filled where its control is assigned.
class DeviceLabel : public QAbstractButton {
 public:
  DeviceLabel(DeviceView& device, QString place);

  /// The lines that assign its control.
  void SetStatements(QStringList statements);
  /// The tool tip with these lines below it.
  [[nodiscard]] QString Tip() const;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  [[nodiscard]] QBrush Filling(bool lit) const;
  void PaintWords(QPainter& painter) const;

  DeviceView& device_;
  QString place_;
  QStringList statements_;
};

class DeviceView : public QWidget {
 public:
  /// `drawing` is a file of the built-in devices.
  DeviceView(const QString& drawing, Bindings& bindings);

  /// The control's place in the drawing goes by its full name; `place` says it in words.
  void Add(Label& label, const QString& place);
  /// Whom to ask for the lines that assign the controls, by label, whenever they may have changed.
  using Assigned = std::map<const Label*, QStringList>;
  void AskForAssigned(std::function<Assigned()> ask) { ask_ = std::move(ask); }
  /// What the drawing says below the device.
  void SetHint(const QString& hint) { hint_ = hint; }
  /// Whether a control lights, because of a stick or of the caret; asked after each `Relight`.
  void AskForLit(std::function<bool(const Label&)> ask) { isLit_ = std::move(ask); }
  void Relight() { update(); }
  /// The answer may be another one from now on; it is asked for when it is needed.
  void ForgetAssigned();
  void TakeAssigned();

  /// Controls are held down and let go instead of being clicked. `press` hears where: from the middle of the
  /// control or its label, with 1 and -1 at the edges.
  using Press = std::function<void(const Label& label, QPointF place)>;
  void HoldDown(Press press, std::function<void()> release);
  /// Whether the label is held down now, because controls are.
  bool Hold(const DeviceLabel& label, QPointF place);
  bool LetGo();

  [[nodiscard]] QSize sizeHint() const override;
  /// The label that is to look as if the pointer were on it: it is on its control.
  [[nodiscard]] const DeviceLabel* Pointed() const { return pointed_; }
  void Point(DeviceLabel* label);
  /// To the nearest label in a direction.
  void MoveFocus(const DeviceLabel& from, QPoint direction);
  /// One label at a time is reached with the Tab key, and the others from there.
  void MakeTabStop(DeviceLabel& label);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  struct Spot {
    DeviceLabel* label;
    QString id;
    const Label* shown;
  };

  void Draw();
  void PaintPicture();
  void PlaceLabels();
  [[nodiscard]] QRectF RectOf(const QString& element) const;
  [[nodiscard]] QRectF ControlOf(const Spot& spot) const;
  [[nodiscard]] QTransform ToWidget() const;
  void PaintLit(QPainter& painter, const Spot& spot) const;
  [[nodiscard]] DeviceLabel* LabelAt(const QPointF& place) const;

  Bindings& bindings_;
  QByteArray drawing_;
  QSvgRenderer renderer_;
  QPixmap picture_;
  std::vector<Spot> spots_;
  std::function<Assigned()> ask_ = [] { return Assigned(); };
  std::function<bool(const Label&)> isLit_ = [](const Label&) { return false; };
  bool isTaken_ = false;
  DeviceLabel* pointed_ = nullptr;
  QString hint_;
  Press press_;
  std::function<void()> release_;
};

}  // namespace tarvik::screen
