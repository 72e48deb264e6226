// Blocks of comment that the user has written into the file on top: a title, a heading between rules, and a
// single remark, each with the small window that asks for its text.
#pragma once

#include <span>

#include "panes/Pane.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class Title : public ToolForm {
 public:
  explicit Title(Workbench& bench, Shell& shell);

  TextBox Text1{*this, "Text1"};  ///< file name
  TextBox Text2{*this, "Text2"};  ///< game
  TextBox Text3{*this, "Text3"};  ///< the person's name
  TextBox Text4{*this, "Text4"};  ///< last modified
  TextBox Text5{*this, "Text5"};  ///< hardware
  Pane RichTextBox1;              ///< comments
  CommandButton Command1{*this, "Command1", "OK", &Title::Command1_Click};
  CommandButton Command2{*this, "Command2", "Cancel", &Title::Close};

  void Form_Activate();
  void Form_Unload();
  void Command1_Click();
  [[nodiscard]] std::string GetPersonsName() const { return bench_.settings.ValidUser; }
  void SaveThePersonsName();

 private:
  [[nodiscard]] std::vector<std::string> Lines() const;
};

class Heading : public ToolForm {
 public:
  explicit Heading(Workbench& bench, Shell& shell);

  EntryBox Combo1{*this, "Combo1"};
  ControlArray<CommandButton> Command1{*this, "Command1", {"OK", "Cancel"}, &Heading::Command1_Click};

  void Command1_Click(int index);
};

class SingleTextForm : public ToolForm {
 public:
  explicit SingleTextForm(Workbench& bench, Shell& shell);

  TextBox RichTextBox1{*this, "RichTextBox1"};
  CheckBox CheckAddCR{*this, "CheckAddCR", "Add carriage return"};
  CommandButton Command1{*this, "Command1", "OK", &SingleTextForm::Command1_Click};
  CommandButton Command2{*this, "Command2", "Cancel", &SingleTextForm::Command2_Click};

  void Form_Load();
  void Command1_Click() { Close(RichTextBox1.Text.Get() + " "); }
  void Command2_Click() { Close({}); }
  /// Stores whether a remark ends its line.
  void SaveCRthang();

 private:
  void Close(const std::string& text);
};

/// The user's hardware in words, as "F-16 FLCS, TQS, RCS."
[[nodiscard]] std::string GetHardwareNames(const Settings& settings);

/// Asks for a remark in a window. `REMText` is its text with a blank behind it, empty after Cancel.
void AskForRemark(Workbench& bench, Shell& shell);

/// Ask for the text in a window, and write the block at the caret of the file on top.
void InsertTitle(Workbench& bench, Shell& shell);
void InsertHeading(Workbench& bench, Shell& shell);
void InsertRemStatement(Workbench& bench, Shell& shell);

}  // namespace tarvik
