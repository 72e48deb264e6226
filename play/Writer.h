// Writes the instructions of what is sent: the sequences of both files, one layer after another.
#pragma once

#include <map>

#include "language/Names.h"
#include "language/NullSigns.h"
#include "play/Program.h"

namespace tarvik::play {

/// A sequence in its statement. `source` tells of whom the instructions are.
struct Text {
  std::string_view lines;
  std::size_t start = 0;
  Source source;
};

class Writer {
 public:
  Writer(const model::FilePair& pair, Program& program);

  /// What a sequence sends in a layer, at the press or at the release.
  [[nodiscard]] Entry Write(const Text& text, const model::Sequence& sequence, std::size_t layer, bool press);
  /// What one key of an axis sends.
  [[nodiscard]] Entry WriteKeys(const Text& text, std::span<const model::Item> items);
  std::uint32_t AddSource(const Text& text, Range range);

 private:
  /// How a sequence is sent: what the branches around it say.
  struct Manner {
    bool named = false;   ///< /P or /R stands around it
    bool press = true;    ///< which of the two it is sent at
    bool once = false;    ///< /N
    bool whole = false;   ///< /F
    bool atOnce = false;  ///< /Q
    bool last = true;     ///< nothing is sent behind it
    int depth = 0;
    std::string layer = {};
  };

  void Walk(const Text& text, const model::Sequence& sequence, const Manner& manner);
  void WalkItems(const Text& text, std::span<const model::Item> items, const Manner& manner);
  void WriteAgain(const Text& text, std::span<const model::Item> items, const Manner& manner);
  void WalkBranches(const Text& text, const model::Sequence& sequence, const Manner& manner);
  void WalkTurns(const Text& text, std::span<const model::Branch> turns, const Manner& manner);
  [[nodiscard]] bool IsLive(const model::Branch& branch) const;
  [[nodiscard]] std::optional<Manner> Behind(const model::Branch& branch, Manner manner) const;
  void WriteItem(const Text& text, const model::Item& item, const Manner& manner);
  void WriteKey(const Text& text, const model::Item& item, const Manner& manner);
  void WriteRaw(const Text& text, const model::Item& item);
  void WriteRawCode(std::uint32_t source, std::uint8_t code, Key extended, bool released);
  void WriteMacro(const Text& text, const model::Item& item, const Manner& manner);
  void WriteDelay(const model::Item& item);
  void WriteRepeated(const Text& text, std::span<const model::Item> items, const Manner& manner,
                     std::int64_t times);
  [[nodiscard]] std::int64_t TimesOf(const Text& text, const model::Item& item);
  [[nodiscard]] Entry Finish();
  void BeginKey();
  void Add(Op op);
  [[nodiscard]] Entry Here() const { return static_cast<Entry>(program_.ops.size()); }
  void TellCut(const Text& text, Range range, std::string why);

  const model::FilePair& pair_;
  Program& program_;
  model::NameIndex names_;
  model::NullSigns nullSigns_;
  std::map<std::pair<std::size_t, std::size_t>, std::uint32_t> turns_;  // by the place of the first turn
  std::vector<std::size_t> open_;                                       // the macros that are being written
  std::string layer_;      // of the sequence that is being walked over
  std::vector<Key> held_;  // by SHF, CTL and ALT, for the key that follows
  std::size_t layerNumber_ = 0;
  bool press_ = true;
  Entry begin_ = 0;         // of what is being written
  Entry keyEnd_ = 0;        // behind the key written last, for the gap
  std::size_t walked_ = 0;  // items, also those that send nothing
  std::int64_t work_ = 1;   // how often what is written now is done
  std::int64_t hold_ = 0;
};

}  // namespace tarvik::play
