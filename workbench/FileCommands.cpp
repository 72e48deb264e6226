#include "workbench/FileCommands.h"

#include <algorithm>
#include <utility>

#include "platform/FileSize.h"
#include "text/CodePage.h"
#include "workbench/FileWords.h"

namespace tarvik {
namespace {

constexpr const char* kNoMacroFile = "No macro file analysed";
constexpr const char* kRefusedTitle = "Hmmm...let me think...";
constexpr const char* kExitRefusedTitle = "Ooops!";
constexpr const char* kExitQuestion = " has changed and isn't saved. Do you want to save it before exiting?";
constexpr const char* kExitRefused = " wasn't saved. Exit program aborted.";
constexpr const char* kNoJoystickFile =
    "I couldn't find a joystick file associated with this macro file. Either this is because it has a "
    "different name, is located in a different directory,or it does not exist.";
constexpr const char* kNoPartnerMacroFile =
    "I couldn't find a macro file associated with this joystick file. Either this is because it has a "
    "different name, is located in a different directory, or it does not exist. If you know that this "
    "joystick file doesn't use a macro file, next time, open up the single file on its own. And whilst "
    "I've got your attention, how 'bout spending some of that beer money on me for once. I want some RAM "
    ".... and a beer ...";

}  // namespace

// New.

void FileCommands::Reset() {
  for (const Document* const document : {&documents_.joystick, &documents_.macro}) Leaves(*document);
  toOpen_ = {};
  lastFileName_.clear();
}

void FileCommands::BeginUntitled() {
  documents_.status.Panels(panel::kMacroFile).Text = kNoMacroFile;
  documents_.status.Panels(panel::kMacroFile).ToolTipText =
      "The macros in the macros list are from this file";
  for (Document* const document : {&documents_.joystick, &documents_.macro}) {
    documents_.ApplyLook(*document);
    NameUntitled(*document);
    document->Dirty = saved::kNoText;
    ResetHistory(*document);
  }
}

void FileCommands::NameUntitled(Document& document) {
  const std::string extension = (documents_.settings.*document.traits.extension).Get();
  // The settings file may hold anything, also an extension that is none.
  document.Name = FileName::From("untitled." + extension).value_or(*FileName::From("untitled."));
  // No separator stands between the two: nobody saves an untitled file to this path by hand.
  document.Path = documents_.settings.ProgramFilesPath.Get() + document.Name.Get().Text();
  document.seen.Forget();
  document.origin = {};
  ShowName(document);
}

void FileCommands::NameAfter(Document& document, const std::string& path) {
  const auto file = FileAt(path);
  if (!file) return;
  document.Path = file->path;
  document.Name = file->name;
  ShowName(document);
}

void FileCommands::ResetHistory(Document& document) {
  document.Undo.Clear();
  documents_.HistoryChanged();
}

void FileCommands::ShowName(const Document& document) {
  documents_.TabOf(document).Caption = document.Name.Get().Text();
}

bool FileCommands::New(Document& document) {
  if (!MayReplace(document, Question::New)) return false;
  Leaves(document);
  const ProgramEdit edit(documents_.values);
  document.Dirty = saved::kNoText;
  document.text.SetContent({});
  documents_.ApplyLook(document);
  NameUntitled(document);
  if (!document.IsJoystick()) {
    ShowsMacros();
    lists_.ClearAllForNewMacroFile();
    documents_.status.Panels(panel::kMacroFile).Text = kNoMacroFile;
  }
  document.Caret = 0;
  ResetHistory(document);
  documents_.Select(document);
  documents_.Say(WordsOf(document).created);
  documents_.UpdateSavedIcon();
  documents_.swatch.BackColor = document.text.SelColor;
  lists_.ClearMacroTicks();
  return true;
}

// Questions.

bool FileCommands::AskToSave(Document& document, const SaveQuestion& question) {
  if (document.Dirty != saved::kModified) return true;
  return MayDiscard(documents_.platform.dialogs, document.Name.Get().Text(), question, [&] {
    documents_.Select(document);
    Save(document);
    return document.Dirty != saved::kModified;
  });
}

bool FileCommands::MayReplace(Document& document, Question question) {
  const FileWords& words = WordsOf(document);
  const char* const text = question == Question::New ? words.newQuestion : words.loadQuestion;
  // Opening a pair refuses in the macro file's words for both files.
  const char* const refused =
      question == Question::OpenPair ? WordsOf(documents_.macro).refused : words.refused;
  return AskToSave(document, {text, kRefusedTitle, refused});
}

bool FileCommands::MayExit() {
  const SaveQuestion question{kExitQuestion, kExitRefusedTitle, kExitRefused};
  return AskToSave(documents_.macro, question) && AskToSave(documents_.joystick, question);
}

// Open.

void FileCommands::OpenWithoutDialog(const std::string& path) {
  toOpen_.path = path;
  if (path.find('\\') == std::string::npos) return;
  if (const auto name = FileName::Of(path)) toOpen_.name = *name;
}

std::optional<NamedFile> FileCommands::FileToOpen(const std::string& title, const std::string& filter) {
  const std::string path = std::exchange(toOpen_.path, {});
  if (path.empty()) {
    const std::string& folder = documents_.settings.ProgramFilesPath;
    return ChooseFile({FileDialogKind::Open, title, filter, folder, {}, {}});
  }
  const auto name = FileName::From(LowerCase(toOpen_.name.Text()));
  return NamedFile{LowerCase(path), name.value_or(FileName())};
}

std::optional<NamedFile> FileCommands::ChooseFile(const FileRequest& request) {
  Ignore(documents_.platform.files.ChangeDrive(request.folder));
  const auto chosen = documents_.platform.dialogs.AskForFile(request);
  if (!chosen) return {};
  lastFileName_ = *chosen;
  return FileAt(*chosen);
}

/// A file that cannot be read is told, and the document in its place stays.
bool FileCommands::CanRead(const std::string& path, const Trap& trap) {
  auto content = documents_.platform.files.Read(path);
  const bool tooLarge = IsTooLarge(content.failure());
  if (trap(std::move(content))) return true;
  documents_.Say(path + (tooLarge ? " is larger than 64 MB" : " can't be opened"));
  return false;
}

void FileCommands::Remember(const Document& document) {
  if (document.IsJoystick()) {
    previous_.RecentJFToAdd = document.Path;
    previous_.UpdateRecentJFMenuList();
  } else {
    previous_.RecentMFToAdd = document.Path;
    previous_.UpdateRecentMFMenuList();
  }
}

void FileCommands::TakeFile(Document& document, const NamedFile& file) {
  Leaves(document);
  document.Path = file.path;
  document.Name = file.name;
  ShowName(document);
  Remember(document);
}

/// The former text must not be saved under the name of a file whose text never came.
void FileCommands::MakeUntitled(Document& document) {
  document.text.SetContent({});
  NameUntitled(document);
}

/// Where memory runs out on the way the document is an untitled one, and the other one is as it was.
void FileCommands::Open(Document& document, const NamedFile& file, const Trap& trap) {
  try {
    TakeFile(document, file);
    if (!document.IsJoystick()) {
      AnalyseMacroFile();
      documents_.Say("Finished opening up macro file and extracting macros from it");
    }
    FillPane(document, trap);
  } catch (...) {
    MakeUntitled(document);
    document.Dirty = saved::kNoText;
    ResetHistory(document);
    documents_.Say(file.path + " can't be opened");
    throw;
  }
}

/// What is seen before the pane is filled can only be older than what fills it: a change in between shows.
FileCommands::Read FileCommands::ReadInto(Document& document, const Trap& trap) {
  const auto bytes = Ignore(document.seen.See(documents_.platform.files, document.Path.Get()));
  const Read read = copies_.Load(document)                              ? Read::Coloured
                    : trap(document.text.LoadFile(document.Path.Get())) ? Read::Plain
                                                                        : Read::Nothing;
  if (read == Read::Nothing) return read;
  document.origin = bytes ? Origin(*bytes) : Origin();
  WasRead(document);
  return read;
}

void FileCommands::ColourWhatWasRead(Document& document, Read read) {
  if (read != Read::Coloured && documents_.settings.ApplyColoursOnFileOpen == 1) highlighter_.Apply(document);
}

/// A file that went bad since it was looked at gives an untitled document: the former text must not be saved
/// in its place.
void FileCommands::FillPane(Document& document, const Trap& trap) {
  const Read read = ReadInto(document, trap);
  if (read == Read::Nothing) MakeUntitled(document);
  ColourWhatWasRead(document, read);
  document.Caret = 0;
  document.text.SelStart = 0;
  document.Dirty = saved::kSaved;
  ResetHistory(document);
}

void FileCommands::Load(Document& document) {
  if (!MayReplace(document, Question::Load)) return;
  const FileWords& words = WordsOf(document);
  const Trap trap{documents_.errors, words.loadTag};
  if (toOpen_.path.empty()) documents_.Say(words.opening);
  const std::string extension = (documents_.settings.*document.traits.extension).Get();
  const auto file = FileToOpen({}, FilterToOpen(words, extension));
  if (!file || !CanRead(file->path, trap)) return;
  const ProgramEdit edit(documents_.values);
  Open(document, *file, trap);
  if (document.IsJoystick()) lists_.ClearMacroTicks();
  documents_.Select(document);
  documents_.UpdateSavedIcon();
  documents_.HistoryChanged();
  if (words.opened) documents_.Say(words.opened);
}

void FileCommands::AnalyseMacroFile() {
  const ProgramEdit edit(documents_.values);
  ShowsMacros();
  lists_.ClearAllForNewMacroFile();
  documents_.status.Panels(panel::kMacroFile).Text = documents_.macro.Name.Get().Text();
  lists_.GetEachLineFromMacroFile();
  lists_.ExtractMacrosAndTitles();
}

void FileCommands::UpdateMacros() {
  Document& macro = documents_.macro;
  const std::size_t equals = macro.text.Characters().find('=');
  if (equals == std::string_view::npos || equals == 0) return;
  documents_.Select(macro);
  if (macro.Dirty == saved::kModified) {
    Dialogs& dialogs = documents_.platform.dialogs;
    const std::string name = macro.Name.Get().Text();
    const Answer answer =
        dialogs.Show({" Save " + name + " now?",
                      name + " has changed and isn't saved. You must save it if you want to update "
                             "your macros list. Shall I go ahead and save it?",
                      BoxIcon::Question, BoxButtons::YesNo});
    if (answer == Answer::Yes) {
      documents_.Select(macro);
      Save(macro);
    }
    if (answer != Answer::Yes || macro.Dirty == saved::kModified) {
      dialogs.Show({"File not saved", name + " wasn't saved, so I won't continue to update your macros list.",
                    BoxIcon::Exclamation, BoxButtons::Ok});
      return;
    }
  }
  documents_.values.MacroListChanged = 1;
  AnalyseMacroFile();
}

void FileCommands::OpenPair() {
  const Trap trap{documents_.errors, "ED_mnuFileOpen_Click"};
  if (!MayReplace(documents_.joystick, Question::OpenPair) ||
      !MayReplace(documents_.macro, Question::OpenPair))
    return;
  documents_.Say("Opening joystick and associated macro file together ....");
  const auto file =
      FileToOpen("Select the joystick file or the macro file - I'll open both of them",
                 PairFilter(documents_.settings.JoystickExtension, documents_.settings.MacroExtension));
  if (!file) return;
  const ProgramEdit edit(documents_.values);
  if (IsMacroFile(file->name.Text())) {
    if (CanRead(file->path, trap)) OpenMacroThenJoystick(*file, trap);
  } else if (IsJoystickFile(file->name.Text())) {
    if (CanRead(file->path, trap)) OpenJoystickThenMacro(*file, trap);
  } else {
    TellUnrecognised();
  }
}

void FileCommands::OpenPairAmong(const std::vector<std::string>& paths) {
  if (paths.empty()) return;
  const auto ofAPair = std::find_if(paths.begin(), paths.end(), [](const std::string& path) {
    const std::string name = LowerCase(path);
    return IsJoystickFile(name) || IsMacroFile(name);
  });
  OpenWithoutDialog(ofAPair == paths.end() ? paths.front() : *ofAPair);
  OpenPair();
  OpenWithDialogs();
}

void FileCommands::OpenFavourite(const std::string& path) {
  if (path.empty()) return;
  OpenWithoutDialog(path);
  Load(IsMacroFile(path) ? documents_.macro : documents_.joystick);
  OpenWithDialogs();
}

void FileCommands::OpenMacroThenJoystick(const NamedFile& file, const Trap& trap) {
  Open(documents_.macro, file, trap);
  documents_.Select(documents_.macro);
  documents_.UpdateSavedIcon();
  const auto partner = JoystickFileBeside(file);
  if (!partner || !documents_.platform.files.FileExists(partner->path)) {
    documents_.Say("Joystick file not opened");
    documents_.platform.dialogs.Show(
        {"Couldn't find associated joystick file", kNoJoystickFile, BoxIcon::Information, BoxButtons::Ok});
    return;
  }
  if (!CanRead(partner->path, trap)) return;
  Open(documents_.joystick, *partner, trap);
  FinishPair();
}

void FileCommands::OpenJoystickThenMacro(const NamedFile& file, const Trap& trap) {
  Open(documents_.joystick, file, trap);
  documents_.Select(documents_.joystick);
  documents_.UpdateSavedIcon();
  documents_.Say("Looking for associated macro file");
  const auto partner = MacroFileNamedIn(documents_.joystick);
  if (!partner || !documents_.platform.files.FileExists(partner->path)) {
    documents_.Say("Macro file not opened");
    documents_.platform.dialogs.Show(
        {"Couldn't find associated macro file", kNoPartnerMacroFile, BoxIcon::Information, BoxButtons::Ok});
    lists_.ClearMacroTicks();
    return;
  }
  if (!CanRead(partner->path, trap)) return;
  Open(documents_.macro, *partner, trap);
  FinishPair();
}

void FileCommands::FinishPair() {
  for (Document* document : {&documents_.macro, &documents_.joystick}) {
    document->Caret = 0;
    document->text.SelStart = 0;
  }
  documents_.Select(documents_.joystick);
  documents_.UpdateSavedIcon();
  documents_.HistoryChanged();
  documents_.Say("Done");
  if (documents_.settings.CheckIdentifyOK == 1) {
    lists_.IdentifyMacrosUsed();
  } else {
    lists_.ClearMacroTicks();
  }
}

void FileCommands::TellUnrecognised() {
  documents_.Say("Your file extensions may need adjusting in Preferences");
  documents_.platform.dialogs.Show({"Tarvik",
                                    "The file you opened isn't recognised as either a ." +
                                        documents_.settings.JoystickExtension.Get() + " or a ." +
                                        documents_.settings.MacroExtension.Get() +
                                        " file. This is probably because you need to set the preferences to "
                                        "display what the default extensions you will be using for your "
                                        "hardware. I'll take you there now. And don't start on me ... I'm "
                                        "just the computer ... not the programmer.",
                                    BoxIcon::None, BoxButtons::Ok});
  NeedsPreferences();
  documents_.Say("Files not opened");
}

// Save.

void FileCommands::Save(Document& document) {
  if (document.IsUntitled()) {
    SaveAs(document);
  } else {
    SaveText(document);
  }
}

void FileCommands::SaveAs(Document& document) {
  const FileWords& words = WordsOf(document);
  const Document& other = document.IsJoystick() ? documents_.macro : documents_.joystick;
  const std::string extension = (documents_.settings.*document.traits.extension).Get();
  // The dialog may remember the other file: the pair must not share name and extension.
  std::string suggestion = lastFileName_;
  if (!suggestion.empty() && Ending(suggestion) == (documents_.settings.*other.traits.extension).Get()) {
    suggestion = WithEnding(suggestion, extension);
  }
  const auto chosen = ChooseFile({FileDialogKind::Save,
                                  {},
                                  FilterToSave(words, extension),
                                  documents_.settings.ProgramFilesPath,
                                  suggestion,
                                  extension});
  if (!chosen) return;
  // Whoever picks another file that is there has agreed that it goes.
  if (chosen->path != document.Path.Get()) {
    Ignore(document.seen.See(documents_.platform.files, chosen->path));
    if (document.IsForeign()) document.origin.Accept();
  }
  document.Path = chosen->path;
  document.Name = chosen->name;
  SaveText(document);
  // The caption changes only now: the backup has gone under the one before.
  ShowName(document);
}

void FileCommands::SaveText(Document& document) {
  WriteToDisk(document, WordsOf(document).saveTag);
  if (documents_.settings.UndoClearOnSave == 1) ResetHistory(document);
}

Outcome<> FileCommands::KeepOthersVersion(Document& document) {
  Files& files = documents_.platform.files;
  const OnDisk now = document.seen.Look(files, document.Path.Get());
  if (now != OnDisk::Changed && now != OnDisk::NeverSeen) return Done{};
  const auto bytes = files.Read(document.Path.Get());
  if (!bytes) return bytes.failure();
  auto kept = versions_.Keep(document, *bytes, Author::OtherProgram);
  if (kept) KeptOthers(document, versions_.PathOf(document, versions_.Of(document).front()));
  return kept;
}

Outcome<> FileCommands::WriteDocument(Document& document, const std::string& bytes) {
  Files& files = documents_.platform.files;
  if (!document.origin.MayBeWritten(document.text.Characters())) {
    return Failure{error::kUnexpected, "It is in " + std::string(document.origin.EncodingName()), 0};
  }
  if (auto kept = KeepOthersVersion(document); !kept) return kept;
  auto written = files.Write(document.Path.Get(), bytes);
  if (!written) return written;
  const auto read = document.seen.See(files, document.Path.Get());
  if (!read) return read.failure();
  if (*read == bytes) return written;
  document.seen.Forget();  // it may be another program's
  return Failure{error::kUnexpected, "The file does not hold the text", 0};
}

/// Under the name that the document had until now.
Outcome<> FileCommands::WriteBackup(const Document& document, const std::string& bytes) const {
  const auto shown = FileName::From(documents_.TabOf(document).Caption.Get());
  if (!shown) return Done{};
  const Folder& backups = documents_.values.BackupDir;
  return WriteAndReadCopy(documents_.platform.files, backups / *shown, bytes, document.Path.Get());
}

void FileCommands::KeepVersions(Document& document, const std::optional<std::string>& before,
                                const std::string& now, const Trap& trap) {
  auto kept = before ? versions_.Keep(document, *before, Author::User) : Outcome<>(Done{});
  if (kept) kept = versions_.Keep(document, now, Author::User);
  trap(kept);
  VersionsKept(document, kept);
}

/// The document comes before its backups and versions: where the disk has room for one of them, it is this.
void FileCommands::WriteToDisk(Document& document, std::string_view tag) {
  const Trap trap{documents_.errors, tag};
  const std::string bytes = document.origin.BytesFor(document.text.Characters());
  const bool makesBackups = documents_.settings.CreateBackup == 1;
  const auto before =
      makesBackups ? Ignore(documents_.platform.files.Read(document.Path.Get())) : std::nullopt;
  const Outcome<> written = WriteDocument(document, bytes);
  trap(written);
  if (makesBackups) trap(WriteBackup(document, bytes));
  if (makesBackups && written) KeepVersions(document, before, bytes, trap);
  Remember(document);
  documents_.Say(document.Path.Get() + " saved successfully.");
  document.Dirty = saved::kSaved;
  documents_.UpdateSavedIcon();
  copies_.Save(document);
  Written(document, written);
}

void FileCommands::SaveBoth() {
  Document& before = documents_.Active();
  for (Document* document : {&documents_.joystick, &documents_.macro}) {
    documents_.Select(*document);
    Save(*document);
  }
  documents_.Select(before);
}

}  // namespace tarvik
