#include "tools/favourites/Favourites.h"

#include <algorithm>

#include "app/Editor.h"
#include "text/CodePage.h"

namespace tarvik {

EnterFavouritename::EnterFavouritename(Application& application)
    : Form("EnterFavouritename"), application_(application) {
  const PreviousFiles& lists = application.lists;
  Caption = "Enter a name to add to favourites";
  Topmost = true;
  Text1.ToolTipText = "This is what will appear in the favourites menu";
  Text1.Text = SuggestedName(lists.FavJFPath);
  Label1.Caption = lists.FavJFPath;
  Label2.Caption = lists.FavMFPath;
  Command1.MakeDefault();
  Command1.Click = [this] { Command1_Click(); };
  Command2.Cancel = true;
  Command2.Click = [this] { application_.Unload(*this); };
  Text1.SelectAll();
  Text1.SetFocus();
}

void EnterFavouritename::Command1_Click() {
  if (!Text1.Empty()) application_.lists.FavName = Text1.Text.Get();
  application_.Unload(*this);
}

std::string SuggestedName(const std::string& path) {
  constexpr std::size_t kExtension = 4;
  std::string name = LowerCase(path.substr(path.rfind('\\') + 1));
  name.resize(name.size() - std::min(kExtension, name.size()));
  if (!name.empty()) name.front() = ToUpper(name.front());
  return name;
}

void AddToFavourites(Application& application) {
  const Editor& editor = application.editor();
  Dialogs& dialogs = application.platform.dialogs;
  PreviousFiles& lists = application.lists;
  if (editor.Joystick.Dirty == saved::kNoText && editor.Macro.Dirty == saved::kNoText) {
    dialogs.Show({"Nothing to add!", "Both files have no text!", BoxIcon::Information, BoxButtons::Ok});
    return;
  }
  for (const auto& [document, kind] : {std::pair(&editor.Joystick, "joystick"), {&editor.Macro, "macro"}}) {
    if (!document->IsUntitled()) continue;
    const std::string file = std::string(kind) + " file";
    dialogs.Show({"Your " + file + " isn't saved",
                  "Please save the " + file + " first before adding to Favourites", BoxIcon::Information,
                  BoxButtons::Ok});
    return;
  }
  lists.FavJFPath = editor.Joystick.Path;
  lists.FavMFPath = editor.Macro.Path;
  lists.FavName = std::string();
  application.ShowModal(application.Tool<EnterFavouritename>());
  if (!lists.FavName.Get().empty()) lists.UpdateFavouritesMenu();
}

void OpenFavourite(Application& application, int index) {
  Editor& editor = application.editor();
  PreviousFiles& lists = application.lists;
  lists.Favourites.Take(index);
  const Files& files = application.platform.files;
  const bool bothThere = files.FileExists(lists.FavMFPath.Get()) && files.FileExists(lists.FavJFPath.Get());
  editor.OpenFavouriteFile(lists.FavMFPath);
  editor.OpenFavouriteFile(lists.FavJFPath);
  // What could not be opened stays told in the status bar.
  if (bothThere && application.settings.CheckIdentifyOK == 1) editor.mnuViewIdentify_Click();
}

}  // namespace tarvik
