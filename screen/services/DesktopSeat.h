// Where the user is, as the toolkit and the desktop's services tell.
#pragma once

#include <QDBusUnixFileDescriptor>
#include <QObject>

#include "platform/Seat.h"

namespace tarvik::screen {

/// Sleep is told by the login manager, and waited with until it is heard; a locked screen by the manager,
/// too, and by the desktop's screen saver. Where they do not run nothing is told.
class DesktopSeat : public QObject, public Seat {
  Q_OBJECT

 public:
  DesktopSeat();

  void Watch() override;
  void Leave() override;
  [[nodiscard]] bool IsInProgram() const override;

  // Names of the methods that the bus calls.
  Q_SLOT void PrepareForSleep(bool begins);
  Q_SLOT void Lock();
  Q_SLOT void ActiveChanged(bool isActive);

 private:
  void TellLeft(const char* why);

  bool watches_ = false;
  QDBusUnixFileDescriptor delay_;  // as long as it is open the machine waits a moment before it sleeps
};

}  // namespace tarvik::screen
