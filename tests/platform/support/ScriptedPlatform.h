// Everything from outside, answered by a script: queues of answers for boxes and dialogs, a clipboard, and a
// record of what was asked.
#pragma once

#include <deque>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "platform/Platform.h"
#include "support/MemoryFiles.h"
#include "support/MemoryJournals.h"
#include "support/ScriptedPrinter.h"

namespace tarvik::session {

class ScriptedDialogs : public Dialogs {
 public:
  Answer Show(const MessageBox& box) override;
  Outcome<std::string> AskForFile(const FileRequest& request) override;
  /// The next choice as a number.
  Outcome<Colour> AskForColour(Colour before) override;
  /// The next choice as "name|size|bold", with 1 for a bold one.
  Outcome<FontChoice> AskForFont(const FontChoice& before, bool fixedPitch) override;
  Outcome<std::string> AskForFolder(const std::string& title, const std::string& folder) override {
    return AskForFile({FileDialogKind::Open, title, {}, folder, {}, {}});
  }
  Outcome<std::string> AskForHostFolder(const std::string& title, const std::string& folder) override;
  void WaitWhile(const std::function<bool()>& open) override;

  std::deque<Answer> answers;       ///< for the next boxes; OK where there is none, or No, or Cancel
  std::deque<std::string> choices;  ///< for the next dialogs; "cancel" cancels, and so does none at all
  std::deque<MessageBox> boxes;     ///< shown and not yet expected
  std::deque<FileRequest> requests;
  /// The next box, or file dialog, stays open until there is an answer, or a choice, for it.
  bool holdBox = false;
  bool holdDialog = false;
  bool fixedPitchOnly = false;  ///< the last font dialog offered no others
  /// Lets the user do one thing; false when there is nothing more to do.
  std::function<bool()> next;

 private:
  Outcome<std::string> NextChoice();
};

class ScriptedInstance : public SingleInstance {
 public:
  bool Acquire() override { return !std::exchange(held, true); }
  bool held = false;
};

class ScriptedClipboard : public Clipboard {
 public:
  void Put(const std::string& text, const std::string& rtf) override {
    text_ = text;
    rtf_ = rtf;
  }
  bool HasText() override { return !text_.empty() || !rtf_.empty(); }
  Converted Text() override { return {text_, lost}; }
  std::string Rtf() override { return rtf_; }

  std::size_t lost = 0;  ///< characters of the text that the code page lacks

  /// What another program does.
  void PutFromOutside(const std::string& text, const std::string& rtf) {
    Put(text, rtf);
    if (changed) changed();
  }

 private:
  std::string text_;
  std::string rtf_;
};

class ScriptedHelp : public Help {
 public:
  void ShowKeyword(const std::string& file, const std::string& keyword) override {
    shown.push_back(file + " " + keyword);
  }
  void ShowContext(const std::string& file, int context) override {
    shown.push_back(file + " " + std::to_string(context));
  }
  std::deque<std::string> shown;  ///< and not yet expected
};

class ScriptedDesktop : public Desktop {
 public:
  Outcome<> Open(const std::string& path) override {
    if (!opensFiles) return Failure{error::kFileNotFound, "File not found", 0};
    opened.push_back(path);
    return Done{};
  }
  Outcome<> ShowSystemInformation() override {
    if (!tellsAboutTheMachine) return Failure{error::kFileNotFound, "File not found", 0};
    opened.emplace_back("system information");
    return Done{};
  }
  [[nodiscard]] bool IsDark() const override { return isDark; }
  std::deque<std::string> opened;  ///< and not yet expected
  bool isDark = false;
  bool opensFiles = true;
  bool tellsAboutTheMachine = true;
};

class ScriptedJoystick : public Joystick {
 public:
  Outcome<JoyCaps> GetDevCaps() override {
    if (!isThere) return Failure{joystick::kNoDevice, "There is no joystick", 0};
    return caps;
  }
  Outcome<JoyInfo> GetPosEx() override {
    if (error != 0) return Failure{error, "The joystick does not answer", 0};
    return info;
  }

  bool isThere = false;
  JoyCaps caps{true, true};
  JoyInfo info{32768, 32768, 32768, 32768, 0};
  int error = 0;  ///< of reading; 0 for none
};

/// Sticks that a script plugs in and moves.
class ScriptedSticks : public Sticks {
 public:
  bool Start() override;
  void Stop() override { listens_ = false; }

  /// Plugs a stick in; its number is what it gets.
  int Plug(StickInfo info);
  void Unplug(int stick);
  /// Moves a part of it, whether somebody listens or not.
  void Move(int stick, StickChangeKind kind, int number, int value);
  /// The number of the stick of that name, or 0.
  [[nodiscard]] int Named(const std::string& name) const;
  [[nodiscard]] bool IsListening() const { return listens_; }

 private:
  struct Stick {
    StickInfo info;
    std::map<std::pair<StickChangeKind, int>, int> values;
  };

  void Tell(const Stick& stick);

  std::vector<Stick> there_;
  int last_ = -1;  // so that the first is 0, as the real one is
  bool listens_ = false;
};

/// Keys that are sent are kept.
class ScriptedKeys : public KeyOutput {
 public:
  void Start() override {
    isOn_ = true;
    answered(state);
  }
  void Stop() override {
    isOn_ = false;
    down.clear();
  }
  void Send(std::uint16_t position, bool goesDown) override;
  /// The user presses the hot key, or keys can be sent no longer.
  void PressHotKey();
  void Break(const std::string& why);
  [[nodiscard]] bool IsOn() const { return isOn_; }

  KeyOutputState state{KeyWay::Uinput, "", "", true};
  std::deque<std::pair<std::uint16_t, bool>> sent;  ///< and not yet expected
  std::set<std::uint16_t> down;

 private:
  bool isOn_ = false;
};

/// Time passes when somebody lets it.
class ScriptedAlarm : public Alarm {
 public:
  [[nodiscard]] Time Now() const override { return now_; }
  void RingAt(Time time) override { due = time; }
  void Cancel() override { due.reset(); }
  /// Lets time pass, and rings when it is due.
  void Pass(Time time);

  std::optional<Time> due;

 private:
  Time now_ = {};
};

class ScriptedSeat : public Seat {
 public:
  void Watch() override { isWatched = true; }
  void Leave() override { isWatched = false; }
  [[nodiscard]] bool IsInProgram() const override { return isInProgram_; }
  /// The user goes to another program, or comes back.
  void Turn(bool inProgram);
  /// Tells that the user leaves the machine.
  void LeaveMachine(const std::string& why);

  bool isWatched = false;

 private:
  bool isInProgram_ = true;
};

class ScriptedKeyboard : public Keyboard {
 public:
  std::optional<int> GetKeyState(int code) override {
    const auto found = locks.find(code);
    return found == locks.end() ? std::nullopt : std::optional(found->second);
  }
  void TurnOff(int code) override { locks[code] = 0; }

  std::map<int, int> locks{{kCapsLock, 0}, {kNumLock, 0}};  ///< what is not there the keyboard does not tell
};

/// A program that was started, and where.
struct ProgramStart {
  std::string commandLine;
  std::string folder;  ///< the current one, as "c:\tm"
  WindowStyle style = WindowStyle::Normal;
  bool waited = false;
};

/// Programs that end at once, unless the script says otherwise.
class ScriptedPrograms : public Programs {
 public:
  Outcome<> Start(const std::string& commandLine, WindowStyle style) override;
  Outcome<std::unique_ptr<RunningProgram>> StartToWait(const std::string& commandLine,
                                                       WindowStyle style) override;

  const MemoryFiles* files = nullptr;  ///< whose current folder they start in
  std::deque<ProgramStart> started;    ///< and not yet expected
  /// Of the program that is waited for, or of the next one.
  ProgramState state = ProgramState::Ended;
  int fails = 0;  ///< the error number of the next start, or 0
  int alive = 0;  ///< programs that are waited for

 private:
  Outcome<> Record(const ProgramStart& start);
};

/// A host that has the folders it is told of. A drive that gets one is there, and empty.
class ScriptedDrives : public DriveFolders {
 public:
  [[nodiscard]] std::vector<Drive> All() const override;
  Outcome<> Set(char letter, const std::string& folder) override;
  void Remove(char letter) override;
  std::string FromHost(const std::string& path) override;
  [[nodiscard]] std::string ToHost(const std::string& path) const override;
  /// No two names on this host differ in case alone.
  std::string Hold(const std::string& path) override { return ToHost(path); }

  MemoryFiles* files = nullptr;  ///< whose drives they are
  std::set<std::string> there{"/", kOwnFolder};

 private:
  static constexpr const char* kOwnFolder = "/opt/tarvik/drive_c";

  void Give(char letter, const std::string& folder);

  std::map<char, std::string> folders_{{'c', kOwnFolder}, {'z', "/"}};
};

/// What a process has instead of the scripted ones; they are good enough where nothing is said.
struct Instead {
  Dialogs* dialogs = nullptr;
  SingleInstance* instance = nullptr;
  Help* help = nullptr;
  Printer* printer = nullptr;
  Programs* programs = nullptr;
  Journals* journals = nullptr;
  Sticks* sticks = nullptr;
  KeyOutput* keys = nullptr;
  Alarm* alarm = nullptr;
};

/// All of it.
struct ScriptedPlatform {
  ScriptedDialogs dialogs;
  ScriptedInstance instance;
  ScriptedClipboard clipboard;
  ScriptedHelp help;
  FixedCalendar calendar;
  ScriptedPrinter printer;
  ScriptedDesktop desktop;
  ScriptedJoystick joystick;
  ScriptedSticks sticks;
  ScriptedKeys keys;
  ScriptedAlarm alarm;
  ScriptedSeat seat;
  ScriptedKeyboard keyboard;
  ScriptedPrograms programs;
  ScriptedDrives drives;
  MemoryJournals journals;

  /// A process on this disk, beside any other.
  [[nodiscard]] Platform Process(Files& files, std::string commandLine = "", const Instead& instead = {}) {
    drives.files = dynamic_cast<MemoryFiles*>(&files);
    programs.files = drives.files;
    const auto given = [](auto* other, auto& own) -> auto& { return other ? *other : own; };
    return {files,
            given(instead.dialogs, static_cast<Dialogs&>(dialogs)),
            given(instead.instance, static_cast<SingleInstance&>(instance)),
            clipboard,
            given(instead.help, static_cast<Help&>(help)),
            calendar,
            given(instead.printer, static_cast<Printer&>(printer)),
            desktop,
            joystick,
            given(instead.sticks, static_cast<Sticks&>(sticks)),
            given(instead.keys, static_cast<KeyOutput&>(keys)),
            given(instead.alarm, static_cast<Alarm&>(alarm)),
            seat,
            keyboard,
            given(instead.programs, static_cast<Programs&>(programs)),
            drives,
            given(instead.journals, static_cast<Journals&>(journals)),
            [] {
              return std::vector<Library>{{"Toolkit", "6.4.2"}, {"Templates", ""}};
            },
            {1920, 1440},
            "c:\\tarvik",
            std::move(commandLine)};
  }
};

}  // namespace tarvik::session
