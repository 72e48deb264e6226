// That everything on a kneeboard can be read: by geometry, for all papers and all lengths of words.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "support/Geometry.h"
#include "support/HandMade.h"

namespace tarvik::kneeboard {
namespace {

double MarginFor(const Options& options) {
  Spot size = SizeOf(options);
  if (options.twoOnASheet) (size.x < size.y ? size.y : size.x) /= 2;
  return MarginOf(size);
}

std::vector<Options> AllPapers() {
  std::vector<Options> all;
  for (const Paper paper : {Paper::A4, Paper::Letter, Paper::A5}) {
    for (const Turned turned : {Turned::Portrait, Turned::Landscape}) {
      for (const bool two : {false, true}) {
        Options options;
        options.paper = paper;
        options.turned = turned;
        options.twoOnASheet = two;
        all.push_back(options);
      }
    }
  }
  return all;
}

std::string NameOf(const Options& options) {
  constexpr const char* kPapers[] = {"A4", "Letter", "A5"};
  std::string name = kPapers[static_cast<std::size_t>(options.paper)];
  name.append(options.turned == Turned::Portrait ? "Portrait" : "Landscape");
  return name.append(options.twoOnASheet ? "Two" : "One");
}

/// All words of all sheets, without blanks: a word that was broken is whole in it.
std::string AllWords(const std::vector<Sheet>& sheets) {
  std::string all;
  for (const Sheet& sheet : sheets) {
    for (const Words& words : sheet.words) all.append(words.text);
  }
  std::erase(all, ' ');
  return all;
}

class SheetsLayout : public testing::TestWithParam<Options> {};

INSTANTIATE_TEST_SUITE_P(Papers, SheetsLayout, testing::ValuesIn(AllPapers()),
                         [](const auto& info) { return NameOf(info.param); });

TEST_P(SheetsLayout, CanBeReadWhateverTheLengthOfTheWords) {
  for (std::size_t letters = 1; letters <= 60; letters += 1) {
    const auto sheets = Laid(MadeOf(Amount::Full, letters), GetParam());
    for (std::size_t i = 0; i < sheets.size(); ++i)
      ASSERT_EQ(Faults(sheets[i], MarginFor(GetParam())), "") << letters << " letters, sheet " << i;
  }
}

TEST_P(SheetsLayout, CanBeReadWithFewActionsAndWithMany) {
  for (const Amount amount : {Amount::Sparse, Amount::Crowded}) {
    for (const std::size_t letters : {1, 12, 37, 60}) {
      const auto sheets = Laid(MadeOf(amount, letters), GetParam());
      for (std::size_t i = 0; i < sheets.size(); ++i)
        ASSERT_EQ(Faults(sheets[i], MarginFor(GetParam())), "") << letters << " letters, sheet " << i;
    }
  }
}

TEST_P(SheetsLayout, CanBeReadWithAPageForEachLayer) {
  Options options = GetParam();
  options.layers = Layers::PageEach;
  for (const std::size_t letters : {3, 40}) {
    for (const Sheet& sheet : Laid(MadeOf(Amount::Full, letters), options))
      ASSERT_EQ(Faults(sheet, MarginFor(options)), "") << letters;
  }
}

TEST_P(SheetsLayout, CanBeReadWithManyKeys) {
  std::string keys;
  for (int i = 0; i < 120; ++i) keys.append(i == 0 ? "" : " ").append("SHF F12");
  Contents contents = MadeOf(Amount::Full, 12);
  for (DevicePage& device : contents.devices) {
    for (Control& control : device.controls) control.actions.front().deed.keys = keys;
  }
  for (const Sheet& sheet : Laid(contents, GetParam())) ASSERT_EQ(Faults(sheet, MarginFor(GetParam())), "");
}

TEST_P(SheetsLayout, LeavesNoWordsOut) {
  Contents contents = MadeOf(Amount::Crowded, 20);
  Options options = GetParam();
  options.hasList = false;
  options.hasKeyboard = false;
  int number = 0;
  std::vector<std::string> names;
  for (DevicePage& device : contents.devices) {
    for (Control& control : device.controls) {
      for (Action& action : control.actions) {
        names.push_back("Name" + std::to_string(++number) + std::string(20, 'x') + "End");
        action.deed.words = names.back();
        if (number % 50 == 0) action.deed.words.append(400, 'y');
      }
    }
  }
  const std::string all = AllWords(Laid(contents, options));
  for (const std::string& name : names) EXPECT_THAT(all, testing::HasSubstr(name));
}

}  // namespace
}  // namespace tarvik::kneeboard
