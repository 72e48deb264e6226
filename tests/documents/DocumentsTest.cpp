// The documents name what is there: their links lead somewhere, and so do the paths in them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "support/TemporaryFolder.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

const fs::path kRoot = fs::path(TARVIK_DATA).parent_path();

struct WrittenDocument {
  fs::path path;
  std::string text;
};

/// Those for people who work on the program, and the guide.
std::vector<WrittenDocument> WrittenDocuments() {
  std::vector<WrittenDocument> documents;
  const auto add = [&documents](const fs::directory_entry& entry) {
    if (entry.path().extension() == ".md")
      documents.push_back({entry.path(), TemporaryFolder::Content(entry.path())});
  };
  for (const auto& entry : fs::directory_iterator(kRoot)) add(entry);
  for (const char* const folder : {"docs", ".github"}) {
    for (const auto& entry : fs::recursive_directory_iterator(kRoot / folder)) add(entry);
  }
  return documents;
}

std::vector<std::string> FirstGroups(const std::string& text, const std::regex& pattern) {
  std::vector<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at)
    found.push_back((*at)[1]);
  return found;
}

/// The names of all files that people have written.
std::set<std::string> FileNames() {
  std::set<std::string> names;
  for (auto entry = fs::recursive_directory_iterator(kRoot); entry != fs::recursive_directory_iterator();
       ++entry) {
    const std::string name = entry->path().filename();
    if (entry.depth() == 0 && (name.starts_with("build") || name == ".git")) {
      entry.disable_recursion_pending();
    } else if (entry->is_regular_file()) {
      names.insert(name);
    }
  }
  return names;
}

/// `panes/Pane.h`, `docs/guide/`, `screen/widgets/DeviceView` for the header of that name.
bool IsThere(const std::string& path) {
  return fs::exists(kRoot / path) || fs::exists(kRoot / (path + ".h"));
}

TEST(Documents, AreAllLookedAt) {
  std::vector<std::string> names;
  for (const WrittenDocument& document : WrittenDocuments()) names.push_back(document.path.filename());
  EXPECT_THAT(names, testing::IsSupersetOf({"README.md", "CHANGELOG.md", "SECURITY.md", "architecture.md",
                                            "decisions.md", "first-hour.md", "CONTRIBUTING.md", "12-keys.md",
                                            "pull_request_template.md", "defect.md", "wish.md"}));
}

TEST(Documents, LinkToWhatIsThere) {
  const std::regex link(R"(\]\(([^)#\s]+)[^)]*\))");
  for (const WrittenDocument& document : WrittenDocuments()) {
    for (const std::string& target : FirstGroups(document.text, link)) {
      if (target.starts_with("http")) continue;
      EXPECT_TRUE(fs::exists(document.path.parent_path() / target))
          << document.path << " links to " << target;
    }
  }
}

/// A path of this tree in backticks: with an ending of sources and documents, of a folder, or of a class.
TEST(Documents, NamePathsThatAreThere) {
  const std::regex path(
      R"(`((?:[a-z.][\w.-]*/)+(?:[\w.-]+\.(?:h|cpp|md|session|hlp|qrc|css|txt|ini)|[A-Z]\w+|))`)");
  for (const WrittenDocument& document : WrittenDocuments()) {
    if (document.path.parent_path().filename() == "guide") continue;  // which tells of the user's folders
    for (const std::string& named : FirstGroups(document.text, path)) {
      if (named.find("NAME") != std::string::npos || named.starts_with("build/")) continue;
      EXPECT_TRUE(IsThere(named)) << document.path << " names " << named;
    }
  }
}

TEST(Documents, NameSessionsThatAreThere) {
  const std::set<std::string> names = FileNames();
  const std::regex session(R"(`([a-z][\w-]*\.session)`)");
  int count = 0;
  for (const WrittenDocument& document : WrittenDocuments()) {
    for (const std::string& named : FirstGroups(document.text, session)) {
      EXPECT_TRUE(names.contains(named)) << document.path << " names " << named;
      ++count;
    }
  }
  EXPECT_GT(count, 3);
}

/// Of a promise, "Suite.Name" or "Suite.Beginning…"; ".Name" is of the suite before it.
std::vector<std::string> TestsNamedIn(const std::string& row) {
  std::vector<std::string> tests;
  std::string suite;
  for (std::string name : FirstGroups(row, std::regex(R"(`((?:[A-Z]\w+)?\.[A-Z]\w+)(?:…)?`)"))) {
    const std::size_t dot = name.find('.');
    if (dot > 0) suite = name.substr(0, dot);
    tests.push_back(suite + name.substr(dot));
  }
  return tests;
}

/// All unit tests, as "Suite.Name".
std::string AllTests() {
  const std::regex test(R"(\nTEST(?:_F|_P)?\((\w+),\s*(\w+)\))");
  std::string tests;
  for (const auto& entry : fs::recursive_directory_iterator(kRoot / "tests")) {
    if (entry.path().extension() != ".cpp") continue;
    const std::string text = TemporaryFolder::Content(entry.path());
    for (std::sregex_iterator at(text.begin(), text.end(), test), end; at != end; ++at) {
      tests += "\n" + (*at)[1].str() + "." + (*at)[2].str();
    }
  }
  return tests;
}

TEST(Documents, NameATestForEveryPromise) {
  const std::string tests = AllTests();
  const std::string text = TemporaryFolder::Content(kRoot / "docs/your-files.md");
  const std::string table = text.substr(text.find("| Promise |"), text.find("## What is not promised"));
  int promises = 0;
  for (const std::string& row : FirstGroups(table, std::regex(R"(\n(\|[^\n]+))"))) {
    if (row.starts_with("|---")) continue;
    ++promises;
    EXPECT_THAT(row, testing::ContainsRegex("`[^`]+`")) << "no test is named";
    for (const std::string& named : TestsNamedIn(row)) EXPECT_THAT(tests, testing::HasSubstr("\n" + named));
  }
  EXPECT_GT(promises, 10);
}

/// The row that the first hour changes stands as it says in the file that it names.
TEST(Documents, BeginAnExampleWithWhatIsThere) {
  const std::string lesson = TemporaryFolder::Content(kRoot / "docs/first-hour.md");
  const std::string source = TemporaryFolder::Content(kRoot / "app/EditorTables.h");
  const std::vector<std::string> rows = FirstGroups(lesson, std::regex(R"(\n    -( [^\n]+))"));
  EXPECT_THAT(rows, testing::SizeIs(1));
  for (const std::string& row : rows) EXPECT_THAT(source, testing::HasSubstr(row));
}

}  // namespace
}  // namespace tarvik
