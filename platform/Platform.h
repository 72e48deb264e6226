// What the program needs from outside, handed in at construction. The real services live in screen/, scripted
// ones in tests/.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Alarm.h"
#include "platform/Files.h"
#include "platform/Journals.h"
#include "platform/Joystick.h"
#include "platform/KeyOutput.h"
#include "platform/Keyboard.h"
#include "platform/Outcome.h"
#include "platform/Printer.h"
#include "platform/Programs.h"
#include "platform/Seat.h"
#include "platform/Sticks.h"
#include "text/CodePage.h"
#include "text/Colour.h"

namespace tarvik {

enum class BoxIcon { None, Information, Question, Exclamation };
enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

/// A message box: all its texts stand here, word for word.
struct MessageBox {
  std::string title;
  std::string text;
  BoxIcon icon = BoxIcon::None;
  BoxButtons buttons = BoxButtons::Ok;
  std::optional<Answer> preset{};  ///< what the Enter key gives; the first button where nothing is said
};

enum class FileDialogKind { Open, Save };

/// What a file dialog is asked for. `filter` is "description|pattern;pattern|description|pattern".
struct FileRequest {
  FileDialogKind kind = FileDialogKind::Open;
  std::string title;
  std::string filter;
  std::string folder;
  std::string fileName;
  std::string defaultExtension;
};

/// A font as the settings have it; the size in points.
struct FontChoice {
  std::string name;
  int size = 0;
  bool bold = false;

  bool operator==(const FontChoice&) const = default;
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// Shows the box and waits for its answer. Closing the box answers Cancel where there is one, else No or
  /// Ok.
  virtual Answer Show(const MessageBox& box) = 0;
  /// The chosen path in the program's form, or failure 32755 when the user cancels.
  virtual Outcome<std::string> AskForFile(const FileRequest& request) = 0;
  /// A colour as 0x00BBGGRR, or failure 32755.
  virtual Outcome<Colour> AskForColour(Colour before) = 0;
  /// A font, of those of fixed pitch alone where that is asked for, or failure 32755.
  virtual Outcome<FontChoice> AskForFont(const FontChoice& before, bool fixedPitch) = 0;
  /// The same for a folder; `folder` is where the dialog begins.
  virtual Outcome<std::string> AskForFolder(const std::string& title, const std::string& folder) = 0;
  /// The same for a folder of the host, as `DriveFolders` has it.
  virtual Outcome<std::string> AskForHostFolder(const std::string& title, const std::string& folder) = 0;
  /// Lets the user go on working, one event after another, while `open` says so: what a modal form waits in.
  virtual void WaitWhile(const std::function<bool()>& open) = 0;
};

/// What the desktop's clipboard carries between programs: text in the code page with CR LF, and RTF.
class Clipboard {
 public:
  virtual ~Clipboard() = default;
  /// Replaces what is there; an empty part is left out, and with both empty nothing is there.
  virtual void Put(const std::string& text, const std::string& rtf) = 0;
  [[nodiscard]] virtual bool HasText() = 0;
  /// The text, empty when there is none.
  [[nodiscard]] virtual Converted Text() = 0;
  [[nodiscard]] virtual std::string Rtf() = 0;
  /// Called when another program changed what is there.
  std::function<void()> changed;
};

/// Other programs of the desktop.
class Desktop {
 public:
  virtual ~Desktop() = default;
  /// Opens the file in the program that the desktop has for it, and does not wait.
  virtual Outcome<> Open(const std::string& path) = 0;
  /// Starts the program with which the desktop tells about the machine; a failure where it has none.
  virtual Outcome<> ShowSystemInformation() = 0;
  /// Whether it shows light letters on dark.
  [[nodiscard]] virtual bool IsDark() const = 0;
};

/// The help window of the program.
class Help {
 public:
  virtual ~Help() = default;
  /// Opens the help file at the topic of a keyword, or of the keywords that begin with it.
  virtual void ShowKeyword(const std::string& file, const std::string& keyword) = 0;
  /// Opens the help file at the topic of a context number.
  virtual void ShowContext(const std::string& file, int context) = 0;
};

/// Held by the running program, so that a second start can tell.
class SingleInstance {
 public:
  virtual ~SingleInstance() = default;
  /// True when this process is now the one that runs; it stays so until the process ends.
  virtual bool Acquire() = 0;
};

/// Today's date as the user's own settings write it, in the code page, and the time.
class Calendar {
 public:
  virtual ~Calendar() = default;
  [[nodiscard]] virtual std::string ShortDate() const = 0;
  [[nodiscard]] virtual std::string LongDate() const = 0;
  /// The time, as 07:45:12.
  [[nodiscard]] virtual std::string TimeOfDay() const = 0;
  /// Date and time as names of files can hold them and sort by them: 2026-11-22 07.45.12
  [[nodiscard]] virtual std::string Stamp() const = 0;
};

/// The size of the screen in pixels.
struct ScreenSize {
  int width = 0;
  int height = 0;
};

/// A drive, and the host's folder that it stands for: UTF-8, and nothing but text to the program.
struct Drive {
  char letter = 'c';
  std::string folder;
  bool isThere = true;
};

/// Which folder of the host each drive letter stands for. A change is in force at once.
class DriveFolders {
 public:
  virtual ~DriveFolders() = default;
  /// The drives that have a folder, by their letters. Drive c is among them, and z, the host's root.
  [[nodiscard]] virtual std::vector<Drive> All() const = 0;
  /// Fails for a folder that is not there, and for z.
  virtual Outcome<> Set(char letter, const std::string& folder) = 0;
  /// Drive c goes back to the folder beside the executable; z stays.
  virtual void Remove(char letter) = 0;
  /// The path under which the program knows a file or folder of the host.
  virtual std::string FromHost(const std::string& path) = 0;
  /// The file or folder of the host that a path of the program means, there or not; empty where none can.
  [[nodiscard]] virtual std::string ToHost(const std::string& path) const = 0;
  /// The same. As long as the program runs, and the drive is what it is, the path means that file and no
  /// other one, also when it is gone.
  virtual std::string Hold(const std::string& path) = 0;
};

/// A library that the program runs with. The version is empty where the library does not tell it.
struct Library {
  std::string name;
  std::string version;

  bool operator==(const Library&) const = default;
};

/// Everything from outside in one hand.
struct Platform {
  Files& files;
  Dialogs& dialogs;
  SingleInstance& instance;
  Clipboard& clipboard;
  Help& help;
  Calendar& calendar;
  Printer& printer;
  Desktop& desktop;
  Joystick& joystick;
  Sticks& sticks;
  KeyOutput& keys;
  Alarm& alarm;
  Seat& seat;
  Keyboard& keyboard;
  Programs& programs;
  DriveFolders& drives;
  Journals& journals;
  std::function<std::vector<Library>()> libraries;  ///< one of them may be loaded for the answer
  ScreenSize screen;
  std::string folder;       ///< of the executable, as c:\tarvik with no separator at the end
  std::string commandLine;  ///< raw, as one string
};

}  // namespace tarvik
