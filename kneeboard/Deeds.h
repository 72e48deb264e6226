// What is sent, in the words and keys of a kneeboard.
#pragma once

#include <span>

#include "kneeboard/Contents.h"
#include "language/Spoken.h"

namespace tarvik::kneeboard {

/// A name as words: "Gear_Toggle" and "GearToggle" are "Gear toggle". Abbreviations keep their capitals:
/// "MFD_Left" is "MFD left".
[[nodiscard]] std::string ReadableName(std::string_view name);

/// A key that is pressed, and what is held with it.
struct PressedKey {
  std::string with = {};  ///< "CTL", "SHF ALT"
  std::string key = {};   ///< as kKeys names it; what it does not know stays as it is written

  friend bool operator==(const PressedKey&, const PressedKey&) = default;
};

/// Puts what is sent into words. It refers to the pair and the names, which must outlive it. All that it
/// gives is in the code page.
class DeedWriter {
 public:
  DeedWriter(const model::FilePair& pair, const model::NameIndex& names) : speaker_(pair, names) {}

  /// Items one after another, of a statement whose lines these are. Empty where nothing is sent.
  [[nodiscard]] Deed DeedOf(std::string_view lines, std::span<const model::Item> items) const;
  /// What a macro is for: the remark beside it, or its name as words.
  [[nodiscard]] std::string WordsOf(const model::MacroNames& macro) const;
  /// The heading that a macro stands under; empty for none.
  [[nodiscard]] std::string HeadingOf(const model::MacroNames& macro) const;
  /// The keys that the items press themselves, without those of macros.
  [[nodiscard]] std::vector<PressedKey> KeysIn(std::string_view lines,
                                               std::span<const model::Item> items) const;
  /// What a macro sends, and the lines that it stands in; null where it is not defined, or sends an axis.
  [[nodiscard]] const model::Sequence* SequenceOf(const model::MacroNames& macro,
                                                  std::string_view& lines) const;

  [[nodiscard]] const model::Speaker& speaker() const { return speaker_; }

 private:
  /// Those of one item.
  [[nodiscard]] std::vector<PressedKey> KeysAt(std::string_view lines, std::span<const model::Item> items,
                                               std::size_t at) const;
  /// Keys one after another, and how often what comes next is pressed.
  struct Keys {
    std::vector<std::string> list = {};
    std::string times = {};  ///< "2x "
    int steps = 0;           ///< that were looked at

    void Add(const std::string& key) {
      list.push_back(times.append(key));
      times.clear();
    }
    [[nodiscard]] bool IsFull() const;
  };
  struct Pieces {
    std::vector<std::string> words = {};
    Keys keys = {};
    std::string heading = {};
    std::string before = {};  ///< what comes next: "2x "
    bool hasNames = false;

    void Say(const std::string& said) {
      words.push_back(before.append(said));
      before.clear();
    }
  };

  void Take(std::string_view lines, std::span<const model::Item> items, std::size_t at, Pieces& pieces) const;
  void TakeName(std::string_view word, Pieces& pieces) const;
  /// Those that stand in one another.
  using Chain = std::vector<const model::MacroNames*>;
  /// All keys of a macro and of those in it.
  void AddKeysOf(const model::MacroNames& macro, Chain& open, Keys& keys) const;
  void AddKeysOf(std::string_view lines, const model::Sequence& sequence, Chain& open, Keys& keys) const;

  model::Speaker speaker_;
};

}  // namespace tarvik::kneeboard
