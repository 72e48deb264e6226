// What is left of the tools when the editor alone was closed: all that can be clicked, picked and typed there
// does no harm, and writes into no file.
#include <gtest/gtest.h>

#include "app/Editor.h"
#include "app/Mum.h"
#include "app/Program.h"
#include "session/Driver.h"

namespace tarvik {
namespace {

/// How the user acts. On widgets a modal form keeps them from the frame, so that the editor can be closed
/// only afterwards.
struct Hands {
  const char* name;
  std::unique_ptr<session::Driver> (*makeDriver)(Application&);
  bool reachBehindModal;

  friend void PrintTo(const Hands& hands, std::ostream* out) { *out << hands.name; }
};

constexpr Hands kHands[] = {{"OnTheForms", session::MakeFormDriver, true},
                            {"OnWidgets", session::MakeScreenDriver, false}};

constexpr const char* kPressedKeys[] = {"Return", "Escape", "Delete", "F1",     "F2",     "F3",     "F4",
                                        "F5",     "F6",     "F7",     "F8",     "F9",     "F11",    "F12",
                                        "Ctrl+A", "Ctrl+B", "Ctrl+C", "Ctrl+F", "Ctrl+G", "Ctrl+H", "Ctrl+I",
                                        "Ctrl+K", "Ctrl+L", "Ctrl+N", "Ctrl+O", "Ctrl+P", "Ctrl+R", "Ctrl+S",
                                        "Ctrl+U", "Ctrl+V", "Ctrl+X", "Ctrl+Z"};

/// What leads to the tools, each by its path from its form.
struct Way {
  const char* form;
  const char* control;
};

constexpr Way kWays[] = {
    {"Mum", "Picture1"},
    {"Editor", "mnuEditFind"},
    {"Editor", "mnuEditRename"},
    {"Editor", "mnuShowInsertWindow"},
    {"Editor", "mnuInsertRAW"},
    {"Editor", "mnuInsertTitle"},
    {"Editor", "mnuInsertHeading"},
    {"Editor", "mnuInsertRemStatement"},
    {"Editor", "mnuFavouritesAddCurrent"},
    {"Editor", "mnuGamesAdd"},
    {"Editor", "mnuPreferencesEdit"},
    {"Editor", "mnuSendToKeyTest"},
    {"Editor", "mnuAppsImageViewer"},
    {"Editor", "mnuAppsTemplate"},
    {"Editor", "mnuAppsJoyAnalyser"},
    {"Editor", "mnuSendToJoystick"},
    {"Editor", "mnuhelpWizCreateMacroFile"},
    {"Editor", "mnuhelpWizCreateJoyFile"},
    {"Editor", "mnuWizSpeedy"},
    {"Editor", "mnuHelpTips"},
    {"Editor", "mnuHelpAbout"},
};

/// One program, in which one way is gone, the editor closed, and one thing done in what is left.
class Afternoon : private UnstartedProgram {
 public:
  Afternoon(const Hands& hands, const Way& way)
      : hands_(hands), driver_(hands.makeDriver(application)), way_(way) {
    files().Put("c:\\tm\\a.b50", "BTN S1 Fire\r\n");
    Start();
    outside.joystick.isThere = true;
    outside.programs.state = ProgramState::Running;
    editor().OpenFavouriteFile("c:\\tm\\a.b50");
  }

  /// False when there is no deed of this number.
  bool Do(std::size_t deed) {
    bool done = false;
    bool toDo = true;
    outside.dialogs.next = [&] {
      if (hands_.reachBehindModal && std::exchange(toDo, false)) done = CloseEditorAndDo(deed);
      return false;
    };
    driver_->Click(*application.FindForm(way_.form)->Resolve(way_.control));
    if (toDo) done = CloseEditorAndDo(deed);
    outside.dialogs.next = nullptr;
    return done;
  }

  void ExpectFilesUntouched() {
    EXPECT_EQ(files().Content("c:\\tm\\a.b50"), "BTN S1 Fire\r\n");
    application.ShowEditor();
    for (const Document* const file : {&editor().Joystick, &editor().Macro}) {
      EXPECT_EQ(file->text.Text.Get(), "");
      EXPECT_EQ(file->Dirty, saved::kNoText);
    }
  }

 private:
  using Place = std::pair<std::string, std::string>;  // a form, and what is in it

  [[nodiscard]] std::vector<Place> Places() const {
    std::vector<Place> places;
    for (Form* const form : application.Forms()) {
      if (form == &application.mum()) continue;
      for (const Component* const child : form->Children())
        places.emplace_back(form->Name(), child->FullName());
    }
    return places;
  }

  bool CloseEditorAndDo(std::size_t deed) {
    driver_->Close(editor());
    const std::vector<Place> places = Places();
    if (places.empty()) return false;
    outside.dialogs.next = [this] { return UseAllInside(); };
    outside.dialogs.choices = {"c:\\tm\\a.b50"};
    if (deed < places.size()) {
      Use(places[deed]);
      return true;
    }
    if (deed - places.size() >= std::size(kPressedKeys)) return false;
    for (const Place& place : places) {
      Component* const control = Find(place);
      if (dynamic_cast<Control*>(control)) driver_->PressKey(*control, kPressedKeys[deed - places.size()]);
    }
    return true;
  }

  /// Where a form waits for the user, all in it is used that does not close it.
  bool UseAllInside() {
    outside.dialogs.next = nullptr;
    for (const Place& place : Places()) {
      const auto* const button = dynamic_cast<CommandButton*>(Find(place));
      if (!button || (!button->Cancel && !button->Default)) Use(place);
    }
    return false;
  }

  [[nodiscard]] Component* Find(const Place& place) const {
    Form* const form = application.FindForm(place.first);
    return form ? form->Resolve(place.second) : nullptr;
  }

  void Use(const Place& place) {
    Component* const used = Find(place);
    if (!used) return;
    if (auto* const item = dynamic_cast<MenuItem*>(used)) {
      item->Click();
    } else if (dynamic_cast<TextBox*>(used) || dynamic_cast<Pane*>(used)) {
      driver_->Type(dynamic_cast<Control&>(*used), "1");
    } else if (auto* const pages = dynamic_cast<TabPages*>(used)) {
      for (int page = 0; page < pages->Count(); ++page) driver_->Pick(*pages, page);
    } else if (auto* const list = dynamic_cast<ListBox*>(used)) {
      if (list->ListCount() > 0) driver_->Pick(*list, 0);
      if (Find(place)) driver_->DoubleClick(*used);
    } else if (dynamic_cast<Control*>(used)) {
      driver_->Click(*used);
    }
  }

  const Hands& hands_;
  std::unique_ptr<session::Driver> driver_;
  const Way& way_;
};

class ToolsWithoutEditor : public testing::TestWithParam<Hands> {};

TEST_P(ToolsWithoutEditor, DoNoHarm) {
  std::size_t deeds = 0;
  for (const Way& way : kWays) {
    SCOPED_TRACE(way.control);
    for (std::size_t deed = 0;; ++deed) {
      Afternoon afternoon(GetParam(), way);
      if (!afternoon.Do(deed)) break;
      afternoon.ExpectFilesUntouched();
      ++deeds;
    }
  }
  EXPECT_GT(deeds, 200U);
}

INSTANTIATE_TEST_SUITE_P(Hands, ToolsWithoutEditor, testing::ValuesIn(kHands),
                         [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace tarvik
