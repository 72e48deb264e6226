// A pair of any bytes, played by a trace of any bytes and then by any events: every key that goes down is up,
// every key that goes up is down, and nothing is down after the end.
#include <bitset>
#include <cstdlib>

#include "Bytes.h"
#include "play/Trace.h"

namespace {

using namespace tarvik;

void Keep(const play::StepResult& result, std::bitset<play::kKeyCount>& down) {
  for (const play::Output& each : result.outputs) {
    if (each.kind != play::OutputKind::Key) continue;
    if (down[each.number] == each.down) std::abort();
    down[each.number] = each.down;
  }
}

void CheckEvents(Bytes bytes, const play::Program& program) {
  play::Engine engine(program);
  std::bitset<play::kKeyCount> down;
  play::Time now = {};
  while (!bytes.Empty()) {
    const auto kind = static_cast<play::EventKind>(bytes.Below(5));
    const auto index = static_cast<std::uint32_t>(bytes.Below(program.controls.size()));
    now += play::Time(bytes.Below(256) * 500);
    Keep(engine.Step({kind, index, static_cast<double>(bytes.Below(101)) / 100}, now), down);
  }
  Keep(engine.Stop(now), down);
  if (down.any() || engine.AnyKeyDown()) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  Bytes bytes(data, size);
  const std::string joystick = bytes.Next(bytes.Below(256) * 4);
  const std::string macros = bytes.Next(bytes.Below(256) * 4);
  const std::string rest = bytes.Rest();
  const model::JoystickFile joystickFile(joystick);
  const model::MacroFile macroFile(macros);
  const play::Program program = play::Compile({joystickFile, joystick, macroFile, macros});
  CheckEvents({reinterpret_cast<const unsigned char*>(rest.data()), rest.size()}, program);
  const auto trace = play::ReadTrace(rest, program);
  if (const auto* read = std::get_if<play::Trace>(&trace)) {
    if (play::Play(*read, program, {"joystick", joystick, "macros", macros}).keysLeft) std::abort();
  }
  return 0;
}
