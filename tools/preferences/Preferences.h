// The one dialog in which every setting, colour and list is edited. Much takes effect at once, and closing it
// in any way stores everything: there is no way of leaving with the old values.
#pragma once

#include "panes/Pane.h"
#include "tools/preferences/KeptListPage.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class Preferences : public ToolForm {
 public:
  explicit Preferences(Workbench& bench, Shell& shell);

  TabPages SSTab1{*this,
                  "SSTab1",
                  {"&File locations", "&Colour highlighting / Fonts", "&Apps", "Fa&vourites",
                   "&Miscellaneous", "&Games"}};

  // File locations.
  TextBox Text1{*this, "Text1"};    ///< the loader
  TextBox Text2{*this, "Text2"};    ///< the folder of the files
  TextBox Text10{*this, "Text10"};  ///< the Control Centre
  CommandButton Command1{*this, "Command1", "Browse"};
  CommandButton Command2{*this, "Command2", "Browse"};
  CommandButton Command8{*this, "Command8", "Browse"};
  CommandButton CommandDrives{*this, "CommandDrives", "&Drives ..."};
  CommandButton CommandStick{*this, "CommandStick", "&Stick ..."};
  ComboBox ComboJoystick{*this, "ComboJoystick"};
  ComboBox ComboThrottle{*this, "ComboThrottle"};
  ComboBox ComboRudders{*this, "ComboRudders"};

  // Colours and fonts.
  ListBox List1{*this, "List1"};
  Pane ExampleJoystickText;
  CheckBox CheckBox1{*this, "CheckBox1", "Apply when opening files"};
  CheckBox CheckFixedPitch{*this, "CheckFixedPitch", "Show fixed pitch fonts only"};
  CommandButton LightScheme{*this, "LightScheme", "Light scheme", &Preferences::LightScheme_Click};
  CommandButton DarkScheme{*this, "DarkScheme", "Dark scheme", &Preferences::DarkScheme_Click};
  CommandButton Command17{*this, "Command17", "Tip: fixed pitch fonts", &Preferences::Command17_Click};
  CommandButton Command18{*this, "Command18", "Change font", &Preferences::DoTheFonts};
  Label FontInUse{*this, "FontInUse"};

  // Apps.
  TextBox Text5{*this, "Text5"};  ///< the first picture of the image viewer
  TextBox Text6{*this, "Text6"};  ///< the first file of the Template Editor
  CommandButton Command5{*this, "Command5", "Browse"};
  CommandButton Command7{*this, "Command7", "Browse"};

  ControlArray<TextBox> CustomAppNameText{*this, "CustomAppNameText", 0};  ///< 1-based, as the programs are
  ControlArray<TextBox> CustomAppPathText{*this, "CustomAppPathText", 0};
  ControlArray<CheckBox> CustomAppPathUse{*this, "CustomAppPathUse", 0};
  ControlArray<CommandButton> CustomAppPathBrowse{*this, "CustomAppPathBrowse", 0};

  // Favourites.
  ListBox List2{*this, "List2"};
  Label NoFavourites{*this, "NoFavourites"};
  TextBox Text7{*this, "Text7"};  ///< the name
  TextBox Text8{*this, "Text8"};  ///< the joystick file
  TextBox Text9{*this, "Text9"};  ///< the macro file
  CommandButton Command9{*this, "Command9", "Browse"};
  CommandButton Command10{*this, "Command10", "Browse"};
  CommandButton Command13{*this, "Command13", "Remove"};
  CommandButton Command14{*this, "Command14", "Load this one on start"};
  CheckBox LoadAppCheckBox{*this, "LoadAppCheckBox", "Load a favourite on start:"};
  Label Label11{*this, "Label11"};  ///< which

  // Games.
  ListBox List3{*this, "List3"};
  Label NoGames{*this, "NoGames"};
  TextBox Text12{*this, "Text12"};  ///< the name
  TextBox Text11{*this, "Text11"};  ///< the command line
  TextBox Text4{*this, "Text4"};    ///< the folder
  TextBox Text13{*this, "Text13"};  ///< the joystick file
  CheckBox Check5{*this, "Check5", "Transfer joystick file to joystick when game is run"};
  CheckBox CheckFly{*this, "CheckFly", "Fly while the game runs"};
  CommandButton Command16{*this, "Command16", "Browse"};
  CommandButton Command15{*this, "Command15", "Browse"};
  CommandButton Command4{*this, "Command4", "Browse"};
  CommandButton Command12{*this, "Command12", "Remove"};

  // Miscellaneous.
  ControlArray<CheckBox> Check3{*this, "Check3", {"Autosave files every", "Create backup when saving files"}};
  TextBox Text3{*this, "Text3"};  ///< minutes of autosave
  CheckBox OpenBothChk{*this, "OpenBothChk", "Open button on toolbar opens joystick file and its macro file"};
  CheckBox SaveBothChk{*this, "SaveBothChk", "Save button saves both files"};
  TextBox TxtUndoLevels{*this, "TxtUndoLevels"};
  CheckBox CheckUndoSave{*this, "CheckUndoSave", "Clear when file is saved"};
  CheckBox CheckHighlightOnUndo{*this, "CheckHighlightOnUndo", "Highlight line on Undo/Redo"};
  CommandButton Command11{*this, "Command11", "Clear now"};
  ControlArray<OptionButton> OptionImagesToShow{*this,
                                                "OptionImagesToShow",
                                                {"Your selected controllers", "All Thrustmaster controllers",
                                                 "Controllers relevant to the files that are open "}};
  CheckBox CheckShowTooltips{*this, "CheckShowTooltips", "Show tooltips"};  ///< without effect
  CheckBox CheckAggressive{*this, "CheckAggressive", "Allow aggressive focus"};
  CheckBox CheckIdentify{*this, "CheckIdentify", "Identify macros used in joystick file "};
  ControlArray<CheckBox> CheckFlattenToolbar{
      *this,
      "CheckFlattenToolbar",
      {"Flatten toolbar on startup", "Apply colour gradient on startup", "Toolbar is wrappable on startup"}};
  TextBox DLYText{*this, "DLYText"};

  CommandButton Command3{*this, "Command3", "OK", &Preferences::Close};
  CommandButton Command6{*this, "Command6", "Help", &Preferences::Command6_Click};

  void Form_Load();
  void Form_Activate();
  void Form_Unload();
  void SSTab1_Click();
  void ComboJoystick_Click();
  void List1_Click();
  /// Stores the colour of the item in hand, and paints the example with it.
  void ApplyColour(Colour colour);
  void SaveColourScheme();
  void DoTheFonts();
  void ShowFont();
  void Command6_Click();
  /// All colours at once, as a user would choose them one by one.
  void UseScheme(ColourScheme scheme);
  void LightScheme_Click() { UseScheme(ColourScheme::Light); }
  void DarkScheme_Click() { UseScheme(ColourScheme::Dark); }
  void Command17_Click();
  void Text2_Change();
  void Text3_Change();
  void Text3_LostFocus();
  void Text7_LostFocus();
  void DLYtext_Change();
  void TxtUndoLevels_Change();
  void TxtUndoLevels_LostFocus();
  void CustomAppPathUse_Click(int row);
  void UpdateFavouritesControls() { favourites_.Begin(); }
  void DisableFavouritesControls() { favourites_.Disable(); }
  void UpdateGamesControls() { games_.Begin(); }
  void DisableGamesControls() { games_.Disable(); }

 private:
  /// A box whose tick is a setting.
  struct Tick {
    CheckBox& box;
    Property<int>& setting;
  };

  void NameControls();
  void AttachHandlers();
  void AttachMiscellaneous();
  /// What is found goes into the box, and at once into the setting where the box has one.
  void Browse(CommandButton& button, TextBox& box, const char* say,
              std::initializer_list<std::string_view> types, Property<std::string>* setting = nullptr);
  void FillColours();
  void ShowSwatches();
  void ShowExample();
  void PaintExample(std::string_view word, std::string_view end, Colour colour);
  void AttachApps();
  void AttachLists();
  [[nodiscard]] std::vector<Tick> Ticks();

  Settings& settings_;
  KeptListPage favourites_;
  KeptListPage games_;
};

}  // namespace tarvik
