// A list of what was used last, newest first, which outlives the program in a section of the settings file:
// joystick files, macro files, favourites, games. They differ in their traits alone.
//
// Of a file the list knows the host's path too, since a path on a drive can mean another file by the time it
// is used: the drive was moved, or a file whose name is the same but for its case came or went.
#pragma once

#include <deque>
#include <span>

#include "controls/Component.h"
#include "controls/Require.h"
#include "platform/Platform.h"
#include "platform/ProfileFile.h"

namespace tarvik {

/// What a part of a record is.
enum class PartKind { Text, Number, File };

/// A part of each record.
struct RecordKey {
  std::string_view key;     ///< in the settings file, where the record's number stands behind it
  std::string_view inHand;  ///< the value that holds it of the record in hand
  std::size_t buffer = 0;   ///< a stored text comes back cut to one character less
  PartKind kind = PartKind::Text;
};

struct ListTraits {
  std::string_view section;
  std::string_view countKey;
  std::span<const RecordKey> keys;  ///< the first one tells the records apart; where it is a file, the file
};

class RecentList {
 public:
  static constexpr int kLimit = 30;

  /// The count and the record in hand become values of `owner`, under their names.
  RecentList(Component& owner, const ListTraits& traits, ProfileFile& file, DriveFolders& drives);

  [[nodiscard]] int Count() const { return static_cast<int>(records_.size()); }
  /// The part of the record in hand with this name, one of those in the traits.
  [[nodiscard]] Property<std::string>& InHand(std::string_view name);
  /// Whether a record has exactly that name.
  [[nodiscard]] bool Contains(std::string_view name) const;
  /// What tells the records apart, in the order of the list.
  [[nodiscard]] std::vector<std::string> Names() const;

  /// Takes what the settings file holds: no more than the limit, and no record that is empty.
  void Read();
  /// Puts the record in hand first, in the place of the last one of its name. At the limit the oldest goes.
  /// The paths of its files mean these files and no other ones from now on.
  void Use();
  /// Takes a record in hand, with the paths that its files have now; 1-based.
  void Take(int index);
  /// The path that the file of a record has now, whether it is there or not.
  [[nodiscard]] std::string PathNow(int index) const;
  /// A part of a record as it stands in the list, by its place in the traits.
  [[nodiscard]] const std::string& Part(int index, std::size_t part) const;
  void SetPart(int index, std::size_t part, const std::string& text);
  /// Takes a record out, and writes that there is nothing behind the last one now.
  Outcome<> Remove(int index);
  /// Writes the count, then `more`, then the records. What stood behind them in a longer list stays.
  Outcome<> Save(std::vector<ProfileEntry> more = {}) const;
  /// Forgets all records, and writes that there is nothing in their places.
  Outcome<> Clear();

  Signal<> Changed;

 private:
  struct Field {
    std::string text;
    std::string host;  // of a file, as far as it is known
  };
  using Record = std::vector<Field>;  // in the order of the keys

  static bool IsSame(const Record& left, const Record& right);
  [[nodiscard]] std::string Now(const Field& field) const;
  [[nodiscard]] ProfileEntry CountEntry() const;
  [[nodiscard]] std::string KeyOf(std::size_t part, std::size_t record) const;
  [[nodiscard]] Field ReadField(const Profile& profile, std::size_t part, std::size_t record) const;
  void AddEntries(std::vector<ProfileEntry>& entries, std::size_t record) const;
  void AddEmptyEntries(std::vector<ProfileEntry>& entries, std::size_t record) const;

  Component& owner_;
  const ListTraits& traits_;
  ProfileFile& file_;
  DriveFolders& drives_;
  std::vector<Record> records_;
  std::deque<Property<std::string>> inHand_;
  Attribute<int> count_;
};

}  // namespace tarvik
