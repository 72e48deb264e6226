#include "screen/Screen.h"

#include <QGuiApplication>
#include <QWindow>
#include <algorithm>

#include "screen/ColourSelectorView.h"
#include "screen/EditorView.h"
#include "screen/MumWindow.h"
#include "screen/ToolWindow.h"
#include "screen/windows/WindowFocus.h"

namespace tarvik::screen {

Screen::Screen(Application& application, Clock clock)
    : application_(application), clock_(clock), flightSign_(application.workbench.flight) {
  connections_ = {
      application.Loaded.Connect([this](Form& form) { Show(form); }),
      application.Unloading.Connect([this](Form& form) { Unload(form); }),
  };
  QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &context_,
                   [this](const QWindow* window) { TellActive(window); });
}

/// The frame is the editor's window, as long as there is an editor.
void Screen::TellActive(const QWindow* window) {
  if (AwaitsOtherThan(window)) return;
  for (FormView* const view : views_) {
    const auto* const widget = dynamic_cast<QWidget*>(view);
    if (!window || !widget || widget->window()->windowHandle() != window) continue;
    application_.Activated(view->form());
    return;
  }
}

Screen::~Screen() {
  while (!views_.empty()) Unload(views_.back()->form());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Screen::Show(Form& form) {
  if (auto* const mum = dynamic_cast<Mum*>(&form)) {
    frame_ = new MumWindow(application_, *mum, clock_);
    views_.push_back(frame_);
  } else if (auto* const editor = dynamic_cast<Editor*>(&form)) {
    auto* const view = new EditorView(*editor, application_.workbench, clock_);
    frame_->ShowChild(*view, view->menus());
    views_.push_back(view);
  } else if (auto* const selector = dynamic_cast<ColourSelector*>(&form)) {
    Mum& mum = application_.mum();
    auto& swatch = Require(qobject_cast<QWidget*>(Find(mum.Picture1)), mum, "Picture1");
    views_.push_back(new ColourSelectorView(*selector, swatch));
  } else if (const auto page = PageOf(form)) {
    views_.push_back(new ToolWindow(application_, form, page, *frame_, clock_));
  }
}

void Screen::Unload(const Form& form) {
  const auto at = std::find_if(views_.begin(), views_.end(),
                               [&form](const FormView* view) { return &view->form() == &form; });
  if (at == views_.end()) return;
  FormView* const last = *at;
  views_.erase(at);
  if (dynamic_cast<EditorView*>(last)) frame_->RemoveChild();
  last->Retire();
}

FormView* Screen::ViewOf(const Form& form) const {
  for (FormView* const view : views_) {
    if (&view->form() == &form) return view;
  }
  return nullptr;
}

QObject* Screen::Find(const Component& component) const {
  for (const FormView* const view : views_) {
    if (QObject* const shown = view->bindings().Find(component)) return shown;
  }
  return nullptr;
}

}  // namespace tarvik::screen
