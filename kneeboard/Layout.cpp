#include "kneeboard/Layout.h"

#include <algorithm>
#include <set>
#include <utility>

#include "kneeboard/DeviceBoxes.h"
#include "kneeboard/DeviceSheet.h"
#include "kneeboard/KeyboardSheet.h"
#include "kneeboard/ListSheet.h"

namespace tarvik::kneeboard {
namespace {

/// What the letters of modifiers mean.
constexpr std::pair<char, const char*> kManners[] = {
    {'H', "/H held"},
    {'N', "/N not repeated"},
    {'A', "/A analog"},
    {'F', "/F repeated as set"},
    {'Q', "/Q without a first delay"},
};

/// The signs and letters that the pages may need; a page tells of them what stands on it.
Legend LegendOf(const Contents& contents, const Options& options) {
  std::set<Sign> signs;
  std::set<char> letters;
  const auto put = [&](const Layer& layer) { signs.insert({SignOf(layer.dogfight), SignOf(layer.shift)}); };
  const auto putAll = [&](const std::vector<Action>& actions) {
    for (const Action& action : actions) {
      put(action.layer);
      signs.insert(SignOf(action.moment));
      letters.insert(action.manner.begin(), action.manner.end());
    }
  };
  for (const DevicePage& device : contents.devices) {
    for (const Scale& scale : device.scales) put(scale.layer);
    if (!device.scales.empty()) signs.insert({Sign::WayUp, Sign::WayDown});
    for (const Control& control : device.controls) putAll(control.actions);
  }
  for (const FlagRow& flag : contents.flags) putAll(flag.sends);
  Legend legend;
  for (const Sign sign : signs) {
    const std::string_view meaning = MeaningOf(sign);
    if (!meaning.empty()) legend.push_back({sign, std::string(meaning), MarkOf(sign)});
  }
  for (const auto& [letter, meaning] : kManners) {
    if (options.hasKeys && letters.contains(letter)) legend.push_back({Sign::None, meaning, MarkOf(letter)});
  }
  return legend;
}

class Kneeboard {
 public:
  Kneeboard(const Contents& contents, const Options& options, const DrawingPlans& plans, PageMaker& maker)
      : contents_(contents),
        options_(options),
        plans_(plans),
        maker_(maker),
        legend_(LegendOf(contents, options)) {}

  std::vector<Page> Pages() {
    if (options_.hasDevices) PutDevices();
    if (options_.hasKeyboard && !contents_.keys.empty()) Take(KeyboardPagesOf(contents_, maker_));
    const bool hasContents =
        !contents_.devices.empty() || !contents_.flags.empty() || !contents_.facts.empty();
    if (options_.hasList && hasContents)
      Take(ListPagesOf(contents_, options_, maker_, LegendOf(contents_, options_)));
    if (pages_.empty()) pages_.push_back(maker_.Begin({"Nothing to show", {}}, {}));
    maker_.PutFeet(pages_);
    return std::move(pages_);
  }

 private:
  void Take(std::vector<Page> pages) {
    for (Page& page : pages) pages_.push_back(std::move(page));
  }

  void PutDevices() {
    std::vector<BoxContent> more = FileBoxesOf(contents_, options_);
    for (const DevicePage& device : contents_.devices) {
      if (options_.layers == Layers::Together) {
        PutDevice(device, {}, more);
        continue;
      }
      for (const LayerSet& layers : PagesOfLayers(device, options_)) PutDevice(device, layers, more);
    }
    if (more.empty()) return;
    Take(FlowPages(maker_, {"Flags and settings", {}}, legend_, more));
  }

  void PutDevice(const DevicePage& device, const LayerSet& layers, std::vector<BoxContent>& more) {
    const DrawingPlan* plan = plans_.Find(device.drawing);
    const PageHead head = {device.title, NameOf(layers)};
    std::vector<BoxContent> boxes = BoxesOf(device, layers, options_);
    if (plan == nullptr) return Take(FlowPages(maker_, head, legend_, boxes));
    DeviceSubject subject = {*plan, device.drawing, HiddenIn(device, *plan)};
    for (BoxContent& box : boxes) {
      const bool isDrawn =
          std::ranges::find(plan->leaders, box.label, &DrawnLeader::label) != plan->leaders.end();
      (isDrawn ? subject.boxes : subject.loose).push_back(std::move(box));
    }
    Take(DevicePagesOf(subject, maker_, head, legend_, more));
  }

  /// The labels of the drawing for which the device has nothing: without its rudders there are no pedals.
  static std::vector<std::string> HiddenIn(const DevicePage& device, const DrawingPlan& plan) {
    std::vector<std::string> hidden;
    for (const DrawnLeader& leader : plan.leaders) {
      if (std::ranges::find(device.controls, leader.label, &Control::label) == device.controls.end() &&
          std::ranges::find(device.scales, leader.label, &Scale::label) == device.scales.end())
        hidden.push_back(leader.label);
    }
    return hidden;
  }

  const Contents& contents_;
  const Options& options_;
  const DrawingPlans& plans_;
  PageMaker& maker_;
  Legend legend_;
  std::vector<Page> pages_;
};

/// Two pages side by side, or one below the other on paper that is turned.
std::vector<Sheet> InPairs(const std::vector<Page>& pages, Spot paper) {
  const bool isUpright = paper.x < paper.y;
  std::vector<Sheet> sheets;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    if (i % 2 == 0) {
      sheets.emplace_back();
      sheets.back().width = paper.x;
      sheets.back().height = paper.y;
    }
    const Spot second = isUpright ? Spot{0, paper.y / 2} : Spot{paper.x / 2, 0};
    Place(sheets.back(), pages[i].sheet, i % 2 == 0 ? Spot() : second);
  }
  return sheets;
}

}  // namespace

Spot SizeOf(const Options& options) {
  constexpr Spot kSizes[] = {{210, 297}, {215.9, 279.4}, {148, 210}};
  const Spot size = kSizes[static_cast<std::size_t>(options.paper)];
  return options.turned == Turned::Portrait ? size : Spot{size.y, size.x};
}

double MarginOf(Spot size) { return std::clamp(std::min(size.x, size.y) * 0.045, 5.0, 10.0); }

std::vector<Sheet> SheetsOf(const Contents& contents, const Options& options, const TextMeasure& measure,
                            const DrawingPlans& plans) {
  const Spot paper = SizeOf(options);
  Spot size = paper;
  if (options.twoOnASheet) (paper.x < paper.y ? size.y : size.x) /= 2;
  Typesetter setter(measure);
  PageMaker maker(contents, size, setter);
  const std::vector<Page> pages = Kneeboard(contents, options, plans, maker).Pages();
  if (options.twoOnASheet) return InPairs(pages, paper);
  std::vector<Sheet> sheets;
  sheets.reserve(pages.size());
  for (const Page& page : pages) sheets.push_back(page.sheet);
  return sheets;
}

}  // namespace tarvik::kneeboard
