#include "kneeboard/ListSheet.h"

#include <algorithm>
#include <iterator>

#include "kneeboard/DeviceBoxes.h"

namespace tarvik::kneeboard {
namespace {

Row RowOf(const Control& control, const Action& action, const Options& options) {
  Row row = {{},
             WordsOf(action.deed),
             KeysOf(action.deed, action.manner, options),
             {},
             true,
             action.source,
             action.manner};
  row.leads.push_back({Sign::None, control.name, true, {Ink::Accent}});
  PutLayer(row.leads, action.layer);
  row.leads.push_back({SignOf(action.moment)});
  row.leads.push_back({Sign::None, action.turn == 0 ? "" : OrdinalOf(action.turn), false, {Ink::Dim}});
  return row;
}

/// A box for each device; a control is named in the first of its rows.
std::vector<BoxContent> ByControl(const Contents& contents, const Options& options) {
  std::vector<BoxContent> boxes;
  for (const DevicePage& device : contents.devices) {
    BoxContent box = {device.title};
    for (const Control& control : device.controls) {
      for (const Action& action : control.actions) {
        box.rows.push_back(RowOf(control, action, options));
        if (&action == &control.actions.front()) continue;
        box.rows.back().leads.front().text.clear();
        box.rows.back().beginsGroup = false;
      }
    }
    if (!box.rows.empty()) boxes.push_back(std::move(box));
  }
  return boxes;
}

/// A box for each heading, and one for what stands under none.
std::vector<BoxContent> ByHeading(const Contents& contents, const Options& options) {
  std::vector<BoxContent> boxes;
  for (const std::string& heading : contents.headings) boxes.push_back({heading});
  boxes.push_back({"Without a heading"});
  for (const DevicePage& device : contents.devices) {
    for (const Control& control : device.controls) {
      for (const Action& action : control.actions) {
        const auto heading = std::ranges::find(contents.headings, action.deed.heading);
        const auto index = static_cast<std::size_t>(heading - contents.headings.begin());
        boxes[index].rows.push_back(RowOf(control, action, options));
      }
    }
  }
  std::erase_if(boxes, [](const BoxContent& box) { return box.rows.empty(); });
  return boxes;
}

}  // namespace

std::vector<Page> ListPagesOf(const Contents& contents, const Options& options, const PageMaker& maker,
                              const Legend& legend) {
  const bool isByControl = options.order == ListOrder::ByControl;
  std::vector<BoxContent> boxes = (isByControl ? ByControl : ByHeading)(contents, options);
  for (const DevicePage& device : contents.devices)
    std::ranges::move(ScaleBoxesOf(device, options), std::back_inserter(boxes));
  std::ranges::move(FileBoxesOf(contents, options), std::back_inserter(boxes));
  return FlowPages(maker, {"List", isByControl ? "By control" : "By heading"}, legend, boxes);
}

}  // namespace tarvik::kneeboard
