// The program: the real services, the screen, and the forms between them.
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QScreen>
#include <QStyleFactory>
#include <algorithm>
#include <filesystem>
#include <iostream>

#include "app/Application.h"
#include "platform/DosBox.h"
#include "platform/HostDrives.h"
#include "platform/HostFiles.h"
#include "platform/HostJournals.h"
#include "platform/HostPrograms.h"
#include "platform/InstanceLock.h"
#include "platform/Process.h"
#include "platform/ProgramFolder.h"
#include "screen/Screen.h"
#include "screen/Toolkit.h"
#include "screen/services/DesktopSeat.h"
#include "screen/services/EndSignals.h"
#include "screen/services/KeysProcess.h"
#include "screen/services/Libraries.h"
#include "screen/services/LockKeys.h"
#include "screen/services/QtAlarm.h"
#include "screen/services/QtDesktop.h"
#include "screen/services/QtDialogs.h"
#include "screen/services/QtPress.h"
#include "screen/services/QtPrinter.h"
#include "screen/services/SdlJoystick.h"
#include "screen/services/SdlSticks.h"
#include "screen/widgets/Conversions.h"
#include "screen/widgets/Icons.h"
#include "screen/widgets/Picture.h"
#include "text/CodePage.h"
#include "workbench/Highlighter.h"

namespace {

namespace fs = std::filesystem;
using namespace tarvik;

fs::path Host(const QString& path) { return QFile::encodeName(path).toStdString(); }

/// A file that is there is passed on by its path on the drives, anything else as it is.
std::string CommandLine(const QStringList& arguments, Drives& drives) {
  std::error_code ignored;
  if (arguments.size() == 1) {
    const fs::path host = Host(arguments.constFirst());
    if (fs::exists(host, ignored)) return drives.FromHost(fs::absolute(host));
  }
  return FromUtf8(arguments.join(u' ').toStdString());
}

ScreenSize SizeOfScreen() {
  const QSize size = QGuiApplication::primaryScreen()->size();
  return {size.width(), size.height()};
}

screen::FileLook LookOf(const Settings& settings) {
  return {ColoursOf(settings), settings.BackgroundColour, settings.MacroBackgroundColour};
}

/// Where nothing can be kept the user learns of it, and goes on.
void TellIfNothingLasts(const ProgramFolder& folder) {
  if (folder.Lasts()) return;
  QMessageBox::warning(
      nullptr, QStringLiteral("Tarvik"),
      QStringLiteral("Tarvik can't write to its folder %1. Settings, backups and coloured copies "
                     "go to %2 this time, which does not last. Your files are not concerned.")
          .arg(QFile::decodeName(ProgramFolder::UsersOwn().c_str()),
               QFile::decodeName(folder.Path().c_str())));
}

/// Nothing is written to the program's folder before its lock is held: a second start leaves all as it is.
class FirstInFolder : public SingleInstance {
 public:
  FirstInFolder(const ProgramFolder& folder, const HostDrives& drives)
      : folder_(folder), drives_(drives), lock_(folder.Path() / "tarvik.lock") {}

  bool Acquire() override {
    if (!lock_.Acquire()) return false;
    folder_.Fill();
    drives_.MakeOwnDrive();
    return true;
  }

 private:
  const ProgramFolder& folder_;
  const HostDrives& drives_;
  InstanceLock lock_;
};

/// All that the program has from outside.
struct Services {
  explicit Services(const ProgramFolder& programFolder) : folder(programFolder) {}

  const ProgramFolder& folder;
  HostDrives driveFolders{folder.Path()};
  Drives& drives = driveFolders.Paths();
  HostFiles files{drives};
  HostJournals journals{HostJournals::PlacesOf(folder.Path())};
  screen::QtDialogs dialogs{drives};
  FirstInFolder lock{folder, driveFolders};
  screen::QtClipboard clipboard;
  screen::QtHelp help{files};
  screen::QtPrinter printer;
  screen::QtPress press{printer};
  screen::QtCalendar calendar;
  screen::QtDesktop desktop{drives};
  screen::SdlJoystick joystick;
  screen::SdlSticks sticks;
  screen::KeysProcess keys;
  screen::QtAlarm alarm;
  screen::DesktopSeat seat;
  screen::QtKeyboard keyboard;
  HostPrograms programs{drives};
  Platform platform{files,
                    dialogs,
                    lock,
                    clipboard,
                    help,
                    calendar,
                    printer,
                    desktop,
                    joystick,
                    sticks,
                    keys,
                    alarm,
                    seat,
                    keyboard,
                    programs,
                    driveFolders,
                    journals,
                    screen::Libraries,
                    SizeOfScreen(),
                    drives.FromHost(folder.Path()),
                    CommandLine(QApplication::arguments().mid(1), drives)};
};

/// For somebody who looks for a fault and starts the program with TARVIK_LOG=1.
Connection LogToStandardError(Log& log) {
  if (qEnvironmentVariable("TARVIK_LOG") != QStringLiteral("1")) return {};
  return log.Written.Connect([](const std::string& line) { std::cerr << ToUtf8(line) << std::endl; });
}

void NameProgram() {
  QApplication::setApplicationName(QStringLiteral("Tarvik"));
  QApplication::setDesktopFileName(QStringLiteral("tarvik"));
  QApplication::setQuitOnLastWindowClosed(false);
  screen::ChooseIconTheme();
  QApplication::setWindowIcon(screen::Icon("tarvik"));
}

/// Those of the files used last, the newest first, then the program's own with its samples.
std::vector<std::string> FoldersOfInterest(const Workbench& bench) {
  constexpr std::size_t kMost = 6;
  std::vector<std::string> folders;
  for (const RecentList* const list : {&bench.lists.JoystickFiles, &bench.lists.MacroFiles}) {
    for (const std::string& file : list->Names()) {
      const std::string folder = file.substr(0, file.rfind('\\') + 1);
      if (folders.size() < kMost && std::ranges::count(folders, folder) == 0) folders.push_back(folder);
    }
  }
  folders.push_back(bench.platform.folder);
  folders.push_back(bench.platform.folder + "\\samples");
  return folders;
}

/// Whether the user has something to go on with. A start that throws ends there and is recorded; what is on
/// show by then is used all the same.
bool IsOnShow(const Application& application) {
  const Form* const frame = application.FindForm("Mum");
  return frame && frame->Visible;
}

void TellWhyNothingIsOnShow(const Errors& errors) {
  QMessageBox::critical(
      nullptr, QStringLiteral("Tarvik"),
      QStringLiteral("Tarvik can't start: %1").arg(screen::ToScreen(errors.ErrorText.Get())));
}

}  // namespace

int main(int argc, char* argv[]) {
  if (const auto decoded = screen::RunAsDecoder(argc, argv)) return *decoded;
  IgnoreFileSizeSignal();
  screen::Toolkit toolkit(argc, argv);
  NameProgram();
  const ProgramFolder folder(Host(QApplication::applicationFilePath()), ProgramFolder::UsersOwn());
  TellIfNothingLasts(folder);
  DosBoxFolder::RemoveLeftOvers();
  Services services(folder);
  Application application(services.platform, services.press);
  const Connection logged = LogToStandardError(application.workbench.log);
  toolkit.failed = [&application](const Failure& failure) {
    application.workbench.errors.Record("TARVIK Event", failure);
  };
  services.dialogs.foldersOffered = [&application] { return FoldersOfInterest(application.workbench); };
  services.help.look = [&application] { return LookOf(application.workbench.settings); };
  screen::Screen screen(application, screen::Clock::Real);
  const Connection ended = application.HasEnded.Connect([] {
    QMetaObject::invokeMethod(
        qApp, [] { qApp->quit(); }, Qt::QueuedConnection);
  });
  const auto keepUnsaved = [&application] { application.workbench.journals.Write(); };
  const screen::EndSignals endSignals(keepUnsaved);
  QObject::connect(&toolkit, &QGuiApplication::commitDataRequest, &toolkit, keepUnsaved,
                   Qt::DirectConnection);
  const bool started = toolkit.Run([&application] { application.Start(); });
  if (application.Ended()) return 0;
  if (!started && !IsOnShow(application)) {
    TellWhyNothingIsOnShow(application.workbench.errors);
    return 1;
  }
  return QApplication::exec();
}
