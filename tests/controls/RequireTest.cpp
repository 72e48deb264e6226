// A part that is not there tells itself, wherever it is asked for.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "controls/Controls.h"
#include "controls/Menu.h"
#include "controls/Require.h"

namespace tarvik {
namespace {

struct FullWindow : Form {
  FullWindow() : Form("FullWindow") {}
  void Entry_Click() {}

  static constexpr MenuRow<FullWindow> kMenus[] = {{0, "mnuFile", "&File", "", &FullWindow::Entry_Click}};
  ControlArray<Label> labels{*this, "Label1", 2};
  NamedControls<TextBox> boxes{*this};
  TabStrip tabs{*this, "TabStrip1", 2};
  TabPages pages{*this, "SSTab1", {"One"}};
  Toolbar toolbar{*this, "Toolbar1", 3};
  StatusBar status{*this, "StatusBar", 4};
  Menus menus{*this, kMenus};
};

/// What is told of a wrong lookup: as the last words of the process in a debug build, else by an exception.
template <class Lookup>
void ExpectTold(const std::string& text, Lookup lookup) {
#ifdef NDEBUG
  try {
    lookup();
    ADD_FAILURE() << "nothing is told of " << text;
  } catch (const WrongLookup& thrown) {
    EXPECT_EQ(thrown.what(), text + " is not there");
  }
#else
  EXPECT_DEATH(lookup(), testing::HasSubstr(text + " is not there"));
#endif
}

TEST(Require, TellsFormNameAndIndexOfWhatIsNotThere) {
  const FullWindow window;
  ExpectTold("FullWindow.Label1(2)", [&] { (void)window.labels(2); });
  ExpectTold("FullWindow.Text1(7)", [&] { (void)window.boxes("Text1(7)"); });
  ExpectTold("FullWindow.TabStrip1.Tabs(0)", [&] { (void)window.tabs.Tabs(0); });
  ExpectTold("FullWindow.TabStrip1.Tabs(3)", [&] { (void)window.tabs.Tabs(3); });
  ExpectTold("FullWindow.SSTab1.Pages(1)", [&] { (void)window.pages.Pages(1); });
  ExpectTold("FullWindow.SSTab1.Pages(-1)", [&] { (void)window.pages.Pages(-1); });
  ExpectTold("FullWindow.Toolbar1.Buttons(4)", [&] { (void)window.toolbar.Buttons(4); });
  ExpectTold("FullWindow.StatusBar.Panels(5)", [&] { (void)window.status.Panels(5); });
  ExpectTold("FullWindow.mnuEdit", [&] { (void)window.menus("mnuEdit"); });
  ExpectTold("FullWindow.mnuFile(1)", [&] { (void)window.menus("mnuFile", 1); });
}

TEST(Require, GivesWhatIsThere) {
  const FullWindow window;
  EXPECT_EQ(window.labels(1).FullName(), "Label1(1)");
  EXPECT_EQ(window.tabs.Tabs(2).FullName(), "Tabs(2)");
  EXPECT_EQ(window.menus("mnuFile").Caption.Get(), "&File");
}

}  // namespace
}  // namespace tarvik
