#include "screen/ExplainView.h"

#include <QScrollArea>

#include "screen/pages/FormLayout.h"

namespace tarvik::screen {

ExplainView::ExplainView(ExplainPanel& panel, Bindings& bindings, QWidget* parent)
    : PanelFrame(
          panel.frame, bindings, [&panel] { panel.close.Click(); }, parent) {
  constexpr int kMargin = 6;
  const FormLayout in(bindings);
  QLabel* const words = Wrapped(in.Show(panel.text));
  words->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  words->setTextInteractionFlags(Qt::TextSelectableByMouse);
  // A statement with many layers is longer than the panel is high.
  auto* const area = new QScrollArea;
  area->setWidget(words);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  SetParts({Named(area, tr("Explanation")), in.Show(panel.close)});
  setLayout(Framed({kMargin, kMargin, kMargin, kMargin}, Row({parts()[0], Column({parts()[1], Stretch()})})));
}

}  // namespace tarvik::screen
