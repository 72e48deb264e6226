// The Template Editor: one pane for a template, which is kept as RTF in a folder beside the program, or for
// any other text file, which goes back as plain text to where it came from.
#pragma once

#include "controls/Menu.h"
#include "panes/Pane.h"
#include "workbench/ColourChoices.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class TemplateForm : public ToolForm {
 public:
  /// The members of Command1.
  enum Command { kOpen, kSave, kNew, kCommands };

  explicit TemplateForm(Workbench& bench, Shell& shell);

  Menus menus;
  Pane TemplateText;
  TextBox Text1{*this, "Text1"};  ///< the file's name
  ControlArray<CommandButton> Command1{*this, "Command1", kCommands};
  CommandButton Command2{*this, "Command2", "Default", &TemplateForm::Command2_Click};
  CommandButton CmndPrint{*this, "CmndPrint", "Print", &TemplateForm::mnuFilePrint_Click};
  Label Label1{*this, "Label1"};
  NamedControls<Label> swatches{*this};  ///< ColourLabel1 to ColourLabel6
  ToggleLabel ToggleButton1{*this, "ToggleButton1", "Word wrap"};

  /// It is 1 when there is something to save.
  Property<int> TemplateChanged{*this, "TemplateChanged", 0};
  Property<std::string> TemplateFolder{*this, "TemplateFolder"};
  Property<std::string> TemplatePath{*this, "TemplatePath"};
  Property<std::string> TemplateName{*this, "TemplateName"};
  /// The file whose text was loaded into the pane; empty for a new one.
  Property<std::string> FileName{*this, "FileName"};

  /// Shows the window with the focus in the text.
  void ShowText();

  void Form_Load();
  void Form_Activate();
  bool Form_QueryUnload() override;
  [[nodiscard]] std::string OpenPath() const override { return FileName; }

  void Command1_Click(int index);
  void Command2_Click();
  void Text1_LostFocus();
  void ToggleButton1_Click();
  void TemplateText_Change() { TemplateChanged = 1; }
  void TemplateText_GotFocus() { Say("Editing " + TemplateName.Get()); }
  void TemplateText_KeyDown(Key& key);
  void TemplateText_MouseDown(const Mouse& mouse);
  void ColourLabel_Click(const Label& swatch) { TemplateText.SelColor = swatch.BackColor; }

  void mnuFileNew_Click() { Command1_Click(kNew); }
  void mnuFileOpen_Click() { Command1_Click(kOpen); }
  void mnuFileSave_Click() { Command1_Click(kSave); }
  void mnuFileSetAsDefault_Click();
  void mnuFileLoadDefault_Click();
  void mnuFilePrint_Click();
  void mnuFileExit_Click() { shell_.CloseTool(*this); }
  void mnuCut_Click();
  void mnuCopy_Click();
  void mnuPaste_Click();
  void mnuDelete_Click();
  void mnuSelectAll_Click() { TemplateText.Select({0, TemplateText.Characters().size()}); }
  void mnuEditTarvikini_Click();
  void mnuColourApply_Click() { ColourTemplateText(); }
  void mnuEdTmpPrefs_Click() { EditPreferences(page::kApps); }
  void mnuViewEditColours_Click() { EditPreferences(page::kColours); }
  void mnuTextToBlack_Click();
  void mnuViewrefreshLayout_Click();
  void mnuOverview_Click();

  void ColourTemplateText();
  void UpdateLabelColours();

  [[nodiscard]] const Menus* MenuBar() const override { return &menus; }

 private:
  void EditPreferences(page::Preferences page);
  void AttachHandlers();
  /// Asks about unsaved work. False: the user keeps it.
  bool MayLeave(const char* question, const char* refused);
  bool MayOpen(const char* question);
  void NameUntitled();
  void OpenDefault(const Trap& trap);
  /// Enables the button for the default template where there is one.
  void ShowDefault();
  /// Loads a file into the pane; on failure all stays as it was.
  bool LoadText(const std::string& path, const Trap& trap);
  void ShowName(const std::string& name);
  void Open();
  bool Save();
  void New();
  void UpdateCopyItems();
  /// Takes back what was not saved when the program ended.
  bool TakeBack(const UnsavedText& unsaved);

  Journal journal_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
