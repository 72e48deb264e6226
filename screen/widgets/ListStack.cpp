#include "screen/widgets/ListStack.h"

#include <QApplication>
#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cstdlib>

#include "screen/widgets/Conversions.h"
#include "screen/widgets/Icons.h"
#include "screen/windows/WindowFocus.h"

namespace tarvik::screen {
namespace {

constexpr int kTick = 16;

/// Paints an item with its colour, or with its tick and as much blank space where there is none.
class ItemDelegate : public QStyledItemDelegate {
 public:
  ItemDelegate(QWidget& list, Ticks ticks)
      : QStyledItemDelegate(&list),
        ticks_(ticks),
        tick_(Icon("tick", list.palette().color(QPalette::Text))),
        selectedTick_(Icon("tick", list.palette().color(QPalette::HighlightedText))) {}

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (ticks_ == Ticks::Offered) ShowTick(*option, index);
    const auto colour = index.data(Qt::DecorationRole).value<QColor>();
    if (colour.isValid()) option->icon = Swatch(colour, *option);
  }

 private:
  void ShowTick(QStyleOptionViewItem& option, const QModelIndex& index) const {
    const bool ticked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    option.features.setFlag(QStyleOptionViewItem::HasCheckIndicator, false);
    option.features.setFlag(QStyleOptionViewItem::HasDecoration);
    option.decorationSize = {kTick, kTick};
    const bool bright = (option.state & QStyle::State_Selected) && (option.state & QStyle::State_Active);
    option.icon = ticked ? bright ? selectedTick_ : tick_ : QIcon();
  }

  /// A colour with a line around it, which looks the same in a selected row.
  static QIcon Swatch(const QColor& colour, const QStyleOptionViewItem& option) {
    const qreal ratio = option.widget->devicePixelRatioF();
    QPixmap swatch(option.decorationSize * ratio);
    swatch.setDevicePixelRatio(ratio);
    swatch.fill(option.palette.color(QPalette::Mid));
    QPainter(&swatch).fillRect(QRect({1, 1}, option.decorationSize - QSize(2, 2)), colour);
    QIcon icon;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) icon.addPixmap(swatch, mode);
    return icon;
  }

  Ticks ticks_;
  QIcon tick_;
  QIcon selectedTick_;
};

QColor Between(const QColor& a, const QColor& b, float share) {
  return QColor::fromRgbF(a.redF() + (b.redF() - a.redF()) * share,
                          a.greenF() + (b.greenF() - a.greenF()) * share,
                          a.blueF() + (b.blueF() - a.blueF()) * share);
}

}  // namespace

void ListModel::SetItems(const std::vector<std::string>& items, std::vector<bool> ticks) {
  beginResetModel();
  items_.clear();
  for (const std::string& item : items) items_ += ToScreen(item);
  ticks_ = std::move(ticks);
  colours_.clear();
  filter_ = NameFilter(items);
  rows_ = filter_.Matching(typed_);
  endResetModel();
}

void ListModel::Filter(const QString& typed) {
  beginResetModel();
  typed_ = FromScreen(typed);
  rows_ = filter_.Matching(typed_);
  endResetModel();
}

int ListModel::ItemOf(const QModelIndex& index) const {
  return Has(index) ? rows_[static_cast<std::size_t>(index.row())] : -1;
}

QModelIndex ListModel::IndexOf(int item) const {
  const auto row = std::lower_bound(rows_.begin(), rows_.end(), item);
  return row == rows_.end() || *row != item ? QModelIndex() : index(static_cast<int>(row - rows_.begin()));
}

void ListModel::SetTicks(std::vector<bool> ticks) {
  ticks_ = std::move(ticks);
  Changed(Qt::CheckStateRole);
}

void ListModel::SetColours(const std::vector<Colour>& colours) {
  colours_.clear();
  for (const Colour colour : colours) colours_.push_back(ToScreenColour(colour));
  Changed(Qt::DecorationRole);
}

void ListModel::Changed(int role) {
  if (!rows_.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1), {role});
}

bool ListModel::Has(const QModelIndex& index) const {
  return hasIndex(index.row(), index.column(), index.parent());
}

int ListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (!Has(index)) return {};
  const int item = ItemOf(index);
  if (role == Qt::DisplayRole) return items_.at(item);
  const auto at = static_cast<std::size_t>(item);
  if (role == Qt::DecorationRole && at < colours_.size()) return colours_[at];
  if (role != Qt::CheckStateRole || !canTick_) return {};
  return ticks_[at] ? Qt::Checked : Qt::Unchecked;
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
  return Has(index) ? QAbstractListModel::flags(index) | Qt::ItemIsDragEnabled : Qt::NoItemFlags;
}

void ShowFocusInSelection(QAbstractItemView& view) {
  constexpr float kPale = 0.18F;
  QPalette palette = view.palette();
  if (palette.color(QPalette::Active, QPalette::Highlight) !=
      palette.color(QPalette::Inactive, QPalette::Highlight))
    return;
  const QColor text = palette.color(QPalette::Text);
  palette.setColor(QPalette::Inactive, QPalette::Highlight,
                   Between(palette.color(QPalette::Base), text, kPale));
  palette.setColor(QPalette::Inactive, QPalette::HighlightedText, text);
  view.setPalette(palette);
}

ListStack::ListStack(Bindings& bindings, const QString& name, Ticks ticks)
    : bindings_(bindings), model_(ticks) {
  setModel(&model_);
  setItemDelegate(new ItemDelegate(*this, ticks));
  ShowFocusInSelection(*this);
  setUniformItemSizes(true);
  setMouseTracking(true);
  setEditTriggers(NoEditTriggers);
  setAccessibleName(name);
  released_ = bindings.Released.Connect([this] {
    stack_.clear();
    front_ = nullptr;
  });
}

// Which list is in front.

void ListStack::Add(ControlArray<ListBox>& lists) {
  for (int i = 0; i < lists.Count(); ++i) Add(lists(i));
  bindings_.Keep(lists.Loaded.Connect([this](ListBox& list) { Add(list); }));
  bindings_.Keep(lists.Unloading.Connect([this](ListBox& list) { Remove(list); }));
}

void ListStack::Add(ListBox& list) {
  Shown shown{&list, {}};
  const auto inFront = [this, &list](auto act) {
    return [this, &list, act] {
      if (front_ == &list) act();
    };
  };
  Form& form = *list.OwnForm();
  shown.connections = {
      form.ActiveControlChanged.Connect([this, &form, &list] {
        if (front_ == &list && form.ActiveControl() == front_) TakeFocus();
      }),
      list.Raised.Connect([this, &list] { Raise(list); }),
      list.Visible.Changed.Connect([this] { BringUpToDate(); }),
      list.ItemsChanged.Connect(inFront([this] { ShowItems(); })),
      list.TicksChanged.Connect(inFront([this, &list] { model_.SetTicks(list.Ticks()); })),
      list.ColoursChanged.Connect(inFront([this, &list] { model_.SetColours(list.Colours()); })),
      list.ListIndex.Changed.Connect(inFront([this] { ShowIndex(); })),
  };
  stack_.push_back(std::move(shown));
  BringUpToDate();
}

void ListStack::TakeFocus() {
  if (hasFocus()) return;
  setFocus();
  AskForWindow(*this);
}

void ListStack::Remove(ListBox& list) {
  std::erase_if(stack_, [&list](const Shown& shown) { return shown.list == &list; });
  bindings_.Forget(list);
  if (list.OwnForm()->ActiveControl() == &list) stack_.front().list->SetFocus();
  BringUpToDate();
}

void ListStack::Raise(ListBox& list) {
  const auto at =
      std::find_if(stack_.begin(), stack_.end(), [&list](const Shown& shown) { return shown.list == &list; });
  if (at != stack_.end()) std::rotate(at, at + 1, stack_.end());
  BringUpToDate();
}

void ListStack::BringUpToDate() {
  const auto top = std::find_if(stack_.rbegin(), stack_.rend(),
                                [](const Shown& shown) { return shown.list->Visible.Get(); });
  ListBox* const front = top == stack_.rend() ? nullptr : top->list;
  if (front == front_) return;
  front_ = front;
  if (front_) {
    bindings_.Shows(*front_, *this);
    setToolTip(ToScreen(front_->ToolTipText.Get()));
  }
  ShowItems();
}

void ListStack::ShowItems() {
  const QScopedValueRollback showing(showing_, true);
  if (front_) {
    model_.SetItems(front_->List(), front_->Ticks());
    model_.SetColours(front_->Colours());
  } else {
    model_.SetItems({}, {});
  }
  ShowIndex();
}

void ListStack::Filter(const QString& typed) {
  const QScopedValueRollback showing(showing_, true);
  model_.Filter(typed);
  ShowIndex();
}

void ListStack::Enter() {
  setFocus();
  if (currentIndex().isValid()) return;
  setCurrentIndex(model_.index(0));
  if (front_ && currentIndex().isValid()) front_->MouseDown({button::kLeft});
}

bool ListStack::HidesItem() const { return front_ && front_->ListIndex >= 0 && !currentIndex().isValid(); }

// The item in hand.

void ListStack::ShowIndex() {
  const QScopedValueRollback showing(showing_, true);
  setCurrentIndex(front_ ? model_.IndexOf(front_->ListIndex) : QModelIndex());
}

void ListStack::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  if (!showing_ && front_ && current.isValid()) front_->ListIndex = model_.ItemOf(current);
}

void ListStack::mousePressEvent(QMouseEvent* event) {
  press_ = event->button() == Qt::LeftButton ? std::optional(event->pos()) : std::nullopt;
  QListView::mousePressEvent(event);
  if (const QModelIndex under = indexAt(event->pos()); under.isValid()) setCurrentIndex(under);
  if (front_ && !HidesItem()) front_->MouseDown(ToMouse(*event));
}

/// Across the list the pointer takes the item in hand along. When it goes aside or leaves the list a drag
/// begins, which ends before this returns: nothing of the movement may be told behind its drop.
void ListStack::mouseMoveEvent(QMouseEvent* event) {
  const bool held = press_ && event->buttons() & Qt::LeftButton;
  if (held && BeginsDrag(event->pos())) {
    press_.reset();
    startDrag(Qt::CopyAction);
    return;
  }
  if (held) {
    if (const QModelIndex under = indexAt(event->pos()); under.isValid()) setCurrentIndex(under);
  } else {
    QListView::mouseMoveEvent(event);
  }
  if (front_ && !HidesItem()) front_->MouseMove(ToMouse(*event));
}

bool ListStack::BeginsDrag(const QPoint& place) const {
  const QPoint way = place - *press_;
  const bool aside =
      std::abs(way.x()) >= QApplication::startDragDistance() && std::abs(way.x()) > std::abs(way.y());
  return currentIndex().isValid() && (aside || !viewport()->rect().contains(place));
}

void ListStack::mouseReleaseEvent(QMouseEvent* event) {
  press_.reset();
  QListView::mouseReleaseEvent(event);
  if (front_ && indexAt(event->pos()).isValid()) front_->MouseUp(ToMouse(*event));
}

void ListStack::mouseDoubleClickEvent(QMouseEvent* event) {
  if (front_ && event->button() == Qt::LeftButton && indexAt(event->pos()).isValid()) front_->DblClick();
}

void ListStack::ClickItem() {
  if (!front_ || !currentIndex().isValid()) return;
  front_->MouseDown({button::kLeft});
  front_->MouseUp({button::kLeft});
}

/// A move by keys shows the macro as a click does.
void ListStack::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier) return ClickItem();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (front_ && currentIndex().isValid()) front_->DblClick();
    return;
  }
  const int before = currentIndex().row();
  QListView::keyPressEvent(event);
  if (front_ && currentIndex().row() != before) front_->MouseDown({button::kLeft});
}

void ListStack::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() != QContextMenuEvent::Keyboard || !front_ || HidesItem()) return;
  front_->MouseDown({button::kRight});
}

void ListStack::focusInEvent(QFocusEvent* event) {
  QListView::focusInEvent(event);
  if (front_) front_->SetFocus();
}

/// Without an item in hand, whose selection would show it, the focus is a frame around all.
void ListStack::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (!hasFocus() || currentIndex().isValid()) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

void ListStack::startDrag(Qt::DropActions) {
  if (!front_ || !front_->OLEStartDrag) return;
  front_->OLEStartDrag();
  auto* const data = new QMimeData;
  data->setText(ToScreen(front_->DragText.Get()));
  auto* const drag = new QDrag(this);
  drag->setMimeData(data);
  drag->exec(Qt::CopyAction);
}

}  // namespace tarvik::screen
