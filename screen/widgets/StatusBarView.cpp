#include "screen/widgets/StatusBarView.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "screen/widgets/Conversions.h"
#include "screen/widgets/Icons.h"

namespace tarvik::screen {
namespace {

constexpr int kPadding = 7;
constexpr int kSmallIcon = 16;
constexpr int kProgressWidth = 160;
constexpr int kProgressHeight = 14;

struct PanelRow {
  const char* widest;  ///< the text that the panel has room for; null: as much as is left
};

constexpr PanelRow kPanels[] = {
    {nullptr}, {""}, {"Line no: 000000"}, {"CAPS"}, {"INS"}, {"NUM"}, {"00:00"}, {"No macro file analysed"},
};

constexpr const char* kPictures[] = {"", "state-empty", "state-saved", "state-modified"};

const PanelRow& RowOf(const Panel& panel) { return kPanels[*panel.Index() - 1]; }

}  // namespace

PanelView::PanelView(Panel& panel, Bindings& bindings, QWidget* parent) : QWidget(parent), panel_(panel) {
  bindings.Shows(panel, *this);
  bindings.Bind(panel.Text, [this] {
    text_ = ToScreen(panel_.Text.Get());
    setAccessibleName(text_);
    repaint();  // long work tells how far it is within one event
  });
  bindings.Bind(panel.ToolTipText, [this] { setToolTip(ToScreen(panel_.ToolTipText.Get())); });
  bindings.Bind(panel.Picture, [this] {
    picture_ = Icon(kPictures[panel_.Picture]);
    update();
  });
  bindings.Bind(panel.Enabled, [this] { setEnabled(panel_.Enabled); });
}

QSize PanelView::sizeHint() const {
  const char* const widest = RowOf(panel_).widest;
  const int text = widest ? fontMetrics().horizontalAdvance(QLatin1String(widest)) : 0;
  return {std::max(text + 2, kSmallIcon) + 2 * kPadding, std::max(fontMetrics().height(), kSmallIcon) + 4};
}

QSize PanelView::minimumSizeHint() const { return sizeHint(); }

QRect PanelView::TextPlace() const { return rect().adjusted(kPadding, 0, -kPadding, 0); }

bool PanelView::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && fontMetrics().horizontalAdvance(text_) > TextPlace().width()) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text_, this);
    return true;
  }
  return QWidget::event(event);
}

void PanelView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (*panel_.Index() > 1) {
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(0, 3, 0, height() - 4);
  }
  QRect place(0, 0, kSmallIcon, kSmallIcon);
  place.moveCenter(rect().center());
  picture_.paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
  painter.setPen(palette().color(QPalette::WindowText));
  const QString shown = fontMetrics().elidedText(text_, Qt::ElideRight, TextPlace().width());
  painter.drawText(TextPlace(), static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), shown);
}

StatusBarView::StatusBarView(StatusBar& bar, ProgressBar& progress, CommandButton& problems,
                             Bindings& bindings, QWidget* parent)
    : QStatusBar(parent) {
  setSizeGripEnabled(false);
  bindings.Shows(bar, *this);
  auto* const progressView = new QProgressBar(this);
  progressView->setFixedSize(kProgressWidth, kProgressHeight);
  progressView->setTextVisible(false);
  progressView->setAccessibleName(tr("Progress"));
  addWidget(progressView);
  bindings.Bind(progress, *progressView);
  auto* const count = new QToolButton(this);
  count->setAutoRaise(true);
  bindings.Bind(problems, *count);
  for (int i = 1; i <= bar.Count(); ++i) {
    auto* const panel = new PanelView(bar.Panels(i), bindings, this);
    const bool fixed = RowOf(bar.Panels(i)).widest != nullptr;
    if (fixed) panel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    addWidget(panel, fixed ? 0 : 1);
    if (i == 1) addWidget(count);
  }
}

}  // namespace tarvik::screen
