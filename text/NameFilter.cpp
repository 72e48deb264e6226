#include "text/NameFilter.h"

#include <algorithm>
#include <numeric>

#include "text/CodePage.h"
#include "text/Search.h"

namespace tarvik {

NameFilter::NameFilter(const std::vector<std::string>& names) {
  ends_.reserve(names.size());
  for (const std::string& name : names) {
    names_ += name;
    names_ += '\n';
    ends_.push_back(names_.size());
  }
  names_ = LowerCase(names_);
}

std::vector<int> NameFilter::Containing(std::string_view word) const {
  const SearchPattern pattern(word, 0);
  std::vector<int> found;
  auto end = ends_.begin();
  for (std::size_t from = 0; from < names_.size(); from = *end++) {
    const auto hit = pattern.FindIn({names_, names_}, from, names_.size());
    if (!hit) break;
    end = std::upper_bound(end, ends_.end(), *hit);
    found.push_back(static_cast<int>(end - ends_.begin()));
  }
  return found;
}

std::vector<int> NameFilter::Matching(std::string_view typed) const {
  std::vector<int> matching(ends_.size());
  std::iota(matching.begin(), matching.end(), 0);
  for (std::size_t start = typed.find_first_not_of(' '); start != std::string_view::npos;) {
    const std::size_t end = std::min(typed.find(' ', start), typed.size());
    const std::vector<int> containing = Containing(typed.substr(start, end - start));
    std::vector<int> both;
    std::set_intersection(matching.begin(), matching.end(), containing.begin(), containing.end(),
                          std::back_inserter(both));
    matching = std::move(both);
    start = typed.find_first_not_of(' ', end);
  }
  return matching;
}

}  // namespace tarvik
