// The list of all actions as plain text.
#include <algorithm>
#include <array>

#include "kneeboard/Contents.h"

namespace tarvik::kneeboard {
namespace {

constexpr std::size_t kColumns = 4;
constexpr std::size_t kWidest = 48;  // letters of a column that others line up with
using Cells = std::array<std::string, kColumns>;

/// How many letters a text in UTF-8 has.
std::size_t LettersOf(std::string_view text) {
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char byte) { return (byte & 0xC0) != 0x80; }));
}

void Append(std::string& words, std::string_view more) {
  if (more.empty()) return;
  if (!words.empty()) words.append(", ");
  words.append(more);
}

std::string LayerOf(const Action& action) {
  constexpr std::string_view kShifts[] = {"", "S3 in", "S3 out"};
  constexpr std::string_view kPlaces[] = {"", "dogfight up", "dogfight middle", "dogfight down"};
  constexpr std::string_view kMoments[] = {"", "press", "release"};
  std::string layer;
  Append(layer, kShifts[static_cast<std::size_t>(action.layer.shift)]);
  Append(layer, kPlaces[static_cast<std::size_t>(action.layer.dogfight)]);
  Append(layer, kMoments[static_cast<std::size_t>(action.moment)]);
  if (action.turn > 0) Append(layer, "turn " + std::to_string(action.turn));
  for (const char letter : action.manner) Append(layer, std::string("/") + letter);
  return layer;
}

std::string SentBy(const Action& action) {
  const std::string layer = LayerOf(action);
  return layer.empty() ? action.deed.words : layer + ": " + action.deed.words;
}

std::string StretchOf(const Step& step) {
  std::string stretch =
      step.from == step.to ? "at " + Percent(step.from) : Percent(step.from) + " to " + Percent(step.to);
  return stretch + (step.isAfterburner ? "%, afterburner" : "%");
}

/// Lines under a heading, in columns.
class TextWriter {
 public:
  void Heading(std::string_view words) {
    Flush();
    if (!text_.empty()) text_.push_back('\n');
    text_.append(words).append("\n").append(std::string(LettersOf(words), '-')).append("\n");
  }
  void Add(Cells line) { lines_.push_back(std::move(line)); }
  [[nodiscard]] bool HasNone() const { return lines_.empty(); }

  std::string Finish() {
    Flush();
    return std::move(text_);
  }

 private:
  void Flush() {
    std::array<std::size_t, kColumns> widths{};
    for (const Cells& line : lines_) {
      for (std::size_t i = 0; i < kColumns; ++i) {
        widths[i] = std::max(widths[i], std::min(LettersOf(line[i]), kWidest));
      }
    }
    for (const Cells& line : lines_) Write(line, widths);
    lines_.clear();
  }

  void Write(const Cells& line, const std::array<std::size_t, kColumns>& widths) {
    std::string written;
    for (std::size_t i = 0; i < kColumns; ++i) {
      if (widths[i] == 0) continue;
      written.append(line[i]).append(widths[i] - std::min(widths[i], LettersOf(line[i])) + 2, ' ');
    }
    written.erase(written.find_last_not_of(' ') + 1);
    text_.append(written).append("\n");
  }

  std::string text_;
  std::vector<Cells> lines_;
};

void WriteTitle(const Contents& contents, TextWriter& writer) {
  const TitleBlock& title = contents.title;
  std::string first = title.title.empty() ? "Kneeboard" : title.title;
  if (!title.game.empty()) first.append(" for ").append(title.game);
  writer.Heading(first);
  if (!title.author.empty()) writer.Add({"by " + title.author});
  if (!title.date.empty()) writer.Add({"last modified: " + title.date});
}

void AddScale(const Scale& scale, TextWriter& writer) {
  for (const Step& step : scale.steps) {
    const bool isSame = step.up == step.down;
    if (!step.up.words.empty()) {
      writer.Add({scale.name, StretchOf(step) + (isSame ? "" : ", up"), step.up.words, step.up.keys});
    }
    if (!isSame && !step.down.words.empty()) {
      writer.Add({scale.name, StretchOf(step) + ", down", step.down.words, step.down.keys});
    }
  }
}

void WriteByControl(const Contents& contents, TextWriter& writer) {
  for (const DevicePage& device : contents.devices) {
    writer.Heading(device.title);
    for (const Control& control : device.controls) {
      for (const Action& each : control.actions) {
        writer.Add({control.name, LayerOf(each), each.deed.words, each.deed.keys});
      }
    }
    for (const Scale& scale : device.scales) AddScale(scale, writer);
    if (writer.HasNone()) writer.Add({"nothing is assigned"});
  }
}

void AddUnder(const Contents& contents, std::string_view heading, TextWriter& writer) {
  for (const DevicePage& device : contents.devices) {
    for (const Control& control : device.controls) {
      for (const Action& each : control.actions) {
        if (each.deed.heading != heading) continue;
        writer.Add({control.name, LayerOf(each), each.deed.words, each.deed.keys});
      }
    }
  }
}

/// What stands under no heading comes last, and the scales, which may stand under several.
void WriteByHeading(const Contents& contents, TextWriter& writer) {
  for (const std::string& heading : contents.headings) {
    TextWriter probe;
    AddUnder(contents, heading, probe);
    if (probe.HasNone()) continue;
    writer.Heading(heading);
    AddUnder(contents, heading, writer);
  }
  writer.Heading("Without a heading");
  AddUnder(contents, "", writer);
  for (const DevicePage& device : contents.devices) {
    for (const Scale& scale : device.scales) AddScale(scale, writer);
  }
  if (writer.HasNone()) writer.Add({"nothing"});
}

void WriteFlags(const Contents& contents, TextWriter& writer) {
  if (contents.flags.empty()) return;
  writer.Heading("Flags");
  for (const FlagRow& flag : contents.flags) {
    std::string sends;
    for (const Action& action : flag.sends) Append(sends, SentBy(action));
    writer.Add({flag.name, flag.condition, sends});
  }
}

void WriteFacts(const Contents& contents, TextWriter& writer) {
  if (contents.facts.empty()) return;
  writer.Heading("Besides");
  for (const Fact& fact : contents.facts) writer.Add({fact.name, fact.words});
}

}  // namespace

std::string ListAsText(const Contents& contents, ListOrder order) {
  TextWriter writer;
  WriteTitle(contents, writer);
  if (order == ListOrder::ByControl) {
    WriteByControl(contents, writer);
  } else {
    WriteByHeading(contents, writer);
  }
  WriteFlags(contents, writer);
  WriteFacts(contents, writer);
  if (contents.problems > 0) {
    writer.Heading("Problems");
    writer.Add({std::to_string(contents.problems) + (contents.problems == 1 ? " problem" : " problems") +
                " in the files, which may mean more than this list tells."});
  }
  return writer.Finish();
}

}  // namespace tarvik::kneeboard
