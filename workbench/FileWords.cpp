#include "workbench/FileWords.h"

#include "workbench/FileTypes.h"

namespace tarvik {
namespace {

constexpr FileWords kJoystickWords = {
    " has changed and isn't saved. Do you want to save it creating a different joystick file?",
    " has changed and isn't saved. Do you want to save it before opening a different joystick file?",
    " wasn't saved, so I won't continue to load up a new joystick file just in case you pressed the cancel "
    "button by accident.",
    "New joystick file created",
    "Opening joystick file",
    nullptr,
    "ED_mnuFileJoystickLoad_Click",
    "ED_SaveJoystickText",
    &Endings::joystick,
    "Joystick",
    " joystick file (",
};

constexpr FileWords kMacroWords = {
    " has changed and isn't saved. Do you want to save it before creating a new macro file?",
    " has changed and isn't saved. Do you want to save it before opening a different macro file?",
    " wasn't saved, so I won't continue to load up a new macro file just in case you pressed the cancel "
    "button by accident.",
    "New macro file created",
    "Opening file",
    "Finished",
    "ED_MnuFileMacroLoad_Click",
    "ED_SaveMacroText",
    &Endings::macro,
    "Macro",
    " macro file(",
};

std::string OwnType(const FileWords& words, const std::string& extension) {
  return filetypes::OfEnding(std::string(words.kind).append(" file"), extension);
}

}  // namespace

const FileWords& WordsOf(const Document& document) {
  return document.IsJoystick() ? kJoystickWords : kMacroWords;
}

std::string FilterToOpen(const FileWords& words, const std::string& extension) {
  const std::string every = std::string("All ")
                                .append(words.kind)
                                .append(" file types (")
                                .append(Patterns(words.ending, ","))
                                .append(") |")
                                .append(Patterns(words.ending))
                                .append(" ");
  return filetypes::InOrder({OwnType(words, extension), every, filetypes::kAll});
}

std::string FilterToSave(const FileWords& words, const std::string& extension) {
  std::string filter = OwnType(words, extension);
  for (const Endings& each : kEndings) {
    const std::string pattern = "*." + std::string(each.*words.ending);
    filter.append("|").append(each.inDialogs).append(words.kindToSave).append(pattern);
    filter.append(") |").append(pattern);
  }
  return filetypes::InOrder({filter, filetypes::kAll});
}

std::string PairFilter(const std::string& joystick, const std::string& macro) {
  return filetypes::InOrder(
      {"Thrustmaster files for your hardware |*." + joystick + ";*." + macro,
       filetypes::OfEnding("Joystick file for your hardware", joystick),
       filetypes::OfEnding("Macro file for your hardware", macro),
       "All Thrustmaster files |" + Patterns(&Endings::joystick) + ";" + Patterns(&Endings::macro),
       filetypes::kAll});
}

}  // namespace tarvik
