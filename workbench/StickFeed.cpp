#include "workbench/StickFeed.h"

#include <algorithm>
#include <string>

namespace tarvik {
namespace {

constexpr const char* kCount = "Lines";
constexpr std::size_t kLineBuffer = 1024;
constexpr int kMostLines = 4096;

std::string KeyOf(std::size_t line) { return std::string("Line").append(std::to_string(line + 1)); }

play::StickPart PartOf(StickChangeKind kind) {
  constexpr play::StickPart kParts[] = {play::StickPart::Button, play::StickPart::Hat, play::StickPart::Axis};
  return kParts[static_cast<std::size_t>(kind)];
}

}  // namespace

void StickFeed::Add() {
  Read();
  if (++listeners_ > 1) return reader_.Use(map_);
  Sticks& sticks = platform_.sticks;
  sticks.plugged = [this](const StickInfo& stick) {
    present_.push_back(stick);
    reader_.Plug(stick.number, IdOf(stick));
    PresentChanged();
  };
  sticks.unplugged = [this](int number) {
    std::erase_if(present_, [number](const StickInfo& each) { return each.number == number; });
    reader_.Unplug(number);
    PresentChanged();
  };
  sticks.changed = [this](const StickChange& change) {
    using Moment = play::StickReader::Moment;
    reader_.Change(change.stick, PartOf(change.kind), change.number, change.value,
                   change.atStart ? Moment::Start : Moment::Now);
    Moved(change);
  };
  sticks.Start();
}

void StickFeed::Drop() {
  if (--listeners_ > 0) return;
  platform_.sticks.Stop();
  platform_.sticks.plugged = nullptr;
  platform_.sticks.unplugged = nullptr;
  platform_.sticks.changed = nullptr;
  for (const StickInfo& each : std::exchange(present_, {})) reader_.Unplug(each.number);
}

const play::StickMap& StickFeed::Map() {
  Read();
  return map_;
}

void StickFeed::Use(const play::StickMap& map) {
  isRead_ = true;
  map_ = map;
  reader_.Use(map_);
  Trap{errors_, "STICKS Keep"}(Keep());
}

/// The settings file is read when somebody first wants to know.
void StickFeed::Read() {
  if (isRead_) return;
  isRead_ = true;
  const Profile profile = settings_.File().Read();
  const int count = std::clamp(profile.GetInt(section::kSticks, kCount, 0), 0, kMostLines);
  std::vector<std::string> lines;
  lines.reserve(static_cast<std::size_t>(count));
  for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
    lines.push_back(profile.GetString(section::kSticks, KeyOf(i), "", kLineBuffer));
  }
  map_ = play::StickMap::Read(lines);
  reader_.Use(map_);
}

Outcome<> StickFeed::Keep() {
  const std::vector<std::string> lines = map_.Lines();
  std::vector<ProfileEntry> entries = {{section::kSticks, kCount, std::to_string(lines.size())}};
  for (std::size_t i = 0; i < lines.size(); ++i) {
    entries.push_back({section::kSticks, KeyOf(i), Protected(lines[i])});
  }
  return settings_.File().WriteAll(entries);
}

}  // namespace tarvik
