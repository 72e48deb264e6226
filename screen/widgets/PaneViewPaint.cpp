// How a pane's text is painted: line by line, each run of one colour in its colour.
#include <QPaintEvent>
#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

#include "screen/widgets/Conversions.h"
#include "screen/widgets/PaneView.h"

namespace tarvik::screen {
namespace {

constexpr qreal kLineBreakWidth = 5;  // of a selected line break, in pixels
constexpr int kOverhang = 2;          // characters beside the exposed ones whose ink may reach in

/// The characters of a line from first to before last that `place`, of the line's own layout, shows: without
/// wrapping a line is as long as it likes.
std::pair<std::size_t, std::size_t> Exposed(const QTextLine& line, const QRectF& place) {
  const int begin = line.textStart();
  const int end = begin + line.textLength();
  const int first = std::clamp(line.xToCursor(place.left()) - kOverhang, begin, end);
  const int last = std::clamp(line.xToCursor(place.right()) + kOverhang, begin, end);
  return {static_cast<std::size_t>(first), static_cast<std::size_t>(last)};
}

}  // namespace

void PaneView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.setClipRect(event->rect());
  QPointF offset = contentOffset();
  const int caret = getPaintContext().cursorPosition;
  for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
    const QRectF place = blockBoundingRect(block).translated(offset);
    if (place.top() > event->rect().bottom()) break;
    if (place.bottom() >= event->rect().top()) PaintBlock(painter, block, offset, caret);
    offset.ry() += place.height();
  }
}

void PaneView::PaintBlock(QPainter& painter, const QTextBlock& block, const QPointF& offset,
                          int caret) const {
  QTextLayout& layout = *block.layout();
  const bool composing = !layout.preeditAreaText().isEmpty();
  painter.setPen(Qt::black);
  if (composing) {
    layout.draw(&painter, offset);
  } else {
    const int start = block.position();
    const int paneStart = start + block.blockNumber();
    const int length = block.length();  // with the line break
    const QTextCursor cursor = textCursor();
    const int from = std::clamp(cursor.selectionStart() - start, 0, length);
    const int to = std::clamp(cursor.selectionEnd() - start, 0, length);
    const Range selected{static_cast<std::size_t>(from), static_cast<std::size_t>(to - from)};
    const QRectF visible = painter.clipBoundingRect().translated(-offset);
    for (int i = 0; i < layout.lineCount(); ++i) {
      const QTextLine line = layout.lineAt(i);
      if (line.y() > visible.bottom()) break;
      if (line.y() + line.height() < visible.top()) continue;
      PaintLine(painter, line, offset, static_cast<std::size_t>(paneStart),
                static_cast<std::size_t>(length - 1), selected);
    }
  }
  painter.setPen(Qt::black);
  if (block.contains(caret)) {
    layout.drawCursor(&painter, offset, caret - block.position(), cursorWidth());
  } else if (caret < -1 && composing) {
    layout.drawCursor(&painter, offset, layout.preeditAreaPosition() - (caret + 2), cursorWidth());
  }
}

void PaneView::PaintLine(QPainter& painter, const QTextLine& line, const QPointF& offset,
                         std::size_t blockStart, std::size_t textLength, Range selected) const {
  const auto x = [&line](std::size_t at) { return line.cursorToX(static_cast<int>(at)); };
  const auto group = hasFocus() ? QPalette::Active : QPalette::Inactive;
  const auto begin = static_cast<std::size_t>(line.textStart());
  const std::size_t end = begin + static_cast<std::size_t>(line.textLength());
  const std::size_t from = std::clamp(selected.start, begin, end);
  const std::size_t to = std::clamp(selected.End(), begin, end);
  const bool lineBreak = selected.start <= end && selected.End() > end && end == textLength;
  if (from < to || lineBreak) {
    const qreal width = x(to) - x(from) + (lineBreak ? kLineBreakWidth : 0);
    painter.fillRect(QRectF(offset.x() + x(from), offset.y() + line.y(), width, line.height()),
                     palette().brush(group, QPalette::Highlight));
  }
  const auto [first, last] = Exposed(line, painter.clipBoundingRect().translated(-offset));
  const ColourRuns& colours = pane_.Content().colours;
  for (std::size_t at = first; at < last;) {
    const std::size_t position = blockStart + at;
    if (position >= colours.size()) break;
    const bool inSelection = at >= from && at < to;
    std::size_t next = std::min(last, colours.EndOf(colours.RunAt(position)) - blockStart);
    if (at < from) next = std::min(next, from);
    if (inSelection) next = std::min(next, to);
    painter.setPen(inSelection ? palette().color(group, QPalette::HighlightedText)
                               : ToScreenColour(colours.At(position)));
    for (const QGlyphRun& run : line.glyphRuns(static_cast<int>(at), static_cast<int>(next - at))) {
      painter.drawGlyphRun(offset, run);
    }
    at = next;
  }
}

}  // namespace tarvik::screen
