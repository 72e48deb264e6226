// The kneeboard's window without a screen: where its pages go, and where they lead.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "app/Program.h"
#include "text/Contrast.h"
#include "tools/printing/KneeboardForm.h"

namespace tarvik {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class KneeboardFormTest : public testing::Test {
 protected:
  KneeboardFormTest() {
    Workbench& bench = program.application.workbench;
    bench.documents.joystickText.SetContent(RichText("BTN S2 x\r\nBTN S1 Gear_Toggle\r\n"));
    bench.documents.macroText.SetContent(RichText("Gear_Toggle = CTL g\r\n"));
    program.application.Show(ToolId::Kneeboard);
  }

  [[nodiscard]] KneeboardForm& form() { return program.application.Tool<KneeboardForm>(); }
  void Choose(const std::string& path) { program.outside.dialogs.choices = {path}; }
  [[nodiscard]] std::string Status() { return program.application.mum().StatusBar.Panels(1).Text; }

  Program program;
};

TEST_F(KneeboardFormTest, ThePageIsReadOutInWords) {
  EXPECT_THAT(form().Page.Caption.Get(), HasSubstr("Gear toggle"));
}

TEST_F(KneeboardFormTest, AllPagesGoToTheFileThatIsChosen) {
  program.files().PutFolder("c:\\my");
  Choose("c:\\my\\board.pdf");
  form().SaveAs_Click();
  ASSERT_EQ(program.press.wanted.size(), 1u);
  EXPECT_THAT(program.press.wanted[0], HasSubstr("my/board.pdf"));
  EXPECT_GT(program.press.jobs[0].sheets.size(), 1u);
}

TEST_F(KneeboardFormTest, PagesThatWouldReplaceFilesAreAskedAboutOnce) {
  program.files().PutFolder("c:\\my");
  program.files().Put("c:\\my\\board-1.png", "a");
  program.files().Put("c:\\my\\board-2.png", "b");
  Choose("c:\\my\\board.png");
  program.outside.dialogs.answers = {Answer::No};
  form().SaveAs_Click();
  EXPECT_TRUE(program.press.wanted.empty());
  ASSERT_EQ(program.outside.dialogs.boxes.size(), 1u);
  EXPECT_THAT(program.outside.dialogs.boxes[0].text, HasSubstr("c:\\my\\board-1.png\r\nc:\\my\\board-2.png"));
  Choose("c:\\my\\board.png");
  program.outside.dialogs.answers = {Answer::Yes};
  form().SaveAs_Click();
  EXPECT_EQ(program.press.wanted.size(), 1u);
  EXPECT_THAT(Status(), HasSubstr("c:\\my\\board-1.png to c:\\my\\board-"));
  Choose("c:\\my\\other.png");  // and nobody is asked where nothing is replaced
  form().SaveAs_Click();
  EXPECT_EQ(program.outside.dialogs.boxes.size(), 2u);
}

TEST_F(KneeboardFormTest, IsSavedBesideTheJoystickFile) {
  Choose("cancel");
  form().SaveAs_Click();
  EXPECT_EQ(program.outside.dialogs.requests.back().fileName, "kneeboard.pdf");
  program.application.workbench.documents.joystick.Path = std::string("c:\\my\\strike.b50");
  form().SaveAs_Click();
  EXPECT_EQ(program.outside.dialogs.requests.back().folder, "c:\\my\\");
  EXPECT_EQ(program.outside.dialogs.requests.back().fileName, "strike.pdf");
}

TEST_F(KneeboardFormTest, WhatCannotBeWrittenIsTold) {
  program.press.failure = error::kPathAccess;
  Choose("c:\\my\\board.pdf");
  form().SaveAs_Click();
  EXPECT_THAT(program.application.workbench.errors.ErrorText.Get(), HasSubstr("Scripted failure"));
}

TEST_F(KneeboardFormTest, PrintingIsSaidAndWhoeverCancelsHearsNothing) {
  form().Print_Click();
  program.press.failure = error::kDialogCancelled;
  form().Print_Click();
  form().Copy_Click();
  EXPECT_THAT(program.press.wanted, ElementsAre("print", "print", "copy 1"));
}

TEST_F(KneeboardFormTest, ColoursAndResolutionGoWithTheJob) {
  form().BlackAndWhite.Value = 1;
  form().Resolution.Select(0);
  form().Print_Click();
  EXPECT_EQ(program.press.jobs[0].colouring, kneeboard::Colouring::BlackAndWhite);
  EXPECT_EQ(program.press.jobs[0].dotsPerInch, 100);
}

TEST_F(KneeboardFormTest, TakesTheUsersColoursAsTheyCanBeReadOnPaper) {
  Settings& settings = program.application.workbench.settings;
  settings.BTNColour = Rgb(0, 90, 0);
  settings.RemStatements = Rgb(255, 255, 0);
  form().pause.timer.Elapsed();
  const auto& inks = form().Job().inks;
  ASSERT_TRUE(inks.has_value());
  EXPECT_EQ(inks->accent, Rgb(0, 90, 0));
  EXPECT_GE(ContrastOf(inks->dim, kWhite), 4.5);
  EXPECT_NE(inks->dim, Rgb(255, 255, 0));
}

TEST_F(KneeboardFormTest, APlaceOnThePageLeadsToItsStatement) {
  const auto& targets = form().Sheet().targets;
  const auto leads = [](const kneeboard::Target& target) {
    return target.source && target.source->statement == 1;
  };
  const auto target = std::ranges::find_if(targets, leads);
  ASSERT_NE(target, targets.end());
  const kneeboard::Spot middle = target->area.Middle();
  EXPECT_TRUE(form().LeadsSomewhere(middle));
  form().GoTo(middle);
  EXPECT_GE(program.application.workbench.documents.joystickText.SelStart, 10u);
  EXPECT_FALSE(form().LeadsSomewhere({-5, -5}));
}

TEST_F(KneeboardFormTest, ALineIsChosenByKeysAndLeadsToItsStatement) {
  EXPECT_EQ(form().ChosenLine(), nullptr);
  form().ChooseLine(1);
  ASSERT_NE(form().ChosenLine(), nullptr);
  const kneeboard::Target* const first = form().ChosenLine();
  form().ChooseLine(-1);
  EXPECT_EQ(form().ChosenLine(), first);  // there is none before
  form().ChooseLine(1);
  ASSERT_NE(form().ChosenLine(), first);
  form().ChooseLine(-1);
  EXPECT_EQ(form().ChosenLine(), first);
  EXPECT_THAT(Status(), HasSubstr("Gear toggle"));
  form().GoToChosenLine();
  EXPECT_GE(program.application.workbench.documents.joystickText.SelStart, 10u);
  form().Next_Click();
  EXPECT_EQ(form().ChosenLine(), nullptr);
}

class FollowedKneeboardTest : public KneeboardFormTest {
 protected:
  FollowedKneeboardTest() {
    stick_ = program.outside.sticks.Plug({0, "0300", "Stick", "port", 0, 3, 0});
    play::StickMap map;
    for (int i = 1; i <= 3; ++i) {
      const std::string number = std::to_string(i);
      map.Set({"0300", "Stick", "port"}, play::InputIn("button " + number).value(), "S" + number);
    }
    program.application.workbench.sticks.Use(map);
    program.application.workbench.settings.FollowStick = 1;
    program.application.workbench.documents.joystickText.Select({0, 0});
  }
  void Button(int number, bool down) {
    program.outside.sticks.Move(stick_, StickChangeKind::Button, number - 1, down ? 1 : 0);
  }
  /// The labels of boxes, and the statements of lines.
  [[nodiscard]] std::set<std::string> Lit() {
    std::set<std::string> lit;
    for (const kneeboard::Target& each : form().Sheet().targets) {
      if (!form().Glows(each)) continue;
      lit.insert(each.source ? "line " + std::to_string(each.source->statement) : each.label);
    }
    return lit;
  }

 private:
  int stick_ = 0;
};

TEST_F(FollowedKneeboardTest, EachControlLightsAsLongAsItIsHeld) {
  Button(1, true);
  EXPECT_THAT(Lit(), ElementsAre("line 1"));
  Button(3, true);
  EXPECT_EQ(Lit().size(), 2u) << "a box for a control that does nothing";
  program.application.workbench.documents.joystickText.SelText = std::string("Rem\r\n");
  form().pause.timer.Elapsed();
  EXPECT_TRUE(Lit().contains("line 2")) << "also once it stands elsewhere";
  Button(1, false);
  EXPECT_FALSE(Lit().contains("line 2"));
  Button(3, false);
  EXPECT_TRUE(Lit().empty());
}

TEST_F(FollowedKneeboardTest, ThePageTurnsToWhatIsPressed) {
  form().List.Value = 0;
  form().Next_Click();
  ASSERT_TRUE(form().PageNumber.Caption.Get().starts_with("2 "));
  Button(1, true);
  EXPECT_TRUE(form().PageNumber.Caption.Get().starts_with("1 "));
  EXPECT_TRUE(Lit().contains("line 1"));
}

TEST_F(KneeboardFormTest, SettingsThatNobodyWroteDoNoHarm) {
  Settings& settings = program.application.workbench.settings;
  settings.KneeboardPaper = 99;
  settings.KneeboardResolution = -7;
  settings.KneeboardLayers = 1000;
  form().List.Value = 0;  // lays the pages anew
  form().Print_Click();
  EXPECT_EQ(program.press.jobs[0].dotsPerInch, 100);
}

}  // namespace
}  // namespace tarvik
