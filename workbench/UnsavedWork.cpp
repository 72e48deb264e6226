#include "workbench/UnsavedWork.h"

namespace tarvik {

UnsavedWork::Work::Work(JournalKeeper& keeper, Document& itsDocument)
    : document(itsDocument),
      journal(
          keeper,
          [&itsDocument] {
            return JournalHead{itsDocument.IsJoystick() ? TextKind::Joystick : TextKind::Macro,
                               itsDocument.Path, itsDocument.Name.Get().Text()};
          },
          [&itsDocument] { return itsDocument.text.Content(); }) {
  connections = {
      itsDocument.text.Edited.Connect([this](const PaneEdit& edit) { journal.Note(edit); }),
      itsDocument.Dirty.Changed.Connect([this] {
        if (document.Dirty == saved::kModified) journal.Begin();
      }),
  };
}

UnsavedWork::UnsavedWork(JournalKeeper& keeper, Documents& documents, FileCommands& files, Notices& notices)
    : keeper_(keeper),
      files_(files),
      notices_(notices),
      work_{{keeper, documents.joystick}, {keeper, documents.macro}},
      connections_{
          files.Leaves.Connect([this](const Document& document) { Leaves(document); }),
          files.Written.Connect(
              [this](Document& document, const Outcome<>& outcome) { Written(document, outcome); }),
          keeper.KeepsNothing.Connect([this](const Failure& failure) { KeepsNothing(failure); }),
          keeper.KeepsAgain.Connect([this] { notices_.Remove(Matter::NotKept, nullptr); }),
      } {}

/// Whoever is asked about a document that counts as modified, and lets it go, gives the text up. One that
/// counts as saved and is not went unasked.
void UnsavedWork::Leaves(const Document& document) {
  Journal& journal = work_.Of(document).journal;
  notices_.Remove(Matter::SaveFailed, &document);
  if (document.Dirty == saved::kModified) {
    journal.Remove();
  } else {
    journal.Leave();
  }
}

void UnsavedWork::Written(Document& document, const Outcome<>& outcome) {
  Journal& journal = work_.Of(document).journal;
  if (outcome) {
    journal.Remove();
    return notices_.Remove(Matter::SaveFailed, &document);
  }
  journal.Begin();
  journal.NoteWhole();  // it may go by another name now
  const char* const kept = keeper_.Write() ? ". What you have typed is kept all the same."
                                           : ". What you have typed is in this window and nowhere else.";
  notices_.Show(Matter::SaveFailed, &document,
                {document.Path.Get() + " could not be written: " + outcome.failure().text + kept,
                 {{"Try again", [this, &document] { files_.Save(document); }},
                  {"Save elsewhere ...", [this, &document] { files_.SaveAs(document); }}}});
}

void UnsavedWork::KeepsNothing(const Failure& failure) {
  notices_.Show(Matter::NotKept, nullptr,
                {"What you type is on no disk until you save it: " + failure.text + ".", {}});
}

void UnsavedWork::End() {
  for (const Work* const work : {&work_.joystick, &work_.macro}) Leaves(work->document);
}

}  // namespace tarvik
