#include <gmock/gmock.h>

#include "support/BareWorkbench.h"
#include "workbench/IncrementalSearch.h"

namespace tarvik {
namespace {

class IncrementalSearchTest : public testing::Test {
 protected:
  IncrementalSearchTest() {
    joystick.SetContent(RichText("Gun Fire fire\r\nGun"));
    macro.SetContent(RichText("Fire = SPC\r\nGun = g"));
  }

  BareWorkbench bare;
  Documents& documents = bare.workbench.documents;
  IncrementalSearch& search = bare.workbench.search;
  Pane& joystick = documents.joystickText;
  Pane& macro = documents.macroText;
};

TEST_F(IncrementalSearchTest, TakesTheFirstHitFromTheCaretOn) {
  joystick.SelStart = 5;
  search.Begin();
  search.LookFor("gun", 0);
  EXPECT_EQ(joystick.Selection(), (Range{15, 3}));
  EXPECT_EQ(search.InHand(), 2U);
  EXPECT_EQ(search.Count(), 3U);
}

TEST_F(IncrementalSearchTest, GoesOnInTheOtherFileWhereThereIsNoMore) {
  joystick.SelStart = 16;
  search.Begin();
  search.LookFor("gun", 0);
  EXPECT_EQ(documents.tabs.SelectedIndex(), 2);
  EXPECT_EQ(macro.SelText.Get(), "Gun");
  search.Next();
  EXPECT_EQ(documents.tabs.SelectedIndex(), 1);
  EXPECT_EQ(joystick.SelStart, 0U);
  search.Previous();
  EXPECT_EQ(documents.tabs.SelectedIndex(), 2);
}

/// One letter less, and the search is where it began with that letter.
TEST_F(IncrementalSearchTest, EachTextIsLookedForFromWhereTheSearchBegan) {
  search.Begin();
  search.LookFor("fire", 0);
  EXPECT_EQ(joystick.SelStart, 4U);
  search.LookFor("gun", 0);
  EXPECT_EQ(joystick.SelStart, 0U);
}

TEST_F(IncrementalSearchTest, NothingFoundAndGoingBackAreWhereItBegan) {
  documents.Select(documents.macro);
  macro.Select({2, 3});
  search.Begin();
  search.LookFor("Gun Fire", 0);
  EXPECT_EQ(documents.tabs.SelectedIndex(), 1);
  search.LookFor("Gun Fires", 0);
  EXPECT_EQ(documents.tabs.SelectedIndex(), 2);
  EXPECT_EQ(macro.Selection(), (Range{2, 3}));
  search.LookFor("fire", 0);
  search.GoBack();
  EXPECT_EQ(documents.tabs.SelectedIndex(), 2);
  EXPECT_EQ(macro.Selection(), (Range{2, 3}));
}

TEST_F(IncrementalSearchTest, WhereItBeganMovesWithTheText) {
  joystick.Select({9, 4});
  search.Begin();
  search.LookFor("gun", 0);
  joystick.ApplyEdit({0, {}, RichText("Rem\r\n")});
  search.GoBack();
  EXPECT_EQ(joystick.SelText.Get(), "fire");
  joystick.ApplyEdit({15, RichText("ir"), {}});  // in it
  search.GoBack();
  EXPECT_EQ(joystick.Selection(), (Range{14, 0}));
  joystick.SetContent(RichText("x"));
  search.GoBack();
  EXPECT_EQ(joystick.Selection(), (Range{0, 0}));
}

TEST_F(IncrementalSearchTest, StepsBeginAtTheCaret) {
  search.Begin();
  search.LookFor("fire", find::kMatchCase);
  EXPECT_EQ(search.Count(), 1U);
  search.LookFor("fire", 0);
  joystick.Select({6, 0});
  EXPECT_EQ(search.InHand(), 0U);
  search.Next();
  EXPECT_EQ(joystick.SelStart, 9U);
  joystick.Select({6, 0});
  search.Previous();
  EXPECT_EQ(joystick.SelStart, 4U);
}

TEST_F(IncrementalSearchTest, AnEmptyTextHasNoHits) {
  search.Begin();
  search.LookFor("", 0);
  EXPECT_EQ(search.Count(), 0U);
  search.Next();
  search.Previous();
  EXPECT_EQ(joystick.Selection(), (Range{0, 0}));
}

}  // namespace
}  // namespace tarvik
