// A text pane on screen. The document mirrors the pane's text, colours are painted straight from the pane,
// and what the user does natively (typing, input methods, dropping, pasting) goes back to the pane.
#pragma once

#include <QPlainTextEdit>
#include <functional>
#include <map>
#include <optional>

#include "panes/Pane.h"
#include "screen/widgets/Binding.h"
#include "text/CodePage.h"

namespace tarvik::screen {

/// A line break is one position in the document and two in the pane, so that the two kinds of position differ
/// by the number of the line.
class PaneView : public QPlainTextEdit {
 public:
  PaneView(Pane& pane, Bindings& bindings, QWidget* parent);

  [[nodiscard]] std::size_t PanePosition(int documentPosition) const;
  [[nodiscard]] int DocumentPosition(std::size_t panePosition) const;
  /// In the widget's viewport.
  [[nodiscard]] QRect CaretAt(std::size_t panePosition) const;
  /// What letters of the colour are painted in: so that they can be read on the pane's background.
  [[nodiscard]] QColor InkOf(Colour colour) const;
  /// What the pane writes on.
  [[nodiscard]] QColor Paper() const;

 protected:
  [[nodiscard]] Pane& pane() const { return pane_; }
  /// The font that the text is shown in.
  [[nodiscard]] virtual QFont TextFont() const;
  /// How far tabs stand apart, in pixels.
  [[nodiscard]] virtual qreal TabDistance() const;
  /// Shows the text in its font.
  void ShowFont();
  /// Paints what lies behind the letters of a block, which begins at `offset`.
  virtual void PaintBehind(QPainter& /*painter*/, const QTextBlock& /*block*/,
                           const QPointF& /*offset*/) const {}
  /// The colours that characters are shown in which the user has given none; null where all are shown in
  /// theirs.
  [[nodiscard]] virtual const ColourRuns* ShownColours() const { return nullptr; }
  /// Whether only the user can have given a character this colour.
  [[nodiscard]] virtual bool IsOfUser(Colour /*colour*/) const { return true; }
  /// The text keeps so many pixels free at its left side.
  void SetSideWidth(int width);
  /// And so many above it.
  void SetHeadHeight(int height);
  /// The characters of a block that stand where something is being painted, counted from its beginning.
  static Range ExposedPart(const QPainter& painter, const QTextBlock& block, const QPointF& offset);
  /// Calls `take` with the place of each part of a block's characters that stands in one line and in what is
  /// being painted; they count from the block's beginning.
  static void ForEachPlace(const QPainter& painter, const QTextBlock& block, const QPointF& offset,
                           Range range, const std::function<void(const QRectF&)>& take);

  bool event(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* data) override;
  void dropEvent(QDropEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  struct NativeChange {
    int position;
    int added;
  };

  void BindLook(Bindings& bindings);
  void ShowSide();
  void ListenToPane(Bindings& bindings);
  void ListenToUser();

  // From the pane to the document.
  void ShowEdit(const PaneEdit& edit);
  void ShowAll();
  void ShowSelection();
  void AskForSight();
  void BringCaretIntoSight();
  /// The text begins so far below the head.
  void ShowFrom(int top);
  [[nodiscard]] int ShownFrom() const { return viewportMargins().top() - headHeight_; }
  [[nodiscard]] bool CutsLineBreak(const PaneEdit& edit) const;

  // From the document to the pane.
  void TakeOver(const NativeChange& change);
  void TakeSelection();
  [[nodiscard]] std::string DocumentText(int from, int to) const;
  [[nodiscard]] Range SelectionOnScreen() const;
  [[nodiscard]] QString PressKeys(std::string_view text);
  void TellLost(const Converted& taken);
  void MoveSelectionTo(const QPoint& place);

  void PaintBlock(QPainter& painter, const QTextBlock& block, const QPointF& offset, int caret) const;
  /// The colour of a character, and the place behind the last one that has it too.
  [[nodiscard]] std::pair<Colour, std::size_t> ColourFrom(std::size_t position) const;
  /// `selected` counts from the start of the block, whose text has `textLength` characters.
  void PaintLine(QPainter& painter, const QTextLine& line, const QPointF& offset, std::size_t blockStart,
                 std::size_t textLength, Range selected) const;

  Pane& pane_;
  bool showing_ = false;              // the pane's change is being put into the document
  std::optional<PaneEdit> expected_;  // what the pane is about to announce of the document's own change
  std::optional<NativeChange> native_;
  int sideWidth_ = 0;
  int headHeight_ = 0;
  mutable std::map<Colour, QColor> inks_;  // by the colours of the text
  bool scrollAsked_ = false;
  bool keyIsDown_ = false;  // the key was pressed here, and not in a window that has gone
};

}  // namespace tarvik::screen
