#include "app/Editor.h"

#include <algorithm>

#include "app/EditorTables.h"
#include "tools/preferences/Preferences.h"

namespace tarvik {
namespace {

constexpr int kAutoSaveInterval = 60000;  // milliseconds
constexpr int kBlinkInterval = 200;
constexpr int kNormalTabImage = 9;
constexpr int kProtectedTabImage = 6;
constexpr int kFirstFileButton = 2;
constexpr int kUndoButton = 11;
constexpr int kRedoButton = 12;
constexpr int kFormatButton = 5;  // "/F" or "/A", by the joystick
constexpr int kIgnoreDelayButton = 12;

constexpr const char* kWelcome =
    "Hi there buddy! Welcome to the first final release of Tarvik, a new utility to help you get the most "
    "out of your "
    "Thrustmaster hardware. Now I'm going to need some information from you regarding what Thrustmaster "
    "equipment you "
    "have, and where your Thrustmaster files are on your hard disk. Remember, you must still have installed "
    "the "
    "Thrustmaster software to use parts of Tarvik. So let's go to the Preferences Window, and fill out all "
    "the sections "
    "on the first tab, the File Locations tab. If you get lost, press the Help button there. Cheers, and "
    "enjoy Tarvik.";

constexpr const char* kEmergency =
    "The save routine was called successfully I think, so you should be alright. However, I recommend you "
    "keep "
    "pressing the Yes button to try and get stable control back to Tarvik. If you can get back into Tarvik "
    "(it "
    "may take several presses of the Yes button) then you should be OK to continue.";

}  // namespace

Editor::Editor(Application& application)
    : Form("Editor"),
      JoystickText(*this, "JoystickText", application.platform.files),
      MacroText(*this, "MacroText", application.platform.files),
      TempRichTextBox(*this, "TempRichTextBox", application.platform.files),
      CompareRTF(*this, "CompareRTF", application.platform.files),
      menus(*this, tables::kMenus),
      popUps(*this, tables::kPopUps),
      Joystick(*this, "Joystick", kJoystickTraits, JoystickText),
      Macro(*this, "Macro", kMacroTraits, MacroText),
      application_(application),
      mum_(application.mum()),
      desk_{application.platform,
            application.settings,
            application.values,
            application.errors,
            mum_.StatusBar,
            mum_.ProgressBar1,
            mum_.Picture1,
            mum_.MousePointer,
            TabStrip1,
            Joystick,
            Macro,
            TempRichTextBox,
            CompareRTF,
            [this] { UpdateUndoRedoMenus(); }},
      savedStates_(desk_, mum_),
      copies_(desk_),
      highlighter_(desk_, copies_),
      insertion_(desk_, [this](Document& document) { TextChanged(document); }),
      lists_(desk_, Combo1, List1),
      layout_(desk_, {*this, FrameMacros, Combo1, List1, Command1, mnuViewMacros, mnuViewTileVertically}),
      blink_(desk_, TimerBlinkLine),
      edit_(desk_, insertion_, menus, mum_.Toolbar1),
      input_(desk_, menus, popUps,
             {[this](Document& document) { TextChanged(document); },
              [this](std::string_view name) { ShowPopUp(name); }, [this] { UpdateCCPButtons(); },
              [this](const Document& document) { return FindNext(document); }}),
      files_(desk_, copies_, highlighter_, lists_,
             {[this] { layout_.ShowMacroFrame(); },
              [this] { ShowPreferences(application_, Preferences::kFileLocations); },
              [this](const Document& document) { Remember(document); }}),
      autoSave_(desk_, files_, Timer1),
      listMenus_(application.lists, menus) {
  SetUpControls();
}

void Editor::SetUpControls() {
  TempRichTextBox.Visible = false;
  CompareRTF.Visible = false;
  TabStrip1.Tabs(1).ToolTipText =
      "Your joystick file: where you assign macros to joystick buttons, hats etc.";
  TabStrip1.Tabs(2).ToolTipText = "Your macro file: it contains your macro definitions";
  TabStrip1.Tabs(2).Image = kNormalTabImage;
  TabStrip1.Click = [this] { TabStrip1_Click(); };
  FrameMacros.Caption = "Macros";
  FrameMacros.MouseDown = [this](const Mouse&) { FrameMacros_MouseDown(); };
  FrameMacros.MouseMove = [this](const Mouse& mouse) { FrameMacros_MouseMove(mouse); };
  FrameMacros.DblClick = [this] { FrameMacros_DblClick(); };
  Combo1.ToolTipText = "Macro categories";
  Combo1.Click = [this] { Combo1_Click(); };
  Combo1.GotFocus = [this] { Combo1_GotFocus(); };
  for (int i = 0; i < kModifierButtons; ++i) {
    Command1(i).Caption = tables::kModifierCaptions[i];
    Command1(i).Click = [this, i] { Command1_Click(i); };
    Command1(i).MouseDown = [this](const Mouse&) { Command1_MouseDown(); };
    Command1(i).MouseMove = [this](const Mouse&) { Command1_MouseMove(); };
  }
  List1.Prepare = [this](ListBox& list) {
    list.Visible = false;  // until its category is chosen: nothing is shown of it while it is filled
    AttachList(list);
  };
  AttachList(List1(0));
  Timer1.Interval = kAutoSaveInterval;
  Timer1.Elapsed = [this] { Timer1_Timer(); };
  TimerBlinkLine.Interval = kBlinkInterval;
  TimerBlinkLine.Elapsed = [this] { TimerBlinkLine_Timer(); };
  input_.Attach(Joystick);
  input_.Attach(Macro);
  mnuViewMacros.Checked = true;
  mnuViewWordWrap.Checked = true;
  Form::Resize = [this] { Form_Resize(); };
  Form::Activate = [this] { Form_Activate(); };
}

void Editor::AttachList(ListBox& list) {
  const int index = *list.Index();
  list.ToolTipText = "Double click macro to insert into Joystick file, or use drag and drop";
  list.MouseDown = [this, index](const Mouse& mouse) { List1_MouseDown(index, mouse); };
  list.MouseMove = [this, index](const Mouse& mouse) { List1_MouseMove(index, mouse); };
  list.DblClick = [this, index] { List1_DblClick(index); };
  list.OLEStartDrag = [this, index] { List1_OLEStartDrag(index); };
  const ListBox& first = List1(0);
  list.Move(first.Left, first.Top, first.Width, first.Height);
}

void Editor::SetUpToolbar() {
  for (const tables::ToolbarRow& row : tables::kToolbar) {
    ToolbarButton& button = mum_.Toolbar1.Buttons(row.button);
    button.ToolTipText = row.tip;
    button.Image = row.icon;
    button.Enabled = menus(row.entry).Enabled;
    button.Click = [this, number = row.button] { Toolbar1_ButtonClick(number); };
  }
}

// Life of the form.

void Editor::FillFrame() {
  ScaleWidth = mum_.Width / kTwipsPerPixel;
  ScaleHeight = mum_.Height / kTwipsPerPixel;
}

void Editor::Form_Load(EditorBegins begins) {
  Values& values = application_.values;
  const Settings& settings = application_.settings;
  values.LoadingFile = 1;
  SetUpToolbar();
  savedStates_.Follow();
  mum_.MousePointer = pointer::kHourglass;
  values.PreferencesTab = 0;
  application_.settings.GetColours();
  values.FontChanged = 0;
  values.TemplateFontChanged = 0;
  values.HardwareChanged = 0;
  mnuInsertWithColour.Checked = settings.InsertWithColour != 0;
  BeginUntitled();
  PreviousFiles& lists = application_.lists;
  lists.GetPreviousFiles();
  lists.GetFavourites();
  lists.GetGames();
  lists.GetCustomApps();
  layout_.Place();
  Visible = true;
  Form_Activate();
  GetOpenSingleOnly();
  JoystickText.SetFocus();

  if (begins == EditorBegins::WithTheFilesOfTheStart) OpenFilesOfTheStart();
  values.LoadingFile = 0;
  Joystick.Caret = 0;
  Macro.Caret = 0;
  desk_.ShowCaretLine();
  desk_.UpdateSavedIcon();
  F22MenusUpdate();
  autoSave_.Restart();
  UpdateCCPButtons();
  clipboardChanged_ = application_.ClipboardChanged.Connect([this] { UpdateCCPButtons(); });
  mum_.MousePointer = pointer::kDefault;
  if (settings.FirstTimeUsed == 1) FirstTimeFlow();
}

void Editor::BeginUntitled() {
  desk_.status.Panels(8).Text = "No macro file analysed";
  desk_.status.Panels(8).ToolTipText = "The macros in the macros list are from this file";
  for (Document* document : {&Joystick, &Macro}) {
    desk_.ApplyLook(*document);
    files_.NameUntitled(*document);
    document->Dirty = saved::kNoText;
    files_.ResetHistory(*document);
  }
}

void Editor::FirstTimeFlow() {
  application_.platform.dialogs.Show(
      {"Tarvik initialising ...", kWelcome, BoxIcon::Information, BoxButtons::Ok});
  application_.settings.SaveOptions();
  ShowPreferences(application_, Preferences::kFileLocations);
}

void Editor::Form_Activate() {
  mum_.Toolbar1.Visible = true;
  desk_.Active().text.SetFocus();
  desk_.ShowCaretLine();
  UpdateToolBarOpenSaveTooltips();
  if (application_.values.FontChanged == 1) DamnFontWasChanged();
}

void Editor::Form_Unload() {
  SaveOpenSingleOnly();
  savedStates_.Stop();
  for (Timer* const timer : {&Timer1, &TimerBlinkLine}) timer->Enabled = false;
  clipboardChanged_ = {};
  mum_.Toolbar1.Visible = false;
  for (const tables::ToolbarRow& row : tables::kToolbar) mum_.Toolbar1.Buttons(row.button).Click = nullptr;
}

/// The file of the command line, else the favourite that is to be loaded.
void Editor::OpenFilesOfTheStart() {
  TestCommandLine();
  const std::string line = application_.values.CommandLine;
  if (!line.empty()) return OpenPreviouslySavedFiles(line);
  const int favourite = application_.lists.FavouriteToLoad();
  if (favourite > 0) mnuFavArray_Click(favourite);
}

void Editor::TestCommandLine() {
  Property<std::string>& line = application_.values.CommandLine;
  if (!application_.platform.files.FileExists(line.Get())) line = std::string();
}

void Editor::OpenPreviouslySavedFiles(const std::string& path) {
  files_.OpenWithoutDialog(path);
  if (!mnuJoyPopUpSingleFile.Checked) {
    mnuFileOpen_Click();
  } else {
    // The ending is looked for anywhere in the joined extensions, so that "22m" counts as a macro file as
    // well.
    const std::string& name = files_.NameToOpen();
    const std::string ending = name.substr(name.size() - std::min<std::size_t>(3, name.size()));
    constexpr std::string_view kMacroExtensions = "m22m50mdf";
    if (kMacroExtensions.find(ending) != std::string_view::npos) {
      MnuFileMacroLoad_Click();
    } else {
      mnuFileJoystickLoad_Click();
    }
  }
  files_.OpenWithDialogs();
}

void Editor::OpenFavouriteFile(const std::string& path) {
  constexpr std::string_view kMacroEndings[] = {"m22", "mdf", "m50"};
  if (path.empty()) return;
  files_.OpenWithoutDialog(path);
  const bool macro = std::any_of(std::begin(kMacroEndings), std::end(kMacroEndings),
                                 [&path](std::string_view ending) { return path.ends_with(ending); });
  files_.Load(macro ? Macro : Joystick);
  files_.OpenWithDialogs();
}

void Editor::F22MenusUpdate() {
  const bool f22 = application_.settings.JoyName == 0;
  for (const char* entry : tables::kF22Entries) menus(entry).Visible = f22;
  Command1(kIgnoreDelayButton).Visible = f22;
  Command1(kFormatButton).Caption = f22 ? "/F" : "/A";
  menus("mnuSlashModifier", kFormatButton).Caption = f22 ? "/F  format as repeating" : "/A  force analogue";
}

void Editor::HardwareHasChanged() {
  for (Document* document : {&Joystick, &Macro}) {
    if (desk_.TabOf(*document).Caption.Get().starts_with("untitled")) files_.NameUntitled(*document);
  }
  F22MenusUpdate();
  application_.values.HardwareChanged = 0;
}

/// No timer runs while nobody sees the editor.
void Editor::AutoSaveHasChanged() { Timer1.Enabled = Visible && application_.settings.AutoSaveEnabled == 1; }

/// An editor that nobody sees takes the new font when it is loaded.
void Editor::DamnFontWasChanged() {
  application_.values.FontChanged = 0;
  if (!Visible) return;
  Document& before = desk_.Active();
  for (Document* document : {&Joystick, &Macro}) {
    desk_.Select(*document);
    document->text.BackColor = (application_.settings.*document->traits.background).Get();
    mnuViewReformat_Click();
  }
  desk_.Select(before);
}

void Editor::GetOpenSingleOnly() {
  mnuJoyPopUpSingleFile.Checked = application_.profile.GetInt("Miscellaneous", "OpenSingleFileOnly", 1) != 0;
}

void Editor::SaveOpenSingleOnly() {
  application_.settings.Write("Miscellaneous", "OpenSingleFileOnly",
                              mnuJoyPopUpSingleFile.Checked ? "1" : "0");
}

// Documents.

void Editor::NewFile(Document& document) {
  if (files_.New(document)) autoSave_.Restart();
}

void Editor::mnuFileNewBoth_Click() {
  mnuFileNewJoystick_Click();
  mnuFileNewMacro_Click();
  desk_.Say("Done .... now what?");
}

void Editor::mnuFilePrintJoystick_Click() {
  RemoveHugeBlankStringJF();
  PrintDocument(desk_, Joystick);
  AddHugeBlankStringJF();
}

void Editor::mnuFilePrintMacro_Click() {
  RemoveHugeBlankStringMF();
  PrintDocument(desk_, Macro);
  AddHugeBlankStringMF();
}

void Editor::mnuRHMPrint_Click() {
  desk_.Active().IsJoystick() ? mnuFilePrintJoystick_Click() : mnuFilePrintMacro_Click();
}

void Editor::mnuPreferencesProtectMacroFile_Click() {
  const bool protect = !mnuPreferencesProtectMacroFile.Checked;
  MacroText.Locked = protect;
  mnuPreferencesProtectMacroFile.Checked = protect;
  popUps("mnuRHMProtect").Checked = protect;
  TabStrip1.Tabs(2).Image = protect ? kProtectedTabImage : kNormalTabImage;
}

void Editor::Remember(const Document& document) {
  PreviousFiles& lists = application_.lists;
  if (document.IsJoystick()) {
    lists.RecentJFToAdd = document.Path;
    lists.UpdateRecentJFMenuList();
  } else {
    lists.RecentMFToAdd = document.Path;
    lists.UpdateRecentMFMenuList();
  }
}

void Editor::OpenPrevious(std::string_view array, int index) {
  const std::string path = menus(array, index).Caption;
  if (application_.platform.files.FileExists(path)) return OpenPreviouslySavedFiles(path);
  application_.platform.dialogs.Show({"Can't find file",
                                      "There's a problem here ... I couldn't find " + path +
                                          " which probably means you've deleted it or moved it. Sorry!",
                                      BoxIcon::Information, BoxButtons::Ok});
}

void Editor::mnuPreviousClearAllJ_Click() { application_.lists.ClearAll(application_.lists.JoystickFiles); }

/// Closes the joystick files' menu as well, until the next of them is opened.
void Editor::mnuPreviousClearAllM_Click() {
  application_.lists.ClearAll(application_.lists.MacroFiles);
  menus("mnuFilePrevious").Enabled = false;
}

/// The tab that was selected is not selected again.
void Editor::EmergencySaveFiles() {
  for (const Document* document : {&Joystick, &Macro}) {
    desk_.Select(*document);
    mnuFileSave_Click();
  }
  application_.platform.dialogs.Show(
      {"Tarvik - Emergency file save procedure executed", kEmergency, BoxIcon::Information, BoxButtons::Ok});
}

void Editor::TextChanged(Document& document) {
  document.Dirty = saved::kModified;
  desk_.UpdateSavedIcon();
  if (document.Undo.Absorbs()) {
    document.Undo.Absorb();
    return;
  }
  document.Undo.Open(application_.settings.UndoMax);
  UpdateUndoRedoMenus();
  document.Undo.GoToNewest();
  mnuEditRedo.Enabled = false;
  mum_.Toolbar1.Buttons(kRedoButton).Enabled = false;
}

void Editor::mnuEditSelectAll_Click() {
  desk_.Active().IsJoystick() ? RemoveHugeBlankStringJF() : RemoveHugeBlankStringMF();
  edit_.SelectAll();
}

// Undo.

void Editor::StepThroughHistory(void (UndoHistory::*step)()) {
  const Loading loading(application_.values);
  Document& document = desk_.Active();
  (document.Undo.*step)();
  document.Caret = document.text.SelStart;
  UpdateUndoRedoMenus();
  if (application_.settings.HighlightLineOnUndo == 1) blink_.Start();
}

void Editor::mnuEditUndo_Click() { StepThroughHistory(&UndoHistory::Undo); }
void Editor::mnuEditRedo_Click() { StepThroughHistory(&UndoHistory::Redo); }

void Editor::UpdateUndoRedoMenus() {
  const UndoHistory& history = desk_.Active().Undo;
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

void Editor::DeleteUndosFromMemory() {
  DeleteUndosOnSaveJ();
  DeleteUndosOnSaveM();
}

// View.

/// The Insert menu comes without its last two lines.
void Editor::ShowPopUp(std::string_view name) {
  if (name == "mnuInsert") ShowQuickTip(false);
  PopUp(name);
}

void Editor::PopUpClosed(std::string_view name) {
  if (name == "mnuInsert") ShowQuickTip(true);
}

void Editor::ShowQuickTip(bool show) {
  for (const char* const entry : {"mnuInsertDivider8", "mnuInsertQuickTip"}) menus(entry).Visible = show;
}

void Editor::TabStrip1_Click() {
  Document& document = desk_.Active();
  const std::string caption = desk_.TabOf(document).Caption;
  desk_.status.Panels(3).Enabled = true;
  if (document.text.Locked) {
    desk_.SayIsProtected(document);
  } else {
    desk_.Say("Editing " + caption);
  }
  desk_.UpdateSavedIcon();
  document.text.SelStart = document.Caret;
  desk_.ShowCaretLine();
  layout_.ShowPanes();
  document.text.SetFocus();
  UpdateUndoRedoMenus();
  UpdateCCPButtons();
}

void Editor::mnuViewReformat_Click() {
  const Loading loading(application_.values);
  desk_.Say("Reformatting layout. Please wait ...");
  Document& document = desk_.Active();
  tarvik::ApplyFont(document.text, desk_.settings);
  document.text.SelStart = document.Caret;
}

void Editor::mnuViewWordWrap_Click() {
  constexpr int kNoWrapping = 2000;
  const bool wrap = !mnuViewWordWrap.Checked;
  for (Pane* pane : {&JoystickText, &MacroText}) pane->RightMargin = wrap ? 0 : kNoWrapping;
  mnuViewWordWrap.Checked = wrap;
}

void Editor::UpdateToolBarOpenSaveTooltips() {
  const Settings& settings = application_.settings;
  Toolbar& toolbar = mum_.Toolbar1;
  toolbar.Buttons(kFirstFileButton).ToolTipText =
      settings.OpenBothOnToolbar == 1 ? "Open joystick file and its macro file (F8)" : "Open file";
  toolbar.Buttons(kFirstFileButton + 1).ToolTipText =
      settings.SaveBothOnToolbar == 1 ? "Save both files" : "Save currently selected file (Ctrl+S)";
}

void Editor::Toolbar1_ButtonClick(int button) {
  const Settings& settings = application_.settings;
  const bool joystick = desk_.Active().IsJoystick();
  if (button == kFirstFileButton && settings.OpenBothOnToolbar != 1) {
    files_.Load(desk_.Active());
    return;
  }
  if (button == kFirstFileButton + 1 && settings.SaveBothOnToolbar == 1) {
    mnuFileSaveBoth_Click();
    return;
  }
  for (const tables::ToolbarRow& row : tables::kToolbar) {
    if (row.button == button) menus(joystick || !row.macroEntry ? row.entry : row.macroEntry).Click();
  }
}

// Colours.

void Editor::mnuViewApplyColourBothFiles_Click() {
  Document& before = desk_.Active();
  mnuViewColourJoystick_Click();
  mnuViewColourMacro_Click();
  desk_.Select(before);
}

void Editor::mnuRemoveColourSelectedText_Click() {
  highlighter_.ColourSelection(kBlack);
  desk_.Say("Done");
}

void Editor::mnuInsertWithColour_Click() {
  const bool colour = !mnuInsertWithColour.Checked;
  mnuInsertWithColour.Checked = colour;
  application_.settings.InsertWithColour = colour ? 1 : 0;
  const Trap trap{application_.errors, "mnuInsertWithColour_Click"};
  trap(application_.profile.Write("Colours", "InsertWithColour", colour ? "1" : "0"));
}

void Editor::ColourSelection(Colour colour) {
  highlighter_.ColourSelection(colour);
  desk_.UpdateSavedIcon();
  desk_.Active().text.SetFocus();
}

void Editor::TextFromTempRichTextBox() {
  desk_.Active().text.SetContent(TempRichTextBox.Content());
  TempRichTextBox.SetContent({});
}

}  // namespace tarvik
