// The runner: the world before the start, and the process.
#include <algorithm>
#include <chrono>
#include <limits>

#include "app/Editor.h"
#include "session/RunnerParts.h"
#include "text/CodePage.h"

namespace tarvik::session {

// Before the start.

void Runner::File(const Line& line) { files_.Put(Word(line, 1), FileContent(line)); }

/// repeat PATH COUNT [open]: the indented lines that many times over, each % in them the number of the time;
/// where the file is open all in one line.
void Runner::Repeat(const Line& line) {
  const bool open = line.words.back() == "open";
  std::string content;
  for (int time = 1; time <= Number(line, 2); ++time) {
    for (const std::string& text : line.block) {
      for (const char c : text) content += c == '%' ? TextOf(time) : std::string(1, c);
      if (!open) content += "\r\n";
    }
  }
  files_.Put(Word(line, 1), content);
}

void Runner::Bytes(const Line& line) { files_.Put(Word(line, 1), FromHex(line.words, 2)); }
void Runner::Folder(const Line& line) { files_.PutFolder(Word(line, 1)); }
void Runner::ReadOnly(const Line& line) { files_.SetReadOnly(Word(line, 1)); }
void Runner::Unreadable(const Line& line) { files_.SetUnreadable(Word(line, 1)); }
void Runner::Remove(const Line& line) { files_.Remove(Word(line, 1)); }

void Runner::Ini(const Line& line) {
  ProfileFile profile(files_, std::string(kFolder) + "\\tarvik.ini");
  if (!profile.Write(Word(line, 1), Word(line, 2), Word(line, 3)))
    throw Stop{"the settings file can't be written"};
}

/// without FirstTimeUsed|ShowTips: the settings file says nothing of it.
void Runner::LeaveOut(const Line& line) { defaults_.erase(Word(line, 1)); }

void Runner::DiskRoom(const Line& line) {
  if (Word(line, 1) == "enough") return files_.StopFailing();
  files_.FailAfter(static_cast<std::size_t>(std::stoul(Word(line, 1))));
}

/// The choice in the printer's set-up is a name, "cancel" or "fails".
void Runner::SetPrinter(const Line& line) {
  const std::string& what = Word(line, 1);
  const auto number = [&] { return std::stoul(Word(line, 2)); };
  if (what == "none") {
    outside_.printer.callsLeft = 0;
  } else if (what == "gone") {
    outside_.printer.callsLeft = number();
  } else if (what == "preview") {
    outside_.printer.printsFromPreview = Word(line, 2) == "printed";
  } else if (what == "lines") {
    outside_.printer.linesPerPage = number();
  } else {
    outside_.printer.choice = Word(line, 2);
  }
}

/// A stick that is named in any way but "none" is there.
void Runner::SetJoystick(const Line& line) {
  ScriptedJoystick& stick = outside_.joystick;
  const std::string& what = Word(line, 1);
  stick.isThere = what != "none";
  if (what == "unplugged") stick.error = joystick::kUnplugged;
  if (what == "plugged") stick.error = 0;
}

/// What it has beside x and y.
void Runner::SetJoystickAxes(const Line& line) {
  const std::string& axes = Word(line, 2);
  outside_.joystick.isThere = true;
  outside_.joystick.caps = {axes.find('z') != std::string::npos, axes == "r" || axes == "zr"};
}

/// Where its axes are, which buttons are down as a mask, and what reading it gives.
void Runner::MoveJoystick(const Line& line) {
  ScriptedJoystick& stick = outside_.joystick;
  stick.isThere = true;
  const std::map<std::string, std::function<void(int)>> parts = {
      {"error", [&](int number) { stick.error = number; }},
      {"x", [&](int number) { stick.info.x = number; }},
      {"y", [&](int number) { stick.info.y = number; }},
      {"z", [&](int number) { stick.info.z = number; }},
      {"r", [&](int number) { stick.info.r = number; }},
      {"buttons", [&](int mask) { stick.info.buttons = static_cast<unsigned>(mask); }},
  };
  for (std::size_t i = 1; i + 1 < line.words.size(); i += 2) parts.at(line.words[i])(Number(line, i + 1));
}

/// stick plug NAME AXES BUTTONS HATS
void Runner::PlugStick(const Line& line) {
  StickInfo stick;
  stick.name = ToUtf8(Word(line, 2));
  stick.guid = stick.name;
  stick.path = "port of " + stick.name;
  stick.axes = Number(line, 3);
  stick.buttons = Number(line, 4);
  stick.hats = Number(line, 5);
  outside_.sticks.Plug(stick);
}

void Runner::UnplugStick(const Line& line) {
  outside_.sticks.Unplug(outside_.sticks.Named(ToUtf8(Word(line, 2))));
}

/// stick button|hat|axis NAME NUMBER PLACE: the number counts from 1, the place of an axis is per cent.
void Runner::MoveStick(const Line& line) {
  constexpr int kPerCent = 100;
  constexpr int kWay = 65535;
  const std::map<std::string, int> places = {{"up", 1}, {"right", 2}, {"down", 4}, {"left", 8}};
  const std::string& part = Word(line, 1);
  const int stick = outside_.sticks.Named(ToUtf8(Word(line, 2)));
  if (stick < 0) throw Stop{"no such stick is plugged in"};
  const int number = Number(line, 3) - 1;
  if (part == "button") {
    outside_.sticks.Move(stick, StickChangeKind::Button, number, Word(line, 4) == "down" ? 1 : 0);
  } else if (part == "hat") {
    const auto place = places.find(Word(line, 4));
    outside_.sticks.Move(stick, StickChangeKind::Hat, number, place == places.end() ? 0 : place->second);
  } else {
    outside_.sticks.Move(stick, StickChangeKind::Axis, number,
                         Number(line, 4) * kWay / kPerCent - kWay / 2 - 1);
  }
}

/// keys uinput|xtest|none [TEXT [TEXT]]: how keys can be sent, why not better, and what mends that.
void Runner::SetKeys(const Line& line) {
  const std::map<std::string, KeyWay> ways = {
      {"uinput", KeyWay::Uinput}, {"xtest", KeyWay::Xtest}, {"none", KeyWay::None}};
  const auto text = [&](std::size_t index) {
    return index < line.words.size() ? line.words[index] : std::string();
  };
  const KeyWay way = ways.at(Word(line, 1));
  outside_.keys.state = {way, text(2), text(3), way != KeyWay::None};
}

/// keys stop: Ctrl+Alt+End, in whatever program.
void Runner::StopKeys(const Line&) { outside_.keys.PressHotKey(); }

/// keys break TEXT
void Runner::BreakKeys(const Line& line) { outside_.keys.Break(Word(line, 2)); }

/// user leaves|returns, user gone TEXT
void Runner::TurnUser(const Line& line) { outside_.seat.Turn(Word(line, 1) == "returns"); }
void Runner::LoseUser(const Line& line) { outside_.seat.LeaveMachine(Word(line, 2)); }

/// lock caps|num NUMBER|unknown
void Runner::SetLock(const Line& line) {
  const int code = Word(line, 1) == "caps" ? kCapsLock : kNumLock;
  outside_.keyboard.locks.erase(code);
  if (Word(line, 2) != "unknown") outside_.keyboard.locks[code] = Number(line, 2);
}

/// program runs: the next one that is waited for does not end by itself; ends|abandoned: what becomes of it;
/// fails NUMBER: the next one does not start.
void Runner::SetProgram(const Line& line) {
  const std::map<std::string, ProgramState> states = {
      {"runs", ProgramState::Running}, {"ends", ProgramState::Ended}, {"abandoned", ProgramState::Abandoned}};
  ScriptedPrograms& programs = outside_.programs;
  programs_.push_back(&line);
  const auto state = states.find(Word(line, 1));
  if (state != states.end()) {
    programs.state = state->second;
  } else {
    programs.fails = Number(line, 2);
  }
}

/// desktop dark
void Runner::DarkenDesktop(const Line&) { outside_.desktop.isDark = true; }

/// sysinfo none
void Runner::SetSystemInformation(const Line& line) {
  outside_.desktop.tellsAboutTheMachine = Word(line, 1) != "none";
}

/// hostfolder PATH: a folder of the host, which a drive can stand for
void Runner::HostFolder(const Line& line) { outside_.drives.there.insert(ToUtf8(Word(line, 1))); }

// The process.

void Runner::Start(const Line& line) {
  const std::string commandLine = line.words.size() > 1 ? line.words[1] : "";
  if (application_) {
    // A second process beside the first.
    Platform second = outside_.Process(files_, commandLine);
    Application(second, press_).Start();
    return;
  }
  StartProgram(commandLine);
}

/// The settings file says what the runner has for it, unless it says something of its own.
void Runner::StartProgram(const std::string& commandLine) {
  ProfileFile profile(files_, std::string(kFolder) + "\\tarvik.ini");
  for (const auto& [key, value] : defaults_) {
    if (profile.GetString("FileLocations", key, "", 2).empty())
      Ignore(profile.Write("FileLocations", key, value));
  }
  platform_ = std::make_unique<Platform>(outside_.Process(files_, commandLine));
  application_ = std::make_unique<Application>(*platform_, press_);
  driver_ = makeDriver_(*application_);
  formLoaded_ = application_->Loaded.Connect([this](Form& form) {
    poppedUp_.push_back(form.PopUp.Connect([this](std::string_view name) { popUp_ = name; }));
  });
  application_->Start();
}

void Runner::Close(const Line& line) { driver_->Close(*FindAs<Form>(Word(line, 1))); }

/// Nothing can die in the middle of one of its own handlers, which go on when this returns.
void Runner::Killed(const Line&) {
  if (depth_ > 1) throw Stop{"it can't be killed while a modal form, a box or a dialog is open"};
  elapsed_.clear();
  driver_.reset();
  application_.reset();
  outside_.instance.held = false;
}

/// In milliseconds; more than anybody waits where none is set.
int Runner::UntilAlarm() const {
  if (!outside_.alarm.due) return std::numeric_limits<int>::max();
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(*outside_.alarm.due - outside_.alarm.Now());
  return static_cast<int>(std::max(left.count(), std::chrono::milliseconds::rep{0}));
}

void Runner::Wait(const Line& line) {
  const std::string& time = Word(line, 1);
  int left = std::stoi(time) * (time.ends_with("ms") ? 1 : 1000);
  while (application_) {
    std::vector<Timer*> running;
    int next = left;
    for (const Form* form : application_->Forms()) {
      for (Component* child : form->Children()) {
        auto* timer = dynamic_cast<Timer*>(child);
        if (!timer || !timer->Enabled || timer->Interval <= 0) continue;
        running.push_back(timer);
        next = std::min(next, timer->Interval - elapsed_[timer]);
      }
    }
    std::erase_if(elapsed_, [&](const auto& each) {
      return std::find(running.begin(), running.end(), each.first) == running.end();
    });
    next = std::min(next, UntilAlarm());
    left -= next;
    outside_.alarm.Pass(std::chrono::milliseconds(next));
    for (Timer* timer : running) elapsed_[timer] += next;
    for (Timer* timer : running) {
      if (elapsed_[timer] < timer->Interval) continue;
      elapsed_[timer] = 0;
      timer->Elapsed();
    }
    if (left == 0) return;
  }
}

}  // namespace tarvik::session
