#include <gtest/gtest.h>

#include "support/MemoryFiles.h"
#include "workbench/SeenFile.h"

namespace tarvik {
namespace {

constexpr const char* kPath = "c:\\my\\a.b50";

class CountedReads : public MemoryFiles {
 public:
  Outcome<std::string> Read(std::string_view path) const override {
    ++reads;
    return MemoryFiles::Read(path);
  }
  mutable int reads = 0;
};

TEST(SeenFile, AFileIsReadOnlyWhereTheDiskSaysThatItMayBeAnotherOne) {
  CountedReads files;
  files.Put(kPath, "old");
  SeenFile seen;
  EXPECT_EQ(seen.Look(files, kPath), OnDisk::NeverSeen);
  ASSERT_TRUE(seen.See(files, kPath));
  for (int i = 0; i < 3; ++i) EXPECT_EQ(seen.Look(files, kPath), OnDisk::AsSeen);
  EXPECT_EQ(files.reads, 1);
  files.Put(kPath, "old");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(seen.Look(files, kPath), OnDisk::AsSeen);
  EXPECT_EQ(files.reads, 2);
}

TEST(SeenFile, AnotherContentOfTheSameLengthIsAChange) {
  MemoryFiles files;
  files.Put(kPath, "old");
  SeenFile seen;
  ASSERT_TRUE(seen.See(files, kPath));
  files.Put(kPath, "new");
  EXPECT_EQ(seen.Look(files, kPath), OnDisk::Changed);
  EXPECT_EQ(seen.Look(files, kPath), OnDisk::Changed);
  files.SetUnreadable(kPath);
  EXPECT_EQ(seen.Look(files, kPath), OnDisk::Changed);
  files.Remove(kPath);
  EXPECT_EQ(seen.Look(files, kPath), OnDisk::Gone);
  seen.Forget();
  EXPECT_EQ(seen.Look(files, kPath), OnDisk::AsSeen);
}

TEST(SeenFile, OfAFileOfWhichTheDiskTellsNothingNothingIsSaid) {
  class SilentDisk : public MemoryFiles {
   public:
    Outcome<FileState> State(std::string_view path) const override {
      if (isSilent) return Failure{error::kPathAccess, "Input/output error", 5};
      return MemoryFiles::State(path);
    }
    bool isSilent = false;
  } files;
  files.Put(kPath, "old");
  SeenFile seen;
  ASSERT_TRUE(seen.See(files, kPath));
  files.isSilent = true;
  EXPECT_EQ(seen.Look(files, kPath), OnDisk::AsSeen);
}

}  // namespace
}  // namespace tarvik
