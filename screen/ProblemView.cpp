#include "screen/ProblemView.h"

#include <QKeyEvent>
#include <QListView>

#include "screen/pages/FormLayout.h"

namespace tarvik::screen {

ProblemView::ProblemView(ProblemPanel& panel, Bindings& bindings, QWidget* parent)
    : QFrame(parent), panel_(panel) {
  constexpr int kMargin = 6;
  constexpr int kSwatch = 10;
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  bindings.BindControl(panel.frame, *this);
  bindings.Place(panel.frame, *this, Unit::Pixel);
  const FormLayout in(bindings);
  parts_ = {Named(in.Show(panel.list), tr("Problems")), in.Show(panel.explain), in.Show(panel.close)};
  auto* const list = qobject_cast<QListView*>(parts_[0]);
  list->setIconSize({kSwatch, kSwatch});
  list->setUniformItemSizes(false);
  list->setWordWrap(true);
  list->setResizeMode(QListView::Adjust);
  setLayout(Row({parts_[0], Column({parts_[1], Stretch(), parts_[2]})}));
  layout()->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
}

void ProblemView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return panel_.close.Click();
  if (event->key() == Qt::Key_F1) return panel_.explain.Click();
  QFrame::keyPressEvent(event);
}

}  // namespace tarvik::screen
