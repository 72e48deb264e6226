// Makes menus on screen out of a form's table of entries.
#pragma once

#include <QMenu>
#include <memory>
#include <vector>

#include "controls/Menu.h"
#include "screen/widgets/Binding.h"

namespace tarvik::screen {

/// The menus of level 0, in order, with all that is in them. Each bears the name of its entry.
[[nodiscard]] std::vector<std::unique_ptr<QMenu>> MakeMenus(const Menus& menus, Bindings& bindings);

/// Puts actions into the menus, and takes them out, as arrays of theirs grow and shrink.
void FollowArrays(Menus& menus, Bindings& bindings);

/// Shows one of the menus when the form asks for it: at the pointer, or at what the keyboard is at.
void PopUpOnDemand(const std::vector<std::unique_ptr<QMenu>>& menus, Form& form, const QWidget& window,
                   Bindings& bindings);

}  // namespace tarvik::screen
