#include "workbench/JournalRecords.h"

#define XXH_INLINE_ALL
#include <xxhash.h>

#include <bit>
#include <concepts>
#include <cstdint>

namespace tarvik {
namespace {

enum class RecordKind : unsigned char { Head = 1, Text = 2, Edit = 3, Time = 4 };

constexpr std::uint32_t kMark = 0x314A5654;  // "TVJ1": begins every record
constexpr std::size_t kBefore = 16;          // bytes before what a record says: mark, length, checksum

/// Numbers are little-endian, whatever the machine is.
template <std::unsigned_integral Number>
void Put(std::string& bytes, Number number) {
  for (std::size_t i = 0; i < sizeof(Number); ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

void Put(std::string& bytes, std::string_view text) {
  Put(bytes, std::uint64_t{text.size()});
  bytes += text;
}

void Put(std::string& bytes, const ColourRuns& colours) {
  Put(bytes, std::uint64_t{colours.runs().size()});
  for (std::size_t i = 0; i < colours.runs().size(); ++i) {
    const auto& run = colours.runs()[i];
    Put(bytes, std::uint64_t{colours.EndOf(i) - run.start});
    Put(bytes, static_cast<std::uint32_t>(run.colour));
  }
}

std::string Record(RecordKind kind, std::string_view content) {
  const std::string said = static_cast<char>(kind) + std::string(content);
  std::string bytes;
  bytes.reserve(kBefore + said.size());
  Put(bytes, kMark);
  Put(bytes, static_cast<std::uint32_t>(said.size()));
  Put(bytes, std::uint64_t{XXH3_64bits(said.data(), said.size())});
  return bytes + said;
}

/// Takes values off the front of bytes; from the first that is not there on, all are empty.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}

  [[nodiscard]] bool IsSound() const { return sound_; }
  [[nodiscard]] bool AtEnd() const { return bytes_.empty(); }

  template <std::unsigned_integral Number>
  Number Take() {
    Number number = 0;
    const std::string_view taken = Take(sizeof(Number));
    for (std::size_t i = 0; i < taken.size(); ++i) {
      number =
          static_cast<Number>(number | static_cast<Number>(static_cast<unsigned char>(taken[i])) << (8 * i));
    }
    return number;
  }

  std::string_view Take(std::uint64_t length) {
    sound_ = sound_ && length <= bytes_.size();
    if (!sound_) return {};
    const std::string_view taken = bytes_.substr(0, static_cast<std::size_t>(length));
    bytes_.remove_prefix(taken.size());
    return taken;
  }

  std::string TakeText() { return std::string(Take(Take<std::uint64_t>())); }

  ColourRuns TakeColours() {
    ColourRuns colours;
    for (auto left = Take<std::uint64_t>(); left > 0 && sound_; --left) {
      const auto length = Take<std::uint64_t>();
      const auto colour = static_cast<Colour>(Take<std::uint32_t>());
      sound_ = sound_ && length <= kLongest - colours.size();
      if (sound_) colours.Append(static_cast<std::size_t>(length), colour);
    }
    return colours;
  }

  RichText TakeRichText() {
    RichText text;
    text.text = TakeText();
    text.colours = TakeColours();
    return text;
  }

 private:
  static constexpr std::uint64_t kLongest = std::uint64_t{1} << 32;  // no text is longer

  std::string_view bytes_;
  bool sound_ = true;
};

/// What the next record says, or nothing where it is not whole.
std::optional<std::string_view> NextRecord(Reader& reader) {
  const auto mark = reader.Take<std::uint32_t>();
  const auto length = reader.Take<std::uint32_t>();
  const auto sum = reader.Take<std::uint64_t>();
  const std::string_view said = reader.Take(length);
  if (!reader.IsSound() || mark != kMark || said.empty()) return {};
  if (XXH3_64bits(said.data(), said.size()) != sum) return {};
  return said;
}

bool TakeHead(Reader& reader, UnsavedText& unsaved) {
  unsaved.head.kind = static_cast<TextKind>(reader.Take<unsigned char>());
  unsaved.head.path = reader.TakeText();
  unsaved.head.name = reader.TakeText();
  if (!reader.AtEnd()) unsaved.head.host = reader.TakeText();
  return reader.IsSound() && unsaved.head.kind >= TextKind::Joystick && unsaved.head.kind <= TextKind::Logic;
}

bool TakeWholeText(Reader& reader, UnsavedText& unsaved) {
  RichText text = reader.TakeRichText();
  if (!reader.IsSound() || text.colours.size() != text.text.size()) return false;
  unsaved.text = std::move(text);
  return true;
}

bool TakeEdit(Reader& reader, UnsavedText& unsaved) {
  const auto start = reader.Take<std::uint64_t>();
  const auto removed = reader.Take<std::uint64_t>();
  const RichText inserted = reader.TakeRichText();
  const std::size_t size = unsaved.text.size();
  if (!reader.IsSound() || start > size || removed > size - start) return false;
  const bool onlyColours = removed == 0 && inserted.text.empty();
  const std::size_t replaced = onlyColours ? inserted.colours.size() : static_cast<std::size_t>(removed);
  if (replaced > size - start) return false;
  if (!onlyColours && inserted.colours.size() != inserted.text.size()) return false;
  const Range range{static_cast<std::size_t>(start), replaced};
  unsaved.text.colours.Replace(range, inserted.colours);
  if (!onlyColours) unsaved.text.text.replace(range.start, range.length, inserted.text);
  return true;
}

}  // namespace

std::string HeadRecord(const JournalHead& head) {
  std::string said;
  said += static_cast<char>(head.kind);
  Put(said, head.path);
  Put(said, head.name);
  Put(said, head.host);
  return Record(RecordKind::Head, said);
}

std::string TextRecord(const RichText& text) {
  std::string said;
  Put(said, text.text);
  Put(said, text.colours);
  return Record(RecordKind::Text, said);
}

std::string EditRecord(const PaneEdit& edit) {
  std::string said;
  Put(said, std::uint64_t{edit.position});
  Put(said, std::uint64_t{edit.removed.size()});
  Put(said, edit.inserted.text);
  Put(said, edit.inserted.colours);
  return Record(RecordKind::Edit, said);
}

std::string TimeRecord(const std::string& time) { return Record(RecordKind::Time, time); }

std::optional<UnsavedText> ReadJournal(std::string_view bytes) {
  UnsavedText unsaved;
  bool hasHead = false;
  bool hasText = false;
  Reader reader(bytes);
  while (!reader.AtEnd()) {
    const auto said = NextRecord(reader);
    Reader content(said.value_or(std::string_view()));
    const auto kind = static_cast<RecordKind>(content.Take<unsigned char>());
    unsaved.isWhole = said.has_value();
    if (kind == RecordKind::Time && unsaved.isWhole) {
      unsaved.written = said->substr(1);
    } else if (kind == RecordKind::Head && !hasHead) {
      unsaved.isWhole = hasHead = TakeHead(content, unsaved);
    } else if (kind == RecordKind::Text && hasHead) {
      unsaved.isWhole = TakeWholeText(content, unsaved);
      hasText = hasText || unsaved.isWhole;
    } else if (kind == RecordKind::Edit && hasText) {
      unsaved.isWhole = TakeEdit(content, unsaved);
    } else {
      unsaved.isWhole = false;
    }
    if (!unsaved.isWhole) break;
  }
  if (!hasText) return {};
  return unsaved;
}

}  // namespace tarvik
