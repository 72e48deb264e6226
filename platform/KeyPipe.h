// What the program and tarvik-keys say to each other. The program writes strokes, three bytes each; at the
// end of them, however it comes, everything goes up. tarvik-keys answers in lines: a word, and a text behind
// a blank.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace tarvik::keypipe {

// The lines of the answer.
inline constexpr std::string_view kWay = "way";        ///< uinput, xtest or none
inline constexpr std::string_view kWhy = "why";        ///< as KeyOutputState has it
inline constexpr std::string_view kMend = "mend";      ///< the same
inline constexpr std::string_view kHotKey = "hotkey";  ///< it is heard
inline constexpr std::string_view kReady = "ready";    ///< strokes may come
// What may come behind it.
inline constexpr std::string_view kStop =
    "stop";  ///< the hot key was pressed: everything is up, strokes are ignored
inline constexpr std::string_view kLost = "lost";  ///< it goes no longer, for the reason behind the word

inline constexpr std::string_view kUinput = "uinput";
inline constexpr std::string_view kXtest = "xtest";
inline constexpr std::string_view kNone = "none";

using Record = std::array<unsigned char, 3>;

struct Stroke {
  std::uint16_t position = 0;
  bool down = false;

  bool operator==(const Stroke&) const = default;
};

[[nodiscard]] inline Record Packed(const Stroke& stroke) {
  constexpr unsigned kByte = 256;
  return {static_cast<unsigned char>(stroke.position % kByte),
          static_cast<unsigned char>(stroke.position / kByte),
          static_cast<unsigned char>(stroke.down ? 1 : 0)};
}

[[nodiscard]] inline Stroke Unpacked(const Record& record) {
  constexpr unsigned kByte = 256;
  return {static_cast<std::uint16_t>(record[0] + record[1] * kByte), record[2] != 0};
}

}  // namespace tarvik::keypipe
