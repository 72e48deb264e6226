#include "play/Positions.h"

#include <algorithm>
#include <iterator>

namespace tarvik::play {
namespace {

struct Row {
  Key key;
  Position position;
};

constexpr Key E0(int code) { return static_cast<Key>(kExtended + code); }

/// Scan code set 2 as the kernel's driver for keyboards reads it, by the code.
constexpr Row kRows[] = {
    {0x01, 67},      {0x03, 63},      {0x04, 61},      {0x05, 59},      {0x06, 60},      {0x07, 88},
    {0x09, 68},      {0x0A, 66},      {0x0B, 64},      {0x0C, 62},      {0x0D, 15},      {0x0E, 41},
    {0x11, 56},      {0x12, 42},      {0x14, 29},      {0x15, 16},      {0x16, 2},       {0x1A, 44},
    {0x1B, 31},      {0x1C, 30},      {0x1D, 17},      {0x1E, 3},       {0x21, 46},      {0x22, 45},
    {0x23, 32},      {0x24, 18},      {0x25, 5},       {0x26, 4},       {0x29, 57},      {0x2A, 47},
    {0x2B, 33},      {0x2C, 20},      {0x2D, 19},      {0x2E, 6},       {0x31, 49},      {0x32, 48},
    {0x33, 35},      {0x34, 34},      {0x35, 21},      {0x36, 7},       {0x3A, 50},      {0x3B, 36},
    {0x3C, 22},      {0x3D, 8},       {0x3E, 9},       {0x41, 51},      {0x42, 37},      {0x43, 23},
    {0x44, 24},      {0x45, 11},      {0x46, 10},      {0x49, 52},      {0x4A, 53},      {0x4B, 38},
    {0x4C, 39},      {0x4D, 25},      {0x4E, 12},      {0x52, 40},      {0x54, 26},      {0x55, 13},
    {0x58, 58},      {0x59, 54},      {0x5A, 28},      {0x5B, 27},      {0x5D, 43},      {0x61, 86},
    {0x66, 14},      {0x69, 79},      {0x6B, 75},      {0x6C, 71},      {0x70, 82},      {0x71, 83},
    {0x72, 80},      {0x73, 76},      {0x74, 77},      {0x75, 72},      {0x76, 1},       {0x77, 69},
    {0x78, 87},      {0x79, 78},      {0x7A, 81},      {0x7B, 74},      {0x7C, 55},      {0x7D, 73},
    {0x7E, 70},      {0x83, 65},      {0x84, 99},      {E0(0x11), 100}, {E0(0x14), 97},  {E0(0x1F), 125},
    {E0(0x27), 126}, {E0(0x2F), 127}, {E0(0x4A), 98},  {E0(0x5A), 96},  {E0(0x69), 107}, {E0(0x6B), 105},
    {E0(0x6C), 102}, {E0(0x70), 110}, {E0(0x71), 111}, {E0(0x72), 108}, {E0(0x74), 106}, {E0(0x75), 103},
    {E0(0x7A), 109}, {E0(0x7C), 99},  {E0(0x7D), 104}, {E0(0x7E), 119}, {kPause, 119},
};

}  // namespace

std::optional<Position> PositionOf(Key key) {
  const Row* const row = std::ranges::lower_bound(kRows, key, {}, &Row::key);
  if (row == std::end(kRows) || row->key != key) return std::nullopt;
  return row->position;
}

std::optional<Position> PositionOf(const Output& output) {
  if (output.kind == OutputKind::Key) return PositionOf(output.number);
  // The system counts the one in the middle behind the right one.
  constexpr std::array<Position, 3> kButtons = {kFirstMouseButton, kFirstMouseButton + 2,
                                                kFirstMouseButton + 1};
  const bool isButton =
      output.kind == OutputKind::Mouse && output.number > 0 && output.number <= kButtons.size();
  return isButton ? std::optional(kButtons[output.number - std::size_t{1}]) : std::nullopt;
}

std::string NameAt(Position position) {
  constexpr std::array<const char*, 3> kButtons = {"left", "right", "middle"};
  if (position >= kFirstMouseButton && position < kPositions) {
    return std::string("mouse ").append(kButtons.at(position - kFirstMouseButton));
  }
  const Row* const row = std::ranges::find(kRows, position, &Row::position);
  return row == std::end(kRows) ? std::string() : NameOf(row->key);
}

bool IsModifier(Position position) {
  constexpr Position kModifiers[] = {29, 42, 54, 56, 97, 100, 125, 126};
  return std::ranges::find(kModifiers, position) != std::end(kModifiers);
}

}  // namespace tarvik::play
