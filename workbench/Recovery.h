// The texts that an earlier end of the program left unsaved: what they are, how they differ from their files,
// and what the user can do with each. Nothing is overwritten, and nothing goes away unasked.
#pragma once

#include "text/Differences.h"
#include "workbench/ColouredInsertion.h"
#include "workbench/FileCommands.h"
#include "workbench/Journal.h"
#include "workbench/Notices.h"

namespace tarvik {

/// A text that was left, and the name of its journal.
struct LeftText {
  std::string journal;
  UnsavedText unsaved;
};

class Recovery {
 public:
  Recovery(Documents& documents, FileCommands& files, ColouredInsertion& insertion, JournalKeeper& keeper,
           Notices& notices);

  /// Looks for texts that were left, and tells of them above the text. More than thirty are too many: the
  /// oldest go.
  void Look();
  /// The newest first.
  [[nodiscard]] const std::vector<LeftText>& Texts() const { return texts_; }
  /// What the file of a text holds now; empty where it is not there.
  [[nodiscard]] RichText InFile(const LeftText& left) const;
  /// The text's file, when it was written, and how many lines differ: a line for the user.
  [[nodiscard]] std::string Describe(const LeftText& left) const;

  /// Puts the text into its document as one step of undo, behind the question about what is there. Nothing is
  /// saved by that.
  void BringBack(const std::string& journal);
  /// Writes the text into a new file beside its own.
  void KeepBoth(const std::string& journal);
  void ThrowAway(const std::string& journal);

  /// `Texts` is another list now.
  Signal<> Changed;
  /// The user wants to see them all.
  Signal<> WantsPage;
  /// Text of a tool is to come back; the tool that takes it says so.
  Signal<const UnsavedText&, bool&> Returns;

 private:
  [[nodiscard]] std::optional<UnsavedText> Read(const std::string& journal) const;
  [[nodiscard]] bool IsInItsFile(const LeftText& left) const;
  [[nodiscard]] bool IsThereTwice() const;
  void Tell();
  bool BringBackInto(Document& document, const UnsavedText& unsaved);
  /// False when the user keeps what is there.
  bool Open(Document& document, const JournalHead& head);
  [[nodiscard]] Outcome<> WriteBeside(const UnsavedText& unsaved, const std::string& path) const;
  [[nodiscard]] bool IsFree(const std::string& path) const;
  [[nodiscard]] std::optional<std::string> FreeNameBeside(const JournalHead& head) const;
  [[nodiscard]] const LeftText* Find(const std::string& journal) const;

  Documents& documents_;
  FileCommands& files_;
  ColouredInsertion& insertion_;
  JournalKeeper& keeper_;
  Notices& notices_;
  Journals& store_;
  std::vector<LeftText> texts_;
  Connection left_;
};

}  // namespace tarvik
