#include "pairs/PairFiles.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "language/Controllers.h"
#include "language/JoystickFile.h"
#include "platform/Descriptor.h"
#include "text/Encoding.h"

namespace tarvik::pairs {
namespace {

namespace fs = std::filesystem;
using model::SameWord;

std::string EndingOf(const fs::path& file) {
  const std::string extension = file.extension();
  return extension.empty() ? extension : extension.substr(1);
}

/// What MDEF says, without an ending that it should not have. The last one counts.
std::string NamedMacroFile(std::string_view text, std::string_view macroEnding) {
  const model::JoystickFile file(text);
  std::string name;
  for (std::size_t i = 0; i < file.size(); ++i) {
    if (file[i].row == nullptr || file[i].row->word != "MDEF") continue;
    const auto& values = std::get<model::Setting>(file[i].body).values;
    if (!values.empty()) name = ToUtf8(model::In(file.LinesOf(i, text), values.front()));
  }
  const fs::path path(name);
  return SameWord(EndingOf(path), macroEnding) ? path.stem().string() : name;
}

}  // namespace

Role RoleOf(const fs::path& file) {
  const std::string ending = EndingOf(file);
  for (const Endings& each : kEndings) {
    if (SameWord(each.joystick, ending)) return Role::Joystick;
    if (SameWord(each.macro, ending)) return Role::Macros;
  }
  return Role::None;
}

Outcome<std::string> ReadText(const fs::path& file) {
  Descriptor descriptor;
  // Not blocking, for a pipe that nobody writes into.
  descriptor.Open(file, O_RDONLY | O_NONBLOCK);
  if (!descriptor.IsOpen()) return SystemFailure(errno);
  struct stat state {};
  if (fstat(descriptor.number(), &state) != 0) return SystemFailure(errno);
  if (!S_ISREG(state.st_mode)) return SystemFailure(S_ISDIR(state.st_mode) ? EISDIR : EINVAL);
  Outcome<std::string> bytes = descriptor.ReadAll(static_cast<std::size_t>(state.st_size));
  if (!bytes) return bytes;
  const Encoding encoding = EncodingOf(*bytes);
  return encoding == Encoding::CodePage ? std::move(bytes) : InCodePage(*bytes, *bytes, encoding).text;
}

fs::path MacroFileOf(const fs::path& joystick, std::string_view text) {
  const std::string ending = EndingOf(joystick);
  const Endings* endings =
      std::ranges::find_if(kEndings, [&](const Endings& each) { return SameWord(each.joystick, ending); });
  if (endings == std::end(kEndings)) return {};
  const std::string named = NamedMacroFile(text, endings->macro);
  const std::string wanted = named.empty() ? joystick.stem().string() : named;
  std::vector<fs::path> found;
  std::error_code error;
  const fs::path folder = joystick.has_parent_path() ? joystick.parent_path() : fs::path(".");
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    const fs::path name = entry->path().filename();
    if (SameWord(name.stem().string(), wanted) && SameWord(EndingOf(name), endings->macro))
      found.push_back(name);
  }
  if (found.empty()) return {};
  // Of several that differ in capital letters the first by name is the one, so that it is always the same.
  return joystick.parent_path() / *std::ranges::min_element(found);
}

Outcome<std::vector<fs::path>> FilesIn(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  const auto options = fs::directory_options::skip_permission_denied;
  fs::recursive_directory_iterator entry(folder, options, error);
  for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
    std::error_code ignored;
    if (RoleOf(entry->path()) != Role::None && entry->is_regular_file(ignored))
      files.push_back(entry->path());
  }
  if (error) return SystemFailure(error.value());
  std::ranges::sort(files);
  return files;
}

}  // namespace tarvik::pairs
