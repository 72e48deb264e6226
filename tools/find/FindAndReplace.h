// The tool window that searches either file, replaces what it finds, and goes to a line.
#pragma once

#include "workbench/Document.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class FindAndReplace : public ToolForm {
 public:
  explicit FindAndReplace(Workbench& bench, Shell& shell);

  TabPages SSTab1{*this, "SSTab1", {"&Find", "Re&place", "&Go to"}};

  // Find.
  EntryBox ComboTextFind{*this, "ComboTextFind"};
  OptionButton OptionJoystickF{*this, "OptionJoystickF", "&Joystick file", 1};
  OptionButton OptionMacroF{*this, "OptionMacroF", "&Macro file", 1};
  CheckBox MatchCaseF{*this, "MatchCaseF", "Match &case"};
  CheckBox WholeWordF{*this, "WholeWordF", "Find &whole words only"};
  CheckBox Check6{*this, "Check6", "&Keep on top"};
  CommandButton Command1{*this, "Command1"};
  CommandButton Command2{*this, "Command2", "Cancel"};

  // Replace.
  EntryBox ComboTextReplaceFind{*this, "ComboTextReplaceFind"};
  EntryBox ComboTextReplaceWith{*this, "ComboTextReplaceWith"};
  OptionButton OptionJoystickR{*this, "OptionJoystickR", "&Joystick file", 2};
  OptionButton OptionMacroR{*this, "OptionMacroR", "&Macro file", 2};
  CheckBox MatchCaseR{*this, "MatchCaseR", "Match &case"};
  CheckBox WholeWordR{*this, "WholeWordR", "Find &whole words only"};
  CheckBox Check7{*this, "Check7", "&Keep on top"};
  CommandButton Command3{*this, "Command3"};
  CommandButton Command5{*this, "Command5", "&Replace", &FindAndReplace::Command5_Click};
  CommandButton Command6{*this, "Command6", "Replace &All", &FindAndReplace::Command6_Click};
  CommandButton Command4{*this, "Command4", "Cancel"};

  // Go to.
  TextBox LineToFind{*this, "LineToFind"};
  CheckBox Check8{*this, "Check8", "&Keep on top"};
  CommandButton Command7{*this, "Command7", "G&oto", &FindAndReplace::Command7_Click};
  CommandButton Command8{*this, "Command8", "Cancel"};

  CommandButton Command9{*this, "Command9", "C&lose"};
  CommandButton Command10{*this, "Command10", "&Help", &FindAndReplace::Command10_Click};

  Property<std::string> SearchText{*this, "SearchText"};
  Property<std::string> ReplacementText{*this, "ReplacementText"};
  /// The position at which the last search found the text; -1 where it did not.
  Property<int> SearchHit{*this, "SearchHit", -1};
  Property<int> SearchOptions{*this, "SearchOptions", 0};
  // Once set by a search they stay until the form is closed.
  Property<int> MatchCaseOption{*this, "MatchCaseOption", 0};
  Property<int> WholeWordOption{*this, "WholeWordOption", 0};
  /// The file to search: 1 is the joystick file, 2 the macro file.
  Property<int> SearchTarget{*this, "SearchTarget", 1};

  /// Show the form on one of its pages, with what is selected in the file on top as the text to look for.
  void ShowFind();
  void ShowReplace();
  void ShowGoto();

  void Form_Load();
  void Form_KeyDown(Key& key);
  void SSTab1_Click();
  void Command1_Click();
  void Command3_Click();
  void Command5_Click();
  void Command6_Click();
  void Command7_Click();
  void Command10_Click();
  void LineToFind_GotFocus() { LineToFind.SelectAll(); }
  void ReplaceText();
  /// Goes on to the next hit when the last one stands selected and untouched in the document. False: it does
  /// not.
  bool GoOnFrom(const Document& document);

 private:
  /// The controls of a page that searches, and the ways in which the pages differ.
  struct Page;

  void AttachHandlers();
  void ShowOn(int tab);
  void TakeSelection(const Page& page);
  [[nodiscard]] Page FindPage();
  [[nodiscard]] Page ReplacePage();
  void Search(const Page& page);
  void NotFound(const Page& page, Document& document, bool first);
  bool IsReady(const Page& page);
  [[nodiscard]] Document& Target(const Page& page) const;
  void TakeOptions(const Page& page);
  enum class Replacing { Refused, Allowed };
  void Set(Replacing replacing);
  [[nodiscard]] bool Refuses(const Document& document) const;
  void TakeReplacement();
  /// Selects the last hit again. False where the text is no longer what was found.
  bool SelectHit();
  void Show(const char* title, const std::string& text, BoxIcon icon = BoxIcon::Exclamation) const;

  /// What the last search found, until it is replaced.
  struct Hit {
    Document* document;
    Range range;
    std::string text;
    bool onReplacePage;
  };

  std::optional<Hit> hit_;
};

}  // namespace tarvik
