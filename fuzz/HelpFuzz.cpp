// Any bytes as a help file: for what a topic says of itself the first topic comes that says so, and for the
// beginning of a keyword one that has a keyword which begins so.
#include <algorithm>
#include <cstdlib>

#include "tools/help/HelpFile.h"

namespace {

using namespace tarvik;

bool Has(const std::vector<std::string>& keywords, std::string_view beginning) {
  return std::ranges::any_of(keywords,
                             [beginning](const std::string& each) { return each.starts_with(beginning); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const HelpFile file(std::string_view(reinterpret_cast<const char*>(data), size));
  for (const HelpTopic& topic : file.Topics()) {
    for (const int context : topic.contexts) {
      const auto first = std::ranges::find_if(file.Topics(), [context](const HelpTopic& each) {
        return std::ranges::count(each.contexts, context) > 0;
      });
      if (file.WithContext(context) != &*first) std::abort();
    }
    for (const std::string& keyword : topic.keywords) {
      const auto first = std::ranges::find_if(file.Topics(), [&keyword](const HelpTopic& each) {
        return std::ranges::count(each.keywords, keyword) > 0;
      });
      if (file.WithKeyword(keyword) != &*first) std::abort();
      const std::string beginning = keyword.substr(0, (keyword.size() + 1) / 2);
      const HelpTopic* const found = file.WithKeyword(beginning);
      if (!found || !Has(found->keywords, beginning.substr(0, beginning.find_last_not_of(" \t\r\n") + 1)))
        std::abort();
    }
  }
  return 0;
}
