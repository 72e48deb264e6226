// The frame window on screen: menu bar, toolbar, the area that the editor fills and the status bar.
#pragma once

#include <QMainWindow>
#include <QMenu>
#include <memory>
#include <optional>

#include "app/Mum.h"
#include "screen/FormView.h"
#include "screen/widgets/ToolbarView.h"

namespace tarvik::screen {

class MumWindow : public QMainWindow, public FormView {
 public:
  MumWindow(Application& application, Mum& mum, Clock clock);
  ~MumWindow() override;

  /// Shows `view` as the child that fills the area, once its form is visible, with its menus in the menu bar.
  void ShowChild(QWidget& view, const std::vector<std::unique_ptr<QMenu>>& menus);
  /// Forgets the child, which is about to go, and shows the frame's own menus.
  void RemoveChild();
  void CloseByUser() override { close(); }
  void CloseChildByUser() { closeChild_->click(); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void changeEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void LayOut();
  void ShowCloseChild();
  void BindTimers();
  void BindWindow();
  void ShowWindow();
  void TakeState();
  void Settle();
  void PlaceWindow();
  void TakePlace();
  bool FitFrame();
  [[nodiscard]] int StateOnScreen() const;
  [[nodiscard]] bool HasPlaceOfItsOwn() const;
  void ShowPointer();
  void KeepPanels();

  Application& application_;
  Mum& mum_;
  QWidget* area_;
  QWidget* child_ = nullptr;
  QWidget* empty_;  // in the child's place while there is none
  QToolButton* closeChild_;
  std::vector<std::unique_ptr<QMenu>> menus_;
  QTimer settling_;             // runs while the window manager changes the window's state
  bool stateWaits_ = false;     // the form's state, which was set meanwhile
  std::optional<QRect> toFit_;  // where the whole frame belongs, until it stands there
  bool waiting_ = false;
};

}  // namespace tarvik::screen
