// A pane of the editor, with what makes it easy to find one's way in a file: line numbers, the current line,
// brackets that belong together, other places of a word, lines that have changed, problems. All of it is
// painted, and is in no text; each can be switched off. In the tiled view a head above the text names the
// file.
#pragma once

#include "app/Editor.h"
#include "screen/widgets/PaneView.h"
#include "text/Words.h"

namespace tarvik::screen {

class EditorPane : public PaneView {
 public:
  EditorPane(Editor& editor, Workbench& workbench, Document& document, Bindings& bindings, QWidget* parent);

  /// Marks the places of a word, whichever of the files it was found in.
  void MarkWord(const std::string& word);
  /// The caret of the file on top has come to another word, or to none.
  std::function<void(const std::string&)> wordChanged = [](const std::string&) {};

 protected:
  [[nodiscard]] QFont TextFont() const override;
  [[nodiscard]] qreal TabDistance() const override;
  void PaintBehind(QPainter& painter, const QTextBlock& block, const QPointF& offset) const override;
  [[nodiscard]] const ColourRuns* ShownColours() const override { return live_.Of(document_); }
  [[nodiscard]] bool IsOfUser(Colour colour) const override { return !live_.Gives(colour); }
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  class Margin;
  class Head;

  /// What is marked because of where the caret is.
  struct Marks {
    int line = 0;
    BracketPair brackets;
    Range word;  ///< not marked itself
    friend bool operator==(const Marks&, const Marks&) = default;
  };

  void Follow();
  void FollowSettings(Bindings& bindings);
  void FollowWorkbench(Workbench& workbench, Bindings& bindings);
  void ShowMargin();
  void ShowHead();
  void ShowBars();
  void CaretMoved();
  [[nodiscard]] bool IsOnTop() const { return &documents_.Active() == &document_; }
  /// Has a line painted anew, in the margin too.
  void UpdateLine(int line);
  /// Has the lines painted anew in which something is marked.
  void Update(const Marks& marks);
  /// Has the lines on show painted anew in which the marked word stands.
  void UpdatePlaces();
  [[nodiscard]] Marks MarksOfCaret() const;
  /// The word in which all of the selection lies; none where it is no word to look for.
  [[nodiscard]] Range WordAround(Range selection) const;
  [[nodiscard]] qreal Enlarged(qreal size) const;
  void PaintPlaces(QPainter& painter, const QTextBlock& block, const QPointF& offset) const;
  void PaintHits(QPainter& painter, const QTextBlock& block, const QPointF& offset) const;
  void PaintBracket(QPainter& painter, const QTextBlock& block, const QPointF& offset, Range bracket) const;
  /// Frames a part of a block, and tints it a little.
  void PaintMark(QPainter& painter, const QTextBlock& block, const QPointF& offset, Range range,
                 const QColor& ink) const;
  /// What is behind what was pressed on the stick.
  void PaintGlow(QPainter& painter, const QTextBlock& block, const QPointF& offset) const;
  /// Scrolls until the place is to be seen, as little as possible; the caret stays.
  void BringIntoView(Range place);
  void ShowGlow();
  void PaintProblems(QPainter& painter, const QTextBlock& block, const QPointF& offset) const;
  static void PaintWave(QPainter& painter, const QRectF& place, const QColor& colour);
  /// What is told of the letter that the pointer rests on.
  [[nodiscard]] QString TipAt(const QPoint& place) const;
  [[nodiscard]] std::optional<std::size_t> LetterAt(const QPoint& place) const;
  /// The colour of a mark, so that it can be seen on the background.
  [[nodiscard]] QColor Visible(Colour mark) const;
  /// The background with so much of the ink in it.
  [[nodiscard]] QColor Tint(const QColor& ink, int percent) const;

  Editor& editor_;
  Settings& settings_;
  const Documents& documents_;
  const Document& document_;
  const ChangedLines& changes_;
  const LiveColours& live_;
  const IncrementalSearch& search_;
  const Problems& problems_;
  const FileModels& models_;
  const FollowStick& stick_;
  Margin* margin_;
  Head* head_;
  QColor barColour_;  // of changed lines
  Marks marks_;
  std::string word_;
  int wheel_ = 0;  // what the wheel was turned with Ctrl, in eighths of a degree, that made no step yet
};

}  // namespace tarvik::screen
