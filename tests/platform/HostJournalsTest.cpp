#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/HostJournals.h"
#include "support/TemporaryFolder.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

mode_t ModeOf(const fs::path& path) {
  struct stat status {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  return status.st_mode & 07777;
}

class HostJournalsTest : public testing::Test {
 protected:
  std::string OnlyLeft() {
    const auto left = journals_.Left();
    EXPECT_EQ(left.size(), 1U);
    return left.empty() ? "" : *journals_.Read(left.front());
  }

  TemporaryFolder folder_;
  fs::path first_ = folder_.path() / "first" / "journal";
  fs::path second_ = folder_.path() / "second";
  HostJournals journals_{{first_, second_}};

  void SetUp() override { fs::create_directory(first_.parent_path()); }
};

TEST_F(HostJournalsTest, AJournalIsForItsOwnerAlone) {
  auto file = journals_.Begin("a");
  ASSERT_TRUE(file);
  EXPECT_EQ(ModeOf(first_), 0700U);
  for (const auto& entry : fs::directory_iterator(first_)) EXPECT_EQ(ModeOf(entry.path()), 0600U);
}

TEST_F(HostJournalsTest, AFolderThatOthersCouldReadIsClosedToThem) {
  fs::create_directory(first_);
  fs::permissions(first_, fs::perms::all);
  ASSERT_TRUE(journals_.Begin("a"));
  EXPECT_EQ(ModeOf(first_), 0700U);
}

TEST_F(HostJournalsTest, ALivingOneIsLeftAloneAndADeadOneIsLeft) {
  auto file = journals_.Begin("one");
  ASSERT_TRUE(file);
  ASSERT_TRUE((*file)->Append(" two"));
  EXPECT_THAT(journals_.Left(), IsEmpty());
  EXPECT_THAT(HostJournals({first_}).Left(), IsEmpty()) << "of another program too";
  file->reset();
  EXPECT_EQ(OnlyLeft(), "one two");
  journals_.Remove(journals_.Left().front());
  EXPECT_THAT(journals_.Left(), IsEmpty());
}

TEST_F(HostJournalsTest, AKilledProcessLeavesAllThatItAppended) {
  const pid_t child = fork();
  if (child == 0) {
    auto file = journals_.Begin("one");
    if (!file || !(*file)->Append(" two")) _exit(1);
    raise(SIGKILL);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(OnlyLeft(), "one two");
}

TEST_F(HostJournalsTest, ARemovedOneIsGone) {
  auto file = journals_.Begin("one");
  ASSERT_TRUE(file);
  (*file)->Remove();
  file->reset();
  EXPECT_THAT(journals_.Left(), IsEmpty());
  EXPECT_TRUE(fs::is_empty(first_));
}

TEST_F(HostJournalsTest, WhereTheFirstPlaceCannotBeMadeTheSecondTakesIt) {
  fs::remove(first_.parent_path());
  auto file = journals_.Begin("one");
  ASSERT_TRUE(file);
  file->reset();
  EXPECT_TRUE(fs::exists(second_));
  EXPECT_EQ(OnlyLeft(), "one");
}

TEST_F(HostJournalsTest, ALinkInTheFoldersPlaceIsNotFollowed) {
  fs::create_directory(folder_.path() / "elsewhere");
  fs::create_directory_symlink(folder_.path() / "elsewhere", first_);
  ASSERT_TRUE(journals_.Begin("one"));
  EXPECT_TRUE(fs::is_empty(folder_.path() / "elsewhere"));
}

TEST_F(HostJournalsTest, WhatSomebodyElseLaidInThePlaceIsNotRead) {
  constexpr uid_t kNobody = 65534;
  { ASSERT_TRUE(journals_.Begin("one")); }
  if (chown(first_.c_str(), kNobody, kNobody) != 0) GTEST_SKIP() << "only root gives a folder away";
  EXPECT_THAT(journals_.Left(), IsEmpty());
}

TEST_F(HostJournalsTest, OneThatIsTooLargeIsAFailureAndNotAllOfTheMemory) {
  { ASSERT_TRUE(journals_.Begin("one")); }
  const std::string name = journals_.Left().front();
  fs::resize_file(name, std::uintmax_t{1} << 40);
  EXPECT_FALSE(journals_.Read(name));
}

TEST_F(HostJournalsTest, WithNoPlaceAtAllItIsAFailure) {
  EXPECT_FALSE(HostJournals({folder_.path() / "no" / "where"}).Begin("one"));
  EXPECT_THAT(HostJournals({folder_.path() / "no" / "where"}).Left(), IsEmpty());
}

TEST_F(HostJournalsTest, TheOldestComesFirst) {
  for (const char* const text : {"one", "two", "three"}) ASSERT_TRUE(journals_.Begin(text));
  const auto left = journals_.Left();
  ASSERT_EQ(left.size(), 3U);
  std::vector<std::string> texts;
  const auto now = fs::file_time_type::clock::now();
  for (int i = 0; i < 3; ++i)
    fs::last_write_time(left[static_cast<std::size_t>(i)], now - std::chrono::hours(i));
  for (const std::string& name : journals_.Left()) texts.push_back(*journals_.Read(name));
  EXPECT_THAT(texts,
              ElementsAre(*journals_.Read(left[2]), *journals_.Read(left[1]), *journals_.Read(left[0])));
}

TEST_F(HostJournalsTest, ManyAppendsArriveInTheirOrder) {
  std::string all = "start";
  auto file = journals_.Begin(all);
  ASSERT_TRUE(file);
  for (int i = 0; i < 300; ++i) {
    ASSERT_TRUE((*file)->Append(std::to_string(i)));
    all += std::to_string(i);
  }
  file->reset();
  EXPECT_EQ(OnlyLeft(), all);
}

}  // namespace
}  // namespace tarvik
