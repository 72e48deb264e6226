// What the editor offers as long as nothing is in it: files to go on with, samples, and where to learn more.
#pragma once

#include "workbench/Workbench.h"

namespace tarvik {

/// What its buttons do, each of which is the editor's.
struct WelcomeCommands {
  std::function<void()> open;
  std::function<void()> macroWizard;
  std::function<void()> joystickWizard;
  std::function<void()> guide;
  std::function<void(int)> openRecent;     ///< a joystick file by its place in the list
  std::function<void(int)> openFavourite;  ///< the same
  std::function<void(const std::vector<std::string>&)> openPair;
};

class WelcomePage {
 public:
  static constexpr int kMost = 5;  ///< of each list
  static constexpr const char* kNothingYet = "None yet";

  /// Its controls are the form's.
  WelcomePage(Form& form, Workbench& bench, WelcomeCommands commands);

  Frame frame;
  CommandButton open;
  CommandButton macroWizard;
  CommandButton joystickWizard;
  CommandButton guide;
  ControlArray<CommandButton> recent;
  Label noRecent;
  ControlArray<CommandButton> favourites;
  Label noFavourites;
  ControlArray<CommandButton> samples;

 private:
  void Follow();
  void Show();
  void ShowLists();
  void FindSamples();
  void OpenSample(int index);
  /// A copy of a sample and what belongs to it, in a folder of the user's; what is there already stays.
  [[nodiscard]] std::string CopyOfSample(const std::string& name) const;

  Workbench& bench_;
  WelcomeCommands commands_;
  std::vector<std::string> sampleNames_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
