#include "app/Editor.h"

#include "app/EditorTables.h"
#include "language/Controllers.h"

namespace tarvik {
namespace {

constexpr int kNormalTabImage = 9;
constexpr int kProtectedTabImage = 6;
constexpr int kCutButton = 7;
constexpr int kCopyButton = 8;
constexpr int kPasteButton = 9;
constexpr int kUndoButton = 11;
constexpr int kRedoButton = 12;
constexpr int kFormatButton = 5;  // "/F" or "/A", by the joystick
constexpr int kIgnoreDelayButton = 12;

constexpr const char* kWelcome =
    "Hi there buddy! Welcome to the first final release of Tarvik, a new utility to help you get the most "
    "out of your Thrustmaster hardware. Now I'm going to need some information from you regarding what "
    "Thrustmaster equipment you have, and where your Thrustmaster files are on your hard disk. Remember, you "
    "must still have installed the Thrustmaster software to use parts of Tarvik. So let's go to the "
    "Preferences Window, and fill out all the sections on the first tab, the File Locations tab. If you get "
    "lost, press the Help button there. Cheers, and enjoy Tarvik.";

constexpr const char* kEmergency =
    "The save routine was called successfully I think, so you should be alright. However, I recommend you "
    "keep pressing the Yes button to try and get stable control back to Tarvik. If you can get back into "
    "Tarvik (it may take several presses of the Yes button) then you should be OK to continue.";

}  // namespace

Editor::Editor(Application& application)
    : Form("Editor"),
      JoystickText(application.workbench.documents.joystickText),
      MacroText(application.workbench.documents.macroText),
      TempRichTextBox(application.workbench.documents.scratch),
      CompareRTF(application.workbench.documents.compare),
      TabStrip1(application.workbench.documents.tabs),
      Combo1(application.workbench.macros.panel.Combo1),
      List1(application.workbench.macros.panel.List1),
      Timer1(application.workbench.autoSave.timer),
      TimerBlinkLine(application.workbench.blink.timer),
      notice(*this, application.workbench),
      find(*this, application.workbench),
      problems(*this, application.workbench),
      explain(*this, application.workbench),
      outline(*this, application.workbench),
      suggestions(*this, application.workbench),
      welcome(*this, application.workbench, CommandsOfWelcome()),
      menus(*this, tables::kMenus),
      popUps(*this, tables::kPopUps),
      Joystick(application.workbench.documents.joystick),
      Macro(application.workbench.documents.macro),
      application_(application),
      bench_(application.workbench),
      mum_(application.mum()),
      savedStates_(bench_.documents, mum_),
      layout_(bench_.documents, {*this, FrameMacros, Combo1, List1, Command1, mnuViewMacros,
                                 mnuViewTileVertically, notice, find, problems, explain, outline}),
      input_(bench_.documents, menus, popUps,
             {[this](std::string_view name) { ShowPopUp(name); }, [this] { UpdateCCPButtons(); },
              [this](const Document& document) { return FindNext(document); },
              [this] { mnuEditDefinition_Click(); }, &suggestions}),
      listMenus_(bench_.lists, menus) {
  AdoptControls();
  SetUpControls();
  problems.help = [this](const model::Rule& rule) { ShowHelp(bench_.platform, topic::Of(rule)); };
}

void Editor::AdoptControls() {
  const std::initializer_list<Component*> controls = {&JoystickText, &MacroText,     &TempRichTextBox,
                                                      &CompareRTF,   &TabStrip1,     &Combo1,
                                                      &Timer1,       &TimerBlinkLine};
  for (Component* const control : controls) Adopt(*control);
  List1.MoveTo(*this);
}

void Editor::SetUpControls() {
  TabStrip1.Tabs(1).ToolTipText =
      "Your joystick file: where you assign macros to joystick buttons, hats etc.";
  TabStrip1.Tabs(2).ToolTipText = "Your macro file: it contains your macro definitions";
  TabStrip1.Tabs(2).Image = kNormalTabImage;
  TabStrip1.Click = [this] { TabStrip1_Click(); };
  FrameMacros.Caption = "Macros";
  RenewMacros.ToolTipText = "The macro file has changed since the list was made: update it (Ctrl+U)";
  RenewMacros.Click = [this] { mnuEditUpdateMacros_Click(); };
  FrameMacros.MouseDown = [this](const Mouse&) { FrameMacros_MouseDown(); };
  FrameMacros.MouseMove = [this](const Mouse& mouse) { FrameMacros_MouseMove(mouse); };
  FrameMacros.DblClick = [this] { FrameMacros_DblClick(); };
  Combo1.GotFocus = [this] { Combo1_GotFocus(); };
  for (int i = 0; i < kModifierButtons; ++i) {
    Command1(i).Caption = tables::kModifierCaptions[i];
    Command1(i).Click = [this, i] { Command1_Click(i); };
    Command1(i).MouseDown = [this](const Mouse&) { Command1_MouseDown(); };
    Command1(i).MouseMove = [this](const Mouse&) { Command1_MouseMove(); };
  }
  bench_.macros.panel.SetHooks({[this] { layout_.ResetFramePointer(); }, [this] { ShowPopUp("mnuRHList"); }});
  Timer1.Elapsed = [this] { Timer1_Timer(); };
  TimerBlinkLine.Elapsed = [this] { TimerBlinkLine_Timer(); };
  input_.Attach(Joystick);
  input_.Attach(Macro);
  mnuViewMacros.Checked = true;
  mnuViewWordWrap.Checked = true;
  Form::Resize = [this] { Form_Resize(); };
  Form::Activate = [this] { Form_Activate(); };
}

WelcomeCommands Editor::CommandsOfWelcome() {
  return {[this] { mnuFileOpen_Click(); },
          [this] { ShowTool<ToolId::MacroWizard>(); },
          [this] { ShowTool<ToolId::JoystickWizard>(); },
          [this] { mnuHelpOnWeb_Click(); },
          [this](int index) { mnuJFArray_Click(index); },
          [this](int index) { mnuFavArray_Click(index); },
          [this](const std::vector<std::string>& paths) { OpenDropped(paths); }};
}

// Life of the form.

void Editor::FillFrame() {
  ScaleWidth = InPixels(mum_.Width).count;
  ScaleHeight = InPixels(mum_.Height).count;
}

void Editor::Form_Load(EditorBegins begins) {
  SharedValues& values = bench_.values;
  const Settings& settings = bench_.settings;
  values.LoadingFile = 1;
  FollowWorkbench();
  SetUpToolbar();
  savedStates_.Follow();
  ShowViewSwitches();
  connections_.push_back(bench_.jumps.Changed.Connect([this] { ShowJumps(); }));
  ShowJumps();
  FollowMacroLists();
  bench_.documents.Busy = true;
  values.PreferencesTab = 0;
  bench_.settings.GetColours();
  values.FontChanged = 0;
  values.TemplateFontChanged = 0;
  values.HardwareChanged = 0;
  mnuInsertWithColour.Checked = settings.InsertWithColour != 0;
  bench_.files.BeginUntitled();
  bench_.lists.GetAll();
  notice.Show();
  layout_.Place();
  Visible = true;
  Form_Activate();
  GetOpenSingleOnly();
  JoystickText.SetFocus();

  if (begins == EditorBegins::WithTheFilesOfTheStart) OpenFilesOfTheStart();
  values.LoadingFile = 0;
  Joystick.Caret = 0;
  Macro.Caret = 0;
  bench_.documents.ShowCaretLine();
  bench_.documents.UpdateSavedIcon();
  F22MenusUpdate();
  bench_.autoSave.Restart();
  UpdateCCPButtons();
  bench_.documents.Busy = false;
  if (settings.FirstTimeUsed == 1) FirstTimeFlow();
}

void Editor::FollowWorkbench() {
  Documents& documents = bench_.documents;
  connections_ = {
      documents.HistoryChanged.Connect([this] { UpdateUndoRedoMenus(); }),
      documents.RedoEnded.Connect([this] {
        mnuEditRedo.Enabled = false;
        mum_.Toolbar1.Buttons(kRedoButton).Enabled = false;
      }),
      bench_.edit.Copied.Connect([this] { UpdateCCPButtons(); }),
      bench_.ClipboardChanged.Connect([this] { UpdateCCPButtons(); }),
      bench_.files.ShowsMacros.Connect([this] { layout_.ShowMacroFrame(); }),
      bench_.files.NeedsPreferences.Connect([this] { mnuPreferencesEdit_Click(); }),
      // The tool that is shown hears of the text next, and takes it.
      bench_.recovery.Returns.Connect([this](const UnsavedText& unsaved, bool&) {
        if (unsaved.head.kind == TextKind::Template) application_.Show(ToolId::TemplateEditor);
        if (unsaved.head.kind == TextKind::Logic) application_.Show(ToolId::Composer);
      }),
      bench_.recovery.WantsPage.Connect([this] { application_.Show(ToolId::UnsavedTexts); }),
      bench_.foreign.WantsComparison.Connect(
          [this](const Comparison&) { application_.Show(ToolId::CompareTexts); }),
      bench_.ToolbarSettingsChanged.Connect([this] { UpdateToolBarOpenSaveTooltips(); }),
      bench_.AutoSaveSettingsChanged.Connect([this] { AutoSaveHasChanged(); }),
      bench_.HardwareSettingsChanged.Connect([this] { HardwareHasChanged(); }),
      bench_.FontSettingsChanged.Connect([this] { DamnFontWasChanged(); }),
  };
}

/// The file is read behind the analysis of it.
void Editor::FollowMacroLists() {
  const auto isRenewed = [this] { RenewMacros.Visible = false; };
  connections_.push_back(bench_.macros.Renewed.Connect(isRenewed));
  connections_.push_back(bench_.files.WasRead.Connect([isRenewed](const Document& document) {
    if (!document.IsJoystick()) isRenewed();
  }));
  connections_.push_back(MacroText.Edited.Connect([this](const PaneEdit& edit) {
    if (!edit.OnlyColours()) RenewMacros.Visible = bench_.macros.HasLists();
  }));
  isRenewed();
}

void Editor::FirstTimeFlow() {
  bench_.platform.dialogs.Show({"Tarvik initialising ...", kWelcome, BoxIcon::Information});
  bench_.settings.SaveOptions();
  mnuPreferencesEdit_Click();
  if (bench_.platform.desktop.IsDark()) OfferDarkColours();
}

void Editor::Form_Activate() {
  mum_.Toolbar1.Visible = true;
  bench_.documents.FocusActiveText();
  bench_.documents.ShowCaretLine();
  UpdateToolBarOpenSaveTooltips();
  if (bench_.values.FontChanged == 1) DamnFontWasChanged();
}

void Editor::Form_Unload() {
  SaveOpenSingleOnly();
  savedStates_.Stop();
  for (Timer* const timer : {&Timer1, &TimerBlinkLine}) timer->Enabled = false;
  connections_.clear();
  mum_.Toolbar1.Visible = false;
  for (const tables::ToolbarRow& row : tables::kToolbar) mum_.Toolbar1.Buttons(row.button).Click = nullptr;
}

/// The file of the command line, else the favourite that is to be loaded.
void Editor::OpenFilesOfTheStart() {
  TestCommandLine();
  const std::string line = bench_.values.CommandLine;
  if (!line.empty()) return OpenPreviouslySavedFiles(line);
  const int favourite = bench_.lists.FavouriteToLoad();
  if (favourite > 0) mnuFavArray_Click(favourite);
}

void Editor::TestCommandLine() {
  Property<std::string>& line = bench_.values.CommandLine;
  if (!bench_.platform.files.FileExists(line.Get())) line = std::string();
}

void Editor::OpenPreviouslySavedFiles(const std::string& path) {
  bench_.files.OpenWithoutDialog(path);
  if (!mnuJoyPopUpSingleFile.Checked) {
    mnuFileOpen_Click();
  } else {
    // The ending is looked for anywhere in the joined extensions, so that "22m" counts as a macro file as
    // well.
    const std::string& name = bench_.files.NameToOpen();
    std::string macroEndings;
    for (const Endings& endings : kEndings) macroEndings += endings.macro;
    if (macroEndings.find(Ending(name)) != std::string::npos) {
      MnuFileMacroLoad_Click();
    } else {
      mnuFileJoystickLoad_Click();
    }
  }
  bench_.files.OpenWithDialogs();
}

void Editor::F22MenusUpdate() {
  const bool f22 = HasExtras(bench_.settings.JoyName);
  for (const char* entry : tables::kF22Entries) menus(entry).Visible = f22;
  Command1(kIgnoreDelayButton).Visible = f22;
  Command1(kFormatButton).Caption = f22 ? "/F" : "/A";
  menus("mnuSlashModifier", kFormatButton).Caption = f22 ? "/F  format as repeating" : "/A  force analogue";
}

void Editor::HardwareHasChanged() {
  for (Document* document : {&Joystick, &Macro}) {
    if (bench_.documents.TabOf(*document).Caption.Get().starts_with("untitled"))
      bench_.files.NameUntitled(*document);
  }
  F22MenusUpdate();
  bench_.values.HardwareChanged = 0;
}

/// No timer runs while nobody sees the editor.
void Editor::AutoSaveHasChanged() { Timer1.Enabled = Visible && bench_.settings.AutoSaveEnabled == 1; }

/// An editor that nobody sees takes the new font when it is loaded.
void Editor::DamnFontWasChanged() {
  bench_.values.FontChanged = 0;
  if (!Visible) return;
  Document& before = bench_.documents.Active();
  for (Document* document : {&Joystick, &Macro}) {
    bench_.documents.Select(*document);
    document->text.BackColor = (bench_.settings.*document->traits.background).Get();
    mnuViewReformat_Click();
  }
  bench_.documents.Select(before);
}

void Editor::GetOpenSingleOnly() {
  mnuJoyPopUpSingleFile.Checked =
      bench_.profile.GetInt(section::kMiscellaneous, "OpenSingleFileOnly", 1) != 0;
}

void Editor::SaveOpenSingleOnly() {
  bench_.settings.Write(section::kMiscellaneous, "OpenSingleFileOnly",
                        mnuJoyPopUpSingleFile.Checked ? "1" : "0");
}

// Documents.

void Editor::mnuFileNewBoth_Click() {
  mnuFileNewJoystick_Click();
  mnuFileNewMacro_Click();
  bench_.documents.Say("Done .... now what?");
}

void Editor::mnuFilePrintJoystick_Click() {
  RemoveHugeBlankStringJF();
  PrintDocument(bench_.documents, Joystick);
  AddHugeBlankStringJF();
}

void Editor::mnuFilePrintMacro_Click() {
  RemoveHugeBlankStringMF();
  PrintDocument(bench_.documents, Macro);
  AddHugeBlankStringMF();
}

void Editor::mnuRHMPrint_Click() {
  bench_.documents.Active().IsJoystick() ? mnuFilePrintJoystick_Click() : mnuFilePrintMacro_Click();
}

void Editor::mnuPreferencesProtectMacroFile_Click() {
  const bool protect = !mnuPreferencesProtectMacroFile.Checked;
  MacroText.Locked = protect;
  mnuPreferencesProtectMacroFile.Checked = protect;
  popUps("mnuRHMProtect").Checked = protect;
  TabStrip1.Tabs(2).Image = protect ? kProtectedTabImage : kNormalTabImage;
}

void Editor::OpenPrevious(const RecentList& list, int index) {
  const std::string path = list.PathNow(index);
  if (bench_.platform.files.FileExists(path)) return OpenPreviouslySavedFiles(path);
  bench_.platform.dialogs.Show({"Can't find file",
                                "There's a problem here ... I couldn't find " + list.Part(index, 0) +
                                    " which probably means you've deleted it or moved it. Sorry!",
                                BoxIcon::Information});
}

/// Closes the joystick files' menu as well, until the next of them is opened.
void Editor::mnuPreviousClearAllM_Click() {
  bench_.lists.ClearAll(bench_.lists.MacroFiles);
  menus("mnuFilePrevious").Enabled = false;
}

/// Each file is saved as the one on top. The macro file stays on top afterwards.
void Editor::EmergencySaveFiles() {
  for (const Document* document : {&Joystick, &Macro}) {
    bench_.documents.Select(*document);
    mnuFileSave_Click();
  }
  bench_.platform.dialogs.Show(
      {"Tarvik - Emergency file save procedure executed", kEmergency, BoxIcon::Information});
}

void Editor::UpdateCCPButtons() {
  const bool selected = bench_.documents.Active().text.SelLength > 0;
  for (const char* const entry : {"mnuEditCut", "mnuEditCopy", "mnuEditDelete"}) {
    menus(entry).Enabled = selected;
  }
  for (const int button : {kCutButton, kCopyButton}) mum_.Toolbar1.Buttons(button).Enabled = selected;
  const bool text = bench_.platform.clipboard.HasText();
  menus("mnuEditPaste").Enabled = text;
  mum_.Toolbar1.Buttons(kPasteButton).Enabled = text;
}

void Editor::mnuEditSelectAll_Click() {
  bench_.documents.Active().IsJoystick() ? RemoveHugeBlankStringJF() : RemoveHugeBlankStringMF();
  bench_.edit.SelectAll();
}

// Undo.

void Editor::StepThroughHistory(void (UndoHistory::*step)()) {
  const ProgramEdit edit(bench_.values);
  Document& document = bench_.documents.Active();
  (document.Undo.*step)();
  document.Caret = document.text.SelStart;
  UpdateUndoRedoMenus();
  if (bench_.settings.HighlightLineOnUndo == 1) bench_.blink.Start();
}

void Editor::UpdateUndoRedoMenus() {
  const UndoHistory& history = bench_.documents.Active().Undo;
  const auto show = [this](MenuItem& item, const char* popUp, int button, const std::string& word,
                           int steps) {
    const std::string text = steps > 0 ? word + " (" + TextOf(steps) + ")" : word;
    item.Caption = "&" + text;
    item.Enabled = steps > 0;
    popUps(popUp).Enabled = steps > 0;
    mum_.Toolbar1.Buttons(button).ToolTipText = text;
    mum_.Toolbar1.Buttons(button).Enabled = steps > 0;
  };
  show(mnuEditUndo, "mnuRHMUndo", kUndoButton, "Undo", history.UndoSteps());
  show(mnuEditRedo, "mnuRHMRedo", kRedoButton, "Redo", history.RedoSteps());
}

// The scratch pane.

void Editor::TextFromTempRichTextBox() {
  bench_.documents.Active().text.SetContent(TempRichTextBox.Content());
  TempRichTextBox.SetContent({});
}

}  // namespace tarvik
