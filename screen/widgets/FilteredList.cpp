#include "screen/widgets/FilteredList.h"

#include <QKeyEvent>

#include "screen/widgets/Arrangement.h"
#include "screen/widgets/Conversions.h"
#include "screen/widgets/Icons.h"

namespace tarvik::screen {
namespace {

constexpr float kFaint = 0.6F;

}  // namespace

FilteredList::FilteredList(Bindings& bindings, const QString& name, Ticks ticks, QWidget* parent)
    : QWidget(parent),
      bindings_(bindings),
      line_(new QLineEdit),
      count_(new QLabel),
      list_(new ListStack(bindings, name, ticks)) {
  constexpr int kGap = 4;
  line_->setPlaceholderText(tr("Filter"));
  line_->setAccessibleName(name + tr(", filter"));
  line_->setToolTip(tr("Shows the macros whose names contain what you type"));
  line_->setClearButtonEnabled(true);
  for (QWidget* const part : {static_cast<QWidget*>(line_), static_cast<QWidget*>(list_)}) {
    part->installEventFilter(this);
  }
  above_ = Spaced(Row({Filling(line_), count_}), kGap);
  setLayout(Framed({}, Spaced(Column({above_, Filling(list_)}), kGap)));
  connect(line_, &QLineEdit::textChanged, list_, [this](const QString& typed) { list_->Filter(typed); });
  connect(list_->model(), &QAbstractItemModel::modelReset, count_, [this] { ShowCount(); });
  setFocusProxy(list_);
  ShowPlaceholder();
}

/// Desktops that set the usual colours alone leave the toolkit's own for this one, black on dark.
void FilteredList::ShowPlaceholder() {
  QPalette palette;
  QColor faint = this->palette().color(QPalette::Text);
  faint.setAlphaF(kFaint);
  palette.setColor(QPalette::PlaceholderText, faint);
  line_->setPalette(palette);
}

void FilteredList::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ShowPlaceholder();
}

void FilteredList::FollowLine(Property<int>& isShown) {
  bindings_.Bind(isShown, [this, &isShown] {
    line_->clear();
    for (QWidget* const part : {static_cast<QWidget*>(line_), static_cast<QWidget*>(count_)}) {
      part->setVisible(isShown != 0);
    }
  });
}

void FilteredList::Add(CommandButton& button, const char* icon) {
  auto* const view = new QToolButton;
  view->setAutoRaise(true);
  view->setFocusPolicy(Qt::TabFocus);
  bindings_.Bind(button, *view);
  view->setAccessibleName(view->text());
  view->setIcon(Icon(icon));
  view->setToolButtonStyle(Qt::ToolButtonIconOnly);
  above_->addWidget(view);
}

void FilteredList::ShowCount() {
  const int all = list_->Items();
  const int shown = list_->model()->rowCount();
  const QString count = QString::number(all);
  count_->setText(line_->text().isEmpty() ? (all > 0 ? count : QString())
                                          : tr("%1 of %2").arg(QString::number(shown), count));
}

bool FilteredList::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent&>(*event).key();
  if (watched == list_) {
    if (key != Qt::Key_Escape || line_->text().isEmpty()) return false;
    line_->clear();
    return true;
  }
  switch (key) {
    case Qt::Key_Escape:
      line_->clear();
      return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      list_->Enter();
      return true;
    default:
      return false;
  }
}

}  // namespace tarvik::screen
