// The kneeboards of the samples and of all pairs in tests/pairs/: that everything on them can be read, on
// every paper, in the real type. Where everything stands on those of the samples and of the tidy pairs is
// kept in tests/kneeboard/sheets/, by letters of one width; TARVIK_PROMOTE=1 in the environment writes it
// anew.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "pairs/PairFiles.h"
#include "pairs/PairOnDisk.h"
#include "screen/kneeboard/DeviceDrawings.h"
#include "screen/kneeboard/Fonts.h"
#include "support/Geometry.h"
#include "support/HandMade.h"
#include "support/Told.h"

namespace tarvik::screen {
namespace {

namespace fs = std::filesystem;
using kneeboard::Options;
using kneeboard::Sheet;

std::vector<fs::path> JoystickFilesIn(const std::string& folder) {
  std::vector<fs::path> files = *pairs::FilesIn(folder);
  std::erase_if(files, [](const fs::path& file) { return pairs::RoleOf(file) != pairs::Role::Joystick; });
  EXPECT_FALSE(files.empty()) << folder;
  return files;
}

kneeboard::Contents ContentsOfFile(const fs::path& file) {
  const auto pair = pairs::PairOnDisk::Read(file);
  EXPECT_TRUE(pair) << file;
  const model::FilePair view = pair->View();
  const model::NameIndex names(view.joystick, view.joystickText, view.macros, view.macroText);
  return kneeboard::ContentsOf(view, names);
}

std::vector<Options> AllWays() {
  std::vector<Options> all;
  for (const auto paper : {kneeboard::Paper::A4, kneeboard::Paper::Letter, kneeboard::Paper::A5}) {
    for (const auto turned : {kneeboard::Turned::Portrait, kneeboard::Turned::Landscape}) {
      all.push_back({.paper = paper, .turned = turned});
      all.push_back({.paper = paper, .turned = turned, .twoOnASheet = true});
      all.push_back({.paper = paper, .turned = turned, .layers = kneeboard::Layers::PageEach});
    }
  }
  return all;
}

void LookAt(const fs::path& file) {
  const DeviceDrawings drawings;
  const kneeboard::Contents contents = ContentsOfFile(file);
  for (const Options& options : AllWays()) {
    kneeboard::Spot size = kneeboard::SizeOf(options);
    if (options.twoOnASheet) (size.x < size.y ? size.y : size.x) /= 2;
    for (const Sheet& sheet : kneeboard::SheetsOf(contents, options, FontMeasure(), drawings))
      ASSERT_EQ(Faults(sheet, kneeboard::MarginOf(size)), "") << file << ' ' << size.x << 'x' << size.y;
  }
}

TEST(KneeboardCorpus, TheSamplesCanBeRead) {
  for (const fs::path& file : JoystickFilesIn(TARVIK_DATA "/samples")) LookAt(file);
}

TEST(KneeboardCorpus, AllPairsCanBeRead) {
  for (const fs::path& file : JoystickFilesIn(TARVIK_DATA "/../tests/pairs")) LookAt(file);
}

/// Compares where everything stands on the kneeboard with tests/kneeboard/sheets/NAME.txt.
void CompareWithGolden(const fs::path& file, const std::string& name, const Options& options) {
  std::string told;
  for (const Sheet& sheet : kneeboard::Laid(ContentsOfFile(file), options)) told.append(Told(sheet));
  const std::string golden =
      std::string(TARVIK_DATA "/../tests/kneeboard/sheets/").append(name).append(".txt");
  if (std::getenv("TARVIK_PROMOTE") != nullptr) std::ofstream(golden, std::ios::binary) << told;
  std::ifstream in(golden, std::ios::binary);
  EXPECT_EQ(told, std::string(std::istreambuf_iterator<char>(in), {})) << file;
}

TEST(KneeboardCorpus, OnThoseOfTheSamplesEverythingStandsWhereItStood) {
  for (const fs::path& file : JoystickFilesIn(TARVIK_DATA "/samples"))
    CompareWithGolden(file, file.stem().string(), {});
}

TEST(KneeboardCorpus, OnTheDevicesOfTidyPairsEverythingStandsWhereItStood) {
  for (const fs::path& file : JoystickFilesIn(TARVIK_DATA "/../tests/pairs/tidy")) {
    const std::string name = file.parent_path().filename().string();
    CompareWithGolden(file, "tidy/" + name, {.hasKeyboard = false, .hasList = false});
  }
}

}  // namespace
}  // namespace tarvik::screen
