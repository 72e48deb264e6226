#include "text/LineChanges.h"

#include <algorithm>
#include <functional>

namespace tarvik {
namespace {

std::size_t LineEndsIn(std::string_view text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

/// Calls `take` with each line of the text, without its end.
template <class Take>
void ForEachLine(std::string_view text, const Take& take) {
  for (std::size_t start = 0;;) {
    const std::size_t end = text.find('\n', start);
    take(text.substr(start, end - start));
    if (end == std::string_view::npos) return;
    start = end + 1;
  }
}

}  // namespace

void LineChanges::Begin(std::string_view text) {
  saved_.clear();
  lines_.clear();
  ForEachLine(text, [this](std::string_view line) {
    const Hash hash = std::hash<std::string_view>{}(line);
    lines_.push_back({hash, saved_.size()});
    saved_.push_back(hash);
  });
}

void LineChanges::Edit(std::string_view text, std::size_t line, std::size_t position,
                       std::string_view removed, std::string_view inserted) {
  const std::size_t start = position == 0 ? 0 : text.rfind('\n', position - 1) + 1;
  const std::size_t end = text.find('\n', position + inserted.size());
  std::vector<Line> now;
  ForEachLine(text.substr(start, end - start), [&now](std::string_view content) {
    now.push_back({std::hash<std::string_view>{}(content), kNone});
  });
  const auto first = lines_.begin() + static_cast<std::ptrdiff_t>(std::min(line, lines_.size()));
  const std::size_t before =
      std::min(LineEndsIn(removed) + 1, static_cast<std::size_t>(lines_.end() - first));
  const std::size_t kept = std::min(before, now.size());
  const auto behindKept = std::copy_n(now.begin(), kept, first);
  const auto rest = now.begin() + static_cast<std::ptrdiff_t>(kept);
  if (now.size() > kept) {
    lines_.insert(behindKept, rest, now.end());
  } else {
    lines_.erase(behindKept, behindKept + static_cast<std::ptrdiff_t>(before - kept));
  }
  Match(line, line + now.size());
}

/// Looks among the saved lines that nobody is for those that the lines from `from` to before `to`, and the
/// changed ones around them, are. What stands on either side of them stays in its order.
void LineChanges::Match(std::size_t from, std::size_t to) {
  while (from > 0 && lines_[from - 1].saved == kNone) --from;
  while (to < lines_.size() && lines_[to].saved == kNone) ++to;
  std::size_t savedFrom = from == 0 ? 0 : lines_[from - 1].saved + 1;
  std::size_t savedTo = to == lines_.size() ? saved_.size() : lines_[to].saved;
  const auto is = [this](std::size_t line, std::size_t saved) { return lines_[line].hash == saved_[saved]; };
  while (from < to && savedFrom < savedTo && is(from, savedFrom)) lines_[from++].saved = savedFrom++;
  while (from < to && savedFrom < savedTo && is(to - 1, savedTo - 1)) lines_[--to].saved = --savedTo;
  if (to - from == savedTo - savedFrom) {
    for (; from < to; ++from, ++savedFrom) {
      if (is(from, savedFrom)) lines_[from].saved = savedFrom;
    }
    return;
  }
  constexpr std::size_t kFar = 1000;  // lines; what is farther away counts as changed
  for (; from < to; ++from) {
    const std::size_t end = std::min(savedTo, savedFrom + kFar);
    for (std::size_t saved = savedFrom; saved < end; ++saved) {
      if (!is(from, saved)) continue;
      lines_[from].saved = saved;
      savedFrom = saved + 1;
      break;
    }
  }
}

bool LineChanges::IsChanged(std::size_t line) const {
  return line < lines_.size() && lines_[line].saved == kNone;
}

bool LineChanges::LacksLinesBefore(std::size_t line) const {
  if (line > lines_.size()) return false;
  const auto savedAt = [this](std::size_t at) {
    return at < lines_.size() ? lines_[at].saved : saved_.size();
  };
  const std::size_t next = savedAt(line);
  const std::size_t previous = line == 0 ? 0 : savedAt(line - 1);
  if (next == kNone || previous == kNone) return false;
  return next > (line == 0 ? 0 : previous + 1);
}

}  // namespace tarvik
