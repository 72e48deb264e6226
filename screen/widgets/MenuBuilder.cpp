#include "screen/widgets/MenuBuilder.h"

#include <QGuiApplication>

#include "screen/widgets/Conversions.h"

namespace tarvik::screen {
namespace {

QPoint PlaceOfPopUp(const QWidget& window) {
  const QWidget* const at = window.focusWidget();
  if (!at || QGuiApplication::mouseButtons() & Qt::RightButton) return QCursor::pos();
  const bool button = at->inherits("QAbstractButton");
  return at->mapToGlobal(
      (button ? at->rect() : at->inputMethodQuery(Qt::ImCursorRectangle).toRect()).bottomLeft());
}

}  // namespace

std::vector<std::unique_ptr<QMenu>> MakeMenus(const Menus& menus, Bindings& bindings) {
  std::vector<std::unique_ptr<QMenu>> top;
  std::vector<QMenu*> path;  // the open menu of each level
  const auto entries = menus.Entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const auto level = static_cast<std::size_t>(entries[i].level);
    const bool opensMenu = level == 0 || (i + 1 < entries.size() && entries[i + 1].level > entries[i].level);
    path.resize(std::min(path.size(), level));
    QMenu* const parent = path.empty() ? nullptr : path.back();
    if (!opensMenu) {
      auto* const action = new QAction(parent);
      parent->addAction(action);
      bindings.Bind(*entries[i].item, *action);
      continue;
    }
    auto* const menu = new QMenu(parent);
    menu->setToolTipsVisible(true);
    if (parent) {
      parent->addMenu(menu);
    } else {
      top.emplace_back(menu);
    }
    bindings.Bind(*entries[i].item, *menu->menuAction());
    menu->setObjectName(menu->menuAction()->objectName());
    if (entries[i].item->Click) menu->menuAction()->setMenu(nullptr);  // an entry of the bar itself
    path.push_back(menu);
  }
  return top;
}

void FollowArrays(Menus& menus, Bindings& bindings) {
  bindings.Keep(menus.Loaded.Connect([&bindings](const MenuItem& before, MenuItem& loaded) {
    auto* const above = qobject_cast<QAction*>(bindings.Find(before));
    auto* const menu = qobject_cast<QMenu*>(above->parent());
    const auto actions = menu->actions();
    auto* const action = new QAction(menu);
    menu->insertAction(actions.value(actions.indexOf(above) + 1), action);
    bindings.Bind(loaded, *action);
  }));
  bindings.Keep(menus.Unloading.Connect([&bindings](const MenuItem& item) {
    auto* const action = qobject_cast<QAction*>(bindings.Find(item));
    bindings.Forget(item);
    qobject_cast<QMenu*>(action->parent())->removeAction(action);
    action->deleteLater();
  }));
}

void PopUpOnDemand(const std::vector<std::unique_ptr<QMenu>>& menus, Form& form, const QWidget& window,
                   Bindings& bindings) {
  for (const auto& owned : menus) {
    QMenu* const menu = owned.get();
    QObject::connect(menu, &QMenu::aboutToHide, menu,
                     [menu, &form] { form.PopUpClosed(FromScreen(menu->objectName())); });
    bindings.Keep(form.PopUp.Connect([menu, &window](std::string_view name) {
      if (menu->objectName() == ToScreen(name)) menu->popup(PlaceOfPopUp(window));
    }));
  }
}

}  // namespace tarvik::screen
