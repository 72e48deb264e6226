// Keeps one text on the disk while it is not saved: as a whole, and then each change. Who owns the text says
// when that begins and when it ends.
#pragma once

#include <functional>
#include <memory>

#include "controls/Controls.h"
#include "platform/Platform.h"
#include "workbench/Errors.h"
#include "workbench/JournalRecords.h"

namespace tarvik {

class Journal;

/// All the journals that are written now. What was noted is on the disk half a second later.
class JournalKeeper {
  Component owner_{"Journals"};  // the timer is made in it, and the frame adopts it

 public:
  JournalKeeper(const Platform& platform, Errors& errors);

  Timer timer{owner_, "TimerJournal"};

  /// Writes what was noted so far, without waiting for the timer. False where not all of it could be.
  bool Write();
  /// The same, and has the disk take it at once.
  bool WriteAndFlush();

  /// A journal was left behind: its text is neither saved nor given up.
  Signal<> TextLeft;
  /// No disk takes what is typed; and takes it again.
  Signal<const Failure&> KeepsNothing;
  Signal<> KeepsAgain;

 private:
  friend class Journal;

  Journals& store_;
  Calendar& calendar_;
  DriveFolders& drives_;
  Errors& errors_;
  std::vector<Journal*> journals_;
  std::optional<Failure> failure_;  // of the last writing
};

class Journal {
 public:
  using Head = std::function<JournalHead()>;
  using Whole = std::function<RichText()>;

  /// What the text is, and the text itself, are asked for whenever the journal is written anew. The path of
  /// its file on the host comes from its path.
  Journal(JournalKeeper& keeper, Head head, Whole whole);
  Journal(const Journal&) = delete;
  Journal& operator=(const Journal&) = delete;
  /// What is not removed by then is left behind.
  ~Journal();

  /// From now on the text holds what is saved nowhere else.
  void Begin();
  /// The text has changed so; before Begin that is of no interest.
  void Note(const PaneEdit& edit);
  /// The same where the text, or what it is, has changed as a whole.
  void NoteWhole();
  /// The text is saved, or the user gives it up.
  void Remove();
  /// The text goes, unsaved, and the user was not asked: the journal stays for him.
  void Leave();

 private:
  friend class JournalKeeper;

  void Awaken();
  /// What is noted does not make the text any more, or never did.
  void NeedWhole();
  Outcome<> Write();
  [[nodiscard]] bool Flush() const { return !file_ || file_->Flush(); }
  Outcome<> Append();
  Outcome<> WriteWhole();
  void RemoveFormer();
  [[nodiscard]] std::string Time() const;

  JournalKeeper& keeper_;
  Head head_;
  Whole whole_;
  std::unique_ptr<JournalFile> file_;
  std::unique_ptr<JournalFile> former_;  // it stays until the disk has the journal that took its place
  std::string noted_;
  bool begun_ = false;
  bool needsWhole_ = false;
  std::size_t room_ = 0;  // bytes that may be appended before the journal is folded
};

}  // namespace tarvik
