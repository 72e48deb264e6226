// How a kneeboard is wanted.
#pragma once

#include <cstdint>

#include "kneeboard/Contents.h"

namespace tarvik::kneeboard {

enum class Paper : std::uint8_t { A4, Letter, A5 };
enum class Turned : std::uint8_t { Portrait, Landscape };

/// All layers on one page as small lines with signs, or a page for each.
enum class Layers : std::uint8_t { Together, PageEach };

struct Options {
  Paper paper = Paper::A4;
  Turned turned = Turned::Portrait;
  bool twoOnASheet = false;  ///< two pages side by side, each half as large
  Layers layers = Layers::Together;
  bool hasKeys = true;
  ListOrder order = ListOrder::ByControl;
  // The kinds of pages.
  bool hasDevices = true;
  bool hasKeyboard = true;
  bool hasList = true;

  friend bool operator==(const Options&, const Options&) = default;
};

}  // namespace tarvik::kneeboard
