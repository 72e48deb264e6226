// The page of the kneeboard's window: what is wanted on the left, and the page as it will be printed.
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <cmath>

#include "screen/kneeboard/SheetPainter.h"
#include "screen/pages/Pages.h"
#include "screen/widgets/Conversions.h"
#include "tools/printing/KneeboardForm.h"

namespace tarvik::screen {
namespace {

constexpr int kDesk = 12;  // pixels around the paper
constexpr double kInch = 25.4;
constexpr QSize kUsualView(560, 620);
constexpr QSize kLeastView(240, 200);

/// A page on the desk, with as many pixels to the millimetre as there is room for.
class SheetCanvas : public QWidget {
 public:
  explicit SheetCanvas(KneeboardForm& form) : form_(form) { setMouseTracking(true); }

  /// In pixels.
  [[nodiscard]] QRect PlaceOf(const kneeboard::Area& area) const {
    return QRectF(area.x * scale_ + kDesk, area.y * scale_ + kDesk, area.width * scale_, area.height * scale_)
        .toAlignedRect();
  }

  void SetScale(double pixelsPerMillimetre) {
    scale_ = pixelsPerMillimetre;
    const kneeboard::Sheet& sheet = form_.Sheet();
    setFixedSize(static_cast<int>(std::ceil(sheet.width * scale_)) + 2 * kDesk,
                 static_cast<int>(std::ceil(sheet.height * scale_)) + 2 * kDesk);
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const kneeboard::Sheet& sheet = form_.Sheet();
    QPainter painter(this);
    painter.translate(kDesk, kDesk);
    painter.fillRect(QRectF(0, 0, sheet.width * scale_, sheet.height * scale_), Qt::white);
    painter.scale(scale_ / kUnits, scale_ / kUnits);
    PaintSheet(painter, sheet, Palette::Of(form_.Job()), drawings_);
    PaintGlow(painter, sheet);
    PaintChosen(painter);
  }

  void mouseMoveEvent(QMouseEvent* event) override {
    setCursor(form_.LeadsSomewhere(SpotOf(*event)) ? Qt::PointingHandCursor : Qt::ArrowCursor);
  }

  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) form_.GoTo(SpotOf(*event));
  }

 private:
  /// What is pressed on the stick.
  void PaintGlow(QPainter& painter, const kneeboard::Sheet& sheet) const {
    constexpr QColor kGlow(0xFF, 0x96, 0x00, 90);
    for (const kneeboard::Target& each : sheet.targets) {
      if (!form_.Glows(each)) continue;
      const kneeboard::Area& area = each.area;
      painter.fillRect(QRectF(area.x * kUnits, area.y * kUnits, area.width * kUnits, area.height * kUnits),
                       kGlow);
    }
  }

  /// The line that the Enter key leads from.
  void PaintChosen(QPainter& painter) const {
    if (form_.ChosenLine() == nullptr) return;
    QPen pen(Qt::black);
    pen.setCosmetic(true);
    pen.setWidth(2);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const kneeboard::Area& area = form_.ChosenLine()->area;
    painter.drawRect(QRectF(area.x * kUnits, area.y * kUnits, area.width * kUnits, area.height * kUnits));
  }

  [[nodiscard]] kneeboard::Spot SpotOf(const QMouseEvent& event) const {
    return {(event.position().x() - kDesk) / scale_, (event.position().y() - kDesk) / scale_};
  }

  KneeboardForm& form_;
  DeviceDrawings drawings_;
  double scale_ = 1;
};

/// Page Up and Page Down turn the pages, the arrow keys choose a line, and Enter goes to its statement.
class SheetView : public QScrollArea {
 public:
  SheetView(KneeboardForm& form, Bindings& bindings) : form_(form), canvas_(new SheetCanvas(form)) {
    setAccessibleName(tr("Page"));
    setAlignment(Qt::AlignCenter);
    setBackgroundRole(QPalette::Mid);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(kLeastView);
    setWidget(canvas_);
    bindings.BindControl(form.Page, *this);
    bindings.Bind(form.Page.Caption,
                  [this] { setAccessibleDescription(ToScreen(form_.Page.Caption.Get())); });
    bindings.Keep(form.Changed.Connect([this] { Fit(); }));
    bindings.Keep(form.Following().Changed.Connect([this] { canvas_->update(); }));
    Fit();
  }

  [[nodiscard]] QSize sizeHint() const override { return kUsualView; }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QScrollArea::resizeEvent(event);
    Fit();
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_PageDown) return form_.Next_Click();
    if (event->key() == Qt::Key_PageUp) return form_.Previous_Click();
    if (event->key() == Qt::Key_Down) return Choose(1);
    if (event->key() == Qt::Key_Up) return Choose(-1);
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && form_.ChosenLine() != nullptr) return form_.GoToChosenLine();
    QScrollArea::keyPressEvent(event);
  }

 private:
  void Choose(int by) {
    form_.ChooseLine(by);
    if (form_.ChosenLine() == nullptr) return;
    const QRect place = canvas_->PlaceOf(form_.ChosenLine()->area);
    ensureVisible(place.center().x(), place.center().y(), place.width() / 2, place.height());
  }

  void Fit() { canvas_->SetScale(ScaleOf(static_cast<PageZoom>(form_.Zoom.ListIndex.Get()))); }

  /// The room counts without scroll bars, which come where it is not enough.
  [[nodiscard]] double ScaleOf(PageZoom zoom) const {
    const kneeboard::Sheet& sheet = form_.Sheet();
    const QSize room = maximumViewportSize() - QSize(2 * kDesk, 2 * kDesk);
    const double actual = logicalDpiX() / kInch;
    switch (zoom) {
      case PageZoom::Actual:
        return actual;
      case PageZoom::OneAndAHalf:
        return actual * 1.5;
      case PageZoom::Double:
        return actual * 2;
      case PageZoom::PageWidth:
        return (room.width() - style()->pixelMetric(QStyle::PM_ScrollBarExtent)) / sheet.width;
      default:
        return std::min((room.width() - 1) / sheet.width, (room.height() - 1) / sheet.height);
    }
  }

  KneeboardForm& form_;
  SheetCanvas* canvas_;
};

QWidget* Wishes(KneeboardForm& form, const FormLayout& in) {
  auto* const side = new QWidget;
  side->setLayout(Framed(
      {},
      Column(
          {Group("Pages", Column({in.Show(form.Devices), in.Show(form.Keyboard), in.Show(form.List),
                                  Fields({{"Order of the list", in.Show(form.Order)}})})),
           Group("What they say", Column({Fields({{"Layers", in.Show(form.Layers)}}), in.Show(form.Keys)})),
           Group("Paper", Column({Fields({{"Size", in.Show(form.Paper)}, {"Turned", in.Show(form.Turned)}}),
                                  in.Show(form.TwoOnASheet), in.Show(form.BlackAndWhite)})),
           Group("Pictures", Fields({{"PNG", in.Show(form.Resolution)}})), Stretch()})));
  side->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  return side;
}

}  // namespace

QLayout* Page(KneeboardForm& form, const FormLayout& in) {
  auto* const view = new SheetView(form, in.bindings());
  QWidget* const zoom = Named(in.Show(form.Zoom), QStringLiteral("Zoom"));
  QLayout* const pages =
      Column({Filling(view),
              Row({in.Show(form.Previous), in.Show(form.PageNumber), in.Show(form.Next), Stretch(), zoom})});
  return Column(
      {Filling(Row({Wishes(form, in), Filling(pages)})),
       Row({in.Show(form.Copy), Stretch(), in.Show(form.SaveAs), in.Show(form.Print), in.Show(form.Done)})});
}

}  // namespace tarvik::screen
