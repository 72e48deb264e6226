#include "workbench/Rewriting.h"

#include "language/Tidy.h"

namespace tarvik {
namespace {

std::size_t LinesIn(const Pane& pane, const std::vector<Replacement>& replacements) {
  std::size_t lines = 0;
  std::optional<std::size_t> last;
  for (const Replacement& replacement : replacements) {
    const std::size_t line = pane.GetLineFromChar(replacement.range.start);
    if (std::exchange(last, line) != line) ++lines;
  }
  return lines;
}

}  // namespace

std::optional<model::NameHere> Rewriting::NameAtCaret() const {
  const Document& document = documents_.Active();
  auto name = model::NameAt(models_.Names(), FileKindOf(document), document.text.Selection().start);
  if (name && name->kind == model::NameKind::Control) return std::nullopt;
  return name;
}

std::vector<model::Mention> Rewriting::PlacesOf(const std::string& name, model::InComments comments) const {
  return model::RenamePlaces(models_.Pair(), models_.Names(), name, comments);
}

void Rewriting::Rename(const std::string& name, const std::string& newName, model::InComments comments) {
  PerDocument<std::vector<Replacement>> replacements;
  for (const model::Mention& mention : PlacesOf(name, comments)) {
    const Document& document = DocumentOf(documents_, mention.file);
    if (document.text.Locked) return documents_.SayIsProtected(document);
    replacements.Of(document).push_back({mention.range, newName});
  }
  Document& before = documents_.Active();
  for (Document* const document : {&documents_.joystick, &documents_.macro}) {
    if (!replacements.Of(*document).empty()) Replace(*document, replacements.Of(*document));
  }
  documents_.Select(before);
  documents_.FocusActiveText();
  const std::size_t places = replacements.joystick.size() + replacements.macro.size();
  documents_.Say(name + " is " + newName + " now, in " + TextOf(places) +
                 (places == 1 ? " place" : " places"));
}

void Rewriting::TidyUp() {
  Document& document = documents_.Active();
  if (document.text.Locked) return documents_.SayIsProtected(document);
  const Range selection = document.text.Selection();
  const Range lines = selection.length > 0 ? selection : Range{0, document.text.Characters().size()};
  const std::vector<Replacement> replacements = model::Tidy(models_.Pair(), FileKindOf(document), lines);
  if (replacements.empty()) return documents_.Say("There is nothing to tidy up.");
  const std::size_t changed = LinesIn(document.text, replacements);
  Replace(document, replacements);
  documents_.Say(TextOf(changed) + (changed == 1 ? " line" : " lines") + " tidied up");
}

void Rewriting::Replace(Document& document, const std::vector<Replacement>& replacements) {
  documents_.Select(document);
  insertion_.BeginColInsert();
  document.text.ReplaceRanges(replacements);
  document.Caret = document.text.SelStart;
  insertion_.EndColInsert();
}

}  // namespace tarvik
