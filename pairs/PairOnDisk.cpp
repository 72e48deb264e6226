#include "pairs/PairOnDisk.h"

#include "language/Controllers.h"
#include "language/Lines.h"
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

/// Whether a remark of a title says that the file is for a stick: "For: Top Gun, no throttle".
bool IsFor(std::string_view remark, std::string_view stick) {
  constexpr std::string_view kFor = "for:";
  const std::string words = LowerCase(remark);
  const std::size_t at = words.find(kFor);
  if (at == std::string::npos) return false;
  const std::string_view named = model::WithoutIndent(std::string_view(words).substr(at + kFor.size()));
  if (!named.starts_with(LowerCase(stick))) return false;
  return named.size() == stick.size() ||
         std::string_view(" ,.+").find(named[stick.size()]) != std::string_view::npos;
}

/// The stick that the ending of a joystick file tells; of those with this ending the one in its title.
int StickOf(const FileOnDisk& file, const model::JoystickFile& model) {
  const int first = JoystickOf(LowerCase(file.path.extension().string()).substr(1));
  for (std::size_t i = 0; i < model.size(); ++i) {
    const auto* remark = std::get_if<model::Remark>(&model[i].body);
    if (remark == nullptr && !std::holds_alternative<model::Blank>(model[i].body)) break;
    if (remark == nullptr) continue;
    const std::string_view words = model::In(model.LinesOf(i, file.text), remark->comment);
    for (const JoystickRow& row : kJoysticks) {
      const bool isPossible = &row.endings == &kJoysticks[first].endings;
      if (isPossible && IsFor(words, row.inTitle)) return static_cast<int>(&row - kJoysticks);
    }
  }
  return first;
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
  pair.hardware.joystick = StickOf(joystick_, joystickModel_);
  pair.names = {joystickName_, macroName_, macros_.path.empty()};
  return pair;
}

}  // namespace tarvik::pairs
