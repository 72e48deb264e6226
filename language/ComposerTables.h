// The Composer's tables: the controls of the pictured hardware with their tokens, slash modifiers, and the
// statements that its tabs build. A row added is a control or a statement added.
#pragma once

#include <span>
#include <string_view>

namespace tarvik::tables {

/// The picture that a label lies on, by the tab that shows it.
enum class Picture { Stick, PlainStick, Tqs, Wcs };

struct HardwareRow {
  std::string_view array;
  int index;  ///< -1 for a control that is no member of an array
  Picture picture;
  std::string_view caption;  ///< of a button, also its token
  std::string_view tip;
  std::string_view place;  ///< where it is or what it is called, in a word or two, for those who look for it
};

inline constexpr std::string_view kButtonTip = "Insert or find this button statement";
inline constexpr std::string_view kHatTip = "Insert or find this hat statement";
inline constexpr std::string_view kThrottleTip =
    "Set up for digital throttle use as opposed to normal analogue";

// The buttons of the WCS are named by kWcsButtons.
inline constexpr HardwareRow kHardware[] = {
    {"HAT", 0, Picture::Stick, " H1", kHatTip, "trim hat"},
    {"HAT", 1, Picture::Stick, " H2", kHatTip, "target hat"},
    {"HAT", 2, Picture::Stick, " H3", kHatTip, "display hat"},
    {"HAT", 3, Picture::Stick, " H4", kHatTip, "defence hat"},
    {"BTN", 0, Picture::Stick, "S1", kButtonTip, "side of head"},
    {"BTN", 1, Picture::Stick, "S2", kButtonTip, "red button"},
    {"BTN", 2, Picture::Stick, "S3", kButtonTip, "pinky button"},
    {"BTN", 3, Picture::Stick, "S4", kButtonTip, "paddle"},
    {"TRIG", -1, Picture::Stick, "TG1 TG2", "Insert or find a trigger statement", "trigger"},
    {"ROTARY", 3, Picture::Stick, "JSX", "Setup for digital joystick x axis", "roll"},
    {"ROTARY", 6, Picture::Stick, "JSY", "Setup for digital joystick y axis", "pitch"},
    {"ROTARY", 4, Picture::Stick, "SWAPTG", "Swap the trigger positions around", "trigger order"},
    {"ROTARY", 7, Picture::Stick, "PORT", "Assign a hat or button as an analogue switch", "game port"},

    {"HAT", 4, Picture::PlainStick, " H", kHatTip, "hat"},
    {"BTN", 5, Picture::PlainStick, "UB", kButtonTip, "upper button"},
    {"BTN", 6, Picture::PlainStick, "TG", "Insert or find this trigger statement", "trigger"},
    {"BTN", 7, Picture::PlainStick, "MB", kButtonTip, "middle button"},
    {"BTN", 8, Picture::PlainStick, "LB", kButtonTip, "lower button"},

    {"ROTARY", 0, Picture::Tqs, "RNG", "Insert or find the Range rotary", "range knob"},
    {"ROTARY", 1, Picture::Tqs, "ANT", "Insert or find the Antenna rotary", "antenna wheel"},
    {"BTN", 32, Picture::Tqs, "T1", kButtonTip, "cursor pressed"},
    {"BTN", 24, Picture::Tqs, "T2", kButtonTip, "radio up"},
    {"BTN", 27, Picture::Tqs, "T3", kButtonTip, "radio right"},
    {"BTN", 26, Picture::Tqs, "T4", kButtonTip, "radio down"},
    {"BTN", 25, Picture::Tqs, "T5", kButtonTip, "radio left"},
    {"BTN", 11, Picture::Tqs, "T6", kButtonTip, "side button"},
    {"BTN", 12, Picture::Tqs, "T7", kButtonTip, "dogfight up"},
    {"BTN", 13, Picture::Tqs, "T8", kButtonTip, "dogfight down"},
    {"BTN", 14, Picture::Tqs, "T9", kButtonTip, "brake left"},
    {"BTN", 15, Picture::Tqs, "T10", kButtonTip, "brake right"},
    {"BTN", 30, Picture::Tqs, "T11", kButtonTip, "cursor up"},
    {"BTN", 29, Picture::Tqs, "T12", kButtonTip, "cursor right"},
    {"BTN", 28, Picture::Tqs, "T13", kButtonTip, "cursor down"},
    {"BTN", 31, Picture::Tqs, "T14", kButtonTip, "cursor left"},
    {"ROTARY", 2, Picture::Tqs, "Rudder", "Setup your rudders", "pedals"},
    {"ROTARY", 5, Picture::Tqs, "Throttle", kThrottleTip, "lever"},

    {"BTN", 16, Picture::Wcs, "", kButtonTip, "rocker up"},
    {"BTN", 4, Picture::Wcs, "", kButtonTip, "rocker middle"},
    {"BTN", 17, Picture::Wcs, "", kButtonTip, "rocker down"},
    {"BTN", 18, Picture::Wcs, "", kButtonTip, "lower right"},
    {"BTN", 19, Picture::Wcs, "", kButtonTip, "upper right"},
    {"BTN", 20, Picture::Wcs, "", kButtonTip, "middle right"},
    {"BTN", 21, Picture::Wcs, "", kButtonTip, "top right"},
    {"BTN", 22, Picture::Wcs, "", kButtonTip, "top middle"},
    {"BTN", 23, Picture::Wcs, "", kButtonTip, "top left"},
    {"ROTARY", 8, Picture::Wcs, "Rudder", "Set up your rudders", "pedals"},
    {"ROTARY", 9, Picture::Wcs, "Throttle", kThrottleTip, "lever"},
};

/// What a button of the WCS is called beside a joystick of either language; empty where it is not there.
struct WcsRow {
  int button;
  std::string_view plain;
  std::string_view numbered;
};

inline constexpr WcsRow kWcsButtons[] = {
    {23, "1", "T1"}, {22, "2", "T2"},      {21, "3", "T3"},      {19, "4", "T4"},   {20, "5", "T5"},
    {18, "6", "T6"}, {16, "RKR UP", "T7"}, {17, "RKR DN", "T8"}, {4, "RKR MD", ""},
};

// A hat's token is its name and a position. The corners go down the left side first, then down the right.
inline constexpr std::string_view kHats[] = {"H1", "H2", "H3", "H4", "H"};
inline constexpr std::string_view kHatPositions[] = {"U", "D", "L", "R", "M"};
inline constexpr std::string_view kHatCorners[] = {"UL", "DL", "UR", "DR"};
/// What the menu of a hat calls the corners until it is filled for the first time.
inline constexpr std::string_view kHatCornersAtFirst[] = {"UL", "UR", "DL", "DR"};

inline constexpr std::string_view kTriggers[] = {"TG1", "TG2"};
inline constexpr std::string_view kPorts[] = {"PortB1 IS", "PortB2 IS", "PortB3 IS", "PortB4 IS"};

/// What a click on a rotary's label looks for and, where that is not in the file, opens.
struct RotaryRow {
  std::string_view search;  ///< empty for the PORT latch
  int tab;                  ///< of SSTab1; 0 where no tab builds the statement
  int axis;                 ///< of kAxes, lit on that tab; -1 for none
};

inline constexpr int kSwapTriggers = 4;
inline constexpr int kPortLatch = 7;
/// The rotaries that go without rudders.
inline constexpr int kRudderLabels[] = {2, 8};

inline constexpr RotaryRow kRotaries[] = {
    {"RNG", 1, -1}, {"ANT", 2, -1}, {"RDDR", 4, 2}, {"JSX", 4, 0},  {"SWAPTG ", 0, -1},
    {"THR", 3, -1}, {"JSY", 4, 1},  {"", 0, -1},    {"RDDR", 4, 2}, {"THR", 3, -1},
};

struct AxisRow {
  std::string_view caption;
  std::string_view token;
};

inline constexpr AxisRow kAxes[] = {
    {"Joystick X axis", "JSX"}, {"Joystick Y axis", "JSY"}, {"Rudder", "RDDR"}};

struct SlashRow {
  std::string_view caption;
  std::string_view tip;
};

inline constexpr SlashRow kSlashes[] = {
    {"/U", "Insert the up slash modifier"},
    {"/M", "Insert the middle slash modifier"},
    {"/D", "Insert the down slash modifier"},
    {"/I", "Insert the in (S3 is held in) slash modifier"},
    {"/O", "Insert the out (S3 isn't held in) slash modifier"},
    {"/T", "Insert the toggle slash modifier"},
    {"/P", "Insert the press slash modifier"},
    {"/R", "Insert the release slash modifier"},
    {"/H", "Insert the hold slash modifier"},
    {"/N", "Insert the no repeat slash modifier"},
    {"/A", "Insert the force analogue slash modifier"},
    {"/Q", "Insert the ignore initial repeat delay slash modifier"},
};
inline constexpr int kForceSlash = 10;  ///< what kFormatSlash replaces on an F-22 Pro
inline constexpr SlashRow kFormatSlash = {"/F", "Insert the format repeating slash modifier"};
inline constexpr int kIgnoreSlash = 11;
/// What "/Q" says of itself until it is shown for the first time.
inline constexpr std::string_view kIgnoreSlashFirstTip = "Insert the release slash modifier";

/// A bracket statement, by the index of its button.
struct BracketRow {
  std::string_view opening;
  std::string_view box;
};

inline constexpr BracketRow kBrackets[] = {{"DLY(", "DLYText"}, {"RPT(", "TextRPT"}};

/// A box whose text goes into a statement, and the label beside it.
struct FieldRow {
  std::string_view box;
  std::string_view label;
  std::string_view blackBox = {};  ///< read in its place for a statement without colour
};

struct TabRow {
  std::string_view button;
  std::string_view keyword;  ///< empty for the token of the lit axis
  std::string_view type;
  FieldRow fields[8];  ///< up to the first without a box
};

// The steps of a coloured axis statement of type 2 come from its own page; those of a black one from the page
// of type 1.
inline constexpr TabRow kTabStatements[] = {
    {"Command3",
     "RNG",
     "1",
     {{"Text1(0)", "Number of steps"},
      {"RichTextBox1(0)", "Step up character"},
      {"RichTextBox1(1)", "Step down character"}}},
    {"Command4",
     "RNG",
     "2",
     {{"Text2(0)", "Number of steps"},
      {"RichTextBox2(0)", "Full up character"},
      {"RichTextBox2(1)", "In between characters"},
      {"RichTextBox2(2)", "Full down character"}}},
    {"Command8(0)",
     "ANT",
     "1",
     {{"Text1(1)", "Number of steps"},
      {"RichTextBox1(2)", "Step up character"},
      {"RichTextBox2(6)", "Step down character"},
      {"RichTextBox1(3)", "Centre character"}}},
    {"InsertANT",
     "ANT",
     "2",
     {{"Text2(1)", "Number of steps"},
      {"RichTextBox2(3)", "Full up character"},
      {"RichTextBox2(5)", "Full up to centre"},
      {"RichTextBox2(7)", "Centre character"},
      {"RichTextBox2(4)", "Centre to full down"},
      {"RichTextBox2(8)", "Full down character"}}},
    {"Command8(1)",
     "",
     "1",
     {{"Text1(2)", "Number of steps"},
      {"RichTextBox1(4)", "Step up character"},
      {"RichTextBox2(9)", "Step down character"},
      {"RichTextBox1(5)", "Centre character"}}},
    {"Command8(2)",
     "",
     "2",
     {{"Text2(2)", "Number of steps", "Text1(2)"},
      {"RichTextBox2(10)", "Full up character"},
      {"RichTextBox2(11)", "Full up to centre"},
      {"RichTextBox2(12)", "Centre character"},
      {"RichTextBox2(13)", "Centre to full down"},
      {"RichTextBox2(14)", "Full down character"}}},
    {"Command8(3)",
     "",
     "3",
     {{"RichTextBox2(15)", "Left character"},
      {"RichTextBox2(16)", "Centre character"},
      {"RichTextBox2(17)", "Right character"}}},
    {"Command12(0)",
     "THR",
     "1",
     {{"Text2(3)", "Throttle steps"},
      {"Text2(4)", "Afterburner steps"},
      {"RichTextBox1(6)", "Throttle up"},
      {"RichTextBox1(7)", "Throttle down"},
      {"RichTextBox1(8)", "AB Entry"},
      {"RichTextBox1(9)", "AB Exit"},
      {"RichTextBox1(10)", "AB up"},
      {"RichTextBox1(11)", "AB down"}}},
    {"Command12(1)",
     "THR",
     "2",
     {{"Text2(11)", "Throttle steps"},
      {"Text2(12)", "Afterburner steps"},
      {"RichTextBox1(12)", "Throttle characters"},
      {"RichTextBox1(13)", "Afterburner characters"}}},
};

/// A tab that builds statements: the rows of kTabStatements that its pages show, one a page.
struct StatementTabRow {
  int tab;  ///< of SSTab1
  std::string_view strip;
  int firstRow;
  int rows;
};

inline constexpr StatementTabRow kStatementTabs[] = {
    {1, "SSTab2", 0, 2},
    {2, "SSTab3", 2, 2},
    {3, "SSTab5", 7, 2},
    {4, "SSTab4", 4, 3},
};

struct UseRow {
  std::string_view caption;
  std::string_view text;
};

inline constexpr UseRow kUses[] = {
    {"TQS", "USE TQS"},           {"WCS", "USE WCS"},          {"No Mouse", "USE NOMOUSE"},
    {"No Throttle", "USE NOTHR"}, {"Frame clock", "USE FCLK"}, {"@digitalthrottle", "@digitalthrottle "},
    {"BTN MT", "BTN MT "},        {"RCS", "USE RCS"},          {"No Rudders", "USE NORDDR"},
};

/// A keyword with one value, by the index of its button.
struct ValueRow {
  std::string_view label;
  std::string_view box;
  std::string_view initial;
  std::string_view keyword;
};

inline constexpr ValueRow kValues[] = {
    {"Rate", "Text1(3)", "20", "RATE "},
    {"MDEF", "Text1(4)", "", "MDEF "},  // starts with the macro file's name
    {"NULLCHR", "Text1(5)", "", "NULLCHR "},
};

/// Which button of the throttle is which button of the mouse.
struct MouseRow {
  std::string_view left;
  std::string_view middle;
  std::string_view right;
};

inline constexpr MouseRow kTwoButtonMice[] = {
    {"T1", "n/a", "T6"},  {"T6", "n/a", "T1"},   {"T1", "n/a", "n/a"},
    {"T6", "n/a", "n/a"}, {"n/a", "n/a", "n/a"},
};

inline constexpr MouseRow kThreeButtonMice[] = {
    {"T1", "T6", "n/a"},   {"T6", "T1", "n/a"},  {"T1", "n/a", "n/a"}, {"T6", "n/a", "n/a"},
    {"n/a", "n/a", "n/a"}, {"T1", "T6", "T3"},   {"T6", "T1", "T3"},   {"T1", "n/a", "T3"},
    {"T6", "n/a", "T3"},   {"n/a", "n/a", "T3"},
};

/// A list of mouse types: its letter and a number from 1 name an item.
struct MouseListRow {
  std::string_view option;
  char letter;
  std::span<const MouseRow> types;
};

inline constexpr MouseListRow kMouseLists[] = {{"2 button", 'A', kTwoButtonMice},
                                               {"3 button", 'B', kThreeButtonMice},
                                               {"Logitech", 'C', kThreeButtonMice}};

}  // namespace tarvik::tables
