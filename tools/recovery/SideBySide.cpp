#include "tools/recovery/SideBySide.h"

namespace tarvik {
namespace {

constexpr Colour kGone = Rgb(178, 24, 24);
constexpr Colour kCome = Rgb(0, 112, 48);

/// Black, but for the lines that the other text lacks.
RichText Marked(const std::string& text, const std::vector<Difference>& differences, Range Difference::*side,
                Colour colour) {
  RichText marked(text);
  for (const Difference& difference : differences) {
    const Range range = difference.*side;
    marked.colours.Replace(range, ColourRuns(range.length, colour));
  }
  return marked;
}

}  // namespace

SideBySide::SideBySide(Form& form, Workbench& bench, std::string_view beforeName, std::string_view afterName)
    : before(form, beforeName, bench.platform.files), after(form, afterName, bench.platform.files) {
  for (Pane* const pane : {&before, &after}) {
    connections_.push_back(pane->SelectionChanged.Connect([this, pane] { selectedIn_ = pane; }));
    ApplyFont(*pane, bench.settings);
    pane->BackColor = bench.settings.BackgroundColour.Get();
    pane->Locked = true;
    pane->RightMargin = margin::kNone;
  }
}

void SideBySide::Show(const std::string& beforeText, const std::string& afterText) {
  differences_ = DifferencesOf(beforeText, afterText);
  next_ = 0;
  before.SetContent(Marked(beforeText, differences_, &Difference::before, kGone));
  after.SetContent(Marked(afterText, differences_, &Difference::after, kCome));
  GoToNext();
}

std::vector<Difference> SideBySide::Picked() const {
  const Range picked = selectedIn_->Selection();
  std::vector<Difference> found;
  for (const Difference& difference : differences_) {
    const Range range = selectedIn_ == &before ? difference.before : difference.after;
    if (range.start < picked.End() && picked.start < range.End()) found.push_back(difference);
  }
  return found;
}

void SideBySide::GoToNext() {
  if (differences_.empty()) return;
  const Difference& difference = differences_[next_];
  next_ = (next_ + 1) % differences_.size();
  before.Select(difference.before);
  after.Select(difference.after);
  selectedIn_ = difference.before.length > 0 ? &before : &after;
}

}  // namespace tarvik
