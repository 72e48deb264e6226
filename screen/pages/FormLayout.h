// How a window's page shows its form's controls, each by its kind.
#pragma once

#include "screen/widgets/Arrangement.h"
#include "screen/widgets/ListStack.h"
#include "workbench/MacroListPanel.h"

namespace tarvik::screen {

/// Makes the widgets of a form's controls, each bound to its control.
class FormLayout {
 public:
  explicit FormLayout(Bindings& bindings) : bindings_(bindings) {}

  /// Shows a control by its kind.
  QWidget* Show(Control& control) const;
  /// A label whose text is a path, or has one in it.
  QWidget* ShowPath(Label& label) const;
  /// Lists that stand on one another.
  QWidget* Show(ControlArray<ListBox>& lists, const char* name) const;
  /// The same of macros, which are ticked, with a line that narrows them.
  QWidget* ShowMacros(MacroListPanel& panel) const;
  /// A label that is pressed to take its colour.
  QWidget* ShowSwatch(Label& swatch) const;
  /// A label that only lights up.
  QWidget* ShowLamp(ToggleLabel& lamp) const;
  /// Lets a control that is shown stand in `area` where its own properties say, in twips.
  QWidget* Place(Control& control, QWidget* shown, QWidget* area) const;
  /// The pages in the order of the tabs.
  QWidget* Show(TabPages& pages, const std::vector<QLayout*>& layouts) const;

  /// The bindings of the form, for widgets that bind their controls themselves.
  [[nodiscard]] Bindings& bindings() const { return bindings_; }

 private:
  Bindings& bindings_;
};

/// Gives each button, label and tab of a window that has no mnemonic one that no other on show has.
void GiveMnemonics(QWidget& window);

}  // namespace tarvik::screen
