// The process-wide values that belong to no form: they live as long as the program and are found by name.
#pragma once

#include "controls/Component.h"
#include "platform/FileName.h"
#include "text/RichText.h"

namespace tarvik {

class SharedValues : public Component {
 public:
  SharedValues() : Component("SharedValues") {}

  // Paths set at the start.
  Property<std::string> IniFile{*this, "IniFile"};
  Property<Folder> BackupDir{*this, "BackupDir"};
  Property<Folder> RtfDir{*this, "RtfDir"};
  Property<std::string> CommandLine{*this, "CommandLine"};

  /// It is 1 while program code rewrites a pane, so that its change handler does not count it as an edit.
  Property<int> LoadingFile{*this, "LoadingFile", 0};
  Property<int> FontChanged{*this, "FontChanged", 0};
  Property<int> TemplateFontChanged{*this, "TemplateFontChanged", 0};
  Property<int> HardwareChanged{*this, "HardwareChanged", 0};
  Property<int> PreferencesTab{*this, "PreferencesTab", 0};

  /// Handed to the next insertion by a tool.
  Property<std::string> InsertionText{*this, "InsertionText"};
  Property<Colour> InsertionColour{*this, "InsertionColour", kBlack};
  /// What the user typed in the window for a remark or a heading; empty after Cancel.
  Property<std::string> REMText{*this, "REMText"};

  /// The macro name last taken from a list, and the list in front.
  Property<std::string> SelectedMacro{*this, "SelectedMacro"};
  Property<int> SelectedCategoryList{*this, "SelectedCategoryList", 0};
  /// It is 1 from when the macro lists change until a tool that copies them has done so.
  Property<int> MacroListChanged{*this, "MacroListChanged", 0};
};

}  // namespace tarvik
