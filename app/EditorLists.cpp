// The editor's macro lists and the row of buttons below them.
#include "app/Editor.h"

namespace tarvik {
namespace {

constexpr int kDelayButton = 11;

}  // namespace

void Editor::HelpOnWhatsThis(int topic) {
  if (mum_.MousePointer != pointer::kWhatsThis) return;
  ShowHelp(application_.platform, topic);
  mum_.MousePointer = pointer::kDefault;
}

void Editor::mnuEditUpdateMacros_Click() {
  const std::size_t equals = MacroText.Characters().find('=');
  if (equals == std::string_view::npos || equals == 0) return;
  desk_.Select(Macro);
  if (Macro.Dirty == saved::kModified) {
    Dialogs& dialogs = application_.platform.dialogs;
    const std::string name = Macro.Name.Get().Text();
    const Answer answer =
        dialogs.Show({" Save " + name + " now?",
                      name + " has changed and isn't saved. You must save it if you want to update "
                             "your macros list. Shall I go ahead and save it?",
                      BoxIcon::Question, BoxButtons::YesNo});
    if (answer == Answer::Yes) {
      desk_.Select(Macro);
      mnuFileSave_Click();
    }
    if (answer != Answer::Yes || Macro.Dirty == saved::kModified) {
      dialogs.Show({"File not saved", name + " wasn't saved, so I won't continue to update your macros list.",
                    BoxIcon::Exclamation, BoxButtons::Ok});
      return;
    }
  }
  application_.values.MacroListChanged = 1;
  files_.AnalyseMacroFile();
}

void Editor::mnuFindInJF_Click() {
  lists_.TakeFrom(List1(lists_.PopupListIndex));
  lists_.FindMacroInJF();
}

void Editor::mnuRHListEdit_Click() {
  desk_.Select(Macro);
  lists_.TakeFrom(List1(lists_.PopupListIndex));
  MacroText.SetFocus();
  lists_.ShowMacroKeys();
}

void Editor::Combo1_Click() {
  layout_.ResetFramePointer();
  lists_.ShowCategory();
}

void Editor::List1_MouseDown(int index, const Mouse& mouse) {
  constexpr int kRight = 2;
  lists_.TakeUnder(List1(index), mouse);
  if (mouse.button != kRight || List1(index).ListCount() == 0) return;
  lists_.PopupListIndex = index;
  ShowPopUp("mnuRHList");
}

void Editor::List1_MouseMove(int index, const Mouse& mouse) {
  layout_.ResetFramePointer();
  lists_.TakeUnder(List1(index), mouse);
}

void Editor::List1_OLEStartDrag(int index) {
  lists_.TakeFrom(List1(index));
  List1(index).DragText = " " + application_.values.SelectedMacro.Get() + " ";
}

void Editor::Command1_Click(int index) {
  Values& values = application_.values;
  const Settings& settings = application_.settings;
  const std::string value = TextOf(settings.DefaultDLYvalue.Get());
  const bool delay = index == kDelayButton;
  values.InsertionText = delay ? "DLY(" : Command1(index).Caption.Get() + " ";
  values.InsertionColour = delay ? settings.RAWColour.Get() : settings.SlashColour.Get();
  insertion_.BeginColInsert();
  if (settings.InsertWithColour == 0) {
    if (delay) values.InsertionText = "DLY(" + value + ") ";
    values.InsertionColour = kBlack;
    insertion_.InsertBlackText();
  } else {
    insertion_.AddSpaceToColouredText();
    insertion_.InsertColouredString(values.InsertionText, values.InsertionColour);
    if (delay) {
      insertion_.InsertColouredStringNoSpace(value, kBlack);
      insertion_.InsertColouredString(") ", values.InsertionColour);
    }
  }
  insertion_.EndColInsert();
}

}  // namespace tarvik
