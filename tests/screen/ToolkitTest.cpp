// What a handler throws ends the handler and nothing else.
#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "screen/Toolkit.h"

namespace tarvik::screen {
namespace {

std::vector<Failure> WhenThrown(const std::function<void()>& handler) {
  auto& toolkit = dynamic_cast<Toolkit&>(*qApp);
  std::vector<Failure> failures;
  toolkit.failed = [&failures](const Failure& failure) { failures.push_back(failure); };
  QObject receiver;
  QMetaObject::invokeMethod(&receiver, handler, Qt::QueuedConnection);
  QApplication::processEvents();
  toolkit.failed = nullptr;
  return failures;
}

TEST(Toolkit, TellsWhatAHandlerThrowsAndGoesOn) {
  const auto failures = WhenThrown([] { throw std::logic_error("Editor.List1(7) is not there"); });
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_EQ(failures[0].number, error::kUnexpected);
  EXPECT_EQ(failures[0].text, "Editor.List1(7) is not there");
}

TEST(Toolkit, TellsThatThereIsNoMemoryWithoutAskingForMore) {
  const auto failures = WhenThrown([] { throw std::bad_alloc(); });
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_EQ(failures[0].number, error::kOutOfMemory);
  EXPECT_EQ(failures[0].text, "");
}

TEST(Toolkit, TellsWhatIsThrownWhereNoEventIsHandled) {
  auto& toolkit = dynamic_cast<Toolkit&>(*qApp);
  std::vector<Failure> failures;
  toolkit.failed = [&failures](const Failure& failure) { failures.push_back(failure); };
  bool whole = false;
  EXPECT_TRUE(toolkit.Run([&whole] { whole = true; }));
  EXPECT_TRUE(whole);
  EXPECT_TRUE(failures.empty());
  EXPECT_FALSE(toolkit.Run([] { throw std::logic_error("Mum.tool(7) is not there"); }));
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_EQ(failures[0].text, "Mum.tool(7) is not there");
  toolkit.failed = nullptr;
}

}  // namespace
}  // namespace tarvik::screen
