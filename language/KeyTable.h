// The keys of the keyboard on screen: what each is called, what it sends, and where it stands.
#pragma once

#include <array>
#include <string_view>

namespace tarvik {

/// How a key is named, and what it sends under Shift and Num Lock.
enum class Mark {
  None,
  Face,      ///< named by its face, unless Shift is to be spelt out
  Aux,       ///< beside the keypad: "AUX" in front on an F22 Pro, and cancels the keyboard's own shift state
  Unshifts,  ///< cancels the keyboard's own shift state too, with an ordinary name
};

/// Where a key stands, in twips from the keyboard's upper left corner.
struct Place {
  int left;
  int top;
  int width = 435;
  int height = 435;
};

struct KeyRow {
  int key;
  const char* caption;
  const char* shiftCaption;  ///< empty: Shift leaves the face as it is
  std::string_view name;
  Mark mark;
  std::string_view make;
  std::string_view breaks;
  Place place;
};

inline constexpr std::string_view kNotSupported = "not supported";

// The codes are those of scan code set 2, but for some: "m" has make and break in each other's place, "w"
// sends what "v" sends, the keypad's "*" breaks as its "+" does, the break of F2 ends with its first byte,
// and Pause has all of its sequence in the make.
// clang-format off
inline constexpr auto kKeys = std::to_array<KeyRow>({
    {0, "0", ")", "0", Mark::None, "#45", "#F0 #45", {4800, 540}},
    {1, "1", "!", "1", Mark::Face, "#16", "#F0 #16", {480, 540}},
    {2, "2", "@", "2", Mark::Face, "#1E", "#F0 #1E", {960, 540}},
    {3, "3", "#", "3", Mark::Face, "#26", "#F0 #26", {1440, 540}},
    {4, "4", "$", "4", Mark::Face, "#25", "#F0 #25", {1920, 540}},
    {5, "5", "%", "5", Mark::Face, "#2E", "#F0 #2E", {2400, 540}},
    {6, "6", "^", "6", Mark::Face, "#36", "#F0 #36", {2880, 540}},
    {7, "7", "&&", "7", Mark::Face, "#3D", "#F0 #3D", {3360, 540}},
    {8, "8", "*", "8", Mark::Face, "#3E", "#F0 #3E", {3840, 540}},
    {9, "9", "(", "9", Mark::None, "#46", "#F0 #46", {4320, 540}},
    {10, "0", "", "KP0", Mark::None, "#70", "#F0 #70", {9060, 2460, 915}},
    {11, "1", "", "KP1", Mark::None, "#69", "#F0 #69", {9060, 1980}},
    {12, "2", "", "KP2", Mark::None, "#72", "#F0 #72", {9540, 1980}},
    {13, "3", "", "KP3", Mark::None, "#7A", "#F0 #7A", {10020, 1980}},
    {14, "4", "", "KP4", Mark::None, "#6B", "#F0 #6B", {9060, 1500}},
    {15, "5", "", "KP5", Mark::None, "#73", "#F0 #73", {9540, 1500}},
    {16, "6", "", "KP6", Mark::None, "#74", "#F0 #74", {10020, 1500}},
    {17, "7", "", "KP7", Mark::None, "#6C", "#F0 #6C", {9060, 1020}},
    {18, "8", "", "KP8", Mark::None, "#75", "#F0 #75", {9540, 1020}},
    {19, "9", "", "KP9", Mark::None, "#7D", "#F0 #7D", {10020, 1020}},
    {20, "a", "A", "a", Mark::Face, "#1C", "#F0 #1C", {720, 1500}},
    {21, "b", "B", "b", Mark::Face, "#32", "#F0 #32", {2940, 1980}},
    {22, "c", "C", "c", Mark::Face, "#21", "#F0 #21", {1980, 1980}},
    {23, "d", "D", "d", Mark::Face, "#23", "#F0 #23", {1680, 1500}},
    {24, "e", "E", "e", Mark::Face, "#24", "#F0 #24", {1560, 1020}},
    {25, "f", "F", "f", Mark::Face, "#2B", "#F0 #2B", {2160, 1500}},
    {26, "g", "G", "g", Mark::Face, "#34", "#F0 #34", {2640, 1500}},
    {27, "h", "H", "h", Mark::Face, "#33", "#F0 #33", {3120, 1500}},
    {28, "i", "I", "i", Mark::Face, "#43", "#F0 #43", {3960, 1020}},
    {29, "j", "J", "j", Mark::Face, "#3B", "#F0 #3B", {3600, 1500}},
    {30, "k", "K", "k", Mark::Face, "#42", "#F0 #42", {4080, 1500}},
    {31, "l", "L", "l", Mark::Face, "#4B", "#F0 #4B", {4560, 1500}},
    {32, "m", "M", "m", Mark::Face, "#F0 #3A", "#3A", {3900, 1980}},
    {33, "n", "N", "n", Mark::Face, "#31", "#F0 #31", {3420, 1980}},
    {34, "o", "O", "o", Mark::Face, "#44", "#F0 #44", {4440, 1020}},
    {35, "p", "P", "p", Mark::Face, "#4D", "#F0 #4D", {4920, 1020}},
    {36, "q", "Q", "q", Mark::Face, "#15", "#F0 #15", {600, 1020}},
    {37, "r", "R", "r", Mark::Face, "#2D", "#F0 #2D", {2040, 1020}},
    {38, "s", "S", "s", Mark::Face, "#1B", "#F0 #1B", {1200, 1500}},
    {39, "t", "T", "t", Mark::Face, "#2C", "#F0 #2C", {2520, 1020}},
    {40, "u", "U", "u", Mark::Face, "#3C", "#F0 #3C", {3480, 1020}},
    {41, "v", "V", "v", Mark::Face, "#2A", "#F0 #2A", {2460, 1980}},
    {42, "w", "W", "w", Mark::Face, "#2A", "#F0 #2A", {1080, 1020}},
    {43, "x", "X", "x", Mark::Face, "#22", "#F0 #22", {1500, 1980}},
    {44, "y", "Y", "y", Mark::Face, "#35", "#F0 #35", {3000, 1020}},
    {45, "z", "Z", "z", Mark::Face, "#1A", "#F0 #1A", {1020, 1980}},
    {46, "`", "~", "`", Mark::Face, "#0E", "#F0 #0E", {0, 540}},
    {47, "-", "_", "-", Mark::Face, "#4E", "#F0 #4E", {5280, 540}},
    {48, "=", "+", "=", Mark::Face, "#55", "#F0 #55", {5760, 540}},
    {49, "\\", "|", "\\", Mark::Face, "#5D", "#F0 #5D", {6240, 540}},
    {50, "[", "{", "[", Mark::None, "#54", "#F0 #54", {5400, 1020}},
    {51, "]", "}", "]", Mark::None, "#5B", "#F0 #5B", {5880, 1020}},
    {52, ";", ":", ";", Mark::Face, "#4C", "#F0 #4C", {5040, 1500}},
    {53, "'", "\"", "'", Mark::Face, "#52", "#F0 #52", {5520, 1500}},
    {55, ",", "<", ",", Mark::Face, "#41", "#F0 #41", {4380, 1980}},
    {56, ".", ">", ".", Mark::Face, "#49", "#F0 #49", {4860, 1980}},
    {57, "/", "?", "/", Mark::Face, "#4A", "#F0 #4A", {5340, 1980}},
    {58, "Shift", "", "LSFT", Mark::None, "#12", "#F0 #12", {0, 1980, 975}},
    {59, "Shift", "", "RSFT", Mark::None, "#59", "#F0 #59", {5820, 1980, 1335}},
    {60, "Ctrl", "", "LCTL", Mark::None, "#14", "#F0 #14", {0, 2460, 555}},
    {61, "Ctrl", "", "RCTL", Mark::None, "#E0 #14", "#E0 #F0 #14", {6600, 2460, 555}},
    {62, "Alt", "", "LALT", Mark::None, "#11", "#F0 #11", {600, 2460, 555}},
    {63, "Alt", "", "RALT", Mark::None, "#E0 #11", "#E0 #F0 #11", {6000, 2460, 555}},
    {64, "Enter", "", "ENT", Mark::None, "#5A", "#F0 #5A", {6540, 1020, 615, 915}},
    {65, "Ent", "", "KPENT", Mark::None, "#E0 #5A", "#E0 #F0 #5A", {10500, 1980, 435, 915}},
    {66, ".", "", "KP.", Mark::None, "#71", "#F0 #71", {10020, 2460}},
    {67, "+", "", "KP+", Mark::None, "#79", "#F0 #79", {10500, 1020, 435, 915}},
    {68, "-", "", "KP-", Mark::None, "#7B", "#F0 #7B", {10500, 540}},
    {69, "*", "", "KP*", Mark::None, "#7C", "#F0 #79", {10020, 540}},
    {70, "/", "", "KP/", Mark::Unshifts, "#E0 #4A", "#E0 #F0 #4A", {9540, 540}},
    {71, "F1", "", "F1", Mark::None, "#05", "#F0 #05", {900, 0}},
    {72, "F2", "", "F2", Mark::None, "#06", "#F0 ", {1380, 0}},
    {73, "F3", "", "F3", Mark::None, "#04", "#F0 #04", {1860, 0}},
    {74, "F4", "", "F4", Mark::None, "#0C", "#F0 #0C", {2340, 0}},
    {75, "F5", "", "F5", Mark::None, "#03", "#F0 #03", {3120, 0}},
    {76, "F6", "", "F6", Mark::None, "#0B", "#F0 #0B", {3600, 0}},
    {77, "F7", "", "F7", Mark::None, "#83", "#F0 #83", {4080, 0}},
    {78, "F8", "", "F8", Mark::None, "#0A", "#F0 #0A", {4560, 0}},
    {79, "F9", "", "F9", Mark::None, "#01", "#F0 #01", {5280, 0}},
    {80, "F10", "", "F10", Mark::None, "#09", "#F0 #09", {5760, 0}},
    {81, "F11", "", "F11", Mark::None, "#78", "#F0 #78", {6240, 0}},
    {82, "F12", "", "F12", Mark::None, "#07", "#F0 #07", {6720, 0}},
    {83, "Esc", "", "ESC", Mark::None, "#76", "#F0 #76", {0, 0}},
    {84, "Ins", "", "INS", Mark::Aux, "#E0 #70", "#E0 #F0 #70", {7260, 540, 495}},
    {85, "Home", "", "HOME", Mark::Aux, "#E0 #6C", "#E0 #F0 #6C", {7740, 540, 615}},
    {86, "Pgup", "", "PGUP", Mark::Aux, "#E0 #7D", "#E0 #F0 #7D", {8340, 540, 615}},
    {87, "Del", "", "DEL", Mark::Aux, "#E0 #71", "#E0 #F0 #71", {7260, 1020, 495}},
    {88, "End", "", "END", Mark::Aux, "#E0 #69", "#E0 #F0 #69", {7740, 1020, 615}},
    {89, "Pgdn", "", "PGDN", Mark::Aux, "#E0 #7A", "#E0 #F0 #7A", {8340, 1020, 615}},
    {90, "Tab", "", "TAB", Mark::None, "#0D", "#F0 #0D", {0, 1020, 555}},
    {91, "Caps", "", "CAPS", Mark::None, "#58", "#F0 #58", {0, 1500, 675}},
    {92, "Spacebar", "", "SPC", Mark::None, "#29", "#F0 #29", {1200, 2460, 4755}},
    {93, "NL", "", "NUML", Mark::None, "#77", "#F0 #77", {9060, 540}},
    {94, "^", "", "UAROW", Mark::Aux, "#E0 #75", "#E0 #F0 #75", {7920, 1980}},
    {95, "v", "", "DAROW", Mark::Aux, "#E0 #72", "#E0 #F0 #72", {7920, 2460}},
    {96, "<", "", "LAROW", Mark::Aux, "#E0 #6B", "#E0 #F0 #6B", {7440, 2460}},
    {97, ">", "", "RAROW", Mark::Aux, "#E0 #74", "#E0 #F0 #74", {8400, 2460}},
    {98, "Scrl", "", "SCRLCK", Mark::None, "#7E", "#F0 #7E", {7920, 0}},
    {99, "Brk", "", "not supported", Mark::None, "#E1 #14 #77 #E1 #F0 #14 #77", "", {8400, 0}},
    {100, "Prt", "", "not supported", Mark::None, "#E0 #12 #E0 #7C", "#E0 #F0 #7C #E0 #F0 #12", {7440, 0}},
    {101, "Bsp", "", "BSP", Mark::None, "#66", "#F0 #66", {6720, 540}},
});
// clang-format on

/// The key of a number; null where no key has it.
constexpr const KeyRow* FindKey(int key) {
  for (const KeyRow& row : kKeys) {
    if (row.key == key) return &row;
  }
  return nullptr;
}

}  // namespace tarvik
