#include "workbench/Journal.h"

#include <algorithm>
#include <new>
#include <utility>

namespace tarvik {
namespace {

constexpr int kWait = 500;                   // milliseconds
constexpr std::size_t kLeastRoom = 1 << 16;  // bytes of changes beside however small a text

}  // namespace

// All of them.

JournalKeeper::JournalKeeper(const Platform& platform, Errors& errors)
    : store_(platform.journals), calendar_(platform.calendar), drives_(platform.drives), errors_(errors) {
  timer.Interval = kWait;
  timer.Elapsed = [this] { Write(); };
}

/// What one journal lacks is no reason to leave out the others. It is told once, when it begins and when it
/// ends.
bool JournalKeeper::Write() {
  timer.Enabled = false;
  std::optional<Failure> failure;
  for (Journal* const journal : journals_) {
    if (const auto written = journal->Write(); !written) failure = written.failure();
  }
  const bool failed = std::exchange(failure_, failure).has_value();
  if (failure && !failed) {
    errors_.Record("Journal", *failure);
    KeepsNothing(*failure);
  }
  if (failed && !failure) KeepsAgain();
  return !failure;
}

bool JournalKeeper::WriteAndFlush() {
  return Write() && std::ranges::all_of(journals_, [](const Journal* journal) { return journal->Flush(); });
}

// One.

Journal::Journal(JournalKeeper& keeper, Head head, Whole whole)
    : keeper_(keeper), head_(std::move(head)), whole_(std::move(whole)) {
  keeper_.journals_.push_back(this);
}

Journal::~Journal() { std::erase(keeper_.journals_, this); }

void Journal::Begin() {
  if (!std::exchange(begun_, true)) NeedWhole();
}

/// Where memory is short the text is written as a whole later on.
void Journal::Note(const PaneEdit& edit) {
  if (!begun_ || needsWhole_) return;
  try {
    noted_ += EditRecord(edit);
  } catch (const std::bad_alloc&) {
    return NeedWhole();
  }
  Awaken();
}

void Journal::NoteWhole() {
  if (begun_) NeedWhole();
}

void Journal::NeedWhole() {
  needsWhole_ = true;
  noted_.clear();
  Awaken();
}

void Journal::Remove() {
  for (auto* const file : {&file_, &former_}) {
    if (*file) (*file)->Remove();
    file->reset();
  }
  noted_.clear();
  begun_ = needsWhole_ = false;
}

void Journal::Leave() {
  if (!begun_) return;
  keeper_.Write();
  const bool left = file_ != nullptr;
  file_.reset();
  Remove();
  if (left) keeper_.TextLeft();
}

void Journal::Awaken() { keeper_.timer.Enabled = true; }

std::string Journal::Time() const {
  return keeper_.calendar_.ShortDate() + " " + keeper_.calendar_.TimeOfDay();
}

Outcome<> Journal::Write() {
  try {
    RemoveFormer();
    if (!begun_ || (!needsWhole_ && noted_.empty())) return Done{};
    if (file_ && !needsWhole_ && noted_.size() <= room_ && Append()) return Done{};
    return WriteWhole();
  } catch (const std::bad_alloc&) {
    NeedWhole();
    return Failure{error::kOutOfMemory, "Out of memory", 0};
  }
}

Outcome<> Journal::Append() {
  auto appended = file_->Append(noted_ + TimeRecord(Time()));
  room_ -= noted_.size();
  noted_.clear();
  return appended;
}

/// Where nothing takes it, that is tried again and again; the journal there is stays.
Outcome<> Journal::WriteWhole() {
  needsWhole_ = true;
  noted_.clear();
  const RichText text = whole_();
  JournalHead head = head_();
  head.host = keeper_.drives_.ToHost(head.path);
  auto next = keeper_.store_.Begin(HeadRecord(head) + TextRecord(text) + TimeRecord(Time()));
  if (!next) {
    Awaken();
    return next.failure();
  }
  if (former_) former_->Remove();
  former_ = std::exchange(file_, *std::move(next));
  needsWhole_ = false;
  room_ = std::max(kLeastRoom, text.size());
  RemoveFormer();
  return Done{};
}

void Journal::RemoveFormer() {
  if (!former_) return;
  if (!file_->IsDurable()) return Awaken();
  former_->Remove();
  former_.reset();
}

}  // namespace tarvik
