#include "workbench/Problems.h"

#include <algorithm>

namespace tarvik {
namespace {

/// What an edit leaves of a range that it did not tear; nothing of one that it did.
std::optional<Range> Moved(Range range, const PaneEdit& edit) {
  const Range removed{edit.position, edit.removed.size()};
  const std::size_t shift = edit.inserted.size() - removed.length;  // wraps round where the text gets shorter
  if (range.End() < removed.start || (range.End() == removed.start && removed.length > 0)) return range;
  if (range.start >= removed.End() && range.start > removed.start)
    return Range{range.start + shift, range.length};
  const bool isWithin = range.start <= removed.start && removed.End() <= range.End();
  if (!isWithin || range.length + shift == 0) return std::nullopt;
  return Range{range.start, range.length + shift};
}

constexpr Colour kColours[] = {Rgb(210, 40, 40), Rgb(217, 138, 0), Rgb(70, 120, 200)};

void AppendCount(std::string& words, std::size_t count, std::string_view what) {
  if (count == 0) return;
  words.append(words.empty() ? "" : ", ").append(TextOf(count)).append(" ").append(what);
  if (count > 1) words.append("s");
}

}  // namespace

Colour ColourOf(model::Severity severity) { return kColours[static_cast<std::size_t>(severity)]; }

Problems::Problems(Documents& documents, const FileModels& models) : documents_(documents), models_(models) {
  Settings& settings = documents.settings;
  const auto follow = [this] { ShowOrForget(); };
  for (Property<int>* const part : {&settings.MarkProblems, &settings.ProblemsPanel, &settings.JoyName,
                                    &settings.ThrottleName, &settings.RudderName}) {
    connections_.push_back(part->Changed.Connect(follow));
  }
  for (Document* const document : {&documents.joystick, &documents.macro}) {
    connections_.push_back(document->Name.Changed.Connect(follow));
    connections_.push_back(document->text.Edited.Connect([this, document](const PaneEdit& edit) {
      if (!edit.OnlyColours()) Follow(*document, edit);
    }));
  }
}

bool Problems::IsWanted() const {
  return documents_.settings.MarkProblems != 0 || documents_.settings.ProblemsPanel != 0;
}

void Problems::ShowOrForget() {
  if (IsWanted()) return pause.Begin();
  pause.Cancel();
  found_ = {};
  Changed();
}

void Problems::Renew() {
  pause.Cancel();
  PerDocument<std::vector<model::Problem>> found;
  std::size_t longest = 0;
  for (model::Problem& problem : model::ProblemsIn(models_.Pair())) {
    longest = std::max(longest, problem.range.length);
    found.Of(DocumentOf(documents_, problem.file)).push_back(std::move(problem));
  }
  const bool areSame = found.joystick == found_.joystick && found.macro == found_.macro;
  if (areSame && !std::exchange(torn_, false)) return;
  found_ = std::move(found);
  longest_ = longest;
  Changed();
}

void Problems::Follow(const Document& document, const PaneEdit& edit) {
  std::vector<model::Problem>& problems = found_.Of(document);
  const std::size_t torn = std::erase_if(problems, [&edit](model::Problem& problem) {
    const std::optional<Range> moved = Moved(problem.range, edit);
    if (moved) problem.range = *moved;
    return !moved;
  });
  torn_ = torn_ || torn > 0;
  longest_ += edit.inserted.size();  // one of them may have grown
  if (IsWanted()) pause.Begin();
}

std::size_t Problems::Count(model::Severity severity) const {
  const auto in = [severity](const std::vector<model::Problem>& problems) {
    return static_cast<std::size_t>(std::ranges::count_if(
        problems, [severity](const model::Problem& problem) { return problem.rule->severity == severity; }));
  };
  return in(found_.joystick) + in(found_.macro);
}

std::span<const model::Problem> Problems::In(const Document& document, Range range) const {
  const std::vector<model::Problem>& problems = Of(document);
  const auto from = [&problems](std::size_t position) {
    return std::ranges::lower_bound(problems, position, {},
                                    [](const model::Problem& each) { return each.range.start; });
  };
  return {from(range.start - std::min(range.start, longest_)), from(range.End())};
}

const model::Problem* Problems::At(const Document& document, std::size_t position) const {
  const model::Problem* gravest = nullptr;
  for (const model::Problem& problem : In(document, {position, 1})) {
    if (position < problem.range.start || position >= problem.range.End()) continue;
    if (!gravest || problem.rule->severity < gravest->rule->severity) gravest = &problem;
  }
  return gravest;
}

void Problems::GoTo(const model::Problem& problem) {
  documents_.GoTo(DocumentOf(documents_, problem.file), problem.range);
}

void Problems::GoToFirstError() {
  for (const std::vector<model::Problem>* const problems : {&found_.joystick, &found_.macro}) {
    const auto isError = [](const model::Problem& each) {
      return each.rule->severity == model::Severity::Error;
    };
    const auto error = std::ranges::find_if(*problems, isError);
    if (error != problems->end()) return GoTo(model::Problem(*error));
  }
}

void Problems::Go(int step) {
  Renew();
  std::vector<const model::Problem*> all;
  for (const std::vector<model::Problem>* const problems : {&found_.joystick, &found_.macro}) {
    for (const model::Problem& problem : *problems) all.push_back(&problem);
  }
  if (all.empty()) return;
  const Document& here = documents_.Active();
  const std::size_t caret = here.text.Selection().start;
  const auto isBefore = [&](const model::Problem* problem, std::size_t place) {
    if (&DocumentOf(documents_, problem->file) != &here) return !here.IsJoystick();
    return problem->range.start < place;
  };
  const auto before = std::ranges::partition_point(all, [&](auto* each) { return isBefore(each, caret); });
  const auto behind =
      std::ranges::partition_point(all, [&](auto* each) { return isBefore(each, caret + 1); });
  if (step > 0) return GoTo(behind == all.end() ? *all.front() : **behind);
  GoTo(before == all.begin() ? *all.back() : **std::prev(before));
}

std::string InWords(const Problems& problems) {
  using enum model::Severity;
  std::string words;
  AppendCount(words, problems.Count(Error), "error");
  AppendCount(words, problems.Count(Warning), "warning");
  AppendCount(words, problems.Count(Hint), "hint");
  return words;
}

}  // namespace tarvik
