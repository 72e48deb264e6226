#include "platform/Process.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>

namespace tarvik {
namespace {

namespace fs = std::filesystem;

constexpr int kNotFoundInShell = 127;

Failure FailureOf(int code) {
  const int number = code == ENOENT || code == ENOTDIR ? error::kFileNotFound : error::kPathAccess;
  return {number, std::generic_category().message(code), code};
}

/// Everything that the child needs, made before the fork: behind it nothing may be allocated.
class Image {
 public:
  explicit Image(const ProcessStart& start)
      : file_(start.file), folder_(start.folder), standard_{start.input, start.output, -1} {
    arguments_.push_back(file_.native());
    arguments_.insert(arguments_.end(), start.arguments.begin(), start.arguments.end());
    for (const std::string& each : start.environment) {
      if (!::getenv(each.substr(0, each.find('=')).c_str())) environment_.push_back(each);
    }
    for (std::string& each : arguments_) argv_.push_back(each.data());
    for (char** each = environ; *each; ++each) envp_.push_back(*each);
    for (std::string& each : environment_) envp_.push_back(each.data());
    argv_.push_back(nullptr);
    envp_.push_back(nullptr);
  }

  /// Runs in the child, and comes back only when it has failed, with the reason in errno.
  void Run() const {
    if (!folder_.empty() && ::chdir(folder_.c_str()) != 0) return;
    const int nothing = ::open("/dev/null", O_RDWR);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
      const int file = standard_[static_cast<std::size_t>(standard)];
      ::dup2(file < 0 ? nothing : file, standard);
    }
    for (const int ignored : {SIGPIPE, SIGXFSZ}) ::signal(ignored, SIG_DFL);
    ::execve(file_.c_str(), argv_.data(), envp_.data());
  }

 private:
  fs::path file_;
  fs::path folder_;
  std::array<int, 3> standard_;
  std::vector<std::string> arguments_;
  std::vector<std::string> environment_;
  std::vector<char*> argv_;
  std::vector<char*> envp_;
};

/// Tells the parent why the child did not become the program; that it did closes the pipe.
class FailurePipe {
 public:
  FailurePipe() {
    if (::pipe2(ends_, O_CLOEXEC) != 0) ends_[0] = ends_[1] = -1;
  }
  ~FailurePipe() {
    for (const int end : ends_) ::close(end);
  }
  FailurePipe(const FailurePipe&) = delete;
  FailurePipe& operator=(const FailurePipe&) = delete;

  [[noreturn]] void Fail(int code) const {
    [[maybe_unused]] const auto written = ::write(ends_[1], &code, sizeof code);
    ::_exit(kNotFoundInShell);
  }
  /// Runs in the parent, and gives what became of the child.
  Outcome<> Hear() {
    ::close(ends_[1]);
    ends_[1] = -1;
    int code = 0;
    while (::read(ends_[0], &code, sizeof code) < 0 && errno == EINTR) {
    }
    if (code != 0) return FailureOf(code);
    return Done{};
  }

 private:
  int ends_[2];
};

void Reap(int id) {
  while (::waitpid(id, nullptr, 0) < 0 && errno == EINTR) {
  }
}

}  // namespace

void IgnoreFileSizeSignal() { std::signal(SIGXFSZ, SIG_IGN); }

/// The program is a grandchild, which the system takes over at once.
Outcome<> StartDetached(const ProcessStart& start) {
  const Image image(start);
  FailurePipe failure;
  const pid_t between = ::fork();
  if (between < 0) return FailureOf(errno);
  if (between == 0) {
    ::setsid();
    const pid_t own = ::fork();
    if (own > 0) ::_exit(0);
    if (own == 0) image.Run();
    failure.Fail(errno);
  }
  Outcome<> heard = failure.Hear();
  Reap(between);
  return heard;
}

Outcome<ChildProcess> ChildProcess::Start(const ProcessStart& start) {
  const Image image(start);
  const pid_t ours = ::getpid();
  FailurePipe failure;
  const pid_t child = ::fork();
  if (child < 0) return FailureOf(errno);
  if (child == 0) {
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != ours) ::_exit(kNotFoundInShell);  // it died in between
    image.Run();
    failure.Fail(errno);
  }
  ::setpgid(child, child);
  if (const Outcome<> heard = failure.Hear(); !heard) {
    Reap(child);
    return heard.failure();
  }
  return ChildProcess(child);
}

ChildProcess::ChildProcess(ChildProcess&& other) noexcept
    : id_(std::exchange(other.id_, 0)), ended_(other.ended_) {}

ChildProcess::~ChildProcess() { Stop(); }

ProgramState ChildProcess::State() {
  if (id_ == 0) return ended_;
  int status = 0;
  const pid_t found = ::waitpid(id_, &status, WNOHANG);
  if (found == 0 || (found < 0 && errno == EINTR)) return ProgramState::Running;
  id_ = 0;
  if (found < 0 || WIFSIGNALED(status)) ended_ = ProgramState::Abandoned;
  return ended_;
}

void ChildProcess::Tell(int number) const {
  if (id_ != 0) ::kill(id_, number);
}

/// The child is asked to end first, and ended when it does not.
void ChildProcess::Stop() {
  using namespace std::chrono_literals;
  constexpr int kLooks = 50;
  const pid_t group = id_;
  for (int look = 0; State() == ProgramState::Running; ++look) {
    ::kill(-group, look < kLooks ? SIGTERM : SIGKILL);
    std::this_thread::sleep_for(10ms);
  }
}

std::optional<fs::path> FindInPath(const std::string& name) {
  const char* const folders = ::getenv("PATH");
  std::string_view left = folders ? folders : "";
  while (!left.empty()) {
    const std::size_t end = std::min(left.find(':'), left.size());
    fs::path file = fs::path(left.substr(0, end)) / name;
    if (::access(file.c_str(), X_OK) == 0) return file;
    left.remove_prefix(std::min(end + 1, left.size()));
  }
  return std::nullopt;
}

}  // namespace tarvik
