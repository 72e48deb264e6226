#include "screen/EditorPane.h"

#include <QApplication>
#include <QFontDatabase>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolTip>
#include <algorithm>
#include <sstream>
#include <utility>

#include "language/Explain.h"
#include "screen/EditorPaneParts.h"
#include "screen/widgets/Conversions.h"
#include "text/CodePage.h"
#include "text/Contrast.h"

namespace tarvik::screen {
namespace {

constexpr int kFixedTab = 8;  // characters
constexpr int kWheelStep = 120;
constexpr int kTipWidth = 400;
constexpr std::size_t kShortestWord = 2;
constexpr std::size_t kLongestWord = 100;
constexpr std::string_view kRemark = "rem";  // which stands in nearly every line of a tidy file
constexpr double kVisible = 3;  // the contrast of a mark, by the guidelines that `kReadable` is from
constexpr Colour kChanged = Rgb(217, 138, 0);
constexpr Colour kHit = Rgb(255, 150, 0);
constexpr Colour kAlone = Rgb(210, 40, 40);  // a bracket

// How strong the tints are, in per cent.
constexpr int kLineTint = 6;
constexpr int kMarkTint = 15;   // letters can be read on it as on the background
constexpr int kFrameTint = 75;  // of the line around it

}  // namespace

EditorPane::EditorPane(Editor& editor, Workbench& workbench, Document& document, Bindings& bindings,
                       QWidget* parent)
    : PaneView(document.text, bindings, parent),
      editor_(editor),
      settings_(workbench.settings),
      documents_(workbench.documents),
      document_(document),
      changes_(workbench.changedLines),
      live_(workbench.liveColours),
      search_(workbench.search),
      problems_(workbench.problems),
      models_(workbench.models),
      stick_(workbench.follow),
      margin_(new Margin(*this)),
      head_(new Head(*this)) {
  FollowSettings(bindings);
  FollowWorkbench(workbench, bindings);
  for (PropertyBase* const part :
       std::initializer_list<PropertyBase*>{&document.Dirty, &workbench.documents.TabOf(document).Caption,
                                            &workbench.documents.tabs.SelectedItem}) {
    bindings.Bind(*part, [this] { head_->Show(); });
  }
  for (PropertyBase* const part :
       std::initializer_list<PropertyBase*>{&editor.mnuViewTileVertically.Checked, &settings_.FileHeads}) {
    bindings.Bind(*part, [this] { ShowHead(); });
  }
  ShowBars();
  Follow();
}

void EditorPane::FollowSettings(Bindings& bindings) {
  for (Property<int>* const option :
       {&settings_.LineNumbers, &settings_.ChangedLines, &settings_.MarkProblems}) {
    bindings.Bind(*option, [this] {
      ShowMargin();
      viewport()->update();
    });
  }
  for (Property<int>* const option :
       {&settings_.CurrentLine, &settings_.MatchingBrackets, &settings_.OtherPlaces}) {
    bindings.Bind(*option, [this] {
      CaretMoved();
      viewport()->update();
    });
  }
  for (Property<int>* const option : {&settings_.Zoom, &settings_.FixedPitch}) {
    bindings.Bind(*option, [this] { ShowFont(); });
  }
}

void EditorPane::FollowWorkbench(Workbench& workbench, Bindings& bindings) {
  bindings.Keep(workbench.changedLines.Begun.Connect([this](const Document& document) {
    if (&document == &document_) margin_->update();
  }));
  bindings.Keep(workbench.liveColours.Changed.Connect([this](const Document& document) {
    if (&document == &document_) viewport()->update();
  }));
  bindings.Keep(workbench.follow.Changed.Connect([this] { viewport()->update(); }));
  bindings.Keep(workbench.follow.Shows.Connect([this] { ShowGlow(); }));
  bindings.Keep(workbench.search.Changed.Connect([this] { viewport()->update(); }));
  bindings.Keep(workbench.problems.Changed.Connect([this] {
    viewport()->update();
    margin_->update();
  }));
}

void EditorPane::Follow() {
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { CaretMoved(); });
  connect(this, &QPlainTextEdit::selectionChanged, this, [this] { CaretMoved(); });
  connect(this, &QPlainTextEdit::textChanged, this, [this] { CaretMoved(); });
  connect(this, &QPlainTextEdit::blockCountChanged, this, [this] { ShowMargin(); });
  connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& place, int scrolled) {
    if (scrolled != 0) {
      margin_->scroll(0, scrolled);
    } else {
      margin_->update(0, margin_->TextTop() + place.y(), margin_->width(), place.height());
    }
  });
}

// The margin.

void EditorPane::ShowMargin() {
  const int width = margin_->Width();
  margin_->setVisible(width > 0);
  SetSideWidth(width);
  const int top = contentsRect().top() + (head_->isHidden() ? 0 : head_->Height());
  margin_->setGeometry(contentsRect().left(), top, width, contentsRect().bottom() + 1 - top);
  margin_->update();
}

void EditorPane::ShowHead() {
  head_->setVisible(editor_.mnuViewTileVertically.Checked && settings_.FileHeads != 0);
  head_->setGeometry(contentsRect().left(), contentsRect().top(), contentsRect().width(), head_->Height());
  SetHeadHeight(head_->isHidden() ? 0 : head_->Height());
}

QColor EditorPane::Visible(Colour mark) const {
  return ToScreenColour(WithContrast(mark, FromScreenColour(palette().color(QPalette::Base)), kVisible));
}

void EditorPane::ShowBars() {
  barColour_ = Visible(kChanged);
  margin_->update();
}

void EditorPane::changeEvent(QEvent* event) {
  PaneView::changeEvent(event);
  if (event->type() == QEvent::FontChange) ShowMargin();
  if (event->type() == QEvent::PaletteChange) ShowBars();
}

void EditorPane::resizeEvent(QResizeEvent* event) {
  PaneView::resizeEvent(event);
  ShowHead();
  ShowMargin();
}

// The font.

qreal EditorPane::Enlarged(qreal size) const {
  return size * std::clamp(settings_.Zoom.Get(), zoom::kLeast, zoom::kMost) / zoom::kNormal;
}

QFont EditorPane::TextFont() const {
  QFont font = PaneView::TextFont();
  if (settings_.FixedPitch != 0) {
    font.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    font.setStyleHint(QFont::Monospace);
  }
  font.setPointSizeF(std::min<qreal>(Enlarged(font.pointSizeF()), kLargestLetters));
  return font;
}

qreal EditorPane::TabDistance() const {
  if (settings_.FixedPitch != 0) return kFixedTab * QFontMetricsF(TextFont()).horizontalAdvance(u' ');
  return Enlarged(PaneView::TabDistance());
}

void EditorPane::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return PaneView::wheelEvent(event);
  event->accept();
  wheel_ += event->angleDelta().y();
  const int steps = wheel_ / kWheelStep;
  wheel_ %= kWheelStep;
  if (steps != 0) editor_.ZoomTo(settings_.Zoom + steps * zoom::kStep);
}

// The caret.

EditorPane::Marks EditorPane::MarksOfCaret() const {
  const std::string_view text = pane().Characters();
  const Range selection = pane().Selection();
  const bool showsBrackets = settings_.MatchingBrackets != 0 && selection.length == 0;
  return {textCursor().blockNumber(), showsBrackets ? BracketsAt(text, selection.start) : BracketPair(),
          settings_.OtherPlaces != 0 ? WordAround(selection) : Range()};
}

Range EditorPane::WordAround(Range selection) const {
  const std::string_view text = pane().Characters();
  const Range word = WordAt(text, selection.start);
  if (selection.End() > word.End() || word.length < kShortestWord || word.length > kLongestWord) return {};
  return LowerCase(text.substr(word.start, word.length)) == kRemark ? Range() : word;
}

/// No more is painted anew than looks another way, since this is part of every key.
void EditorPane::CaretMoved() {
  const Marks before = std::exchange(marks_, MarksOfCaret());
  if (before != marks_) {
    Update(before);
    Update(marks_);
  }
  const Range word = marks_.word;
  if (IsOnTop()) wordChanged(std::string(pane().Characters().substr(word.start, word.length)));
}

void EditorPane::Update(const Marks& marks) {
  UpdateLine(marks.line);
  for (const Range& bracket : {marks.brackets.opening, marks.brackets.closing}) {
    if (bracket.length > 0) UpdateLine(document()->findBlock(DocumentPosition(bracket.start)).blockNumber());
  }
}

void EditorPane::MarkWord(const std::string& word) {
  if (word_ == word) return;
  UpdatePlaces();
  word_ = word;
  UpdatePlaces();
}

void EditorPane::UpdateLine(int line) {
  const QTextBlock block = document()->findBlockByNumber(line);
  if (!block.isValid()) return;
  const QRect place = blockBoundingGeometry(block).translated(contentOffset()).toAlignedRect();
  viewport()->update(0, place.top(), viewport()->width(), place.height());
  margin_->update(0, margin_->TextTop() + place.top(), margin_->width(), place.height());
}

void EditorPane::UpdatePlaces() {
  const std::string_view text = pane().Characters();
  if (word_.empty()) return;
  int top = static_cast<int>(contentOffset().y());
  for (QTextBlock block = firstVisibleBlock(); block.isValid() && top < viewport()->height();
       block = block.next()) {
    const std::size_t start = std::min(PanePosition(block.position()), text.size());
    const std::size_t end = std::min(start + static_cast<std::size_t>(block.length() - 1), text.size());
    if (FindWord(text, word_, start, end) < end) UpdateLine(block.blockNumber());
    top += static_cast<int>(blockBoundingRect(block).height());
  }
}

void EditorPane::focusInEvent(QFocusEvent* event) {
  PaneView::focusInEvent(event);
  CaretMoved();
  Update(marks_);
}

void EditorPane::focusOutEvent(QFocusEvent* event) {
  PaneView::focusOutEvent(event);
  Update(marks_);
}

// Painting.

QColor EditorPane::Tint(const QColor& ink, int percent) const {
  const QColor base = palette().color(QPalette::Base);
  const auto mix = [percent](int from, int to) { return from + (to - from) * percent / 100; };
  return {mix(base.red(), ink.red()), mix(base.green(), ink.green()), mix(base.blue(), ink.blue())};
}

void EditorPane::PaintBehind(QPainter& painter, const QTextBlock& block, const QPointF& offset) const {
  if (settings_.CurrentLine != 0 && hasFocus() && block.blockNumber() == marks_.line) {
    QRectF band = blockBoundingRect(block).translated(offset);
    band.setLeft(0);
    band.setRight(viewport()->width());
    painter.fillRect(band, Tint(InkOf(kBlack), kLineTint));
  }
  PaintGlow(painter, block, offset);
  if (!word_.empty() && settings_.OtherPlaces != 0) PaintPlaces(painter, block, offset);
  if (search_.Count() > 0) PaintHits(painter, block, offset);
  if (settings_.MarkProblems != 0) PaintProblems(painter, block, offset);
  if (!hasFocus()) return;
  PaintBracket(painter, block, offset, marks_.brackets.opening);
  PaintBracket(painter, block, offset, marks_.brackets.closing);
}

void EditorPane::PaintPlaces(QPainter& painter, const QTextBlock& block, const QPointF& offset) const {
  const std::size_t start = PanePosition(block.position());
  const auto length = static_cast<std::size_t>(block.length() - 1);
  // Somebody who heard of an edit sooner may have the window painted before the edit is shown.
  if (start + length > pane().Characters().size()) return;
  const std::string_view text = pane().Characters().substr(start, length);
  const Range seen = ExposedPart(painter, block, offset);
  const QColor ink = palette().color(QPalette::Active, QPalette::Highlight);
  for (std::size_t at = WordAt(text, seen.start).start; at < seen.End(); at += word_.size()) {
    at = FindWord(text, word_, at, seen.End());
    if (at >= seen.End()) return;
    if (start + at == marks_.word.start && IsOnTop()) continue;
    PaintMark(painter, block, offset, {at, word_.size()}, ink);
  }
}

void EditorPane::PaintHits(QPainter& painter, const QTextBlock& block, const QPointF& offset) const {
  const std::size_t start = PanePosition(block.position());
  const Range seen = ExposedPart(painter, block, offset);
  const std::vector<std::size_t>& hits = search_.HitsIn(document_);
  const std::size_t length = search_.Length();
  const std::size_t first = start + seen.start;
  auto hit = std::lower_bound(hits.begin(), hits.end(), first - std::min(first, length));
  for (; hit != hits.end() && *hit < start + seen.End(); ++hit) {
    if (*hit < start) continue;
    PaintMark(painter, block, offset, {*hit - start, length}, ToScreenColour(kHit));
  }
}

void EditorPane::PaintGlow(QPainter& painter, const QTextBlock& block, const QPointF& offset) const {
  const std::size_t start = PanePosition(block.position());
  const std::size_t end = start + static_cast<std::size_t>(block.length() - 1);
  for (const model::Mention& glow : stick_.Glow()) {
    if (glow.file != FileKindOf(document_)) continue;
    const std::size_t from = std::max(glow.range.start, start);
    const std::size_t to = std::min(glow.range.End(), end);
    if (from < to) PaintMark(painter, block, offset, {from - start, to - from}, ToScreenColour(kHit));
  }
}

void EditorPane::ShowGlow() {
  const auto here = std::ranges::find(stick_.Glow(), FileKindOf(document_), &model::Mention::file);
  if (here != stick_.Glow().end()) BringIntoView(here->range);
}

void EditorPane::BringIntoView(Range place) {
  const QTextBlock block = document()->findBlock(DocumentPosition(place.start));
  const QRectF shown = blockBoundingGeometry(block).translated(contentOffset());
  if (!block.isValid() || (shown.top() >= 0 && shown.bottom() <= viewport()->height())) return;
  const int room = verticalScrollBar()->pageStep();
  verticalScrollBar()->setValue(block.firstLineNumber() - room / 3);
}

void EditorPane::PaintProblems(QPainter& painter, const QTextBlock& block, const QPointF& offset) const {
  const std::size_t start = PanePosition(block.position());
  const Range seen = ExposedPart(painter, block, offset);
  for (const model::Problem& problem : problems_.In(document_, {start + seen.start, seen.length})) {
    const std::size_t from = std::max(problem.range.start, start);
    if (problem.range.End() <= from) continue;
    ForEachPlace(
        painter, block, offset, {from - start, problem.range.End() - from},
        [&](const QRectF& place) { PaintWave(painter, place, Visible(ColourOf(problem.rule->severity))); });
  }
}

/// A wavy line along the lower edge of a place, at least one wave long.
void EditorPane::PaintWave(QPainter& painter, const QRectF& place, const QColor& colour) {
  constexpr qreal kHeight = 2;
  QPolygonF wave;
  const qreal right = std::max(place.right(), place.left() + 2 * kHeight);
  bool isUp = false;
  for (qreal x = place.left(); x <= right; x += kHeight, isUp = !isUp) {
    wave.append({x, place.bottom() - (isUp ? kHeight + 0.5 : 0.5)});
  }
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 1));
  painter.drawPolyline(wave);
  painter.restore();
}

// What a pointer that rests is told.

bool EditorPane::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return PaneView::viewportEvent(event);
  const auto& rests = static_cast<const QHelpEvent&>(*event);
  const QString tip = TipAt(rests.pos());
  if (tip.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(rests.globalPos(), tip, viewport());
  }
  return true;
}

/// What is wrong with it and what to do, and what it means.
QString EditorPane::TipAt(const QPoint& place) const {
  const std::optional<std::size_t> position = LetterAt(place);
  if (!position) return {};
  const auto shown = [](const std::string& words) { return ToScreen(words).toHtmlEscaped(); };
  QStringList parts;
  const bool tellsProblems = settings_.MarkProblems != 0;
  if (const model::Problem* const problem = tellsProblems ? problems_.At(document_, *position) : nullptr) {
    parts += QStringLiteral("%1<br/><i>%2</i>").arg(shown(problem->text), shown(problem->advice));
  }
  QStringList lines;
  std::istringstream meaning(model::Hover(models_.Pair(), models_.Names(), FileKindOf(document_), *position));
  for (std::string line; std::getline(meaning, line);) lines += shown(line);
  if (!lines.isEmpty()) parts += lines.join(QLatin1String("<br/>"));
  if (parts.isEmpty()) return {};
  return QStringLiteral("<table width=\"%1\"><tr><td>%2</td></tr></table>")
      .arg(QString::number(kTipWidth), parts.join(QLatin1String("<hr/>")));
}

/// The character that is shown there; none beside the text.
std::optional<std::size_t> EditorPane::LetterAt(const QPoint& place) const {
  QTextCursor cursor = cursorForPosition(place);
  if (cursorRect(cursor).left() > place.x()) cursor.movePosition(QTextCursor::PreviousCharacter);
  QTextCursor behind = cursor;
  behind.movePosition(QTextCursor::NextCharacter);
  const QRect from = cursorRect(cursor);
  const bool isThere = from.top() <= place.y() && place.y() <= from.bottom() && from.left() <= place.x() &&
                       (behind.block() != cursor.block() || place.x() <= cursorRect(behind).left());
  return isThere ? std::optional(PanePosition(cursor.position())) : std::nullopt;
}

/// A bracket without another one is framed in a colour of its own.
void EditorPane::PaintBracket(QPainter& painter, const QTextBlock& block, const QPointF& offset,
                              Range bracket) const {
  const std::size_t start = PanePosition(block.position());
  if (bracket.length == 0 || bracket.start < start) return;
  if (bracket.End() > start + static_cast<std::size_t>(block.length() - 1)) return;
  const bool alone = marks_.brackets.opening.length == 0 || marks_.brackets.closing.length == 0;
  const QColor ink = alone ? ToScreenColour(kAlone) : palette().color(QPalette::Active, QPalette::Highlight);
  PaintMark(painter, block, offset, {bracket.start - start, bracket.length}, ink);
}

void EditorPane::PaintMark(QPainter& painter, const QTextBlock& block, const QPointF& offset, Range range,
                           const QColor& ink) const {
  painter.setPen(Tint(ink, kFrameTint));
  painter.setBrush(Tint(ink, kMarkTint));
  ForEachPlace(painter, block, offset, range,
               [&painter](const QRectF& place) { painter.drawRect(place.adjusted(0, 0, -1, -1)); });
}

}  // namespace tarvik::screen
