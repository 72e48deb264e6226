#include "workbench/RecentList.h"

#include <algorithm>

namespace tarvik {
namespace {

/// A number that a record lacks is read as 0, which says nothing.
bool SaysSomething(const std::string& part) { return !part.empty() && part != "0"; }

}  // namespace

RecentList::RecentList(Component& owner, const ListTraits& traits, ProfileFile& file)
    : owner_(owner),
      traits_(traits),
      file_(file),
      count_(owner, traits.countKey, [this] { return Count(); }) {
  for (const RecordKey& key : traits.keys) inHand_.emplace_back(owner, key.inHand);
}

Property<std::string>& RecentList::InHand(std::string_view name) {
  const auto part = std::find_if(inHand_.begin(), inHand_.end(),
                                 [name](const Property<std::string>& each) { return each.Name() == name; });
  return Require(part == inHand_.end() ? nullptr : &*part, owner_, name);
}

bool RecentList::Contains(std::string_view name) const {
  return std::any_of(records_.begin(), records_.end(),
                     [name](const Record& record) { return record.front() == name; });
}

std::vector<std::string> RecentList::Names() const {
  std::vector<std::string> names;
  for (const Record& record : records_) names.push_back(record.front());
  return names;
}

std::string RecentList::KeyOf(std::size_t part, std::size_t record) const {
  return std::string(traits_.keys[part].key) + TextOf(record + 1);
}

ProfileEntry RecentList::CountEntry() const {
  return {std::string(traits_.section), std::string(traits_.countKey), TextOf(Count())};
}

void RecentList::Read() {
  const Profile profile = file_.Read();
  const auto stored = static_cast<std::int16_t>(profile.GetInt(traits_.section, traits_.countKey, 0));
  records_.clear();
  for (std::size_t i = 0; static_cast<int>(i) < std::min<int>(stored, kLimit); ++i) {
    Record record;
    for (std::size_t part = 0; part < traits_.keys.size(); ++part) {
      const std::string key = KeyOf(part, i);
      const std::size_t buffer = traits_.keys[part].buffer;
      record.push_back(buffer ? profile.GetString(traits_.section, key, "", buffer)
                              : TextOf(profile.GetInt(traits_.section, key, 0)));
    }
    if (std::any_of(record.begin(), record.end(), SaysSomething)) records_.push_back(std::move(record));
  }
  Changed();
}

void RecentList::Use() {
  Record record(inHand_.begin(), inHand_.end());
  const auto sameName = [&record](const Record& each) { return each.front() == record.front(); };
  auto replaced = records_.end();
  if (!records_.empty() && sameName(records_.front())) {
    replaced = records_.begin();
  } else if (const auto last = std::find_if(records_.rbegin(), records_.rend(), sameName);
             last != records_.rend()) {
    replaced = std::prev(last.base());
  } else if (Count() < kLimit) {
    replaced = records_.insert(records_.end(), Record());
  } else {
    --replaced;
  }
  std::rotate(records_.begin(), replaced, std::next(replaced));
  records_.front() = std::move(record);
  Changed();
}

void RecentList::Take(int index) {
  const Record& record = records_[static_cast<std::size_t>(index - 1)];
  for (std::size_t part = 0; part < record.size(); ++part) inHand_[part] = record[part];
}

const std::string& RecentList::Part(int index, std::size_t part) const {
  return records_[static_cast<std::size_t>(index - 1)][part];
}

void RecentList::SetPart(int index, std::size_t part, const std::string& text) {
  records_[static_cast<std::size_t>(index - 1)][part] = text;
  Changed();
}

Outcome<> RecentList::Remove(int index) {
  records_.erase(records_.begin() + (index - 1));
  std::vector<ProfileEntry> entries;
  for (std::size_t part = 0; part < traits_.keys.size(); ++part) {
    entries.push_back({std::string(traits_.section), KeyOf(part, records_.size()), ""});
  }
  Changed();
  return Save(std::move(entries));
}

Outcome<> RecentList::Save(std::vector<ProfileEntry> more) const {
  more.insert(more.begin(), CountEntry());
  for (std::size_t i = 0; i < records_.size(); ++i) {
    for (std::size_t part = 0; part < records_[i].size(); ++part) {
      more.push_back({std::string(traits_.section), KeyOf(part, i), Protected(records_[i][part])});
    }
  }
  return file_.WriteAll(more);
}

Outcome<> RecentList::Clear() {
  std::vector<ProfileEntry> entries;
  for (std::size_t i = records_.size(); i-- > 0;) {
    for (std::size_t part = 0; part < traits_.keys.size(); ++part) {
      entries.push_back({std::string(traits_.section), KeyOf(part, i), ""});
    }
  }
  records_.clear();
  entries.push_back(CountEntry());
  Changed();
  return file_.WriteAll(entries);
}

}  // namespace tarvik
