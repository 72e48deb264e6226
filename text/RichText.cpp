#include "text/RichText.h"

#include <algorithm>

namespace tarvik {

std::size_t ColourRuns::RunAt(std::size_t position) const {
  const auto after = std::upper_bound(runs_.begin(), runs_.end(), position,
                                      [](std::size_t p, const Run& run) { return p < run.start; });
  return static_cast<std::size_t>(after - runs_.begin()) - 1;
}

Colour ColourRuns::At(std::size_t position) const {
  return position < size_ ? runs_[RunAt(position)].colour : kBlack;
}

void ColourRuns::Append(std::size_t length, Colour colour) {
  if (length == 0) return;
  if (runs_.empty() || runs_.back().colour != colour) runs_.push_back({size_, colour});
  size_ += length;
}

void ColourRuns::Append(const ColourRuns& source, Range range) {
  if (range.length == 0) return;
  for (std::size_t i = source.RunAt(range.start); i < source.runs_.size(); ++i) {
    const Run& run = source.runs_[i];
    if (run.start >= range.End()) break;
    const std::size_t from = std::max(run.start, range.start);
    Append(std::min(source.EndOf(i), range.End()) - from, run.colour);
  }
}

ColourRuns ColourRuns::Slice(Range range) const {
  ColourRuns slice;
  slice.Append(*this, range);
  return slice;
}

void ColourRuns::Replace(Range range, const ColourRuns& colours) {
  // The new runs, and what of the old ones stands on either side of them: only these can merge.
  ColourRuns middle;
  const std::size_t first = range.start == 0 ? 0 : RunAt(range.start - 1);
  const std::size_t before = runs_.empty() ? 0 : runs_[std::min(first, runs_.size() - 1)].start;
  if (range.start > 0) middle.Append(range.start - before, runs_[first].colour);
  middle.Append(colours, {0, colours.size()});
  std::size_t last = runs_.size();  // behind the last run that is replaced
  if (range.End() < size_) {
    const std::size_t tail = RunAt(range.End());
    middle.Append(EndOf(tail) - range.End(), runs_[tail].colour);
    last = tail + 1;
  }

  const std::size_t newSize = size_ - range.length + colours.size_;
  for (Run& run : middle.runs_) run.start += before;
  for (std::size_t i = last; i < runs_.size(); ++i) runs_[i].start = runs_[i].start + newSize - size_;
  const auto at = [this](std::size_t i) { return runs_.begin() + static_cast<std::ptrdiff_t>(i); };
  const std::size_t common = std::min(last - first, middle.runs_.size());
  const auto rest = middle.runs_.begin() + static_cast<std::ptrdiff_t>(common);
  std::copy(middle.runs_.begin(), rest, at(first));
  if (common < middle.runs_.size()) {
    runs_.insert(at(first + common), rest, middle.runs_.end());
  } else {
    runs_.erase(at(first + common), at(last));
  }
  size_ = newSize;
}

std::string WithPaneLineBreaks(std::string_view text) {
  std::string result;
  result.reserve(text.size() + text.size() / 32);
  while (!text.empty()) {
    const std::size_t stop = text.find_first_of("\r\n");
    result.append(text.substr(0, stop));
    if (stop == std::string_view::npos) break;
    result += "\r\n";
    text.remove_prefix(stop + (text.substr(stop, 2) == "\r\n" ? 2 : 1));
  }
  return result;
}

}  // namespace tarvik
