// Where everything stands on the sheets of a few kneeboards, each in tests/kneeboard/sheets/NAME.txt. With
// TARVIK_PROMOTE=1 in the environment they are written anew: look at what differs, and at the pages.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "support/HandMade.h"
#include "support/Told.h"

namespace tarvik::kneeboard {
namespace {

struct GoldenRow {
  const char* name;
  Amount amount;
  std::size_t letters;
  Options options;
};

const GoldenRow kRows[] = {
    {"sparse-a4", Amount::Sparse, 12, {}},
    {"full-a4", Amount::Full, 14, {}},
    {"full-letter-landscape", Amount::Full, 14, {.paper = Paper::Letter, .turned = Turned::Landscape}},
    {"full-a5-layers", Amount::Full, 14, {.paper = Paper::A5, .layers = Layers::PageEach}},
    {"full-a4-two", Amount::Full, 33, {.turned = Turned::Landscape, .twoOnASheet = true}},
};

class GoldenSheetsLayout : public testing::TestWithParam<GoldenRow> {};

INSTANTIATE_TEST_SUITE_P(Kneeboards, GoldenSheetsLayout, testing::ValuesIn(kRows), [](const auto& info) {
  std::string name = info.param.name;
  std::erase(name, '-');
  return name;
});

TEST_P(GoldenSheetsLayout, AreAsTheyWere) {
  const GoldenRow& row = GetParam();
  std::string told;
  for (const Sheet& sheet : Laid(MadeOf(row.amount, row.letters), row.options)) told.append(Told(sheet));
  const std::string golden =
      std::string(TARVIK_DATA "/../tests/kneeboard/sheets/").append(row.name).append(".txt");
  if (std::getenv("TARVIK_PROMOTE") != nullptr) std::ofstream(golden, std::ios::binary) << told;
  std::ifstream in(golden, std::ios::binary);
  EXPECT_EQ(told, std::string(std::istreambuf_iterator<char>(in), {}));
}

}  // namespace
}  // namespace tarvik::kneeboard
