#include "screen/WelcomeView.h"

#include <QEvent>
#include <QPushButton>

#include "screen/pages/FormLayout.h"

namespace tarvik::screen {
namespace {

constexpr int kMargin = 20;
constexpr int kFirstLines = 60;  // pixels of the files that stay free above the page

constexpr int kNarrowestColumn = 110;  // of a column

// Its buttons look like links.
constexpr const char* kStyle =
    "QPushButton { text-align: left; padding: 4px 10px; border: 1px solid transparent; "
    "background: transparent; color: palette(link); }"
    "QPushButton:focus, QPushButton:hover { border-color: palette(highlight); }";

QWidget* AsLink(QWidget* button) {
  button->setCursor(Qt::PointingHandCursor);
  button->setMinimumWidth(kNarrowestColumn);
  return button;
}

QWidget* AsHint(QWidget* label) {
  label->setMinimumWidth(kNarrowestColumn);
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
  const std::vector<QLayout*> lists = {
      Under("Begin", {AsLink(in.Show(welcome.open)), AsLink(in.Show(welcome.macroWizard)),
                      AsLink(in.Show(welcome.joystickWizard)), AsLink(in.Show(welcome.guide))}),
      Under("Files used last", recent), Under("Samples, as a copy", Lines(in, welcome.samples)),
      Under("Favourites", favourites)};
  QLabel* const title =
      Wrapped(AsTitle(Words("Both files are empty. Begin to type, or go on with one of these.")));
  setLayout(Framed({kMargin, kMargin, kMargin, kMargin},
                   Spaced(Column({title, Spaced(Grid(lists, 2), kMargin)}), kMargin)));
}

QLayout* WelcomeView::Under(const char* title, const std::vector<QWidget*>& widgets) {
  QLabel* const heading = Words(title);
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  std::vector<Piece> pieces = {heading};
  for (QWidget* const widget : widgets) {
    pieces.emplace_back(widget);
    if (qobject_cast<QPushButton*>(widget)) parts_.push_back(widget);
  }
  pieces.emplace_back(Stretch());
  return Spaced(Column(pieces), 2);
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
