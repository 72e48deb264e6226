#include "workbench/RecentList.h"

#include <algorithm>

namespace tarvik {
namespace {

/// A number that a record lacks is read as 0, which says nothing.
bool SaysSomething(const std::string& part) { return !part.empty() && part != "0"; }

/// What is known of the files stands in a section of its own, under the keys that their paths have in that of
/// the list: the path once more, this mark, which no path holds, and the host's path. Where a path was
/// changed by hand, or by a version that knows nothing of this, the two paths differ, and the host's counts
/// no more.
constexpr const char* kHostFiles = "HostFiles";
constexpr char kParting = '|';
constexpr std::size_t kHostBuffer = 5000;

/// The path as it stands before what is known of its file.
std::string Marked(std::string path) {
  path += kParting;
  return path;
}

/// A path of the host that the settings file can hold.
bool CanBeStored(const std::string& host) { return host.find_first_of("\r\n") == std::string::npos; }

}  // namespace

RecentList::RecentList(Component& owner, const ListTraits& traits, ProfileFile& file, DriveFolders& drives)
    : owner_(owner), traits_(traits), file_(file), drives_(drives), count_(owner, traits.countKey, [this] {
        return Count();
      }) {
  for (const RecordKey& key : traits.keys) inHand_.emplace_back(owner, key.inHand);
}

Property<std::string>& RecentList::InHand(std::string_view name) {
  const auto part = std::find_if(inHand_.begin(), inHand_.end(),
                                 [name](const Property<std::string>& each) { return each.Name() == name; });
  return Require(part == inHand_.end() ? nullptr : &*part, owner_, name);
}

bool RecentList::Contains(std::string_view name) const {
  return std::any_of(records_.begin(), records_.end(),
                     [name](const Record& record) { return record.front().text == name; });
}

std::vector<std::string> RecentList::Names() const {
  std::vector<std::string> names;
  for (const Record& record : records_) names.push_back(record.front().text);
  return names;
}

std::string RecentList::KeyOf(std::size_t part, std::size_t record) const {
  return std::string(traits_.keys[part].key) + TextOf(record + 1);
}

ProfileEntry RecentList::CountEntry() const {
  return {std::string(traits_.section), std::string(traits_.countKey), TextOf(Count())};
}

RecentList::Field RecentList::ReadField(const Profile& profile, std::size_t part, std::size_t record) const {
  const RecordKey& key = traits_.keys[part];
  const std::string name = KeyOf(part, record);
  if (key.kind == PartKind::Number) return {TextOf(profile.GetInt(traits_.section, name, 0)), {}};
  Field read{profile.GetString(traits_.section, name, "", key.buffer), {}};
  if (key.kind != PartKind::File) return read;
  const std::string known = profile.GetString(kHostFiles, name, "", kHostBuffer);
  const std::string path = Marked(read.text);
  if (known.starts_with(path)) read.host = known.substr(path.size());
  return read;
}

void RecentList::Read() {
  const Profile profile = file_.Read();
  const auto stored = static_cast<std::int16_t>(profile.GetInt(traits_.section, traits_.countKey, 0));
  records_.clear();
  for (std::size_t i = 0; static_cast<int>(i) < std::min<int>(stored, kLimit); ++i) {
    Record record;
    for (std::size_t part = 0; part < traits_.keys.size(); ++part)
      record.push_back(ReadField(profile, part, i));
    if (std::any_of(record.begin(), record.end(),
                    [](const Field& field) { return SaysSomething(field.text); }))
      records_.push_back(std::move(record));
  }
  Changed();
}

bool RecentList::IsSame(const Record& left, const Record& right) {
  const Field& a = left.front();
  const Field& b = right.front();
  return a.host.empty() || b.host.empty() ? a.text == b.text : a.host == b.host;
}

void RecentList::Use() {
  Record record;
  for (std::size_t part = 0; part < inHand_.size(); ++part) {
    const std::string& text = inHand_[part];
    record.push_back({text, traits_.keys[part].kind == PartKind::File ? drives_.Hold(text) : ""});
  }
  const auto sameName = [&record](const Record& each) { return IsSame(each, record); };
  for (Record& other : records_) {
    Field& former = other.front();  // another file that had the path stands under the one it has now
    if (former.text == record.front().text && !sameName(other)) former.text = Now(former);
  }
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

std::string RecentList::Now(const Field& field) const {
  return field.host.empty() ? field.text : drives_.FromHost(field.host);
}

void RecentList::Take(int index) {
  const Record& record = records_[static_cast<std::size_t>(index - 1)];
  for (std::size_t part = 0; part < record.size(); ++part) inHand_[part] = Now(record[part]);
}

std::string RecentList::PathNow(int index) const {
  return Now(records_[static_cast<std::size_t>(index - 1)].front());
}

const std::string& RecentList::Part(int index, std::size_t part) const {
  return records_[static_cast<std::size_t>(index - 1)][part].text;
}

void RecentList::SetPart(int index, std::size_t part, const std::string& text) {
  const bool isFile = traits_.keys[part].kind == PartKind::File;
  records_[static_cast<std::size_t>(index - 1)][part] = {text, isFile ? drives_.ToHost(text) : ""};
  Changed();
}

void RecentList::AddEntries(std::vector<ProfileEntry>& entries, std::size_t record) const {
  for (std::size_t part = 0; part < traits_.keys.size(); ++part) {
    const auto& [text, host] = records_[record][part];
    const std::string key = KeyOf(part, record);
    entries.push_back({std::string(traits_.section), key, Protected(text)});
    if (!host.empty() && CanBeStored(host))
      entries.push_back({kHostFiles, key, Protected(Marked(text) + host)});
  }
}

void RecentList::AddEmptyEntries(std::vector<ProfileEntry>& entries, std::size_t record) const {
  for (std::size_t part = 0; part < traits_.keys.size(); ++part) {
    const std::string key = KeyOf(part, record);
    entries.push_back({std::string(traits_.section), key, ""});
    if (!records_[record][part].host.empty()) entries.push_back({kHostFiles, key, ""});
  }
}

Outcome<> RecentList::Remove(int index) {
  std::vector<ProfileEntry> entries;
  AddEmptyEntries(entries, records_.size() - 1);
  records_.erase(records_.begin() + (index - 1));
  Changed();
  return Save(std::move(entries));
}

Outcome<> RecentList::Save(std::vector<ProfileEntry> more) const {
  more.insert(more.begin(), CountEntry());
  for (std::size_t i = 0; i < records_.size(); ++i) AddEntries(more, i);
  return file_.WriteAll(more);
}

Outcome<> RecentList::Clear() {
  std::vector<ProfileEntry> entries;
  for (std::size_t i = records_.size(); i-- > 0;) AddEmptyEntries(entries, i);
  records_.clear();
  entries.push_back(CountEntry());
  Changed();
  return file_.WriteAll(entries);
}

}  // namespace tarvik
