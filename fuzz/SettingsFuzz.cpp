// Any bytes as the settings file of a whole start and a whole end of the program: both files can be edited in
// between, and the lines that are none of the program's are there afterwards.
#include <cstdlib>

#include "app/Program.h"
#include "support/SoundDocument.h"

namespace {

using namespace tarvik;

constexpr const char* kSettings = "c:\\tarvik\\tarvik.ini";
/// A section that the program knows nothing of.
constexpr std::string_view kForeign = "\r\n[Somebody else's]\r\nkey=value\r\n; a remark\r\n";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  UnstartedProgram program;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  program.files().Put(kSettings, bytes + std::string(kForeign));
  program.application.Start();
  if (program.application.Ended()) return 0;
  Editor& editor = program.editor();
  editor.JoystickText.ReplaceSelection(RichText("BTN S1"));
  RequireSound(editor.Joystick);
  RequireSound(editor.Macro);
  program.application.workbench.settings.SaveOptions();
  const std::string now = program.files().Content(kSettings).value_or("");
  const bool isDamaged = bytes.find('\0') != bytes.npos;
  if (!isDamaged && now.find(kForeign) == now.npos) std::abort();
  return 0;
}
