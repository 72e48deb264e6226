#include "app/ProblemPanel.h"

#include <algorithm>

namespace tarvik {
namespace {

constexpr std::size_t kMostLines = 1'000;

/// Where it is, what it is, and what to do.
std::string LineOf(const Document& document, std::size_t line, const model::Problem& problem) {
  std::string words = LineInWords(document, line).append(problem.text);
  return problem.advice.empty() ? words : words.append("  ").append(problem.advice);
}

}  // namespace

ProblemPanel::ProblemPanel(Form& form, Workbench& bench)
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
    settings.Change(settings.ProblemsPanel, 0);
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
    model::LinePositions positions(document->text.Characters());
    for (const model::Problem& problem : bench_.problems.Of(*document)) {
      if (lines.size() == kMostLines) break;
      lines.push_back(LineOf(*document, positions.Of(problem.range.start).line, problem));
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
