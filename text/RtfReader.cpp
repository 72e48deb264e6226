// What an RTF document of any program has in text and colours.
#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include "text/CodePage.h"
#include "text/Rtf.h"

namespace tarvik {
namespace {

using codepage::Byte;

constexpr bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
constexpr bool IsBlank(char c) { return c == ' ' || c == '\r' || c == '\n' || c == '\t' || c == '\0'; }
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

constexpr auto kReadAsIs = [] {
  std::array<bool, 256> table{};
  table.fill(true);
  for (const char c : {'\\', '{', '}', '\r', '\n', '\0'}) table[Byte(c)] = false;
  return table;
}();

/// The character behind a backslash, and the byte that the two stand for.
constexpr auto kSymbols = [] {
  std::array<char, 256> table{};
  for (const char c : {'\\', '{', '}', '\t', '\r', '\n'}) table[Byte(c)] = c;
  table['~'] = '\xA0';
  table['_'] = '-';
  table['-'] = '\xAD';
  return table;
}();

constexpr auto kHexDigits = [] {
  std::array<signed char, 256> table{};
  table.fill(-1);
  for (unsigned i = 0; i < 10; ++i) table['0' + i] = static_cast<signed char>(i);
  for (unsigned i = 10; i < 16; ++i) {
    table['a' + i - 10] = table['A' + i - 10] = static_cast<signed char>(i);
  }
  return table;
}();

struct Control {
  std::string_view word;
  unsigned hash = 0;
  bool hasNumber = false;
  int number = 0;
};

constexpr unsigned NextHash(unsigned hash, char c) { return hash * 31 + Byte(c); }

/// Groups are kept in a stack of its own, never in calls: a document may open any number of them.
class Reader {
 public:
  explicit Reader(std::string_view rtf) : at_(rtf.data()), end_(at_ + rtf.size()) {
    text_.reserve(rtf.size());
  }

  RichText Read();
  [[nodiscard]] std::size_t Lost() const { return lost_; }
  /// The document has ended, and nothing is behind it.
  [[nodiscard]] bool AtEnd() const {
    return closed_ && std::all_of(at_, end_, [](char c) { return IsBlank(c); });
  }

 private:
  struct State {
    Colour colour = kBlack;
    int fallback = 1;  // characters behind each \u that are for programs without Unicode
  };
  struct Word {
    std::string_view name;
    void (Reader::*act)(const Control& control, char character);
    char character = 0;
  };
  class Vocabulary;

  Control TakeControl();
  int TakeNumber();
  void TakePlain();
  void TakeByte(char c);
  void TakeLineBreak(char c);
  void TakeHex();
  void AfterBackslash();
  void SkipToGroupEnd();
  void Open();
  bool Close();
  void SetColour(Colour colour);
  void FlushRun();

  void TakeCharacter(char32_t character);
  void Character(const Control&, char character) { text_ += character; }
  void LineBreak(const Control&, char) { text_ += "\r\n"; }
  void ColourNumber(const Control& control, char);
  void Plain(const Control&, char) { SetColour(kBlack); }
  void Unicode(const Control& control, char);
  void Fallback(const Control& control, char);
  void ReadColours(const Control&, char);
  void Skip(const Control&, char);

  const char* at_;
  const char* end_;
  std::string text_;
  ColourRuns runs_;
  std::size_t runStart_ = 0;  // from here on the text is of the current colour
  std::size_t afterCr_ = std::string::npos;
  std::size_t lost_ = 0;
  bool closed_ = false;
  int toSkip_ = 0;  // what is left of the fallback of the last \u
  State state_;
  std::vector<State> outer_;
  std::vector<Colour> colours_;
};

/// The control words that mean something here, found by their hash. All others are passed over.
class Reader::Vocabulary {
 public:
  static const Word* Find(const Control& control) {
    for (unsigned slot = control.hash % kSlots; kIndex[slot] != 0; slot = (slot + 1) % kSlots) {
      const Word& word = kWords[kIndex[slot] - 1U];
      if (word.name == control.word) return &word;
    }
    return nullptr;
  }

 private:
  static constexpr unsigned kSlots = 256;

  static constexpr Word kWords[] = {
      {"par", &Reader::LineBreak},
      {"line", &Reader::LineBreak},
      {"page", &Reader::LineBreak},
      {"column", &Reader::LineBreak},
      {"sect", &Reader::LineBreak},
      {"row", &Reader::LineBreak},
      {"tab", &Reader::Character, '\t'},
      {"cell", &Reader::Character, '\t'},
      {"nestcell", &Reader::Character, '\t'},
      {"emdash", &Reader::Character, '\x97'},
      {"endash", &Reader::Character, '\x96'},
      {"bullet", &Reader::Character, '\x95'},
      {"lquote", &Reader::Character, '\x91'},
      {"rquote", &Reader::Character, '\x92'},
      {"ldblquote", &Reader::Character, '\x93'},
      {"rdblquote", &Reader::Character, '\x94'},
      {"emspace", &Reader::Character, ' '},
      {"enspace", &Reader::Character, ' '},
      {"qmspace", &Reader::Character, ' '},
      {"cf", &Reader::ColourNumber},
      {"plain", &Reader::Plain},
      {"u", &Reader::Unicode},
      {"uc", &Reader::Fallback},
      {"colortbl", &Reader::ReadColours},
      {"annotation", &Reader::Skip},
      {"aftncn", &Reader::Skip},
      {"aftnsep", &Reader::Skip},
      {"aftnsepc", &Reader::Skip},
      {"filetbl", &Reader::Skip},
      {"fldinst", &Reader::Skip},
      {"fonttbl", &Reader::Skip},
      {"footer", &Reader::Skip},
      {"footerf", &Reader::Skip},
      {"footerl", &Reader::Skip},
      {"footerr", &Reader::Skip},
      {"footnote", &Reader::Skip},
      {"ftncn", &Reader::Skip},
      {"ftnsep", &Reader::Skip},
      {"ftnsepc", &Reader::Skip},
      {"header", &Reader::Skip},
      {"headerf", &Reader::Skip},
      {"headerl", &Reader::Skip},
      {"headerr", &Reader::Skip},
      {"info", &Reader::Skip},
      {"listoverridetable", &Reader::Skip},
      {"listtable", &Reader::Skip},
      {"nonshppict", &Reader::Skip},
      {"object", &Reader::Skip},
      {"pict", &Reader::Skip},
      {"private", &Reader::Skip},
      {"revtbl", &Reader::Skip},
      {"rxe", &Reader::Skip},
      {"shprslt", &Reader::Skip},
      {"stylesheet", &Reader::Skip},
      {"tc", &Reader::Skip},
      {"txe", &Reader::Skip},
      {"xe", &Reader::Skip},
  };

  static constexpr auto kIndex = [] {
    std::array<unsigned char, kSlots> index{};
    for (std::size_t i = 0; i < std::size(kWords); ++i) {
      unsigned hash = 0;
      for (const char c : kWords[i].name) hash = NextHash(hash, c);
      unsigned slot = hash % kSlots;
      while (index[slot] != 0) slot = (slot + 1) % kSlots;
      index[slot] = static_cast<unsigned char>(i + 1);
    }
    return index;
  }();
};

RichText Reader::Read() {
  while (at_ < end_) {
    TakePlain();
    if (at_ == end_) break;
    const char c = *at_++;
    if (c == '\\') {
      AfterBackslash();
    } else if (c == '{') {
      Open();
    } else if (c == '}' && !Close()) {
      closed_ = true;
      break;
    }
  }
  FlushRun();
  return RichText(std::move(text_), std::move(runs_));
}

void Reader::TakePlain() {
  const char* const start = at_;
  while (at_ < end_ && kReadAsIs[Byte(*at_)]) ++at_;
  const auto skipped = std::min<std::ptrdiff_t>(toSkip_, at_ - start);
  toSkip_ -= static_cast<int>(skipped);
  text_.append(start + skipped, at_);
}

void Reader::AfterBackslash() {
  if (at_ == end_) return;
  if (!IsLetter(*at_)) {
    const char symbol = *at_++;
    if (symbol == '\'') return TakeHex();
    if (symbol == '*') return Skip({}, 0);
    if (kSymbols[Byte(symbol)] != 0) TakeByte(kSymbols[Byte(symbol)]);
    return;
  }
  const Control control = TakeControl();
  const Word* const word = Vocabulary::Find(control);
  if (toSkip_ > 0 && control.word != "u") {
    --toSkip_;
  } else if (word != nullptr) {
    (this->*word->act)(control, word->character);
  }
}

/// The control word at the place, with its number, its delimiter, and the binary data that a \bin announces.
Control Reader::TakeControl() {
  Control control;
  const char* const start = at_;
  for (; at_ < end_ && IsLetter(*at_); ++at_) control.hash = NextHash(control.hash, *at_);
  control.word = {start, at_};
  const bool negative = end_ - at_ > 1 && *at_ == '-' && IsDigit(at_[1]);
  if (negative) ++at_;
  if (at_ < end_ && IsDigit(*at_)) {
    control.hasNumber = true;
    control.number = negative ? -TakeNumber() : TakeNumber();
  }
  if (at_ < end_ && *at_ == ' ') ++at_;
  if (control.word == "bin") at_ += std::clamp<std::ptrdiff_t>(control.number, 0, end_ - at_);
  return control;
}

int Reader::TakeNumber() {
  constexpr std::int64_t kLargest = std::numeric_limits<int>::max();
  std::int64_t number = 0;
  for (; at_ < end_ && IsDigit(*at_); ++at_) number = std::min(number * 10 + (*at_ - '0'), kLargest);
  return static_cast<int>(number);
}

void Reader::TakeHex() {
  if (end_ - at_ < 2) {
    at_ = end_;
    return;
  }
  const auto high = kHexDigits[Byte(at_[0])];
  const auto low = kHexDigits[Byte(at_[1])];
  if (high < 0 || low < 0) return;
  at_ += 2;
  TakeByte(static_cast<char>(high << 4 | low));
}

void Reader::TakeByte(char c) {
  if (toSkip_ > 0) {
    --toSkip_;
  } else if (c == '\r' || c == '\n') {
    TakeLineBreak(c);
  } else {
    text_ += c;
  }
}

/// A CR is a whole line break already; an LF behind it only gives its own half its colour.
void Reader::TakeLineBreak(char c) {
  if (c == '\n' && afterCr_ == text_.size()) {
    FlushRun();
    runs_.Replace({text_.size() - 1, 1}, ColourRuns(1, state_.colour));
    afterCr_ = std::string::npos;
    return;
  }
  text_ += "\r\n";
  if (c == '\r') afterCr_ = text_.size();
}

void Reader::Open() {
  toSkip_ = 0;
  outer_.push_back(state_);
}

/// False for the brace that closes the document. One that closes nothing is passed over.
bool Reader::Close() {
  toSkip_ = 0;
  if (outer_.empty()) return true;
  SetColour(outer_.back().colour);
  state_ = outer_.back();
  outer_.pop_back();
  return !outer_.empty();
}

void Reader::FlushRun() {
  runs_.Append(text_.size() - runStart_, state_.colour);
  runStart_ = text_.size();
}

void Reader::SetColour(Colour colour) {
  if (colour == state_.colour) return;
  FlushRun();
  state_.colour = colour;
}

void Reader::ColourNumber(const Control& control, char) {
  const bool known = control.number >= 0 && static_cast<std::size_t>(control.number) < colours_.size();
  SetColour(known ? colours_[static_cast<std::size_t>(control.number)] : kBlack);
}

void Reader::Unicode(const Control& control, char) {
  toSkip_ = 0;
  if (!control.hasNumber) return;
  // Numbers are signed 16 bit ones, by the description; some programs write larger ones as they are.
  const auto character =
      static_cast<char32_t>(control.number < 0 ? control.number + 0x10000 : control.number);
  const bool secondHalf = character >= 0xDC00 && character < 0xE000;  // the "?" is given for the first half
  if (!secondHalf) TakeCharacter(character);
  toSkip_ = state_.fallback;
}

/// An accent joins the letter before it.
void Reader::TakeCharacter(char32_t character) {
  if (text_.size() > runStart_) {
    if (const auto joined = WithMark(text_.back(), character)) {
      text_.back() = *joined;
      return;
    }
  }
  const char byte = FromUnicode(character);
  if (byte == '?' && character != '?') ++lost_;
  TakeByte(byte);
}

void Reader::Fallback(const Control& control, char) {
  state_.fallback = control.hasNumber ? std::max(control.number, 0) : 1;
}

/// A destination is a group of its own. A stray word or star in the document itself must not swallow the
/// text.
void Reader::Skip(const Control&, char) {
  if (outer_.size() > 1) SkipToGroupEnd();
}

/// Leaves the brace that closes the group to the caller.
void Reader::SkipToGroupEnd() {
  std::size_t depth = 1;
  while (at_ < end_) {
    if (*at_ == '}' && --depth == 0) return;
    const char c = *at_++;
    if (c == '{') ++depth;
    if (c != '\\' || at_ == end_) continue;
    if (IsLetter(*at_)) {
      TakeControl();
    } else {
      ++at_;
    }
  }
}

void Reader::ReadColours(const Control&, char) {
  constexpr std::pair<std::string_view, unsigned> kParts[] = {{"red", 0}, {"green", 8}, {"blue", 16}};
  if (outer_.size() < 2) return;
  colours_.clear();
  Colour colour = kBlack;
  bool given = false;
  while (at_ < end_ && *at_ != '}') {
    const char c = *at_++;
    if (c == ';') {
      colours_.push_back(std::exchange(colour, kBlack));
      given = false;
    } else if (c == '{') {
      SkipToGroupEnd();
      if (at_ < end_) ++at_;
    } else if (c == '\\' && at_ < end_ && !IsLetter(*at_)) {
      ++at_;
    } else if (c == '\\' && at_ < end_) {
      const Control control = TakeControl();
      for (const auto& [name, shift] : kParts) {
        if (control.word != name) continue;
        const auto part = static_cast<unsigned>(std::clamp(control.number, 0, 255));
        colour = Colour{(NumberOf(colour) & ~(0xFFU << shift)) | part << shift};
        given = true;
      }
    }
  }
  if (given) colours_.push_back(colour);
}

}  // namespace

RtfContent ContentOfRtf(std::string_view rtf) {
  // The one document whose last paragraph mark is no line break: nothing stands before it.
  if (rtf.starts_with(kEmptyRtf)) return {};
  Reader reader(rtf);
  RichText text = reader.Read();
  return {std::move(text), reader.Lost()};
}

std::optional<RichText> RtfInFile(std::string_view bytes) {
  if (!LooksLikeRtf(bytes)) return {};
  Reader reader(bytes);
  RichText text = reader.Read();
  if (!reader.AtEnd()) return {};
  return bytes.starts_with(kEmptyRtf) ? RichText() : std::move(text);
}

RichText ShownOfFile(std::string_view bytes) {
  auto rich = RtfInFile(bytes);
  return rich ? *std::move(rich) : RichText(WithPaneLineBreaks(bytes));
}

RichText ReadRtf(std::string_view rtf) { return ContentOfRtf(rtf).text; }

bool LooksLikeRtf(std::string_view bytes) { return bytes.starts_with("{\\rtf"); }

}  // namespace tarvik
