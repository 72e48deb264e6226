// Everything that edits the two files, and what it keeps: one for the program, as long as the program. It has
// no window. Tools are handed it, and may hold on to it.
#pragma once

#include "workbench/AutoSave.h"
#include "workbench/ChangedLines.h"
#include "workbench/Definitions.h"
#include "workbench/EditCommands.h"
#include "workbench/Flight.h"
#include "workbench/FollowStick.h"
#include "workbench/ForeignEncodings.h"
#include "workbench/IncrementalSearch.h"
#include "workbench/JumpHistory.h"
#include "workbench/LineBlink.h"
#include "workbench/LiveColours.h"
#include "workbench/LoggedDesktop.h"
#include "workbench/LoggedPrograms.h"
#include "workbench/Preflight.h"
#include "workbench/Problems.h"
#include "workbench/Recovery.h"
#include "workbench/Rewriting.h"
#include "workbench/UnsavedWork.h"

namespace tarvik {

class Workbench {
 public:
  explicit Workbench(const Platform& services);
  Workbench(const Workbench&) = delete;
  Workbench& operator=(const Workbench&) = delete;

  Log log;

 private:
  LoggedPrograms programs_;
  LoggedDesktop desktop_;

 public:
  Platform platform;  ///< with a log of the programs that are started, and of what the desktop opens
  Errors errors{log};
  SharedValues values;
  ProfileFile profile;
  Settings settings;
  PreviousFiles lists;

  Documents documents;
  ColouredCopies copies{documents};
  Highlighter highlighter{documents, copies};
  ColouredInsertion insertion{documents};
  MacroLists macros{documents};
  LineBlink blink{documents};
  EditCommands edit{documents, insertion};
  Versions versions{documents};
  FileCommands files{documents, copies, highlighter, macros, lists, versions};
  ChangedLines changedLines{documents, files};
  IncrementalSearch search{documents};
  JumpHistory jumps{documents};
  LiveColours liveColours{documents};
  FileModels models{documents};
  Problems problems{documents, models};
  Definitions definitions{documents, models};
  Rewriting rewriting{documents, models, insertion};
  StickFeed sticks{platform, settings, errors};
  FollowStick follow{documents, models, sticks};
  Notices notices;
  Flight flight{platform, models, sticks, notices};
  Preflight preflight{documents, problems, notices};
  ForeignChanges foreign{documents, files, insertion, notices};
  ForeignEncodings encodings{documents, files, insertion, notices};
  AutoSave autoSave{documents, files, foreign};
  JournalKeeper journals{platform, errors};
  UnsavedWork unsaved{journals, documents, files, notices};
  Recovery recovery{documents, files, insertion, journals, notices};

  /// The editor was closed: what was open is forgotten, and no timer runs.
  void Reset();
  /// Puts a new file in the place of the document, unless the user keeps that one.
  void NewFile(Document& document);
  /// Empties the history of both documents.
  void ForgetUndos();
  /// Announces the font, if the user has chosen another one meanwhile.
  void TakeChosenFont();

  /// Another program changed what is on the clipboard.
  Signal<> ClipboardChanged;
  // The user has changed settings that something on show follows.
  Signal<> ToolbarSettingsChanged;
  Signal<> AutoSaveSettingsChanged;
  Signal<> HardwareSettingsChanged;
  Signal<> FontSettingsChanged;
  /// A tool has put a line of keys together, for whoever makes macros of such lines.
  Signal<const std::string&> KeysOffered;
};

}  // namespace tarvik
