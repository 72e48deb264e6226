// tarvik_session_manager PROGRAM: the desktop's session manager for one program, which it starts. On SIGUSR1
// the session ends: the program is told to save itself, and as soon as it says that it has it is killed. Ends
// with 0 when it came to that.
#include <X11/ICE/ICElib.h>
#include <X11/SM/SMlib.h>
#include <poll.h>
#include <signal.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace {

struct Session {
  SmsConn client = nullptr;
  bool isEnding = false;
  bool hasSaved = false;
};

Session& SessionOf(SmPointer data) { return *static_cast<Session*>(data); }

Status Register(SmsConn client, SmPointer data, char* previous) {
  free(previous);
  SessionOf(data).client = client;
  char* const id = SmsGenerateClientID(client);
  const Status status = SmsRegisterClientReply(client, id);
  free(id);
  // A client that is new saves itself once, so that its properties come.
  SmsSaveYourself(client, SmSaveLocal, False, SmInteractStyleNone, False);
  return status;
}

void Saved(SmsConn client, SmPointer data, Bool /*success*/) {
  Session& session = SessionOf(data);
  session.hasSaved = session.isEnding;
  if (!session.isEnding) SmsSaveComplete(client);
}

void TakeProperties(SmsConn /*client*/, SmPointer /*data*/, int count, SmProp** properties) {
  for (int i = 0; i < count; ++i) SmFreeProperty(properties[i]);
  free(properties);
}

void Close(SmsConn client, SmPointer data, int count, char** reasons) {
  SmFreeReasons(count, reasons);
  SessionOf(data).client = nullptr;
  SmsCleanUp(client);
}

Status NewClient(SmsConn /*client*/, SmPointer data, unsigned long* mask, SmsCallbacks* calls,
                 char** /*why*/) {
  *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
          SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask | SmsSaveYourselfDoneProcMask |
          SmsCloseConnectionProcMask | SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask |
          SmsGetPropertiesProcMask;
  calls->register_client = {Register, data};
  calls->interact_request = {[](SmsConn client, SmPointer, int) { SmsInteract(client); }, data};
  calls->interact_done = {[](SmsConn, SmPointer, Bool) {}, data};
  calls->save_yourself_request = {[](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {}, data};
  calls->save_yourself_phase2_request = {[](SmsConn client, SmPointer) { SmsSaveYourselfPhase2(client); },
                                         data};
  calls->save_yourself_done = {Saved, data};
  calls->close_connection = {Close, data};
  calls->set_properties = {TakeProperties, data};
  calls->delete_properties = {
      [](SmsConn, SmPointer, int count, char** names) { SmFreeReasons(count, names); }, data};
  calls->get_properties = {[](SmsConn client, SmPointer) { SmsReturnProperties(client, 0, nullptr); }, data};
  return 1;
}

/// The sockets of the session, and whom they connect to.
class Sockets {
 public:
  Sockets() {
    char error[256];
    IceListenForConnections(&count_, &listening_, sizeof error, error);
    for (int i = 0; i < count_; ++i) {
      IceSetHostBasedAuthProc(listening_[i], [](char*) { return True; });
      polled_.push_back({IceGetListenConnectionNumber(listening_[i]), POLLIN, 0});
    }
    char* const ids = IceComposeNetworkIdList(count_, listening_);
    setenv("SESSION_MANAGER", ids, 1);
    free(ids);
  }
  Sockets(const Sockets&) = delete;
  Sockets& operator=(const Sockets&) = delete;
  ~Sockets() { IceFreeListenObjs(count_, listening_); }

  /// True when `also` has something to read.
  bool Wait(int also) {
    std::vector<pollfd> polled = polled_;
    for (IceConn connection : connections_) polled.push_back({IceConnectionNumber(connection), POLLIN, 0});
    polled.push_back({also, POLLIN, 0});
    poll(polled.data(), polled.size(), -1);
    const auto own = static_cast<std::size_t>(count_);
    for (std::size_t i = connections_.size(); i-- > 0;) {
      if (polled[own + i].revents == 0) continue;
      if (IceProcessMessages(connections_[i], nullptr, nullptr) == IceProcessMessagesSuccess) continue;
      IceSetShutdownNegotiation(connections_[i], False);
      IceCloseConnection(connections_[i]);
      connections_.erase(connections_.begin() + static_cast<std::ptrdiff_t>(i));
    }
    for (std::size_t i = 0; i < own; ++i) {
      IceAcceptStatus status{};
      if (polled[i].revents == 0) continue;
      if (IceConn connection = IceAcceptConnection(listening_[i], &status))
        connections_.push_back(connection);
    }
    return polled.back().revents != 0;
  }

 private:
  int count_ = 0;
  IceListenObj* listening_ = nullptr;
  std::vector<pollfd> polled_;
  std::vector<IceConn> connections_;
};

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) return 64;
  Session session;
  char error[256];
  IceSetIOErrorHandler([](IceConn) {});
  if (!SmsInitialize(
          "tarvik", "1", NewClient, &session, [](char*) { return True; }, sizeof error, error))
    return 1;
  Sockets sockets;
  sigset_t told;
  sigemptyset(&told);
  sigaddset(&told, SIGUSR1);
  sigaddset(&told, SIGCHLD);
  sigset_t before;
  sigprocmask(SIG_BLOCK, &told, &before);
  const pid_t program = fork();
  if (program == 0) {
    sigprocmask(SIG_SETMASK, &before, nullptr);
    execvp(arguments[1], arguments + 1);
    _exit(127);
  }
  const int signals = signalfd(-1, &told, SFD_CLOEXEC);
  while (!session.hasSaved) {
    if (!sockets.Wait(signals)) continue;
    signalfd_siginfo info{};
    if (read(signals, &info, sizeof info) != sizeof info || info.ssi_signo == SIGCHLD || !session.client)
      return 1;
    session.isEnding = true;
    SmsSaveYourself(session.client, SmSaveBoth, True, SmInteractStyleNone, False);
  }
  kill(program, SIGKILL);
  waitpid(program, nullptr, 0);
  return 0;
}
