#include "screen/EditorPane.h"

#include <QApplication>
#include <QFontDatabase>
#include <QMouseEvent>
#include <QPainter>
#include <QTextBlock>
#include <algorithm>
#include <utility>

#include "screen/widgets/Conversions.h"
#include "text/CodePage.h"
#include "text/Contrast.h"

namespace tarvik::screen {
namespace {

constexpr int kFixedTab = 8;  // characters
constexpr int kWheelStep = 120;
constexpr std::size_t kShortestWord = 2;
constexpr std::size_t kLongestWord = 100;
constexpr std::string_view kRemark = "rem";  // which stands in nearly every line of a tidy file
constexpr double kVisible = 3;  // the contrast of a mark, by the guidelines that `kReadable` is from
constexpr Colour kChanged = Rgb(217, 138, 0);
constexpr Colour kHit = Rgb(255, 150, 0);
constexpr Colour kAlone = Rgb(210, 40, 40);  // a bracket

// How strong the tints are, in per cent.
constexpr int kMarginTint = 4;
constexpr int kLineTint = 6;
constexpr int kMarkTint = 15;   // letters can be read on it as on the background
constexpr int kFrameTint = 75;  // of the line around it
constexpr int kNumberTint = 55;

}  // namespace

/// Beside the text: the numbers of the lines, and a bar where a line has changed. A click selects the line.
class EditorPane::Margin : public QWidget {
 public:
  explicit Margin(EditorPane& pane) : QWidget(&pane), pane_(pane) { setCursor(Qt::ArrowCursor); }

  /// Where the text begins beside it.
  [[nodiscard]] int TextTop() const { return pane_.viewport()->y() - y(); }
  [[nodiscard]] int Width() const {
    const bool numbers = pane_.settings_.LineNumbers != 0;
    const bool bars = pane_.settings_.ChangedLines != 0;
    if (!numbers) return bars ? kBar + kGap : 0;
    const auto digits = std::max<qsizetype>(kFewestDigits, QString::number(pane_.blockCount()).size());
    return 2 * kGap + QFontMetrics(pane_.font()).horizontalAdvance(u'0') * static_cast<int>(digits) + kBar;
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
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

  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton) return;
    pane_.setFocus();
    first_ = LineAt(*event);
    SelectTo(first_);
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    if (event->buttons() & Qt::LeftButton) SelectTo(LineAt(*event));
  }
  /// The pane is told as of any other click, after which it remembers its caret.
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) pane_.pane().Click();
  }
  void wheelEvent(QWheelEvent* event) override { QApplication::sendEvent(pane_.viewport(), event); }

 private:
  static constexpr int kGap = 6;
  static constexpr int kBar = 3;
  static constexpr qsizetype kFewestDigits = 3;

  void PaintBlock(QPainter& painter, const QTextBlock& block, const QRectF& place) const {
    const QColor ink = pane_.InkOf(kBlack);
    if (pane_.settings_.LineNumbers != 0) {
      const bool current = block.blockNumber() == pane_.marks_.line;
      painter.setPen(current ? ink : pane_.Tint(ink, kNumberTint));
      const QRectF line(0, place.top(), width() - kBar - kGap, QFontMetricsF(pane_.font()).height());
      painter.drawText(line, Qt::AlignRight | Qt::AlignTop, QString::number(block.blockNumber() + 1));
    }
    if (pane_.settings_.ChangedLines != 0) PaintChange(painter, block, place);
  }

  void PaintChange(QPainter& painter, const QTextBlock& block, const QRectF& place) const {
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

  [[nodiscard]] int LineAt(const QMouseEvent& event) const {
    const QPoint place = pane_.viewport()->mapFromGlobal(event.globalPosition().toPoint());
    return pane_.cursorForPosition({0, place.y()}).blockNumber();
  }

  /// From the line where the button went down to this one, with their ends. The caret stands in the upper
  /// one, which is on show.
  void SelectTo(int line) {
    const QTextBlock last = pane_.document()->findBlockByNumber(std::max(first_, line));
    QTextCursor cursor(last);
    cursor.movePosition(last.next().isValid() ? QTextCursor::NextBlock : QTextCursor::EndOfBlock);
    cursor.setPosition(pane_.document()->findBlockByNumber(std::min(first_, line)).position(),
                       QTextCursor::KeepAnchor);
    pane_.setTextCursor(cursor);
  }

  EditorPane& pane_;
  int first_ = 0;  // the line where the button went down
};

/// Above the text in the tiled view: the name of the file, marked where it is not saved, and a line while it
/// is the file on top. A click puts it there.
class EditorPane::Head : public QWidget {
 public:
  explicit Head(EditorPane& pane) : QWidget(&pane), pane_(pane) {
    setCursor(Qt::ArrowCursor);
    setFont(QApplication::font());  // and not that of the text
  }

  [[nodiscard]] int Height() const { return fontMetrics().height() + 2 * kGap; }
  void Show() {
    const bool modified = pane_.document_.Dirty == saved::kModified;
    const QString name = ToScreen(pane_.documents_.TabOf(pane_.document_).Caption.Get());
    setAccessibleName(modified ? name + u'*' : name);
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const bool onTop = pane_.IsOnTop();
    QFont font = painter.font();
    font.setBold(onTop);
    painter.setFont(font);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect place = rect().adjusted(2 * kGap, 0, -2 * kGap, 0);
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(accessibleName(), Qt::ElideMiddle, place.width()));
    const QColor line = palette().color(QPalette::Active, onTop ? QPalette::Highlight : QPalette::Mid);
    const int thick = onTop ? kLine : 1;
    painter.fillRect(0, height() - thick, width(), thick, line);
  }
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) pane_.setFocus();
  }
  // The text below hears of none of these.
  void mouseMoveEvent(QMouseEvent* /*event*/) override {}
  void mouseReleaseEvent(QMouseEvent* /*event*/) override {}

 private:
  static constexpr int kGap = 3;
  static constexpr int kLine = 2;

  EditorPane& pane_;
};

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
      margin_(new Margin(*this)),
      head_(new Head(*this)) {
  for (Property<int>* const option : {&settings_.LineNumbers, &settings_.ChangedLines}) {
    bindings.Bind(*option, [this] { ShowMargin(); });
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
  bindings.Keep(workbench.changedLines.Begun.Connect([this](const Document& document) {
    if (&document == &document_) margin_->update();
  }));
  bindings.Keep(workbench.liveColours.Changed.Connect([this](const Document& document) {
    if (&document == &document_) viewport()->update();
  }));
  for (PropertyBase* const part :
       std::initializer_list<PropertyBase*>{&document.Dirty, &workbench.documents.TabOf(document).Caption,
                                            &workbench.documents.tabs.SelectedItem}) {
    bindings.Bind(*part, [this] { head_->Show(); });
  }
  bindings.Bind(editor.mnuViewTileVertically.Checked, [this] { ShowHead(); });
  bindings.Keep(workbench.search.Changed.Connect([this] { viewport()->update(); }));
  ShowBars();
  Follow();
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
  head_->setVisible(editor_.mnuViewTileVertically.Checked);
  head_->setGeometry(contentsRect().left(), contentsRect().top(), contentsRect().width(), head_->Height());
  SetHeadHeight(head_->isHidden() ? 0 : head_->Height());
}

void EditorPane::ShowBars() {
  const Colour background = FromScreenColour(palette().color(QPalette::Base));
  barColour_ = ToScreenColour(WithContrast(kChanged, background, kVisible));
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
  if (!word_.empty() && settings_.OtherPlaces != 0) PaintPlaces(painter, block, offset);
  if (search_.Count() > 0) PaintHits(painter, block, offset);
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
