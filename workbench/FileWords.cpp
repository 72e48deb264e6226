#include "workbench/FileWords.h"

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

constexpr const char* kAllFiles = "|All files (*.*)|*.*";

std::string OwnType(const FileWords& words, const std::string& extension) {
  return std::string(words.kind) + " file (*." + extension + ")|*." + extension;
}

}  // namespace

const FileWords& WordsOf(const Document& document) {
  return document.IsJoystick() ? kJoystickWords : kMacroWords;
}

std::string FilterToOpen(const FileWords& words, const std::string& extension) {
  return OwnType(words, extension) + "|All " + words.kind + " file types (" + Patterns(words.ending, ",") +
         ") |" + Patterns(words.ending) + " " + kAllFiles;
}

std::string FilterToSave(const FileWords& words, const std::string& extension) {
  std::string filter = OwnType(words, extension);
  for (const Endings& each : kEndings) {
    const std::string pattern = "*." + std::string(each.*words.ending);
    filter.append("|").append(each.inDialogs).append(words.kindToSave).append(pattern);
    filter.append(") |").append(pattern);
  }
  return filter + kAllFiles;
}

std::string PairFilter(const std::string& joystick, const std::string& macro) {
  return "Thrustmaster files for your hardware |*." + joystick + ";*." + macro +
         "|Joystick file for your hardware (*." + joystick + ")|*." + joystick +
         "|Macro file for your hardware (*." + macro + ")|*." + macro + "|All Thrustmaster files |" +
         Patterns(&Endings::joystick) + ";" + Patterns(&Endings::macro) + kAllFiles;
}

}  // namespace tarvik
