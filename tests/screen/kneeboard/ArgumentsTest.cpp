// The command line of tarvik-kneeboard.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "screen/kneeboard/Arguments.h"

namespace tarvik::screen {
namespace {

using kneeboard::Options;
using testing::HasSubstr;
using testing::StartsWith;

struct Result {
  std::variant<Arguments, Status> read;
  std::string out;
  std::string error;

  [[nodiscard]] const Arguments& arguments() const { return std::get<Arguments>(read); }
};

Result Read(const std::vector<std::string>& words) {
  std::vector<const char*> all = {"tarvik-kneeboard"};
  for (const std::string& word : words) all.push_back(word.c_str());
  std::ostringstream out;
  std::ostringstream error;
  auto read = ReadArguments(static_cast<int>(all.size()), all.data(), {out, error});
  return {std::move(read), out.str(), error.str()};
}

Options OptionsOf(std::vector<std::string> words) {
  words.insert(words.begin(), {"a.b50", "-o", "a.pdf"});
  return Read(words).arguments().options;
}

std::string ErrorOf(std::vector<std::string> words) {
  words.insert(words.begin(), {"a.b50", "-o", "a.pdf"});
  const Result result = Read(words);
  EXPECT_EQ(std::get<Status>(result.read), kUnreadable);
  return result.error;
}

TEST(KneeboardArguments, AFileAndWhereToWriteAreEnough) {
  const Result result = Read({"strike.b50", "-o", "out.pdf"});
  EXPECT_EQ(result.arguments().file, "strike.b50");
  EXPECT_EQ(result.arguments().output, "out.pdf");
  EXPECT_EQ(result.arguments().options, Options());
  EXPECT_EQ(result.arguments().inks, kneeboard::Colouring::Colours);
  EXPECT_EQ(Read({"strike.b50"}).error.find("--output is required"), 0U);
  EXPECT_EQ(Read({"-o", "out.pdf"}).error.find("FILE is required"), 0U);
}

TEST(KneeboardArguments, TheEndingIsTheFormat) {
  const auto formatOf = [](const char* path) { return Read({"a.b50", "-o", path}).arguments().format; };
  EXPECT_EQ(formatOf("a.pdf"), Format::Pdf);
  EXPECT_EQ(formatOf("a.SVG"), Format::Svg);
  EXPECT_EQ(formatOf("a.b.png"), Format::Png);
  EXPECT_EQ(formatOf("folder.pdf/a.txt"), Format::Text);
  for (const char* path : {"a", "a.doc", "pdf", "folder.pdf/a"}) {
    const Result result = Read({"a.b50", "-o", path});
    EXPECT_EQ(std::get<Status>(result.read), kUnreadable) << path;
    EXPECT_THAT(result.error, HasSubstr(std::string("Must end in .pdf, .svg, .png or .txt: ") + path));
  }
}

TEST(KneeboardArguments, ThePaperIsChosen) {
  EXPECT_EQ(OptionsOf({"--paper", "a5"}).paper, kneeboard::Paper::A5);
  EXPECT_EQ(OptionsOf({"--paper", "Letter"}).paper, kneeboard::Paper::Letter);
  EXPECT_EQ(OptionsOf({"--landscape"}).turned, kneeboard::Turned::Landscape);
  EXPECT_TRUE(OptionsOf({"--two"}).twoOnASheet);
  EXPECT_THAT(ErrorOf({"--paper", "a6"}), HasSubstr("a6"));
}

TEST(KneeboardArguments, WhatIsShownIsChosen) {
  EXPECT_EQ(OptionsOf({"--layers", "each"}).layers, kneeboard::Layers::PageEach);
  EXPECT_EQ(OptionsOf({"--order", "heading"}).order, kneeboard::ListOrder::ByHeading);
  EXPECT_FALSE(OptionsOf({"--no-keys"}).hasKeys);
  const Options some = OptionsOf({"--pages", "devices,list"});
  EXPECT_TRUE(some.hasDevices);
  EXPECT_FALSE(some.hasKeyboard);
  EXPECT_TRUE(some.hasList);
  EXPECT_THAT(ErrorOf({"--pages", "devices,pictures"}), HasSubstr("pictures"));
}

TEST(KneeboardArguments, HowItIsPaintedIsChosen) {
  EXPECT_EQ(Read({"a.b50", "-o", "a.png", "--black-and-white"}).arguments().inks,
            kneeboard::Colouring::BlackAndWhite);
  EXPECT_EQ(Read({"a.b50", "-o", "a.png", "--resolution", "300"}).arguments().dotsPerInch, 300);
  EXPECT_THAT(ErrorOf({"--resolution", "5"}), HasSubstr("5"));
  EXPECT_THAT(ErrorOf({"--resolution", "fine"}), HasSubstr("fine"));
}

TEST(KneeboardArguments, HelpAndVersionAreNoErrors) {
  const Result help = Read({"--help"});
  EXPECT_EQ(std::get<Status>(help.read), kFine);
  for (const char* option : {"--output", "--paper", "a4|a5|letter", "--layers", "--resolution", "FILE"}) {
    EXPECT_THAT(help.out, HasSubstr(option));
  }
  EXPECT_THAT(Read({"--version"}).out, StartsWith("tarvik-kneeboard "));
}

}  // namespace
}  // namespace tarvik::screen
