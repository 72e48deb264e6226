#include "text/Differences.h"

#include <algorithm>
#include <dtl/dtl.hpp>
#include <numeric>
#include <unordered_map>

namespace tarvik {
namespace {

/// The comparison costs the number of lines times the number of those that differ.
constexpr std::size_t kMostWork = 200'000'000;

using Lines = std::vector<std::string_view>;

Lines LinesIn(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.push_back(text.substr(0, end));
    text.remove_prefix(end);
  }
  return lines;
}

/// How many lines of the one the other lacks, wherever they stand: at least so many differ.
std::size_t Lacking(const Lines& before, const Lines& after) {
  std::unordered_map<std::string_view, long> counts;
  for (const std::string_view line : before) ++counts[line];
  for (const std::string_view line : after) --counts[line];
  return std::accumulate(counts.begin(), counts.end(), std::size_t{0}, [](std::size_t sum, const auto& each) {
    return sum + static_cast<std::size_t>(std::abs(each.second));
  });
}

/// Puts lines that differ together to places, while both texts are walked.
class Places {
 public:
  void Same(std::string_view line) {
    Close();
    open_.before.start = open_.before.End() + line.size();
    open_.after.start = open_.after.End() + line.size();
    open_.before.length = open_.after.length = 0;
  }
  void Gone(std::string_view line) {
    open_.before.length += line.size();
    ++gone_;
  }
  void Come(std::string_view line) {
    open_.after.length += line.size();
    ++come_;
  }
  std::vector<Difference> Finish() && {
    Close();
    return std::move(found_);
  }

 private:
  void Close() {
    open_.lines = std::max(gone_, come_);
    if (open_.lines > 0) found_.push_back(open_);
    gone_ = come_ = 0;
  }

  Difference open_;
  std::size_t gone_ = 0;
  std::size_t come_ = 0;
  std::vector<Difference> found_;
};

std::vector<Difference> Compared(const Lines& old, const Lines& now) {
  dtl::Diff<std::string_view, Lines> compared(old, now);
  compared.onHuge();
  compared.compose();
  Places places;
  for (const auto& [line, edit] : compared.getSes().getSequence()) {
    if (edit.type == dtl::SES_COMMON) places.Same(line);
    if (edit.type == dtl::SES_DELETE) places.Gone(line);
    if (edit.type == dtl::SES_ADD) places.Come(line);
  }
  return std::move(places).Finish();
}

}  // namespace

std::vector<Difference> DifferencesOf(std::string_view before, std::string_view after) {
  if (before == after) return {};
  const Lines old = LinesIn(before);
  const Lines now = LinesIn(after);
  if ((old.size() + now.size()) * Lacking(old, now) > kMostWork) {
    return {{{0, before.size()}, {0, after.size()}, std::max(old.size(), now.size())}};
  }
  return Compared(old, now);
}

std::vector<Difference> DifferencesByCharacter(std::string_view before, std::string_view after) {
  const auto characters = [](std::string_view text) {
    Lines each;
    for (std::size_t at = 0; at < text.size(); ++at) each.push_back(text.substr(at, 1));
    return each;
  };
  return Compared(characters(before), characters(after));
}

std::size_t LinesOf(const std::vector<Difference>& differences) {
  return std::accumulate(differences.begin(), differences.end(), std::size_t{0},
                         [](std::size_t sum, const Difference& each) { return sum + each.lines; });
}

}  // namespace tarvik
