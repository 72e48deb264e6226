// A library to be preloaded: makes the N-th call of a kind fail, or stops the process at it. Told by the
// environment:
//   FAIL_CALL
//     open (for writing), look (opening for reading), stat (and lstat, fstat), access, read, write, fsync,
//     close, rename, unlink, fchmod, fchown, mkdir; any: all of them that write, and read and close
//   FAIL_NTH
//     N, from 1 on; calls on the standard streams do not count
//   FAIL_HOW
//     an errno; "short": half of a write is done; "kill": the process dies before the call
// A call that was met is told on the standard error. A failing close has closed all the same.
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <string_view>

namespace {

std::string_view Variable(const char* name) {
  const char* value = getenv(name);
  return value ? value : "";
}

template <class Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// True when this is the call that is to fail.
bool IsMet(std::string_view call) {
  static int calls = 0;
  const std::string_view wanted = Variable("FAIL_CALL");
  const bool looksOnly = call == "look" || call == "stat" || call == "access";
  if (wanted != call && (wanted != "any" || looksOnly)) return false;
  if (++calls != atoi(Variable("FAIL_NTH").data())) return false;
  Real<ssize_t(int, const void*, size_t)>("write")(2, "met\n", 4);
  if (Variable("FAIL_HOW") == "kill") raise(SIGKILL);
  return true;
}

int Fail() {
  errno = atoi(Variable("FAIL_HOW").data());
  return -1;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list list;
  va_start(list, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(list, mode_t) : 0;
  va_end(list);
  const bool reads = (flags & O_ACCMODE) == O_RDONLY;
  if (IsMet(reads ? "look" : "open")) return Fail();
  return Real<int(const char*, int, ...)>("open")(path, flags, mode);
}

ssize_t write(int file, const void* bytes, size_t size) {
  if (file > STDERR_FILENO && IsMet("write")) {
    if (Variable("FAIL_HOW") != "short") return Fail();
    size = (size + 1) / 2;
  }
  return Real<ssize_t(int, const void*, size_t)>("write")(file, bytes, size);
}

ssize_t read(int file, void* bytes, size_t size) {
  if (file > STDERR_FILENO && IsMet("read")) return Fail();
  return Real<ssize_t(int, void*, size_t)>("read")(file, bytes, size);
}

int close(int file) {
  const bool met = file > STDERR_FILENO && IsMet("close");
  const int result = Real<int(int)>("close")(file);
  return met ? Fail() : result;
}

int stat(const char* path, struct stat* status) noexcept {
  return IsMet("stat") ? Fail() : Real<int(const char*, struct stat*)>("stat")(path, status);
}

int lstat(const char* path, struct stat* status) noexcept {
  return IsMet("stat") ? Fail() : Real<int(const char*, struct stat*)>("lstat")(path, status);
}

int fstat(int file, struct stat* status) noexcept {
  return file > STDERR_FILENO && IsMet("stat") ? Fail() : Real<int(int, struct stat*)>("fstat")(file, status);
}

int access(const char* path, int how) noexcept {
  return IsMet("access") ? Fail() : Real<int(const char*, int)>("access")(path, how);
}

int unlink(const char* path) noexcept {
  return IsMet("unlink") ? Fail() : Real<int(const char*)>("unlink")(path);
}

int fsync(int file) { return IsMet("fsync") ? Fail() : Real<int(int)>("fsync")(file); }

int rename(const char* from, const char* to) noexcept {
  return IsMet("rename") ? Fail() : Real<int(const char*, const char*)>("rename")(from, to);
}

int fchmod(int file, mode_t mode) noexcept {
  return IsMet("fchmod") ? Fail() : Real<int(int, mode_t)>("fchmod")(file, mode);
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
  return IsMet("fchown") ? Fail() : Real<int(int, uid_t, gid_t)>("fchown")(file, owner, group);
}

int mkdir(const char* path, mode_t mode) noexcept {
  return IsMet("mkdir") ? Fail() : Real<int(const char*, mode_t)>("mkdir")(path, mode);
}

}  // extern "C"
