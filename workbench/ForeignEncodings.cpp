#include "workbench/ForeignEncodings.h"

namespace tarvik {

ForeignEncodings::ForeignEncodings(Documents& documents, FileCommands& files, ColouredInsertion& insertion,
                                   Notices& notices)
    : documents_(documents),
      files_(files),
      insertion_(insertion),
      notices_(notices),
      connections_{
          files.WasRead.Connect([this](Document& document) { LookAt(document); }),
          files.Leaves.Connect(
              [this](const Document& document) { notices_.Remove(Matter::OtherEncoding, &document); }),
          documents.joystick.text.Edited.Connect([this](const PaneEdit&) { WasEdited(documents_.joystick); }),
          documents.macro.text.Edited.Connect([this](const PaneEdit&) { WasEdited(documents_.macro); }),
          files.Written.Connect(
              [this](Document& document, const Outcome<>& outcome) { Written(document, outcome); }),
      } {}

void ForeignEncodings::LookAt(Document& document) {
  if (!document.IsForeign()) return notices_.Remove(Matter::OtherEncoding, &document);
  if (notices_.Has(Matter::OtherEncoding, &document)) return;
  Tell(document, document.Path.Get() + " is in " + std::string(document.origin.EncodingName()) +
                     ", and shown byte by byte. It is not saved until you have chosen.");
}

/// Undo takes a conversion back, and a text that is brought back may be converted.
void ForeignEncodings::WasEdited(Document& document) {
  if (document.origin.HasOtherEncoding()) LookAt(document);
}

/// Whoever saves the text elsewhere has chosen.
void ForeignEncodings::Written(Document& document, const Outcome<>& outcome) {
  LookAt(document);
  if (outcome || !document.IsForeign()) return;
  Tell(document, document.Path.Get() + " was not saved, because it is in " +
                     std::string(document.origin.EncodingName()) + ". Choose, and then save it once more.");
}

void ForeignEncodings::Tell(Document& document, const std::string& text) {
  notices_.Show(Matter::OtherEncoding, &document,
                {text,
                 {{"Convert", [this, &document] { Convert(document); }},
                  {"Keep as it is", [this, &document] { KeepAsItIs(document); }},
                  {"Save elsewhere ...", [this, &document] { files_.SaveAs(document); }}}});
}

void ForeignEncodings::Convert(Document& document) {
  if (document.text.Locked) return documents_.SayIsProtected(document);
  const Converted converted = document.origin.InCodePage(document.text.Characters());
  documents_.Select(document);
  insertion_.BeginColInsert();
  document.text.SetContent(RichText(converted.text));
  document.Caret = 0;
  insertion_.EndColInsert();
  files_.ColourWhatWasRead(document, FileCommands::Read::Plain);
  documents_.Say(document.Path.Get() + " is converted, and not saved yet");
  if (converted.lost > 0) document.text.CharactersLost(converted.lost);
}

/// A text that a refused save has not written counts as modified again.
void ForeignEncodings::KeepAsItIs(Document& document) {
  const bool differs = !document.origin.MayBeWritten(document.text.Characters());
  document.origin.Accept();
  LookAt(document);
  if (!differs) return;
  document.Dirty = saved::kModified;
  documents_.UpdateSavedIcon();
}

}  // namespace tarvik
