#include "screen/Screen.h"

#include <algorithm>

#include "screen/ColourSelectorView.h"
#include "screen/EditorView.h"
#include "screen/MumWindow.h"

namespace tarvik::screen {

Screen::Screen(Application& application, Clock clock) : application_(application), clock_(clock) {
  connections_ = {
      application.Loaded.Connect([this](Form& form) { Show(form); }),
      application.Unloading.Connect([this](Form& form) { Unload(form); }),
  };
}

Screen::~Screen() {
  while (!views_.empty()) Unload(views_.back()->form());
}

void Screen::Show(Form& form) {
  if (auto* const mum = dynamic_cast<Mum*>(&form)) {
    auto view = std::make_unique<MumWindow>(application_, *mum, clock_);
    frame_ = view.get();
    views_.push_back(std::move(view));
  } else if (auto* const editor = dynamic_cast<Editor*>(&form)) {
    auto view = std::make_unique<EditorView>(*editor, clock_);
    frame_->ShowChild(*view, view->menus());
    views_.push_back(std::move(view));
  } else if (auto* const selector = dynamic_cast<ColourSelector*>(&form)) {
    auto& swatch = *qobject_cast<QWidget*>(Find(application_.mum().Picture1));
    views_.push_back(std::make_unique<ColourSelectorView>(*selector, swatch));
  }
}

void Screen::Unload(const Form& form) {
  const auto at = std::find_if(views_.begin(), views_.end(),
                               [&form](const auto& view) { return &view->form() == &form; });
  if (at == views_.end()) return;
  if (dynamic_cast<EditorView*>(at->get())) frame_->RemoveChild();
  const std::unique_ptr<FormView> last = std::move(*at);
  views_.erase(at);
}

FormView* Screen::ViewOf(const Form& form) const {
  for (const auto& view : views_) {
    if (&view->form() == &form) return view.get();
  }
  return nullptr;
}

QObject* Screen::Find(const Component& component) const {
  for (const auto& view : views_) {
    if (QObject* const shown = view->bindings().Find(component)) return shown;
  }
  return nullptr;
}

std::optional<std::string> Screen::Read(const PropertyBase& property) const {
  for (const auto& view : views_) {
    if (auto text = view->bindings().Read(property)) return text;
  }
  return {};
}

}  // namespace tarvik::screen
