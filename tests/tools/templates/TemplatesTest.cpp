// The templates that come with the program, as a pilot gets them.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "app/Program.h"
#include "language/ComposerTables.h"
#include "language/Statements.h"
#include "text/Rtf.h"
#include "tools/templates/TemplateForm.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

std::string ContentOf(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string TextOf(const std::string& name) {
  return ReadRtf(ContentOf(fs::path(TARVIK_DATA "/Templates") / (name + ".rtf"))).text;
}

TEST(Templates, AreWhatTheTemplateEditorMakesOfTheirText) {
  Program program;
  program.application.workbench.settings.ColoursSortOut();
  auto& form = program.application.Tool<TemplateForm>();
  int count = 0;
  for (const auto& entry : fs::directory_iterator(TARVIK_DATA "/Templates")) {
    const std::string name = entry.path().filename().string();
    const std::string stored = ContentOf(entry.path());
    ASSERT_TRUE(name.ends_with(".rtf")) << name;
    form.TemplateText.Text = ReadRtf(stored).text;
    form.Text1.Text = name;
    form.ColourTemplateText();
    form.mnuFileSave_Click();
    EXPECT_EQ(program.files().Content(form.TemplatePath.Get()), stored) << name;
    EXPECT_GT(ReadRtf(stored).colours.runs().size(), 1U) << name;
    ++count;
  }
  EXPECT_GE(count, 20);
}

using tables::Picture;

TEST(Templates, OfADeviceNameAllThatTheComposerShowsOfIt) {
  const std::map<Picture, std::vector<std::string>> devices = {
      {Picture::Stick, {"F-22 Pro", "F-16 FLCS"}},
      {Picture::PlainStick, {"PFCS", "Top Gun", "FCS"}},
      {Picture::Tqs, {"TQS"}},
      {Picture::Wcs, {}}};
  for (const tables::HardwareRow& row : tables::kHardware) {
    std::vector<std::string> tokens;
    if (row.array == "BTN") tokens = {std::string(row.caption)};
    if (row.array == "TRIG") tokens = {"TG1", "TG2"};
    if (row.array == "HAT") {
      tokens = TokensOf(row.index).positions;
      for (const std::string& corner : TokensOf(row.index).corners) tokens.push_back(corner);
    }
    for (const std::string& device : devices.at(row.picture)) {
      for (const std::string& token : tokens)
        EXPECT_THAT(TextOf(device), testing::HasSubstr("\r\nBTN " + token + " ^\r\n")) << device;
    }
  }
  for (const std::string model : {"WCS", "WCS MkII"}) {
    for (const tables::WcsRow& row : tables::kWcsButtons) {
      EXPECT_THAT(TextOf(model), testing::HasSubstr(std::string(row.plain) + " ^\r\n"));
      EXPECT_THAT(TextOf(model + " with FLCS or F-22 Pro"),
                  testing::HasSubstr(std::string(row.numbered) + " ^\r\n"));
    }
  }
}

}  // namespace
}  // namespace tarvik
