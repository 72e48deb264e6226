#include "workbench/Recovery.h"

#include <algorithm>

#include "text/CodePage.h"
#include "text/Rtf.h"

namespace tarvik {
namespace {

constexpr std::size_t kMostKept = 30;

std::string LinesDiffer(std::size_t lines) {
  if (lines == 0) return "as in the file";
  return lines == 1 ? "1 line differs" : TextOf(lines) + " lines differ";
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

/// A journal in which nothing is whole has nothing to give; it is not touched either.
void Recovery::Look() {
  texts_.clear();
  const std::vector<std::string> names = store_.Left();
  for (auto name = names.rbegin(); name != names.rend(); ++name) {
    if (texts_.size() == kMostKept) {
      store_.Remove(*name);
      continue;
    }
    const auto bytes = store_.Read(*name);
    auto unsaved = bytes ? ReadJournal(*bytes) : std::nullopt;
    if (unsaved) texts_.push_back({*name, *std::move(unsaved)});
  }
  Tell();
  Changed();
}

void Recovery::Tell() {
  if (texts_.empty()) return notices_.Remove(Matter::TextsLeft, nullptr);
  const NoticeAction compare{"Compare ...", [this] { WantsPage(); }};
  if (texts_.size() > 1) {
    return notices_.Show(Matter::TextsLeft, nullptr,
                         {TextOf(texts_.size()) + " texts were not saved when Tarvik ended.", {compare}});
  }
  const std::string journal = texts_.front().journal;
  notices_.Show(Matter::TextsLeft, nullptr,
                {"Not saved when Tarvik ended: " + Describe(texts_.front()),
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
  return IsRich(left.unsaved) ? ReadRtf(*bytes) : RichText(WithPaneLineBreaks(*bytes));
}

std::string Recovery::Describe(const LeftText& left) const {
  const UnsavedText& unsaved = left.unsaved;
  const bool isThere =
      unsaved.head.kind != TextKind::Logic && documents_.platform.files.FileExists(unsaved.head.path);
  const std::string differ =
      isThere ? LinesDiffer(LinesOf(DifferencesOf(InFile(left).text, unsaved.text.text))) : "in no file";
  const std::string part = unsaved.isWhole ? "" : ", the last of it damaged";
  return unsaved.head.name + ", " + unsaved.written + ", " + differ + part;
}

bool Recovery::Open(Document& document, const JournalHead& head) {
  const std::string path = LowerCase(head.path);
  const bool isOpen = document.Path.Get() == path && document.Dirty != saved::kModified;
  if (isOpen) return true;
  if (!documents_.platform.files.FileExists(path)) return files_.New(document);
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

/// The old journal goes only when a new one holds the text.
void Recovery::BringBack(const std::string& journal) {
  const LeftText* const left = Find(journal);
  if (!left) return;
  const UnsavedText unsaved = left->unsaved;
  bool isBack = false;
  if (unsaved.head.kind == TextKind::Joystick) isBack = BringBackInto(documents_.joystick, unsaved);
  if (unsaved.head.kind == TextKind::Macro) isBack = BringBackInto(documents_.macro, unsaved);
  Returns(unsaved, isBack);
  if (!isBack || !keeper_.Write()) return;
  documents_.Say(unsaved.head.name + " is back, and not saved yet");
  ThrowAway(journal);
}

std::string Recovery::FreeNameBeside(const std::string& path) const {
  const std::size_t dot = std::max(path.rfind('.'), path.rfind('\\') + 1);
  const std::string stem = path.substr(0, dot) + "-recovered";
  const std::string ending = dot < path.size() ? path.substr(dot) : "";
  const auto numbered = [&](int number) { return stem + "-" + TextOf(number) + ending; };
  std::string name = stem + ending;
  for (int i = 2; documents_.platform.files.FileExists(name); ++i) name = numbered(i);
  return name;
}

void Recovery::KeepBoth(const std::string& journal) {
  const LeftText* const left = Find(journal);
  if (!left) return;
  const Trap trap{documents_.errors, "Recovery KeepBoth"};
  const std::string path = FreeNameBeside(left->unsaved.head.path);
  const Scratch scratch(documents_.scratch);
  scratch->SetContent(left->unsaved.text);
  if (!trap(scratch->SaveFile(path, IsRich(left->unsaved) ? FileFormat::Rtf : FileFormat::Text))) {
    return documents_.Say(path + " can't be written");
  }
  documents_.Say("The text is in " + path);
  ThrowAway(journal);
}

void Recovery::ThrowAway(const std::string& journal) {
  store_.Remove(journal);
  Look();
}

}  // namespace tarvik
