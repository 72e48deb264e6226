// The page of a device: its drawing in the middle, boxes on both sides, and a leader from each box to its
// control.
#pragma once

#include <vector>

#include "kneeboard/Box.h"
#include "kneeboard/Layout.h"
#include "kneeboard/Page.h"

namespace tarvik::kneeboard {

/// What the page of a device shows.
struct DeviceSubject {
  const DrawingPlan& plan;
  std::string drawing;                 ///< the name of its file
  std::vector<std::string> hidden;     ///< labels that the device does not have
  std::vector<BoxContent> boxes = {};  ///< each with a label of the drawing
  std::vector<BoxContent> loose = {};  ///< of the device too, but nowhere on the drawing
};

/// The page, and further ones for what has no room on it. Boxes of `more` that find room below the drawing
/// are taken out of it.
[[nodiscard]] std::vector<Page> DevicePagesOf(const DeviceSubject& subject, const PageMaker& maker,
                                              const PageHead& head, const Legend& legend,
                                              std::vector<BoxContent>& more);

}  // namespace tarvik::kneeboard
