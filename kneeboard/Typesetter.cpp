#include "kneeboard/Typesetter.h"

#include <algorithm>
#include <utility>

namespace tarvik::kneeboard {
namespace {

/// Widths that differ by less are equal.
constexpr double kNothing = 1e-6;

bool IsInsideLetter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

std::vector<std::string> WordsOf(const std::string& text) {
  std::vector<std::string> words;
  std::size_t from = 0;
  while ((from = text.find_first_not_of(' ', from)) != std::string::npos) {
    const std::size_t to = std::min(text.find(' ', from), text.size());
    words.push_back(text.substr(from, to - from));
    from = to;
  }
  return words;
}

}  // namespace

double Typesetter::Width(const std::string& text, const Style& style) {
  auto& widths = widths_[style.bold ? 1 : 0];
  const auto found = widths.find(text);
  if (found != widths.end()) return found->second * style.size;
  const double width = measure_.Width(text, style.bold);
  widths.emplace(text, width);
  return width * style.size;
}

std::size_t Typesetter::Fitting(const std::string& text, double width, const Style& style) {
  std::size_t fits = 0;
  for (std::size_t end = 1; end <= text.size(); ++end) {
    if (end < text.size() && IsInsideLetter(text[end])) continue;
    if (fits > 0 && Width(text.substr(0, end), style) > width + kNothing) break;
    fits = end;
  }
  return fits;
}

std::vector<std::string> Typesetter::Wrapped(const std::string& text, double width, const Style& style) {
  std::vector<std::string> lines;
  std::string line;
  const auto end = [&] {
    if (!line.empty()) lines.push_back(std::exchange(line, {}));
  };
  for (std::string word : WordsOf(text)) {
    std::string longer = line;
    if (!line.empty()) longer.push_back(' ');
    longer.append(word);
    if (Width(longer, style) <= width + kNothing) {
      line = std::move(longer);
      continue;
    }
    end();
    while (Width(word, style) > width + kNothing) {
      const std::size_t fits = Fitting(word, width, style);
      if (fits == word.size()) break;
      lines.push_back(word.substr(0, fits));
      word.erase(0, fits);
    }
    line = std::move(word);
  }
  end();
  return lines;
}

Style Typesetter::Shrunk(const std::string& text, double width, Style style, double least) {
  const double wide = Width(text, style);
  if (wide > width + kNothing) style.size = std::min(style.size, std::max(least, style.size * width / wide));
  return style;
}

double PutWords(Sheet& onto, Typesetter& setter, const std::string& text, Spot at, const Style& style) {
  const double width = setter.Width(text, style);
  if (text.empty()) return 0;
  onto.words.push_back(
      {{at.x, at.y, width, LineHeight(style.size)}, text, style.size, style.bold, style.colour});
  return width;
}

}  // namespace tarvik::kneeboard
