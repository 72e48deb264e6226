#include "app/Tools.h"

#include "app/ColourSelector.h"
#include "tools/blocks/TextBlocks.h"
#include "tools/composer/InsertOptions.h"
#include "tools/favourites/Favourites.h"
#include "tools/find/FindAndReplace.h"
#include "tools/pimlet/RAWform.h"
#include "tools/preferences/Preferences.h"
#include "tools/programs/Games.h"
#include "tools/recovery/UnsavedTexts.h"
#include "tools/templates/TemplateForm.h"
#include "tools/testing/JoyPlot.h"
#include "tools/testing/KeyTestForm.h"
#include "tools/viewers/LogForm.h"
#include "tools/viewers/Tips.h"
#include "tools/viewers/ViewImage.h"
#include "tools/wizards/JoystickWiz.h"
#include "tools/wizards/MacroWizard.h"
#include "tools/wizards/Speedy.h"

namespace tarvik {
namespace {

template <class F>
void Raise(Workbench& /*bench*/, Shell& shell) {
  shell.Tool<F>().Show();
}

template <class F>
void Modal(Workbench& /*bench*/, Shell& shell) {
  shell.ShowModal(shell.Tool<F>());
}

/// Shows a tool through its own operation for that.
template <class F, void (F::*show)()>
void By(Workbench& /*bench*/, Shell& shell) {
  (shell.Tool<F>().*show)();
}

void ShowColours(Workbench& /*bench*/, Shell& shell) { shell.Tool<ColourSelector>().Visible = true; }

void ShowKeyTest(Workbench& /*bench*/, Shell& shell) {
  auto& form = shell.Tool<KeyTestForm>();
  form.Visible = true;
  form.RTFKeysText.SetFocus();
}

void ShowAnalyser(Workbench& /*bench*/, Shell& shell) { shell.Tool<JoyPlot>().PicJoy.SetFocus(); }

void ShowImageViewer(Workbench& /*bench*/, Shell& shell) {
  auto& form = shell.Tool<ViewImage>();
  form.Show();
  form.Image1.SetFocus();
}

constexpr ToolRow kTools[] = {
    {ToolId::Find, "FindAndReplace", EndsWith::Editor, By<FindAndReplace, &FindAndReplace::ShowFind>},
    {ToolId::Composer, "InsertOptions", EndsWith::Editor, By<InsertOptions, &InsertOptions::ShowComposer>},
    {ToolId::Heading, "Heading", EndsWith::Editor, InsertHeading},
    {ToolId::Pimlet, "RAWform", EndsWith::Editor, Raise<RAWform>},
    {ToolId::Title, "Title", EndsWith::Editor, InsertTitle},
    {ToolId::Remark, "SingleTextForm", EndsWith::Editor, AskForRemark},
    {ToolId::Favourite, "EnterFavouritename", EndsWith::Editor, AddToFavourites},
    {ToolId::Game, "EnterGameName", EndsWith::Editor, AddGame},
    {ToolId::Drives, "DrivesForm", EndsWith::Editor, nullptr},
    {ToolId::Preferences, "Preferences", EndsWith::Editor, Modal<Preferences>},
    {ToolId::MacroWizard, "MacroWizard", EndsWith::Editor, Raise<MacroWizard>},
    {ToolId::JoystickWizard, "JoystickWiz", EndsWith::Editor, Raise<JoystickWiz>},
    {ToolId::JoystickAnalyser, "JoyPlot", EndsWith::Editor, ShowAnalyser},
    {ToolId::Speedy, "Speedy", EndsWith::Editor, Raise<Speedy>},
    {ToolId::UnsavedTexts, "UnsavedTexts", EndsWith::Editor, Raise<UnsavedTexts>},
    {ToolId::ColourSelector, "ColourSelector", EndsWith::Frame, ShowColours},
    {ToolId::KeyTest, "KeyTestForm", EndsWith::Frame, ShowKeyTest},
    {ToolId::ProgramWait, "ProgramWait", EndsWith::Frame, nullptr},
    {ToolId::TemplateEditor, "TemplateForm", EndsWith::Program, By<TemplateForm, &TemplateForm::ShowText>},
    {ToolId::ImageViewer, "ViewImage", EndsWith::Program, ShowImageViewer},
    {ToolId::PictureDialog, "SelectPictureForm", EndsWith::Program, nullptr},
    {ToolId::Tips, "frmTip", EndsWith::Program, Modal<frmTip>},
    {ToolId::About, "frmAbout", EndsWith::Program, Modal<frmAbout>},
    {ToolId::Log, "LogForm", EndsWith::Program, Modal<LogForm>},
};

}  // namespace

std::span<const ToolRow> Tools() { return kTools; }

}  // namespace tarvik
