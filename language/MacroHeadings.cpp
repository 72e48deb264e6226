#include "language/MacroHeadings.h"

namespace tarvik {
namespace {

constexpr const char* kHeadings[] = {
    "Game control",
    "Communications",
    "Avionics",
    "Aircraft Control",
    "Head Up Display",
    "Cockpit Views",
    "External views",
    "Smart Views",
    "Options",
    "Mission Planning",
    "Multiplayer",
    "Movement",
    "Weapons",
    "Navigation",
    "Engines",
    "Autopilot",
    "Damage",
    "ASE Controls",
    "IHADS",
    "TADS",
    "MFDs",
    "Targeting",
    "FCR",
    "Systems",
    "Virtual cockpit",
    "Throttle",
    "Flight controls",
    "Combat controls",
    "Lantirn",
    "Countermeasures",
    "Engagement",
    "Formation",
    "Refuel",
    "Airfield",
    "AWACS",
    "Wingmen",
    "Defence",
    "Cameras",
    "Display",
    "Modes",
    "Nozzles",
    "Panning controls",
    "Steering",
    "Sonar",
};

constexpr std::size_t kIndent = 10;
constexpr std::size_t kOverhang = 20;

}  // namespace

std::span<const char* const> MacroHeadings() { return kHeadings; }

std::vector<std::string> HeadingBlock(const std::string& text) {
  const std::string rule = "Rem " + std::string(text.size() + kOverhang, '-');
  return {rule, "Rem " + std::string(kIndent, ' ') + text, rule};
}

}  // namespace tarvik
