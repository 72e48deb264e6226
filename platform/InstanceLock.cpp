#include "platform/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace tarvik {

InstanceLock::~InstanceLock() {
  if (descriptor_ >= 0) close(descriptor_);
}

bool InstanceLock::Acquire() {
  if (descriptor_ >= 0) return true;
  // The file is closed in started programs, which would hold the lock when this one has ended.
  // What has its name may be a pipe, which would wait here for somebody who writes to it.
  const int descriptor = open(file_.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666);
  if (descriptor < 0) return true;
  if (flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    close(descriptor);
    return false;
  }
  descriptor_ = descriptor;
  return true;
}

}  // namespace tarvik
