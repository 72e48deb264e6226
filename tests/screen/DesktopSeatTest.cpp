// Whether the user leaves the machine, as a bus of the test's own tells with a login manager that is none.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTest>
#include <array>

#include "screen/services/DesktopSeat.h"

namespace tarvik::screen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kName = "org.freedesktop.login1";
constexpr const char* kPath = "/org/freedesktop/login1";
constexpr const char* kManager = "org.freedesktop.login1.Manager";

/// A bus, which both buses of this process are.
class Bus {
 public:
  Bus() {
    process_.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                   QStringLiteral("--print-address")});
    if (!process_.waitForStarted() || !process_.waitForReadyRead()) return;
    address_ = process_.readLine().trimmed();
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address_);
    qputenv("DBUS_SESSION_BUS_ADDRESS", address_);
  }
  ~Bus() {
    process_.kill();
    process_.waitForFinished();
  }
  Bus(const Bus&) = delete;
  Bus& operator=(const Bus&) = delete;

  [[nodiscard]] bool IsThere() const { return !address_.isEmpty(); }
  [[nodiscard]] QString Address() const { return QString::fromLatin1(address_); }

 private:
  QProcess process_;
  QByteArray address_;
};

/// Answers who wants to wait with the sleep with the end of a pipe, whose other end tells when that is over.
class LoginManager : public QDBusVirtualObject {
 public:
  explicit LoginManager(QDBusConnection bus) : bus_(std::move(bus)) {
    bus_.registerService(QLatin1String(kName));
    bus_.registerVirtualObject(QLatin1String(kPath), this, QDBusConnection::SubPath);
  }
  ~LoginManager() override { close(waits_); }
  LoginManager(const LoginManager&) = delete;
  LoginManager& operator=(const LoginManager&) = delete;

  [[nodiscard]] QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
    std::array<int, 2> ends = {-1, -1};
    if (message.member() != QLatin1String("Inhibit") || pipe(ends.data()) != 0) return false;
    const QDBusUnixFileDescriptor given(ends[1]);
    close(ends[1]);
    waits_ = ends[0];
    asked = message.arguments();
    const bool sent = connection.send(message.createReply(QVariant::fromValue(given)));
    return sent;
  }
  /// Whether nobody waits any more.
  [[nodiscard]] bool MayGoOn() const {
    char byte = 0;
    return read(waits_, &byte, 1) == 0;
  }
  void Tell(const char* path, const char* interface, const char* name, const QVariantList& arguments = {}) {
    QDBusMessage signal =
        QDBusMessage::createSignal(QLatin1String(path), QLatin1String(interface), QLatin1String(name));
    signal.setArguments(arguments);
    bus_.send(signal);
  }

  QVariantList asked;

 private:
  QDBusConnection bus_;
  int waits_ = -1;
};

class DesktopSeatOnBus : public testing::Test {
 protected:
  // The library connects a process to its buses once.
  static void SetUpTestSuite() { bus = std::make_unique<Bus>(); }
  static void TearDownTestSuite() { bus.reset(); }
  void SetUp() override {
    if (!bus->IsThere()) GTEST_SKIP() << "there is no dbus-daemon";
    manager = std::make_unique<LoginManager>(
        QDBusConnection::connectToBus(bus->Address(), QStringLiteral("manager")));
    seat.turned = [] {};
    seat.left = [this](const std::string& why) { heard.push_back(why); };
    seat.Watch();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !manager->asked.isEmpty(); }));
    QTest::qWait(50);
  }

  static inline std::unique_ptr<Bus> bus;
  std::unique_ptr<LoginManager> manager;
  DesktopSeat seat;
  std::vector<std::string> heard;
};

TEST_F(DesktopSeatOnBus, SleepWaitsUntilItIsHeard) {
  ASSERT_EQ(manager->asked.size(), 4);
  EXPECT_EQ(manager->asked[0].toString(), QStringLiteral("sleep"));
  EXPECT_EQ(manager->asked[3].toString(), QStringLiteral("delay"));
  seat.left = [this](const std::string& why) {
    heard.push_back(why);
    seat.Leave();
  };
  manager->Tell(kPath, kManager, "PrepareForSleep", {true});
  ASSERT_TRUE(QTest::qWaitFor([this] { return !heard.empty(); }));
  EXPECT_THAT(heard, ElementsAre("The machine went to sleep."));
  EXPECT_TRUE(manager->MayGoOn());
}

TEST_F(DesktopSeatOnBus, WakingUpIsNoSleep) {
  manager->Tell(kPath, kManager, "PrepareForSleep", {false});
  manager->Tell("/org/freedesktop/login1/session/c2", "org.freedesktop.login1.Session", "Lock");
  ASSERT_TRUE(QTest::qWaitFor([this] { return !heard.empty(); }));
  EXPECT_THAT(heard, ElementsAre("The session was locked."));
}

TEST_F(DesktopSeatOnBus, AScreenSaverThatComesLocksAndOneThatGoesDoesNot) {
  manager->Tell("/org/freedesktop/ScreenSaver", "org.freedesktop.ScreenSaver", "ActiveChanged", {false});
  manager->Tell("/org/gnome/ScreenSaver", "org.gnome.ScreenSaver", "ActiveChanged", {true});
  ASSERT_TRUE(QTest::qWaitFor([this] { return !heard.empty(); }));
  EXPECT_THAT(heard, ElementsAre("The session was locked."));
}

TEST_F(DesktopSeatOnBus, NothingIsToldBehindTheEndOfTheWatch) {
  seat.Leave();
  QTest::qWait(50);
  manager->Tell(kPath, kManager, "PrepareForSleep", {true});
  QTest::qWait(100);
  EXPECT_THAT(heard, IsEmpty());
}

}  // namespace
}  // namespace tarvik::screen
