#include "screen/NoticeView.h"

#include <QEvent>
#include <algorithm>

#include "screen/pages/FormLayout.h"
#include "screen/widgets/Icons.h"

namespace tarvik::screen {
namespace {

constexpr int kMargin = 8;
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
  auto* const words = new QHBoxLayout;
  words->addWidget(picture);
  words->addWidget(Wrapped(in.Show(notice.text)), 1);
  auto* const commands = new QHBoxLayout;
  commands->addStretch(1);
  for (int i = 0; i < NoticeBar::kMostActions; ++i) {
    buttons_.push_back(in.Show(notice.commands(i)));
    commands->addWidget(buttons_.back());
  }
  parts_ = new QBoxLayout(QBoxLayout::LeftToRight, this);
  parts_->setContentsMargins(kMargin, 2, kMargin, 2);
  parts_->addLayout(words, 1);
  parts_->addLayout(commands);
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
