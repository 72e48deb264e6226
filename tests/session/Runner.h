// Walks a session script over a whole program with a disk of its own, and tells each line that does not hold.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "app/Application.h"
#include "session/Driver.h"
#include "session/Script.h"
#include "support/ScriptedPlatform.h"
#include "support/ScriptedPress.h"

namespace tarvik::session {

using MakeDriver = std::function<std::unique_ptr<Driver>(Application&)>;

class Runner {
 public:
  /// `dataFolder` is copied into the program's folder on the session's disk.
  Runner(MakeDriver makeDriver, const std::string& dataFolder);
  ~Runner();

  /// The shapes of all lines that a session may have.
  static std::vector<std::string_view> Shapes();
  /// What reads wrong, one text a line, before anything of it runs.
  std::vector<std::string> Check(std::string_view script);
  /// What did not hold, one text a line; empty when the session passed.
  std::vector<std::string> Run(std::string_view script);

 private:
  using Command = void (Runner::*)(const Line&);
  /// A line that needs a start makes one where there was none; one that needs the program wants it to run
  /// still.
  enum class Needs { Nothing, Start, Program };
  struct Sentence {
    const char* shape;
    Command command;
    Needs needs = Needs::Nothing;
  };
  static const std::vector<Sentence>& Sentences();
  static const Sentence* SentenceOf(const Line& line);

  using Prepared = std::vector<const Line*>;

  void HoldAgainstShapes();
  bool Next();
  void TellWhatIsLeft();
  void Step(const Line& line);
  [[nodiscard]] bool IsBlocked(const Line& line, const Sentence& sentence) const;
  void Fail(const std::string& what);
  void Compare(const std::string& wanted, const std::string& found);

  // Before the start.
  void File(const Line& line);
  void Repeat(const Line& line);
  void Bytes(const Line& line);
  void Folder(const Line& line);
  void ReadOnly(const Line& line);
  void Unreadable(const Line& line);
  void Remove(const Line& line);
  void Ini(const Line& line);
  void DiskRoom(const Line& line);
  void SetPrinter(const Line& line);
  void SetJoystick(const Line& line);
  void SetJoystickAxes(const Line& line);
  void MoveJoystick(const Line& line);
  void PlugStick(const Line& line);
  void UnplugStick(const Line& line);
  void MoveStick(const Line& line);
  void SetKeys(const Line& line);
  void StopKeys(const Line& line);
  void BreakKeys(const Line& line);
  void TurnUser(const Line& line);
  void LoseUser(const Line& line);
  void SetLock(const Line& line);
  void SetProgram(const Line& line);
  void DarkenDesktop(const Line& line);
  void SetSystemInformation(const Line& line);
  void HostFolder(const Line& line);
  void LeaveOut(const Line& line);
  // The process.
  void Start(const Line& line);
  void StartProgram(const std::string& commandLine);
  void Close(const Line& line);
  void Killed(const Line& line);
  void Wait(const Line& line);
  // The user.
  void Click(const Line& line);
  void DoubleClick(const Line& line);
  void RightClick(const Line& line);
  void Point(const Line& line);
  void Focus(const Line& line);
  void Pick(const Line& line);
  void Type(const Line& line);
  void PressKey(const Line& line);
  void KeyDown(const Line& line);
  void KeyUp(const Line& line);
  void Resize(const Line& line);
  void Drag(const Line& line);
  void Mouse(const Line& line);
  void Set(const Line& line);
  void SetValue(const Line& line);
  void Call(const Line& line);
  void Choose(const Line& line);
  static void Hold(bool& hold, Prepared& held, const Line& line);
  void AnswerBox(const Line& line);
  void FillClipboard(const Line& line);
  // What is seen.
  void ExpectProperty(const Line& line);
  void ExpectPropertyOf(const Line& line);
  void ExpectValue(const Line& line);
  void ExpectBox(const Line& line);
  void ExpectDialog(const Line& line);
  void ExpectFile(const Line& line);
  void ExpectBytes(const Line& line);
  void ExpectSame(const Line& line);
  void ExpectClipboard(const Line& line);
  void ExpectHelp(const Line& line);
  void ExpectOpened(const Line& line);
  void ExpectPopUp(const Line& line);
  void ExpectPoint(const Line& line);
  void ExpectSent(const Line& line);
  void ExpectNothingSent(const Line& line);
  void ExpectLock(const Line& line);
  void ExpectRun(const Line& line);
  void ExpectFocus(const Line& line);
  void ExpectForm(const Line& line);
  void ExpectPrinted(const Line& line);
  void ExpectNoFile(const Line& line);
  void ExpectNoForm(const Line& line);
  void ExpectNoList(const Line& line);
  void ExpectNoBox(const Line& line);
  void ExpectNoDialog(const Line& line);
  void ExpectNoPrinting(const Line& line);
  void ExpectFolder(const Line& line);
  void ExpectIni(const Line& line);
  void ExpectColour(const Line& line);
  void ExpectColours(const Line& line);
  void ExpectEnded(const Line& line);
  void ExpectRunning(const Line& line);

  [[nodiscard]] int UntilAlarm() const;
  [[nodiscard]] const std::string& Word(const Line& line, std::size_t index);
  [[nodiscard]] int Number(const Line& line, std::size_t index);
  [[nodiscard]] std::string Wanted(const Line& line, std::size_t index);
  Component* Find(const std::string& path);
  Component* FindByCaption(const std::string& form, const std::string& caption);
  template <class T>
  T* FindAs(const std::string& path);
  /// A component's property by its path.
  struct Found {
    Component& component;
    PropertyBase& property;
  };
  Found FindProperty(const std::string& path);
  int ItemIndex(Component& control, const std::string& item);
  [[nodiscard]] std::string ColourLetters(const Pane& pane, std::size_t start, std::size_t length) const;

  MakeDriver makeDriver_;
  MemoryFiles files_;
  ScriptedPlatform outside_;
  ScriptedPress press_;
  std::unique_ptr<Platform> platform_;
  std::unique_ptr<Application> application_;
  std::unique_ptr<Driver> driver_;
  std::map<Timer*, int> elapsed_;  // milliseconds since a running timer last fired
  Connection formLoaded_;
  std::vector<Connection> poppedUp_;
  std::string popUp_;
  /// What [FileLocations] holds at a start where the settings file says nothing of it: an ordinary day.
  std::map<std::string, std::string> defaults_{{"FirstTimeUsed", "0"}, {"ShowTips", "0"}};
  std::vector<std::string> failures_;
  std::vector<Line> lines_;
  std::size_t nextLine_ = 0;
  int depth_ = 0;  // of lines inside the handlers of lines
  const Line* line_ = nullptr;
  /// The lines that prepared something for later, in their order.
  Prepared answered_;
  Prepared chosen_;
  Prepared heldBoxes_;
  Prepared heldDialogs_;
  Prepared programs_;
};

}  // namespace tarvik::session
