// A sign in the desktop's tray while the files are played for real, with which it can be ended from anywhere.
#pragma once

#include <QMenu>
#include <QSystemTrayIcon>
#include <memory>

#include "workbench/Flight.h"

namespace tarvik::screen {

class FlightSign {
 public:
  explicit FlightSign(Flight& flight);

 private:
  /// Made when it is first wanted: at the start of the program nobody needs it.
  struct Sign {
    explicit Sign(Flight& flight);
    QMenu menu;
    QSystemTrayIcon icon;
  };

  void Show();

  Flight& flight_;
  std::unique_ptr<Sign> sign_;
  Connection changed_;
};

}  // namespace tarvik::screen
