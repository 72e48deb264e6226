// Favourites: pairs of a joystick file and a macro file under a name of the user's, opened by one click.
#pragma once

#include "controls/Controls.h"
#include "workbench/ToolForm.h"

namespace tarvik {

/// Asks what the two files in hand are to be called in the menu.
class EnterFavouritename : public ToolForm {
 public:
  explicit EnterFavouritename(Workbench& bench, Shell& shell);

  TextBox Text1{*this, "Text1"};
  Label Label1{*this, "Label1"};  ///< the joystick file
  Label Label2{*this, "Label2"};  ///< the macro file
  CommandButton Command1{*this, "Command1", "OK", &EnterFavouritename::Command1_Click};
  CommandButton Command2{*this, "Command2", "Cancel", &EnterFavouritename::Close};

  void Command1_Click();
};

/// What a file is called unless the user knows better: "c:\tm\MYFILE.f22" gives "Myfile".
[[nodiscard]] std::string SuggestedName(const std::string& path);

/// Asks for a name for the two files in hand, and puts them first in the list.
void AddToFavourites(Workbench& bench, Shell& shell);

/// Opens both files of the favourite of that row, counted from 1.
void OpenFavourite(Workbench& bench, int index);

}  // namespace tarvik
