#include "kneeboard/DeviceBoxes.h"

#include <algorithm>
#include <set>
#include <utility>

namespace tarvik::kneeboard {
namespace {

constexpr Colour kText = {Ink::Text};
constexpr Colour kDim = {Ink::Dim};
constexpr Colour kAccent = {Ink::Accent};
constexpr Colour kAlarm = {Ink::Alarm};

/// Layers share a page that have no more boxes than these all in all.
constexpr std::size_t kBoxesTogether = 6;

/// What the words have in common at their beginning.
std::string CommonBeginning(const std::string& one, const std::string& other) {
  const auto [end, ignored] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
  return {one.begin(), end};
}

/// The same, in whole words.
std::string CommonWords(const std::string& one, const std::string& other) {
  if (one == other) return one;
  std::string common = CommonBeginning(one, other);
  const auto isEnd = [&](const std::string& all) {
    return common.size() == all.size() || all[common.size()] == ' ';
  };
  if (!isEnd(one) || !isEnd(other)) common.erase(std::min(common.rfind(' '), common.size()));
  if (common.find(' ') == std::string::npos && (!isEnd(one) || !isEnd(other))) return {};
  common.erase(common.find_last_not_of(' ') + 1);
  return common;
}

/// Gathers the rows of one box.
class BoxBuilder {
 public:
  BoxBuilder(LayerSet only, const Options& options) : only_(std::move(only)), options_(options) {}

  void Name(const std::string& label, const std::string& name, const std::string& place) {
    box_.name = isNamed_ ? CommonBeginning(box_.name, name) : name;
    box_.place = isNamed_ ? CommonWords(box_.place, place) : place;
    box_.label = label;
    isNamed_ = true;
  }

  void Take(const Control& control, bool isAlone) {
    bool isFirst = true;
    for (const Action& action : control.actions) {
      if (!Tells(action.layer)) continue;
      Row row = {{}, WordsOf(action.deed), KeysOf(action.deed, action.manner, options_), kText, isFirst};
      row.leads.push_back(isFirst && !isAlone ? WhichOf(control) : Lead{});
      if (only_.size() != 1) PutLayer(row.leads, action.layer);
      row.leads.push_back({SignOf(action.moment), {}, false, kText});
      row.leads.push_back({Sign::None, OrdinalOf(action.turn), false, kDim});
      row.source = action.source;
      row.manner = action.manner;
      box_.rows.push_back(std::move(row));
      isFirst = false;
    }
  }

  void Take(const Scale& scale) {
    if (!Tells(scale.layer)) return;
    Row kind = {{}, scale.kind, {}, kDim, true, scale.source};
    if (only_.size() != 1 && scale.layer != Layer()) PutLayer(kind.leads, scale.layer);
    if (!scale.kind.empty() || scale.steps.empty()) box_.rows.push_back(std::move(kind));
    if (box_.bar.empty()) {
      for (const Step& step : scale.steps) box_.bar.push_back({step.from, step.to, step.isAfterburner});
    }
    for (auto first = scale.steps.begin(); first != scale.steps.end();) {
      const auto same = [&](const Step& each) {
        return each.up == first->up && each.down == first->down && each.isAfterburner == first->isAfterburner;
      };
      const auto last = std::find_if_not(first, scale.steps.end(), same);
      TakeStretch(scale, first, last);
      first = last;
    }
  }

  [[nodiscard]] BoxContent Finish() {
    // Lines between groups of one row each would only be in the way.
    const bool hasGroups = !std::ranges::all_of(box_.rows, &Row::beginsGroup);
    for (Row& row : box_.rows) row.beginsGroup = row.beginsGroup && hasGroups;
    box_.isFaint = box_.rows.empty();
    return std::move(box_);
  }

 private:
  [[nodiscard]] bool Tells(const Layer& layer) const {
    return only_.empty() || std::ranges::find(only_, layer) != only_.end();
  }

  using StepPlace = std::vector<Step>::const_iterator;

  static Lead WhichOf(const Control& control) {
    const Sign sign = SignOf(control.position);
    return {sign, sign == Sign::None ? control.name : "", true, kAccent};
  }

  /// Steps that send the same. Where they do so only on the way up, or in both directions, that is one row.
  void TakeStretch(const Scale& scale, StepPlace first, StepPlace last) {
    const auto steps = last - first;
    const bool isPoint = first->from == (last - 1)->to;
    std::string where = isPoint ? "at " + Percent(first->from) + " %"
                                : Percent(first->from) + "–" + Percent((last - 1)->to) + " %";
    if (steps > 1) where.append(" in ").append(std::to_string(steps)).append(" steps");
    const Colour colour = first->isAfterburner ? kAlarm : kText;
    const auto put = [&](const Lead& lead, const Deed& deed) {
      box_.rows.push_back({{lead}, WordsOf(deed), KeysOf(deed, {}, options_), colour, false, scale.source});
    };
    const bool goesUp = first->up != Deed();
    const bool goesDown = first->down != Deed() && first->down != first->up;
    if (goesUp != goesDown && steps == 1)
      return put({goesUp ? Sign::None : Sign::WayDown, where, false, kDim}, goesUp ? first->up : first->down);
    box_.rows.push_back({{}, where, {}, first->isAfterburner ? kAlarm : kDim, true, scale.source});
    if (goesUp) put({goesDown ? Sign::WayUp : Sign::None, {}, false, colour}, first->up);
    if (goesDown) put({Sign::WayDown, {}, false, colour}, first->down);
    if (!goesUp && !goesDown) box_.rows.back().words.append(": nothing");
  }

  LayerSet only_;
  const Options& options_;
  BoxContent box_;
  bool isNamed_ = false;
};

/// The labels in their order, each once.
std::vector<std::string> LabelsOf(const DevicePage& device) {
  std::vector<std::string> labels;
  const auto take = [&](const std::string& label) {
    if (!label.empty() && std::ranges::find(labels, label) == labels.end()) labels.push_back(label);
  };
  for (const Control& control : device.controls) take(control.label);
  for (const Scale& scale : device.scales) take(scale.label);
  return labels;
}

BoxContent BoxOf(const std::string& label, const DevicePage& device, const LayerSet& only,
                 const Options& options) {
  BoxBuilder builder(only, options);
  const auto isHere = [&](const auto& each) { return each.label == label; };
  const bool hasScale = std::ranges::any_of(device.scales, isHere);
  const bool isAlone = !hasScale && std::ranges::count_if(device.controls, isHere) == 1;
  for (const Scale& scale : device.scales) {
    if (!isHere(scale)) continue;
    builder.Name(label, scale.name, scale.place);
    builder.Take(scale);
  }
  for (const Control& control : device.controls) {
    if (!isHere(control)) continue;
    if (!hasScale) builder.Name(label, control.name, control.place);
    builder.Take(control, isAlone);
  }
  return builder.Finish();
}

void PutLoose(std::vector<BoxContent>& boxes, const DevicePage& device, const LayerSet& only,
              const Options& options) {
  const auto put = [&](const auto& each, auto... isAlone) {
    if (!each.label.empty()) return;
    BoxBuilder builder(only, options);
    builder.Name({}, each.name, each.place);
    builder.Take(each, isAlone...);
    BoxContent box = builder.Finish();
    if (!box.isFaint) boxes.push_back(std::move(box));
  };
  for (const Control& control : device.controls) put(control, true);
  for (const Scale& scale : device.scales) put(scale);
}

BoxContent FlagBoxOf(const std::vector<FlagRow>& flags, const Options& options) {
  BoxContent box = {"Flags"};
  for (const FlagRow& flag : flags) {
    Row row = {{{Sign::None, flag.name, true, kAccent}}, flag.condition, {}, kText, true, flag.source};
    box.rows.push_back(row);
    for (const Action& action : flag.sends) {
      row = {{{}},  WordsOf(action.deed), KeysOf(action.deed, action.manner, options), kDim,
             false, flag.source};
      row.manner = action.manner;
      PutLayer(row.leads, action.layer);
      row.leads.push_back({SignOf(action.moment), {}, false, kDim});
      row.leads.push_back({Sign::None, OrdinalOf(action.turn), false, kDim});
      box.rows.push_back(row);
    }
  }
  return box;
}

}  // namespace

std::string OrdinalOf(std::uint8_t turn) {
  if (turn == 0) return {};
  constexpr const char* kEndings[] = {"st", "nd", "rd"};
  const bool isTeen = turn / 10 % 10 == 1;
  const int last = turn % 10;
  return std::to_string(turn) + (isTeen || last < 1 || last > 3 ? "th" : kEndings[last - 1]);
}

std::string KeysOf(const Deed& deed, const std::string& manner, const Options& options) {
  if (!options.hasKeys) return {};
  std::string keys = deed.words.empty() || deed.words == deed.keys ? "" : deed.keys;
  for (const char letter : manner) keys.append(keys.empty() ? "/" : " /").append(1, letter);
  return keys;
}

std::string WordsOf(const Deed& deed) { return deed.words.empty() ? deed.keys : deed.words; }

void PutLayer(std::vector<Lead>& leads, const Layer& layer) {
  leads.push_back({SignOf(layer.dogfight), {}, false, kText});
  leads.push_back({SignOf(layer.shift), {}, false, kText});
}

std::vector<BoxContent> BoxesOf(const DevicePage& device, const LayerSet& only, const Options& options) {
  std::vector<BoxContent> boxes;
  for (const std::string& label : LabelsOf(device)) {
    BoxContent box = BoxOf(label, device, only, options);
    if (only.empty() || !box.isFaint) boxes.push_back(std::move(box));
  }
  PutLoose(boxes, device, only, options);
  return boxes;
}

std::vector<BoxContent> ScaleBoxesOf(const DevicePage& device, const Options& options) {
  std::vector<BoxContent> boxes;
  for (const Scale& scale : device.scales) {
    BoxBuilder builder({}, options);
    builder.Name({}, scale.name, scale.place);
    builder.Take(scale);
    boxes.push_back(builder.Finish());
  }
  return boxes;
}

std::vector<Layer> LayersOf(const DevicePage& device) {
  std::set<Layer> layers;
  for (const Control& control : device.controls) {
    for (const Action& action : control.actions) layers.insert(action.layer);
  }
  for (const Scale& scale : device.scales) layers.insert(scale.layer);
  return {layers.begin(), layers.end()};
}

std::vector<LayerSet> PagesOfLayers(const DevicePage& device, const Options& options) {
  std::vector<LayerSet> pages;
  std::size_t boxes = 0;
  for (const Layer& layer : LayersOf(device)) {
    const std::size_t more = BoxesOf(device, {layer}, options).size();
    const bool sharesPage = !pages.empty() && boxes + more <= kBoxesTogether;
    if (!sharesPage) pages.emplace_back();
    boxes = sharesPage ? boxes + more : more;
    pages.back().push_back(layer);
  }
  return pages;
}

std::string NameOf(const LayerSet& layers) {
  std::string names;
  for (const Layer& layer : layers) names.append(names.empty() ? "" : "; ").append(NameOf(layer));
  return names;
}

std::string NameOf(const Layer& layer) {
  constexpr const char* kDogfight[] = {"", "dogfight switch up", "dogfight switch in the middle",
                                       "dogfight switch down"};
  constexpr const char* kShift[] = {"", "S3 held in", "S3 out"};
  std::string name = kShift[static_cast<std::size_t>(layer.shift)];
  const std::string dogfight = kDogfight[static_cast<std::size_t>(layer.dogfight)];
  if (name.empty() && dogfight.empty()) return "All layers";
  if (!name.empty() && !dogfight.empty()) name.append(", ");
  name.append(dogfight);
  if (layer.shift == Shift::Any) name.front() = 'D';
  return name;
}

std::vector<BoxContent> FileBoxesOf(const Contents& contents, const Options& options) {
  std::vector<BoxContent> boxes;
  if (!contents.flags.empty()) boxes.push_back(FlagBoxOf(contents.flags, options));
  if (contents.facts.empty()) return boxes;
  boxes.push_back({"Settings and ports"});
  for (const Fact& fact : contents.facts) {
    boxes.back().rows.push_back({{{Sign::None, fact.name, true, kText}}, fact.words, {}, kText, true});
  }
  return boxes;
}

}  // namespace tarvik::kneeboard
