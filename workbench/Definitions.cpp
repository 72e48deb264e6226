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
  const model::FilePair pair = models_.Pair();
  const model::NameIndex names(pair.joystick, pair.joystickText, pair.macros, pair.macroText);
  const Document& here = documents_.Active();
  const model::FileKind file = FileKindOf(here);
  const std::size_t caret = here.text.Selection().start;
  const auto name = model::NameAt(names, file, caret);
  if (!name) return {};
  const auto leadTo = name->isDefinition ? model::UsesOf : model::DefinitionsOf;
  std::vector<Place> places;
  PerDocument<model::LinePositions> lines{model::LinePositions(pair.joystickText),
                                          model::LinePositions(pair.macroText)};
  for (const model::Mention& mention : leadTo(names, file, caret)) {
    Document& document = mention.file == model::FileKind::Joystick ? documents_.joystick : documents_.macro;
    const std::size_t line = lines.Of(document).Of(mention.range.start).line;
    const std::string text = LineAround(document.text.Characters(), mention.range.start);
    places.push_back({&document, mention.range, LineInWords(document, line).append(text)});
  }
  return places;
}

void Definitions::GoTo(const Place& place) {
  if (&documents_.Active() != place.document) documents_.Select(*place.document);
  place.document->text.Select(place.name);
  documents_.FocusActiveText();
}

}  // namespace tarvik
