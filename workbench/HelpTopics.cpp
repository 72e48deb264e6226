#include "workbench/HelpTopics.h"

namespace tarvik {

int topic::Of(const model::Rule& rule) {
  return kProblems + 1 + static_cast<int>(&rule - model::AllRules().data());
}

std::vector<int> topic::All() {
  std::vector<int> topics = {kContents, kMacroLists,       kSlashModifiers, kPimlet,
                             kDrives,   kJoystickAnalyser, kTemplateEditor, kImageViewer,
                             kRawCodes, kSpiking,          kProblems,       kSticks};
  const auto add = [&topics](const auto& pages) {
    topics.insert(topics.end(), std::begin(pages), std::end(pages));
  };
  add(kFindPages);
  add(kPreferencesPages);
  add(kComposerPages);
  for (const model::Rule& rule : model::AllRules()) topics.push_back(Of(rule));
  return topics;
}

std::string HelpFilePath(const Platform& platform) { return platform.folder + "\\tarvik.hlp"; }

void ShowHelp(const Platform& platform, int topic) {
  platform.help.ShowContext(HelpFilePath(platform), topic);
}

}  // namespace tarvik
