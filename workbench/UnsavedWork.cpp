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
    : files_(files),
      notices_(notices),
      joystick_(keeper, documents.joystick),
      macro_(keeper, documents.macro),
      connections_{
          files.Leaves.Connect([this](const Document& document) { Leaves(document); }),
          files.Written.Connect(
              [this](Document& document, const Outcome<>& outcome) { Written(document, outcome); }),
      } {}

/// Of a document that counts as modified the user was asked; one whose save failed counts as saved.
void UnsavedWork::Leaves(const Document& document) {
  Work& work = Of(document);
  notices_.Remove(Matter::SaveFailed, &document);
  if (std::exchange(work.failed, false) && document.Dirty != saved::kModified) return work.journal.Leave();
  work.journal.Remove();
}

void UnsavedWork::Written(Document& document, const Outcome<>& outcome) {
  Work& work = Of(document);
  work.failed = !outcome;
  if (!work.failed) {
    work.journal.Remove();
    return notices_.Remove(Matter::SaveFailed, &document);
  }
  work.journal.Begin();
  work.journal.NoteWhole();  // it may go by another name now
  notices_.Show(Matter::SaveFailed, &document,
                {document.Path.Get() + " could not be written: " + outcome.failure().text +
                     ". What you have typed is kept all the same.",
                 {{"Try again", [this, &document] { files_.Save(document); }},
                  {"Save elsewhere ...", [this, &document] { files_.SaveAs(document); }}}});
}

void UnsavedWork::End() {
  for (const Work* const work : {&joystick_, &macro_}) Leaves(work->document);
}

}  // namespace tarvik
