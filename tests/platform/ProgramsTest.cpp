#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <thread>

#include "platform/DosBox.h"
#include "platform/HostPrograms.h"
#include "support/PlatformPrinters.h"
#include "support/TemporaryFolder.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

std::string ContentOf(const fs::path& path) { return TemporaryFolder::Content(path); }

template <class Condition>
bool Within(std::chrono::seconds limit, Condition condition) {
  const auto end = std::chrono::steady_clock::now() + limit;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(5ms);
  }
  return true;
}

/// The number that a program wrote into the file, once it is there whole.
int NumberIn(const fs::path& path) {
  Within(20s, [&] { return ContentOf(path).ends_with('\n'); });
  return std::atoi(ContentOf(path).c_str());
}

/// Whether the process is there, and not only its entry in the system's list.
bool Lives(int id) {
  const std::string state = ContentOf("/proc/" + std::to_string(id) + "/stat");
  return !state.empty() && state.substr(state.rfind(')') + 2, 1) != "Z";
}

bool Goes(int id) {
  return Within(20s, [id] { return !Lives(id); });
}

/// Whether a process was started with the folder in its command line.
bool IsInUse(const fs::path& folder) {
  for (const auto& process : fs::directory_iterator("/proc")) {
    const std::string line = ContentOf(process.path() / "cmdline");
    if (line.find(folder.string()) != std::string::npos) return true;
  }
  return false;
}

/// Sets a variable of the environment for as long as it lives.
class Environment {
 public:
  Environment(const char* name, const std::string& value) : name_(name) {
    if (const char* const old = ::getenv(name)) before_ = old;
    ::setenv(name, value.c_str(), 1);
  }
  ~Environment() { before_ ? ::setenv(name_, before_->c_str(), 1) : ::unsetenv(name_); }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

 private:
  const char* name_;
  std::optional<std::string> before_;
};

class ProgramsTest : public testing::Test {
 protected:
  ProgramsTest() {
    fs::create_directories(c_ / "tm" / "f22");
    fs::create_directories(temporary_);
  }

  void Put(const fs::path& path, const std::string& content, bool runs = true) {
    folder_.Put(path.lexically_relative(home_).string(), content);
    if (runs) fs::permissions(path, fs::perms::owner_all);
  }
  /// A script that writes how many arguments it got, the first one, and where it was, and then does more.
  void PutScript(const fs::path& path, const std::string& more = "") {
    Put(path, "#!/bin/sh\nprintf '%s|%s|%s' \"$#\" \"$1\" \"$PWD\" > " + out_.string() + "\n" + more + "\n");
  }

  /// What it was in the end, or Running.
  static ProgramState Wait(RunningProgram& program, std::chrono::seconds limit = 20s) {
    ProgramState state = ProgramState::Running;
    Within(limit, [&] { return (state = program.State()) != ProgramState::Running; });
    return state;
  }
  ProgramState RunToItsEnd(const std::string& commandLine) {
    const auto started = programs.StartToWait(commandLine, WindowStyle::Normal);
    EXPECT_TRUE(started) << commandLine << ": " << started.failure().text;
    return started ? Wait(**started) : ProgramState::Abandoned;
  }
  /// Starts the program in a process that is killed once the program has written a line to the file.
  void KillWhileItRuns(const std::string& commandLine, const fs::path& line) {
    const pid_t other = ::fork();
    if (other == 0) {
      const auto started = programs.StartToWait(commandLine, WindowStyle::Normal);
      NumberIn(line);
      ::kill(::getpid(), SIGKILL);
    }
    ::waitpid(other, nullptr, 0);
  }
  int FailureOf(const std::string& commandLine) {
    const auto started = programs.StartToWait(commandLine, WindowStyle::Normal);
    const auto detached = programs.Start(commandLine, WindowStyle::Normal);
    EXPECT_EQ(started.failure().number, detached.failure().number);
    return started ? 0 : started.failure().number;
  }

 private:
  const TemporaryFolder folder_;

 protected:
  const fs::path home_ = folder_.path();
  const fs::path c_ = home_ / "drive c";
  const fs::path out_ = home_ / "out.txt";
  const fs::path temporary_ = home_ / "temporary";
  Drives drives{{{'c', c_.string()}, {'d', (home_ / "missing").string()}}};
  HostPrograms programs{drives};
};

// Native programs.

TEST_F(ProgramsTest, AScriptRunsInTheCurrentFolderAndEnds) {
  PutScript(c_ / "load.sh", "exit 5");
  ASSERT_TRUE(drives.ChangeFolder("c:\\tm\\f22"));
  EXPECT_EQ(RunToItsEnd("c:\\load.sh"), ProgramState::Ended);
  EXPECT_EQ(ContentOf(out_), "0||" + (c_ / "tm" / "f22").string());
}

TEST_F(ProgramsTest, WhatFollowsTheProgramIsHandedOverAsItStands) {
  PutScript(c_ / "load.sh");
  for (const std::string rest : {"c:\\tm\\a.b50 Q", " a  b ", "\"a\" 'b' \\", "%PATH% %1 100%", "a;b&c|d>e<f",
                                 "$(touch x) `touch x` $HOME *", "a\nb\r\n", "--", "-x --help", "!!#~"}) {
    EXPECT_EQ(RunToItsEnd("c:\\load.sh " + rest), ProgramState::Ended);
    EXPECT_EQ(ContentOf(out_), "1|" + rest + "|" + c_.string());
  }
  EXPECT_FALSE(fs::exists(c_ / "x"));
}

TEST_F(ProgramsTest, LettersOfTheCodePageAreHandedOverAsTheHostWritesThem) {
  PutScript(c_ / "load.sh");
  RunToItsEnd("c:\\load.sh \xE4.b50");
  EXPECT_THAT(ContentOf(out_), HasSubstr("|\xC3\xA4.b50|"));
}

TEST_F(ProgramsTest, TheFirstWordThatIsAFileIsTheProgram) {
  PutScript(c_ / "a");
  PutScript(c_ / "a b", "echo b >> " + out_.string());
  RunToItsEnd("c:\\a b c");
  EXPECT_THAT(ContentOf(out_), StartsWith("1|b c|"));
}

TEST_F(ProgramsTest, OtherwiseTheLongestPartThatIsAFileIsTheProgram) {
  fs::create_directories(c_ / "My  Programs");
  PutScript(c_ / "My  Programs" / "the loader");
  PutScript(c_ / "My  Programs" / "the loader x", "echo x >> " + out_.string());
  RunToItsEnd("c:\\my  programs\\the loader x  y z");
  EXPECT_THAT(ContentOf(out_), testing::AllOf(StartsWith("1| y z|"), EndsWith("x\n")));
  RunToItsEnd("c:\\my  programs\\the loader");
  EXPECT_THAT(ContentOf(out_), StartsWith("0||"));
}

TEST_F(ProgramsTest, QuotationMarksHoldAProgramTogether) {
  PutScript(c_ / "the loader");
  RunToItsEnd("\"c:\\the loader\" \"a b\"");
  EXPECT_THAT(ContentOf(out_), StartsWith("1|\"a b\"|"));
  EXPECT_EQ(FailureOf("\"c:\\the loader"), error::kFileNotFound);
}

TEST_F(ProgramsTest, WhatCannotBeStartedIsAFailure) {
  Put(c_ / "text.exe", "Just a text.");
  Put(c_ / "empty.com", "");
  Put(c_ / "locked", "#!/bin/sh\n", false);
  Put(c_ / "lost", "#!/no/such/interpreter\n");
  EXPECT_EQ(FailureOf(""), error::kFileNotFound);
  EXPECT_EQ(FailureOf("   "), error::kFileNotFound);
  EXPECT_EQ(FailureOf("c:\\none.exe c:\\tm\\a.b50"), error::kFileNotFound);
  EXPECT_EQ(FailureOf("c:\\tm"), error::kFileNotFound) << "a folder";
  EXPECT_EQ(FailureOf("d:\\tm\\load.exe"), error::kFileNotFound) << "a drive whose folder is missing";
  EXPECT_EQ(FailureOf("c:\\text.exe"), error::kInvalidCall);
  EXPECT_EQ(FailureOf("c:\\empty.com"), error::kInvalidCall);
  EXPECT_EQ(FailureOf("c:\\locked"), error::kPathAccess);
  EXPECT_EQ(FailureOf("c:\\lost"), error::kFileNotFound);
}

TEST_F(ProgramsTest, ACurrentFolderThatIsGoneIsAFailure) {
  PutScript(c_ / "load.sh");
  ASSERT_TRUE(drives.ChangeFolder("c:\\tm\\f22"));
  fs::remove_all(c_ / "tm");
  EXPECT_EQ(FailureOf("c:\\load.sh"), error::kFileNotFound);
}

/// Tells its id in the file it is given, and never ends.
constexpr const char* kEndless = "#!/bin/sh\necho $$ > \"$1\"\nexec sleep 1000\n";

TEST_F(ProgramsTest, AProgramThatNeverEndsIsStoppedWithThoseItStarted) {
  Put(c_ / "load.sh", "#!/bin/sh\nsleep 1000 &\necho $! > \"$1\"\nwait\n");
  auto started = programs.StartToWait("c:\\load.sh " + out_.string(), WindowStyle::Normal);
  ASSERT_TRUE(started);
  const int sleeper = NumberIn(out_);
  RunningProgram& program = **started;
  EXPECT_EQ(program.State(), ProgramState::Running);
  EXPECT_TRUE(Lives(sleeper));
  program.Stop();
  EXPECT_EQ(program.State(), ProgramState::Abandoned);
  EXPECT_TRUE(Goes(sleeper));
}

TEST_F(ProgramsTest, AProgramThatDoesNotHeedIsKilled) {
  Put(c_ / "load.sh", "#!/bin/sh\ntrap '' TERM\necho $$ > \"$1\"\nwhile :; do sleep 0.01; done\n");
  auto started = programs.StartToWait("c:\\load.sh " + out_.string(), WindowStyle::Normal);
  ASSERT_TRUE(started);
  NumberIn(out_);
  (*started)->Stop();
  EXPECT_EQ((*started)->State(), ProgramState::Abandoned);
}

TEST_F(ProgramsTest, AProgramThatIsKilledFromOutsideIsAbandoned) {
  Put(c_ / "load.sh", kEndless);
  auto started = programs.StartToWait("c:\\load.sh " + out_.string(), WindowStyle::Normal);
  ASSERT_TRUE(started);
  ::kill(NumberIn(out_), SIGKILL);
  EXPECT_EQ(Wait(**started), ProgramState::Abandoned);
}

TEST_F(ProgramsTest, AProgramThatIsWaitedForEndsWithWhoWaits) {
  Put(c_ / "load.sh", kEndless);
  {
    const auto started = programs.StartToWait("c:\\load.sh " + out_.string(), WindowStyle::Normal);
    EXPECT_TRUE(Lives(NumberIn(out_)));
  }
  EXPECT_TRUE(Goes(NumberIn(out_)));
}

TEST_F(ProgramsTest, AProgramThatIsWaitedForEndsWhenThisProcessIsKilled) {
  Put(c_ / "load.sh", kEndless);
  KillWhileItRuns("c:\\load.sh " + out_.string(), out_);
  EXPECT_TRUE(Goes(NumberIn(out_)));
}

TEST_F(ProgramsTest, AProgramThatDoesNotHeedEndsToo) {
  Put(c_ / "load.sh", "#!/bin/sh\ntrap '' TERM\necho $$ > \"$1\"\nwhile :; do sleep 0.01; done\n");
  KillWhileItRuns("c:\\load.sh " + out_.string(), out_);
  EXPECT_TRUE(Goes(NumberIn(out_)));
}

TEST_F(ProgramsTest, AForgottenProgramLivesOnAndIsNoChildOfOurs) {
  Put(c_ / "load.sh", kEndless);
  ASSERT_TRUE(programs.Start("c:\\load.sh " + out_.string(), WindowStyle::Normal));
  const int id = NumberIn(out_);
  EXPECT_TRUE(Lives(id));
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
  ::kill(id, SIGKILL);
}

TEST_F(ProgramsTest, NoEndedProgramStaysInTheListOfProcesses) {
  PutScript(c_ / "load.sh");
  for (int i = 0; i < 20; ++i) {
    RunToItsEnd("c:\\load.sh");
    EXPECT_TRUE(programs.Start("c:\\load.sh", WindowStyle::Normal));
  }
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

// Windows programs.

TEST_F(ProgramsTest, AWindowsProgramRunsInWine) {
  std::string program = "MZ" + std::string(0x3A, '\0') + std::string("\x40\0\0\0", 4) + "PE";
  Put(c_ / "game.exe", program);
  Put(home_ / "bin" / "wine", "#!/bin/sh\nprintf '%s|' \"$@\" > " + out_.string() + "\n");
  const Environment path("PATH", (home_ / "bin").string());
  EXPECT_EQ(RunToItsEnd("c:\\game.exe  +set dir \"j:\\my data\" x"), ProgramState::Ended);
  EXPECT_EQ(ContentOf(out_), (c_ / "game.exe").string() + "|+set|dir|j:\\my data|x|");
  program[0x40] = 'N';
  Put(c_ / "game.exe", program);
  fs::remove(out_);
  RunToItsEnd("c:\\game.exe");
  EXPECT_EQ(ContentOf(out_), (c_ / "game.exe").string() + "|");
}

TEST_F(ProgramsTest, WithoutTheEmulatorItIsNotFound) {
  Put(c_ / "game.exe", "MZ" + std::string(0x3A, '\0') + std::string("\x40\0\0\0", 4) + "PE");
  Put(c_ / "old.exe", "MZ" + std::string(0x3A, '\0') + std::string("\xFF\xFF\xFF\xFF", 4));
  const Environment path("PATH", home_.string());
  EXPECT_EQ(FailureOf("c:\\game.exe"), error::kFileNotFound);
  EXPECT_EQ(FailureOf("c:\\old.exe"), error::kFileNotFound);
}

// DOS programs.

/// Writes its command tail, as DOS keeps it, into TAIL.BIN in the current folder, and ends with 5.
constexpr unsigned char kWritesItsTail[] = {
    0xB4, 0x3C, 0x31, 0xC9, 0xBA, 0x20, 0x01, 0xCD, 0x21,                    // create the file
    0x89, 0xC3, 0xB4, 0x40, 0xB9, 0x80, 0x00, 0xBA, 0x80, 0x00, 0xCD, 0x21,  // write 128 bytes from 80h on
    0xB4, 0x3E, 0xCD, 0x21,                                                  // close it
    0xB8, 0x05, 0x4C, 0xCD, 0x21,                                            // end
    0x90, 0x90,                                                              //
    'T',  'A',  'I',  'L',  '.',  'B',  'I',  'N',  0x00,
};
constexpr unsigned char kNeverEnds[] = {0xEB, 0xFE};

template <std::size_t N>
std::string Bytes(const unsigned char (&code)[N]) {
  return {std::begin(code), std::end(code)};
}

class DosProgramsTest : public ProgramsTest {
 protected:
  void SetUp() override {
    if (!FindInPath("dosbox")) GTEST_SKIP() << "DOSBox is not installed";
    Put(c_ / "tm" / "load.com", Bytes(kWritesItsTail));
    ASSERT_TRUE(drives.ChangeFolder("c:\\tm\\f22"));
  }
  ~DosProgramsTest() override { EXPECT_TRUE(fs::is_empty(temporary_)) << "of DOSBox nothing stays behind"; }

  /// What the program found in its command tail.
  [[nodiscard]] std::string Tail(const fs::path& folder) const {
    const std::string bytes = ContentOf(folder / "TAIL.BIN");
    return bytes.empty() ? "(none)" : bytes.substr(1, static_cast<unsigned char>(bytes[0]));
  }

  const Environment video_{"SDL_VIDEODRIVER", "dummy"};
  const Environment audio_{"SDL_AUDIODRIVER", "dummy"};
  const Environment folder_{"TMPDIR", temporary_.string()};
};

TEST_F(DosProgramsTest, AProgramRunsInTheCurrentFolderWithItsTailAsItStands) {
  for (const std::string rest : {"c:\\tm\\a.b50 Q", " a  b", "\"a\" 'b' \\", "%PATH% %1 100% %%", "a;b&c",
                                 "$(touch x) `touch x` $HOME *", "=a,b+c", "/q -q"}) {
    EXPECT_EQ(RunToItsEnd("c:\\tm\\load.com " + rest), ProgramState::Ended) << rest;
    EXPECT_EQ(Tail(c_ / "tm" / "f22"), " " + rest);
  }
  RunToItsEnd("c:\\tm\\load.com");
  EXPECT_EQ(Tail(c_ / "tm" / "f22"), "");
}

TEST_F(DosProgramsTest, ABatchFileIsGivenItsWords) {
  Put(c_ / "tm" / "F22.BAT", "@echo off\r\necho %1-%2>c:\\words.txt\r\ncd >>c:\\words.txt\r\n", false);
  EXPECT_EQ(RunToItsEnd("c:\\tm\\f22.bat a%b c:\\tm\\x.f22"), ProgramState::Ended);
  EXPECT_THAT(ContentOf(c_ / "WORDS.TXT"), StartsWith("a%b-c:\\tm\\x.f22\r\nC:\\TM\\F22"));
}

TEST_F(DosProgramsTest, EveryDriveIsThereWithItsCurrentFolder) {
  const fs::path games = home_ / "A \"long\" name; with %PATH% and more" / std::string(200, 'x');
  fs::create_directories(games / "sub");
  fs::create_directory_symlink(games, home_ / "link");
  fs::create_directory_symlink(home_ / "loop", home_ / "loop");
  drives = Drives({{'c', c_.string()},
                   {'d', (home_ / "link").string()},
                   {'e', (home_ / "loop").string()},
                   {'f', (home_ / "missing").string()}});
  ASSERT_TRUE(drives.ChangeFolder("d:\\sub"));
  Put(c_ / "go.bat", "echo d>d:here.txt\r\n", false);
  EXPECT_EQ(RunToItsEnd("c:\\go.bat"), ProgramState::Ended);
  EXPECT_EQ(ContentOf(games / "sub" / "HERE.TXT"), "d\r\n");
}

TEST_F(DosProgramsTest, TheRootOfTheHostIsDriveZ) {
  const fs::path place = fs::path("/tmp/tv" + std::to_string(::getpid() % 100000));
  fs::create_directories(place);
  fs::copy_file(c_ / "tm" / "load.com", place / "load.com");
  EXPECT_EQ(RunToItsEnd("z:\\tmp\\" + place.filename().string() + "\\load.com z"), ProgramState::Ended);
  EXPECT_EQ(Tail(c_ / "tm" / "f22"), " z");
  fs::remove_all(place);
}

TEST_F(DosProgramsTest, NobodyWritesToTheRootOfTheHost) {
  const fs::path place = fs::path("/tmp/tv" + std::to_string(::getpid() % 100000));
  fs::create_directories(place);
  std::ofstream(place / "kept.txt") << "kept\r\n";
  const std::string z = "z:\\tmp\\" + place.filename().string() + "\\";
  Put(c_ / "go.bat",
      "echo x>" + z + "new.txt\r\necho x>>" + z + "kept.txt\r\ndel " + z + "kept.txt\r\nmd " + z +
          "folder\r\ncopy " + z + "kept.txt c:\\read.txt\r\n",
      false);
  EXPECT_EQ(RunToItsEnd("c:\\go.bat"), ProgramState::Ended);
  EXPECT_EQ(ContentOf(c_ / "READ.TXT"), "kept\r\n");
  EXPECT_EQ(ContentOf(place / "kept.txt"), "kept\r\n");
  EXPECT_EQ(std::distance(fs::directory_iterator(place), fs::directory_iterator()), 1);
  fs::remove_all(place);
}

TEST_F(DosProgramsTest, WhoGivesTheRootALetterMayWriteToIt) {
  const fs::path place = fs::path("/tmp/tv" + std::to_string(::getpid() % 100000));
  fs::create_directories(place);
  drives = Drives({{'c', c_.string()}, {'r', "/"}});
  Put(c_ / "go.bat", "echo x>r:\\tmp\\" + place.filename().string() + "\\new.txt\r\n", false);
  EXPECT_EQ(RunToItsEnd("c:\\go.bat"), ProgramState::Ended);
  EXPECT_EQ(ContentOf(place / "NEW.TXT"), "x\r\n");
  fs::remove_all(place);
}

TEST_F(DosProgramsTest, OfAProcessThatIsKilledNothingStays) {
  Put(c_ / "tm" / "go.bat", "echo 1>c:\\here.txt\r\necho.>>c:\\here.txt\r\nc:\\tm\\loop.com\r\n", false);
  Put(c_ / "tm" / "loop.com", Bytes(kNeverEnds));
  KillWhileItRuns("c:\\tm\\go.bat", c_ / "HERE.TXT");
  ASSERT_FALSE(fs::is_empty(temporary_));
  const fs::path folder = fs::directory_iterator(temporary_)->path();
  EXPECT_TRUE(Within(20s, [&folder] { return !IsInUse(folder); })) << "DOSBox ends with who started it";
  auto other = programs.StartToWait("c:\\tm\\loop.com", WindowStyle::Normal);
  ASSERT_TRUE(other);
  DosBoxFolder::RemoveLeftOvers();
  EXPECT_FALSE(fs::exists(folder));
  EXPECT_FALSE(fs::is_empty(temporary_)) << "the folder of one that lives stays";
}

TEST_F(DosProgramsTest, AFolderThatMayNotBeWrittenStopsNoProgram) {
  fs::permissions(c_ / "tm" / "f22", fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(RunToItsEnd("c:\\tm\\load.com a"), ProgramState::Ended);
  fs::permissions(c_ / "tm" / "f22", fs::perms::owner_all);
}

TEST_F(DosProgramsTest, WhatDosCannotBeToldIsAFailure) {
  const std::string room(120, 'a');
  EXPECT_EQ(RunToItsEnd("c:\\tm\\load.com " + room + "12345"), ProgramState::Ended);
  EXPECT_EQ(Tail(c_ / "tm" / "f22"), " " + room + "12345");
  EXPECT_EQ(FailureOf("c:\\tm\\load.com " + room + "123456"), error::kInvalidCall) << "too long";
  for (const std::string rest : {"a>b", "a<b", "a|b", "a\nb", "a\tb"}) {
    EXPECT_EQ(FailureOf("c:\\tm\\load.com " + rest), error::kInvalidCall) << rest;
  }
  Put(c_ / "my loader.com", Bytes(kWritesItsTail));
  Put(c_ / "longername.com", Bytes(kWritesItsTail));
  EXPECT_EQ(FailureOf("c:\\my loader.com"), error::kInvalidCall);
  EXPECT_EQ(FailureOf("c:\\longername.com"), error::kInvalidCall);
  fs::create_directories(c_ / "a long folder");
  ASSERT_TRUE(drives.ChangeFolder("c:\\a long folder"));
  EXPECT_EQ(FailureOf("c:\\tm\\load.com"), error::kInvalidCall);
}

TEST_F(DosProgramsTest, TheFirstBytesCountAndNotTheName) {
  Put(c_ / "tm" / "script.com", "#!/bin/sh\nprintf native > " + out_.string() + "\n");
  RunToItsEnd("c:\\tm\\script.com");
  EXPECT_EQ(ContentOf(out_), "native");
}

TEST_F(DosProgramsTest, AProgramThatNeverEndsIsStopped) {
  Put(c_ / "tm" / "loop.com", Bytes(kNeverEnds));
  auto started = programs.StartToWait("c:\\tm\\loop.com", WindowStyle::Normal);
  ASSERT_TRUE(started);
  EXPECT_EQ(Wait(**started, 1s), ProgramState::Running);
  (*started)->Stop();
  EXPECT_EQ((*started)->State(), ProgramState::Abandoned);
}

TEST_F(DosProgramsTest, ABatchFileThatLeavesDosBoxDidNotComeToItsEnd) {
  Put(c_ / "tm" / "leave.bat", "exit\r\n", false);
  EXPECT_EQ(RunToItsEnd("c:\\tm\\leave.bat"), ProgramState::Abandoned);
}

TEST_F(DosProgramsTest, AForgottenProgramRunsAndClearsUp) {
  ASSERT_TRUE(programs.Start("c:\\tm\\load.com alone", WindowStyle::Maximised));
  EXPECT_TRUE(Within(20s, [this] { return fs::is_empty(temporary_); }));
  EXPECT_EQ(Tail(c_ / "tm" / "f22"), " alone");
}

}  // namespace
}  // namespace tarvik
