#include "workbench/ChangedLines.h"

namespace tarvik {

ChangedLines::ChangedLines(Documents& documents, FileCommands& files)
    : connections_{
          files.WasRead.Connect([this](const Document& document) { Begin(document); }),
          files.Written.Connect([this](const Document& document, const Outcome<>& written) {
            if (written) Begin(document);
          }),
          // What comes next is read from a file, or is nothing.
          files.Leaves.Connect([this](const Document& document) { changes_.Of(document).Begin({}); }),
      } {
  for (const Document* const document : {&documents.joystick, &documents.macro}) {
    Begin(*document);
    Follow(*document);
  }
}

void ChangedLines::Begin(const Document& document) {
  changes_.Of(document).Begin(document.text.Characters());
  Begun(document);
}

void ChangedLines::Follow(const Document& document) {
  connections_.push_back(document.text.Edited.Connect([this, &document](const PaneEdit& edit) {
    if (edit.OnlyColours()) return;
    changes_.Of(document).Edit(document.text.Characters(), document.text.GetLineFromChar(edit.position),
                               edit.position, edit.removed.text, edit.inserted.text);
  }));
}

}  // namespace tarvik
