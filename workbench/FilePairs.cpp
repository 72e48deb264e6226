#include "workbench/FilePairs.h"

#include <algorithm>

#include "language/Controllers.h"
#include "text/CodePage.h"

namespace tarvik {
namespace {

/// The endings of the pair to which a file of that name belongs as this half, or null.
const Endings* PairOf(std::string_view name, std::string_view Endings::*half) {
  const auto* const pair = std::find_if(std::begin(kEndings), std::end(kEndings),
                                        [&](const Endings& each) { return each.*half == Ending(name); });
  return pair == std::end(kEndings) ? nullptr : pair;
}

}  // namespace

std::optional<NamedFile> FileAt(const std::string& path) {
  const std::string lower = LowerCase(path);
  const auto name = FileName::Of(lower);
  if (!name) return {};
  return NamedFile{lower, *name};
}

std::string_view Ending(std::string_view name) {
  return name.substr(name.size() - std::min<std::size_t>(3, name.size()));
}

std::string WithEnding(std::string name, std::string_view ending) {
  name.resize(name.size() - Ending(name).size());
  return name + std::string(ending);
}

bool IsJoystickFile(std::string_view name) { return PairOf(name, &Endings::joystick) != nullptr; }

bool IsMacroFile(std::string_view name) { return PairOf(name, &Endings::macro) != nullptr; }

std::optional<NamedFile> JoystickFileBeside(const NamedFile& macro) {
  const Endings* const pair = PairOf(macro.name.Text(), &Endings::macro);
  if (!pair) return {};
  return FileAt(WithEnding(macro.path, pair->joystick));
}

std::optional<NamedFile> MacroFileNamedIn(Document& joystick) {
  Pane& pane = joystick.text;
  bool named = false;
  joystick.Caret = 0;
  while (pane.Find("MDEF", joystick.Caret, pane.Characters().size(), find::kWholeWord)) {
    named = true;
    joystick.Caret = pane.Selection().End();
  }
  const std::string path = joystick.Path;
  if (!named) return FileAt(WithEnding(path, ""));
  const Endings* const pair = PairOf(joystick.Name.Get().Text(), &Endings::joystick);
  if (!pair) return {};
  joystick.Caret = joystick.Caret + 1;
  pane.SelStart = joystick.Caret;
  pane.Span(" \r\n");
  const auto macro = FileName::From(LowerCase(pane.SelText.Get()) + "." + std::string(pair->macro));
  if (!macro) return {};
  return NamedFile{Folder(path.substr(0, path.rfind('\\') + 1)) / *macro, *macro};
}

}  // namespace tarvik
