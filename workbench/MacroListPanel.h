// The macro lists as a window has them: the categories, a list for each, and what the user does in them. The
// editor's are those that the analysis fills; the Composer has a copy.
#pragma once

#include "controls/Controls.h"

namespace tarvik {

class MacroLists;

class MacroListPanel {
 public:
  /// The controls are `owner`'s.
  MacroListPanel(Component& owner, MacroLists& macros);

  ComboBox Combo1;
  ControlArray<ListBox> List1;
  /// Member of `List1` on which the pop-up menu was opened.
  Property<int> PopupListIndex;
  Property<int>& FilterLines;  ///< the setting whether a line above the lists narrows them

  /// What the window does when the user works in the lists.
  struct Hooks {
    std::function<void()> pointerInside = [] {};  ///< the mouse is over a list, and no more beside it
    std::function<void()> popUp = [] {};          ///< shows the menu of a list
    std::function<void()> inserted = [] {};       ///< a macro was inserted
  };
  void SetHooks(Hooks hooks) { hooks_ = std::move(hooks); }

  void ClearAllForNewMacroFile();
  /// Takes the lists of another one over, with "All" in front.
  void CopyMacroList(const MacroListPanel& from);
  /// Brings a category's list to the front, and shows the first of its macros.
  void Combo1_Click();
  void List1_MouseDown(int index, const Mouse& mouse);
  void List1_MouseMove(int index, const Mouse& mouse);
  void List1_DblClick(int index);
  void List1_OLEStartDrag(int index);
  void mnuRHListInsert_Click() { List1_DblClick(PopupListIndex); }
  /// Shows the macro's definition in the macro file.
  void mnuRHListEdit_Click();
  /// Selects the macro's first use in the joystick file.
  void FindMacriInJfile();

 private:
  void AttachList(ListBox& list);

  MacroLists& macros_;
  Hooks hooks_;
};

}  // namespace tarvik
