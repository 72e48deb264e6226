// The controls with which a guided form makes a macro file: its headings, its macros line by line, and the
// editor's own commands.
#pragma once

#include "controls/Controls.h"
#include "workbench/Shell.h"

namespace tarvik {

class MacroMaker {
 public:
  /// A button of `Command1` and what it does.
  struct Command {
    const char* caption;
    void (MacroMaker::*run)();
  };
  static constexpr std::size_t kOwn = 3;  ///< buttons that each form has for itself; they come first
  static constexpr int kInsert = 4;

  MacroMaker(Form& form, Workbench& bench, Shell& shell, std::span<const Command, kOwn> own);

  ControlArray<CommandButton> Command1;
  ControlArray<TextBox> Text1;  ///< the macro's name and its keys
  Label Preview;
  ListBox List1;

  void Command1_Click(int index);
  void List1_DblClick();
  /// Shows the macro's line, unless its name has a blank in it.
  void Text1_Change();
  void Text1_KeyDown(Key& key);

  // The commands of the buttons.
  void CreateFile() { bench_.NewFile(bench_.documents.macro); }
  void CreateAndSaveFile();
  void InsertTitle() { shell_.Show(ToolId::Title); }
  void InsertHeading() { shell_.Show(ToolId::Heading); }
  void InsertMacro();
  void ClearTexts();
  void ShowPimlet() { shell_.Show(ToolId::Pimlet); }
  void SaveFile() { bench_.files.Save(bench_.documents.Active()); }
  void UpdateMacros() { bench_.files.UpdateMacros(); }
  void CloseForm() { shell_.Unload(form_); }

 protected:
  /// Makes ready for the next macro: the name gets the focus, and Enter inserts.
  void PrepareMacro();

 private:
  void AddHeadingsToList();
  void WriteBlack(const std::string& text);

  Form& form_;
  Workbench& bench_;
  Shell& shell_;
  std::vector<Command> commands_;
  Connection keysOffered_;
};

}  // namespace tarvik
