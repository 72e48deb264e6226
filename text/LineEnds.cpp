#include "text/LineEnds.h"

#include <algorithm>
#include <array>

#include "text/Differences.h"
#include "text/RichText.h"

namespace tarvik {
namespace {

constexpr std::string_view kBreak = "\r\n";

std::size_t BreaksIn(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = text.find(kBreak); at != std::string_view::npos; at = text.find(kBreak, at + 2))
    ++count;
  return count;
}

}  // namespace

LineEnds::LineEnds(std::string_view bytes) {
  std::array<std::size_t, 3> counts{};
  for (std::size_t at = bytes.find_first_of(kBreak); at != std::string_view::npos;
       at = bytes.find_first_of(kBreak, at + (ends_.back() == End::CrLf ? 2 : 1))) {
    const bool both = bytes.substr(at, kBreak.size()) == kBreak;
    ends_.push_back(both ? End::CrLf : bytes[at] == '\r' ? End::Cr : End::Lf);
    ++counts[static_cast<std::size_t>(ends_.back())];
  }
  usual_ = static_cast<End>(std::ranges::max_element(counts) - counts.begin());
  if (std::ranges::count(counts, 0U) < 2) {
    text_ = WithPaneLineBreaks(bytes);
  } else {
    ends_.clear();
  }
}

/// Where lines were changed they keep their ends one by one, as far as there are as many.
std::vector<LineEnds::End> LineEnds::EndsFor(std::string_view text) const {
  std::vector<End> ends;
  auto own = ends_.begin();
  const auto take = [&](std::size_t count, std::size_t wanted) {
    const auto kept = static_cast<std::ptrdiff_t>(std::min(count, wanted));
    ends.insert(ends.end(), own, own + kept);
    ends.resize(ends.size() + wanted - static_cast<std::size_t>(kept), usual_);
    own += static_cast<std::ptrdiff_t>(count);
  };
  const std::string_view before = text_;
  std::size_t from = 0;
  for (const Difference& each : DifferencesOf(before, text)) {
    const std::size_t same = BreaksIn(text.substr(from, each.after.start - from));
    take(same, same);
    take(BreaksIn(before.substr(each.before.start, each.before.length)),
         BreaksIn(text.substr(each.after.start, each.after.length)));
    from = each.after.End();
  }
  const std::size_t same = BreaksIn(text.substr(from));
  take(same, same);
  return ends;
}

/// A CR and an LF that come to stand beside each other would be read as one end: there it is a CR LF.
std::string LineEnds::PutBackInto(std::string_view text) const {
  if (ends_.empty() && usual_ == End::CrLf) return std::string(text);
  const std::vector<End> ends = ends_.empty() ? std::vector<End>() : EndsFor(text);
  std::string bytes;
  bytes.reserve(text.size());
  std::size_t line = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text.substr(at, kBreak.size()) != kBreak) {
      bytes += text[at];
      continue;
    }
    const End end = line < ends.size() ? ends[line] : usual_;
    ++line;
    ++at;
    const bool lfIsNext = at + 1 < text.size() && text[at + 1] == '\n';
    const bool crIsBefore = !bytes.empty() && bytes.back() == '\r';
    if (end != End::Lf || crIsBefore) bytes += '\r';
    if (end != End::Cr || lfIsNext) bytes += '\n';
  }
  return bytes;
}

std::string WithDosEnds(std::string_view text) {
  std::string dos;
  for (const char byte : text) {
    if (byte == '\n') dos.push_back('\r');
    dos.push_back(byte);
  }
  return dos;
}

}  // namespace tarvik
