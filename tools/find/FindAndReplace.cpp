#include "tools/find/FindAndReplace.h"

#include <algorithm>
#include <cmath>

#include "workbench/HelpTopics.h"

namespace tarvik {
namespace {

constexpr const char* kFirst = "Find first";
constexpr const char* kNext = "Find next";
enum FindTab { kFindTab, kReplaceTab, kGotoTab };

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

/// Where a line begins, counted from 1; nothing where the text has fewer.
std::optional<std::size_t> StartOfLine(std::string_view text, std::size_t line) {
  std::size_t start = 0;
  for (std::size_t at = 1; at < line; ++at) {
    const std::size_t end = text.find('\n', start);
    if (end == std::string_view::npos) return {};
    start = end + 1;
  }
  return start;
}

}  // namespace

struct FindAndReplace::Page {
  EntryBox& text;
  OptionButton& joystick;
  OptionButton& macro;
  CheckBox& matchCase;
  CheckBox& wholeWord;
  CommandButton& find;
  FindTab tab;
};

FindAndReplace::Page FindAndReplace::FindPage() {
  return {ComboTextFind, OptionJoystickF, OptionMacroF, MatchCaseF, WholeWordF, Command1, kFindTab};
}

FindAndReplace::Page FindAndReplace::ReplacePage() {
  return {ComboTextReplaceFind, OptionJoystickR, OptionMacroR, MatchCaseR, WholeWordR, Command3, kReplaceTab};
}

FindAndReplace::FindAndReplace(Workbench& bench, Shell& shell) : ToolForm("FindAndReplace", bench, shell) {
  Caption = "Find and Replace";
  Command1.Caption = kFirst;
  Command3.Caption = kFirst;
  OptionJoystickF.Value = true;
  OptionJoystickR.Value = true;
  AttachHandlers();
}

void FindAndReplace::AttachHandlers() {
  const auto together = [](CheckBox& box, std::initializer_list<CheckBox*> others) {
    box.Click = [&box, others = std::vector(others)] {
      for (CheckBox* const other : others) other->Value = box.Value;
    };
  };
  together(MatchCaseF, {&MatchCaseR});
  together(MatchCaseR, {&MatchCaseF});
  together(WholeWordF, {&WholeWordR});
  together(WholeWordR, {&WholeWordF});
  for (CheckBox* const box : {&Check6, &Check7, &Check8}) {
    box->Click = [this, box] {
      Topmost = box->Value == 1;
      for (CheckBox* const other : {&Check6, &Check7, &Check8}) other->Value = box->Value;
    };
  }
  for (OptionButton* const option : {&OptionJoystickF, &OptionJoystickR}) {
    option->Click = [this] { SearchTarget = 1; };
  }
  for (OptionButton* const option : {&OptionMacroF, &OptionMacroR}) {
    option->Click = [this] { SearchTarget = 2; };
  }
  for (CommandButton* const button : {&Command2, &Command4, &Command8, &Command9}) {
    button->Click = [this] { Close(); };
  }
  ComboTextFind.Change = [this] { Command1.Caption = kFirst; };
  ComboTextReplaceFind.Change = [this] { Command3.Caption = kFirst; };
  LineToFind.GotFocus = [this] { LineToFind_GotFocus(); };
  Command1.Click = [this] { Command1_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  SSTab1.Click = [this] { SSTab1_Click(); };
  Form::Load = [this] { Form_Load(); };
  Form::KeyDown = [this](Key& key) { Form_KeyDown(key); };
}

void FindAndReplace::Form_Load() {
  Topmost = true;
  Check6.Value = 1;
  SearchTarget = 1;
  Set(Replacing::Refused);
}

void FindAndReplace::Form_KeyDown(Key& key) {
  if (key.code != key::kEscape) return;
  key = {};
  Close();
}

// Showing.

void FindAndReplace::ShowOn(int tab) {
  Visible = true;
  SSTab1.Tab = tab;
}

void FindAndReplace::TakeSelection(const Page& page) {
  const bool joystick = bench_.documents.tabs.SelectedIndex() == 1;
  (joystick ? page.joystick : page.macro).Value = true;
  page.text.Text = (joystick ? bench_.documents.joystick.text : bench_.documents.macro.text).SelText.Get();
  page.text.SelectAll();
  page.find.MakeDefault();
  page.text.SetFocus();
}

void FindAndReplace::ShowFind() {
  ShowOn(kFindTab);
  TakeSelection(FindPage());
}

void FindAndReplace::ShowReplace() {
  ShowOn(kReplaceTab);
  TakeSelection(ReplacePage());
}

void FindAndReplace::ShowGoto() {
  ShowOn(kGotoTab);
  LineToFind.SetFocus();
  Command7.MakeDefault();
}

void FindAndReplace::SSTab1_Click() {
  if (SSTab1.Tab == kGotoTab) {
    LineToFind.SetFocus();
    Command7.MakeDefault();
    return;
  }
  const bool replaces = SSTab1.Tab == kReplaceTab;
  const Page page = replaces ? ReplacePage() : FindPage();
  const EntryBox& other = replaces ? ComboTextFind : ComboTextReplaceFind;
  if (!other.Empty()) page.text.Text = other.Text.Get();
  (SearchTarget == 2 ? page.macro : page.joystick).Value = true;
  if (replaces) Set(Command3.Caption.Get() != kFirst ? Replacing::Allowed : Replacing::Refused);
  page.text.SetFocus();
  page.find.MakeDefault();
}

void FindAndReplace::Command10_Click() { ShowHelp(bench_.platform, topic::kFindPages[SSTab1.Tab]); }

void FindAndReplace::Set(Replacing replacing) {
  for (CommandButton* const button : {&Command5, &Command6}) {
    button->Enabled = replacing == Replacing::Allowed;
  }
}

void FindAndReplace::Show(const char* title, const std::string& text, BoxIcon icon) const {
  bench_.platform.dialogs.Show({title, text, icon});
}

// Searching.

Document& FindAndReplace::Target(const Page& page) const {
  return page.joystick.Value ? bench_.documents.joystick : bench_.documents.macro;
}

void FindAndReplace::TakeOptions(const Page& page) {
  if (page.matchCase.Value == 1) MatchCaseOption = find::kMatchCase;
  if (page.wholeWord.Value == 1) WholeWordOption = find::kWholeWord;
  SearchOptions = MatchCaseOption | WholeWordOption;
}

/// Takes the text to look for. False, and says so, when there is none or no text to find it in.
bool FindAndReplace::IsReady(const Page& page) {
  const Document& document = Target(page);
  const std::string caption = bench_.documents.tabs.Tabs(document.traits.tab).Caption;
  if (page.text.Empty()) {
    Show("Please enter text to search", "You haven't specified the text to search for");
  } else if (SearchText = page.text.Text.Get(); document.text.Characters().empty()) {
    Show(document.IsJoystick() ? "No text in joystick file" : "No text in macro file",
         caption + " has no text to highlight.");
  } else {
    return true;
  }
  if (page.tab == kReplaceTab) page.text.SetFocus();
  return false;
}

void FindAndReplace::Command1_Click() { Search(FindPage()); }
void FindAndReplace::Command3_Click() { Search(ReplacePage()); }

void FindAndReplace::Search(const Page& page) {
  if (!page.text.Empty()) page.text.Remember(page.text.Text);
  if (!IsReady(page)) return;
  Document& document = Target(page);
  bench_.documents.Select(document);
  TakeOptions(page);
  const bool first = page.find.Caption.Get() == kFirst;
  if (first) document.Caret = 0;
  const auto hit =
      document.text.Find(SearchText.Get(), document.Caret, document.text.Characters().size(), SearchOptions);
  SearchHit = hit ? static_cast<int>(*hit) : -1;
  hit_.reset();
  if (!hit) return NotFound(page, document, first);
  page.find.Caption = kNext;
  if (page.tab == kReplaceTab) Set(Replacing::Allowed);
  if (page.tab != kReplaceTab && document.IsJoystick()) {
    page.find.MakeDefault();
    document.text.SetFocus();
  } else {
    page.find.SetFocus();
  }
  // The pane that gets the focus takes its selection's start for the caret; the search goes on behind the
  // hit.
  document.SelLength = SearchText.Get().size();
  document.Caret = *hit + SearchText.Get().size();
  hit_ = Hit{&document, document.text.Selection(), document.text.SelText, page.tab == kReplaceTab};
}

bool FindAndReplace::GoOnFrom(const Document& document) {
  if (!Visible || !hit_ || hit_->document != &document) return false;
  if (document.text.Selection() != hit_->range || document.text.SelText.Get() != hit_->text) return false;
  hit_->document->Caret = hit_->range.End();
  Search(hit_->onReplacePage ? ReplacePage() : FindPage());
  return true;
}

void FindAndReplace::NotFound(const Page& page, Document& document, bool first) {
  const std::string& caption = bench_.documents.tabs.Tabs(document.traits.tab).Caption;
  const std::string text = Quoted(SearchText);
  if (first) {
    Show("Text not found", text + " not found in " + caption);
  } else {
    Show("You found 'em all!", "No further instances of " + text + " found in " + caption);
    page.find.Caption = kFirst;
    if (page.tab == kReplaceTab) Set(Replacing::Refused);
  }
  document.text.SelStart = document.Caret;
  if (first && page.tab != kReplaceTab) {
    page.find.SetFocus();
  } else {
    page.text.SetFocus();
  }
}

// Replacing.

/// A protected file takes no edits of the user's, and says so.
bool FindAndReplace::Refuses(const Document& document) const {
  if (!document.text.Locked) return false;
  bench_.documents.SayIsProtected(document);
  return true;
}

void FindAndReplace::TakeReplacement() {
  ReplacementText = ComboTextReplaceWith.Text.Get();
  if (!ComboTextReplaceWith.Empty()) ComboTextReplaceWith.Remember(ReplacementText);
}

bool FindAndReplace::SelectHit() {
  if (!hit_ || hit_->document != &Target(ReplacePage())) return false;
  const Range range = hit_->range;
  Pane& pane = hit_->document->text;
  if (pane.Characters().substr(std::min(range.start, pane.Characters().size()), range.length) != hit_->text)
    return false;
  pane.Select(range);
  return true;
}

/// Replaces only what was found, even when it is no longer selected. The caret goes behind it.
void FindAndReplace::ReplaceText() {
  if (!SelectHit()) return;
  TakeReplacement();
  Document& document = *hit_->document;
  document.Undo.BeginCommand(bench_.settings.UndoMax);
  document.text.SelText = ReplacementText.Get();
  document.Caret = hit_->range.start + ReplacementText.Get().size();
  hit_.reset();
}

void FindAndReplace::Command5_Click() {
  if (!Refuses(Target(ReplacePage()))) ReplaceText();
  Set(Replacing::Refused);
}

void FindAndReplace::Command6_Click() {
  const Page page = ReplacePage();
  Document& document = Target(page);
  if (!IsReady(page) || Refuses(document)) return;
  std::size_t count = 0;
  {
    const ProgramEdit edit(bench_.values);
    bench_.documents.Select(document);
    document.Undo.BeginCommand(bench_.settings.UndoMax);
    TakeOptions(page);
    ProgressBar& bar = bench_.documents.progress;
    bar.Min = 0;
    bar.Max = static_cast<int>(document.text.Characters().size());
    bar.Value = 0;
    bar.Visible = true;
    const Replaced replaced =
        document.text.ReplaceAll(SearchText.Get(), ComboTextReplaceWith.Text.Get(), SearchOptions,
                                 [&bar](std::size_t hit) { bar.Value = static_cast<int>(hit); });
    bar.Visible = false;
    SearchHit = -1;
    count = replaced.count;
    if (count > 0) TakeReplacement();
    hit_.reset();
    document.Caret = replaced.end;
  }
  Show("Replaced 'em all for you. Now buy me a drink",
       TextOf(count) + " replacements were made in " +
           bench_.documents.tabs.Tabs(document.traits.tab).Caption.Get(),
       BoxIcon::Information);
  Command3.Caption = kFirst;
  document.text.SelStart = document.Caret;
  Set(Replacing::Refused);
  document.Undo.Start = 1;
  bench_.documents.TextChanged(document);
}

// Going to a line.

void FindAndReplace::Command7_Click() {
  Document& document = bench_.documents.joystick;
  const std::string_view text = document.text.Characters();
  const double line = std::floor(NumberIn(LineToFind.Text.Get()));
  if (line < 1 || line > static_cast<double>(document.text.GetLineFromChar(text.size()) + 1)) {
    Show("Check the value you entered!", "The line number is invalid");
    LineToFind.SetFocus();
    return;
  }
  const auto start = StartOfLine(text, static_cast<std::size_t>(line));
  if (!start) return Show("Oops!", "Line not found");
  const std::size_t end = std::min(text.find('\n', *start), text.size() - 1) + 1;
  document.text.SetFocus();
  document.text.Select({*start, end - *start});
  document.SelLength = end - *start;
  document.Caret = *start;
  bench_.documents.ShowLineNumber(document);
}

}  // namespace tarvik
