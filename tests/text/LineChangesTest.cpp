#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <sstream>

#include "text/LineChanges.h"

namespace tarvik {
namespace {

/// A text that is edited, and says which of its lines are changed: "." as saved, "*" changed, "^" with lines
/// missing before it, also behind the last one.
class Edited {
 public:
  explicit Edited(std::string text) : text_(std::move(text)) { changes_.Begin(text_); }

  void Replace(std::size_t position, std::size_t length, const std::string& inserted) {
    const std::string removed = text_.substr(position, length);
    const auto line = static_cast<std::size_t>(
        std::count(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(position), '\n'));
    text_.replace(position, length, inserted);
    changes_.Edit(text_, line, position, removed, inserted);
  }
  void Replace(const std::string& old, const std::string& inserted) {
    Replace(text_.find(old), old.size(), inserted);
  }
  void Save() { changes_.Begin(text_); }

  [[nodiscard]] std::string Marks() const {
    std::string marks;
    for (std::size_t line = 0; line < changes_.Lines(); ++line) {
      if (changes_.LacksLinesBefore(line)) marks += '^';
      marks += changes_.IsChanged(line) ? '*' : '.';
    }
    if (changes_.LacksLinesBefore(changes_.Lines())) marks += '^';
    return marks;
  }
  [[nodiscard]] const std::string& text() const { return text_; }
  [[nodiscard]] const LineChanges& changes() const { return changes_; }

 private:
  std::string text_;
  LineChanges changes_;
};

TEST(LineChanges, NothingIsChangedAtFirst) { EXPECT_EQ(Edited("a\r\nb\r\n").Marks(), "..."); }

TEST(LineChanges, AnEditedLineIsChangedUntilItIsWhatItWas) {
  Edited text("a\r\nb\r\nc");
  text.Replace("b", "bx");
  EXPECT_EQ(text.Marks(), ".*.");
  text.Replace("bx", "b");
  EXPECT_EQ(text.Marks(), "...");
}

TEST(LineChanges, ALineThatIsPutBackBetweenChangedOnesIsNot) {
  Edited text("a\nb\nc\nd\ne");
  for (const char* const line : {"b", "c", "d"}) text.Replace(line, std::string(line) + "!");
  EXPECT_EQ(text.Marks(), ".***.");
  text.Replace("c!", "c");
  EXPECT_EQ(text.Marks(), ".*.*.");
}

TEST(LineChanges, ANewLineIsChangedAndThoseAroundItAreNot) {
  Edited text("a\nb\nc");
  text.Replace("b\n", "b\nnew\n");
  EXPECT_EQ(text.Marks(), "..*.");
}

TEST(LineChanges, LinesThatAreGoneAreMissedWhereTheyStood) {
  Edited text("a\nb\nc\nd");
  text.Replace("b\nc\n", "");
  EXPECT_EQ(text.Marks(), ".^.");
  text.Replace("d", "b\nc\nd");
  EXPECT_EQ(text.Marks(), "....");
}

TEST(LineChanges, LinesThatAreGoneFromTheBeginningAndTheEndAreMissedToo) {
  Edited text("a\nb\nc");
  text.Replace("a\n", "");
  text.Replace("\nc", "");
  EXPECT_EQ(text.Marks(), "^.^");
}

TEST(LineChanges, ALineThatIsSplitIsTwoChangedOnes) {
  Edited text("a\nbc\nd");
  text.Replace("bc", "b\nc");
  EXPECT_EQ(text.Marks(), ".**.");
  text.Replace("b\nc", "bc");
  EXPECT_EQ(text.Marks(), "...");
}

TEST(LineChanges, SavingMakesTheTextTheOneThatCounts) {
  Edited text("a\nb");
  text.Replace("b", "x");
  text.Save();
  EXPECT_EQ(text.Marks(), "..");
}

TEST(LineChanges, KnowsNothingOfLinesThatAreNotThere) {
  const Edited text("a");
  EXPECT_FALSE(text.changes().IsChanged(7));
  EXPECT_FALSE(text.changes().LacksLinesBefore(7));
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::istringstream in(text + '\n');
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

/// After any edits: the lines that are not changed are saved ones, in their order; a text that is as it was
/// saved has no changed line.
TEST(LineChanges, HoldsAfterAnyEdits) {
  std::mt19937 random(7);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  for (int round = 0; round < 300; ++round) {
    std::string saved;
    for (std::size_t i = below(12); i > 0; --i) saved += "abcd\n"[below(5)];
    Edited text(saved);
    for (int edit = 0; edit < 20; ++edit) {
      const std::size_t position = below(text.text().size() + 1);
      const std::size_t length = below(text.text().size() - position + 1);
      std::string inserted;
      for (std::size_t i = below(4); i > 0; --i) inserted += "abcd\n"[below(5)];
      text.Replace(position, length, inserted);
      const std::vector<std::string> now = LinesOf(text.text());
      ASSERT_EQ(text.changes().Lines(), now.size());
      const std::vector<std::string> before = LinesOf(saved);
      auto next = before.begin();
      for (std::size_t line = 0; line < now.size(); ++line) {
        if (text.changes().IsChanged(line)) continue;
        next = std::find(next, before.end(), now[line]);
        ASSERT_NE(next++, before.end()) << text.text() << " of " << saved;
      }
    }
    text.Replace(0, text.text().size(), saved);
    EXPECT_EQ(text.Marks(), std::string(LinesOf(saved).size(), '.'));
  }
}

}  // namespace
}  // namespace tarvik
