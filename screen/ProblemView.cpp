#include "screen/ProblemView.h"

#include <QKeyEvent>
#include <QListView>

#include "screen/pages/FormLayout.h"

namespace tarvik::screen {

ProblemView::ProblemView(ProblemPanel& panel, Bindings& bindings, QWidget* parent)
    : PanelFrame(
          panel.frame, bindings, [&panel] { panel.close.Click(); }, parent),
      panel_(panel) {
  constexpr int kMargin = 6;
  constexpr int kSwatch = 10;
  const FormLayout in(bindings);
  SetParts({Named(in.Show(panel.list), tr("Problems")), in.Show(panel.explain), in.Show(panel.close)});
  auto* const list = qobject_cast<QListView*>(parts()[0]);
  list->setIconSize({kSwatch, kSwatch});
  list->setUniformItemSizes(false);
  list->setWordWrap(true);
  list->setResizeMode(QListView::Adjust);
  setLayout(Framed({kMargin, kMargin, kMargin, kMargin},
                   Row({parts()[0], Column({parts()[1], Stretch(), parts()[2]})})));
}

void ProblemView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F1) return panel_.explain.Click();
  PanelFrame::keyPressEvent(event);
}

}  // namespace tarvik::screen
