#include "screen/widgets/PaneView.h"

#include <QApplication>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

#include "screen/widgets/Conversions.h"
#include "screen/widgets/Uncovered.h"
#include "text/Contrast.h"

namespace tarvik::screen {
namespace {

constexpr qreal kTabWidth = 48;  // pixels
constexpr int kTextMargin = 4;

struct Trimmed {
  std::size_t front;  ///< equal characters at the front of both texts
  std::size_t back;   ///< and at their back
};

bool Parts(std::string_view text, std::size_t at) {
  return at > 0 && at < text.size() && text[at - 1] == '\r' && text[at] == '\n';
}

/// What two texts have alike at either end, line breaks kept whole.
Trimmed CommonEnds(std::string_view left, std::string_view right) {
  const std::size_t shorter = std::min(left.size(), right.size());
  std::size_t front = 0;
  while (front < shorter && left[front] == right[front]) ++front;
  if (Parts(left, front) || Parts(right, front)) --front;
  std::size_t back = 0;
  while (back < shorter - front && left[left.size() - 1 - back] == right[right.size() - 1 - back]) ++back;
  if (Parts(left, left.size() - back) || Parts(right, right.size() - back)) --back;
  return {front, back};
}

}  // namespace

PaneView::PaneView(Pane& pane, Bindings& bindings, QWidget* parent) : QPlainTextEdit(parent), pane_(pane) {
  setUndoRedoEnabled(false);
  setFrameShape(QFrame::NoFrame);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  document()->setDocumentMargin(kTextMargin);
  // Mouse events that the text ignores must not go to the pane, whose `event` would send them back without
  // end.
  viewport()->setAttribute(Qt::WA_NoMousePropagation);
  ShowAll();
  BindLook(bindings);
  ShowSelection();
  ListenToPane(bindings);
  ListenToUser();
}

void PaneView::BindLook(Bindings& bindings) {
  bindings.BindControl(pane_, *this);
  bindings.Bind(pane_.BackColor, [this] {
    QPalette palette = this->palette();
    inks_.clear();
    palette.setColor(QPalette::Base, Paper());
    palette.setColor(QPalette::Text, InkOf(kBlack));
    setPalette(palette);
  });
  for (PropertyBase* part :
       std::initializer_list<PropertyBase*>{&pane_.SelFontName, &pane_.SelFontSize, &pane_.SelBold}) {
    bindings.Bind(*part, [this] { ShowFont(); });
  }
  bindings.Bind(pane_.SelIndent, [this] { ShowSide(); });
  bindings.Bind(pane_.RightMargin,
                [this] { setLineWrapMode(pane_.RightMargin == margin::kWindow ? WidgetWidth : NoWrap); });
  bindings.Bind(pane_.Overtype, [this] { setOverwriteMode(pane_.Overtype); });
  bindings.Bind(pane_.Locked, [this] {
    setTextInteractionFlags(pane_.Locked ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                         : Qt::TextEditorInteraction);
  });
}

QFont PaneView::TextFont() const {
  QFont font(ToScreen(pane_.SelFontName.Get()));
  font.setPointSizeF(ToScreenSize(pane_.SelFontSize));
  font.setBold(pane_.SelBold);
  return font;
}

qreal PaneView::TabDistance() const { return kTabWidth; }

void PaneView::ShowFont() {
  setFont(TextFont());
  setTabStopDistance(TabDistance());
}

QColor PaneView::Paper() const {
  const Colour colour = pane_.BackColor;
  return IsOfDesktop(colour) ? QApplication::palette(this).color(QPalette::Base) : ToScreenColour(colour);
}

QColor PaneView::InkOf(Colour colour) const {
  const auto [ink, isNew] = inks_.try_emplace(colour);
  if (isNew) {
    ink->second = ToScreenColour(
        LegibleInk(FromScreenColour(ToScreenColour(colour)), FromScreenColour(Paper()), kUsualBackground));
  }
  return ink->second;
}

void PaneView::SetSideWidth(int width) {
  sideWidth_ = width;
  ShowSide();
}

void PaneView::SetHeadHeight(int height) {
  QMargins margins = viewportMargins();
  margins.setTop(height + ShownFrom());
  headHeight_ = height;
  setViewportMargins(margins);
}

void PaneView::ShowSide() {
  QMargins margins = viewportMargins();
  margins.setLeft(std::max({0, pane_.SelIndent - kTextMargin, sideWidth_}));
  setViewportMargins(margins);
}

void PaneView::ListenToPane(Bindings& bindings) {
  bindings.Keep(pane_.Edited.Connect([this](const PaneEdit& edit) { ShowEdit(edit); }));
  bindings.Keep(pane_.SelectionChanged.Connect([this] { ShowSelection(); }));
}

void PaneView::ListenToUser() {
  connect(document(), &QTextDocument::contentsChange, this, [this](int position, int, int added) {
    if (!showing_) native_ = NativeChange{position, added};
  });
  // Only now is the document ready to be changed again by what the pane answers.
  connect(document(), &QTextDocument::contentsChanged, this, [this] {
    if (const auto change = std::exchange(native_, {})) TakeOver(*change);
  });
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { TakeSelection(); });
  connect(this, &QPlainTextEdit::selectionChanged, this, [this] { TakeSelection(); });
}

// Positions.

std::size_t PaneView::PanePosition(int documentPosition) const {
  return static_cast<std::size_t>(documentPosition + document()->findBlock(documentPosition).blockNumber());
}

int PaneView::DocumentPosition(std::size_t panePosition) const {
  const int wanted = static_cast<int>(panePosition);
  int low = 0;  // the last line that begins at or before the position
  int high = document()->blockCount() - 1;
  while (low < high) {
    const int middle = (low + high + 1) / 2;
    if (document()->findBlockByNumber(middle).position() + middle <= wanted) {
      low = middle;
    } else {
      high = middle - 1;
    }
  }
  return std::min(wanted - low, document()->characterCount() - 1);
}

QRect PaneView::CaretAt(std::size_t panePosition) const {
  QTextCursor cursor(document());
  cursor.setPosition(DocumentPosition(panePosition));
  return cursorRect(cursor);
}

std::string PaneView::DocumentText(int from, int to) const {
  std::string text;
  for (QTextBlock block = document()->findBlock(from); block.isValid() && block.position() <= to;
       block = block.next()) {
    if (block.position() > from) text += "\r\n";
    const QString line = block.text();
    const int end = std::min(static_cast<int>(line.size()), to - block.position());
    for (int i = std::max(0, from - block.position()); i < end; ++i) text += FromScreen(line[i]);
  }
  return text;
}

Range PaneView::SelectionOnScreen() const {
  const QTextCursor cursor = textCursor();
  const std::size_t start = PanePosition(cursor.selectionStart());
  return {start, PanePosition(cursor.selectionEnd()) - start};
}

// From the pane to the document.

void PaneView::ShowEdit(const PaneEdit& edit) {
  if (const auto expected = std::exchange(expected_, {})) {
    if (edit.position == expected->position && edit.removed.text == expected->removed.text &&
        edit.inserted.text == expected->inserted.text) {
      return;
    }
    ShowAll();
  } else if (edit.OnlyColours()) {
    viewport()->update();
    return;
  } else if (CutsLineBreak(edit) || edit.removed.size() + edit.inserted.size() > pane_.Content().size()) {
    ShowAll();
  } else {
    const QScopedValueRollback showing(showing_, true);
    const QTextCursor top(firstVisibleBlock());
    const int hidden = verticalScrollBar()->value() - top.block().firstLineNumber();
    QTextCursor cursor(document());
    cursor.setPosition(DocumentPosition(edit.position));
    cursor.setPosition(DocumentPosition(edit.position + edit.removed.size()), QTextCursor::KeepAnchor);
    cursor.insertText(ToScreen(edit.inserted.text));
    // What is on show stays where it is when lines come or go above it.
    verticalScrollBar()->setValue(top.block().firstLineNumber() + hidden);
  }
  viewport()->update();
  ShowSelection();
  AskForSight();
}

/// An edit behind a CR or in front of an LF makes or breaks a line beyond its own characters.
bool PaneView::CutsLineBreak(const PaneEdit& edit) const {
  const std::string_view text = pane_.Characters();
  const std::size_t end = edit.position + edit.inserted.size();
  return (edit.position > 0 && text[edit.position - 1] == '\r') || (end < text.size() && text[end] == '\n');
}

void PaneView::ShowAll() {
  const QScopedValueRollback showing(showing_, true);
  const int top = firstVisibleBlock().blockNumber();
  setPlainText(ToScreen(pane_.Characters()));
  const QTextBlock now = document()->findBlockByNumber(top);
  if (now.isValid()) verticalScrollBar()->setValue(now.firstLineNumber());
}

void PaneView::ShowSelection() {
  if (native_ || SelectionOnScreen() == pane_.Selection()) return;
  const QScopedValueRollback showing(showing_, true);
  const int scrolled = verticalScrollBar()->value();
  QTextCursor cursor = textCursor();
  cursor.setPosition(DocumentPosition(pane_.Selection().start));
  cursor.setPosition(DocumentPosition(pane_.Selection().End()), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  verticalScrollBar()->setValue(scrolled);
  AskForSight();
}

/// Many a command moves the caret through the text before it rests: only where it rests is scrolled to.
void PaneView::AskForSight() {
  if (std::exchange(scrollAsked_, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        scrollAsked_ = false;
        BringCaretIntoSight();
      },
      Qt::QueuedConnection);
}

/// Where tools are kept above the text, the caret's line goes to where none of them covers it. What can't be
/// scrolled down that far begins lower.
void PaneView::BringCaretIntoSight() {
  if (!viewport()->rect().contains(cursorRect())) centerCursor();
  const QRect line = cursorRect()
                         .united(CaretAt(PanePosition(textCursor().block().position())))
                         .translated(viewport()->pos());
  const QRect free = UncoveredPart(*this, line);
  if (free.height() >= height()) return ShowFrom(0);
  if (free.contains(line)) return;
  const int lineHeight = std::max(1, cursorRect().height());
  const int wanted = verticalScrollBar()->value() + (line.center().y() - free.center().y()) / lineHeight;
  verticalScrollBar()->setValue(wanted);
  if (wanted < 0) ShowFrom(ShownFrom() - wanted * lineHeight);
}

void PaneView::ShowFrom(int top) {
  if (ShownFrom() == top) return;
  QMargins margins = viewportMargins();
  margins.setTop(headHeight_ + top);
  setViewportMargins(margins);
}

// From the document to the pane.

void PaneView::TakeSelection() {
  if (!showing_ && !native_) pane_.Select(SelectionOnScreen());
}

/// The toolkit may report more than was changed; what is the same as before is left alone.
void PaneView::TakeOver(const NativeChange& change) {
  const int length = document()->characterCount() - 1;
  const int end = std::min(change.position + change.added, length);
  const std::size_t behind = PanePosition(length) - PanePosition(end);
  const std::size_t start = PanePosition(change.position);
  const std::string_view before = pane_.Characters();
  const std::string_view old =
      before.substr(start, before.size() - std::min(before.size() - start, behind) - start);
  const std::string now = DocumentText(change.position, end);
  const Trimmed same = CommonEnds(old, now);
  const std::string inserted = now.substr(same.front, now.size() - same.front - same.back);
  const Range range{start + same.front, old.size() - same.front - same.back};
  if (range.length > 0 || !inserted.empty()) {
    expected_ = {range.start, RichText(std::string(before.substr(range.start, range.length))),
                 RichText(inserted)};
    pane_.UserReplaced(range, inserted);
  }
  TakeSelection();
}

}  // namespace tarvik::screen
