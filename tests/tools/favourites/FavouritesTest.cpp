#include <gtest/gtest.h>

#include "tools/favourites/Favourites.h"

namespace tarvik {
namespace {

TEST(Favourites, SuggestTheFilesNameInCapitalisedForm) {
  for (const auto& [path, name] :
       std::initializer_list<std::pair<const char*, const char*>>{{"c:\\tm\\f22\\MYFILE.f22", "Myfile"},
                                                                  {"c:\\tm\\a b.m50", "A b"},
                                                                  {"strike.b50", "Strike"},
                                                                  {"c:\\tm\\.b50", ""},
                                                                  {"c:\\tm\\abc", ""},
                                                                  {"", ""},
                                                                  {"c:\\dir.b50\\", ""}}) {
    EXPECT_EQ(SuggestedName(path), name) << path;
  }
}

}  // namespace
}  // namespace tarvik
