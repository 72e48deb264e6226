#include "screen/MenuBuilder.h"

namespace tarvik::screen {

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
    if (parent) {
      parent->addMenu(menu);
    } else {
      top.emplace_back(menu);
    }
    bindings.Bind(*entries[i].item, *menu->menuAction());
    menu->setObjectName(menu->menuAction()->objectName());
    path.push_back(menu);
  }
  return top;
}

}  // namespace tarvik::screen
