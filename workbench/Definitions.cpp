#include "workbench/Definitions.h"

#include "language/Lines.h"
#include "language/Places.h"
#include "language/Problems.h"

namespace tarvik {
namespace {

constexpr std::size_t kLongestLine = 80;

/// The line that a position is in, without its indent and its end.
std::string LineAround(std::string_view text, std::size_t position) {
  const std::size_t before = position == 0 ? text.npos : text.rfind('\n', position - 1);
  const std::size_t start = before == text.npos ? 0 : before + 1;
  const std::string_view line = text.substr(start, text.find_first_of("\r\n", start) - start);
  return std::string(model::WithoutIndent(line).substr(0, kLongestLine));
}

}  // namespace

std::vector<Definitions::Place> Definitions::FromCaret() const {
  const Document& here = documents_.Active();
  const model::FileKind file = FileKindOf(here);
  const std::size_t caret = here.text.Selection().start;
  const auto name = model::NameAt(models_.Names(), file, caret);
  if (!name) return {};
  return Describe((name->isDefinition ? model::UsesOf : model::DefinitionsOf)(models_.Names(), file, caret));
}

std::vector<Definitions::Place> Definitions::Describe(std::span<const model::Mention> mentions) const {
  std::vector<Place> places;
  PerDocument<model::LinePositions> lines{model::LinePositions(documents_.joystick.text.Characters()),
                                          model::LinePositions(documents_.macro.text.Characters())};
  for (const model::Mention& mention : mentions) {
    Document& document = DocumentOf(documents_, mention.file);
    const std::size_t line = lines.Of(document).Of(mention.range.start).line;
    const std::string text = LineAround(document.text.Characters(), mention.range.start);
    places.push_back({&document, mention.range, LineInWords(document, line).append(text)});
  }
  return places;
}

void Definitions::GoTo(const Place& place) { documents_.GoTo(*place.document, place.name); }

}  // namespace tarvik
