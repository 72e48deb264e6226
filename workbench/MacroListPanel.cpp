#include "workbench/MacroListPanel.h"

#include "workbench/MacroLists.h"

namespace tarvik {

MacroListPanel::MacroListPanel(Component& owner, MacroLists& macros)
    : Combo1(owner, "Combo1"),
      List1(owner, "List1", 1),
      PopupListIndex(owner, "PopupListIndex", 0),
      FilterLines(macros.settings().FilterLines),
      macros_(macros) {
  Combo1.ToolTipText = "Macro categories";
  Combo1.Click = [this] { Combo1_Click(); };
  List1.Prepare = [this](ListBox& list) {
    list.Visible = false;  // until its category is chosen: nothing is shown of it while it is filled
    AttachList(list);
  };
  AttachList(List1(0));
}

void MacroListPanel::AttachList(ListBox& list) {
  const int index = *list.Index();
  list.ToolTipText = "Double click macro to insert into Joystick file, or use drag and drop";
  list.MouseDown = [this, index](const Mouse& mouse) { List1_MouseDown(index, mouse); };
  list.MouseMove = [this, index](const Mouse& mouse) { List1_MouseMove(index, mouse); };
  list.DblClick = [this, index] { List1_DblClick(index); };
  list.OLEStartDrag = [this, index] { List1_OLEStartDrag(index); };
  if (index == 0) return;
  const ListBox& first = List1(0);
  list.Move(first.Left, first.Top, first.Width, first.Height);
}

void MacroListPanel::ClearAllForNewMacroFile() {
  Combo1.Clear();
  List1(0).Clear();
  for (int i = List1.Count() - 1; i > 0; --i) List1.Unload(i);
  PopupListIndex = 0;  // the list it was opened on may be gone
}

void MacroListPanel::CopyMacroList(const MacroListPanel& from) {
  ClearAllForNewMacroFile();
  Combo1.FillInOrder(from.Combo1.List());
  for (int i = 0; i < from.List1.Count(); ++i) {
    ListBox& list = i == 0 ? List1(0) : List1.Load(i);
    list.Visible = i == 0;
    list.FillInOrder(from.List1(i).List());
    list.Tick(from.List1(i).Ticks());
  }
  if (List1(0).ListCount() > 0) List1(0).ListIndex = 0;
}

void MacroListPanel::Combo1_Click() {
  hooks_.pointerInside();
  macros_.ShowCategory(*this);
}

void MacroListPanel::List1_MouseDown(int index, const Mouse& mouse) {
  macros_.TakeUnder(List1(index), mouse);
  const bool finds = mouse.button == button::kLeft && mouse.shift == shift::kShift;
  if (List1(index).ListCount() == 0 || (!finds && mouse.button != button::kRight)) return;
  PopupListIndex = index;
  if (mouse.button == button::kRight) hooks_.popUp();
}

void MacroListPanel::List1_MouseMove(int index, const Mouse& mouse) {
  hooks_.pointerInside();
  macros_.TakeUnder(List1(index), mouse);
}

void MacroListPanel::List1_DblClick(int index) {
  macros_.Insert(List1(index));
  hooks_.inserted();
}

void MacroListPanel::List1_OLEStartDrag(int index) {
  macros_.TakeFrom(List1(index));
  List1(index).DragText = " " + macros_.Selected() + " ";
}

void MacroListPanel::mnuRHListEdit_Click() {
  macros_.TakeFrom(List1(PopupListIndex));
  macros_.ShowInMacroFile();
}

void MacroListPanel::FindMacriInJfile() {
  macros_.TakeFrom(List1(PopupListIndex));
  macros_.FindMacroInJF();
}

}  // namespace tarvik
