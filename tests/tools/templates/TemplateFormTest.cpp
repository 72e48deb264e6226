#include <gmock/gmock.h>

#include "app/Program.h"
#include "tools/templates/TemplateForm.h"

namespace tarvik {
namespace {

using testing::ElementsAre;

TEST(TemplateForm, ShowsHowFarItsColouringIs) {
  Program program;
  auto& form = program.application.Tool<TemplateForm>();
  form.TemplateText.Text = std::string("BTN S1 USE TQS");
  Mum& mum = program.application.mum();
  std::vector<std::string> said;
  std::vector<int> values;
  const Panel& panel = mum.StatusBar.Panels(1);
  const ProgressBar& bar = mum.ProgressBar1;
  const std::vector<Connection> watches = {
      mum.StatusBar.Panels(1).Text.Changed.Connect([&] { said.push_back(panel.Text); }),
      mum.ProgressBar1.Value.Changed.Connect([&] {
        EXPECT_TRUE(bar.Visible);
        EXPECT_EQ(bar.Max, 14);
        values.push_back(bar.Value);
      }),
  };
  form.ColourTemplateText();
  // Also over the commands it follows the hits.
  EXPECT_THAT(values, ElementsAre(1, 0, 8, 0));
  EXPECT_THAT(said,
              ElementsAre("Applying colour highlighting to untitled.rtf. Please wait ...",
                          "Applying colour to BTN statements ...", "Applying colour to / modifiers ...",
                          "Applying colour to RAW statements ...", "Applying colour to DLY statements ...",
                          "Applying colour to RPT statements ...",
                          "Applying colour to USE,ANT,MDEF etc. commands ...",
                          "Applying colour to Rem comments ...", "Done"));
  EXPECT_FALSE(bar.Visible);
}

TEST(TemplateForm, LeavesTheFilesAloneWhenItColours) {
  Program program;
  Editor& editor = program.editor();
  editor.JoystickText.Text = std::string("BTN S1");
  auto& form = program.application.Tool<TemplateForm>();
  form.TemplateText.Text = std::string("BTN S1");
  const int dirty = editor.Joystick.Dirty;
  form.ColourTemplateText();
  EXPECT_EQ(editor.JoystickText.Content().colours.At(0), kBlack);
  EXPECT_EQ(editor.Joystick.Dirty, dirty);
  EXPECT_EQ(program.application.workbench.values.LoadingFile, 0);
  EXPECT_EQ(form.TemplateChanged, 1);
}

}  // namespace
}  // namespace tarvik
