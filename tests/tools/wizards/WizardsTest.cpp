// What the pages of the wizards promise; the sessions walk through them.
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "app/Program.h"
#include "tools/wizards/JoystickWiz.h"
#include "tools/wizards/MacroWizard.h"
#include "tools/wizards/Speedy.h"

namespace tarvik {
namespace {

/// The controls that a page shows, in reading order.
std::vector<std::string> ControlsOn(const GuidePage& page) {
  std::vector<std::string> names;
  for (const GuideRow& row : page.rows) {
    std::istringstream words{std::string(row.control)};
    for (std::string name; words >> name;) names.push_back(name);
  }
  return names;
}

std::size_t TextsOf(const GuidedForm& form) {
  std::size_t texts = 0;
  for (const GuidePage& page : form.pages) {
    for (const GuideRow& row : page.rows) texts += row.text.empty() ? 0 : 1;
  }
  return texts;
}

TEST(ReadGuide, TellsWordsControlsAndExamplesApart) {
  const auto pages =
      ReadGuide("# One\n\nWords.\n\n    BTN S1 Fire\n\n[List1 Text1(0)]\n\n# Two\n\nName of it [Text1(1)]\n");
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(pages[0].heading, "One");
  ASSERT_EQ(pages[0].rows.size(), 3U);
  EXPECT_EQ(pages[0].rows[0].text, "Words.");
  EXPECT_FALSE(pages[0].rows[0].example);
  EXPECT_EQ(pages[0].rows[1].text, "BTN S1 Fire");
  EXPECT_TRUE(pages[0].rows[1].example);
  EXPECT_EQ(pages[0].rows[2].text, "");
  EXPECT_EQ(pages[0].rows[2].control, "List1 Text1(0)");
  ASSERT_EQ(pages[1].rows.size(), 1U);
  EXPECT_EQ(pages[1].rows[0].text, "Name of it");
  EXPECT_EQ(pages[1].rows[0].control, "Text1(1)");
}

class Wizards : public testing::Test {
 protected:
  Program program;
};

/// The controls of the pages, each as often as it is shown.
std::multiset<std::string> ShownBy(const GuidedForm& form) {
  std::multiset<std::string> shown;
  for (const GuidePage& page : form.pages) {
    for (const std::string& name : ControlsOn(page)) shown.insert(name);
  }
  return shown;
}

template <class T>
void AddNames(const ControlArray<T>& controls, std::multiset<std::string>& names) {
  for (int i = 0; i < controls.Count(); ++i) names.insert(controls(i).FullName());
}

/// Nothing that works is out of reach, and nothing comes twice.
TEST_F(Wizards, ShowEachWorkingControlOnOnePage) {
  const auto& wizard = program.application.Tool<MacroWizard>();
  std::multiset<std::string> working = {"List1", "Label1(38)"};
  AddNames(wizard.Command1, working);
  AddNames(wizard.Text1, working);
  EXPECT_EQ(ShownBy(wizard), working);
  const auto& joystick = program.application.Tool<JoystickWiz>();
  std::multiset<std::string> buttons;
  AddNames(joystick.BTNinFrame, buttons);
  EXPECT_EQ(ShownBy(joystick), buttons);
}

TEST_F(Wizards, HaveAPageForEachFrame) {
  EXPECT_EQ(program.application.Tool<MacroWizard>().pages.size(), 14U);
  EXPECT_EQ(program.application.Tool<JoystickWiz>().pages.size(), 11U);
}

TEST_F(Wizards, HaveAControlForEachName) {
  const auto expectControls = [](GuidedForm& form) {
    for (const GuidePage& page : form.pages) {
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
  for (const GuideRow& row : wizard.pages[12].rows) EXPECT_NE(row.text, "Macro will appear here");
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
