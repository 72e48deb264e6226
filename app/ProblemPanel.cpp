#include "app/ProblemPanel.h"

#include <algorithm>

namespace tarvik {
namespace {

constexpr std::size_t kMostLines = 1'000;

/// The number of the line that a position stands in, from 1 on. The positions come in their order.
class LineCounter {
 public:
  explicit LineCounter(std::string_view text) : text_(text) {}

  std::size_t LineOf(std::size_t position) {
    const std::string_view passed = text_.substr(0, position);
    line_ += static_cast<std::size_t>(
        std::count(passed.begin() + static_cast<std::ptrdiff_t>(at_), passed.end(), '\n'));
    at_ = passed.size();
    return line_;
  }

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
};

/// Where it is, what it is, and what to do.
std::string LineOf(const Document& document, std::size_t line, const model::Problem& problem) {
  std::string words(document.IsJoystick() ? "Joystick " : "Macros ");
  words.append(TextOf(line)).append(":  ").append(problem.text);
  return problem.advice.empty() ? words : words.append("  ").append(problem.advice);
}

}  // namespace

ProblemPanel::ProblemPanel(Form& form, Workbench& bench, std::function<void()> place)
    : frame(form, "ProblemsFrame"),
      list(form, "ProblemsList"),
      explain(form, "ProblemsExplain", "What is this?"),
      close(form, "ProblemsClose", "Hide"),
      bench_(bench) {
  frame.Visible = false;
  Settings& settings = bench.settings;
  connections_ = {
      bench.problems.Changed.Connect([this] { Show(); }),
      settings.ProblemsPanel.Changed.Connect([this] { Show(); }),
      frame.Visible.Changed.Connect(std::move(place)),
  };
  // Whoever walks through the list stays in it.
  list.MouseDown = [this](const Mouse&) {
    GoToProblem();
    list.SetFocus();
  };
  list.DblClick = [this] { GoToProblem(); };
  explain.ToolTipText = "Shows what the help says of this problem (F1)";
  explain.Click = [this] { Explain(); };
  close.Click = [this, &settings] {
    settings.ChangeView(settings.ProblemsPanel, 0);
    bench_.documents.FocusActiveText();
  };
  Show();
}

void ProblemPanel::Show() {
  frame.Visible = bench_.settings.ProblemsPanel != 0;
  if (frame.Visible) Fill();
}

/// The problem in hand stays in hand as long as it is there.
void ProblemPanel::Fill() {
  const model::Problem* const inHand = InHand();
  const std::optional<model::Problem> before = inHand ? std::optional(*inHand) : std::nullopt;
  shown_.clear();
  std::vector<std::string> lines;
  std::vector<Colour> colours;
  for (const Document* const document : {&bench_.documents.joystick, &bench_.documents.macro}) {
    LineCounter counter(document->text.Characters());
    for (const model::Problem& problem : bench_.problems.Of(*document)) {
      if (lines.size() == kMostLines) break;
      lines.push_back(LineOf(*document, counter.LineOf(problem.range.start), problem));
      colours.push_back(ColourOf(problem.rule->severity));
      shown_.push_back(problem);
    }
  }
  list.FillInOrder(std::move(lines));
  list.Paint(std::move(colours));
  const auto same = before ? std::ranges::find(shown_, *before) : shown_.end();
  list.ListIndex = same == shown_.end() ? -1 : static_cast<int>(same - shown_.begin());
  explain.Enabled = !shown_.empty();
}

const model::Problem* ProblemPanel::InHand() const {
  const auto index = static_cast<std::size_t>(list.ListIndex.Get());
  return index < shown_.size() ? &shown_[index] : nullptr;
}

void ProblemPanel::GoToProblem() {
  const model::Problem* const problem = InHand();
  if (problem) bench_.problems.GoTo(*problem);
}

void ProblemPanel::Explain() const {
  const model::Problem* const problem = InHand();
  if (problem) help(*problem->rule);
}

}  // namespace tarvik
