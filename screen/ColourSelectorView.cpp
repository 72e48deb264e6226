#include "screen/ColourSelectorView.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>

namespace tarvik::screen {
namespace {

constexpr int kSwatchSize = 18;

}  // namespace

ColourSelectorView::ColourSelectorView(ColourSelector& selector, QWidget& swatch)
    : QFrame(&swatch, Qt::Popup), FormView(selector), selector_(selector), swatch_(swatch) {
  setFrameShape(QFrame::StyledPanel);
  setAttribute(Qt::WA_NoMouseReplay);  // a click on the swatch closes it and does not open it again
  setAccessibleName(tr("Text colour"));
  auto* const rows = new QGridLayout(this);
  rows->setContentsMargins(8, 8, 8, 8);
  rows->setSpacing(4);
  rows->setHorizontalSpacing(8);
  for (int i = 0; i < ColourSelector::kColours; ++i) {
    auto* const colour = new QLabel;
    colour->setFixedSize(kSwatchSize, kSwatchSize);
    colour->setFrameShape(QFrame::Box);
    auto* const button = new QPushButton;
    button->setAutoDefault(true);
    rows->addWidget(colour, i, 0);
    rows->addWidget(button, i, 1);
    bindings_.Bind(selector.Label1(i), *colour);
    bindings_.Bind(selector.Command1(i), *button);
  }
  bindings_.Shows(selector, *this);
  bindings_.Bind(selector.Visible, [this] {
    if (!selector_.Visible) {
      hide();
      return;
    }
    adjustSize();
    move(PlaceToOpen());
    show();
  });
}

/// Under the swatch, or at the end of the toolbar when the swatch has no room there.
QPoint ColourSelectorView::PlaceToOpen() const {
  if (swatch_.isVisible()) return swatch_.mapToGlobal(QPoint(0, swatch_.height() + 2));
  const QWidget& toolbar = *swatch_.parentWidget();
  return toolbar.mapToGlobal(QPoint(toolbar.width() - width(), toolbar.height()));
}

void ColourSelectorView::showEvent(QShowEvent* event) {
  QFrame::showEvent(event);
  selector_.Activate();
  if (auto* const first = qobject_cast<QWidget*>(bindings_.Find(selector_.Command1(0)))) first->setFocus();
}

void ColourSelectorView::hideEvent(QHideEvent* event) {
  QFrame::hideEvent(event);
  selector_.Deactivate();
}

void ColourSelectorView::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_Escape) {
    close();
  } else if (key == Qt::Key_Down || key == Qt::Key_Up) {
    focusNextPrevChild(key == Qt::Key_Down);
  } else {
    QFrame::keyPressEvent(event);
  }
}

}  // namespace tarvik::screen
