#include "screen/NoticeView.h"

#include <QEvent>
#include <algorithm>

#include "screen/pages/FormLayout.h"
#include "screen/widgets/Icons.h"

namespace tarvik::screen {
namespace {

constexpr int kNoticeMargin = 8;
constexpr int kIcon = 22;
constexpr int kNarrow = 720;  // pixels: the buttons go below the words

}  // namespace

NoticeView::NoticeView(NoticeBar& notice, Bindings& bindings, QWidget* parent)
    : QFrame(parent), notice_(notice) {
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  bindings.BindControl(notice.frame, *this);
  bindings.Place(notice.frame, *this, Unit::Pixel);
  const FormLayout in(bindings);
  auto* const picture = new QLabel;
  picture->setPixmap(Icon("warning").pixmap(kIcon));
  std::vector<Piece> commands = {Stretch()};
  for (int i = 0; i < NoticeBar::kMostActions; ++i) {
    buttons_.push_back(in.Show(notice.commands(i)));
    commands.emplace_back(buttons_.back());
  }
  parts_ = Row({Filling(Row({picture, Filling(Wrapped(in.Show(notice.text)))})), Row(commands)});
  setLayout(Framed({kNoticeMargin, 2, kNoticeMargin, 2}, parts_));
}

bool NoticeView::event(QEvent* event) {
  const bool done = QFrame::event(event);
  if (event->type() == QEvent::LayoutRequest) Fit();
  return done;
}

void NoticeView::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  Fit();
}

void NoticeView::Fit() {
  parts_->setDirection(width() < kNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  const int needed = std::max(layout()->totalHeightForWidth(width()), layout()->totalMinimumSize().height());
  notice_.Need(Pixels{needed});
  parts_->activate();  // the buttons stand where they are seen before anybody can click
}

}  // namespace tarvik::screen
