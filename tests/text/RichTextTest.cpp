#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "text/RichText.h"

namespace tarvik {
namespace {

using Model = std::vector<Colour>;

constexpr Colour kThree{255};
constexpr Colour kOne{1};
constexpr Colour kTwo{2};

void ExpectNormalForm(const ColourRuns& runs) {
  const auto all = runs.runs();
  ASSERT_EQ(all.empty(), runs.size() == 0);
  for (std::size_t i = 0; i < all.size(); ++i) {
    ASSERT_LT(all[i].start, runs.EndOf(i));
    ASSERT_TRUE(i == 0 ? all[i].start == 0 : all[i - 1].colour != all[i].colour);
  }
}

void ExpectColours(const ColourRuns& runs, const Model& model) {
  ASSERT_NO_FATAL_FAILURE(ExpectNormalForm(runs));
  ASSERT_EQ(runs.size(), model.size());
  for (std::size_t i = 0; i < model.size(); ++i) {
    ASSERT_EQ(runs.At(i), model[i]) << i;
    const std::size_t run = runs.RunAt(i);
    ASSERT_TRUE(runs.runs()[run].start <= i && i < runs.EndOf(run)) << i;
  }
}

ColourRuns RunsOf(const Model& model) {
  ColourRuns runs;
  for (const Colour colour : model) runs.Append(1, colour);
  return runs;
}

class RandomEdits {
 public:
  explicit RandomEdits(unsigned seed) : random_(seed) {}

  std::size_t Below(std::size_t n) { return random_() % n; }
  Range RangeIn(std::size_t size) {
    const std::size_t start = Below(size + 1);
    return {start, Below(std::min<std::size_t>(size - start, 12) + 1)};
  }
  Model Colours() {
    Model colours;
    for (std::size_t pieces = Below(4); pieces > 0; --pieces) {
      colours.insert(colours.end(), Below(4), static_cast<Colour>(Below(3)));
    }
    return colours;
  }

 private:
  std::mt19937 random_;
};

auto At(Model& model, std::size_t position) { return model.begin() + static_cast<std::ptrdiff_t>(position); }

TEST(ColourRuns, RandomEditsGiveTheColoursOfAPlainList) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    RandomEdits edits(seed);
    ColourRuns runs;
    Model model;
    for (int step = 0; step < 500; ++step) {
      const Model colours = edits.Colours();
      const Range range = edits.RangeIn(model.size());
      if (edits.Below(4) == 0) {
        const auto colour = static_cast<Colour>(edits.Below(3));
        const std::size_t length = edits.Below(3);
        runs.Append(length, colour);
        model.insert(model.end(), length, colour);
      } else {
        runs.Replace(range, RunsOf(colours));
        model.erase(At(model, range.start), At(model, range.End()));
        model.insert(At(model, range.start), colours.begin(), colours.end());
      }
      ASSERT_NO_FATAL_FAILURE(ExpectColours(runs, model)) << "seed " << seed << " step " << step;
      ASSERT_TRUE(runs == RunsOf(model));

      const Range slice = edits.RangeIn(model.size());
      ASSERT_NO_FATAL_FAILURE(
          ExpectColours(runs.Slice(slice), Model(At(model, slice.start), At(model, slice.End()))));
    }
  }
}

TEST(ColourRuns, NoColoursAtAllAreBlackEverywhere) {
  const ColourRuns none;
  EXPECT_EQ(none.size(), 0U);
  EXPECT_EQ(none.At(0), kBlack);
  EXPECT_TRUE(none.Slice({0, 0}) == none);
  EXPECT_TRUE(ColourRuns(0, kThree) == none);
}

TEST(ColourRuns, FromTheEndOnIsBlack) {
  const ColourRuns red(3, kThree);
  EXPECT_EQ(red.At(2), kThree);
  EXPECT_EQ(red.At(3), kBlack);
}

TEST(ColourRuns, ReplacingAllByNothingLeavesNothing) {
  ColourRuns runs = RunsOf({kOne, kOne, kTwo, kThree});
  runs.Replace({0, 4}, {});
  EXPECT_TRUE(runs == ColourRuns());
  runs.Replace({0, 0}, ColourRuns(2, kTwo));
  EXPECT_TRUE(runs == ColourRuns(2, kTwo));
}

TEST(ColourRuns, NeighboursOfOneColourBecomeOneRun) {
  ColourRuns runs = RunsOf({kOne, kOne, kTwo, kOne, kOne});
  runs.Replace({2, 1}, ColourRuns(3, kOne));
  EXPECT_EQ(runs.runs().size(), 1U);
  EXPECT_EQ(runs.size(), 7U);
}

TEST(RichText, PlainTextHasOneColour) {
  const RichText text("abc", kThree);
  EXPECT_EQ(text.size(), 3U);
  EXPECT_TRUE(text.colours == ColourRuns(3, kThree));
  EXPECT_TRUE(RichText("") == RichText());
  EXPECT_FALSE(RichText("abc") == text);
}

TEST(WithPaneLineBreaks, EveryKindOfLineEndBecomesCrLf) {
  EXPECT_EQ(WithPaneLineBreaks(""), "");
  EXPECT_EQ(WithPaneLineBreaks("abc"), "abc");
  EXPECT_EQ(WithPaneLineBreaks("a\nb"), "a\r\nb");
  EXPECT_EQ(WithPaneLineBreaks("a\rb"), "a\r\nb");
  EXPECT_EQ(WithPaneLineBreaks("a\r\nb\r\n"), "a\r\nb\r\n");
  EXPECT_EQ(WithPaneLineBreaks("\n\r"), "\r\n\r\n");
  EXPECT_EQ(WithPaneLineBreaks("\r\r\n\n"), "\r\n\r\n\r\n");
  EXPECT_EQ(WithPaneLineBreaks("a\r\nb\nc\rd\n\ne\r"), "a\r\nb\r\nc\r\nd\r\n\r\ne\r\n");
}

TEST(WithPaneLineBreaks, ZeroBytesStay) {
  const std::string text("a\0b\n\0", 5);
  EXPECT_EQ(WithPaneLineBreaks(text), std::string("a\0b\r\n\0", 6));
}

TEST(WithPaneLineBreaks, ASecondTimeChangesNothing) {
  std::mt19937 random(3);
  for (int i = 0; i < 2000; ++i) {
    std::string text;
    for (auto length = random() % 12; length > 0; --length) text += "\r\nab"[random() % 4];
    const std::string once = WithPaneLineBreaks(text);
    EXPECT_EQ(WithPaneLineBreaks(once), once);
  }
}

}  // namespace
}  // namespace tarvik
