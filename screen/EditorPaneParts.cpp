#include "screen/EditorPaneParts.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QTextBlock>
#include <algorithm>

#include "screen/widgets/Conversions.h"

namespace tarvik::screen {
namespace {

// Of the margin, in pixels.
constexpr int kGap = 6;
constexpr int kBar = 3;
constexpr qreal kDot = 5;
constexpr qsizetype kFewestDigits = 3;

// How strong its tints are, in per cent.
constexpr int kMarginTint = 4;
constexpr int kNumberTint = 55;

// Of the head, in pixels.
constexpr int kHeadGap = 3;
constexpr int kHeadLine = 2;

}  // namespace

EditorPane::Margin::Margin(EditorPane& pane) : QWidget(&pane), pane_(pane) { setCursor(Qt::ArrowCursor); }

int EditorPane::Margin::Width() const {
  const bool numbers = pane_.settings_.LineNumbers != 0;
  const bool marks = pane_.settings_.ChangedLines != 0 || pane_.settings_.MarkProblems != 0;
  if (!numbers) return marks ? kBar + kGap : 0;
  const auto digits = std::max<qsizetype>(kFewestDigits, QString::number(pane_.blockCount()).size());
  return 2 * kGap + QFontMetrics(pane_.font()).horizontalAdvance(u'0') * static_cast<int>(digits) + kBar;
}

void EditorPane::Margin::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), pane_.Tint(pane_.InkOf(kBlack), kMarginTint));
  painter.setFont(pane_.font());
  const int begin = event->rect().top() - TextTop();
  const int end = event->rect().bottom() - TextTop();
  QPointF offset = pane_.contentOffset();
  for (QTextBlock block = pane_.firstVisibleBlock(); block.isValid(); block = block.next()) {
    const QRectF place = pane_.blockBoundingRect(block).translated(offset);
    if (place.top() > end) break;
    if (place.bottom() >= begin) PaintBlock(painter, block, place.translated(0, TextTop()));
    offset.ry() += place.height();
  }
}

void EditorPane::Margin::PaintBlock(QPainter& painter, const QTextBlock& block, const QRectF& place) const {
  const QColor ink = pane_.InkOf(kBlack);
  if (pane_.settings_.LineNumbers != 0) {
    const bool current = block.blockNumber() == pane_.marks_.line;
    painter.setPen(current ? ink : pane_.Tint(ink, kNumberTint));
    const QRectF line(0, place.top(), width() - kBar - kGap, QFontMetricsF(pane_.font()).height());
    painter.drawText(line, Qt::AlignRight | Qt::AlignTop, QString::number(block.blockNumber() + 1));
  }
  if (pane_.settings_.ChangedLines != 0) PaintChange(painter, block, place);
  if (pane_.settings_.MarkProblems != 0) PaintProblem(painter, block, place);
}

void EditorPane::Margin::PaintChange(QPainter& painter, const QTextBlock& block, const QRectF& place) const {
  const LineChanges& changes = pane_.changes_.Of(pane_.document_);
  const auto line = static_cast<std::size_t>(block.blockNumber());
  const QColor& colour = pane_.barColour_;
  const int left = width() - kBar;
  if (changes.IsChanged(line)) painter.fillRect(QRectF(left, place.top(), kBar, place.height()), colour);
  const auto wedge = [&](qreal y) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(QPolygonF({{left - 2.0, y - 4}, {left - 2.0, y + 4}, {left + 3.0, y}}));
  };
  if (changes.LacksLinesBefore(line)) wedge(place.top());
  if (!block.next().isValid() && changes.LacksLinesBefore(line + 1)) wedge(place.bottom());
}

/// A dot for the gravest of those that begin in the line.
void EditorPane::Margin::PaintProblem(QPainter& painter, const QTextBlock& block, const QRectF& place) const {
  const Range line{pane_.PanePosition(block.position()), static_cast<std::size_t>(block.length())};
  std::optional<model::Severity> gravest;
  for (const model::Problem& problem : pane_.problems_.In(pane_.document_, line)) {
    if (problem.range.start < line.start) continue;
    gravest = std::min(gravest.value_or(problem.rule->severity), problem.rule->severity);
  }
  if (!gravest) return;
  const QPointF middle(1 + kDot / 2, place.top() + QFontMetricsF(pane_.font()).height() / 2);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(pane_.Visible(ColourOf(*gravest)));
  painter.drawEllipse(middle, kDot / 2, kDot / 2);
  painter.restore();
}

void EditorPane::Margin::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pane_.setFocus();
  first_ = LineAt(*event);
  SelectTo(first_);
}

void EditorPane::Margin::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() & Qt::LeftButton) SelectTo(LineAt(*event));
}

/// The pane is told as of any other click, after which it remembers its caret.
void EditorPane::Margin::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) pane_.pane().Click();
}

void EditorPane::Margin::wheelEvent(QWheelEvent* event) { QApplication::sendEvent(pane_.viewport(), event); }

int EditorPane::Margin::LineAt(const QMouseEvent& event) const {
  const QPoint place = pane_.viewport()->mapFromGlobal(event.globalPosition().toPoint());
  return pane_.cursorForPosition({0, place.y()}).blockNumber();
}

void EditorPane::Margin::SelectTo(int line) {
  const QTextBlock last = pane_.document()->findBlockByNumber(std::max(first_, line));
  QTextCursor cursor(last);
  cursor.movePosition(last.next().isValid() ? QTextCursor::NextBlock : QTextCursor::EndOfBlock);
  cursor.setPosition(pane_.document()->findBlockByNumber(std::min(first_, line)).position(),
                     QTextCursor::KeepAnchor);
  pane_.setTextCursor(cursor);
}

EditorPane::Head::Head(EditorPane& pane) : QWidget(&pane), pane_(pane) {
  setCursor(Qt::ArrowCursor);
  setFont(QApplication::font());  // and not that of the text
}

int EditorPane::Head::Height() const { return fontMetrics().height() + 2 * kHeadGap; }

void EditorPane::Head::Show() {
  const bool modified = pane_.document_.Dirty == saved::kModified;
  const QString name = ToScreen(pane_.documents_.TabOf(pane_.document_).Caption.Get());
  setAccessibleName(modified ? name + u'*' : name);
  update();
}

void EditorPane::Head::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool onTop = pane_.IsOnTop();
  QFont font = painter.font();
  font.setBold(onTop);
  painter.setFont(font);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  painter.setPen(palette().color(QPalette::WindowText));
  const QRect place = rect().adjusted(2 * kHeadGap, 0, -2 * kHeadGap, 0);
  painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft,
                   painter.fontMetrics().elidedText(accessibleName(), Qt::ElideMiddle, place.width()));
  const QColor line = palette().color(QPalette::Active, onTop ? QPalette::Highlight : QPalette::Mid);
  const int thick = onTop ? kHeadLine : 1;
  painter.fillRect(0, height() - thick, width(), thick, line);
}

void EditorPane::Head::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) pane_.setFocus();
}

}  // namespace tarvik::screen
