#include "workbench/HelpTopics.h"

namespace tarvik {

std::vector<int> topic::All() {
  std::vector<int> topics = {kContents,         kMacroLists,     kSlashModifiers, kPimlet,   kDrives,
                             kJoystickAnalyser, kTemplateEditor, kImageViewer,    kRawCodes, kSpiking};
  const auto add = [&topics](const auto& pages) {
    topics.insert(topics.end(), std::begin(pages), std::end(pages));
  };
  add(kFindPages);
  add(kPreferencesPages);
  add(kComposerPages);
  return topics;
}

std::string HelpFilePath(const Platform& platform) { return platform.folder + "\\tarvik.hlp"; }

void ShowHelp(const Platform& platform, int topic) {
  platform.help.ShowContext(HelpFilePath(platform), topic);
}

}  // namespace tarvik
