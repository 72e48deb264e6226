#include "tools/favourites/Favourites.h"

#include <algorithm>

#include "text/CodePage.h"

namespace tarvik {

EnterFavouritename::EnterFavouritename(Workbench& bench, Shell& shell)
    : ToolForm("EnterFavouritename", bench, shell) {
  const PreviousFiles& lists = bench.lists;
  Caption = "Enter a name to add to favourites";
  Topmost = true;
  Text1.ToolTipText = "This is what will appear in the favourites menu";
  Text1.Text = SuggestedName(lists.FavJFPath);
  Label1.Caption = lists.FavJFPath;
  Label2.Caption = lists.FavMFPath;
  Command1.MakeDefault();
  Command2.Cancel = true;
  Text1.SelectAll();
  Text1.SetFocus();
}

void EnterFavouritename::Command1_Click() {
  if (!Text1.Empty()) bench_.lists.FavName = Text1.Text.Get();
  Close();
}

std::string SuggestedName(const std::string& path) {
  constexpr std::size_t kExtension = 4;
  std::string name = LowerCase(path.substr(path.rfind('\\') + 1));
  name.resize(name.size() - std::min(kExtension, name.size()));
  if (!name.empty()) name.front() = ToUpper(name.front());
  return name;
}

void AddToFavourites(Workbench& bench, Shell& shell) {
  const Documents& files = bench.documents;
  Dialogs& dialogs = bench.platform.dialogs;
  PreviousFiles& lists = bench.lists;
  if (files.joystick.Dirty == saved::kNoText && files.macro.Dirty == saved::kNoText) {
    dialogs.Show({"Nothing to add!", "Both files have no text!", BoxIcon::Information});
    return;
  }
  for (const auto& [document, kind] : {std::pair(&files.joystick, "joystick"), {&files.macro, "macro"}}) {
    if (!document->IsUntitled()) continue;
    const std::string file = std::string(kind) + " file";
    dialogs.Show({"Your " + file + " isn't saved",
                  "Please save the " + file + " first before adding to Favourites", BoxIcon::Information});
    return;
  }
  lists.FavJFPath = files.joystick.Path;
  lists.FavMFPath = files.macro.Path;
  lists.FavName = std::string();
  shell.ShowModal(shell.Tool<EnterFavouritename>());
  if (!lists.FavName.Get().empty()) lists.UpdateFavouritesMenu();
}

void OpenFavourite(Workbench& bench, int index) {
  PreviousFiles& lists = bench.lists;
  lists.Favourites.Take(index);
  const Files& files = bench.platform.files;
  const bool bothThere = files.FileExists(lists.FavMFPath.Get()) && files.FileExists(lists.FavJFPath.Get());
  bench.files.OpenFavourite(lists.FavMFPath);
  bench.files.OpenFavourite(lists.FavJFPath);
  // Where a file could not be opened the status bar keeps saying so.
  if (bothThere && bench.settings.CheckIdentifyOK == 1) bench.macros.IdentifyMacrosUsed();
}

}  // namespace tarvik
