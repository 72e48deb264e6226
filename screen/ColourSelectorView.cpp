#include "screen/ColourSelectorView.h"

#include <QKeyEvent>
#include <QPushButton>

#include "screen/pages/FormLayout.h"

namespace tarvik::screen {
namespace {

/// Each colour beside the button that takes it.
QLayout* Page(ColourSelector& selector, const FormLayout& in) {
  constexpr int kSwatch = 18;
  constexpr QMargins kMargins(8, 8, 8, 8);
  std::vector<QWidget*> cells;
  for (int i = 0; i < ColourSelector::kColours; ++i) {
    QWidget* const colour = in.Show(selector.Label1(i));
    colour->setFixedSize(kSwatch, kSwatch);
    static_cast<QLabel*>(colour)->setFrameShape(QFrame::Box);
    QWidget* const button = in.Show(selector.Command1(i));
    static_cast<QPushButton*>(button)->setAutoDefault(true);  // the one with the focus stands out
    cells.insert(cells.end(), {colour, button});
  }
  QGridLayout* const grid = Grid(cells, 2);
  grid->setContentsMargins(kMargins);
  grid->setVerticalSpacing(4);
  grid->setHorizontalSpacing(8);
  return grid;
}

}  // namespace

ColourSelectorView::ColourSelectorView(ColourSelector& selector, QWidget& swatch)
    : QFrame(&swatch, Qt::Popup), FormView(selector), selector_(selector), swatch_(swatch) {
  setFrameShape(QFrame::StyledPanel);
  setAttribute(Qt::WA_NoMouseReplay);  // a click on the swatch closes it and does not open it again
  setAccessibleName(tr("Text colour"));
  setLayout(Page(selector, FormLayout(bindings_)));
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
