#include "screen/widgets/ToolbarView.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionToolButton>
#include <algorithm>

#include "screen/widgets/Conversions.h"

namespace tarvik::screen {
namespace {

constexpr int kIcon = 16;
constexpr int kButton = 25;
constexpr int kDivider = 9;
constexpr int kMargin = 3;
constexpr int kSwatch = 15;

}  // namespace

SwatchView::SwatchView(PictureBox& swatch, Bindings& bindings, QWidget* parent)
    : QToolButton(parent), swatch_(swatch) {
  setFocusPolicy(Qt::TabFocus);
  setAutoRaise(true);
  bindings.BindControl(swatch, *this);
  setAccessibleName(toolTip());
  bindings.Bind(swatch.BackColor, [this] { update(); });
  connect(this, &QAbstractButton::clicked, this, [this] { swatch_.Click(); });
}

void SwatchView::paintEvent(QPaintEvent*) {
  QStyleOptionToolButton option;
  initStyleOption(&option);
  QPainter painter(this);
  style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, this);
  QRect square(0, 0, kSwatch, kSwatch);
  square.moveCenter(rect().center());
  painter.fillRect(square, palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
  painter.fillRect(square.adjusted(1, 1, -1, -1), palette().color(QPalette::Base));
  painter.fillRect(square.adjusted(2, 2, -2, -2), ToScreenColour(swatch_.BackColor.Get()));
}

ToolbarView::ToolbarView(Toolbar& toolbar, PictureBox& swatch, int swatchButton, Bindings& bindings,
                         QWidget* parent)
    : QWidget(parent), toolbar_(toolbar), overflow_(new QToolButton(this)) {
  const auto rearrange = [this] { Rearrange(); };
  for (int i = 1; i <= toolbar.Count(); ++i) {
    if (i == swatchButton) {
      positions_.push_back({new SwatchView(swatch, bindings, this), nullptr});
      continue;
    }
    ToolbarButton& button = toolbar.Buttons(i);
    positions_.push_back({new QToolButton(this), &button});
    QToolButton& widget = *positions_.back().widget;
    widget.setFocusPolicy(Qt::NoFocus);
    widget.setIconSize({kIcon, kIcon});
    bindings.Bind(button, widget);
    bindings.Keep(button.Image.Changed.Connect(rearrange));
    bindings.Keep(button.Visible.Changed.Connect(rearrange));
  }
  overflow_->setObjectName(QStringLiteral("MoreButtons"));
  overflow_->setText(QStringLiteral("\u00BB"));
  overflow_->setAccessibleName(tr("More buttons"));
  overflow_->setAutoRaise(true);
  connect(overflow_, &QAbstractButton::clicked, this, [this] { ShowOverflow(); });
  bindings.BindControl(toolbar, *this);
  bindings.Bind(toolbar.Flat, [this] {
    for (const Position& position : positions_) position.widget->setAutoRaise(toolbar_.Flat);
  });
  bindings.Bind(toolbar.Wrappable, rearrange);
}

int ToolbarView::WidthOf(const Position& position) const {
  if (!position.button) return kButton;
  if (!position.button->Visible) return 0;
  return position.button->Image.Get().empty() ? kDivider : kButton;
}

std::pair<std::vector<QRect>, int> ToolbarView::Arrange(int width) const {
  int needed = 2 * kMargin;
  for (const Position& position : positions_) needed += WidthOf(position);
  const bool cut = !toolbar_.Wrappable && needed > width;
  const int end = width - kMargin - (cut ? kButton : 0);
  std::vector<QRect> places;
  QPoint at(kMargin, kMargin);
  for (const Position& position : positions_) {
    const int space = WidthOf(position);
    if (toolbar_.Wrappable && at.x() + space > end) at = {kMargin, at.y() + kButton};
    const bool fits = at.x() + space <= end;
    places.push_back(fits ? QRect(at, QSize(space, kButton)) : QRect());
    at.rx() += space;
  }
  return {places, at.y() + kButton + kMargin};
}

int ToolbarView::heightForWidth(int width) const { return Arrange(width).second; }
QSize ToolbarView::sizeHint() const { return {width(), heightForWidth(width())}; }
QSize ToolbarView::minimumSizeHint() const { return {4 * kButton, kButton + 2 * kMargin}; }

bool ToolbarView::event(QEvent* event) {
  constexpr QEvent::Type kLeaving[] = {QEvent::WindowDeactivate, QEvent::WindowBlocked, QEvent::Hide};
  if (std::find(std::begin(kLeaving), std::end(kLeaving), event->type()) != std::end(kLeaving))
    PutOutLights();
  return QWidget::event(event);
}

/// No button hears that the pointer has left it while another window comes up above.
void ToolbarView::PutOutLights() const {
  for (const Position& position : positions_) {
    QEvent left(QEvent::Leave);
    if (position.widget->underMouse()) QApplication::sendEvent(position.widget, &left);
  }
}

void ToolbarView::resizeEvent(QResizeEvent*) { Rearrange(); }

void ToolbarView::Rearrange() {
  const std::vector<QRect> places = Arrange(width()).first;
  dividers_.clear();
  for (std::size_t i = 0; i < positions_.size(); ++i) {
    const Position& position = positions_[i];
    const bool divider = WidthOf(position) == kDivider;
    if (divider) dividers_.push_back(places[i]);
    position.widget->setVisible(!divider && !places[i].isEmpty());
    position.widget->setGeometry(places[i]);
  }
  overflow_->setVisible(places.back().isEmpty());
  overflow_->setGeometry(width() - kMargin - kButton, kMargin, kButton, kButton);
  updateGeometry();
  update();
}

void ToolbarView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  for (const QRect& place : dividers_) {
    painter.drawLine(place.center().x(), place.top() + 4, place.center().x(), place.bottom() - 4);
  }
}

void ToolbarView::ShowOverflow() {
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const Position& position : positions_) {
    if (!position.widget->isHidden()) continue;
    if (WidthOf(position) == kDivider) {
      menu->addSeparator();
      continue;
    }
    QAction* const action = menu->addAction(position.widget->icon(), position.widget->toolTip());
    action->setEnabled(position.widget->isEnabled());
    action->setCheckable(position.widget->isChecked());
    action->setChecked(position.widget->isChecked());
    // Not before the menu is through with its own event: what is pressed may wait, and the menu ends
    // meanwhile.
    connect(
        action, &QAction::triggered, position.widget, [&position] { position.widget->click(); },
        Qt::QueuedConnection);
  }
  menu->popup(overflow_->mapToGlobal(overflow_->rect().bottomLeft()));
}

}  // namespace tarvik::screen
