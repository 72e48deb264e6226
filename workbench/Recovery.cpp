#include "workbench/Recovery.h"

#include <algorithm>
#include <iterator>
#include <new>

#include "text/CodePage.h"
#include "text/Rtf.h"

namespace tarvik {
namespace {

constexpr std::size_t kMostKept = 30;

std::string LinesDiffer(std::size_t lines) {
  if (lines == 0) return "as in the file";
  return lines == 1 ? "1 line differs" : TextOf(lines) + " lines differ";
}

bool IsUntitled(const JournalHead& head) { return head.name.starts_with("untitled"); }

/// Files of one name in two folders are told apart.
const std::string& ShownName(const JournalHead& head) {
  return IsUntitled(head) || head.kind == TextKind::Logic ? head.name : head.path;
}

bool IsRich(const UnsavedText& unsaved) {
  return unsaved.head.kind == TextKind::Template && LowerCase(unsaved.head.path).ends_with("rtf");
}

}  // namespace

Recovery::Recovery(Documents& documents, FileCommands& files, ColouredInsertion& insertion,
                   JournalKeeper& keeper, Notices& notices)
    : documents_(documents),
      files_(files),
      insertion_(insertion),
      keeper_(keeper),
      notices_(notices),
      store_(documents.platform.journals),
      left_(keeper.TextLeft.Connect([this] { Look(); })) {}

/// A journal in which nothing is whole has nothing to give. One whose text is what its file holds has nothing
/// to add, and goes.
void Recovery::Look() {
  texts_.clear();
  std::vector<std::string> names = store_.Left();
  std::ranges::reverse(names);
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i >= kMostKept) {
      store_.Remove(names[i]);
    } else if (auto unsaved = Read(names[i])) {
      texts_.push_back({names[i], *std::move(unsaved)});
      if (!IsInItsFile(texts_.back()) && !IsThereTwice()) continue;
      texts_.pop_back();
      store_.Remove(names[i]);
    }
  }
  Tell();
  Changed();
}

/// The text belongs to the file of the host that it was written for, whatever path that has now.
std::optional<UnsavedText> Recovery::Read(const std::string& journal) const {
  try {
    const auto bytes = store_.Read(journal);
    auto unsaved = bytes ? ReadJournal(*bytes) : std::nullopt;
    if (unsaved && !unsaved->head.host.empty())
      unsaved->head.path = documents_.platform.drives.FromHost(unsaved->head.host);
    return unsaved;
  } catch (const std::bad_alloc&) {
    return {};
  }
}

bool Recovery::IsInItsFile(const LeftText& left) const {
  if (!documents_.platform.files.FileExists(left.unsaved.head.path)) return false;
  const RichText now = InFile(left);
  return IsRich(left.unsaved) ? now == left.unsaved.text : now.text == left.unsaved.text.text;
}

/// A journal and the one that took its place may both be left, with the same text.
bool Recovery::IsThereTwice() const {
  const UnsavedText& last = texts_.back().unsaved;
  return std::any_of(texts_.begin(), std::prev(texts_.end()), [&last](const LeftText& left) {
    const UnsavedText& other = left.unsaved;
    return other.head.kind == last.head.kind && other.head.path == last.head.path && other.text == last.text;
  });
}

void Recovery::Tell() {
  if (texts_.empty()) return notices_.Remove(Matter::TextsLeft, nullptr);
  const NoticeAction compare{"Compare ...", [this] { WantsPage(); }};
  if (texts_.size() > 1) {
    return notices_.Show(Matter::TextsLeft, nullptr,
                         {TextOf(texts_.size()) + " texts were not saved.", {compare}});
  }
  const std::string journal = texts_.front().journal;
  notices_.Show(Matter::TextsLeft, nullptr,
                {"Not saved: " + Describe(texts_.front()),
                 {compare,
                  {"Bring back", [this, journal] { BringBack(journal); }},
                  {"Keep both", [this, journal] { KeepBoth(journal); }},
                  {"Throw away", [this, journal] { ThrowAway(journal); }}}});
}

const LeftText* Recovery::Find(const std::string& journal) const {
  const auto found =
      std::ranges::find_if(texts_, [&](const LeftText& left) { return left.journal == journal; });
  return found == texts_.end() ? nullptr : &*found;
}

RichText Recovery::InFile(const LeftText& left) const {
  if (left.unsaved.head.kind == TextKind::Logic) return {};  // they were to go into that file
  const auto bytes = Ignore(documents_.platform.files.Read(left.unsaved.head.path));
  if (!bytes) return {};
  return ShownOfFile(*bytes);
}

std::string Recovery::Describe(const LeftText& left) const {
  const UnsavedText& unsaved = left.unsaved;
  const bool isThere =
      unsaved.head.kind != TextKind::Logic && documents_.platform.files.FileExists(unsaved.head.path);
  const std::string differ =
      isThere ? LinesDiffer(LinesOf(DifferencesOf(InFile(left).text, unsaved.text.text))) : "in no file";
  const std::string part = unsaved.isWhole ? "" : ", the last of it damaged";
  return ShownName(unsaved.head) + ", " + unsaved.written + ", " + differ + part;
}

/// Also where the file is open already: what is in its window may be saved nowhere either.
bool Recovery::Open(Document& document, const JournalHead& head) {
  const std::string path = LowerCase(head.path);
  if (!documents_.platform.files.FileExists(path)) {
    if (!files_.New(document)) return false;
    if (!IsUntitled(head)) files_.NameAfter(document, path);
    return true;
  }
  files_.OpenWithoutDialog(path);
  files_.Load(document);
  files_.OpenWithDialogs();
  return document.Path.Get() == path && document.Dirty != saved::kModified;
}

bool Recovery::BringBackInto(Document& document, const UnsavedText& unsaved) {
  if (!Open(document, unsaved.head)) return false;
  documents_.Select(document);
  insertion_.BeginColInsert();
  document.text.SetContent(unsaved.text);
  document.Caret = 0;
  insertion_.EndColInsert();
  return true;
}

/// The old journal goes only when a new one is on the disk and holds the text.
void Recovery::BringBack(const std::string& journal) {
  const LeftText* const left = Find(journal);
  if (!left) return;
  const UnsavedText unsaved = left->unsaved;
  bool isBack = false;
  if (unsaved.head.kind == TextKind::Joystick) isBack = BringBackInto(documents_.joystick, unsaved);
  if (unsaved.head.kind == TextKind::Macro) isBack = BringBackInto(documents_.macro, unsaved);
  Returns(unsaved, isBack);
  if (!isBack || !keeper_.WriteAndFlush()) return;
  documents_.Say(ShownName(unsaved.head) + " is back, and not saved yet");
  ThrowAway(journal);
}

/// A name of which nobody knows whether it is taken is not free.
bool Recovery::IsFree(const std::string& path) const {
  const auto state = documents_.platform.files.State(path);
  return !state && state.failure().number == error::kFileNotFound;
}

/// An untitled text goes where the user's files are.
std::optional<std::string> Recovery::FreeNameBeside(const JournalHead& head) const {
  constexpr int kMostTries = 1000;
  const std::string& own = documents_.settings.ProgramFilesPath;
  const std::string folder = !IsUntitled(head) ? head.path.substr(0, head.path.rfind('\\') + 1)
                             : own.empty()     ? documents_.platform.folder + "\\"
                                               : own + "\\";
  const std::string name = IsUntitled(head) ? head.name : head.path.substr(head.path.rfind('\\') + 1);
  const std::size_t dot = std::min(name.rfind('.'), name.size());
  const auto numbered = [&](const std::string& number) {
    return folder + name.substr(0, dot) + "-recovered" + number + name.substr(dot);
  };
  std::string free = numbered({});
  for (int i = 2; i < kMostTries && !IsFree(free); ++i) free = numbered("-" + TextOf(i));
  return IsFree(free) ? std::optional(free) : std::nullopt;
}

/// As it would be written into its own file, and open to nobody whom that is not open to.
Outcome<> Recovery::WriteBeside(const UnsavedText& unsaved, const std::string& path) const {
  Files& files = documents_.platform.files;
  if (IsRich(unsaved)) {
    const Scratch scratch(documents_.scratch);
    scratch->SetContent(unsaved.text);
    return scratch->SaveCopy(path, FileFormat::Rtf, unsaved.head.path);
  }
  const auto own = Ignore(files.Read(unsaved.head.path));
  const std::string bytes = (own ? Origin(*own) : Origin()).BytesFor(unsaved.text.text);
  return WriteAndReadCopy(files, path, bytes, unsaved.head.path);
}

void Recovery::KeepBoth(const std::string& journal) {
  const LeftText* const left = Find(journal);
  if (!left) return;
  const Trap trap{documents_.errors, "Recovery KeepBoth"};
  const auto path = FreeNameBeside(left->unsaved.head);
  if (!path) return documents_.Say("The text can't be written beside its file");
  if (!trap(WriteBeside(left->unsaved, *path))) {
    return documents_.Say(*path + " can't be written");
  }
  documents_.Say("The text is in " + *path);
  ThrowAway(journal);
}

void Recovery::ThrowAway(const std::string& journal) {
  store_.Remove(journal);
  Look();
}

}  // namespace tarvik
