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
  const QRectF ink = line.naturalTextRect();
  if (place.left() <= ink.left() && place.right() >= ink.right()) {
    return {static_cast<std::size_t>(begin), static_cast<std::size_t>(end)};
  }
  const int first = std::clamp(line.xToCursor(place.left()) - kOverhang, begin, end);
  const int last = std::clamp(line.xToCursor(place.right()) + kOverhang, begin, end);
  return {static_cast<std::size_t>(first), static_cast<std::size_t>(last)};
}

/// Calls `take` with each line of the block that stands in what is being painted, and with that place in the
/// block's own layout.
template <class Take>
void ForEachLine(const QPainter& painter, const QTextBlock& block, const QPointF& offset, const Take& take) {
  const QRectF visible = painter.clipBoundingRect().translated(-offset);
  const QTextLayout& layout = *block.layout();
  for (int i = 0; i < layout.lineCount(); ++i) {
    const QTextLine line = layout.lineAt(i);
    if (line.y() > visible.bottom()) break;
    if (line.y() + line.height() >= visible.top()) take(line, visible);
  }
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
  PaintBehind(painter, block, offset);
  painter.setPen(InkOf(kBlack));
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
    ForEachLine(painter, block, offset, [&](const QTextLine& line, const QRectF&) {
      PaintLine(painter, line, offset, static_cast<std::size_t>(paneStart),
                static_cast<std::size_t>(length - 1), selected);
    });
  }
  painter.setPen(InkOf(kBlack));
  if (block.contains(caret)) {
    layout.drawCursor(&painter, offset, caret - block.position(), cursorWidth());
  } else if (caret < -1 && composing) {
    layout.drawCursor(&painter, offset, layout.preeditAreaPosition() - (caret + 2), cursorWidth());
  }
}

Range PaneView::ExposedPart(const QPainter& painter, const QTextBlock& block, const QPointF& offset) {
  Range exposed;
  ForEachLine(painter, block, offset, [&exposed](const QTextLine& line, const QRectF& visible) {
    const auto [first, last] = Exposed(line, visible);
    if (exposed.length == 0) exposed.start = first;
    exposed.length = last - exposed.start;
  });
  return exposed;
}

void PaneView::ForEachPlace(const QPainter& painter, const QTextBlock& block, const QPointF& offset,
                            Range range, const std::function<void(const QRectF&)>& take) {
  ForEachLine(painter, block, offset, [&](const QTextLine& line, const QRectF&) {
    const auto begin = static_cast<std::size_t>(line.textStart());
    const std::size_t end = begin + static_cast<std::size_t>(line.textLength());
    const std::size_t from = std::clamp(range.start, begin, end);
    const std::size_t to = std::clamp(range.End(), begin, end);
    if (from == to) return;
    const qreal left = line.cursorToX(static_cast<int>(from));
    const qreal right = line.cursorToX(static_cast<int>(to));
    take(QRectF(offset.x() + left, offset.y() + line.y(), right - left, line.height()));
  });
}

/// Somebody who heard of an edit sooner may have the window painted before the other colours follow it.
std::pair<Colour, std::size_t> PaneView::ColourFrom(std::size_t position) const {
  const ColourRuns& own = pane_.Content().colours;
  const ColourRuns* const shown = ShownColours();
  const std::pair<Colour, std::size_t> found{own.At(position), own.EndOf(own.RunAt(position))};
  if (!shown || shown->size() != own.size() || IsOfUser(found.first)) return found;
  return {shown->At(position), std::min(found.second, shown->EndOf(shown->RunAt(position)))};
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
  for (std::size_t at = first; at < last;) {
    const std::size_t position = blockStart + at;
    if (position >= pane_.Content().size()) break;
    const bool inSelection = at >= from && at < to;
    const auto [colour, end] = ColourFrom(position);
    std::size_t next = std::min(last, end - blockStart);
    if (at < from) next = std::min(next, from);
    if (inSelection) next = std::min(next, to);
    painter.setPen(inSelection ? palette().color(group, QPalette::HighlightedText) : InkOf(colour));
    for (const QGlyphRun& run : line.glyphRuns(static_cast<int>(at), static_cast<int>(next - at))) {
      painter.drawGlyphRun(offset, run);
    }
    at = next;
  }
}

}  // namespace tarvik::screen
