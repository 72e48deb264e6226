// Lists that stand on one another, as the macro lists do: one view that shows the one in front, with its
// ticks, and lets its items be dragged out as text.
#pragma once

#include <QAbstractListModel>
#include <QListView>

#include "screen/widgets/Binding.h"
#include "text/NameFilter.h"

namespace tarvik::screen {

/// Whether the items of a list may bear ticks, for which there is room before them then.
enum class Ticks { None, Offered };

/// The items of whichever list is in front. It holds them itself, so that it has an answer for every index at
/// any time, also while the list changes and after it has gone.
class ListModel : public QAbstractListModel {
 public:
  explicit ListModel(Ticks ticks) : canTick_(ticks == Ticks::Offered) {}
  void SetItems(const std::vector<std::string>& items, std::vector<bool> ticks);
  /// Shows no other items than those that contain what is typed, also of items that come later.
  void Filter(const QString& typed);
  /// The item in a row, and the row of an item: -1 where there is none.
  [[nodiscard]] int ItemOf(const QModelIndex& index) const;
  [[nodiscard]] QModelIndex IndexOf(int item) const;
  [[nodiscard]] int Items() const { return static_cast<int>(items_.size()); }
  void SetTicks(std::vector<bool> ticks);
  /// None, or one beside each item.
  void SetColours(const std::vector<Colour>& colours);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  [[nodiscard]] bool Has(const QModelIndex& index) const;
  void Changed(int role);

  QStringList items_;
  NameFilter filter_;
  std::string typed_;
  std::vector<int> rows_;    // the items on show
  std::vector<bool> ticks_;  // one for each item
  std::vector<QColor> colours_;
  bool canTick_;
};

/// Lets the selection of a list without the focus look paler, where the desktop makes no difference.
void ShowFocusInSelection(QAbstractItemView& view);

class ListStack : public QListView {
 public:
  ListStack(Bindings& bindings, const QString& name, Ticks ticks);

  /// Puts a list on the stack.
  void Add(ListBox& list);
  /// The lists of the array, also those that come later.
  void Add(ControlArray<ListBox>& lists);
  /// The list that is in front, or null.
  [[nodiscard]] const ListBox* Front() const { return front_; }
  /// Shows no other items than those that contain what is typed.
  void Filter(const QString& typed);
  /// How many items there are, on show or not.
  [[nodiscard]] int Items() const { return model_.Items(); }
  /// The user comes to the list, to its first item on show where none is in hand.
  void Enter();

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void startDrag(Qt::DropActions actions) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Shown {
    ListBox* list;
    std::vector<Connection> connections;
  };

  void TakeFocus();
  /// What a click does to the item in hand, and the Space key as well.
  void ClickItem();
  /// An item is in hand that the filter keeps off the list: nobody can mean it.
  [[nodiscard]] bool HidesItem() const;
  void Remove(ListBox& list);
  void Raise(ListBox& list);
  void BringUpToDate();
  void ShowItems();
  void ShowIndex();
  /// Whether the pointer, which went down in the list, has gone where a drag begins.
  [[nodiscard]] bool BeginsDrag(const QPoint& place) const;

  Bindings& bindings_;
  ListModel model_;
  std::vector<Shown> stack_;  // the last one is on top
  ListBox* front_ = nullptr;
  bool showing_ = false;
  std::optional<QPoint> press_;  // where the left button went down
  Connection released_;
};

}  // namespace tarvik::screen
