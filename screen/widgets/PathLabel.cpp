#include "screen/widgets/PathLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace tarvik::screen {
namespace {

constexpr int kWidth = 360;

}  // namespace

PathLabel::PathLabel() {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize PathLabel::sizeHint() const { return {kWidth, fontMetrics().height()}; }

QString PathLabel::Shown() const {
  return fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
}

bool PathLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && Shown() != text()) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
  }
  return QLabel::event(event);
}

void PathLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(contentsRect(), static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), Shown());
}

}  // namespace tarvik::screen
