#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/InstanceLock.h"
#include "support/TemporaryFolder.h"

namespace tarvik {
namespace {

TEST(InstanceLock, OnlyOneHasIt) {
  const TemporaryFolder folder;
  InstanceLock first(folder.path() / "tarvik.lock");
  EXPECT_TRUE(first.Acquire());
  EXPECT_TRUE(first.Acquire());
  EXPECT_FALSE(InstanceLock(folder.path() / "tarvik.lock").Acquire());
}

TEST(InstanceLock, APipeOfThatNameKeepsNobodyWaiting) {
  const TemporaryFolder folder;
  const auto pipe = folder.path() / "tarvik.lock";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  InstanceLock first(pipe);
  EXPECT_TRUE(first.Acquire());
  EXPECT_FALSE(InstanceLock(pipe).Acquire());
}

}  // namespace
}  // namespace tarvik
