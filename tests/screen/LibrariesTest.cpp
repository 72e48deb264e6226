#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtGlobal>

#include "screen/services/Libraries.h"

namespace tarvik::screen {
namespace {

using testing::Contains;
using testing::MatchesRegex;

std::string VersionOf(const std::string& name) {
  for (const Library& library : Libraries()) {
    if (library.name == name) return library.version;
  }
  return "there is no " + name;
}

TEST(LibrariesTest, TellTheVersionsThatRun) {
  EXPECT_EQ(VersionOf("Qt"), qVersion());
  for (const char* const name : {"SDL", "utf8proc", "xxHash"}) {
    EXPECT_THAT(VersionOf(name), MatchesRegex("[0-9]+\\.[0-9]+\\.[0-9]+")) << name;
  }
  EXPECT_THAT(Libraries(), Contains(Library{"dtl", ""}));
}

}  // namespace
}  // namespace tarvik::screen
