// Any bytes on the clipboard, as text and as RTF, pasted over any selection and copied again: the document
// stays sound, what was copied is what was selected, and each paste is one step of undo.
#include <cstdlib>

#include "Selecting.h"
#include "support/BareWorkbench.h"
#include "support/SoundDocument.h"

namespace {

using namespace tarvik;

void CheckCopy(BareWorkbench& bench) {
  const Pane& pane = bench.joystick.text;
  const std::string selected(pane.Characters().substr(pane.SelStart, pane.SelLength));
  bench.workbench.edit.Copy();
  if (!selected.empty() && bench.outside.clipboard.Text().text != selected) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  Bytes bytes(data, size);
  BareWorkbench bench;
  Pane& pane = bench.joystick.text;
  while (!bytes.Empty()) {
    const std::string before(pane.Characters());
    const std::string text = WithPaneLineBreaks(bytes.Next(bytes.Below(32)));
    const std::string rtf = bytes.Below(2) == 0 ? "" : "{\\rtf1\\ansi " + bytes.Next(bytes.Below(128));
    bench.outside.clipboard.PutFromOutside(text, rtf);
    SelectSome(pane, bytes);
    bench.workbench.edit.Paste();
    RequireSound(bench.joystick);
    CheckCopy(bench);
    if (bytes.Below(4) > 0 || pane.Characters() == before) continue;
    bench.joystick.Undo.Undo();
    RequireSound(bench.joystick);
    if (pane.Characters() != before) std::abort();
  }
  return 0;
}
