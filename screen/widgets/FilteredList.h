// Lists with a line above them: what is typed there narrows the list that is in front.
#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "screen/widgets/ListStack.h"

namespace tarvik::screen {

/// The arrow keys and Enter go from the line to the list, Escape clears the line.
class FilteredList : public QWidget {
 public:
  FilteredList(Bindings& bindings, const QString& name, Ticks ticks, QWidget* parent = nullptr);

  [[nodiscard]] ListStack& list() const { return *list_; }
  [[nodiscard]] QLineEdit& line() const { return *line_; }
  /// The line comes and goes; without it all items are on show.
  void FollowLine(Property<int>& isShown);
  /// Puts a button behind the line.
  void Add(CommandButton& button, const char* icon);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// "17 of 212".
  void ShowCount();
  void ShowPlaceholder();

  Bindings& bindings_;
  QLineEdit* line_;
  QBoxLayout* above_ = nullptr;  ///< the line, and what stands beside it
  QLabel* count_;
  ListStack* list_;
};

}  // namespace tarvik::screen
