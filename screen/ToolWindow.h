// The window of a tool: a page of layout around the controls of its form. Every form but the frame, the
// editor and the colour choice is shown by one.
#pragma once

#include <QDialog>

#include "app/Application.h"
#include "screen/FormView.h"
#include "screen/pages/Pages.h"
#include "screen/widgets/Keys.h"
#include "screen/widgets/MenuBuilder.h"
#include "screen/windows/WindowOrder.h"

namespace tarvik::screen {

class ToolWindow : public QDialog, public FormView, public CanBeOnTop {
 public:
  /// `frame` is the window that it belongs to.
  ToolWindow(Application& application, Form& form, const MakePage& makePage, QWidget& frame, Clock clock);

  void CloseByUser() override { close(); }
  void Retire() override;
  bool event(QEvent* event) override;
  [[nodiscard]] bool IsOnTop() const override { return form().Topmost; }
  /// Escape: the form's own handling, else its Cancel button, else the close box.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void LayOut(QLayout* page);
  void MakeMenuBar(const Menus& menus);
  void ShowWindow();
  void ShowMinimised(bool minimised);
  void ChooseOwner();
  void TakeRoom();
  [[nodiscard]] QPoint PlaceBeside() const;
  [[nodiscard]] QPoint PlaceInTheMiddle() const;
  [[nodiscard]] QPoint PlaceOfForm() const;
  void RunTimers();
  [[nodiscard]] bool KeepsForForm(QEvent& event) const;
  /// Each tells the form of a key; true when the key goes no further.
  [[nodiscard]] bool FormTakesPress(const QKeyEvent& event);
  [[nodiscard]] bool FormTakesRelease(const QKeyEvent& event);

  Application& application_;
  QWidget& frame_;
  std::vector<std::unique_ptr<QMenu>> menus_;
  bool placed_ = false;  // by its form
  KeyReader keys_;
  std::optional<KeysFromElsewhere> others_;  // where every key is the form's
  bool retired_ = false;
};

}  // namespace tarvik::screen
