// Every setting of the program, under the name of its key in the settings file. Read once at start; from then
// on the values here are the truth.
#pragma once

#include "platform/ProfileFile.h"
#include "text/RichText.h"
#include "workbench/Errors.h"

namespace tarvik {

/// The sections of the settings file.
namespace section {
inline constexpr const char* kFileLocations = "FileLocations";
inline constexpr const char* kMiscellaneous = "Miscellaneous";
inline constexpr const char* kApps = "Apps";
inline constexpr const char* kColours = "Colours";
inline constexpr const char* kFavourites = "Favourites";
inline constexpr const char* kGames = "Games";
inline constexpr const char* kView = "View";
inline constexpr const char* kKneeboard = "Kneeboard";
inline constexpr const char* kSticks = "Sticks";
}  // namespace section

/// How large the text is shown, in per cent of its own size.
namespace zoom {
inline constexpr int kLeast = 50;
inline constexpr int kNormal = 100;
inline constexpr int kMost = 400;
inline constexpr int kStep = 10;
}  // namespace zoom

/// The colours as they are at first, and others for a dark room.
enum class ColourScheme { Light, Dark };

class Settings : public Component {
 public:
  /// One of its colours in a scheme.
  [[nodiscard]] static Colour ColourIn(ColourScheme scheme, Property<Colour> Settings::*colour);

  Settings(ProfileFile& file, Errors& errors) : Component("Settings"), file_(file), errors_(errors) {}

  // FileLocations
  Property<std::string> B50LoadPath{*this, "B50LoadPath"};
  Property<std::string> ProgramFilesPath{*this, "ProgramFilesPath"};
  Property<std::string> JoystickExtension{*this, "JoystickExtension"};
  Property<std::string> MacroExtension{*this, "MacroExtension"};
  Property<int> JoyName{*this, "JoyName"};            ///< 0 F22 Pro, 1 F16 FLCS, 2 P FCS, 3 Top Gun, 4 FCS
  Property<int> ThrottleName{*this, "ThrottleName"};  ///< 0 none, 1 TQS, 2 WCS MkII, 3 WCS
  Property<int> RudderName{*this, "RudderName"};      ///< 0 none, 1 Elite, 2 RCS
  Property<int> ShowTips{*this, "ShowTips"};
  Property<int> FirstTimeUsed{*this, "FirstTimeUsed"};
  Property<std::string> CandCCPath{*this, "CandCCPath"};

  // Miscellaneous
  Property<int> AutoSaveEnabled{*this, "AutoSaveEnabled"};
  Property<int> AutoSaveTime{*this, "AutoSaveTime"};  ///< minutes
  Property<int> CreateBackup{*this, "CreateBackup"};
  Property<int> GradientEffect{*this, "GradientEffect"};
  Property<int> OpenBothOnToolbar{*this, "OpenBothOnToolbar"};
  Property<int> SaveBothOnToolbar{*this, "SaveBothOnToolbar"};
  Property<int> AddCRtoREM{*this, "AddCRtoREM"};
  Property<int> CompOnTop{*this, "CompOnTop"};
  Property<int> PimletOnTop{*this, "PimletOnTop"};
  Property<int> AllowAggressiveFocus{*this, "AllowAggressiveFocus"};
  Property<int> MacroFrameWidth{*this, "MacroFrameWidth"};  ///< pixels
  Property<int> HighlightLineOnUndo{*this, "HighlightLineOnUndo"};
  Property<int> HighlightDefinitions{*this, "HighlightDefinitions"};
  Property<int> CheckIdentifyOK{*this, "CheckIdentifyOK"};
  Property<int> FlatToolbar{*this, "FlatToolbar"};
  Property<int> CanWrapToolbar{*this, "CanWrapToolbar"};
  Property<int> DefaultDLYvalue{*this, "DefaultDLYvalue"};
  Property<int> ComposerImages{*this, "ComposerImages"};
  Property<int> UndoMax{*this, "UndoMax"};
  Property<int> UndoClearOnSave{*this, "UndoClearOnSave"};
  Property<int> CompTabsAddCr{*this, "CompTabsAddCr"};
  Property<std::string> ValidUser{*this, "ValidUser"};

  // Apps
  Property<std::string> ImageFilePath{*this, "ImageFilePath"};
  Property<std::string> TextFilePath{*this, "TextFilePath"};

  // Colours
  Property<Colour> BackgroundColour{*this, "BackgroundColour"};
  Property<Colour> BTNColour{*this, "BTNColour"};
  Property<Colour> SlashColour{*this, "SlashColour"};
  Property<Colour> RAWColour{*this, "RAWColour"};
  Property<Colour> MiscellaneousColour{*this, "MiscellaneousColour"};
  Property<Colour> MacroBackgroundColour{*this, "MacroBackgroundColour"};
  Property<Colour> RemStatements{*this, "RemStatements"};
  Property<std::string> TextFontName{*this, "TextFontName"};
  Property<int> TextFontSize{*this, "TextFontSize"};  ///< points
  Property<int> TextFontBold{*this, "TextFontBold"};
  Property<int> ApplyColoursOnFileOpen{*this, "ApplyColoursOnFileOpen"};
  Property<int> InsertWithColour{*this, "InsertWithColour"};

  // View: what the editor shows of the two files beside their text. Nothing of it is in a file.
  Property<int> LineNumbers{*this, "LineNumbers"};
  Property<int> CurrentLine{*this, "CurrentLine"};
  Property<int> MatchingBrackets{*this, "MatchingBrackets"};
  Property<int> OtherPlaces{*this, "OtherPlaces"};
  Property<int> ChangedLines{*this, "ChangedLines"};
  Property<int> ColourAsYouType{*this, "ColourAsYouType"};
  Property<int> OfferColourAsYouType{*this, "OfferColourAsYouType"};  ///< until it was offered once
  Property<int> WelcomePage{*this, "WelcomePage"};
  Property<int> MarkProblems{*this, "MarkProblems"};                  ///< in the text and beside it
  Property<int> ProblemsPanel{*this, "ProblemsPanel"};                ///< below the text
  Property<int> ErrorsBeforeDownload{*this, "ErrorsBeforeDownload"};  ///< are told of, once
  Property<int> ExplainLine{*this, "ExplainLine"};                    ///< below the text
  Property<int> Outline{*this, "Outline"};                            ///< in the place of the macro lists
  Property<int> SuggestAsYouType{*this, "SuggestAsYouType"};          ///< what the word may become
  Property<int> FileHeads{*this, "FileHeads"};                        ///< above the text in the tiled view
  Property<int> FilterLines{*this, "FilterLines"};                    ///< above the lists of macros
  Property<int> FollowStick{*this, "FollowStick"};                    ///< light what is pressed on a stick
  Property<int> FixedPitch{*this, "FixedPitch"};
  Property<int> Zoom{*this, "Zoom"};            ///< per cent
  Property<int> TileShare{*this, "TileShare"};  ///< of the joystick file in the tiled view, in thousandths

  // Kneeboard: how its pages are wanted, each by the place in its list.
  Property<int> KneeboardPaper{*this, "Paper"};
  Property<int> KneeboardTurned{*this, "Turned"};
  Property<int> KneeboardLayers{*this, "Layers"};
  Property<int> KneeboardOrder{*this, "Order"};
  Property<int> KneeboardResolution{*this, "Resolution"};
  Property<int> KneeboardZoom{*this, "PageZoom"};
  Property<int> KneeboardDevices{*this, "Devices"};
  Property<int> KneeboardKeyboard{*this, "Keyboard"};
  Property<int> KneeboardList{*this, "List"};
  Property<int> KneeboardKeys{*this, "Keys"};
  Property<int> KneeboardTwoOnASheet{*this, "TwoOnASheet"};
  Property<int> KneeboardBlackAndWhite{*this, "BlackAndWhite"};

  /// Reads everything but the colour scheme; a missing file or key gives the default.
  void GetOptions();
  /// Writes what GetOptions reads, except ShowTips, which belongs to the tips window.
  void SaveOptions();
  /// Reads the colour scheme. A colour that is no number keeps its value.
  void GetColours();
  /// Writes the colour scheme, but for InsertWithColour.
  Outcome<> SaveColours();
  /// Sets the factory colour scheme and writes it; InsertWithColour is set but not written.
  void ColoursSortOut();

  /// Takes the colours of a scheme, and writes them.
  void UseScheme(ColourScheme scheme);

  /// Changes a setting, and stores it at once.
  void Change(Property<int>& option, int value);
  /// Writes one of the few keys that forms store by themselves, at once.
  void Write(std::string_view section, std::string_view key, std::string_view value);
  [[nodiscard]] ProfileFile& File() { return file_; }

 private:
  ProfileFile& file_;
  Errors& errors_;
};

/// The whole number that `text` is, blanks around it left out; a failure (type mismatch) for anything else
/// and for what does not fit 32 bits.
Outcome<int> ToLong(std::string_view text);

/// A number as the program's 16-bit values hold it: what is beyond them is cut off.
[[nodiscard]] int To16Bits(int value);

}  // namespace tarvik
