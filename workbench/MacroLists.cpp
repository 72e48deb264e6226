#include "workbench/MacroLists.h"

#include <algorithm>

#include "text/CodePage.h"

namespace tarvik {
namespace {

constexpr const char* kAll = "All";

constexpr const char* kNothingToAnalyseTitle = "You're kidding me...right?!";
constexpr const char* kNothingToAnalyse =
    "Oh come off it ... what's there to analyse? You think I'm some kind of slave that you can just push "
    "around ... well no .... computers have feelings you know ... you keep turning me on, and then turning "
    "me off ... how would you like it? !!! Next time I'm going to analyse you instead of these damn files "
    "...";

struct Starter {
  std::string_view text;
  int options;
};

// The statements that end the definition of a button before them.
constexpr Starter kDefinitionStarters[] = {
    {"BTN", find::kWholeWord},
    {"RNG", find::kWholeWord | find::kMatchCase},
    {"ANT", find::kWholeWord},
    {"MDEF", find::kWholeWord},
    {"JSX", find::kWholeWord},
    {"JSY", find::kWholeWord},
    {"PORTB", 0},
    {"USE", find::kWholeWord},
    {"RATE", find::kWholeWord},
    {"SWAPTG", find::kWholeWord},
    {"THR", find::kWholeWord},
    {"RDDR", find::kWholeWord},
};

}  // namespace

void MacroLists::ClearAllForNewMacroFile() {
  headings_.clear();
  panel.ClearAllForNewMacroFile();
  panel.List1(0).Visible = true;
  documents_.values.SelectedCategoryList = 0;
  documents_.values.MacroListChanged = 1;
  Renewed();
}

void MacroLists::Reset() {
  const int changed = documents_.values.MacroListChanged;
  ClearAllForNewMacroFile();
  documents_.values.MacroListChanged = changed;
  records_.clear();
}

void MacroLists::GetEachLineFromMacroFile() {
  const Trap trap{documents_.errors, "ED_GetEachLineFromMacroFile"};
  const std::string path = documents_.macro.Path;
  if (!documents_.platform.files.FileExists(path)) return;
  documents_.Say("Opening " + documents_.macro.Name.Get().Text() + " file for analysis ");
  records_.clear();
  if (const auto content = trap(documents_.platform.files.Read(path))) records_ = ReadMacroRecords(*content);
}

void MacroLists::ExtractMacrosAndTitles() {
  documents_.Say("Analysing " + documents_.macro.Name.Get().Text() +
                 " for macros and sub-headings. Please wait ...");
  Fill(AnalyseMacros(records_));
  documents_.Say("Done");
  ShowAll();
  documents_.status.Panels(panel::kMacroFile).ToolTipText = "Contains " + TextOf(panel.List1(0).ListCount()) +
                                                            " macros and " + TextOf(headings_.size() - 1) +
                                                            " macro headings";
}

void MacroLists::Fill(MacroAnalysis analysis) {
  headings_ = {kAll};
  panel.List1(0).Fill(std::move(analysis.macros));
  for (MacroCategory& category : analysis.categories) {
    headings_.push_back(std::move(category.heading));
    ListBox& list = panel.List1.Load(panel.List1.Count());
    list.Fill(std::move(category.macros));
  }
  panel.Combo1.Fill(headings_);
  Renewed();
}

/// Selects "All". A list may bear that name too: each entry of the name is selected in turn.
void MacroLists::ShowAll() {
  for (int item = 0; item < panel.Combo1.ListCount(); ++item) {
    if (panel.Combo1.List()[static_cast<std::size_t>(item)] != kAll) continue;
    documents_.values.SelectedCategoryList = item;
    panel.Combo1.Select(item);
    panel.List1(item).ToFront();
  }
}

void MacroLists::ShowMacroKeys() {
  const std::string& name = documents_.values.SelectedMacro;
  const auto record = std::find_if(records_.begin(), records_.end(), [&name](const std::string& line) {
    return line.find(name) != std::string::npos && line.find('=') != std::string::npos;
  });
  if (record == records_.end()) return;
  documents_.Say(*record);
  if (!documents_.macro.text.Visible) return;
  documents_.macro.text.Find(*record, 0, documents_.macro.text.Characters().size());
  documents_.macro.SelLength = documents_.macro.text.SelLength;
}

void MacroLists::ShowInMacroFile() {
  documents_.Select(documents_.macro);
  documents_.macro.text.SetFocus();
  ShowMacroKeys();
}

void MacroLists::ShowCategory(const MacroListPanel& shown) {
  const std::string wanted = LowerCase(shown.Combo1.Text());
  const int count = std::min(shown.List1.Count(), static_cast<int>(headings_.size()));
  for (int i = 0; i < count; ++i) {
    ListBox& list = shown.List1(i);
    const bool isWanted = LowerCase(headings_[static_cast<std::size_t>(i)]) == wanted;
    list.Visible = isWanted;
    if (!isWanted) continue;
    documents_.values.SelectedCategoryList = i;
    list.ToFront();
  }
  if (documents_.values.SelectedCategoryList >= shown.List1.Count()) return;
  ListBox& front = shown.List1(documents_.values.SelectedCategoryList);
  if (front.ListCount() == 0) return;
  front.ListIndex = 0;
  TakeFrom(front);
  ShowMacroKeys();
}

void MacroLists::TakeUnder(const ListBox& list, const Mouse& mouse) {
  if (list.ListCount() == 0 || mouse.button == 0) return;
  TakeFrom(list);
  ShowMacroKeys();
  if (mouse.button == button::kLeft && mouse.shift == shift::kShift) FindMacroInJF();
}

void MacroLists::IdentifyMacrosUsed() {
  const std::string_view text = documents_.joystick.text.Characters();
  if (text.find('e') == std::string_view::npos || documents_.macro.text.Characters().empty()) {
    documents_.platform.dialogs.Show(
        {kNothingToAnalyseTitle, kNothingToAnalyse, BoxIcon::Exclamation, BoxButtons::Ok});
    return;
  }
  documents_.Say("Analysing the macros you've already assigned in the " +
                 documents_.joystick.Name.Get().Text() + ". Please wait ...");
  documents_.Busy = true;
  TickNamesUsed(text);
  ShowAll();
  documents_.values.MacroListChanged = 1;
  documents_.Say("Finished analysing the macros assigned in your joystick file...phew!...fancy a beer?");
  documents_.Busy = false;
}

/// The names of all lists are looked up at once: the text is read through once for all of them.
void MacroLists::TickNamesUsed(std::string_view text) {
  std::vector<std::string> names;
  for (int i = 0; i < panel.List1.Count(); ++i) {
    names.insert(names.end(), panel.List1(i).List().begin(), panel.List1(i).List().end());
  }
  const std::vector<bool> used = NamesUsed(text, names);
  auto first = used.begin();
  for (int i = 0; i < panel.List1.Count(); ++i) {
    const auto last = first + panel.List1(i).ListCount();
    panel.List1(i).Tick(std::vector<bool>(first, last));
    first = last;
  }
}

void MacroLists::ClearMacroTicks() {
  for (int i = 0; i < panel.List1.Count(); ++i) panel.List1(i).Tick({});
}

void MacroLists::FindMacroInJF() {
  Document& document = documents_.joystick;
  documents_.Select(document);
  document.text.Find(documents_.values.SelectedMacro.Get(), 0, document.text.Characters().size(),
                     find::kWholeWord);
  document.SelLength = document.text.SelLength;
  document.Caret = document.text.SelStart;
}

void MacroLists::ExtractButtonDefinition(const std::string& name) {
  Document& document = documents_.joystick;
  Pane& pane = document.text;
  const std::size_t length = pane.Characters().size();
  if (length == 0) return;
  documents_.Select(document);
  const std::size_t keptCaret = document.Caret;
  document.Caret = 0;
  const auto hit = pane.Find(name, 0, length, find::kWholeWord);
  if (!hit) {
    pane.SelStart = keptCaret;
    document.Caret = keptCaret;
    documents_.FocusActiveText();
    return;
  }
  const std::size_t body = *hit + name.size();
  std::size_t end = length;
  for (const Starter& starter : kDefinitionStarters) {
    const auto next = pane.Find(starter.text, body, length, starter.options | find::kKeepSelection);
    // The first character of the next statement is taken in as well.
    if (next) end = std::min(end, *next + 1);
  }
  // Four characters before the name belong to it when it is a port.
  const std::size_t start = name.starts_with("PortB") ? *hit - std::min<std::size_t>(*hit, 4) : *hit;
  pane.Select({start, end - *hit});
  document.SelLength = pane.SelLength;
  documents_.FocusActiveText();
}

void MacroLists::Insert(const ListBox& list) {
  if (list.ListIndex < 0) return;  // no macro is in hand
  Document& document = documents_.joystick;
  Pane& pane = document.text;
  if (!pane.Visible) documents_.Select(document);
  TakeFrom(list);
  const std::string& name = documents_.values.SelectedMacro;
  const std::size_t caret = std::min<std::size_t>(document.Caret, pane.Characters().size());
  const bool joinsText = caret != 0 && pane.Characters()[caret - 1] != ' ';
  document.Undo.BeginCommand(documents_.settings.UndoMax);
  pane.SelStart = caret;
  pane.SelColor = kBlack;
  pane.SelText = (joinsText ? " " : "") + name + " ";
  // Where a blank was put before the name the caret is thus one short of the name's end.
  document.Caret = caret + name.size() + 1;
  pane.SelStart = document.Caret;
  pane.SetFocus();
}

}  // namespace tarvik
