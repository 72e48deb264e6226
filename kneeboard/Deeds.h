// What items send, as words and keys, through the macros of the macro file.
#pragma once

#include <map>
#include <set>

#include "kneeboard/Contents.h"
#include "language/Spoken.h"

namespace tarvik::kneeboard {

/// A key that goes down, and what is held with it.
struct Press {
  std::string with = {};
  std::string key = {};

  friend auto operator<=>(const Press&, const Press&) = default;
};

/// "CTL g".
[[nodiscard]] std::string InLetters(const Press& press);

/// A macro as far as a kneeboard tells of it.
struct MacroWords {
  std::string words = {};
  std::string keys = {};
  std::string heading = {};
  std::vector<Press> presses = {};
};

class Deeds {
 public:
  Deeds(const model::FilePair& pair, const model::NameIndex& names);

  [[nodiscard]] Deed Of(std::string_view lines, std::span<const model::Item> items) const;
  /// Null for a name that is no macro's.
  [[nodiscard]] const MacroWords* Find(std::string_view name) const;
  /// Those of items alone, without the macros that they name.
  [[nodiscard]] std::vector<Press> PressesOf(std::string_view lines,
                                             std::span<const model::Item> items) const;
  [[nodiscard]] const std::vector<std::string>& Headings() const { return headings_; }
  [[nodiscard]] const model::Speaker& Speaker() const { return speaker_; }
  /// In the order of NameIndex::Macros().
  [[nodiscard]] const std::vector<MacroWords>& Macros() const { return macros_; }

 private:
  void ReadHeadings();
  void ReadPresses(std::size_t macro);
  void AddPresses(std::string_view lines, const model::Sequence& sequence, MacroWords& macro);

  model::Speaker speaker_;
  std::vector<MacroWords> macros_;
  std::vector<std::uint8_t> states_;  // of the reading of each macro's keys: not begun, under way, done
  std::vector<std::string> headings_;
  std::size_t depth_ = 0;
};

}  // namespace tarvik::kneeboard
