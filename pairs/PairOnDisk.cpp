#include "pairs/PairOnDisk.h"

#include "language/Controllers.h"
#include "pairs/PairFiles.h"
#include "text/CodePage.h"

namespace tarvik::pairs {
namespace {

std::string NameOf(const FileOnDisk& file) { return FromUtf8(file.path.filename().string()); }

Outcome<FileOnDisk> ReadFile(const std::filesystem::path& path) {
  Outcome<std::string> text = ReadText(path);
  if (text) return FileOnDisk{path, *std::move(text)};
  Failure failure = text.failure();
  failure.text.insert(0, path.string() + ": ");
  return failure;
}

}  // namespace

PairOnDisk::PairOnDisk(FileOnDisk joystick, FileOnDisk macros)
    : joystick_(std::move(joystick)),
      macros_(std::move(macros)),
      joystickName_(NameOf(joystick_)),
      macroName_(NameOf(macros_)),
      joystickModel_(joystick_.text),
      macroModel_(macros_.text) {}

Outcome<PairOnDisk> PairOnDisk::Read(const std::filesystem::path& file) {
  Outcome<FileOnDisk> first = ReadFile(file);
  if (!first) return first.failure();
  if (RoleOf(file) == Role::Macros) return PairOnDisk({}, *std::move(first));
  const std::filesystem::path macros = MacroFileOf(file, first->text);
  if (macros.empty()) return PairOnDisk(*std::move(first), {});
  Outcome<FileOnDisk> second = ReadFile(macros);
  if (!second) return second.failure();
  return PairOnDisk(*std::move(first), *std::move(second));
}

model::FilePair PairOnDisk::View() const {
  model::FilePair pair = {joystickModel_, joystick_.text, macroModel_, macros_.text};
  // Of a macro file alone nobody knows what it is for.
  if (joystick_.path.empty()) return pair;
  pair.hardware.joystick = JoystickOf(LowerCase(joystick_.path.extension().string()).substr(1));
  pair.names = {joystickName_, macroName_, macros_.path.empty()};
  return pair;
}

}  // namespace tarvik::pairs
