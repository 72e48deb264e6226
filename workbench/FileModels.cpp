#include "workbench/FileModels.h"

#include <algorithm>

#include "language/Controllers.h"
#include "text/CodePage.h"
#include "workbench/FilePairs.h"

namespace tarvik {
namespace {

/// A file that has never been saved has no name that anybody could look for.
std::string_view NameOnDisk(const Document& document) {
  if (document.IsUntitled()) return {};
  const std::string_view path = document.Path.Get();
  return path.substr(path.rfind('\\') + 1);
}

}  // namespace

std::string LineInWords(const Document& document, std::size_t line) {
  return std::string(document.IsJoystick() ? "Joystick " : "Macros ").append(TextOf(line)).append(":  ");
}

FileModels::FileModels(Documents& documents)
    : documents_(documents),
      joystick_(documents.joystick.text.Characters()),
      macros_(documents.macro.text.Characters()) {
  for (Document* const document : {&documents.joystick, &documents.macro}) {
    connections_.push_back(document->text.Edited.Connect([this, document](const PaneEdit& edit) {
      if (!edit.OnlyColours()) Follow(*document, edit);
    }));
    connections_.push_back(document->Name.Changed.Connect([this] { Changed(); }));
  }
  Settings& settings = documents.settings;
  for (Property<int>* const part : {&settings.JoyName, &settings.ThrottleName, &settings.RudderName}) {
    connections_.push_back(part->Changed.Connect([this] { Changed(); }));
  }
}

void FileModels::Follow(const Document& document, const PaneEdit& edit) {
  names_.reset();
  const auto follow = [&](auto& file) {
    file.Edit(document.text.Characters(), {edit.position, edit.removed.size()}, edit.inserted.size());
  };
  if (document.IsJoystick()) {
    follow(joystick_);
  } else {
    follow(macros_);
  }
  Changed();
}

const model::NameIndex& FileModels::Names() const {
  if (!names_) {
    names_.emplace(joystick_, documents_.joystick.text.Characters(), macros_,
                   documents_.macro.text.Characters());
  }
  return *names_;
}

/// What the settings say is attached. A file whose ending is that of another joystick is for that one, and
/// nobody knows what is attached to it. One without a name is for their own.
model::Hardware FileModels::Chosen() const {
  const Settings& settings = documents_.settings;
  const std::string ending = LowerCase(Ending(documents_.joystick.Name.Get().Text()));
  const JoystickRow* const own = RowOf(kJoysticks, settings.JoyName);
  const bool isOfOther = std::ranges::count(kEndings, ending, &Endings::joystick) > 0 &&
                         (!own || own->endings.joystick != ending);
  if (isOfOther && !documents_.joystick.IsUntitled()) return {.joystick = JoystickOf(ending)};
  return {settings.JoyName.Get(), settings.ThrottleName.Get(), settings.RudderName.Get()};
}

model::FilePair FileModels::Pair() const {
  const std::string_view text = documents_.joystick.text.Characters();
  return {.joystick = joystick_,
          .joystickText = text,
          .macros = macros_,
          .macroText = documents_.macro.text.Characters(),
          .hardware = model::AttachedHardware(joystick_, text, Chosen()),
          .names = {.joystick = NameOnDisk(documents_.joystick), .macros = NameOnDisk(documents_.macro)}};
}

}  // namespace tarvik
