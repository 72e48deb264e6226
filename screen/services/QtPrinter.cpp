#include "screen/services/QtPrinter.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTextLayout>
#include <algorithm>

#include "screen/widgets/Conversions.h"
#include "screen/windows/WindowRoom.h"

namespace tarvik::screen {
namespace {

constexpr qreal kTwipsPerInch = 1440;
constexpr qreal kTwipsPerPoint = 20;
constexpr qreal kMillimetresPerInch = 25.4;
constexpr qreal kTabWidth = 720;             // twips, as the panes have it
constexpr QSize kPreview(960, 760);          // in which all of its tools have room
constexpr std::size_t kLongestPiece = 4096;  // characters of one line laid out at a time

Failure Broken() { return {error::kPrinter, "Printer error", 0}; }

/// Without any printer the toolkit offers a file that has no name.
bool HasTarget(const QPrinter& device) {
  return device.outputFormat() == QPrinter::NativeFormat ? device.isValid()
                                                         : !device.outputFileName().isEmpty();
}

/// A name that no file has, made of the given one.
QString FreeName(const QString& path) {
  const qsizetype ending = QFileInfo(path).suffix().size();
  const qsizetype place = path.size() - (ending > 0 ? ending + 1 : 0);
  QString free = path;
  for (int i = 2; QFileInfo::exists(free); ++i)
    free = QString(path).insert(place, QStringLiteral(" (%1)").arg(i));
  return free;
}

/// Whether a file was written to its end: where the disk was full the toolkit does not tell.
bool IsWhole(const QString& path) {
  constexpr qint64 kEnd = 16;
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && file.seek(std::max<qint64>(0, file.size() - kEnd)) &&
         file.readAll().contains("%%EOF");
}

/// The font in twips. Whoever calls it sees to letters that are too large for a page.
QFont FontOf(const std::string& name, float points, bool bold) {
  QFont font(ToScreen(name));
  font.setPixelSize(qRound((points < 1 ? ToScreenSize(points) : points) * kTwipsPerPoint));
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

/// A part of a line of the text: the rest of it, or as much of a very long one as is taken at once.
struct LinePiece {
  std::size_t start;
  std::size_t length;
  bool cut;

  LinePiece(std::string_view text, std::size_t at) : start(at) {
    const std::string_view window = text.substr(at, kLongestPiece + 1);
    const std::size_t end = window.find("\r\n");
    length = std::min({end, window.size(), kLongestPiece});
    cut = end == std::string_view::npos && start + length < text.size();
  }
};

QList<QTextLayout::FormatRange> Colours(const FormattedText& text, const LinePiece& piece) {
  QList<QTextLayout::FormatRange> colours;
  const std::size_t end = std::min(piece.start + piece.length, text.colours.size());
  for (std::size_t at = piece.start; at < end;) {
    const std::size_t run = text.colours.RunAt(at);
    const std::size_t to = std::min(text.colours.EndOf(run), end);
    QTextCharFormat format;
    format.setForeground(ToScreenColour(text.colours.runs()[run].colour));
    colours.push_back({static_cast<int>(at - piece.start), static_cast<int>(to - at), format});
    at = to;
  }
  return colours;
}

/// Wraps a piece at `width`. The last visual line of a piece that is cut may not be whole: it belongs to the
/// next piece.
int LayOut(QTextLayout& layout, const LinePiece& piece, qreal width) {
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setTabStopDistance(kTabWidth);
  layout.setTextOption(option);
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLeadingIncluded(true);
    line.setLineWidth(width);
  }
  layout.endLayout();
  return piece.cut && layout.lineCount() > 1 ? layout.lineCount() - 1 : layout.lineCount();
}

/// Puts `print` in the place of what the preview does itself by its button, which would be a set-up of
/// another kind, with choices of pages that no printing of this program knows.
void OnPrint(const QPrintPreviewDialog& preview, const std::function<void()>& print) {
  for (QAction* const action : preview.findChildren<QAction*>()) {
    if (action->text() != QPrintPreviewDialog::tr("Print")) continue;
    action->disconnect(SIGNAL(triggered(bool)));
    QObject::connect(action, &QAction::triggered, &preview, print);
  }
}

}  // namespace

QPrinter& QtPrinter::Device() {
  if (!device_ || !HasTarget(*device_)) device_.emplace(QPrinter::HighResolution);
  return *device_;
}

bool QtPrinter::Works() const {
  return painter_.isActive() && device_->printerState() != QPrinter::Error &&
         device_->printerState() != QPrinter::Aborted;
}

bool QtPrinter::IsThere() {
  return (device_ && HasTarget(*device_)) || !QPrinterInfo::availablePrinterNames().isEmpty();
}

void QtPrinter::Preview(const std::string& title, const PrintDocumentOn& print) {
  if (ShowPages(ToScreen(title), print)) print(PagesGo::OnPaper);
}

bool QtPrinter::ShowPages(const QString& title, const PrintDocumentOn& print) {
  QPrinter& device = Device();
  QPrintPreviewDialog dialog(&device, QApplication::activeWindow());
  dialog.setWindowTitle(QStringLiteral("Print preview of %1").arg(title));
  dialog.resize(kPreview.boundedTo(RoomOnScreen(dialog)));
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [this, &print] {
    const QScopedValueRollback rollback(onScreen_, true);
    print(PagesGo::OnScreen);
  });
  OnPrint(dialog, [this, &dialog, &device] {
    if (HasTarget(device) || Choose(device)) dialog.accept();
  });
  return dialog.exec() == QDialog::Accepted;
}

Outcome<> QtPrinter::SetUp() { return Choose(Device()); }

Outcome<> QtPrinter::Choose(QPrinter& device) {
  QPrintDialog dialog(&device, QApplication::activeWindow());
  dialog.setWindowTitle(QStringLiteral("Printer set-up"));
  dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize |
                    QAbstractPrintDialog::PrintCollateCopies);
  if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
    if (auto* accept = buttons->button(QDialogButtonBox::Ok)) accept->setText(QStringLiteral("OK"));
  }
  if (dialog.exec() != QDialog::Accepted) {
    return Failure{error::kDialogCancelled, "Cancel was selected.", 0};
  }
  file_.clear();
  return Done{};
}

/// The second document that goes to a file would take the place of the first: it gets a name of its own.
Outcome<> QtPrinter::ChooseTarget() {
  QPrinter& device = Device();
  if (!HasTarget(device)) return Broken();
  if (!file_.isEmpty()) {
    device.setOutputFileName(FreeName(file_));
  } else if (device.outputFormat() == QPrinter::PdfFormat) {
    file_ = device.outputFileName();
  }
  device.setDocName(QApplication::applicationName());
  return Done{};
}

/// A preview needs no place to print to.
Outcome<> QtPrinter::Begin() {
  if (!onScreen_) {
    if (auto chosen = ChooseTarget(); !chosen) return chosen;
  }
  QPrinter& device = *device_;
  if (!painter_.begin(&device)) return Broken();
  painter_.scale(device.logicalDpiX() / kTwipsPerInch, device.logicalDpiY() / kTwipsPerInch);
  lineTop_ = 0;
  return Done{};
}

Outcome<> QtPrinter::Print(const std::string& line, Weight weight) {
  if (!painter_.isActive()) {
    if (auto begun = Begin(); !begun) return begun;
  }
  if (!Works()) return Broken();
  const QFont font = FontOf("Arial", 10, weight == Weight::Bold);
  const QFontMetricsF metrics(font);
  painter_.setFont(font);
  painter_.drawText(QPointF(0, lineTop_ + metrics.ascent()), ToScreen(line));
  lineTop_ += metrics.lineSpacing();
  return Done{};
}

Outcome<Paper> QtPrinter::Sheet() {
  if (!Works()) return Broken();
  const QPageLayout layout = device_->pageLayout();
  const QRectF sheet = layout.fullRect(QPageLayout::Point);
  const QRectF printable = layout.paintRect(QPageLayout::Point);
  const auto twips = [](qreal points) { return qRound(points * kTwipsPerPoint); };
  return Paper{twips(sheet.width()), twips(sheet.height()), twips(printable.x()), twips(printable.y())};
}

Outcome<std::size_t> QtPrinter::FormatRange(const FormattedText& text, std::size_t from,
                                            const PrintArea& area) {
  if (!Works()) return Broken();
  const QFont font = FontOf(text.font, text.size, text.bold);
  const qreal left = area.left + text.indent;
  qreal y = area.top;
  while (from < text.text.size()) {
    const LinePiece piece(text.text, from);
    QTextLayout layout(ToScreen(text.text.substr(piece.start, piece.length)), font);
    layout.setFormats(Colours(text, piece));
    const int lines = LayOut(layout, piece, area.right - left);
    for (int i = 0; i < lines; ++i) {
      const QTextLine line = layout.lineAt(i);
      if (y + line.height() > area.bottom) return from;
      line.draw(&painter_, QPointF(left, y - line.y()));
      y += line.height();
      from = piece.start + static_cast<std::size_t>(line.textStart() + line.textLength());
    }
    if (!piece.cut) from = std::min(from + 2, text.text.size());  // the line break
  }
  return from;
}

Outcome<> QtPrinter::NewPage() {
  if (!Works() || !device_->newPage()) return Broken();
  lineTop_ = 0;
  return Done{};
}

Outcome<> QtPrinter::EndDocument() {
  if (!painter_.isActive()) return Broken();
  const bool worked = Works();
  if (!painter_.end() || !worked || device_->printerState() == QPrinter::Error) return Broken();
  if (!onScreen_ && !IsWritten()) return Broken();
  return Done{};
}

Outcome<> QtPrinter::PrintPages(const std::vector<QSizeF>& sizes, const PaintPage& paint) {
  if (auto chosen = SetUp(); !chosen) return chosen;
  if (auto target = ChooseTarget(); !target) return target;
  const QPageLayout before = device_->pageLayout();
  const bool wasFull = device_->fullPage();
  device_->setFullPage(true);
  bool works = true;
  for (std::size_t i = 0; works && i < sizes.size(); ++i) {
    device_->setPageLayout({QPageSize(sizes[i], QPageSize::Millimeter, {}, QPageSize::FuzzyMatch),
                            QPageLayout::Portrait,
                            {},
                            QPageLayout::Millimeter});
    works = i == 0 ? painter_.begin(&*device_) : device_->newPage();
    if (!works) break;
    painter_.save();
    painter_.scale(device_->logicalDpiX() / kMillimetresPerInch,
                   device_->logicalDpiY() / kMillimetresPerInch);
    paint(painter_, i);
    painter_.restore();
  }
  auto ended = EndDocument();
  device_->setFullPage(wasFull);
  device_->setPageLayout(before);
  return works ? ended : Broken();
}

bool QtPrinter::IsWritten() const {
  return device_->outputFormat() != QPrinter::PdfFormat || IsWhole(device_->outputFileName());
}

}  // namespace tarvik::screen
