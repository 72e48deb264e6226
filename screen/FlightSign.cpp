#include "screen/FlightSign.h"

#include "screen/widgets/Icons.h"

namespace tarvik::screen {

FlightSign::Sign::Sign(Flight& flight) : icon(Icon("tarvik")) {
  QObject::connect(menu.addAction(QObject::tr("Stop flying")), &QAction::triggered, &menu,
                   [&flight] { flight.End(); });
  icon.setContextMenu(&menu);
}

FlightSign::FlightSign(Flight& flight)
    : flight_(flight), changed_(flight.Changed.Connect([this] { Show(); })) {}

void FlightSign::Show() {
  const bool flies = flight_.Now() == Flight::Phase::Flying;
  if (!sign_ && flies && QSystemTrayIcon::isSystemTrayAvailable()) sign_ = std::make_unique<Sign>(flight_);
  if (!sign_) return;
  sign_->icon.setToolTip(flight_.IsSending() ? QObject::tr("Tarvik is flying")
                                             : QObject::tr("Tarvik is flying, in other programs"));
  sign_->icon.setVisible(flies);
}

}  // namespace tarvik::screen
