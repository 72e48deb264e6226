// How coloured text becomes an RTF document.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "text/CodePage.h"
#include "text/Rtf.h"

namespace tarvik {
namespace {

using codepage::Byte;

constexpr int kTwipsPerPixel = 15;

constexpr auto kWrittenAsIs = [] {
  std::array<bool, 256> table{};
  for (unsigned c = ' '; c < 0x7F; ++c) table[c] = c != '\\' && c != '{' && c != '}';
  return table;
}();

void AppendNumber(std::string& out, long number) {
  std::array<char, 24> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  out.append(digits.data(), end);
}

void AppendWord(std::string& out, std::string_view word, long number) {
  out += word;
  AppendNumber(out, number);
}

void AppendEscaped(std::string& out, char c) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  if (c == '\\' || c == '{' || c == '}') {
    const char symbol[] = {'\\', c};
    out.append(symbol, 2);
  } else if (c == '\t') {
    out += "\\tab ";
  } else {
    const char hex[] = {'\\', '\'', kDigits[Byte(c) >> 4], kDigits[Byte(c) & 15]};
    out.append(hex, 4);
  }
}

/// A CR LF whose halves differ in colour falls into two calls and is written as two single bytes.
void AppendText(std::string& out, std::string_view text) {
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at < end) {
    const char* const plain = at;
    while (at < end && kWrittenAsIs[Byte(*at)]) ++at;
    out.append(plain, at);
    if (at == end) return;
    if (*at == '\r' && end - at > 1 && at[1] == '\n') {
      out += "\\par\r\n";
      at += 2;
    } else {
      AppendEscaped(out, *at++);
    }
  }
}

/// The colours of a text in the order of their first use, black first: the colour table and the numbers in
/// it.
class ColourTable {
 public:
  explicit ColourTable(const ColourRuns& colours) {
    entries_.reserve(colours.runs().size());
    for (const ColourRuns::Run& run : colours.runs())
      entries_.push_back(EntryOf(Rgb(RedOf(run.colour), GreenOf(run.colour), BlueOf(run.colour))));
  }

  [[nodiscard]] std::size_t size() const { return table_.size(); }
  [[nodiscard]] std::uint32_t EntryOfRun(std::size_t run) const { return entries_[run]; }
  /// The control word that switches to the colour, with its delimiter.
  [[nodiscard]] std::string_view Switch(std::uint32_t entry) const { return switches_[entry]; }

  void AppendTo(std::string& out) const {
    out += "{\\colortbl";
    for (const Colour colour : table_) {
      AppendWord(out, "\\red", RedOf(colour));
      AppendWord(out, "\\green", GreenOf(colour));
      AppendWord(out, "\\blue", BlueOf(colour));
      out += ';';
    }
    out += '}';
  }

 private:
  std::uint32_t EntryOf(Colour colour) {
    std::uint32_t& recent = recent_[NumberOf(colour) * 0x9E3779B1U >> 26];
    if (table_[recent] == colour) return recent;
    const auto next = static_cast<std::uint32_t>(table_.size());
    const auto [found, isNew] = numbers_.try_emplace(colour, next);
    if (isNew) {
      table_.push_back(colour);
      AppendWord(switches_.emplace_back(), "\\cf", next);
      switches_.back() += ' ';
    }
    return recent = found->second;
  }

  std::vector<Colour> table_{kBlack};
  std::vector<std::string> switches_{"\\cf0 "};
  std::unordered_map<Colour, std::uint32_t> numbers_{{kBlack, 0}};
  std::array<std::uint32_t, 64> recent_{};  // an entry for each hash: most texts have a handful of colours
  std::vector<std::uint32_t> entries_;
};

void AppendHead(std::string& out, const ColourTable& colours, const RtfLook& look) {
  out += "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deftab720{\\fonttbl{\\f0\\fnil\\fcharset0 ";
  std::string name = look.font.name;
  std::erase(name, ';');  // ends an entry of the font table
  AppendText(out, name);
  out += ";}}";
  colours.AppendTo(out);
  out += "\\deflang2057\\pard";
  if (look.indent > 0) AppendWord(out, "\\li", static_cast<long>(look.indent) * kTwipsPerPixel);
  AppendWord(out, "\\plain\\f0\\fs", std::lround(std::clamp(look.font.size, 1.0F, 1000.0F) * 2));
  out += look.font.bold ? "\\b " : " ";
}

}  // namespace

std::string WriteRtf(const RichText& content, const RtfLook& look) {
  if (content.text.empty()) return std::string(kEmptyRtf);
  const ColourTable colours(content.colours);
  const auto runs = content.colours.runs();
  std::string rtf;
  rtf.reserve(512 + content.size() + content.size() / 4 + colours.size() * 24 + runs.size() * 8);
  AppendHead(rtf, colours, look);
  std::uint32_t current = 0;
  for (std::size_t i = 0; i < runs.size(); ++i) {
    if (colours.EntryOfRun(i) != current) {
      current = colours.EntryOfRun(i);
      rtf += colours.Switch(current);
    }
    const std::size_t start = runs[i].start;
    AppendText(rtf, std::string_view(content.text).substr(start, content.colours.EndOf(i) - start));
  }
  rtf += '}';
  return rtf;
}

}  // namespace tarvik
