// The editor's macro lists and the row of buttons below them.
#include "app/Editor.h"

namespace tarvik {
namespace {

constexpr int kDelayButton = 11;

}  // namespace

void Editor::HelpOnWhatsThis(int topic) {
  if (mum_.MousePointer != pointer::kWhatsThis) return;
  ShowHelp(bench_.platform, topic);
  mum_.MousePointer = pointer::kDefault;
}

void Editor::mnuFindInJF_Click() {
  bench_.macros.TakeFrom(List1(bench_.macros.PopupListIndex));
  bench_.macros.FindMacroInJF();
}

void Editor::mnuRHListEdit_Click() {
  bench_.documents.Select(Macro);
  bench_.macros.TakeFrom(List1(bench_.macros.PopupListIndex));
  MacroText.SetFocus();
  bench_.macros.ShowMacroKeys();
}

void Editor::Combo1_Click() {
  layout_.ResetFramePointer();
  bench_.macros.ShowCategory();
}

void Editor::List1_MouseDown(int index, const Mouse& mouse) {
  constexpr int kRight = 2;
  bench_.macros.TakeUnder(List1(index), mouse);
  if (mouse.button != kRight || List1(index).ListCount() == 0) return;
  bench_.macros.PopupListIndex = index;
  ShowPopUp("mnuRHList");
}

void Editor::List1_MouseMove(int index, const Mouse& mouse) {
  layout_.ResetFramePointer();
  bench_.macros.TakeUnder(List1(index), mouse);
}

void Editor::List1_OLEStartDrag(int index) {
  bench_.macros.TakeFrom(List1(index));
  List1(index).DragText = " " + bench_.values.SelectedMacro.Get() + " ";
}

void Editor::Command1_Click(int index) {
  Values& values = bench_.values;
  const Settings& settings = bench_.settings;
  const std::string value = TextOf(settings.DefaultDLYvalue.Get());
  const bool delay = index == kDelayButton;
  values.InsertionText = delay ? "DLY(" : Command1(index).Caption.Get() + " ";
  values.InsertionColour = delay ? settings.RAWColour.Get() : settings.SlashColour.Get();
  bench_.insertion.BeginColInsert();
  if (settings.InsertWithColour == 0) {
    if (delay) values.InsertionText = "DLY(" + value + ") ";
    values.InsertionColour = kBlack;
    bench_.insertion.InsertBlackText();
  } else {
    bench_.insertion.AddSpaceToColouredText();
    bench_.insertion.InsertColouredString(values.InsertionText, values.InsertionColour);
    if (delay) {
      bench_.insertion.InsertColouredStringNoSpace(value, kBlack);
      bench_.insertion.InsertColouredString(") ", values.InsertionColour);
    }
  }
  bench_.insertion.EndColInsert();
}

}  // namespace tarvik
