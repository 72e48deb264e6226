// Pimlet's keyboard: a button for each key, at its place in the key table, scaled to the room that there is.
// It is one stop of the Tab key; the arrow keys go from key to key.
#pragma once

#include <QAbstractButton>
#include <vector>

#include "screen/widgets/Binding.h"
#include "tools/pimlet/RAWform.h"

namespace tarvik::screen {

class KeyboardView;

/// The cap of one key.
class KeyCap : public QAbstractButton {
 public:
  KeyCap(const KeyRow& row, KeyboardView& keyboard);

  [[nodiscard]] const KeyRow& row() const { return row_; }
  /// Tells those who have the screen read out what the face says.
  void SayFace();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  [[nodiscard]] QColor FaceColour() const;

  const KeyRow& row_;
  KeyboardView& keyboard_;
};

class KeyboardView : public QWidget {
 public:
  KeyboardView(RAWform& form, Bindings& bindings);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  /// Pixels to the twip.
  [[nodiscard]] double Scale() const;
  /// Where the Tab key leads to from now on.
  void MakeStop(KeyCap& cap);
  /// Finds another stop of the Tab key when the present one cannot be pressed any more.
  void LeaveStop();
  /// Moves the focus to the next key that can be pressed in a direction, where there is one.
  void Go(const KeyCap& from, QPoint direction);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  std::vector<KeyCap*> caps_;
  KeyCap* stop_ = nullptr;
};

}  // namespace tarvik::screen
