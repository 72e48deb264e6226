// The settings file: sections and keys with the rules of the Windows private profile calls. `Settings` and
// the forms read and write their keys through it.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Files.h"
#include "platform/Outcome.h"

namespace tarvik {

/// The text of a settings file at one moment. Every text is a profile, garbage too: what is no section and no
/// key is kept and never found. Names are found in either case, and the first section and key of a name
/// counts.
class Profile {
 public:
  /// Hears of a key whose value is not what it should be.
  using Unreadable = std::function<void(std::string_view section, std::string_view key)>;

  Profile() = default;
  explicit Profile(std::string text, Unreadable unreadable = {})
      : text_(std::move(text)), unreadable_(std::move(unreadable)) {}

  /// The value as a buffer of `size` characters holds it: cut at `size` - 1. Blanks and one pair of quotation
  /// marks (double or single) round it are dropped. A missing key gives `fallback`, cut as well.
  [[nodiscard]] std::string GetString(std::string_view section, std::string_view key,
                                      std::string_view fallback, std::size_t size) const;

  /// The decimal number that the value begins with: 0 where it begins with none, `fallback` for a missing
  /// key. Larger numbers than 32 bits hold keep their lowest 32 bits. A value that is no number is told.
  [[nodiscard]] int GetInt(std::string_view section, std::string_view key, int fallback) const;

  /// Gives the key a new value, adding section and key where they are missing: a key goes behind the last
  /// line of its section that is not blank. All other bytes stay. A value ends at its first line end or NUL.
  void Set(std::string_view section, std::string_view key, std::string_view value);

  void TellUnreadable(std::string_view section, std::string_view key) const {
    if (unreadable_) unreadable_(section, key);
  }

  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  [[nodiscard]] std::optional<std::string_view> Value(std::string_view section, std::string_view key) const;

  std::string text_;
  Unreadable unreadable_;
};

/// The value in a pair of quotation marks where reading would drop what it begins and ends with.
[[nodiscard]] std::string Protected(const std::string& value);

/// A key and the value it is to get.
struct ProfileEntry {
  std::string section;
  std::string key;
  std::string value;
};

/// The settings file on the disk, and its backup, which is written behind it and has the same name with the
/// ending ".bak". The backup stands in for a file that is damaged: too long for settings, with a NUL in it,
/// or without any section. What the damaged file held goes to a third one with the ending ".damaged" before
/// it is written over.
///
/// Once the file was there and could not be read, it is left alone: whoever asked has got the backup's values
/// or the fallbacks, and they are not to take the place of the user's settings.
class ProfileFile {
 public:
  ProfileFile(Files& files, std::string path);

  Profile::Unreadable unreadable;
  /// Hears once that the file is there and cannot be read.
  std::function<void(const Failure& failure)> fileUnreadable;
  /// Hears once that the file is damaged and its backup counts.
  std::function<void()> fileDamaged;

  /// The file as it is now, empty when it is missing. Whoever reads many keys takes this once.
  [[nodiscard]] Profile Read() const;

  [[nodiscard]] std::string GetString(std::string_view section, std::string_view key,
                                      std::string_view fallback, std::size_t size) const;
  [[nodiscard]] int GetInt(std::string_view section, std::string_view key, int fallback) const;

  /// Creates file, section and key as needed. The file is read again first, so that what a user has edited
  /// meanwhile stays; one that exists and cannot be read is a failure and is left alone.
  Outcome<> Write(std::string_view section, std::string_view key, std::string_view value);

  /// The same for many keys with one write to the disk: all of them are stored, or none.
  Outcome<> WriteAll(std::span<const ProfileEntry> entries);

 private:
  struct Loaded {
    std::string text{};
    std::optional<std::string> damaged{};  ///< what the file holds, where `text` is the backup's
  };

  /// The text of the settings, empty only where there is no such file, and a failure where nobody knows.
  [[nodiscard]] Outcome<Loaded> Load() const;
  /// The text of the backup, where there is a whole one.
  [[nodiscard]] std::optional<std::string> Backup() const;
  void LeaveAlone(const Failure& failure) const;
  void TellDamaged() const;

  Files& files_;
  std::string path_;
  std::string backup_;
  std::string aside_;
  mutable bool toldDamaged_ = false;
  mutable std::optional<Failure> unread_;
};

}  // namespace tarvik
