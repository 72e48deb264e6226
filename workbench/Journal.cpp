#include "workbench/Journal.h"

#include <algorithm>

namespace tarvik {
namespace {

constexpr int kWait = 500;                   // milliseconds
constexpr std::size_t kLeastRoom = 1 << 16;  // bytes of changes beside however small a text

}  // namespace

// All of them.

JournalKeeper::JournalKeeper(const Platform& platform, Errors& errors)
    : store_(platform.journals), calendar_(platform.calendar), errors_(errors) {
  timer.Interval = kWait;
  timer.Elapsed = [this] { Write(); };
}

bool JournalKeeper::Write() {
  timer.Enabled = false;
  return std::ranges::count_if(journals_, [](Journal* journal) { return !journal->Write(); }) == 0;
}

// One.

Journal::Journal(JournalKeeper& keeper, Head head, Whole whole)
    : keeper_(keeper), head_(std::move(head)), whole_(std::move(whole)) {
  keeper_.journals_.push_back(this);
}

Journal::~Journal() { std::erase(keeper_.journals_, this); }

void Journal::Begin() {
  if (std::exchange(begun_, true)) return;
  needsWhole_ = true;
  Awaken();
}

void Journal::Note(const PaneEdit& edit) {
  if (!begun_ || needsWhole_) return;
  noted_ += EditRecord(edit);
  Awaken();
}

void Journal::NoteWhole() {
  if (!begun_) return;
  needsWhole_ = true;
  Awaken();
}

void Journal::Remove() {
  if (file_) file_->Remove();
  file_.reset();
  noted_.clear();
  begun_ = needsWhole_ = failed_ = false;
}

void Journal::Leave() {
  if (!begun_) return;
  Write();
  const bool left = file_ != nullptr;
  file_.reset();
  Remove();
  if (left) keeper_.TextLeft();
}

void Journal::Awaken() { keeper_.timer.Enabled = true; }

std::string Journal::Time() const {
  return keeper_.calendar_.ShortDate() + " " + keeper_.calendar_.TimeOfDay();
}

bool Journal::Write() {
  if (!begun_ || (!needsWhole_ && noted_.empty())) return true;
  return Append() || WriteWhole();
}

bool Journal::Append() {
  if (!file_ || needsWhole_ || noted_.size() > room_) return false;
  room_ -= noted_.size();
  return Ignore(file_->Append(std::exchange(noted_, {}) + TimeRecord(Time()))).has_value();
}

/// The old journal stays until the new one holds all. Where nothing takes it, that is tried again and again.
bool Journal::WriteWhole() {
  const RichText text = whole_();
  noted_.clear();
  auto next = keeper_.store_.Begin(HeadRecord(head_()) + TextRecord(text) + TimeRecord(Time()));
  needsWhole_ = !next;
  if (!next) {
    if (!std::exchange(failed_, true)) keeper_.errors_.Record("Journal", next.failure());
    Awaken();
    return false;
  }
  if (file_) file_->Remove();
  file_ = *std::move(next);
  failed_ = false;
  room_ = std::max(kLeastRoom, text.size());
  return true;
}

}  // namespace tarvik
