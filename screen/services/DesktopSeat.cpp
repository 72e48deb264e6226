#include "screen/services/DesktopSeat.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <array>

namespace tarvik::screen {
namespace {

const QString kManagerName = QStringLiteral("org.freedesktop.login1");
const QString kManagerPath = QStringLiteral("/org/freedesktop/login1");
const QString kManager = QStringLiteral("org.freedesktop.login1.Manager");

/// What is listened to. Without a path it is any object's.
struct Told {
  bool bySystem;
  QString path;
  QString interface;
  QString name;
  const char* slot;
};

std::array<Told, 4> AllTold() {
  const QString active = QStringLiteral("ActiveChanged");
  return {{{true, kManagerPath, kManager, QStringLiteral("PrepareForSleep"), SLOT(PrepareForSleep(bool))},
           {true, {}, QStringLiteral("org.freedesktop.login1.Session"), QStringLiteral("Lock"), SLOT(Lock())},
           {false, QStringLiteral("/org/freedesktop/ScreenSaver"),
            QStringLiteral("org.freedesktop.ScreenSaver"), active, SLOT(ActiveChanged(bool))},
           {false, QStringLiteral("/org/gnome/ScreenSaver"), QStringLiteral("org.gnome.ScreenSaver"), active,
            SLOT(ActiveChanged(bool))}}};
}

QDBusConnection BusOf(const Told& told) {
  return told.bySystem ? QDBusConnection::systemBus() : QDBusConnection::sessionBus();
}

QString ServiceOf(const Told& told) { return told.bySystem ? kManagerName : QString(); }

}  // namespace

DesktopSeat::DesktopSeat() {
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this] {
    if (watches_) turned();
  });
}

bool DesktopSeat::IsInProgram() const { return QGuiApplication::applicationState() == Qt::ApplicationActive; }

void DesktopSeat::Watch() {
  watches_ = true;
  for (const Told& told : AllTold()) {
    BusOf(told).connect(ServiceOf(told), told.path, told.interface, told.name, this, told.slot);
  }
  QDBusMessage wait =
      QDBusMessage::createMethodCall(kManagerName, kManagerPath, kManager, QStringLiteral("Inhibit"));
  wait << QStringLiteral("sleep") << QStringLiteral("Tarvik") << QStringLiteral("Keys that are down go up")
       << QStringLiteral("delay");
  auto* const answer = new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(wait), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
    const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *call;
    if (watches_ && reply.isValid()) delay_ = reply.value();
    call->deleteLater();
  });
}

void DesktopSeat::Leave() {
  watches_ = false;
  delay_ = {};
  for (const Told& told : AllTold()) {
    BusOf(told).disconnect(ServiceOf(told), told.path, told.interface, told.name, this, told.slot);
  }
}

void DesktopSeat::TellLeft(const char* why) {
  if (watches_) left(why);
}

void DesktopSeat::PrepareForSleep(bool begins) {
  if (begins) TellLeft("The machine went to sleep.");
}

void DesktopSeat::Lock() { TellLeft("The session was locked."); }

void DesktopSeat::ActiveChanged(bool isActive) {
  if (isActive) TellLeft("The session was locked.");
}

}  // namespace tarvik::screen
