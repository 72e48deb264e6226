#include "keys/Ways.h"

#include <cerrno>
#include <system_error>

namespace tarvik::keys {
namespace {

constexpr const char* kInsertModule = "sudo modprobe uinput";
constexpr const char* kApplyRule = "sudo udevadm trigger /dev/uinput";
/// For a program that no package installed.
constexpr const char* kMakeRule =
    R"(echo 'KERNEL=="uinput", SUBSYSTEM=="misc", OPTIONS+="static_node=uinput", TAG+="uaccess"' | )"
    "sudo tee /etc/udev/rules.d/60-tarvik-uinput.rules && sudo udevadm control --reload && "
    "sudo udevadm trigger /dev/uinput";

bool IsMissing(int error) { return error == ENOENT || error == ENODEV || error == ENXIO; }
bool IsForbidden(int error) { return error == EACCES || error == EPERM; }

std::string WhyNoUinput(int error) {
  if (IsMissing(error)) return "The system has no /dev/uinput at the moment.";
  if (IsForbidden(error)) return "You may not open /dev/uinput yet.";
  return "/dev/uinput can't be used: " + std::generic_category().message(error) + ".";
}

std::string MendOf(const Facts& facts) {
  if (IsMissing(facts.uinputError)) return kInsertModule;
  if (IsForbidden(facts.uinputError)) return facts.hasRule ? kApplyRule : kMakeRule;
  return {};
}

}  // namespace

KeyOutputState WayBy(const Facts& facts) {
  KeyOutputState state;
  if (facts.uinputError == 0) {
    state.way = KeyWay::Uinput;
    return state;
  }
  state.why = WhyNoUinput(facts.uinputError);
  state.mend = MendOf(facts);
  if (facts.isWayland) {
    state.why.append(" Under Wayland there is no other way to send keys to other programs.");
  } else if (!facts.hasX) {
    state.why.append(" There is no X server either, which could take keys.");
  } else if (!facts.takesTestKeys) {
    state.why.append(" The X server takes no keys from programs.");
  } else {
    state.way = KeyWay::Xtest;
  }
  return state;
}

}  // namespace tarvik::keys
