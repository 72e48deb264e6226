// What stands around the text of a pane of the editor: the margin on its left, and the head above it.
#pragma once

#include "screen/EditorPane.h"

namespace tarvik::screen {

/// Beside the text: the numbers of the lines, a bar where a line has changed, and a dot where there is a
/// problem. A click selects the line.
class EditorPane::Margin : public QWidget {
 public:
  explicit Margin(EditorPane& pane);

  /// Where the text begins beside it.
  [[nodiscard]] int TextTop() const { return pane_.viewport()->y() - y(); }
  [[nodiscard]] int Width() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void PaintBlock(QPainter& painter, const QTextBlock& block, const QRectF& place) const;
  void PaintChange(QPainter& painter, const QTextBlock& block, const QRectF& place) const;
  void PaintProblem(QPainter& painter, const QTextBlock& block, const QRectF& place) const;
  [[nodiscard]] int LineAt(const QMouseEvent& event) const;
  /// From the line where the button went down to this one, with their ends. The caret stands in the upper
  /// one, which is on show.
  void SelectTo(int line);

  EditorPane& pane_;
  int first_ = 0;  // the line where the button went down
};

/// Above the text in the tiled view: the name of the file, marked where it is not saved, and a line while it
/// is the file on top. A click puts it there.
class EditorPane::Head : public QWidget {
 public:
  explicit Head(EditorPane& pane);

  [[nodiscard]] int Height() const;
  void Show();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  // The text below hears of none of these.
  void mouseMoveEvent(QMouseEvent* /*event*/) override {}
  void mouseReleaseEvent(QMouseEvent* /*event*/) override {}

 private:
  EditorPane& pane_;
};

}  // namespace tarvik::screen
