// The editor form on screen. The form places its controls itself; the view tells it its size.
#pragma once

#include <QFrame>

#include "app/Editor.h"
#include "screen/EditorPane.h"
#include "screen/ExplainView.h"
#include "screen/FindView.h"
#include "screen/FormView.h"
#include "screen/NoticeView.h"
#include "screen/ProblemView.h"
#include "screen/SuggestionView.h"
#include "screen/WelcomeView.h"
#include "screen/widgets/FilteredList.h"
#include "screen/widgets/MenuBuilder.h"

namespace tarvik::screen {

class EditorView : public QWidget, public FormView {
 public:
  EditorView(Editor& editor, Workbench& workbench, Clock clock);

  [[nodiscard]] const std::vector<std::unique_ptr<QMenu>>& menus() const { return menus_; }
  void CloseByUser() override;
  void Retire() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void MakeMacroFrame(Settings& settings);
  void MakeOutline(QWidget& frame, QWidget& categories, Settings& settings);
  void MakeTabs();
  void MakePanes(Workbench& workbench);
  void MakeSuggestions();
  void MakeWelcome();
  void OrderFocus();
  void PlaceTabs();
  void PlaceSplitter();

  Editor& editor_;
  std::vector<std::unique_ptr<QMenu>> menus_;
  std::vector<std::unique_ptr<QMenu>> popUps_;
  FilteredList* macros_ = nullptr;
  QTabBar* lists_ = nullptr;
  QTabBar* tabs_ = nullptr;
  NoticeView* notice_ = nullptr;
  FindView* find_ = nullptr;
  ProblemView* problems_ = nullptr;
  ExplainView* explain_ = nullptr;
  WelcomeView* welcome_ = nullptr;
  EditorPane* panes_[2] = {};
  QWidget* splitter_ = nullptr;
};

}  // namespace tarvik::screen
