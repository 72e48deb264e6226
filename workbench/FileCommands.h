// The life of the two files: new, open one or a pair, save, save as, and the questions before a document
// goes.
#pragma once

#include "workbench/FilePairs.h"
#include "workbench/Highlighter.h"
#include "workbench/MacroLists.h"
#include "workbench/PreviousFiles.h"
#include "workbench/SaveQuestion.h"
#include "workbench/Versions.h"

namespace tarvik {

class FileCommands {
 public:
  FileCommands(Documents& documents, ColouredCopies& copies, Highlighter& highlighter, MacroLists& lists,
               PreviousFiles& previous, Versions& versions)
      : documents_(documents),
        copies_(copies),
        highlighter_(highlighter),
        lists_(lists),
        previous_(previous),
        versions_(versions) {}

  /// Gives a file that has no name yet one, with its path and the caption of its tab.
  void NameUntitled(Document& document);
  /// The document, which is new, is that of the path again, where no file is any more.
  void NameAfter(Document& document, const std::string& path);
  /// Asks about unsaved work first. False: the user keeps the document.
  bool New(Document& document);
  void Load(Document& document);
  /// Opens a joystick file together with its macro file, from either of the two.
  void OpenPair();
  /// Does the same without a dialog, from the first of these files that belongs to a pair, else from the
  /// first one.
  void OpenPairAmong(const std::vector<std::string>& paths);
  void Save(Document& document);
  void SaveAs(Document& document);
  void SaveBoth();
  /// Asks about both files at the end of the program, the macro file first. False: the program goes on.
  bool MayExit();
  /// Reads the macro file and fills the macro lists.
  void AnalyseMacroFile();
  /// Does the same by the user's wish, from a file with macros that is saved.
  void UpdateMacros();
  /// Makes both files new and untitled, with nothing analysed: the editor begins so.
  void BeginUntitled();
  /// Forgets what was opened last.
  void Reset();

  /// The next load or open takes this path and shows no dialog. A path without a folder leaves the name of
  /// the file opened so before.
  void OpenWithoutDialog(const std::string& path);
  /// Opens the one file, as a macro file or a joystick file by its ending; no path, no file.
  void OpenFavourite(const std::string& path);
  void OpenWithDialogs() { toOpen_.path.clear(); }
  [[nodiscard]] const std::string& NameToOpen() const { return toOpen_.name.Text(); }

  /// Empties the undo history: what the pane holds now is all there is.
  void ResetHistory(Document& document);
  /// Writes file, backup and coloured copy, wherever the document's path is, and shows it as saved. Failures
  /// are recorded under `tag`.
  void WriteToDisk(Document& document, std::string_view tag);

  /// How a file came into a pane: by its coloured copy, which was true to it, or itself, or not at all.
  enum class Read { Coloured, Plain, Nothing };
  /// Fills the pane with what the document's file holds now; the pane stays where that cannot be read.
  [[nodiscard]] Read ReadInto(Document& document, const Trap& trap);
  /// The coloured copy has its colours; the file itself gets them as the settings say.
  void ColourWhatWasRead(Document& document, Read read);
  /// Makes what is at the document's path one of its versions, unless the document comes from there.
  Outcome<> KeepOthersVersion(Document& document);

  /// The document's text is about to go: another file comes in its place, or none.
  Signal<const Document&> Leaves;
  /// A document's text is what its file holds, from now on.
  Signal<Document&> WasRead;
  /// A document was written to its path, or could not be.
  Signal<Document&, const Outcome<>&> Written;
  /// What another program wrote to the document's path is a version of it now, in the file of that path.
  Signal<Document&, const std::string&> KeptOthers;
  /// What was saved is a version of the document, or could not become one.
  Signal<const Document&, const Outcome<>&> VersionsKept;
  /// The macro lists are about to be made anew and want to be seen.
  Signal<> ShowsMacros;
  /// The settings of the files do not fit what the user opens, and who can change them is to be asked for.
  Signal<> NeedsPreferences;

 private:
  enum class Question { New, Load, OpenPair };

  bool MayReplace(Document& document, Question question);
  bool AskToSave(Document& document, const SaveQuestion& question);
  /// What the user picks, in lower case; nothing when he cancels.
  std::optional<NamedFile> ChooseFile(const FileRequest& request);
  /// What is to be opened without a dialog, in lower case, or else what the user picks.
  std::optional<NamedFile> FileToOpen(const std::string& title, const std::string& filter);
  void ShowName(const Document& document);
  void Remember(const Document& document);
  bool CanRead(const std::string& path, const Trap& trap);
  void MakeUntitled(Document& document);
  void TakeFile(Document& document, const NamedFile& file);
  void Open(Document& document, const NamedFile& file, const Trap& trap);
  void FillPane(Document& document, const Trap& trap);
  void SaveText(Document& document);
  /// It has succeeded when the file, read again, holds the bytes.
  [[nodiscard]] Outcome<> WriteDocument(Document& document, const std::string& bytes);
  void KeepVersions(Document& document, const std::optional<std::string>& before, const std::string& now,
                    const Trap& trap);
  [[nodiscard]] Outcome<> WriteBackup(const Document& document, const std::string& bytes) const;
  void OpenMacroThenJoystick(const NamedFile& file, const Trap& trap);
  void OpenJoystickThenMacro(const NamedFile& file, const Trap& trap);
  void TellUnrecognised();
  void FinishPair();

  Documents& documents_;
  ColouredCopies& copies_;
  Highlighter& highlighter_;
  MacroLists& lists_;
  PreviousFiles& previous_;
  Versions& versions_;
  NamedFile toOpen_;          // without a dialog, when it has a path
  std::string lastFileName_;  // what the file dialog shows next
};

}  // namespace tarvik
