#include "workbench/ForeignChanges.h"

#include <algorithm>
#include <utility>

#include "text/Rtf.h"

namespace tarvik {

ForeignChanges::ForeignChanges(Documents& documents, FileCommands& files, ColouredInsertion& insertion,
                               Notices& notices)
    : documents_(documents),
      files_(files),
      insertion_(insertion),
      notices_(notices),
      connections_{
          files.Leaves.Connect([this](const Document& document) {
            for (const Matter matter : {Matter::FileChanged, Matter::VersionKept, Matter::NoVersion})
              notices_.Remove(matter, &document);
          }),
          files.Written.Connect([this](const Document& document, const Outcome<>& outcome) {
            if (outcome) notices_.Remove(Matter::FileChanged, &document);
          }),
          files.VersionsKept.Connect([this](const Document& document, const Outcome<>& outcome) {
            TellOfVersions(document, outcome);
          }),
          files.KeptOthers.Connect(
              [this](Document& document, const std::string& kept) { TellOfKept(document, kept); }),
      } {}

void ForeignChanges::Look() {
  for (Document* const document : {&documents_.joystick, &documents_.macro}) HasChanged(*document);
}

bool ForeignChanges::HasChanged(Document& document) {
  const OnDisk now = document.seen.Look(documents_.platform.files, document.Path.Get());
  if (now == OnDisk::Changed) TellOfChange(document);
  if (now == OnDisk::Gone) TellOfLoss(document);
  if (now == OnDisk::AsSeen) notices_.Remove(Matter::FileChanged, &document);
  return now == OnDisk::Changed;
}

void ForeignChanges::TellOfChange(Document& document) {
  notices_.Show(Matter::FileChanged, &document,
                {"Another program has changed " + document.Path.Get() +
                     ". It is not saved by itself until you have chosen.",
                 {{"Compare ...", [this, &document] { Compare(document, document.Path); }},
                  {"Reload", [this, &document] { Reload(document); }},
                  {"Keep mine", [this, &document] { KeepMine(document); }}}});
}

void ForeignChanges::TellOfLoss(Document& document) {
  notices_.Show(Matter::FileChanged, &document,
                {document.Path.Get() + " is no longer there. Its text is here all the same.",
                 {{"Save again", [this, &document] { files_.Save(document); }},
                  {"Save elsewhere ...", [this, &document] { files_.SaveAs(document); }},
                  {"Keep mine", [this, &document] { KeepMine(document); }}}});
}

void ForeignChanges::TellOfKept(Document& document, const std::string& kept) {
  notices_.Show(
      Matter::VersionKept, &document,
      {"What another program wrote to " + document.Path.Get() + " is among its earlier versions now.",
       {{"Compare ...", [this, &document, kept] { Compare(document, kept); }},
        {"Close", [this, &document] { notices_.Remove(Matter::VersionKept, &document); }}}});
}

/// The file itself is saved.
void ForeignChanges::TellOfVersions(const Document& document, const Outcome<>& outcome) {
  if (outcome) return notices_.Remove(Matter::NoVersion, &document);
  notices_.Show(
      Matter::NoVersion, &document,
      {"No earlier version of " + document.Path.Get() + " can be kept: " + outcome.failure().text + ".",
       {{"Close", [this, &document] { notices_.Remove(Matter::NoVersion, &document); }}}});
}

void ForeignChanges::Compare(const Document& document, const std::string& path) {
  const Trap trap{documents_.errors, "ForeignChanges Compare"};
  const auto bytes = trap(documents_.platform.files.Read(path));
  if (!bytes) return documents_.Say(path + " can't be opened");
  WantsComparison({path, ShownOfFile(*bytes).text, std::string(document.text.Characters())});
}

/// A document that was modified stays so: undo can bring back what is saved nowhere, and changes no state.
void ForeignChanges::Reload(Document& document) {
  if (document.text.Locked) return documents_.SayIsProtected(document);
  const Trap trap{documents_.errors, "ForeignChanges Reload"};
  const std::size_t caret = document.Caret;
  const bool wasModified = document.Dirty == saved::kModified;
  documents_.Select(document);
  const Origin before = document.origin;
  std::string textBefore(document.text.Characters());
  insertion_.BeginColInsert();
  const FileCommands::Read read = files_.ReadInto(document, trap);
  document.Caret = std::min(caret, document.text.Characters().size());
  document.text.SelStart = document.Caret;
  insertion_.EndColInsert();
  if (read == FileCommands::Read::Nothing) return documents_.Say(document.Path.Get() + " can't be opened");
  document.origin.Follow(before, std::move(textBefore), std::string(document.text.Characters()));
  notices_.Remove(Matter::FileChanged, &document);
  files_.ColourWhatWasRead(document, read);
  if (wasModified) return;
  document.Dirty = saved::kSaved;
  documents_.UpdateSavedIcon();
  files_.Written(document, Done{});
}

void ForeignChanges::KeepMine(Document& document) {
  const Trap trap{documents_.errors, "ForeignChanges KeepMine"};
  Files& files = documents_.platform.files;
  if (!trap(files_.KeepOthersVersion(document)))
    return documents_.Say(document.Path.Get() + " can't be kept");
  Ignore(document.seen.See(files, document.Path.Get()));
  notices_.Remove(Matter::FileChanged, &document);
  document.Dirty = saved::kModified;
  documents_.UpdateSavedIcon();
}

}  // namespace tarvik
