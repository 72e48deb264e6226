#include "screen/SuggestionView.h"

#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

namespace tarvik::screen {
namespace {

constexpr int kMostRows = 8;
constexpr int kNarrowest = 160;
constexpr int kWidest = 520;

}  // namespace

SuggestionView::SuggestionView(SuggestionList& suggestions, Bindings& bindings,
                               std::function<QRect(std::size_t)> place, QWidget* parent)
    : ListStack(bindings, tr("Suggestions"), Ticks::None),
      suggestions_(suggestions),
      place_(std::move(place)) {
  setParent(parent);
  setFocusPolicy(Qt::NoFocus);
  setFrameShape(QFrame::StyledPanel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideRight);
  QPalette colours = palette();
  for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText}) {
    colours.setColor(QPalette::Inactive, role, colours.color(QPalette::Active, role));
  }
  setPalette(colours);
  Add(suggestions.list);
  bindings.Bind(suggestions.list.Visible, [this] { Show(); });
  bindings.Keep(suggestions.list.ItemsChanged.Connect([this] { Show(); }));
}

QSize SuggestionView::Needed() const {
  const int rows = std::clamp(model()->rowCount(), 1, kMostRows);
  const int frame = 2 * frameWidth();
  const int bar = model()->rowCount() > kMostRows ? verticalScrollBar()->sizeHint().width() : 0;
  const int wide = std::clamp(sizeHintForColumn(0) + frame + bar, kNarrowest, kWidest);
  return {std::min(wide, parentWidget()->width()), rows * sizeHintForRow(0) + frame};
}

void SuggestionView::Show() {
  setVisible(suggestions_.IsOpen());
  if (!suggestions_.IsOpen()) return;
  QToolTip::hideText();  // which may stand where the list is to
  const QRect word = place_(suggestions_.Anchor());
  const QSize size = Needed();
  const bool fitsBelow = word.bottom() + size.height() < parentWidget()->height();
  const int top = fitsBelow ? word.bottom() + 1 : word.top() - size.height();
  const int left = std::clamp(word.left(), 0, std::max(0, parentWidget()->width() - size.width()));
  setGeometry({{left, std::max(0, top)}, size});
  raise();
}

}  // namespace tarvik::screen
