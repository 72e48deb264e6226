#include "workbench/ColouredCopies.h"

namespace tarvik {

std::string ColouredCopies::PathOf(const Document& document) const {
  return documents_.values.RtfDir.Get() / document.Name;
}

void ColouredCopies::Save(const Document& document) {
  const Trap trap{documents_.errors, document.IsJoystick() ? "SaveColouredTextJF" : "SaveColouredTextMF"};
  trap(document.text.SaveCopy(PathOf(document), FileFormat::Rtf, document.Path.Get()));
}

bool ColouredCopies::Exists(const Document& document) const {
  return documents_.platform.files.FileExists(PathOf(document));
}

bool ColouredCopies::Load(Document& document) {
  if (!Exists(document)) return false;
  const Scratch coloured(documents_.scratch);
  const Scratch plain(documents_.compare);
  if (!Ignore(coloured->LoadFile(PathOf(document)))) return false;
  if (!Ignore(plain->LoadFile(document.Path.Get()))) return false;
  if (coloured->Characters() != plain->Characters()) return false;
  document.text.SetContent(coloured->Content());
  return true;
}

}  // namespace tarvik
