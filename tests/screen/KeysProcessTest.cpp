// Keys go by way of tarvik-keys to an X server of the test's own, and go up when either of the two processes
// ends.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

#include "screen/services/KeysProcess.h"
#include "support/Display.h"

namespace tarvik::screen {
namespace {

class KeysProcessOnX : public testing::Test {
 protected:
  void SetUp() override {
    if (!server_.IsThere()) GTEST_SKIP() << "there is no Xvfb";
    if (access("/dev/uinput", W_OK) == 0) GTEST_SKIP() << "keys would go to this machine by uinput";
    client = std::make_unique<keys::Client>();
    keys.answered = [this](const KeyOutputState& state) { found = state; };
    keys.lost = [this](const std::string& why) { reason = why; };
    keys.hotKeyPressed = [this] { hasStopped = true; };
    keys.Start();
    ASSERT_TRUE(Within([this] { return found.has_value(); }));
  }

  /// Lets events come until it holds, at most five seconds.
  static bool Within(const std::function<bool()>& holds) {
    constexpr int kLongest = 5000;
    QElapsedTimer since;
    for (since.start(); !holds() && since.elapsed() < kLongest;)
      QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return holds();
  }

 private:
  keys::Server server_;

 protected:
  std::unique_ptr<keys::Client> client;
  std::optional<KeyOutputState> found;
  std::string reason;
  bool hasStopped = false;
  KeysProcess keys;
};

TEST_F(KeysProcessOnX, SendsAndLetsGoAtTheStop) {
  EXPECT_EQ(found->way, KeyWay::Xtest);
  EXPECT_TRUE(found->hotKey);
  EXPECT_FALSE(found->why.empty());
  keys.Send(30, true);
  EXPECT_EQ(client->Next(), (keypipe::Stroke{30, true}));
  keys.Stop();
  EXPECT_EQ(client->Next(), (keypipe::Stroke{30, false}));
  keys.Send(48, true);
  keys.Start();
  found.reset();
  ASSERT_TRUE(Within([this] { return found.has_value(); }));
  keys.Send(46, true);
  EXPECT_EQ(client->Next(), (keypipe::Stroke{46, true}));
}

TEST_F(KeysProcessOnX, TellsOfTheHotKey) {
  constexpr unsigned kControl = 29;
  constexpr unsigned kAlt = 56;
  constexpr unsigned kEnd = 107;
  // As a flight does.
  keys.hotKeyPressed = [this] {
    keys.Stop();
    hasStopped = true;
  };
  client->PressByHand({kControl, kAlt, kEnd});
  EXPECT_TRUE(Within([this] { return hasStopped; }));
  EXPECT_TRUE(reason.empty());
}

TEST_F(KeysProcessOnX, AnotherProcessLetsGoWhenTheFirstIsKilled) {
  keys.Send(30, true);
  keys.Send(48, true);
  EXPECT_TRUE(Within([this] { return client->KeysDown() == 2; }));
  QProcess::execute(QStringLiteral("pkill"),
                    {QStringLiteral("-KILL"), QStringLiteral("-P"),
                     QString::number(QCoreApplication::applicationPid()), QStringLiteral("tarvik-keys")});
  EXPECT_TRUE(Within([this] { return !reason.empty(); }));
  EXPECT_TRUE(Within([this] { return client->KeysDown() == 0; }));
}

}  // namespace
}  // namespace tarvik::screen
