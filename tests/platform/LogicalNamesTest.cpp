#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "platform/LogicalNames.h"
#include "text/CodePage.h"

namespace tarvik {
namespace {

std::string NameIn(const LogicalNames& names, const std::string& hostName) {
  return names.NameOf(hostName, [](const std::string&) { return true; });
}

TEST(LogicalNames, ThePlainNameIsInLowerCaseComposedAndInTheCodePage) {
  EXPECT_EQ(PlainName("Flight.B50"), "flight.b50");
  EXPECT_EQ(PlainName("E\u0301.b50"), "\xE9.b50");
  for (const char* const none :
       {"\u0442\u0435\u0441\u0442.b50", "a*", "a?", "\"a\"", "a\\b", "a\xFF", "a\n", ""})
    EXPECT_EQ(PlainName(none), std::nullopt) << none;
}

TEST(LogicalNames, ANameThatIsTakenIsLeftToWhoHasIt) {
  const LogicalNames names({"a.b50"});
  std::vector<std::string> offered;
  const std::string third = names.NameOf("a.b50", [&offered](const std::string& name) {
    offered.push_back(name);
    return offered.size() == 3;
  });
  ASSERT_EQ(offered.size(), 3U);
  EXPECT_EQ(offered.front(), "a.b50");
  EXPECT_EQ(offered.back(), third);
  EXPECT_EQ(names.Find(third), "a.b50");
}

/// Folders full of names that are alike, and of names that look like the aliases of others.
class Folders {
 public:
  std::vector<std::string> Next() {
    std::set<std::string> names;
    for (std::size_t i = 1 + random_() % 12; i > 0; --i) names.insert(Name());
    const LogicalNames plain({names.begin(), names.end()});
    for (const std::string& name : plain.HostNames()) {
      if (random_() % 4 == 0) names.insert(ToUtf8(NameIn(plain, name)));
    }
    std::vector<std::string> shuffled(names.begin(), names.end());
    std::shuffle(shuffled.begin(), shuffled.end(), random_);
    return shuffled;
  }
  std::size_t Below(std::size_t limit) { return random_() % limit; }

 private:
  std::string Name() {
    constexpr const char* kParts[] = {"a",    "A",    "\u00E9", "\u00C9", "e\u0301", "\u0442", "\u0422",
                                      ".",    ".B50", "*",      "?",      "~1",      "~2",     " ",
                                      "\xFF", "\\",   "\"",     "x",      "\u0301"};
    std::string name;
    for (std::size_t i = 1 + random_() % 4; i > 0; --i) name += kParts[random_() % std::size(kParts)];
    return name == "." || name == ".." ? "a" : name;
  }

  std::mt19937 random_{17};
};

TEST(LogicalNames, InAnyFolderEachIsFoundByANameOfItsOwn) {
  Folders folders;
  for (int i = 0; i < 3000; ++i) {
    const LogicalNames names(folders.Next());
    std::set<std::string> seen;
    for (const std::string& host : names.HostNames()) {
      const std::string name = NameIn(names, host);
      EXPECT_TRUE(seen.insert(name).second) << name;
      EXPECT_EQ(name, LowerCase(name));
      EXPECT_EQ(names.Find(name), host) << name;
    }
  }
}

TEST(LogicalNames, AnAliasIsNeverAnothersWhateverComesAndGoes) {
  Folders folders;
  for (int i = 0; i < 3000; ++i) {
    std::vector<std::string> hosts = folders.Next();
    const LogicalNames before(hosts);
    const std::string host = hosts[folders.Below(hosts.size())];
    const std::string name = NameIn(before, host);
    if (name == PlainName(host)) continue;
    hosts.erase(hosts.begin() + static_cast<std::ptrdiff_t>(folders.Below(hosts.size())));
    for (const std::string& more : folders.Next()) {
      const bool isSpelledSo = PlainName(more) == name;
      if (!isSpelledSo && std::find(hosts.begin(), hosts.end(), more) == hosts.end()) hosts.push_back(more);
    }
    const LogicalNames after(hosts);
    EXPECT_EQ(after.Find(name).value_or(host), host) << name;
  }
}

}  // namespace
}  // namespace tarvik
