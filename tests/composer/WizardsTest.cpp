// What the tables of the wizards promise; the sessions walk through them.
#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "app/Program.h"
#include "tools/wizards/JoystickWiz.h"
#include "tools/wizards/MacroWizard.h"
#include "tools/wizards/Speedy.h"

namespace tarvik {
namespace {

/// The controls that a page shows, in reading order.
std::vector<std::string> ControlsOn(const tables::GuidePage& page) {
  std::vector<std::string> names;
  for (const tables::GuideRow& row : page.rows) {
    std::istringstream words{std::string(row.control)};
    for (std::string name; words >> name;) names.push_back(name);
  }
  return names;
}

std::size_t TextsOf(const GuidedForm& form) {
  std::size_t texts = 0;
  for (const tables::GuidePage& page : form.pages) {
    for (const tables::GuideRow& row : page.rows) texts += row.text.empty() ? 0 : 1;
  }
  return texts;
}

class Wizards : public testing::Test {
 protected:
  Program program;
};

TEST_F(Wizards, ShowEachWorkingControlOnItsPageAndOnce) {
  const auto& wizard = program.application.Tool<MacroWizard>();
  const std::map<std::size_t, std::vector<std::string>> wanted = {
      {0, {"Command1(0)"}},
      {1, {"Command1(1)"}},
      {8, {"Command1(2)"}},
      {11, {"List1", "Command1(3)"}},
      {12, {"Text1(0)", "Text1(1)", "Label1(38)", "Command1(4)", "Command1(5)", "Command1(6)"}},
      {13, {"Command1(7)", "Command1(8)"}},
  };
  ASSERT_EQ(wizard.pages.size(), 14U);
  for (std::size_t page = 0; page < wizard.pages.size(); ++page) {
    EXPECT_EQ(ControlsOn(wizard.pages[page]),
              wanted.contains(page) ? wanted.at(page) : std::vector<std::string>())
        << page;
  }
}

TEST_F(Wizards, ShowEachButtonOfTheJoystickWizardOnItsPage) {
  const auto& wizard = program.application.Tool<JoystickWiz>();
  constexpr std::size_t kPages[] = {0, 1, 1, 5, 6, 7, 8, 8, 9, 10};
  ASSERT_EQ(wizard.pages.size(), 11U);
  std::vector<std::vector<std::string>> wanted(wizard.pages.size());
  for (std::size_t i = 0; i < std::size(kPages); ++i) {
    wanted[kPages[i]].push_back("BTNinFrame(" + std::to_string(i) + ")");
  }
  for (std::size_t page = 0; page < wanted.size(); ++page) {
    EXPECT_EQ(ControlsOn(wizard.pages[page]), wanted[page]) << page;
  }
}

TEST_F(Wizards, HaveAControlForEachName) {
  const auto expectControls = [](GuidedForm& form) {
    for (const tables::GuidePage& page : form.pages) {
      for (const std::string& name : ControlsOn(page)) {
        EXPECT_TRUE(form.Resolve(name)) << form.Name() << " " << name;
      }
    }
    EXPECT_EQ(static_cast<std::size_t>(form.Texts.Count()), TextsOf(form));
  };
  expectControls(program.application.Tool<MacroWizard>());
  expectControls(program.application.Tool<JoystickWiz>());
  expectControls(program.application.Tool<Speedy>());
}

TEST_F(Wizards, ShowTheMacroOnce) {
  const auto& wizard = program.application.Tool<MacroWizard>();
  for (const tables::GuideRow& row : wizard.pages[12].rows) EXPECT_NE(row.text, "Macro will appear here");
}

TEST_F(Wizards, SayTheirTextsInReadingOrder) {
  const auto& wizard = program.application.Tool<MacroWizard>();
  EXPECT_TRUE(wizard.Texts(0).Caption.Get().starts_with("Welcome! OK, we're going to go about"));
  EXPECT_EQ(wizard.Texts(wizard.Texts.Count() - 1).Caption.Get(),
            "Phew, I'm exhausted after all that. Get me out of here !!");
  EXPECT_EQ(program.application.Tool<JoystickWiz>().Texts.Count(), 57);
}

TEST_F(Wizards, GiveAHeadingRulesTwentyDashesLongerThanItself) {
  auto& speedy = program.application.Tool<Speedy>();
  for (int i = 0; i < speedy.List1.ListCount(); ++i) {
    program.editor().MacroText.Text = std::string();
    speedy.List1.ListIndex = i;
    program.editor().TabStrip1.Select(2);
    speedy.List1_DblClick();
    const std::string rule = "Rem " + std::string(speedy.List1.List(i).size() + 20, '-');
    EXPECT_EQ(program.editor().MacroText.Text.Get(),
              "\r\n" + rule + "\r\nRem           " + speedy.List1.List(i) + "\r\n" + rule + "\r\n");
  }
  program.editor().MacroText.Text = std::string();
  speedy.List1.ListIndex = -1;
  speedy.List1_DblClick();
  EXPECT_EQ(program.editor().MacroText.Text.Get(), "");
}

}  // namespace
}  // namespace tarvik
