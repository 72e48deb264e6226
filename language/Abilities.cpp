#include "language/Abilities.h"

#include <algorithm>

#include "language/ComposerTables.h"
#include "language/Controllers.h"
#include "language/Statements.h"
#include "text/CodePage.h"

namespace tarvik::model {
namespace {

using tables::Picture;

unsigned DevicesOn(Picture picture) {
  switch (picture) {
    case Picture::Stick:
      return kNumberedSticks;
    case Picture::PlainStick:
      return kPlainStick;
    case Picture::Tqs:
      return kTqsThrottle;
    default:
      return kAnyWcs;
  }
}

/// Puts the rows together. One that several tables have gets the devices of each.
class AbilityTable {
 public:
  AbilityTable() {
    for (const tables::HardwareRow& row : tables::kHardware) AddHardware(row);
    for (const tables::WcsRow& row : tables::kWcsButtons) {
      Add(AbilityKind::Control, row.plain, kWcsBesidePlain);
      Add(AbilityKind::Control, row.numbered, kWcsBesideNumbered);
    }
    for (const std::string_view trigger : tables::kTriggers) {
      Add(AbilityKind::Control, trigger, kNumberedSticks);
    }
    // The lever against its back stop is a button, too.
    Add(AbilityKind::Control, "MT", kAnyThrottle);
    // The table knows the stick's axes for one picture only, and every stick has them.
    for (const tables::AxisRow& row : tables::kAxes) {
      Add(AbilityKind::Axis, row.token, row.token == "RDDR" ? kPedals : kSticks);
    }
    AddSlashes();
    AddStatements();
    std::ranges::sort(rows_, [](const Ability& one, const Ability& other) {
      return std::pair(one.kind, std::string_view(one.name)) <
             std::pair(other.kind, std::string_view(other.name));
    });
  }

  [[nodiscard]] const std::vector<Ability>& Rows() const { return rows_; }

 private:
  void Add(AbilityKind kind, std::string_view name, unsigned devices) {
    if (name.empty()) return;
    const auto same = std::ranges::find_if(
        rows_, [&](const Ability& each) { return each.kind == kind && each.name == UpperCase(name); });
    if (same == rows_.end()) {
      rows_.push_back({kind, UpperCase(name), devices});
    } else {
      same->devices |= devices;
    }
  }

  void AddHardware(const tables::HardwareRow& row) {
    const unsigned devices = DevicesOn(row.picture);
    if (row.array == "BTN") Add(AbilityKind::Control, row.caption, devices);
    if (row.array == "HAT") {
      const HatTokens hat = tarvik::TokensOf(row.index);
      for (const std::string& token : hat.positions) Add(AbilityKind::Control, token, devices);
      for (const std::string& token : hat.corners) Add(AbilityKind::Control, token, devices);
    }
    // The rotaries are labels, of which those of an axis lead to its statement.
    if (row.array != "ROTARY") return;
    const std::string_view word = tables::kRotaries[row.index].search;
    if (FindAxis(word) != nullptr && word != "RDDR") Add(AbilityKind::Axis, word, devices);
  }

  /// On an F-22 Pro the Composer has /F in the place of /A, and /Q.
  void AddSlashes() {
    for (int i = 0; i < static_cast<int>(std::size(tables::kSlashes)); ++i) {
      const unsigned devices = i == tables::kForceSlash    ? kSticks & ~kF22Stick
                               : i == tables::kIgnoreSlash ? kF22Stick
                                                           : kSticks;
      Add(AbilityKind::Slash, tables::kSlashes[i].caption.substr(1), devices);
    }
    Add(AbilityKind::Slash, tables::kFormatSlash.caption.substr(1), kF22Stick);
  }

  void AddStatements() {
    for (const std::string_view port : tables::kPorts) {
      Add(AbilityKind::Statement, port.substr(0, port.find(' ')), kF22Stick);
    }
    const std::string_view swap = tables::kRotaries[tables::kSwapTriggers].search;
    Add(AbilityKind::Statement, swap.substr(0, swap.find(' ')), kNumberedSticks);
    Add(AbilityKind::Statement, "F22RST", kF22Stick);
  }

  std::vector<Ability> rows_;
};

unsigned StickOf(const Hardware& hardware) {
  if (!hardware.joystick) return kSticks;
  if (HasExtras(*hardware.joystick)) return kF22Stick;
  return IsPlain(*hardware.joystick) ? kPlainStick : kFlcsStick;
}

unsigned ThrottleOf(const Hardware& hardware, unsigned stick) {
  const unsigned wcs = ((stick & kNumberedSticks) != 0 ? kWcsBesideNumbered : 0U) |
                       ((stick & kPlainStick) != 0 ? kWcsBesidePlain : 0U);
  if (!hardware.throttle) return kTqsThrottle | wcs;
  if (*hardware.throttle == kNoThrottle) return 0;
  return *hardware.throttle == kTqs ? kTqsThrottle : wcs;
}

struct DeviceWords {
  unsigned devices;
  std::string_view words;
};

// Those that are together come first.
constexpr DeviceWords kDeviceWords[] = {
    {kNumberedSticks, "the F-22 Pro and the FLCS"},
    {kFlcsStick | kPlainStick, "every stick but the F-22 Pro"},
    {kF22Stick, "the F-22 Pro"},
    {kFlcsStick, "the FLCS"},
    {kPlainStick, "the P FCS, the Top Gun and the FCS"},
    {kAnyThrottle, "a throttle"},
    {kTqsThrottle, "the TQS"},
    {kAnyWcs, "the WCS"},
    {kWcsBesideNumbered, "the WCS beside an F-22 Pro or FLCS"},
    {kWcsBesidePlain, "the WCS beside a P FCS, Top Gun or FCS"},
    {kPedals, "the pedals"},
};

}  // namespace

std::span<const Ability> AllAbilities() {
  static const AbilityTable kTable;
  return kTable.Rows();
}

Abilities::Abilities(const Hardware& hardware) : devices_(StickOf(hardware)) {
  devices_ |= ThrottleOf(hardware, devices_);
  if (hardware.rudders != kNoRudders) devices_ |= kPedals;
}

unsigned DevicesWith(AbilityKind kind, std::string_view name) {
  const std::span<const Ability> all = AllAbilities();
  const std::string capitals = UpperCase(name);
  const std::pair wanted(kind, std::string_view(capitals));
  const auto row = std::ranges::lower_bound(
      all, wanted, {}, [](const Ability& each) { return std::pair(each.kind, std::string_view(each.name)); });
  return row != all.end() && row->kind == kind && row->name == capitals ? row->devices : 0;
}

Abilities::Place Abilities::Of(AbilityKind kind, std::string_view name) const {
  const unsigned devices = DevicesWith(kind, name);
  if (devices == 0) return Place::Nowhere;
  return (devices & devices_) != 0 ? Place::Here : Place::Elsewhere;
}

std::string InWords(unsigned devices) {
  std::string words;
  for (const DeviceWords& row : kDeviceWords) {
    if ((devices & row.devices) != row.devices) continue;
    if (!words.empty()) words += " and ";
    words += row.words;
    devices &= ~row.devices;
  }
  return words;
}

}  // namespace tarvik::model
