#include "screen/widgets/DeviceView.h"

#include <QFile>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "screen/widgets/Conversions.h"
#include "screen/widgets/Keys.h"

// A static library's resources are linked only when they are asked for, from outside any namespace.
static void InitialiseDevices() { Q_INIT_RESOURCE(devices); }

namespace tarvik::screen {
namespace {

constexpr QSizeF kDrawing(900, 1000);
// In the drawing's units: a label, the caption in it and the words below, and the line below the device.
constexpr qreal kLabelHeight = 56;
constexpr qreal kCaptionHeight = 23;
constexpr qreal kWordsHeight = 17;
constexpr qreal kHintHeight = 25;
constexpr qreal kSmallestFont = 9;      // in pixels
constexpr int kSmallestWithWords = 22;  // the height of a label, in pixels
constexpr QColor kLight(0x1F, 0x66, 0xA8);
constexpr QColor kDark(0x7C, 0xBC, 0xF0);
constexpr const char* kUsualHint = "Click on a hat/switch to insert into your file";

QByteArray Content(const QString& name) {
  QFile file(QLatin1String(":/devices/") + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool IsDark(const QWidget& widget) {
  return widget.palette().color(QPalette::Window).lightness() <
         widget.palette().color(QPalette::WindowText).lightness();
}

QColor Accent(const QWidget& widget, int alpha = 255) {
  QColor colour = IsDark(widget) ? kDark : kLight;
  colour.setAlpha(alpha);
  return colour;
}

QFont FontOf(const QWidget& widget, qreal height) {
  QFont font = widget.font();
  font.setPixelSize(static_cast<int>(std::lround(std::max(kSmallestFont, height))));
  return font;
}

/// With 1 and -1 at the edges.
QPointF FromMiddle(const QPointF& place, const QRectF& area) {
  const QPointF way = place - area.center();
  return {2 * way.x() / area.width(), 2 * way.y() / area.height()};
}

void ShowTip(const QHelpEvent& rests, const QString& tip, QWidget& widget) {
  QToolTip::showText(rests.globalPos(), tip, &widget);
}

}  // namespace

// A label.

DeviceLabel::DeviceLabel(DeviceView& device, QString place)
    : QAbstractButton(&device), device_(device), place_(std::move(place)) {
  setFocusPolicy(Qt::ClickFocus);
  setAttribute(Qt::WA_Hover);
}

void DeviceLabel::SetStatements(QStringList statements) {
  if (statements == statements_) return;
  statements_ = std::move(statements);
  update();
}

QString DeviceLabel::Tip() const {
  QString tip = toolTip().toHtmlEscaped();
  for (const QString& statement : statements_) tip += QLatin1String("<br/>") + statement.toHtmlEscaped();
  return QStringLiteral("<p style='white-space: pre'>%1</p>").arg(tip);
}

bool DeviceLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QAbstractButton::event(event);
  device_.TakeAssigned();
  ShowTip(static_cast<const QHelpEvent&>(*event), Tip(), *this);
  return true;
}

QBrush DeviceLabel::Filling(bool lit) const {
  constexpr int kDown = 110;
  constexpr int kHot = 55;
  constexpr int kAssigned = 60;
  if (lit) return QColor(0xFF, 0xC0, 0x80);
  const bool hot = underMouse() || device_.Pointed() == this;
  const int state = isDown() ? kDown : hot ? kHot : 0;
  return Accent(*this, state + (statements_.isEmpty() ? 0 : kAssigned));
}

void DeviceLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool lit = isCheckable() && isChecked();
  const qreal line = hasFocus() ? 3 : 1.5;
  const QRectF box = QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2);
  painter.setPen(hasFocus() || lit ? QPen(Accent(*this), line) : QPen(Qt::NoPen));
  painter.setBrush(Filling(lit));
  painter.drawRoundedRect(box, box.height() / 6, box.height() / 6);
  painter.setPen(lit ? QColor(Qt::black) : palette().color(QPalette::WindowText));
  PaintWords(painter);
}

/// A label that is too low for two lines has its caption alone.
void DeviceLabel::PaintWords(QPainter& painter) const {
  constexpr QRectF kCaption(0, 2, 0, 28);
  constexpr QRectF kWords(0, 27, 0, 26);
  const qreal unit = height() / kLabelHeight;
  const auto line = [&](const QRectF& part) {
    return QRectF(0, part.top() * unit, width(), part.height() * unit);
  };
  const bool withWords = !place_.isEmpty() && height() >= kSmallestWithWords;
  painter.setFont(FontOf(*this, kCaptionHeight * unit));
  painter.drawText(withWords ? line(kCaption) : QRectF(rect()), Qt::AlignCenter | Qt::TextHideMnemonic,
                   text().trimmed());
  if (!withWords) return;
  painter.setFont(FontOf(*this, kWordsHeight * unit));
  painter.drawText(line(kWords), Qt::AlignCenter | Qt::TextDontClip, place_);
}

void DeviceLabel::mousePressEvent(QMouseEvent* event) {
  const bool isHeld =
      event->button() == Qt::LeftButton && device_.Hold(*this, FromMiddle(event->position(), QRectF(rect())));
  if (isHeld) {
    setFocus(Qt::MouseFocusReason);
  } else {
    QAbstractButton::mousePressEvent(event);
  }
}

void DeviceLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (!device_.LetGo()) QAbstractButton::mouseReleaseEvent(event);
}

void DeviceLabel::keyPressEvent(QKeyEvent* event) {
  const QPoint way = WayOf(event->key());
  const bool presses = event->key() == Qt::Key_Space || event->modifiers() == Qt::ControlModifier;
  if (presses && !event->isAutoRepeat() && device_.Hold(*this, way)) return;
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
  if (!way.isNull()) return device_.MoveFocus(*this, way);
  QAbstractButton::keyPressEvent(event);
}

void DeviceLabel::keyReleaseEvent(QKeyEvent* event) {
  if (event->isAutoRepeat() || !device_.LetGo()) QAbstractButton::keyReleaseEvent(event);
}

void DeviceLabel::focusInEvent(QFocusEvent* event) {
  QAbstractButton::focusInEvent(event);
  device_.MakeTabStop(*this);
  device_.update();
}

void DeviceLabel::focusOutEvent(QFocusEvent* event) {
  QAbstractButton::focusOutEvent(event);
  device_.update();
}

void DeviceLabel::enterEvent(QEnterEvent* event) {
  QAbstractButton::enterEvent(event);
  device_.Point(this);
}

void DeviceLabel::leaveEvent(QEvent* event) {
  QAbstractButton::leaveEvent(event);
  device_.Point(nullptr);
}

// The drawing.

DeviceView::DeviceView(const QString& drawing, Bindings& bindings)
    : bindings_(bindings), hint_(QString::fromLatin1(kUsualHint)) {
  InitialiseDevices();
  drawing_ = Content(drawing);
  setMouseTracking(true);
  setMinimumSize(300, 330);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize DeviceView::sizeHint() const { return {450, 500}; }

void DeviceView::Add(Label& label, const QString& place) {
  auto* const button = new DeviceLabel(*this, place);
  button->setAccessibleDescription(place);
  QString id = ToScreen(label.FullName());
  id.replace(u'(', u'-').remove(u')');
  spots_.push_back({button, id, &label});
  bindings_.Bind(label, *button);
  bindings_.Keep(label.Visible.Changed.Connect([this] { Draw(); }));
  bindings_.Keep(label.Caption.Changed.Connect([this] { ForgetAssigned(); }));
  if (spots_.size() == 1) button->setFocusPolicy(Qt::StrongFocus);
}

void DeviceView::ForgetAssigned() {
  isTaken_ = false;
  update();
}

void DeviceView::TakeAssigned() {
  if (isTaken_) return;
  isTaken_ = true;
  const Assigned assigned = ask_();
  for (const Spot& spot : spots_) {
    const auto found = assigned.find(spot.shown);
    spot.label->SetStatements(found == assigned.end() ? QStringList() : found->second);
  }
}

void DeviceView::MakeTabStop(DeviceLabel& label) {
  for (const Spot& spot : spots_) spot.label->setFocusPolicy(Qt::ClickFocus);
  label.setFocusPolicy(Qt::StrongFocus);
}

/// Draws the device in the colours of the desktop, without the labels that are hidden.
void DeviceView::Draw() {
  QByteArray svg = drawing_;
  const qsizetype from = svg.indexOf("<style>") + 7;
  const qsizetype to = svg.indexOf("</style>");
  QByteArray rules = IsDark(*this) ? Content(QStringLiteral("dark.css")) : svg.mid(from, to - from);
  for (const Spot& spot : spots_) {
    if (spot.label->isHidden()) rules += "#" + spot.id.toLatin1() + " { display: none }\n";
  }
  svg.replace(from, to - from, rules);
  renderer_.load(svg);
  picture_ = QPixmap();
  PlaceLabels();
  update();
}

QTransform DeviceView::ToWidget() const {
  const qreal scale = std::min(width() / kDrawing.width(), height() / kDrawing.height());
  QTransform transform;
  transform.translate((width() - kDrawing.width() * scale) / 2, (height() - kDrawing.height() * scale) / 2);
  return transform.scale(scale, scale);
}

QRectF DeviceView::RectOf(const QString& element) const {
  const QRectF place = renderer_.transformForElement(element).mapRect(renderer_.boundsOnElement(element));
  return ToWidget().mapRect(place);
}

QRectF DeviceView::ControlOf(const Spot& spot) const {
  const QString control = spot.id + QLatin1String("-control");
  return renderer_.elementExists(control) ? RectOf(control) : QRectF();
}

void DeviceView::PlaceLabels() {
  for (const Spot& spot : spots_)
    spot.label->setGeometry(RectOf(spot.id + QLatin1String("-box")).toAlignedRect());
}

bool DeviceView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !pointed_) return QWidget::event(event);
  TakeAssigned();
  ShowTip(static_cast<const QHelpEvent&>(*event), pointed_->Tip(), *this);
  return true;
}

/// The picture is kept as it was drawn until its size changes.
void DeviceView::PaintPicture() {
  const qreal ratio = devicePixelRatioF();
  const QSize pixels = size() * ratio;
  if (picture_.size() == pixels) return;
  picture_ = QPixmap(pixels);
  picture_.setDevicePixelRatio(ratio);
  picture_.fill(Qt::transparent);
  QPainter painter(&picture_);
  renderer_.render(&painter, ToWidget().mapRect(QRectF({}, kDrawing)));
}

/// The control glows, and its label is framed.
void DeviceView::PaintLit(QPainter& painter, const Spot& spot) const {
  constexpr QColor kLit(0xFF, 0x96, 0x00);
  constexpr int kGlow = 130;
  constexpr int kFrame = 3;
  QColor glow = kLit;
  glow.setAlpha(kGlow);
  painter.setPen(QPen(kLit, kFrame));
  painter.setBrush(glow);
  painter.drawEllipse(ControlOf(spot));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(spot.label->geometry()).adjusted(-kFrame, -kFrame, kFrame, kFrame));
}

void DeviceView::paintEvent(QPaintEvent*) {
  TakeAssigned();
  PaintPicture();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawPixmap(0, 0, picture_);
  for (const Spot& spot : spots_) {
    if (!spot.label->isHidden() && isLit_(*spot.shown)) PaintLit(painter, spot);
    const bool shown = spot.label == pointed_ || (spot.label->hasFocus() && !spot.label->isHidden());
    if (!shown) continue;
    painter.setPen(QPen(Accent(*this, 200), 2));
    painter.setBrush(Accent(*this, 70));
    painter.drawEllipse(ControlOf(spot));
  }
  painter.setPen(palette().color(QPalette::WindowText));
  const QRectF hint = RectOf(QStringLiteral("hint"));
  painter.setFont(FontOf(*this, kHintHeight * hint.height() / 40));
  painter.drawText(hint, Qt::AlignCenter, hint_);
}

void DeviceView::resizeEvent(QResizeEvent*) {
  if (!renderer_.isValid()) Draw();
  PlaceLabels();
}

void DeviceView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange && renderer_.isValid()) Draw();
}

// The mouse on a control.

DeviceLabel* DeviceView::LabelAt(const QPointF& place) const {
  const Spot* nearest = nullptr;
  for (const Spot& spot : spots_) {
    const QRectF control = ControlOf(spot);
    if (spot.label->isHidden() || !control.contains(place)) continue;
    const auto area = [](const QRectF& rect) { return rect.width() * rect.height(); };
    if (!nearest || area(control) < area(ControlOf(*nearest))) nearest = &spot;
  }
  return nearest ? nearest->label : nullptr;
}

void DeviceView::Point(DeviceLabel* label) {
  if (pointed_ == label) return;
  for (DeviceLabel* const changed : {pointed_, label}) {
    if (changed) changed->update();
  }
  pointed_ = label;
  update();
}

void DeviceView::mouseMoveEvent(QMouseEvent* event) {
  Point(LabelAt(event->position()));
  setCursor(pointed_ ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void DeviceView::mousePressEvent(QMouseEvent* event) {
  DeviceLabel* const label = LabelAt(event->position());
  if (!label || event->button() != Qt::LeftButton) return;
  label->setFocus(Qt::MouseFocusReason);
  const auto spot = std::ranges::find(spots_, label, &Spot::label);
  if (!Hold(*label, FromMiddle(event->position(), ControlOf(*spot)))) label->click();
}

void DeviceView::mouseReleaseEvent(QMouseEvent*) { LetGo(); }

void DeviceView::HoldDown(Press press, std::function<void()> release) {
  press_ = std::move(press);
  release_ = std::move(release);
}

bool DeviceView::Hold(const DeviceLabel& label, QPointF place) {
  const auto spot = std::ranges::find(spots_, &label, &Spot::label);
  if (!press_ || spot == spots_.end()) return false;
  press_(*spot->shown, place);
  return true;
}

bool DeviceView::LetGo() {
  if (release_) release_();
  return release_ != nullptr;
}

void DeviceView::leaveEvent(QEvent*) { Point(nullptr); }

// The keyboard.

void DeviceView::MoveFocus(const DeviceLabel& from, QPoint direction) {
  DeviceLabel* nearest = nullptr;
  int least = 0;
  for (const Spot& spot : spots_) {
    const QPoint way = spot.label->geometry().center() - from.geometry().center();
    const int ahead = QPoint::dotProduct(way, direction);
    const int aside = std::abs(way.x() * direction.y()) + std::abs(way.y() * direction.x());
    if (spot.label->isHidden() || ahead <= 0 || aside > 2 * ahead) continue;
    const int distance = ahead + 2 * aside;
    if (!nearest || distance < least) {
      nearest = spot.label;
      least = distance;
    }
  }
  if (nearest) nearest->setFocus(Qt::TabFocusReason);
}

}  // namespace tarvik::screen
