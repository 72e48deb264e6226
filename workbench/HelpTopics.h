// The help topics that the program itself asks for, by the numbers that the help file gives them.
#pragma once

#include <string_view>
#include <vector>

#include "language/Rules.h"
#include "platform/Platform.h"

namespace tarvik {

namespace topic {
inline constexpr int kContents = 1000;
inline constexpr int kMacroLists = 1200;
inline constexpr int kSlashModifiers = 4020;
inline constexpr int kFindPages[] = {3110, 3120, 3130};
inline constexpr int kPimlet = 5210;
inline constexpr int kPreferencesPages[] = {5305, 5310, 5315, 5320, 5325, 5330};
inline constexpr int kDrives = 5335;
inline constexpr int kSticks = 5340;
inline constexpr int kFly = 7016;
inline constexpr int kComposerPages[] = {5355, 5360, 5365, 5370, 5375, 5380, 5385, 5390};
inline constexpr int kJoystickAnalyser = 7021;
inline constexpr int kTemplateEditor = 7030;
inline constexpr int kImageViewer = 7040;
inline constexpr int kRawCodes = 8170;
inline constexpr int kSpiking = 9410;
inline constexpr int kProblems = 9600;

/// What the help says of a rule; the topics of the rules come behind that of all problems, in their order.
[[nodiscard]] int Of(const model::Rule& rule);

/// All topics above.
[[nodiscard]] std::vector<int> All();
}  // namespace topic

/// The path of the help file.
[[nodiscard]] std::string HelpFilePath(const Platform& platform);
/// Opens the help at the topic.
void ShowHelp(const Platform& platform, int topic);

}  // namespace tarvik
