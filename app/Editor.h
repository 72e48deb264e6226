// The window of the two files: panes on a tab strip, the macro lists beside them, and the menu bar. The form
// is a switchboard: its handlers hand over to small classes that know one matter each.
#pragma once

#include "app/Layout.h"
#include "app/ListMenus.h"
#include "app/Mum.h"
#include "app/PaneInput.h"
#include "app/SavedStates.h"
#include "tools/printing/PrintRTFWordWrap.h"
#include "workbench/AutoSave.h"
#include "workbench/ColouredInsertion.h"
#include "workbench/EditCommands.h"
#include "workbench/FileCommands.h"
#include "workbench/HelpTopics.h"
#include "workbench/LineBlink.h"

namespace tarvik {

class Editor : public Form {
 public:
  static constexpr int kModifierButtons = 13;

  explicit Editor(Application& application);

  // Controls.
  Pane JoystickText;
  Pane MacroText;
  Pane TempRichTextBox;  ///< hidden, for work that must not show
  Pane CompareRTF;       ///< hidden, for the comparison of a coloured copy with its file
  TabStrip TabStrip1{*this, "TabStrip1", 2};
  Frame FrameMacros{*this, "FrameMacros"};
  ComboBox Combo1{*this, "Combo1"};
  ControlArray<ListBox> List1{*this, "List1", 1};
  ControlArray<CommandButton> Command1{*this, "Command1", kModifierButtons};
  Timer Timer1{*this, "Timer1"};
  Timer TimerBlinkLine{*this, "TimerBlinkLine"};
  Menus menus;
  /// The pop-up menus: the panes', and the macro lists'.
  Menus popUps;

  MenuItem& mnuEditUndo = menus("mnuEditUndo");
  MenuItem& mnuEditRedo = menus("mnuEditRedo");
  MenuItem& mnuViewMacros = menus("mnuViewMacros");
  MenuItem& mnuViewTileVertically = menus("mnuViewTileVertically");
  MenuItem& mnuViewWordWrap = menus("mnuViewWordWrap");
  MenuItem& mnuInsertWithColour = menus("mnuInsertWithColour");
  MenuItem& mnuJoyPopUpSingleFile = menus("mnuJoyPopUpSingleFile");
  MenuItem& mnuPreferencesProtectMacroFile = menus("mnuPreferencesProtectMacroFile");

  // The documents.
  Document Joystick;
  Document Macro;

  // Life of the form.
  /// Takes the frame's size, until whatever shows the form tells it its own.
  void FillFrame();
  void Form_Load(EditorBegins begins);
  void Form_Activate();
  bool Form_QueryUnload() override { return files_.MayExit(); }
  void Form_Unload();
  void Form_Resize() { layout_.Place(); }
  void TestCommandLine();
  void OpenPreviouslySavedFiles(const std::string& path);
  /// Files that the user dropped: opens the first that is one of a pair, together with the other one.
  void OpenDropped(const std::vector<std::string>& paths) { files_.OpenPairAmong(paths); }
  /// Opens the one file, as a macro file or a joystick file by its ending; no path, no file.
  void OpenFavouriteFile(const std::string& path);
  void F22MenusUpdate();
  void HardwareHasChanged();
  void AutoSaveHasChanged();
  void DamnFontWasChanged();
  void GetOpenSingleOnly();
  void SaveOpenSingleOnly();

  // Preferences.
  void mnuPreferencesEdit_Click();
  void mnuViewEditColours_Click();
  void mnuAppsEdit_Click();
  void mnuFavsEdit_Click();
  void mnuGamesEdit_Click();

  // Documents.
  void mnuFileNewJoystick_Click() { NewFile(Joystick); }
  void mnuFileNewMacro_Click() { NewFile(Macro); }
  void mnuFileNewBoth_Click();
  void mnuFileJoystickLoad_Click() { files_.Load(Joystick); }
  void MnuFileMacroLoad_Click() { files_.Load(Macro); }
  void mnuFileOpen_Click() { files_.OpenPair(); }
  void mnuFileSave_Click() { files_.Save(desk_.Active()); }
  void mnuFileSaveAs_Click() { files_.SaveAs(desk_.Active()); }
  void mnuFileSaveBoth_Click() { files_.SaveBoth(); }
  void mnuFilePrintJoystick_Click();
  void mnuFilePrintMacro_Click();
  void mnuFilePrinterSetup_Click() { SetUpPrinter(desk_); }
  void mnuRHMPrint_Click();
  void mnuJoyPopUpSingleFile_Click() { mnuJoyPopUpSingleFile.Checked = !mnuJoyPopUpSingleFile.Checked; }
  void mnuJFArray_Click(int index) { OpenPrevious("mnuJFArray", index); }
  void mnuMFArray_Click(int index) { OpenPrevious("mnuMFArray", index); }
  void mnuPreviousClearAllJ_Click();
  void mnuPreviousClearAllM_Click();
  void mnuFileExit_Click() { application_.CloseMum(); }
  void mnuPreferencesProtectMacroFile_Click();
  void Timer1_Timer() { autoSave_.Minute(); }
  /// A last attempt to save both files when things have gone wrong. Ready for an active error report; nothing
  /// calls it yet.
  void EmergencySaveFiles();
  void JoystickTextChanged() { TextChanged(Joystick); }
  void MacroTextChanged() { TextChanged(Macro); }

  // Favourites, games, and the user's own programs.
  void mnuFavouritesAddCurrent_Click();
  void mnuFavArray_Click(int index);
  void mnuGamesAdd_Click();
  void mnuGameArray_Click(int index);
  void mnuCustomApp_Click(int index);

  // Undo.
  void mnuEditUndo_Click();
  void mnuEditRedo_Click();
  void UpdateUndoRedoMenus();
  void DeleteUndosOnSaveJ() { files_.ResetHistory(Joystick); }
  void DeleteUndosOnSaveM() { files_.ResetHistory(Macro); }
  void DeleteUndosFromMemory();

  // Editing.
  void mnuEditCut_Click() { edit_.Cut(); }
  void mnuEditCopy_Click() { edit_.Copy(); }
  void mnuEditPaste_Click() { edit_.Paste(); }
  void mnuEditDelete_Click() { edit_.Delete(); }
  void mnuEditSelectAll_Click();
  void mnuEditFind_Click();
  void mnuEditReplace_Click();
  void mnuEditGoto_Click();
  void UpdateCCPButtons() { edit_.UpdateCCPButtons(); }
  void CheckAtLineBeginning() { edit_.CheckAtLineBeginning(); }

  // The tools that write statements.
  void mnuShowInsertWindow_Click();
  void mnuComposerPlugin_Click();
  void mnuInsertRAW_Click();

  // Blocks.
  void mnuInsertTitle_Click();
  void mnuInsertHeading_Click();
  void mnuInsertRemStatement_Click();
  void mnuInsertQuickTip_Click();

  // View.
  void mnuViewMacros_Click() { layout_.ToggleMacroFrame(); }
  void mnuViewTileVertically_Click() { layout_.ToggleTiled(); }
  void mnuViewReformat_Click();
  void mnuViewWordWrap_Click();
  void mnuViewHighlightLine_Click() { blink_.Start(); }
  void FrameMacros_MouseDown() { HelpOnWhatsThis(topic::kMacroLists); }
  void FrameMacros_MouseMove(const Mouse& mouse) { layout_.FrameMouseMove(mouse); }
  void FrameMacros_DblClick() { mnuViewMacros_Click(); }
  void TimerBlinkLine_Timer() { blink_.Step(); }
  void TabStrip1_Click();
  void UpdateToolBarOpenSaveTooltips();
  void Toolbar1_ButtonClick(int button);

  // The scratch pane, for work on the file on top that must not show.
  void TextToTempRichTextBox() { TempRichTextBox.SetContent(desk_.Active().text.Content()); }
  void TextFromTempRichTextBox();
  /// Gives all of the scratch pane the user's font.
  void TempTextRefreshFont() { tarvik::ApplyFont(TempRichTextBox, desk_.settings); }
  // Where padding at the end of a file, or the colour of what is pasted, would be seen to. Nothing is ever
  // padded, and what is pasted keeps its colours.
  void AddHugeBlankStringJF() {}
  void RemoveHugeBlankStringJF() {}
  void AddHugeBlankStringMF() {}
  void RemoveHugeBlankStringMF() {}
  void ApplyPasteColour() {}

  // Colours.
  void ApplyColourHighlighting() { highlighter_.Apply(Joystick); }
  void ApplyMacroColourHighlighting() { highlighter_.Apply(Macro); }
  void mnuViewColourJoystick_Click() { ApplyColourHighlighting(); }
  void mnuViewColourMacro_Click() { ApplyMacroColourHighlighting(); }
  void mnuViewApplyColourBothFiles_Click();
  void mnuRemoveColourJoystick_Click() { highlighter_.Remove(Joystick); }
  void mnuRemoveColourMacro_Click() { highlighter_.Remove(Macro); }
  void mnuRemoveColourSelectedText_Click();
  void mnuRHMColour_Click() { highlighter_.Apply(desk_.Active()); }
  void mnuRHMColoursRemove_Click() { highlighter_.Remove(desk_.Active()); }
  void mnuInsertWithColour_Click();
  /// Gives the selection of the pane on top a colour chosen by hand.
  void ColourSelection(Colour colour);

  // Macros.
  void mnuEditUpdateMacros_Click();
  void mnuViewIdentify_Click() { lists_.IdentifyMacrosUsed(); }
  void mnuRHListInsert_Click() { lists_.Insert(List1(lists_.PopupListIndex)); }
  void mnuFindInJF_Click();
  void mnuRHListIdentify_Click() { lists_.IdentifyMacrosUsed(); }
  void mnuRHListEdit_Click();
  void ExtractButtonDefinition(const std::string& name) { lists_.ExtractButtonDefinition(name); }
  void Combo1_Click();
  void Combo1_GotFocus() { layout_.ResetFramePointer(); }
  void List1_MouseDown(int index, const Mouse& mouse);
  void List1_MouseMove(int index, const Mouse& mouse);
  void List1_DblClick(int index) { lists_.Insert(List1(index)); }
  void List1_OLEStartDrag(int index);
  void Command1_Click(int index);
  void Command1_MouseDown() { HelpOnWhatsThis(topic::kSlashModifiers); }
  void Command1_MouseMove() { layout_.ResetFramePointer(); }
  void mnuSlashModifier_Click(int index) { Command1_Click(index); }
  void mnuSlashModifierQ_Click() { Command1_Click(12); }
  void mnuSlashModifierDLY_Click() { Command1_Click(11); }

  // Apps.
  void mnuSendToKeyTest_Click();
  void mnuAppsImageViewer_Click();
  void mnuAppsTemplate_Click();
  void mnuAppsJoyAnalyser_Click();
  void mnuAppsTMScope_Click();
  void mnuAppsCandCC_Click();
  void mnuF22Setup_Click();
  void mnuF22Clear_Click();
  void mnuF22Reset_Click();
  void mnuF22Delay_Click();
  void mnuSendToJoystick_Click();
  void mnuAppsQuiet_Click();

  // Wizards.
  void mnuhelpWizCreateMacroFile_Click();
  void mnuhelpWizCreateJoyFile_Click();
  void mnuWizSpeedy_Click();
  void mnuWizBeginnersAdvice_Click();
  void mnuWizOrlanTip1_Click();
  void mnuWizLogic1_Click();

  // Help.
  void mnuHelpContents_Click();
  void mnuHelpTips_Click();
  void mnuHelpOnWeb_Click();
  void mnuHelpAbout_Click();

  // For the tools.
  [[nodiscard]] Document& ActiveDocument() const { return desk_.Active(); }
  [[nodiscard]] ColouredInsertion& insertion() { return insertion_; }
  [[nodiscard]] MacroLists& macroLists() { return lists_; }
  /// Gives the focus to the file on top.
  void FocusActiveText() const { desk_.Active().text.SetFocus(); }
  /// Marks the document as modified and records the change for undo.
  void TextChanged(Document& document);
  /// Runs the menu entry of a key that a tool's window got: a function key, or a letter with Ctrl alone,
  /// which is then swallowed. The entry must be enabled.
  void ForwardKey(Key& key) const;
  /// Status panel 3, by the document's caret memory.
  void ShowLineNumber(const Document& document) const { desk_.ShowLineNumber(document); }
  /// Gives a tool's pane the font of the files.
  void ApplyFont(Pane& pane) const { tarvik::ApplyFont(pane, desk_.settings); }
  void SayIsProtected(const Document& document) const { desk_.SayIsProtected(document); }

  [[nodiscard]] const Menus* MenuBar() const override { return &menus; }
  void PopUpClosed(std::string_view name) override;

 private:
  void SetUpControls();
  void AttachList(ListBox& list);
  void SetUpToolbar();
  void BeginUntitled();
  void OpenFilesOfTheStart();
  void NewFile(Document& document);
  void OpenPrevious(std::string_view array, int index);
  void Remember(const Document& document);
  void FirstTimeFlow();
  void ShowPopUp(std::string_view name);
  bool FindNext(const Document& document);
  void ShowQuickTip(bool show);
  /// In what's-this mode a click asks for help instead, and ends the mode.
  void HelpOnWhatsThis(int topic);
  void StepThroughHistory(void (UndoHistory::*step)());

  Application& application_;
  Mum& mum_;
  Desk desk_;
  SavedStates savedStates_;
  ColouredCopies copies_;
  Highlighter highlighter_;
  ColouredInsertion insertion_;
  MacroLists lists_;
  Layout layout_;
  LineBlink blink_;
  EditCommands edit_;
  PaneInput input_;
  FileCommands files_;
  AutoSave autoSave_;
  ListMenus listMenus_;
  Connection clipboardChanged_;
};

}  // namespace tarvik
