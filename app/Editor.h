// The window of the two files: panes on a tab strip, the macro lists beside them, and the menu bar. The form
// is a switchboard: its handlers hand over to small classes that know one matter each.
#pragma once

#include "app/Layout.h"
#include "app/ListMenus.h"
#include "app/Mum.h"
#include "app/NoticeBar.h"
#include "app/OutlinePanel.h"
#include "app/PaneInput.h"
#include "app/SavedStates.h"
#include "app/WelcomePage.h"
#include "workbench/HelpTopics.h"
#include "workbench/PrintRTFWordWrap.h"
#include "workbench/Workbench.h"

namespace tarvik {

class Editor : public Form {
 public:
  static constexpr int kModifierButtons = 13;

  explicit Editor(Application& application);

  // Controls. Those in which the files are edited are the workbench's; they have their places here.
  Pane& JoystickText;
  Pane& MacroText;
  Pane& TempRichTextBox;
  Pane& CompareRTF;
  TabStrip& TabStrip1;
  Frame FrameMacros{*this, "FrameMacros"};
  ComboBox& Combo1;
  ControlArray<ListBox>& List1;
  ControlArray<CommandButton> Command1{*this, "Command1", kModifierButtons};
  /// There while the macro lists are older than the macro file.
  CommandButton RenewMacros{*this, "RenewMacros", "Update macros"};
  Timer& Timer1;
  Timer& TimerBlinkLine;
  NoticeBar notice;
  FindBar find;
  ProblemPanel problems;
  ExplainPanel explain;
  OutlinePanel outline;
  SuggestionList suggestions;
  WelcomePage welcome;
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
  Document& Joystick;
  Document& Macro;

  // Life of the form.
  /// Takes the frame's size, until whatever shows the form tells it its own.
  void FillFrame();
  void Form_Load(EditorBegins begins);
  void Form_Activate();
  bool Form_QueryUnload() override { return bench_.files.MayExit(); }
  void Form_Unload();
  void Form_Resize() { layout_.Place(); }
  void TestCommandLine();
  void OpenPreviouslySavedFiles(const std::string& path);
  /// Files that the user dropped: opens the first that is one of a pair, together with the other one.
  void OpenDropped(const std::vector<std::string>& paths) { bench_.files.OpenPairAmong(paths); }
  void OpenFavouriteFile(const std::string& path) { bench_.files.OpenFavourite(path); }
  void F22MenusUpdate();
  void HardwareHasChanged();
  void AutoSaveHasChanged();
  void DamnFontWasChanged();
  void GetOpenSingleOnly();
  void SaveOpenSingleOnly();

  /// The handler of an entry that only shows a tool.
  template <ToolId tool>
  void ShowTool() {
    application_.Show(tool);
  }

  // Preferences.
  void ShowPreferences(page::Preferences page);
  void mnuPreferencesEdit_Click() { ShowPreferences(page::kFileLocations); }
  void mnuViewEditColours_Click() { ShowPreferences(page::kColours); }
  void mnuAppsEdit_Click() { ShowPreferences(page::kApps); }
  void mnuFavsEdit_Click() { ShowPreferences(page::kFavourites); }
  void mnuGamesEdit_Click() { ShowPreferences(page::kGames); }

  // Documents.
  void mnuFileNewJoystick_Click() { bench_.NewFile(Joystick); }
  void mnuFileNewMacro_Click() { bench_.NewFile(Macro); }
  void mnuFileNewBoth_Click();
  void mnuFileJoystickLoad_Click() { bench_.files.Load(Joystick); }
  void MnuFileMacroLoad_Click() { bench_.files.Load(Macro); }
  void mnuFileOpen_Click() { bench_.files.OpenPair(); }
  void mnuFileSave_Click() { bench_.files.Save(bench_.documents.Active()); }
  void mnuFileSaveAs_Click() { bench_.files.SaveAs(bench_.documents.Active()); }
  void mnuFileSaveBoth_Click() { bench_.files.SaveBoth(); }
  void mnuFilePrintJoystick_Click();
  void mnuFilePrintMacro_Click();
  void mnuFilePrintPreview_Click() { PreviewDocument(bench_.documents, bench_.documents.Active()); }
  void mnuFilePrinterSetup_Click() { SetUpPrinter(bench_.documents); }
  void mnuRHMPrint_Click();
  void mnuJoyPopUpSingleFile_Click() { mnuJoyPopUpSingleFile.Checked = !mnuJoyPopUpSingleFile.Checked; }
  void mnuJFArray_Click(int index) { OpenPrevious(bench_.lists.JoystickFiles, index); }
  void mnuMFArray_Click(int index) { OpenPrevious(bench_.lists.MacroFiles, index); }
  void mnuPreviousClearAllJ_Click() { bench_.lists.ClearAll(bench_.lists.JoystickFiles); }
  void mnuPreviousClearAllM_Click();
  void mnuFileExit_Click() { application_.CloseMum(); }
  void mnuPreferencesProtectMacroFile_Click();
  void Timer1_Timer() { bench_.autoSave.CountMinute(); }
  /// A last attempt to save both files when things have gone wrong. Ready for an active error report; nothing
  /// calls it yet.
  void EmergencySaveFiles();
  void JoystickTextChanged() { TextChanged(Joystick); }
  void MacroTextChanged() { TextChanged(Macro); }

  // Favourites, games, and the user's own programs.
  void mnuFavouritesAddCurrent_Click() { application_.Show(ToolId::Favourite); }
  void mnuFavArray_Click(int index);
  void mnuGamesAdd_Click() { application_.Show(ToolId::Game); }
  void mnuGameArray_Click(int index);
  void mnuCustomApp_Click(int index);

  // Undo.
  void mnuEditUndo_Click() { StepThroughHistory(&UndoHistory::Undo); }
  void mnuEditRedo_Click() { StepThroughHistory(&UndoHistory::Redo); }
  void UpdateUndoRedoMenus();
  void DeleteUndosOnSaveJ() { bench_.files.ResetHistory(Joystick); }
  void DeleteUndosOnSaveM() { bench_.files.ResetHistory(Macro); }
  void DeleteUndosFromMemory() { bench_.ForgetUndos(); }

  // Editing.
  void mnuEditCut_Click() { bench_.edit.Cut(); }
  void mnuEditCopy_Click() { bench_.edit.Copy(); }
  void mnuEditPaste_Click() { bench_.edit.Paste(); }
  void mnuEditDelete_Click() { bench_.edit.Delete(); }
  void mnuEditSelectAll_Click();
  void mnuEditFind_Click() { application_.Show(ToolId::Find); }
  void mnuEditFindAsYouType_Click() { find.Open(); }
  void mnuEditReplace_Click();
  /// Goes from the name at the caret to its definition, or from there to its uses; of several the user
  /// chooses.
  void mnuEditDefinition_Click();
  void mnuPlaceArray_Click(int index);
  void mnuEditSuggest_Click() { suggestions.Open(); }
  void mnuRHMExplainLine_Click() { bench_.settings.Change(bench_.settings.ExplainLine, 1); }
  void mnuEditTidyUp_Click() { bench_.rewriting.TidyUp(); }
  void mnuEditBack_Click() { bench_.jumps.Back(); }
  void mnuEditForward_Click() { bench_.jumps.Forward(); }
  void mnuEditNextProblem_Click() { bench_.problems.GoToNext(); }
  void mnuEditPreviousProblem_Click() { bench_.problems.GoToPrevious(); }
  void mnuEditGoto_Click();
  /// Fits menus and toolbar to the selection of the file on top, and to the clipboard.
  void UpdateCCPButtons();
  void CheckAtLineBeginning() { bench_.edit.CheckAtLineBeginning(); }

  // The tools that write statements.
  void mnuShowInsertWindow_Click() { application_.Show(ToolId::Composer); }
  void mnuComposerPlugin_Click();
  void mnuInsertRAW_Click() { application_.Show(ToolId::Pimlet); }

  // Blocks.
  void mnuInsertTitle_Click() { application_.Show(ToolId::Title); }
  void mnuInsertHeading_Click() { application_.Show(ToolId::Heading); }
  void mnuInsertRemStatement_Click();
  void mnuInsertQuickTip_Click();

  // View.
  void mnuViewMacros_Click() { layout_.ToggleMacroFrame(); }
  void mnuViewTileVertically_Click() { layout_.ToggleTiled(); }
  void mnuViewReformat_Click() { bench_.documents.Reformat(); }
  void mnuViewWordWrap_Click();
  void mnuViewHighlightLine_Click() { bench_.blink.Start(); }
  /// Turns a setting of the view over.
  void Switch(Property<int>& setting) { bench_.settings.Change(setting, setting == 0 ? 1 : 0); }
  void ZoomTo(int percent);
  void mnuViewZoomIn_Click() { ZoomTo(bench_.settings.Zoom + zoom::kStep); }
  void mnuViewZoomOut_Click() { ZoomTo(bench_.settings.Zoom - zoom::kStep); }
  void mnuViewZoomNormal_Click() { ZoomTo(zoom::kNormal); }
  void TileTo(Pixels x) { layout_.TileTo(x); }
  void TileEvenly() { layout_.TileEvenly(); }
  void KeepTiles() { layout_.KeepTiles(); }
  void FrameMacros_MouseDown() { HelpOnWhatsThis(topic::kMacroLists); }
  void FrameMacros_MouseMove(const Mouse& mouse) { layout_.FrameMouseMove(mouse); }
  void FrameMacros_DblClick() { mnuViewMacros_Click(); }
  void TimerBlinkLine_Timer() { bench_.blink.Step(); }
  void TabStrip1_Click();
  void UpdateToolBarOpenSaveTooltips();
  void Toolbar1_ButtonClick(int button);

  // The scratch pane, for work on the file on top that must not show.
  void TextToTempRichTextBox() { TempRichTextBox.SetContent(bench_.documents.Active().text.Content()); }
  void TextFromTempRichTextBox();
  /// Gives all of the scratch pane the user's font.
  void TempTextRefreshFont() { tarvik::ApplyFont(TempRichTextBox, bench_.documents.settings); }
  // These do nothing: files are never padded at their end, and what is pasted keeps its colours.
  void AddHugeBlankStringJF() {}
  void RemoveHugeBlankStringJF() {}
  void AddHugeBlankStringMF() {}
  void RemoveHugeBlankStringMF() {}
  void ApplyPasteColour() {}

  // Colours.
  void ApplyColourHighlighting() { bench_.highlighter.Apply(Joystick); }
  void ApplyMacroColourHighlighting() { bench_.highlighter.Apply(Macro); }
  void mnuViewColourJoystick_Click() { ColourAndOffer(Joystick); }
  void mnuViewColourMacro_Click() { ColourAndOffer(Macro); }
  void mnuViewApplyColourBothFiles_Click();
  void mnuRemoveColourJoystick_Click() { bench_.highlighter.Remove(Joystick); }
  void mnuRemoveColourMacro_Click() { bench_.highlighter.Remove(Macro); }
  void mnuRemoveColourSelectedText_Click();
  void mnuRHMColour_Click() { ColourAndOffer(bench_.documents.Active()); }
  void mnuRHMColoursRemove_Click() { bench_.highlighter.Remove(bench_.documents.Active()); }
  void mnuInsertWithColour_Click();

  // Macros.
  void mnuEditUpdateMacros_Click() { bench_.files.UpdateMacros(); }
  void mnuViewIdentify_Click() { bench_.macros.IdentifyMacrosUsed(); }
  void mnuRHListInsert_Click() { bench_.macros.panel.mnuRHListInsert_Click(); }
  void mnuFindInJF_Click() { bench_.macros.panel.FindMacriInJfile(); }
  void mnuRHListIdentify_Click() { bench_.macros.IdentifyMacrosUsed(); }
  void mnuRHListEdit_Click() { bench_.macros.panel.mnuRHListEdit_Click(); }
  void ExtractButtonDefinition(const std::string& name) { bench_.macros.ExtractButtonDefinition(name); }
  void Combo1_GotFocus() { layout_.ResetFramePointer(); }
  void Command1_Click(int index);
  void Command1_MouseDown() { HelpOnWhatsThis(topic::kSlashModifiers); }
  void Command1_MouseMove() { layout_.ResetFramePointer(); }
  void mnuSlashModifier_Click(int index) { Command1_Click(index); }
  void mnuSlashModifierQ_Click() { Command1_Click(12); }
  void mnuSlashModifierDLY_Click() { Command1_Click(11); }

  // Apps.
  void mnuSendToKeyTest_Click() { application_.Show(ToolId::KeyTest); }
  void mnuAppsImageViewer_Click() { application_.Show(ToolId::ImageViewer); }
  void mnuAppsTemplate_Click() { application_.Show(ToolId::TemplateEditor); }
  void mnuAppsTMScope_Click();
  void mnuAppsCandCC_Click();
  void mnuF22Setup_Click();
  void mnuF22Clear_Click();
  void mnuF22Reset_Click();
  void mnuF22Delay_Click();
  void mnuSendToJoystick_Click();
  void mnuAppsQuiet_Click();

  // Wizards.
  void mnuWizBeginnersAdvice_Click();
  void mnuWizOrlanTip1_Click();
  void mnuWizLogic1_Click();

  // Help.
  void mnuHelpContents_Click() { ShowHelp(bench_.platform, topic::kContents); }
  void mnuHelpTips_Click() { application_.Show(ToolId::Tips); }
  void mnuHelpOnWeb_Click();
  void mnuHelpAbout_Click() { application_.Show(ToolId::About); }

  /// Marks the document as modified and records the change for undo.
  void TextChanged(Document& document) { bench_.documents.TextChanged(document); }
  void ForwardKey(Key& key) const;

  [[nodiscard]] const Menus* MenuBar() const override { return &menus; }
  void PopUpClosed(std::string_view /*name*/) override { FitInsertMenu({}); }

 private:
  void SetUpControls();
  void AdoptControls();
  void SetUpToolbar();
  void ShowPicturesInPopUps();
  void LetPrintingTellOfPrinter();
  void OpenFilesOfTheStart();
  void OpenPrevious(const RecentList& list, int index);
  void FirstTimeFlow();
  void ShowPopUp(std::string_view name);
  bool FindNext(const Document& document);
  /// Leaves out the Insert menu's last two entries where it pops up.
  void FitInsertMenu(std::string_view popUp);
  /// In what's-this mode a click asks for help instead, and ends the mode.
  void HelpOnWhatsThis(int topic);
  void StepThroughHistory(void (UndoHistory::*step)());

  void FollowWorkbench();
  [[nodiscard]] WelcomeCommands CommandsOfWelcome();
  void ShowViewSwitches();
  void ShowJumps();
  void ColourAndOffer(Document& document);
  void OfferColourAsYouType();
  void OfferDarkColours();
  void FollowMacroLists();

  Application& application_;
  Workbench& bench_;
  Mum& mum_;
  SavedStates savedStates_;
  Layout layout_;
  PaneInput input_;
  ListMenus listMenus_;
  std::vector<Definitions::Place> places_;  // that the user chooses from
  std::vector<Connection> connections_;
};

}  // namespace tarvik
