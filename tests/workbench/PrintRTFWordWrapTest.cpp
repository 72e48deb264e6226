#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/MemoryFiles.h"
#include "support/ScriptedPrinter.h"
#include "workbench/PrintRTFWordWrap.h"

namespace tarvik {
namespace {

using testing::ElementsAre;

/// Tells what it is asked for, and fails once, at one of its steps. A page takes ten characters.
class SmallPrinter : public ScriptedPrinter {
 public:
  Outcome<> Print(const std::string& line, Weight weight) override {
    return Step("print") ? ScriptedPrinter::Print(line, weight) : Fault();
  }
  Outcome<Paper> Sheet() override {
    if (!Step("sheet")) return Fault().failure();
    return ScriptedPrinter::Sheet();
  }
  Outcome<std::size_t> FormatRange(const FormattedText& text, std::size_t from,
                                   const PrintArea& area) override {
    if (!Step("render")) return Fault().failure();
    last = text;
    lastArea = area;
    return std::min(from + 10, text.text.size());
  }
  Outcome<> NewPage() override { return Step("page") ? ScriptedPrinter::NewPage() : Fault(); }
  Outcome<> EndDocument() override { return Step("end") ? ScriptedPrinter::EndDocument() : Fault(); }

  std::vector<std::string> steps;
  std::size_t failing = 100;  ///< the step, from 0
  FormattedText last;
  PrintArea lastArea;

 private:
  bool Step(const char* name) {
    steps.emplace_back(name);
    return steps.size() - 1 != failing;
  }
  static Outcome<> Fault() { return Failure{error::kPrinter, "Out of paper", 7}; }
};

class PrintRTFTest : public testing::Test {
 protected:
  void Print() { PrintRTF(printer, errors, pane, 1000, 2000, 3000, 4000); }

  MemoryFiles files;
  Form form{"Editor"};
  Pane pane{form, "JoystickText", files};
  FixedCalendar calendar;
  Log log{calendar};
  Errors errors{log};
  SmallPrinter printer;
};

TEST_F(PrintRTFTest, TheMarginsCountFromTheEdgesOfTheSheet) {
  pane.Text = "BTN";
  Print();
  EXPECT_EQ(printer.lastArea.left, 1000 - 360);
  EXPECT_EQ(printer.lastArea.top, 2000 - 240);
  EXPECT_EQ(printer.lastArea.right, 12240 - 3000 - 360);
  EXPECT_EQ(printer.lastArea.bottom, 15840 - 4000 - 240);
}

TEST_F(PrintRTFTest, TheTextHasTheLookOfItsPane) {
  pane.SelFontName = "Courier New";
  pane.SelFontSize = 10.5F;
  pane.SelBold = true;
  pane.SelIndent = 20;
  pane.SetContent(RichText("BTN S1"));
  pane.Recolour(0, ColourRuns(3, Colour{255}));
  Print();
  EXPECT_EQ(printer.last.text, "BTN S1");
  EXPECT_EQ(printer.last.font, "Courier New");
  EXPECT_EQ(printer.last.size, 10.5F);
  EXPECT_TRUE(printer.last.bold);
  EXPECT_EQ(printer.last.indent, 300);
  EXPECT_EQ(printer.last.colours.runs().size(), 2U);
  EXPECT_EQ(printer.last.colours.EndOf(0), 3U);
  EXPECT_EQ(printer.last.colours.At(2), Colour{255});
  EXPECT_EQ(printer.last.colours.At(3), kBlack);
}

TEST_F(PrintRTFTest, AFullPageIsTheLastOneWhenNothingIsLeft) {
  pane.Text = "0123456789";
  Print();
  EXPECT_THAT(printer.steps, ElementsAre("print", "sheet", "render", "end"));
  EXPECT_EQ(errors.ErrorTag.Get(), "");
}

TEST_F(PrintRTFTest, ACharacterMoreTakesAnotherPage) {
  pane.Text = "0123456789a";
  Print();
  EXPECT_THAT(printer.steps, ElementsAre("print", "sheet", "render", "page", "print", "render", "end"));
}

TEST_F(PrintRTFTest, AStepThatFailsIsRecordedAndTheNextOneIsMade) {
  pane.Text = "0123456789a";
  Print();
  const std::vector<std::string> all = std::exchange(printer.steps, {});
  for (std::size_t failing = 0; failing < all.size(); ++failing) {
    errors.ErrorTag = "";
    printer.failing = failing;
    Print();
    std::vector<std::string> expected = all;
    if (all[failing] == "render") {
      expected.resize(failing + 1);  // which is where the pages end
      expected.emplace_back("end");
    }
    EXPECT_EQ(std::exchange(printer.steps, {}), expected) << failing;
    EXPECT_EQ(errors.ErrorTag.Get(), "MODULE PrintRTF") << failing;
    EXPECT_EQ(errors.ErrorNumber.Get(), 482) << failing;
    EXPECT_EQ(errors.ErrorText.Get(), "Out of paper") << failing;
    EXPECT_EQ(errors.ErrorDllCode.Get(), "7") << failing;
  }
}

}  // namespace
}  // namespace tarvik
