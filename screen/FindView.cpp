#include "screen/FindView.h"

#include <QKeyEvent>

#include "screen/pages/FormLayout.h"

namespace tarvik::screen {
namespace {

constexpr int kBarMargin = 8;
constexpr int kTextWidth = 320;
constexpr int kCountWidth = 110;

}  // namespace

FindView::FindView(FindBar& find, Bindings& bindings, QWidget* parent)
    : PanelFrame(
          find.frame, bindings, [&find] { find.Cancel(); }, parent),
      find_(find) {
  const FormLayout in(bindings);
  QWidget* const line = Named(in.Show(find.text), tr("Find"));
  line->setMaximumWidth(kTextWidth);
  QWidget* const count = in.Show(find.count);
  count->setFixedWidth(kCountWidth);
  SetParts({line, in.Show(find.previous), in.Show(find.next), in.Show(find.matchCase),
            in.Show(find.wholeWord), in.Show(find.close)});
  std::vector<Piece> row;
  for (QWidget* const part : parts()) {
    if (part == parts().back()) row.emplace_back(Stretch());
    row.emplace_back(part);
    if (part == line) row.emplace_back(count);
  }
  setLayout(Framed({kBarMargin, 2, kBarMargin, 2}, Row(row)));
}

void FindView::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
    return PanelFrame::keyPressEvent(event);
  (event->modifiers() & Qt::ShiftModifier ? find_.previous : find_.next).Click();
}

}  // namespace tarvik::screen
