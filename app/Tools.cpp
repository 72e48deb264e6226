#include "app/Tools.h"

#include "app/ColourSelector.h"
#include "tools/blocks/TextBlocks.h"
#include "tools/composer/InsertOptions.h"
#include "tools/favourites/Favourites.h"
#include "tools/find/FindAndReplace.h"
#include "tools/find/RenameForm.h"
#include "tools/pimlet/RAWform.h"
#include "tools/preferences/DrivesForm.h"
#include "tools/preferences/Preferences.h"
#include "tools/preferences/StickForm.h"
#include "tools/printing/KneeboardForm.h"
#include "tools/programs/Games.h"
#include "tools/programs/ProgramWait.h"
#include "tools/recovery/CompareTexts.h"
#include "tools/recovery/EarlierVersions.h"
#include "tools/recovery/UnsavedTexts.h"
#include "tools/templates/TemplateForm.h"
#include "tools/testing/Fly.h"
#include "tools/testing/JoyPlot.h"
#include "tools/testing/KeyTestForm.h"
#include "tools/testing/TryOut.h"
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

void ShowTryOut(Workbench& /*bench*/, Shell& shell) {
  auto& form = shell.Tool<TryOut>();
  form.Show();
  form.Controls.SetFocus();
}

void ShowImageViewer(Workbench& /*bench*/, Shell& shell) {
  auto& form = shell.Tool<ViewImage>();
  form.Show();
  form.Image1.SetFocus();
}

template <class F>
constexpr ToolRow Row(ToolId id, const char* form, EndsWith end,
                      void (*show)(Workbench& bench, Shell& shell) = nullptr) {
  return {id, form, end, [](Shell& shell) -> Form& { return shell.Tool<F>(); }, show};
}

constexpr ToolRow kTools[] = {
    Row<FindAndReplace>(ToolId::Find, "FindAndReplace", EndsWith::Editor,
                        By<FindAndReplace, &FindAndReplace::ShowFind>),
    Row<InsertOptions>(ToolId::Composer, "InsertOptions", EndsWith::Editor,
                       By<InsertOptions, &InsertOptions::ShowComposer>),
    Row<Heading>(ToolId::Heading, "Heading", EndsWith::Editor, InsertHeading),
    Row<RAWform>(ToolId::Pimlet, "RAWform", EndsWith::Editor, Raise<RAWform>),
    Row<Title>(ToolId::Title, "Title", EndsWith::Editor, InsertTitle),
    Row<SingleTextForm>(ToolId::Remark, "SingleTextForm", EndsWith::Editor, AskForRemark),
    Row<EnterFavouritename>(ToolId::Favourite, "EnterFavouritename", EndsWith::Editor, AddToFavourites),
    Row<EnterGameName>(ToolId::Game, "EnterGameName", EndsWith::Editor, AddGame),
    Row<DrivesForm>(ToolId::Drives, "DrivesForm", EndsWith::Editor),
    Row<StickForm>(ToolId::Sticks, "StickForm", EndsWith::Editor, Modal<StickForm>),
    Row<Preferences>(ToolId::Preferences, "Preferences", EndsWith::Editor, Modal<Preferences>),
    Row<MacroWizard>(ToolId::MacroWizard, "MacroWizard", EndsWith::Editor, Raise<MacroWizard>),
    Row<JoystickWiz>(ToolId::JoystickWizard, "JoystickWiz", EndsWith::Editor, Raise<JoystickWiz>),
    Row<JoyPlot>(ToolId::JoystickAnalyser, "JoyPlot", EndsWith::Editor, ShowAnalyser),
    Row<Speedy>(ToolId::Speedy, "Speedy", EndsWith::Editor, Raise<Speedy>),
    Row<UnsavedTexts>(ToolId::UnsavedTexts, "UnsavedTexts", EndsWith::Editor, Raise<UnsavedTexts>),
    Row<CompareTexts>(ToolId::CompareTexts, "CompareTexts", EndsWith::Editor, Raise<CompareTexts>),
    Row<EarlierVersions>(ToolId::EarlierVersions, "EarlierVersions", EndsWith::Editor,
                         Modal<EarlierVersions>),
    Row<RenameForm>(ToolId::Rename, "RenameForm", EndsWith::Editor, AskForName),
    Row<KneeboardForm>(ToolId::Kneeboard, "Kneeboard", EndsWith::Editor, Raise<KneeboardForm>),
    Row<TryOut>(ToolId::TryOut, "TryOut", EndsWith::Editor, ShowTryOut),
    Row<Fly>(ToolId::Fly, "Fly", EndsWith::Editor, Raise<Fly>),
    Row<ColourSelector>(ToolId::ColourSelector, "ColourSelector", EndsWith::Frame, ShowColours),
    Row<KeyTestForm>(ToolId::KeyTest, "KeyTestForm", EndsWith::Frame, ShowKeyTest),
    Row<ProgramWait>(ToolId::ProgramWait, "ProgramWait", EndsWith::Frame),
    Row<TemplateForm>(ToolId::TemplateEditor, "TemplateForm", EndsWith::Program,
                      By<TemplateForm, &TemplateForm::ShowText>),
    Row<ViewImage>(ToolId::ImageViewer, "ViewImage", EndsWith::Program, ShowImageViewer),
    Row<SelectPictureForm>(ToolId::PictureDialog, "SelectPictureForm", EndsWith::Program),
    Row<frmTip>(ToolId::Tips, "frmTip", EndsWith::Program, Modal<frmTip>),
    Row<frmAbout>(ToolId::About, "frmAbout", EndsWith::Program, Modal<frmAbout>),
    Row<LogForm>(ToolId::Log, "LogForm", EndsWith::Program, Modal<LogForm>),
};

}  // namespace

std::span<const ToolRow> Tools() { return kTools; }

}  // namespace tarvik
