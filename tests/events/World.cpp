#include "events/World.h"

#include <QApplication>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "support/UserFiles.h"

namespace tarvik::events {
namespace {

namespace fs = std::filesystem;

/// The menu entries that lead to the tools.
constexpr const char* kWays[] = {"mnuEditFind",         "mnuEditReplace",     "mnuEditGoto",
                                 "mnuShowInsertWindow", "mnuComposerPlugin",  "mnuInsertRAW",
                                 "mnuInsertTitle",      "mnuInsertHeading",   "mnuInsertRemStatement",
                                 "mnuPreferencesEdit",  "mnuViewEditColours", "mnuAppsEdit",
                                 "mnuFavsEdit",         "mnuGamesEdit",       "mnuFavouritesAddCurrent",
                                 "mnuGamesAdd",         "mnuAppsImageViewer", "mnuSendToKeyTest",
                                 "mnuAppsTemplate",     "mnuAppsJoyAnalyser", "mnuhelpWizCreateMacroFile",
                                 "mnuWizSpeedy",        "mnuHelpContents",    "mnuhelpWizCreateJoyFile",
                                 "mnuHelpTips",         "mnuHelpAbout",       "mnuSendToJoystick"};

std::string BytesOf(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

// Dialogs and help.

Answer ChanceDialogs::Show(const MessageBox& box) {
  if (box.buttons == BoxButtons::Ok) return Answer::Ok;
  const Answer answer = chance_.OneOf(kUserAnswers);
  return answer == Answer::Cancel && box.buttons == BoxButtons::YesNo ? Answer::No : answer;
}

Outcome<std::string> ChanceDialogs::AskForFile(const FileRequest& request) {
  choices = {chance_.OneIn(3) ? "cancel" : chance_.OneOf(kUserPaths)};
  Outcome<std::string> chosen = ScriptedDialogs::AskForFile(request);
  requests.clear();
  return chosen;
}

Outcome<Colour> ChanceDialogs::AskForColour(Colour before) {
  choices = {chance_.OneIn(3) ? "cancel" : std::to_string(chance_.Below(0x1000000))};
  return ScriptedDialogs::AskForColour(before);
}

Outcome<FontChoice> ChanceDialogs::AskForFont(const FontChoice& before, bool fixedPitch) {
  choices = {chance_.OneIn(3) ? "cancel" : "Liberation Mono|" + std::to_string(6 + chance_.Below(30)) + "|1"};
  return ScriptedDialogs::AskForFont(before, fixedPitch);
}

Outcome<std::string> ChanceDialogs::AskForHostFolder(const std::string& title, const std::string& folder) {
  choices = {chance_.OneIn(2) ? "cancel" : "/"};
  Outcome<std::string> chosen = ScriptedDialogs::AskForHostFolder(title, folder);
  requests.clear();
  return chosen;
}

void ChanceDialogs::WaitWhile(const std::function<bool()>& open) {
  ++waits_;
  while (open()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  --waits_;
}

WindowHelp::WindowHelp(const std::string& text) {
  window_.Open(HelpFile(text));
  // Its dialog is the desktop's, and what is printed goes to the real disk.
  for (QAction* const action : window_.actions()) {
    if (action->shortcut() == QKeySequence(QKeySequence::Print)) action->setEnabled(false);
  }
}

void WindowHelp::ShowKeyword(const std::string& /*file*/, const std::string& keyword) {
  window_.ShowKeyword(keyword);
}

void WindowHelp::ShowContext(const std::string& /*file*/, int context) { window_.ShowContext(context); }

// The world.

World::World(Chance& chance, const std::string& data)
    : chance_(chance),
      dialogs_(chance),
      help_(BytesOf(fs::path(data) / "tarvik.hlp")),
      program_(chance.OneIn(2) ? "c:\\my\\a.b50" : "", {.dialogs = &dialogs_, .help = &help_}),
      screen_(program_.application, screen::Clock::Scripted) {
  PutFiles(data);
  program_.application.Start();
}

void World::PutFiles(const std::string& data) {
  const auto put = [this](const fs::path& from, const std::string& to) {
    for (const auto& entry : fs::directory_iterator(from)) {
      if (entry.is_regular_file())
        program_.files().Put(to + entry.path().filename().string(), BytesOf(entry.path()));
    }
  };
  put(data, "c:\\tarvik\\");
  put(fs::path(data) / "Templates", "c:\\tarvik\\Templates\\");
  PutUserFiles(program_.files());
  program_.files().Put(
      "c:\\tarvik\\tarvik.ini",
      std::string(kUserSettings) +
          "[Miscellaneous]\r\nUndoMax=12\r\nAutoSaveEnabled=1\r\nAutoSaveTime=1\r\nOpenSingleFileOnly=0\r\n"
          "[Favourites]\r\nFavArrayNum=2\r\nFavName1=One\r\nFavJFPath1=c:\\my\\a.b50\r\n"
          "FavMFPath1=c:\\my\\a.m50\r\nFavName2=Two\r\n"
          "[Games]\r\nGameArrayNum=1\r\nGameName1=Game\r\nGamePath1=c:\\game.exe\r\nGameDIRPath1=c:\\my\r\n"
          "[Apps]\r\nCustomAppName1=App\r\nCustomAppPath1=c:\\app.cpl\r\nCustomAppUse1=1\r\n");
}

std::size_t World::Ways() { return std::size(kWays); }
const char* World::NameOf(std::size_t way) { return kWays[way]; }

void World::Open(std::size_t way) {
  if (!application().editor().Visible) return;
  MenuItem& entry = application().editor().menus(kWays[way]);
  if (entry.Enabled && entry.Visible) entry.Click();
}

void World::Happen() {
  program_.outside.joystick.isThere = !chance_.OneIn(4);
  program_.outside.joystick.info = {static_cast<int>(chance_.Below(65536)), 32768, 32768, 32768,
                                    static_cast<unsigned>(chance_.Below(16))};
  program_.outside.programs.state = chance_.OneIn(2) ? ProgramState::Running : ProgramState::Ended;
  if (chance_.OneIn(8)) program_.outside.clipboard.PutFromOutside("BTN S2 Gear\r\n", "");
  std::vector<Timer*> running;
  for (Form* const form : application().Forms()) {
    for (Component* const child : form->Children()) {
      auto* const timer = dynamic_cast<Timer*>(child);
      if (timer && timer->Enabled && timer->Interval > 0) running.push_back(timer);
    }
  }
  if (!running.empty()) chance_.OneOf(running)->Elapsed();
}

}  // namespace tarvik::events
