// The editor's menu entries that lead to the tools, each of which is a form or a command of its own.
#include "app/Editor.h"
#include "tools/blocks/TextBlocks.h"
#include "tools/composer/InsertOptions.h"
#include "tools/favourites/Favourites.h"
#include "tools/find/FindAndReplace.h"
#include "tools/programs/CustomApps.h"
#include "tools/programs/Download.h"
#include "tools/programs/Games.h"

namespace tarvik {
namespace {

const MessageBox kBeginnersAdvice = {
    "Start off with the macro wizard first, and NOT the joystick wizard",
    "If you've just bought your joystick, and you've got everything plugged in OK but you've never created a "
    "set of files for downloading to your joystick, then let me just introduce some basics.\r\n\r\nYou need "
    "two files for each game. The macro file says which keys do what in that game, and gives each of them a "
    "name that you can remember - these are your macros. The joystick file then says which button or hat of "
    "your joystick sends which macro. So without a macro file, there's nothing that you could put on a "
    "button!\r\n\r\nThat's why the macro wizard comes first. Have your game's keyboard card beside you, "
    "start the macro wizard and let it take you through the macro file step by step. When you've finished "
    "that one, start the joystick wizard, and it'll help you put those macros on your buttons and hats. And "
    "when you've got both files, press F12 to send them to your joystick. That's all there is to it, honest!",
    BoxIcon::Information};

const MessageBox kOrlansTip = {
    "Using Tarvik efficiently",
    "The fastest way of banging together a set of files for a game is to do the following:\r\n1) Grab "
    "someone else's macro file from the net.  \r\n2) Use the templates section of the Composer to get all "
    "your buttons into your joystick file.  \r\n3) Click in your joystick file where you want a macro to be "
    "placed and double click the macro in the macros frame to insert it into your Joystick file. (Note that "
    "this is MUCH faster than using a drag and drop method.)  \r\nGive it a go - this is fast !!!"};

const MessageBox kLogicAdvice = {
    "Logical programming - wave that flag.",
    "Logical programming is what you need when a button should do something only while something else is "
    "going on - say, fire one weapon with your gear up, and another with your gear down. It's done with "
    "flags, and it isn't half as bad as it sounds.\r\n\r\nI've written it all down for you in a text file "
    "called An0002a.txt, with examples you can copy. Show the Composer, select its Logic tab, then Misc, and "
    "press the View An0002a.txt button there. Have a read, and then have a go!",
    BoxIcon::Exclamation};

const MessageBox kQuickTip = {
    "Quick tip",
    "Press the Escape key when you're typing in one of your files, and this menu pops up right where you "
    "are. You never have to take your hands off the keyboard!",
    BoxIcon::Information};

}  // namespace

// Preferences.

/// A font that the user has chosen there is taken into use.
void Editor::ShowPreferences(page::Preferences page) {
  application_.ShowPreferences(page);
  bench_.TakeChosenFont();
}

// Favourites, games, and the user's own programs.

void Editor::mnuFavArray_Click(int index) { OpenFavourite(bench_, index); }
void Editor::mnuGameArray_Click(int index) { StartGame(bench_, application_, index); }
void Editor::mnuCustomApp_Click(int index) { RunCustomApp(bench_, index); }

// Editing.

void Editor::mnuEditReplace_Click() { application_.Tool<FindAndReplace>().ShowReplace(); }
void Editor::mnuEditGoto_Click() { application_.Tool<FindAndReplace>().ShowGoto(); }

/// While the find window is open, the Enter key on a hit in a file goes on to the next one.
bool Editor::FindNext(const Document& document) {
  auto* const find = application_.LoadedTool<FindAndReplace>();
  return find && find->GoOnFrom(document);
}

// The Composer.

void Editor::mnuComposerPlugin_Click() { application_.Tool<InsertOptions>().ShowTemplates(); }

// Blocks.

void Editor::mnuInsertRemStatement_Click() { InsertRemStatement(bench_, application_); }

void Editor::mnuInsertQuickTip_Click() { bench_.platform.dialogs.Show(kQuickTip); }

// Apps.

void Editor::mnuAppsTMScope_Click() { StartTMScope(bench_); }
void Editor::mnuAppsCandCC_Click() { StartControlCentre(bench_); }
void Editor::mnuF22Setup_Click() { StartF22Utility(bench_, F22Utility::Setup); }
void Editor::mnuF22Clear_Click() { StartF22Utility(bench_, F22Utility::Clear); }
void Editor::mnuF22Reset_Click() { StartF22Utility(bench_, F22Utility::Reset); }
void Editor::mnuF22Delay_Click() { StartF22Utility(bench_, F22Utility::Delay); }
void Editor::mnuSendToJoystick_Click() {
  bench_.preflight.Look();
  SendToJoystick(bench_, application_);
}

void Editor::mnuAppsQuiet_Click() {
  MenuItem& quiet = menus("mnuAppsQuiet");
  quiet.Checked = !quiet.Checked;
}

void Editor::mnuHelpOnWeb_Click() {
  const Trap trap{bench_.errors, "ED_mnuHelpOnWeb_Click"};
  if (trap(bench_.platform.desktop.Open(bench_.platform.folder + "\\guide\\index.html"))) return;
  bench_.documents.Say("The user guide can't be opened.");
}

// Wizards.

void Editor::mnuWizBeginnersAdvice_Click() { bench_.platform.dialogs.Show(kBeginnersAdvice); }
void Editor::mnuWizOrlanTip1_Click() { bench_.platform.dialogs.Show(kOrlansTip); }
void Editor::mnuWizLogic1_Click() { bench_.platform.dialogs.Show(kLogicAdvice); }

// Keys that the tools pass on.

void Editor::ForwardKey(Key& key) const {
  std::string shortcut;
  if (key.shift == shift::kCtrl && key.code >= 'A' && key.code <= 'Z') {
    shortcut = std::string("Ctrl+") + static_cast<char>(key.code);
  } else if (key.shift != shift::kCtrl && key.code > key::kF1 && key.code <= key::kF12) {
    shortcut = "F" + TextOf(key.code - key::kF1 + 1);
  }
  // F7 bears no shortcut in the menu.
  MenuItem* const item = key.code == key::kF7 ? &menus("mnuViewIdentify") : menus.WithShortcut(shortcut);
  if (shortcut.empty() || !item || !item->Enabled) return;
  item->Click();
  if (key.shift == shift::kCtrl) key = {};
}

}  // namespace tarvik
