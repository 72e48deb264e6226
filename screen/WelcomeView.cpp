#include "screen/WelcomeView.h"

#include <QEvent>
#include <QPushButton>

#include "screen/pages/FormLayout.h"

namespace tarvik::screen {
namespace {

constexpr int kMargin = 20;
constexpr int kFirstLines = 60;  // pixels of the files that stay free above the page

constexpr int kNarrowest = 110;  // of a column

// Its buttons look like links.
constexpr const char* kStyle =
    "QPushButton { text-align: left; padding: 4px 10px; border: 1px solid transparent; "
    "background: transparent; color: palette(link); }"
    "QPushButton:focus, QPushButton:hover { border-color: palette(highlight); }";

QWidget* AsLink(QWidget* button) {
  button->setCursor(Qt::PointingHandCursor);
  button->setMinimumWidth(kNarrowest);
  return button;
}

QWidget* AsHint(QWidget* label) {
  label->setMinimumWidth(kNarrowest);
  label->setContentsMargins(10, 4, 10, 4);
  return label;
}

std::vector<QWidget*> Lines(const FormLayout& in, ControlArray<CommandButton>& buttons) {
  std::vector<QWidget*> lines;
  lines.reserve(static_cast<std::size_t>(buttons.Count()));
  for (int i = 0; i < buttons.Count(); ++i) lines.push_back(AsLink(in.Show(buttons(i))));
  return lines;
}

}  // namespace

WelcomeView::WelcomeView(WelcomePage& welcome, Bindings& bindings, QWidget* parent) : QFrame(parent) {
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setAccessibleName(tr("Welcome"));
  setStyleSheet(QLatin1String(kStyle));
  bindings.BindControl(welcome.frame, *this);
  const FormLayout in(bindings);
  std::vector<QWidget*> recent = Lines(in, welcome.recent);
  recent.push_back(AsHint(in.Show(welcome.noRecent)));
  std::vector<QWidget*> favourites = Lines(in, welcome.favourites);
  favourites.push_back(AsHint(in.Show(welcome.noFavourites)));
  auto* const lists = new QGridLayout;
  lists->setSpacing(kMargin);
  lists->addLayout(Under("Begin", {AsLink(in.Show(welcome.open)), AsLink(in.Show(welcome.macroWizard)),
                                   AsLink(in.Show(welcome.joystickWizard)), AsLink(in.Show(welcome.guide))}),
                   0, 0);
  lists->addLayout(Under("Files used last", recent), 0, 1);
  lists->addLayout(Under("Samples, as a copy", Lines(in, welcome.samples)), 1, 0);
  lists->addLayout(Under("Favourites", favourites), 1, 1);
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kMargin);
  rows->addWidget(
      Wrapped(AsTitle(Words("Both files are empty. Begin to type, or go on with one of these."))));
  rows->addLayout(lists);
}

QLayout* WelcomeView::Under(const char* title, const std::vector<QWidget*>& widgets) {
  auto* const column = new QVBoxLayout;
  column->setSpacing(2);
  QLabel* const heading = Words(title);
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  column->addWidget(heading);
  for (QWidget* const widget : widgets) {
    column->addWidget(widget);
    if (qobject_cast<QPushButton*>(widget)) parts_.push_back(widget);
  }
  column->addStretch(1);
  return column;
}

void WelcomeView::StandIn(const QRect& place) {
  place_ = place.adjusted(0, kFirstLines, 0, 0);
  Fit();
}

bool WelcomeView::event(QEvent* event) {
  const bool done = QFrame::event(event);
  if (event->type() == QEvent::LayoutRequest) Fit();
  return done;
}

void WelcomeView::Fit() {
  const QSize size = sizeHint().boundedTo(place_.size());
  setGeometry(place_.center().x() - size.width() / 2, place_.top() + (place_.height() - size.height()) / 3,
              size.width(), size.height());
  raise();
}

}  // namespace tarvik::screen
