// What the Composer's logic tab writes: tokens for a line that is put together in a box, and the lines as
// statements. It knows values and no form, as Statements.h does.
#pragma once

#include "language/Statements.h"

namespace tarvik::tables {

inline constexpr std::size_t kLogicLines = 48;

/// Items of a list: the prefix with the numbers from 1, or by itself where there is no count.
struct ItemRun {
  std::string_view prefix;
  int count = 0;
};

struct FlagListRow {
  std::string_view label;
  ItemRun runs[9];  ///< up to the first without a prefix
};

inline constexpr FlagListRow kFlagLists[] = {
    {"Flag", {{"X", kLogicLines}}},
    {"Hat", {{"H", 4}}},
    {"Button", {{"S", 4}, {"T", 14}, {"TG", 2}}},
    {"Compare", {{"CMPLT"}, {"CMPGT"}}},
    {"Analogue", {{"ANT"}, {"RNG"}, {"THR"}, {"RDDR"}, {"JSX"}, {"JSY"}}},
    {"", {{"U"}, {"D"}, {"L"}, {"R"}, {"M"}, {"UL"}, {"DL"}, {"UR"}, {"DR"}}},  // of the hat
};

/// A box of TxtFlag. The last two start with the default values of DLY and RPT.
struct FlagBoxRow {
  std::string_view label;
  std::string_view initial;
};

inline constexpr FlagBoxRow kFlagBoxes[] = {{"Pulse", "500"}, {"Pulse", "500"}, {"Delay", "1000"},
                                            {"%", "50"},      {"DLY", ""},      {"RPT", ""}};

// The captions of CMDCompare and CMDFlagSlash are their tokens.
inline constexpr std::string_view kCompares[] = {"AND", "OR", "NOT", "(", ")", "BTN", "DEF", "F22RST", "*"};
inline constexpr std::string_view kFlagSlashes[] = {"/U", "/M", "/D", "/T", "/I", "/O",
                                                    "/H", "/N", "/Q", "/F", "/P", "/R"};

/// A token of CMDFlagInsert: texts, and names of FlagList and TxtFlag boxes for what those hold.
struct FlagInsertRow {
  std::string_view parts[6];
};

inline constexpr FlagInsertRow kFlagInserts[] = {
    {{"FlagList(0)"}},
    {{"FlagList(1)", "FlagList(5)"}},
    {{"FlagList(2)"}},
    {{"PULSE(", "TxtFlag(0)", " ", "TxtFlag(1)", ")"}},
    {{"DELAY(", "TxtFlag(2)", ")"}},
    {{"FlagList(3)", "(", "FlagList(4)", " ", "TxtFlag(3)", ")"}},
    {{"DLY(", "TxtFlag(4)", ")"}},
    {{"RPT(", "TxtFlag(5)", ")"}},
};

}  // namespace tarvik::tables

namespace tarvik {

[[nodiscard]] std::vector<std::string> ItemsOf(const tables::FlagListRow& list);

[[nodiscard]] std::string TokenOf(const tables::FlagInsertRow& row, const BoxTexts& boxes);

/// The token as it goes into a line at the caret (0-based): behind a blank, unless it is a bracket or "*".
[[nodiscard]] std::string SpacedToken(std::string_view token, std::string_view line, std::size_t caret);

/// A logic line, black also where insertions have colour, and a line end whatever the tabs add.
[[nodiscard]] Statement LogicStatement(const std::string& line);

/// The lines of a joystick file that begin with "BTN X" or "DEF X", case and all: as many as there are boxes.
[[nodiscard]] std::vector<std::string> LogicLinesOf(std::string_view text);

}  // namespace tarvik
