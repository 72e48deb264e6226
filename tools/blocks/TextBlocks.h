// Blocks of comment that the user has written into the file on top: a title, a heading between rules, and a
// single remark, each with the small window that asks for its text.
#pragma once

#include <span>

#include "app/Application.h"
#include "panes/Pane.h"

namespace tarvik {

class Title : public Form {
 public:
  explicit Title(Application& application);

  TextBox Text1{*this, "Text1"};  ///< file name
  TextBox Text2{*this, "Text2"};  ///< game
  TextBox Text3{*this, "Text3"};  ///< the person's name
  TextBox Text4{*this, "Text4"};  ///< last modified
  TextBox Text5{*this, "Text5"};  ///< hardware
  Pane RichTextBox1;              ///< comments
  CommandButton Command1{*this, "Command1", "OK"};
  CommandButton Command2{*this, "Command2", "Cancel"};

  void Form_Activate();
  void Form_Unload();
  void Command1_Click();
  [[nodiscard]] std::string GetPersonsName() const { return application_.settings.ValidUser; }
  void SaveThePersonsName();

 private:
  [[nodiscard]] std::vector<std::string> Lines() const;

  Application& application_;
};

class Heading : public Form {
 public:
  explicit Heading(Application& application);

  EntryBox Combo1{*this, "Combo1"};
  ControlArray<CommandButton> Command1{*this, "Command1", 2};

  void Command1_Click(int index);

 private:
  Application& application_;
};

class SingleTextForm : public Form {
 public:
  explicit SingleTextForm(Application& application);

  TextBox RichTextBox1{*this, "RichTextBox1"};
  CheckBox CheckAddCR{*this, "CheckAddCR", "Add carriage return"};
  CommandButton Command1{*this, "Command1", "OK"};
  CommandButton Command2{*this, "Command2", "Cancel"};

  void Form_Load();
  void Command1_Click() { Close(RichTextBox1.Text.Get() + " "); }
  void Command2_Click() { Close({}); }
  /// Stores whether a remark ends its line.
  void SaveCRthang();

 private:
  void Close(const std::string& text);

  Application& application_;
};

/// The user's hardware in words, as "F-16 FLCS, TQS, RCS."
[[nodiscard]] std::string GetHardwareNames(const Settings& settings);

/// The usual headings of a macro file.
[[nodiscard]] std::span<const char* const> MacroHeadings();
/// The three lines that make a text a heading of the macro file.
[[nodiscard]] std::vector<std::string> HeadingBlock(const std::string& text);

/// Asks for a remark in a window: its text with a blank behind it, empty after Cancel.
std::string AskForRemark(Application& application);

/// Ask for the text in a window, and write the block at the caret of the file on top.
void InsertTitle(Application& application);
void InsertHeading(Application& application);
void InsertRemStatement(Application& application);

}  // namespace tarvik
