// The Composer: a click on a control of the pictured hardware goes to its statement in the joystick file or
// writes it; the other tabs build statements from fields, logic lines and templates. The window stays loaded
// when it is hidden.
#pragma once

#include "controls/Menu.h"
#include "language/LogicLines.h"
#include "tools/composer/Assignments.h"
#include "tools/composer/StatementWriter.h"
#include "workbench/Document.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class InsertOptions : public ToolForm {
 public:
  explicit InsertOptions(Workbench& bench, Shell& shell);

  /// The pages of SSTab1.
  enum Page { kComposer, kRange, kAntenna, kThrottle, kAxes, kUse, kTemplates, kLogic };

  TabPages SSTab1{*this,
                  "SSTab1",
                  {"&Composer", "&Range", "&Antenna", "&Throttle", "&JSX, JSY, RDDR", "&Use / Misc.",
                   "Tem&plates", "&Logic"}};

  // The main page.
  TabPages SSTabHardware{*this, "SSTabHardware", {"F22 and F16 ", "PFCS and FCS", "TQS", "WCS"}};
  NamedControls<Label> hardware{*this};  ///< HAT, BTN, TRIG and ROTARY
  MacroListPanel macros;                 ///< a copy of the editor's
  ComboBox& Combo1 = macros.Combo1;
  ControlArray<ListBox>& List1 = macros.List1;
  CheckBox CheckCopyTicks{*this, "CheckCopyTicks", "Refresh macro list on focus"};
  CheckBox CheckAddCR{*this, "CheckAddCR", "Add carriage return on insert"};
  ControlArray<CommandButton> SlashButton{*this, "SlashButton", std::size(tables::kSlashes)};
  ControlArray<CommandButton> DlyRptButtons{*this, "DlyRptButtons", std::size(tables::kBrackets)};
  TextBox RemTextBox{*this, "RemTextBox"};
  CommandButton CommandREM{*this, "CommandREM", "Insert", &InsertOptions::CommandREM_Click};
  CommandButton Command10{*this, "Command10", "Clear"};
  ControlArray<CommandButton> Command7{
      *this, "Command7", {"Insert Carriage Return", "Spaces"}, &InsertOptions::Command7_Click};
  CheckBox CheckAlwaysInsert{*this, "CheckAlwaysInsert", "Always insert BTN statement"};
  CheckBox HighlightStatement{*this, "HighlightStatement", "Highlight definitions "};  ///< without effect

  // The pages that build statements. Boxes and buttons are those of the tables.
  TabPages SSTab2{*this, "SSTab2", {"Type 1", "Type 2"}};
  TabPages SSTab3{*this, "SSTab3", {"Type 1", "Type 2"}};
  TabPages SSTab4{*this, "SSTab4", {"Type 1", "Type 2", "Type 3"}};
  TabPages SSTab5{*this, "SSTab5", {"Type 1", "Type 2", "Miscellaneous THR"}};
  NamedControls<TextBox> boxes{*this};
  NamedControls<CommandButton> buttons{*this};
  ControlArray<ToggleLabel> ToggleButton1{*this, "ToggleButton1", std::size(tables::kAxes)};
  ControlArray<CheckBox> CheckMultiAddCR{*this, "CheckMultiAddCR", 0};
  ControlArray<CommandButton> Command1{*this, "Command1", std::size(tables::kUses)};
  ControlArray<CommandButton> Command2{*this, "Command2", std::size(tables::kValues)};
  ControlArray<OptionButton> Option1{*this, "Option1", 0};
  ControlArray<ListBox> MouseList{*this, "MouseList", std::size(tables::kMouseLists)};
  ControlArray<Label> Label5{*this, "Label5", 3};  ///< the mouse's left, middle and right button
  CommandButton Command9{*this, "Command9", "Insert", &InsertOptions::Command9_Click};

  // Templates.
  ListBox Templates{*this, "Templates"};
  Pane TemplatesPreview;
  ControlArray<CommandButton> Command11{*this,
                                        "Command11",
                                        {"Insert into Joystick file", "Insert into Macro file", "Refresh"},
                                        &InsertOptions::Command11_Click};

  // Logic.
  TabPages SSTab7{*this, "SSTab7", {"Toolbox", "Misc"}};
  TabPages SSTabFlags{*this, "SSTabFlags", {"1 - 8", "9 - 16", "17 - 24", "25 - 32", "33 - 40", "41 - 48"}};
  ControlArray<OptionButton> OptionFlag{*this, "OptionFlag", 0};
  ControlArray<TextBox> RichTexFlag{*this, "RichTexFlag", tables::kLogicLines};
  ControlArray<ComboBox> FlagList{*this, "FlagList", std::size(tables::kFlagLists)};
  ControlArray<TextBox> TxtFlag{*this, "TxtFlag", std::size(tables::kFlagBoxes)};
  ControlArray<CommandButton> CMDCompare{*this, "CMDCompare", std::size(tables::kCompares)};
  ControlArray<CommandButton> CMDFlagSlash{*this, "CMDFlagSlash", std::size(tables::kFlagSlashes)};
  ControlArray<CommandButton> CMDFlagInsert{*this, "CMDFlagInsert", std::size(tables::kFlagInserts) + 1};
  ControlArray<CommandButton> Command13{*this,
                                        "Command13",
                                        {"Insert all", "Insert current", "Analyse current joystick file"},
                                        &InsertOptions::Command13_Click};

  // Below the pages.
  ControlArray<CommandButton> Command5{*this, "Command5", {"Pimlet", "Prefs", "Find IP"}};
  CheckBox Check1{*this, "Check1", "Keep on top"};
  CheckBox Check2FocusThang{*this, "Check2FocusThang", "Return focus to Editor"};
  CommandButton Command14{*this, "Command14", "Tip", &InsertOptions::Command14_Click};
  CommandButton CommandHelp{*this, "CommandHelp", "Help", &InsertOptions::CommandHelp_Click};
  CommandButton Command6{*this, "Command6", "OK", &InsertOptions::Command6_Click};

  Menus menus;

  Property<int> NumberOfBlanks{*this, "NumberOfBlanks", 5};
  Property<int> DefaultRPTvalue{*this, "DefaultRPTvalue", 2};
  Property<int> AlwaysInsert{*this, "AlwaysInsert", 0};
  Property<int> COMPaddCR{*this, "COMPaddCR", 0};
  /// It is 1 when the last statement was not looked for or not found, and 0 when the caret is behind it.
  Property<int> InsertAfterSearch{*this, "InsertAfterSearch", 1};
  Property<int> COMPreturnFocus{*this, "COMPreturnFocus", 1};
  Property<int> COMPMacrosTickedCopy{*this, "COMPMacrosTickedCopy", 0};
  Property<int> LastTemplateIndex{*this, "LastTemplateIndex", -1};
  Property<int> CurrentLogicLine{*this, "CurrentLogicLine", 0};
  Property<std::string> TemplatePath{*this, "TemplatePath"};

  /// Shows the Composer on its main page, or its templates.
  void ShowComposer();
  void ShowTemplates();

  // Life of the form.
  void Form_Load();
  void Form_Activate();
  void Form_Deactivate();
  void Form_KeyDown(Key& key);
  void Form_Unload();
  void SSTab1_Click();
  void PositionComposer();
  void GetSpaces();
  void SaveSpaces();

  // What the hardware's pages show.
  void ShowApproriateTabs();
  void LabelWCS();

  // The copy of the editor's macro lists.
  void CopyMacroList();
  void mnuRHListInsert_Click() { macros.mnuRHListInsert_Click(); }
  void mnuFindInJoyFile_Click();
  void mnuRHListEdit_Click() { macros.mnuRHListEdit_Click(); }

  // Statements.
  void BTN_Click(int index);
  void HAT_Click(int index);
  void TRIG_Click() { PopUp("mnuTrigger"); }
  void ROTARY_Click(int index);
  /// The latch that makes the next trigger the game port's.
  void ArmPort() { hardware("ROTARY(7)").BorderStyle = 1; }
  void MnuHatPostion_Click(int index);
  void MnuHatCornerPostion_Click(int index);
  void mnuTrig_Click(int index);
  void mnuPort_Click(int index);
  void SlashButton_Click(int index);
  void DlyRptButtons_Click(int index);
  void CommandREM_Click() { writer_.Write(RemStatement(RemTextBox.Text, Style())); }
  void Command7_Click(int index);
  void InsertComposerBlanks();
  void ToggleButton1_Click(int index);
  void Command1_Click(int index) { writer_.Write(UseStatement(tables::kUses[index], Style())); }
  void Command2_Click(int index);
  void Command9_Click();
  void FillMiceListBoxes();
  void MouseList_Click(int index);
  void Option1_Click(int index);
  void CheckMultiAddCR_Click(int index);

  // Templates.
  void FillTemplates();
  void Templates_Click();
  void MakeTemplateCurrent(int item);
  void Templates_MouseMove(const Mouse& mouse);
  void TemplatesPreview_DblClick() { InsertTemplate(bench_.documents.Active()); }
  void Command11_Click(int index);
  void mnuJoystick_Click() { Command11_Click(0); }
  void mnuMacrofile_Click();
  void mnuQuickie_Click();

  // Logic.
  void FillLogicLists();
  void WhichLogicText();
  void ColourFlagTextBack();
  void OptionFlag_Click(int index);
  void CMDFlagInsert_Click(int index);
  void Command13_Click(int index);
  void FindLogicStatements();

  void Command5_Click(int index);
  void Command6_Click();
  void Command14_Click();
  void CommandHelp_Click();
  void Check1_Click();

  [[nodiscard]] const Menus* MenuBar() const override { return &menus; }
  /// The label of a row of the hardware table.
  [[nodiscard]] Label& LabelOf(const tables::HardwareRow& row) const;
  /// What the joystick file assigns just now, and the signal that it may be something else from now on.
  [[nodiscard]] Assignments Assigned() const { return Assignments(bench_.models.Pair()); }
  Signal<> AssignedChanged;
  /// Which controls light because of the stick, or of the caret.
  [[nodiscard]] FollowStick& Following() const { return bench_.follow; }
  /// The tabs within a page that builds statements.
  [[nodiscard]] TabPages& StripOf(const tables::StatementTabRow& row) const;

 private:
  void MakeHardware();
  void MakeStatementPages();
  void MakeMainPage();
  void MakeModifiers();
  TextBox& MakeNumberBox(const char* name, Property<int>& number, int fallback);
  void MakeBlanksAndComments();
  void MakeUsePage();
  void MakeTemplatesPage();
  void MakeLogicPage();
  void MakeFrame();
  void PreparePage(const tables::StatementTabRow& row);

  void ShowPictures(const bool (&shown)[4]);
  void ShowForJoystick(int joystick);
  enum class Sight { Hidden, Shown };
  void ShowPorts(Sight sight);
  void ShowCorners(Sight sight);
  void ShowIgnoreSlash(int joystick);
  void ShowForFile();
  void ShowForPreferences();
  void ShowAllHardware();
  /// The last three characters of the joystick file's name.
  [[nodiscard]] std::string EndingOfFile() const;

  [[nodiscard]] StatementStyle Style() const;
  [[nodiscard]] bool PortArmed() const { return hardware("ROTARY(7)").BorderStyle == 1; }
  void ReleasePort() { hardware("ROTARY(7)").BorderStyle = 0; }
  void FindOrWrite(const Statement& statement);
  void TabStatement_Click(const tables::TabRow& row);
  [[nodiscard]] int LitAxis() const;
  /// The list of mouse types in front.
  [[nodiscard]] int KindOfMouse() const;
  [[nodiscard]] std::string MacroNameForMDEF() const;
  void InsertTemplate(Document& document);
  void AddToLogicLine(std::string_view token);
  [[nodiscard]] Outcome<std::string> LogicLine(int index);
  [[nodiscard]] std::string LogicLinesOnShow() const;
  void LogicLinesChanged();
  /// Takes back the logic lines that were nowhere else when the program ended.
  bool TakeBack(const UnsavedText& unsaved);

  StatementWriter writer_;
  Journal logicJournal_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
