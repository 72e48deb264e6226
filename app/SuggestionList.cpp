#include "app/SuggestionList.h"

#include <algorithm>

#include "text/Words.h"

namespace tarvik {
namespace {

constexpr std::size_t kEnoughLetters = 2;
constexpr int kPage = 8;  // rows

std::string InWords(const model::Candidate& candidate) {
  return candidate.note.empty() ? candidate.text : candidate.text + "   " + candidate.note;
}

}  // namespace

SuggestionList::SuggestionList(Form& form, Workbench& bench)
    : list(form, "SuggestionList"),
      pause(form, "TimerSuggestions", 80, [this] { OpenByItself(); }),
      bench_(bench) {
  list.Visible = false;
  list.MouseDown = [this](const Mouse&) { Take(); };
  connections_ = {
      bench.documents.tabs.SelectedItem.Changed.Connect([this] { Close(); }),
      form.ActiveControlChanged.Connect([this, &form] {
        if (form.ActiveControl() != &bench_.documents.Active().text) Close();
      }),
  };
  for (Pane* const pane : {&bench.documents.joystickText, &bench.documents.macroText}) {
    connections_.push_back(pane->SelectionChanged.Connect([this] { Narrow(); }));
  }
}

std::vector<model::Candidate> SuggestionList::Find() const {
  const Document& document = bench_.documents.Active();
  const Range selection = document.text.Selection();
  if (document.text.Locked || selection.length > 0) return {};
  const model::FilePair pair = bench_.models.Pair();
  return model::CandidatesAt(pair, bench_.models.Names(), model::Abilities(pair.hardware),
                             FileKindOf(document), selection.start);
}

void SuggestionList::Open() {
  const Document& document = bench_.documents.Active();
  if (document.text.Locked) return bench_.documents.SayIsProtected(document);
  std::vector<model::Candidate> candidates = Find();
  if (candidates.empty()) return bench_.documents.Say("Nothing is known that fits here.");
  Show(std::move(candidates), 0);
}

/// A word that is whole needs no list.
bool SuggestionList::HasMore(const std::vector<model::Candidate>& candidates) const {
  if (candidates.size() != 1) return !candidates.empty();
  const auto& [kind, replaces, text, note] = candidates.front();
  return bench_.documents.Active().text.Characters().substr(replaces.start, replaces.length) != text;
}

void SuggestionList::OpenByItself() {
  std::vector<model::Candidate> candidates = Find();
  if (!HasMore(candidates) || candidates.front().replaces.length < kEnoughLetters) return;
  Show(std::move(candidates), -1);
}

void SuggestionList::Show(std::vector<model::Candidate> candidates, int inHand) {
  pause.Cancel();
  candidates_ = std::move(candidates);
  anchor_ = candidates_.front().replaces.start;
  std::vector<std::string> rows;
  rows.reserve(candidates_.size());
  for (const model::Candidate& candidate : candidates_) rows.push_back(InWords(candidate));
  list.FillInOrder(std::move(rows));
  list.ListIndex = inHand;
  list.Visible = true;
}

void SuggestionList::Close() {
  pause.Cancel();
  list.Visible = false;
}

void SuggestionList::Narrow() {
  if (!IsOpen()) return;
  std::vector<model::Candidate> candidates = Find();
  if (!HasMore(candidates) || candidates.front().replaces.start != anchor_) return Close();
  Show(std::move(candidates), std::min(list.ListIndex.Get(), 0));
}

void SuggestionList::TextChanged(Change change) {
  if (IsOpen()) return Narrow();
  if (change == Change::ByTyping && bench_.settings.SuggestAsYouType != 0) pause.Begin();
}

bool SuggestionList::TakesKey(const Key& key) {
  if (!IsOpen() || key.shift != 0) return false;
  switch (key.code) {
    case key::kUp:
      Go(-1);
      return true;
    case key::kDown:
      Go(1);
      return true;
    case key::kPageUp:
      Go(-kPage);
      return true;
    case key::kPageDown:
      Go(kPage);
      return true;
    case key::kEscape:
      Close();
      return true;
    case key::kEnter:
    case key::kKeypadEnter:
      if (list.ListIndex < 0) {
        Close();
        return false;
      }
      Take();
      return true;
    case key::kTab:
      Take();
      return true;
    default:
      return false;
  }
}

void SuggestionList::Go(int rows) {
  list.ListIndex = std::clamp(list.ListIndex + rows, 0, list.ListCount() - 1);
}

void SuggestionList::Take() {
  const auto index = static_cast<std::size_t>(std::max(0, list.ListIndex.Get()));
  if (!IsOpen() || index >= candidates_.size()) return;
  const model::Candidate candidate = candidates_[index];
  Close();
  Pane& pane = bench_.documents.Active().text;
  const Colour colour = ColourOf(candidate);
  bench_.insertion.BeginColInsert();
  pane.Select(Replaced(candidate));
  pane.SelText = std::string();
  bench_.insertion.InsertColouredString(candidate.text, colour);
  bench_.insertion.EndColInsert();
}

/// In the middle of a word the rest of it goes, too.
Range SuggestionList::Replaced(const model::Candidate& candidate) const {
  const Range& typed = candidate.replaces;
  if (typed.length == 0) return typed;
  const std::string_view text = bench_.documents.Active().text.Characters();
  return {typed.start, std::max(typed.End(), WordAt(text, typed.End()).End()) - typed.start};
}

Colour SuggestionList::ColourOf(const model::Candidate& candidate) const {
  if (bench_.settings.InsertWithColour == 0) return kBlack;
  const Document& document = bench_.documents.Active();
  const std::string_view text = document.text.Characters();
  const std::size_t before = text.substr(0, candidate.replaces.start).rfind('\n');
  const std::size_t start = before == text.npos ? 0 : before + 1;
  const std::string line =
      std::string(text.substr(start, candidate.replaces.start - start)) + candidate.text + " ";
  SyntaxColouring colouring(line, PassesOf(document));
  colouring.Run();
  return colouring.Colours(ColoursOf(bench_.settings)).At(candidate.replaces.start - start);
}

}  // namespace tarvik
