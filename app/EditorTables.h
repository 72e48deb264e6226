// The editor's tables: menus, toolbar, modifier buttons. A row added is an entry added.
#pragma once

#include "app/Editor.h"

namespace tarvik::tables {

inline constexpr std::string_view kSlashEntries[] = {"/U  dogfight switch is up",
                                                     "/M  dogfight switch middle position",
                                                     "/D  dogfight switch is down",
                                                     "/I  S3 is held in",
                                                     "/O S3 is out",
                                                     "/A  force analogue",
                                                     "/P  press event",
                                                     "/R  release event",
                                                     "/H  hold down",
                                                     "/N  no repeat",
                                                     "/T  toggle modifier"};

// Entries without a handler are there and disabled until their tool is. A row without a caption is the hidden
// first member of an array that is filled while the program runs.
inline constexpr MenuRow<Editor> kMenus[] = {
    {0, "mnuFile", "&File"},
    {1, "mnuFileNewJoystick", "New &joystick file", "Ctrl+N", &Editor::mnuFileNewJoystick_Click},
    {1, "mnuFileNewMacro", "New &macro file", "", &Editor::mnuFileNewMacro_Click},
    {1, "mnuFileNewBoth", "&New joystick and macro file", "", &Editor::mnuFileNewBoth_Click},
    {1, "mnuFileDivider1", "-"},
    {1, "mnuFileJoystickLoad", "O&pen joystick file ...", "Ctrl+O", &Editor::mnuFileJoystickLoad_Click},
    {1, "MnuFileMacroLoad", "Open m&acro file ...", "", &Editor::MnuFileMacroLoad_Click},
    {1, "mnuFileOpen", "&Open joystick file and its macro file ...", "F8", &Editor::mnuFileOpen_Click},
    {1, "mnuFileDivider2", "-"},
    {1, "mnuFileSave", "&Save", "Ctrl+S", &Editor::mnuFileSave_Click},
    {1, "mnuFileSaveAs", "Sa&ve as ...", "", &Editor::mnuFileSaveAs_Click},
    {1, "mnuFileSaveBoth", "Save &both files", "", &Editor::mnuFileSaveBoth_Click},
    {1, "mnuFileEarlierVersions", "Earlier vers&ions ...", "", &Editor::ShowTool<ToolId::EarlierVersions>},
    {1, "mnuFileDivider3", "-"},
    {1, "mnuFilePrintJoystick", "P&rint joystick file", "Ctrl+P", &Editor::mnuFilePrintJoystick_Click},
    {1, "mnuFilePrintMacro", "Prin&t macro file", "", &Editor::mnuFilePrintMacro_Click},
    {1, "mnuFilePrinterSetup", "Printer set&up ...", "", &Editor::mnuFilePrinterSetup_Click},
    {1, "mnuFileDivider4", "-"},
    {1, "mnuFilePrevious", "Previous joystick &files"},
    {2, "mnuJFArray", "", "", nullptr, 0, &Editor::mnuJFArray_Click},
    {2, "mnuPreviousDivider1", "-"},
    {2, "mnuPreviousClearAllJ", "&Clear all", "", &Editor::mnuPreviousClearAllJ_Click},
    {1, "mnuFilePrevMacro", "Previous ma&cro files"},
    {2, "mnuMFArray", "", "", nullptr, 0, &Editor::mnuMFArray_Click},
    {2, "mnuPreviousDivider2", "-"},
    {2, "mnuPreviousClearAllM", "&Clear all", "", &Editor::mnuPreviousClearAllM_Click},
    {1, "mnuJoyPopUpSingleFile", "Open single files on&ly", "", &Editor::mnuJoyPopUpSingleFile_Click},
    {1, "mnuFileDivider5", "-"},
    {1, "mnuFileExit", "E&xit", "", &Editor::mnuFileExit_Click},

    {0, "mnuFavourites", "Favouri&tes"},
    {1, "mnuFavouritesAddCurrent", "&Add current files ...", "", &Editor::mnuFavouritesAddCurrent_Click},
    {1, "mnuFavouritesDivider1", "-"},
    {1, "mnuFavArray", "", "", nullptr, 0, &Editor::mnuFavArray_Click},
    {1, "mnuFavouritesDivider2", "-"},
    {1, "mnuFavsEdit", "&Edit", "", &Editor::mnuFavsEdit_Click},

    {0, "mnuEdit", "&Edit"},
    {1, "mnuEditUndo", "&Undo", "Ctrl+Z", &Editor::mnuEditUndo_Click},
    {1, "mnuEditRedo", "&Redo", "Ctrl+Y", &Editor::mnuEditRedo_Click},
    {1, "mnuEditDivider1", "-"},
    {1, "mnuEditCut", "Cu&t", "Ctrl+X", &Editor::mnuEditCut_Click},
    {1, "mnuEditCopy", "&Copy", "Ctrl+C", &Editor::mnuEditCopy_Click},
    {1, "mnuEditPaste", "&Paste", "Ctrl+V", &Editor::mnuEditPaste_Click},
    {1, "mnuEditDelete", "&Delete", "", &Editor::mnuEditDelete_Click},
    {1, "mnuEditSelectAll", "Select &all", "Ctrl+A", &Editor::mnuEditSelectAll_Click},
    {1, "mnuEditDivider2", "-"},
    {1, "mnuEditFind", "&Find ...", "Ctrl+F", &Editor::mnuEditFind_Click},
    {1, "mnuEditFindAsYouType", "Find as you t&ype", "Ctrl+Shift+F", &Editor::mnuEditFindAsYouType_Click},
    {1, "mnuEditReplace", "R&eplace ...", "Ctrl+R", &Editor::mnuEditReplace_Click},
    {1, "mnuEditGoto", "&Go to line ...", "Ctrl+G", &Editor::mnuEditGoto_Click},
    {1, "mnuEditDivider3", "-"},
    {1, "mnuEditUpdateMacros", "Update &macros", "Ctrl+U", &Editor::mnuEditUpdateMacros_Click},
    {1, "mnuPreferencesProtectMacroFile", "Pr&otect macro file", "",
     &Editor::mnuPreferencesProtectMacroFile_Click},
    {1, "mnuEditDivider4", "-"},
    {1, "mnuPreferencesEdit", "Prefere&nces ...", "F9", &Editor::mnuPreferencesEdit_Click},

    {0, "mnuInsert", "&Insert"},
    {1, "mnuShowInsertWindow", "&Composer", "F2", &Editor::mnuShowInsertWindow_Click},
    {1, "mnuComposerPlugin", "&Template ...", "F3", &Editor::mnuComposerPlugin_Click},
    {1, "mnuInsertRAW", "&Pimlet", "F4", &Editor::mnuInsertRAW_Click},
    {1, "mnuInsertDivider1", "-"},
    {1, "mnuInsertTitle", "T&itle ...", "", &Editor::mnuInsertTitle_Click},
    {1, "mnuInsertHeading", "&Heading ...", "F5", &Editor::mnuInsertHeading_Click},
    {1, "mnuInsertRemStatement", "&Rem statement ...", "F6", &Editor::mnuInsertRemStatement_Click},
    {1, "mnuInsertDivider2", "-"},
    {1, "mnuInsertWithColour", "Insert &with colour", "", &Editor::mnuInsertWithColour_Click},
    {1, "mnuInsertDivider3", "-"},
    MenuArray(1, "mnuSlashModifier", kSlashEntries, &Editor::mnuSlashModifier_Click),
    {1, "mnuSlashModifierQ", "/Q  ignore initial repeat delay modifier", "",
     &Editor::mnuSlashModifierQ_Click},
    {1, "mnuSlashModifierDLY", "D&LY  delay", "", &Editor::mnuSlashModifierDLY_Click},
    {1, "mnuInsertDivider8", "-"},
    {1, "mnuInsertQuickTip", "Quic&k tip", "", &Editor::mnuInsertQuickTip_Click},

    {0, "mnuView", "&View"},
    {1, "mnuViewMacros", "&Macros", "", &Editor::mnuViewMacros_Click},
    {1, "mnuViewIdentify", "&Identify macros used", "", &Editor::mnuViewIdentify_Click},
    {1, "mnuViewTileVertically", "&Tile vertically", "", &Editor::mnuViewTileVertically_Click},
    {1, "mnuViewDivider1", "-"},
    {1, "mnuViewReformat", "Re&format layout", "Ctrl+H", &Editor::mnuViewReformat_Click},
    {1, "mnuViewHighlightLine", "Find insertion &point", "Ctrl+L", &Editor::mnuViewHighlightLine_Click},
    {1, "mnuViewDivider2", "-"},
    {1, "mnuViewApplyColourHighlightingTo", "&Apply colour highlighting to"},
    {2, "mnuViewColourJoystick", "&Joystick file", "", &Editor::mnuViewColourJoystick_Click},
    {2, "mnuViewColourMacro", "&Macro file", "", &Editor::mnuViewColourMacro_Click},
    {2, "mnuViewApplyColourBothFiles", "&Both files", "Ctrl+B", &Editor::mnuViewApplyColourBothFiles_Click},
    {1, "mnuViewRemoveColourHighlighting", "&Remove colour highlighting from"},
    {2, "mnuRemoveColourJoystick", "&Joystick file", "", &Editor::mnuRemoveColourJoystick_Click},
    {2, "mnuRemoveColourMacro", "&Macro file", "", &Editor::mnuRemoveColourMacro_Click},
    {2, "mnuRemoveColourSelectedText", "&Selected text", "", &Editor::mnuRemoveColourSelectedText_Click},
    {1, "mnuViewEditColours", "Edit &colours ...", "", &Editor::mnuViewEditColours_Click},
    {1, "mnuViewDivider3", "-"},
    {1, "mnuViewWordWrap", "&Word wrap", "", &Editor::mnuViewWordWrap_Click},
    {1, "mnuViewFixedPitch", "Fi&xed pitch", "", &Editor::Switch<&Settings::FixedPitch>},
    {1, "mnuViewZoom", "&Zoom"},
    {2, "mnuViewZoomIn", "Zoom &in", "Ctrl++", &Editor::mnuViewZoomIn_Click},
    {2, "mnuViewZoomOut", "Zoom &out", "Ctrl+-", &Editor::mnuViewZoomOut_Click},
    {2, "mnuViewZoomNormal", "&Normal size", "Ctrl+0", &Editor::mnuViewZoomNormal_Click},
    {1, "mnuViewDivider4", "-"},
    {1, "mnuViewLineNumbers", "&Line numbers", "", &Editor::Switch<&Settings::LineNumbers>},
    {1, "mnuViewCurrentLine", "C&urrent line", "", &Editor::Switch<&Settings::CurrentLine>},
    {1, "mnuViewMatchingBrackets", "Matching &brackets", "", &Editor::Switch<&Settings::MatchingBrackets>},
    {1, "mnuViewOtherPlaces", "&Other places of the word", "", &Editor::Switch<&Settings::OtherPlaces>},
    {1, "mnuViewChangedLines", "Cha&nged lines", "", &Editor::Switch<&Settings::ChangedLines>},

    {0, "mnuWindow", "&Window"},
    MenuArray<Editor>(1, "mnuWindowCascade", kArrangements),

    {0, "mnuSend", "&Apps"},
    {1, "mnuAppsImageViewer", "&Image viewer", "", &Editor::mnuAppsImageViewer_Click},
    {1, "mnuSendToKeyTest", "&Key Test", "Ctrl+K", &Editor::mnuSendToKeyTest_Click},
    {1, "mnuAppsTemplate", "&Template Editor", "F11", &Editor::mnuAppsTemplate_Click},
    {1, "mnuAppsJoyAnalyser", "Joystick &analyser", "", &Editor::ShowTool<ToolId::JoystickAnalyser>},
    {1, "mnuAppsDivider1", "-"},
    {1, "mnuAppsTMScope", "TMSco&pe", "", &Editor::mnuAppsTMScope_Click},
    {1, "mnuAppsCandCC", "Thrustmaster &Control Centre", "", &Editor::mnuAppsCandCC_Click},
    {1, "mnuAppDivider1", "-"},
    {1, "mnuF22Setup", "Cali&brate F22", "", &Editor::mnuF22Setup_Click},
    {1, "mnuF22Clear", "Clear F22 &memory", "", &Editor::mnuF22Clear_Click},
    {1, "mnuF22Reset", "&Reset F22", "", &Editor::mnuF22Reset_Click},
    {1, "mnuF22Delay", "Test F22 &Download Delay", "", &Editor::mnuF22Delay_Click},
    {1, "mnuAppsDivider2", "-"},
    {1, "mnuCustomApp", "", "", nullptr, 0, &Editor::mnuCustomApp_Click},
    {1, "mnuCustomAppDivider", "-"},
    {1, "mnuAppsEdit", "&Edit custom apps ...", "", &Editor::mnuAppsEdit_Click},
    {1, "mnuAppsDivider3", "-"},
    {1, "mnuSendToJoystick", "Download &joystick file to joystick", "F12", &Editor::mnuSendToJoystick_Click},
    {1, "mnuAppsQuiet", "&Quiet mode transfer", "", &Editor::mnuAppsQuiet_Click},

    {0, "mnuGames", "&Games"},
    {1, "mnuGamesAdd", "&Add game ...", "", &Editor::mnuGamesAdd_Click},
    {1, "mnuGamesDivider1", "-"},
    {1, "mnuGameArray", "", "", nullptr, 0, &Editor::mnuGameArray_Click},
    {1, "mnuGamesDivider2", "-"},
    {1, "mnuGamesEdit", "&Edit", "", &Editor::mnuGamesEdit_Click},

    {0, "mnuhelpWizards", "Wi&zards"},
    {1, "mnuWizBeginnersAdvice", "&Beginners, please read this advice first", "",
     &Editor::mnuWizBeginnersAdvice_Click},
    {1, "mnuWizDivider1", "-"},
    {1, "mnuhelpWizCreateMacroFile", "Creating a &macro file for complete beginners", "",
     &Editor::ShowTool<ToolId::MacroWizard>},
    {1, "mnuhelpWizCreateJoyFile", "Creating a &joystick file for complete beginners", "",
     &Editor::ShowTool<ToolId::JoystickWizard>},
    {1, "mnuWizSpeedy", "&Speedy - for quick macro files", "", &Editor::ShowTool<ToolId::Speedy>},
    {1, "mnuWizDivider2", "-"},
    {1, "mnuWizOrlanTip1", "Orlan's top tips for creating files &quickly", "",
     &Editor::mnuWizOrlanTip1_Click},
    {1, "mnuWizLogic1", "Teach me about &logical programming", "", &Editor::mnuWizLogic1_Click},

    {0, "mnuHelp", "&Help"},
    {1, "mnuHelpContents", "&Help topics", "", &Editor::mnuHelpContents_Click},
    {1, "mnuHelpTips", "&Tip of the day", "", &Editor::mnuHelpTips_Click},
    {1, "mnuHelpOnWeb", "Help on the &web", "", &Editor::mnuHelpOnWeb_Click},
    {1, "mnuHelpDivider1", "-"},
    {1, "mnuHelpAbout", "&About Tarvik", "", &Editor::mnuHelpAbout_Click},
};

inline constexpr MenuRow<Editor> kPopUps[] = {
    {0, "mnuRHMouse", "Right mouse"},
    {1, "mnuRHMUndo", "&Undo", "", &Editor::mnuEditUndo_Click},
    {1, "mnuRHMRedo", "&Redo", "", &Editor::mnuEditRedo_Click},
    {1, "mnuRHMDivider1", "-"},
    {1, "mnuRHMCut", "Cu&t", "", &Editor::mnuEditCut_Click},
    {1, "mnuRHMCopy", "&Copy", "", &Editor::mnuEditCopy_Click},
    {1, "mnuRHMPaste", "&Paste", "", &Editor::mnuEditPaste_Click},
    {1, "mnuRHMDelete", "&Delete", "", &Editor::mnuEditDelete_Click},
    {1, "mnuRHMDivider8", "-"},
    {1, "mnuRHMfind", "&Find ...", "", &Editor::mnuEditFind_Click},
    {1, "mnuRHMGoto", "&Go to line ...", "", &Editor::mnuEditGoto_Click},
    {1, "mnuRHMfindIP", "Find insertion p&oint", "", &Editor::mnuViewHighlightLine_Click},
    {1, "mnuRHMUpdateMacros", "Update &macros", "", &Editor::mnuEditUpdateMacros_Click},
    {1, "mnuRHMIdentify", "Ide&ntify macros used", "", &Editor::mnuViewIdentify_Click},
    {1, "mnuRHMColour", "App&ly colour highlighting", "", &Editor::mnuRHMColour_Click},
    {1, "mnuRHMColoursRemove", "Remo&ve colour highlighting", "", &Editor::mnuRHMColoursRemove_Click},
    {1, "mnuRHMColoursSelection", "Remove colour from &selection", "",
     &Editor::mnuRemoveColourSelectedText_Click},
    {1, "mnuRHMDivider2", "-"},
    {1, "mnuRHMSave", "S&ave", "", &Editor::mnuFileSave_Click},
    {1, "mnuRHMPrint", "Pr&int", "", &Editor::mnuRHMPrint_Click},
    {1, "mnuRHMDivider3", "-"},
    {1, "mnuRHMProtect", "Protect macro fil&e", "", &Editor::mnuPreferencesProtectMacroFile_Click},

    {0, "mnuRHList", "List"},
    {1, "mnuRHListInsert", "&Insert into Joystick file", "", &Editor::mnuRHListInsert_Click},
    {1, "mnuRHListDivider1", "-"},
    {1, "mnuFindInJF", "&Find in joystick file", "", &Editor::mnuFindInJF_Click},
    {1, "mnuRHListIdentify", "I&dentify macros used", "", &Editor::mnuRHListIdentify_Click},
    {1, "mnuRHListDivider2", "-"},
    {1, "mnuRHListEdit", "&Edit", "", &Editor::mnuRHListEdit_Click},
};

/// An entry of the View menu that switches a setting, and bears a check mark while it is on.
struct ViewSwitchRow {
  const char* entry;
  Property<int> Settings::*setting;
};

inline constexpr ViewSwitchRow kViewSwitches[] = {
    {"mnuViewFixedPitch", &Settings::FixedPitch},   {"mnuViewLineNumbers", &Settings::LineNumbers},
    {"mnuViewCurrentLine", &Settings::CurrentLine}, {"mnuViewMatchingBrackets", &Settings::MatchingBrackets},
    {"mnuViewOtherPlaces", &Settings::OtherPlaces}, {"mnuViewChangedLines", &Settings::ChangedLines},
};

/// A toolbar button runs the entry of that name; where it has two, the selected tab tells which.
struct ToolbarRow {
  int button;
  const char* tip;
  const char* icon;
  const char* entry;
  const char* macroEntry = nullptr;
};

inline constexpr ToolbarRow kToolbar[] = {
    {1, "New joystick or macro file", "new", "mnuFileNewJoystick", "mnuFileNewMacro"},
    {2, "Open joystick file and its macro file (F8)", "open", "mnuFileOpen"},
    {3, "Save selected file (Ctrl+S)", "save", "mnuFileSave"},
    {5, "Print currently selected file (Ctrl+P)", "print", "mnuFilePrintJoystick", "mnuFilePrintMacro"},
    {7, "Cut (Ctrl+X)", "cut", "mnuEditCut"},
    {8, "Copy (Ctrl+C)", "copy", "mnuEditCopy"},
    {9, "Paste (Ctrl+V)", "paste", "mnuEditPaste"},
    {11, "Undo (Ctrl+Z)", "undo", "mnuEditUndo"},
    {12, "Redo (Ctrl+Y)", "redo", "mnuEditRedo"},
    {14, "Find word or phrase in file (Ctrl+F)", "find", "mnuEditFind"},
    {15, "Find and Replace (Ctrl+R)", "replace", "mnuEditReplace"},
    {16, "Goto line number (Ctrl+G)", "go-to", "mnuEditGoto"},
    {18, "Add current files to Favourites", "favourite", "mnuFavouritesAddCurrent"},
    {20, "Update macros (Ctrl+U)", "update-macros", "mnuEditUpdateMacros"},
    {21, "View macros", "view-macros", "mnuViewMacros"},
    {23, "Composer (F2)", "composer", "mnuShowInsertWindow"},
    {24, "Select a template and insert it (F3)", "template", "mnuComposerPlugin"},
    {25, "Pimlet (F4)", "pimlet", "mnuInsertRAW"},
    {26, "Insert Title", "title", "mnuInsertTitle"},
    {27, "Insert Heading (F5)", "heading", "mnuInsertHeading"},
    {28, "Insert Rem statement (F6)", "rem", "mnuInsertRemStatement"},
    {30, "Tile joystick and macro files vertically", "tile", "mnuViewTileVertically"},
    {32, "Apply colour highlighting to selected file", "colour", "mnuViewColourJoystick",
     "mnuViewColourMacro"},
    {34, "Image viewer", "image-viewer", "mnuAppsImageViewer"},
    {35, "Key Test (Ctrl+K)", "key-test", "mnuSendToKeyTest"},
    {36, "Template Editor (F11)", "template-editor", "mnuAppsTemplate"},
    {37, "Thrustmaster Control Centre", "control-centre", "mnuAppsCandCC"},
    {39, "Download joystick file to joystick (F12)", "download", "mnuSendToJoystick"},
    {41, "Edit Preferences (F9)", "preferences", "mnuPreferencesEdit"},
    {42, "Help topics", "help", "mnuHelpContents"},
};

inline constexpr const char* kModifierCaptions[Editor::kModifierButtons] = {
    "/U", "/M", "/D", "/I", "/O", "/A", "/P", "/R", "/H", "/N", "/T", "DLY", "/Q",
};

/// Entries of the F22 Pro's own tools.
inline constexpr const char* kF22Entries[] = {
    "mnuF22Setup", "mnuF22Clear", "mnuF22Reset", "mnuF22Delay", "mnuAppDivider1",
};

}  // namespace tarvik::tables
