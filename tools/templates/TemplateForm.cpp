#include "tools/templates/TemplateForm.h"

#include "language/Controllers.h"
#include "text/CodePage.h"
#include "workbench/EditCommands.h"
#include "workbench/FileTypes.h"
#include "workbench/HelpTopics.h"
#include "workbench/Highlighter.h"
#include "workbench/PrintRTFWordWrap.h"
#include "workbench/SaveQuestion.h"

namespace tarvik {
namespace {

constexpr const char* kUntitled = "untitled.rtf";
constexpr const char* kCurrentFolder = ".";
constexpr const char* kIniName = "Tarvik.ini";
constexpr const char* kNoDefaultTip = "Open default template/text file (see Preferences)";

constexpr MenuRow<TemplateForm> kMenus[] = {
    {0, "mnuFile", "&File"},
    {1, "mnuFileNew", "&New", "Ctrl+N", &TemplateForm::mnuFileNew_Click},
    {1, "mnuFileOpen", "&Open ...", "Ctrl+O", &TemplateForm::mnuFileOpen_Click},
    {1, "mnuFileSave", "&Save", "Ctrl+S", &TemplateForm::mnuFileSave_Click},
    {1, "mnuFileDivider1", "-"},
    {1, "mnuFileLoadDefault", "Open &default", "", &TemplateForm::mnuFileLoadDefault_Click},
    {1, "mnuFileSetAsDefault", "Save and set &as default", "", &TemplateForm::mnuFileSetAsDefault_Click},
    {1, "mnuFileDivider2", "-"},
    {1, "mnuFilePrint", "&Print", "Ctrl+P", &TemplateForm::mnuFilePrint_Click},
    {1, "mnuFileDivider3", "-"},
    {1, "mnuFileExit", "E&xit Template Editor", "", &TemplateForm::mnuFileExit_Click},
    {0, "mnuEdit", "&Edit"},
    {1, "mnuCut", "Cu&t", "Ctrl+X", &TemplateForm::mnuCut_Click},
    {1, "mnuCopy", "&Copy", "Ctrl+C", &TemplateForm::mnuCopy_Click},
    {1, "mnuPaste", "&Paste", "Ctrl+V", &TemplateForm::mnuPaste_Click},
    {1, "mnuDelete", "&Delete", "", &TemplateForm::mnuDelete_Click},
    {1, "mnuSelectAll", "Select &all", "Ctrl+A", &TemplateForm::mnuSelectAll_Click},
    {1, "mnuEditDivider1", "-"},
    {1, "mnuEditTarvikini", "Edit Tarvik.&ini", "Ctrl+I", &TemplateForm::mnuEditTarvikini_Click},
    {1, "mnuEdTmpPrefs", "Default te&mplate ...", "", &TemplateForm::mnuEdTmpPrefs_Click},
    {0, "mnuView", "&View"},
    {1, "mnuColourApply", "&Apply colour highlighting", "", &TemplateForm::mnuColourApply_Click},
    {1, "mnuTextToBlack", "Text to &black", "", &TemplateForm::mnuTextToBlack_Click},
    {1, "mnuViewEditColours", "Edit &colours ...", "", &TemplateForm::mnuViewEditColours_Click},
    {1, "mnuViewDivider1", "-"},
    {1, "mnuViewrefreshLayout", "&Refresh layout", "Ctrl+H", &TemplateForm::mnuViewrefreshLayout_Click},
    {0, "mnuWindow", "&Window"},
    MenuArray<TemplateForm>(1, "mnuWindowCascade", kArrangements),
    {0, "mnuHelp", "&Help"},
    {1, "mnuOverview", "&Overview", "", &TemplateForm::mnuOverview_Click},

    {0, "mnuPopShow", "Template"},
    {1, "mnuPopitUpCut", "Cu&t", "", &TemplateForm::mnuCut_Click},
    {1, "mnuPopitUpCopy", "&Copy", "", &TemplateForm::mnuCopy_Click},
    {1, "mnuPopitUpPaste", "&Paste", "", &TemplateForm::mnuPaste_Click},
    {1, "mnuPopitUpSelectAll", "Select &all", "", &TemplateForm::mnuSelectAll_Click},
    {1, "mnuPopDivider1", "-"},
    {1, "mnuPopitUpColour", "App&ly colour highlighting", "", &TemplateForm::mnuColourApply_Click},
    {1, "mnuPopitUpBlack", "Text to &black", "", &TemplateForm::mnuTextToBlack_Click},
    {1, "mnuPopDivider2", "-"},
    {1, "mnuSetAsDefault", "Save and set as &default", "", &TemplateForm::mnuFileSetAsDefault_Click},
    {1, "mnuPopitUpPrint", "Pr&int", "", &TemplateForm::mnuFilePrint_Click},
    {1, "mnuPopitUpSave", "&Save", "", &TemplateForm::mnuFileSave_Click},
};

struct CommandRow {
  const char* caption;
  const char* tip;
};

constexpr CommandRow kCommandRows[TemplateForm::kCommands] = {
    {"Open", "Open a template or any text file (Ctrl+O)"},
    {"Save", "Save templates in the folder Templates, other files where they came from (Ctrl+S)"},
    {"New", "New template (Ctrl+N)"},
};

std::string Filter() {
  using filetypes::OfEnding;
  return filetypes::InOrder({OfEnding("Templates", "rtf"), "Joystick files |" + Patterns(&Endings::joystick),
                             "Macro files |" + Patterns(&Endings::macro), OfEnding("Text files", "txt"),
                             OfEnding("Ini files", "ini"), filetypes::kAll});
}

std::string NameIn(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

}  // namespace

TemplateForm::TemplateForm(Workbench& bench, Shell& shell)
    : ToolForm("TemplateForm", bench, shell),
      menus(*this, kMenus),
      TemplateText(*this, "TemplateText", bench.platform.files),
      journal_(
          bench.journals,
          [this] {
            return JournalHead{TextKind::Template, FileName.Get().empty() ? TemplatePath : FileName,
                               TemplateName};
          },
          [this] { return TemplateText.Content(); }) {
  Caption = "Template Editor";
  menus("mnuPopShow").Visible = false;
  Text1.ToolTipText = "The file's name; a name typed here is a template's";
  Label1.Caption = "Colour of the selection";
  Label1.BackColor = ToggleLabel::kOff;
  for (int i = 0; i < kCommands; ++i) {
    Command1(i).Caption = kCommandRows[i].caption;
    Command1(i).ToolTipText = kCommandRows[i].tip;
    Command1(i).Click = [this, i] { Command1_Click(i); };
  }
  for (int i = 0; i < static_cast<int>(std::size(kColourChoices)); ++i) {
    Label& swatch = swatches.Load("ColourLabel" + TextOf(i + 1));
    swatch.ToolTipText = kColourChoices[i].caption;
    swatch.Click = [this, &swatch] { ColourLabel_Click(swatch); };
  }
  ToggleButton1.TurnOn();
  AttachHandlers();
}

void TemplateForm::AttachHandlers() {
  Load = [this] { Form_Load(); };
  Unload = [this] { journal_.Remove(); };  // the user was asked
  Activate = [this] { Form_Activate(); };
  // The Escape key does not close the window: a text is not to go by accident.
  KeyDown = [](Key& key) {
    if (key.code == key::kEscape) key = {};
  };
  CmndPrint.ToolTipText = "Print (Ctrl+P)";
  Printer& printer = bench_.platform.printer;
  TellOfPrinter(CmndPrint, printer);
  TellOfPrinter(menus("mnuFilePrint"), printer);
  TellOfPrinter(menus("mnuPopitUpPrint"), printer);
  ToggleButton1.Click = [this] { ToggleButton1_Click(); };
  Text1.LostFocus = [this] { Text1_LostFocus(); };
  TemplateText.GotFocus = [this] { TemplateText_GotFocus(); };
  TemplateText.KeyDown = [this](Key& key) { TemplateText_KeyDown(key); };
  TemplateText.MouseDown = [this](const Mouse& mouse) { TemplateText_MouseDown(mouse); };
  TemplateText.SelChange = [this] { UpdateCopyItems(); };
  // A change of colours counts as a change, since they are part of a template.
  connections_ = {
      TemplateText.Edited.Connect([this](const PaneEdit& edit) {
        TemplateText_Change();
        journal_.Note(edit);
      }),
      TemplateText.CharactersLost.Connect(
          [this](std::size_t characters) { bench_.documents.SayLost(characters); }),
      bench_.ClipboardChanged.Connect([this] { UpdateCopyItems(); }),
      bench_.settings.TextFilePath.Changed.Connect([this] { ShowDefault(); }),
      TemplateName.Changed.Connect([this] { FileOnShow = TemplateName; }),
      TemplateChanged.Changed.Connect([this] {
        Unsaved = TemplateChanged == 1;
        Unsaved ? journal_.Begin() : journal_.Remove();
      }),
      bench_.recovery.Returns.Connect(
          [this](const UnsavedText& unsaved, bool& taken) { taken = taken || TakeBack(unsaved); }),
  };
}

// Life of the form.

void TemplateForm::ShowText() {
  Show();
  TemplateText.SetFocus();
}

void TemplateForm::Form_Load() {
  TemplateFolder = bench_.platform.folder + "\\Templates\\";
  NameUntitled();
  UpdateLabelColours();
  mnuViewrefreshLayout_Click();
  OpenDefault(Trap{bench_.errors, "TEMPLATE Form_Load"});
  UpdateCopyItems();
}

void TemplateForm::Form_Activate() {
  shell_.HideToolbar();
  UpdateLabelColours();
  if (bench_.values.TemplateFontChanged == 1) mnuViewrefreshLayout_Click();
  UpdateCopyItems();
}

void TemplateForm::UpdateLabelColours() {
  for (int i = 0; i < static_cast<int>(std::size(kColourChoices)); ++i) {
    swatches("ColourLabel" + TextOf(i + 1)).BackColor = kColourChoices[i].In(bench_.settings);
  }
}

bool TemplateForm::MayLeave(const char* question, const char* refused) {
  if (TemplateChanged != 1) return true;
  return MayDiscard(bench_.platform.dialogs, TemplateName, {question, "Ooops!", refused},
                    [this] { return Save(); });
}

bool TemplateForm::MayOpen(const char* question) {
  return MayLeave(question, " wasn't saved for some reason. I won't proceed in opening up another file");
}

bool TemplateForm::Form_QueryUnload() {
  return MayLeave(" has changed and isn't saved. Do you want to save it before exiting?",
                  " wasn't saved. Exit Template Editor aborted.");
}

// Files.

void TemplateForm::Command1_Click(int index) {
  if (index == kOpen) Open();
  if (index == kSave) Save();
  if (index == kNew) New();
}

void TemplateForm::ShowName(const std::string& name) {
  TemplateName = name;
  Text1.Text = name;
}

/// The text that follows comes from no file, so that saving it touches the file before it no more.
void TemplateForm::NameUntitled() {
  TemplatePath = TemplateFolder.Get() + kUntitled;
  FileName = std::string();
  ShowName(kUntitled);
}

bool TemplateForm::LoadText(const std::string& path, const Trap& trap) {
  if (!trap(TemplateText.LoadFile(path))) {
    Say(path + " can't be opened");
    return false;
  }
  FileName = path;
  TemplatePath = path;
  TemplateChanged = 0;
  return true;
}

void TemplateForm::ShowDefault() {
  const std::string path = LowerCase(bench_.settings.TextFilePath.Get());
  Command2.Enabled = bench_.platform.files.FileExists(path);
  Command2.ToolTipText = Command2.Enabled ? "Open " + path : kNoDefaultTip;
}

void TemplateForm::OpenDefault(const Trap& trap) {
  ShowDefault();
  const std::string path = LowerCase(bench_.settings.TextFilePath.Get());
  if (Command2.Enabled && LoadText(path, trap)) ShowName(NameIn(bench_.settings.TextFilePath));
}

void TemplateForm::Command2_Click() {
  if (!MayOpen(" has changed and isn't saved. Do you want to save it before opening another file?")) return;
  OpenDefault(Trap{bench_.errors, "TEMPLATE Command2_Click"});
}

void TemplateForm::Open() {
  const Trap trap{bench_.errors, "TEMPLATE Command1_Click"};
  if (!MayOpen(" has changed and isn't saved. Do you want to save it before opening another file?")) return;
  const auto chosen =
      bench_.platform.dialogs.AskForFile({FileDialogKind::Open, {}, Filter(), kCurrentFolder, {}, {}});
  if (!chosen || !LoadText(LowerCase(*chosen), trap)) return;
  Say(TemplatePath.Get() + " was opened successfully");
  ShowName(NameIn(*chosen));
  mnuViewrefreshLayout_Click();
}

/// False when the file could not be written: the text is then as unsaved as before.
bool TemplateForm::Save() {
  const Trap trap{bench_.errors, "TEMPLATE Command1_Click"};
  // While a menu is used the focus stays in the box, which has then a typed name to finish.
  if (Text1.Empty() || (ActiveControl() == &Text1 && Text1.Text.Get() != TemplateName.Get()))
    Text1_LostFocus();
  const std::string name = Text1.Text;
  const bool rich = LowerCase(name).ends_with("rtf");
  Files& files = bench_.platform.files;
  if (rich && !files.FolderExists(TemplateFolder.Get())) trap(files.MakeFolder(TemplateFolder.Get()));
  const std::string path = rich || FileName.Get().empty() ? TemplateFolder.Get() + name : FileName.Get();
  if (!trap(TemplateText.SaveFile(path, rich ? FileFormat::Rtf : FileFormat::Text))) {
    Say(name + " wasn't saved, because " + path + " can't be written");
    return false;
  }
  TemplatePath = LowerCase(path);
  TemplateName = name;
  TemplateChanged = 0;
  Say(name + " was saved successfully");
  return true;
}

bool TemplateForm::TakeBack(const UnsavedText& unsaved) {
  const JournalHead& head = unsaved.head;
  if (head.kind != TextKind::Template ||
      !MayOpen(" has changed and isn't saved. Do you want to save it before opening another file?")) {
    return false;
  }
  const bool isTemplate = LowerCase(head.path).ends_with(".rtf");
  FileName = isTemplate && !bench_.platform.files.FileExists(head.path) ? std::string() : head.path;
  TemplatePath = head.path;
  ShowName(head.name);
  TemplateText.SetContent(unsaved.text);
  mnuViewrefreshLayout_Click();
  TemplateChanged = 1;
  journal_.NoteWhole();  // by this name from now on
  return true;
}

void TemplateForm::New() {
  if (!MayLeave(" has changed and isn't saved. Do you want to save it before creating a new file?",
                " wasn't saved for some reason. I won't proceed in creating a new file")) {
    return;
  }
  NameUntitled();
  TemplateText.Text = std::string();
  TemplateText.SelColor = kBlack;
  mnuViewrefreshLayout_Click();
  TemplateChanged = 0;
  Say("New file created");
}

void TemplateForm::Text1_LostFocus() {
  const std::string name = Text1.Text;
  if (name.empty()) {
    Text1.Text = std::string(kUntitled);
  } else if (!LowerCase(name).ends_with(".rtf")) {
    Text1.Text = name + ".rtf";
  }
}

void TemplateForm::mnuFileSetAsDefault_Click() {
  if (!Save()) return;
  bench_.settings.TextFilePath = TemplatePath;
  bench_.settings.SaveOptions();
  ShowDefault();
}

void TemplateForm::mnuFileLoadDefault_Click() {
  if (Command2.Enabled) return Command2_Click();
  bench_.platform.dialogs.Show(
      {"Have a beer instead",
       "You don't have a default template to open. You can set one here or in Preferences.",
       BoxIcon::Information});
}

void TemplateForm::mnuEditTarvikini_Click() {
  const Trap trap{bench_.errors, "TEMPLATE mnuEditTarvikini_Click"};
  if (!MayOpen(" has changed and isn't saved. Do you want to save it before opening up the ini file?")) {
    return;
  }
  const std::string path = bench_.platform.folder + "\\tarvik.ini";
  if (!bench_.platform.files.FileExists(path)) {
    bench_.platform.dialogs.Show({"Couldn't locate Tarvik.ini",
                                  "Hmmm...I couldn't find your ini file - I was looking for it here: " + path,
                                  BoxIcon::Exclamation});
    return;
  }
  if (LoadText(path, trap)) ShowName(kIniName);
}

void TemplateForm::mnuFilePrint_Click() {
  PrintPane(TemplateText, TemplateName, "TEMPLATE mnuFilePrint_Click", bench_.documents);
}

// The clipboard.

void TemplateForm::mnuCopy_Click() {
  CopySelection(TemplateText, bench_.platform.clipboard);
  UpdateCopyItems();
}

void TemplateForm::mnuCut_Click() {
  mnuCopy_Click();
  mnuDelete_Click();
}

void TemplateForm::mnuDelete_Click() {
  if (TemplateText.SelLength > 0) TemplateText.SelText = std::string();
}

void TemplateForm::mnuPaste_Click() {
  const Clipping clipping(bench_.platform.clipboard);
  if (clipping.Empty()) return;
  ApplyFont(TemplateText, bench_.settings);
  clipping.ReplaceSelectionOf(TemplateText);
}

void TemplateForm::UpdateCopyItems() {
  const bool selected = TemplateText.SelLength > 0;
  for (const char* const entry : {"mnuCut", "mnuCopy", "mnuDelete", "mnuPopitUpCut", "mnuPopitUpCopy"}) {
    menus(entry).Enabled = selected;
  }
  const bool text = bench_.platform.clipboard.HasText();
  for (const char* const entry : {"mnuPaste", "mnuPopitUpPaste"}) menus(entry).Enabled = text;
}

// The pane.

void TemplateForm::TemplateText_KeyDown(Key& key) {
  if (menus.RunCtrlLetter(key)) key = {};
}

void TemplateForm::TemplateText_MouseDown(const Mouse& mouse) {
  if (mouse.button != button::kRight) return;
  UpdateCopyItems();
  PopUp("mnuPopShow");
}

void TemplateForm::ToggleButton1_Click() {
  ToggleButton1.Turn(!ToggleButton1.On());
  TemplateText.RightMargin = ToggleButton1.On() ? margin::kWindow : margin::kNone;
}

void TemplateForm::mnuViewrefreshLayout_Click() {
  bench_.values.TemplateFontChanged = 0;
  TemplateText.BackColor = bench_.settings.BackgroundColour;
  ApplyFont(TemplateText, bench_.settings);
}

// Colours.

void TemplateForm::EditPreferences(page::Preferences page) {
  shell_.ShowPreferences(page);
  if (bench_.values.TemplateFontChanged == 1) mnuViewrefreshLayout_Click();
}

void TemplateForm::mnuTextToBlack_Click() {
  const std::size_t start = TemplateText.SelStart;
  if (TemplateText.SelLength == 0U) mnuSelectAll_Click();
  TemplateText.SelColor = kBlack;
  TemplateText.SelStart = start;
}

void TemplateForm::ColourTemplateText() {
  if (TemplateText.Characters().empty()) {
    Say("There's no text to highlight.");
    return;
  }
  const std::size_t start = TemplateText.SelStart;
  TemplateText.SelLength = 0;
  mnuTextToBlack_Click();
  Say("Applying colour highlighting to " + Text1.Text.Get() + ". Please wait ...");
  mnuViewrefreshLayout_Click();
  MakePasses(TemplateText, JoystickPasses(), bench_.documents, CommandProgress::Hits);
  TemplateText.SelStart = start;
  TemplateText_Change();
  Say("Done");
}

void TemplateForm::mnuOverview_Click() { ShowHelp(bench_.platform, topic::kTemplateEditor); }

}  // namespace tarvik
