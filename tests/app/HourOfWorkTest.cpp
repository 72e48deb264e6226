// An hour of somebody's work, made from a seed: thousands of edits of every kind, held against a model that
// is a string, a colour for each of its characters, and whole copies of both for undo.
#include <gtest/gtest.h>

#include <random>

#include "app/Program.h"
#include "text/CodePage.h"
#include "tools/find/FindAndReplace.h"

namespace tarvik {
namespace {

struct Model {
  std::string text;
  std::vector<Colour> colours;
  std::size_t start = 0;  // of the selection
  std::size_t length = 0;

  [[nodiscard]] bool SameContent(const Model& other) const {
    return text == other.text && colours == other.colours;
  }

  void Replace(const std::string& with, Colour colour) {
    text.replace(start, length, with);
    const auto at = colours.begin() + static_cast<std::ptrdiff_t>(start);
    colours.erase(at, at + static_cast<std::ptrdiff_t>(length));
    colours.insert(colours.begin() + static_cast<std::ptrdiff_t>(start), with.size(), colour);
    start += with.size();
    length = 0;
  }

  /// What is typed here takes this colour.
  [[nodiscard]] Colour ColourHere() const {
    const auto at = [this](std::size_t i) { return i < colours.size() ? colours[i] : kBlack; };
    if (length > 0) return at(start);
    return start == 0 || text[start - 1] == '\n' ? at(start) : at(start - 1);
  }
};

class HourOfWork : public testing::TestWithParam<unsigned> {
 protected:
  HourOfWork() {
    program.application.workbench.settings.UndoMax = 10000;
    program.files().PutFolder("c:\\my");
    slots_.push_back(model_);
    editor.Joystick.Path = std::string("c:\\my\\work.b50");
    editor.Joystick.Name = *FileName::From("work.b50");
    editor.TabStrip1.Tabs(1).Caption = std::string("work.b50");
  }

  std::size_t Below(std::size_t bound) { return bound ? random_() % bound : 0; }

  void Act() {
    const std::size_t act = pane.Characters().empty() ? 0 : Below(13);
    switch (act) {
      case 0:
      case 1:
      case 2:
        return Type();
      case 3:
        return SelectSomething();
      case 4:
        return Backspace();
      case 5:
        return Copy(false);
      case 6:
        return Copy(true);
      case 7:
        return Paste();
      case 8:
        return Below(3) ? StepBack() : ReplaceAll();
      case 9:
        return Heading();
      case 10:
        return Modifier();
      case 11:
        return ReplaceOne();
      default:
        return Below(8) ? StepForward() : Save();
    }
  }

  void Type() {
    const std::string words[] = {"BTN S1 ", "\r", "/U ", "Fire_Gun ", "Rem  ", "é", "TG1\r", "USE  RCS\r"};
    for (const char typed : words[Below(std::size(words))]) {
      int character = static_cast<unsigned char>(typed);
      Key key{character, 0};
      pane.KeyDown(key);
      pane.KeyPress(character);
      const std::string text = typed == '\r' ? "\r\n" : std::string(1, typed);
      const Colour colour = next_.value_or(model_.ColourHere());
      pane.UserReplaced(pane.Selection(), text);
      model_.Replace(text, colour);
      pane.KeyUp(key);
      Record();
    }
  }

  void SelectSomething() {
    std::size_t from = Below(model_.text.size() + 1);
    std::size_t to = std::min(model_.text.size(), from + Below(3) * Below(40));
    const auto inside = [this](std::size_t at) {
      return at > 0 && at < model_.text.size() && model_.text[at - 1] == '\r' && model_.text[at] == '\n';
    };
    if (inside(from)) --from;
    if (inside(to)) ++to;
    Place(from, to - from);
  }

  void Place(std::size_t start, std::size_t length) {
    model_.start = start;
    model_.length = length;
    pane.Select({start, length});
    next_.reset();
  }

  void Backspace() {
    int character = 8;
    Key key{8, 0};
    pane.KeyDown(key);
    pane.KeyPress(character);
    if (model_.length == 0) {
      const bool lineBreak = model_.start > 1 && model_.text[model_.start - 1] == '\n';
      model_.length = std::min<std::size_t>(model_.start, lineBreak ? 2 : 1);
      model_.start -= model_.length;
    }
    if (model_.length > 0) {
      pane.UserReplaced({model_.start, model_.length}, "");
      model_.Replace("", kBlack);
    }
    pane.KeyUp(key);
    next_.reset();
    Record();
  }

  void Copy(bool cut) {
    if (model_.length == 0) return;
    clip_ = model_;
    clip_.text = model_.text.substr(model_.start, model_.length);
    const auto from = model_.colours.begin() + static_cast<std::ptrdiff_t>(model_.start);
    clip_.colours.assign(from, from + static_cast<std::ptrdiff_t>(model_.length));
    if (cut) {
      editor.mnuEditCut_Click();
      model_.Replace("", kBlack);
      next_.reset();
    } else {
      editor.mnuEditCopy_Click();
    }
    ASSERT_EQ(program.outside.clipboard.Text().text, clip_.text);
    Record();
  }

  void Paste() {
    if (clip_.text.empty()) return;
    editor.mnuEditPaste_Click();
    const std::size_t at = model_.start;
    model_.Replace(clip_.text, kBlack);
    std::copy(clip_.colours.begin(), clip_.colours.end(),
              model_.colours.begin() + static_cast<std::ptrdiff_t>(at));
    next_.reset();
    Record();
  }

  void ReplaceAll() {
    const std::string needle = Below(2) ? "S1" : " ";
    const std::string with = Below(2) ? "S21" : "";
    Model before = model_;
    const Replaced replaced = pane.ReplaceAll(needle, with, find::kMatchCase, [](std::size_t) {});
    const std::size_t end = before.text.size();
    std::size_t count = 0;
    std::size_t caret = 0;
    while (true) {
      const std::size_t hit = before.text.find(needle, caret);
      if (hit == std::string::npos || hit + needle.size() > end) break;
      before.start = hit;
      before.length = needle.size();
      before.Replace(with, before.ColourHere());
      caret = hit + with.size();
      ++count;
    }
    ASSERT_EQ(replaced.count, count);
    if (count == 0) return;
    ASSERT_EQ(replaced.end, caret);
    model_ = before;
    next_.reset();
    Record();
  }

  void ReplaceOne() {
    auto& form = program.application.Tool<FindAndReplace>();
    form.ComboTextReplaceFind.Text = std::string(Below(2) ? "btn" : "FIRE");
    form.ComboTextReplaceWith.Text = std::string("Fired");
    form.Command3.Caption = std::string("Find first");
    form.Command3_Click();
    const std::size_t hit = LowerCase(model_.text).find(LowerCase(form.ComboTextReplaceFind.Text.Get()));
    if (hit == std::string::npos) return Place(0, 0);
    Place(hit, form.ComboTextReplaceFind.Text.Get().size());
    ASSERT_TRUE(Same());
    form.Command5_Click();
    model_.Replace("Fired", model_.ColourHere());
    Record();
  }

  void Heading() {
    bench.insertion.BeginColInsert();
    bench.edit.CheckAtLineBeginning();
    bench.insertion.InsertColouredStringNoSpace("Rem Weapons", Colour{8421504});
    bench.insertion.InsertCarriageReturn();
    bench.insertion.EndColInsert();
    if (!model_.text.empty() && model_.length == 0 && model_.start > 0 &&
        model_.text[model_.start - 1] != '\n') {
      model_.start = std::min(model_.text.find('\r', model_.start), model_.text.size());
      model_.Replace("\r\n", kBlack);
    }
    model_.length = 0;  // a tool writes before what is selected
    model_.Replace("Rem Weapons", Colour{8421504});
    model_.Replace("\r\n", kBlack);
    next_.reset();
    Record();
  }

  void Modifier() {
    const char before = model_.start ? model_.text[model_.start - 1] : ' ';
    editor.Command1_Click(1);
    model_.length = 0;
    const std::string blank = before == ' ' || before == '\n' ? "" : " ";
    model_.Replace(blank + "/M ", program.application.workbench.settings.SlashColour);
    next_ = kBlack;
    Record();
  }

  void StepBack() {
    if (editor.Joystick.Undo.UndoSteps() == 0) return;
    editor.mnuEditUndo_Click();
    ++shown_;
    Show();
  }

  void StepForward() {
    if (editor.Joystick.Undo.RedoSteps() == 0) return;
    editor.mnuEditRedo_Click();
    --shown_;
    Show();
  }

  /// The slot on show, with the caret that the history keeps for it.
  void Show() {
    model_ = slots_.at(shown_);
    Place(pane.SelStart, 0);
    ASSERT_TRUE(Same());
  }

  /// Takes the step that the program made of the last edit, whichever kind it was, over into the model's
  /// slots.
  void Record() {
    const auto slots = static_cast<std::size_t>(editor.Joystick.Undo.UpperBound());
    // A command puts what it found in front of what was undone.
    if (slots > slots_.size() + 1) slots_.insert(slots_.begin(), slots_[shown_]);
    if (slots > slots_.size()) {
      slots_.insert(slots_.begin(), model_);
      shown_ = 0;
    } else {
      slots_[shown_] = model_;
    }
    ASSERT_EQ(slots, slots_.size());
    ASSERT_EQ(static_cast<std::size_t>(editor.Joystick.Undo.Index), shown_ + 1);
  }

  void Save() {
    if (model_.text.empty()) return;
    editor.mnuFileSave_Click();
    ASSERT_EQ(program.files().Content("c:\\my\\work.b50"), model_.text);
    ASSERT_EQ(program.files().Content("c:\\tarvik\\Backup\\work.b50"), model_.text);
    ASSERT_EQ(editor.Joystick.Dirty, saved::kSaved);
  }

  [[nodiscard]] testing::AssertionResult Same() const {
    if (pane.Characters() != model_.text) return testing::AssertionFailure() << "the text differs";
    if (pane.Selection() != Range{model_.start, model_.length}) {
      return testing::AssertionFailure() << "the caret is at " << pane.SelStart.Get();
    }
    for (std::size_t i = 0; i < model_.text.size(); ++i) {
      if (pane.Content().colours.At(i) == model_.colours[i]) continue;
      return testing::AssertionFailure() << "the colour differs at " << i;
    }
    return testing::AssertionSuccess();
  }

  Program program;
  Editor& editor = program.editor();
  Workbench& bench = program.application.workbench;
  Pane& pane = editor.JoystickText;

 private:
  std::minstd_rand random_{GetParam()};
  Model model_;
  Model clip_;
  std::vector<Model> slots_;  // the newest first
  std::size_t shown_ = 0;
  std::optional<Colour> next_;  // asked for what is typed next
};

TEST_P(HourOfWork, LeavesTextColoursUndoAndFilesAsTheModelSays) {
  for (int i = 0; i < 5000; ++i) {
    ASSERT_NO_FATAL_FAILURE(Act()) << "edit " << i;
    ASSERT_TRUE(Same()) << "edit " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, HourOfWork, testing::Values(1U, 2U, 3U));

}  // namespace
}  // namespace tarvik
