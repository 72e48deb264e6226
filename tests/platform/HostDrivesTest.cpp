#include <gmock/gmock.h>

#include "platform/HostDrives.h"
#include "platform/HostFiles.h"
#include "support/TemporaryFolder.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;

/// Each drive as "c=dos", below the temporary folder.
std::vector<std::string> Listed(const HostDrives& drives, const fs::path& root) {
  std::vector<std::string> rows;
  for (const Drive& drive : drives.All()) {
    const std::string folder =
        drive.letter == 'z' ? drive.folder : fs::path(drive.folder).lexically_relative(root).string();
    rows.push_back(std::string{drive.letter, '='} + folder + (drive.isThere ? "" : "!"));
  }
  return rows;
}

class HostDrivesTest : public testing::Test {
 protected:
  HostDrivesTest() {
    folder.Make("own");
    folder.Put("dos/a.b50", "from dos");
    folder.Put("cd/a.b50", "from cd");
  }

  std::string Host(const std::string& name) const { return (folder.path() / name).string(); }

  TemporaryFolder folder;
};

TEST_F(HostDrivesTest, AStartReadsTheSettingsFileHoweverItsNameIsWritten) {
  for (const char* const name : {"own/tarvik.ini", "own/Tarvik.ini"}) {
    const fs::path ini = folder.Put(name, "[Drives]\r\nC=" + Host("dos") + "\r\nd=" + Host("gone") +
                                              "\r\ne=\r\nz=" + Host("cd") + "\r\n");
    const HostDrives drives(Host("own"));
    drives.MakeOwnDrive();
    EXPECT_THAT(Listed(drives, folder.path()), ElementsAre("c=dos", "d=gone!", "z=/"));
    fs::remove(ini);
  }
  EXPECT_FALSE(fs::exists(Host("own/drive_c")));
}

TEST_F(HostDrivesTest, WithoutAWordOfItDriveCIsAFolderBesideTheProgram) {
  const HostDrives drives(Host("own"));
  EXPECT_FALSE(fs::exists(Host("own/drive_c"))) << "another program may have the folder";
  drives.MakeOwnDrive();
  EXPECT_THAT(Listed(drives, folder.path()), ElementsAre("c=own/drive_c", "z=/"));
  EXPECT_TRUE(fs::is_directory(Host("own/drive_c")));
}

TEST_F(HostDrivesTest, AChangeIsInForceAtOnce) {
  HostDrives drives(Host("own"));
  HostFiles files(drives.Paths());
  EXPECT_FALSE(files.FileExists("d:\\a.b50"));
  ASSERT_TRUE(drives.Set('d', Host("dos")));
  EXPECT_EQ(files.Read("d:\\a.b50").Take(), "from dos");
  EXPECT_EQ(drives.Paths().FromHost(Host("dos/a.b50")), "d:\\a.b50");
  ASSERT_TRUE(drives.Set('d', Host("cd")));
  EXPECT_EQ(files.Read("d:\\a.b50").Take(), "from cd") << "what was picked there counts no more";
  ASSERT_TRUE(files.ChangeDrive("d:"));
  drives.Remove('d');
  EXPECT_FALSE(files.FileExists("d:\\a.b50"));
  EXPECT_EQ(drives.Paths().CurrentFolder(), "c:\\");
}

TEST_F(HostDrivesTest, TheHostsPathIsToldOfWhatIsThereAndOfWhatMayCome) {
  HostDrives drives(Host("own"));
  ASSERT_TRUE(drives.Set('d', Host("dos")));
  EXPECT_EQ(drives.ToHost("d:\\A.B50"), Host("dos/a.b50"));
  EXPECT_EQ(drives.ToHost("d:\\New.b50"), Host("dos/new.b50"));
  EXPECT_EQ(drives.ToHost("d:\\"), Host("dos"));
  EXPECT_EQ(drives.ToHost("d:\\gone\\a.b50"), "");
  EXPECT_EQ(drives.ToHost("q:\\a.b50"), "");
}

TEST_F(HostDrivesTest, APathThatIsHeldMeansThatFileUntilItsDriveIsAnotherOne) {
  HostDrives drives(Host("own"));
  ASSERT_TRUE(drives.Set('d', Host("dos")));
  HostFiles files(drives.Paths());
  EXPECT_EQ(drives.Hold("d:\\a.b50"), Host("dos/a.b50"));
  folder.Put("dos/A.B50", "another");
  fs::remove(Host("dos/a.b50"));
  EXPECT_FALSE(files.FileExists("d:\\a.b50"));
  EXPECT_EQ(drives.ToHost("d:\\a.b50"), Host("dos/a.b50"));
  ASSERT_TRUE(drives.Set('d', Host("cd")));
  EXPECT_EQ(files.Read("d:\\a.b50").Take(), "from cd");
  EXPECT_EQ(drives.Hold("q:\\a.b50"), "");
}

TEST_F(HostDrivesTest, AChangedDriveStandsAtItsRoot) {
  folder.Make("dos/tm");
  HostDrives drives(Host("own"));
  ASSERT_TRUE(drives.Set('c', Host("dos")));
  ASSERT_TRUE(drives.Paths().ChangeFolder("c:\\tm"));
  ASSERT_TRUE(drives.Set('c', Host("cd")));
  EXPECT_EQ(drives.Paths().CurrentFolder(), "c:\\");
}

TEST_F(HostDrivesTest, DriveCGoesBackToItsOwnFolder) {
  HostDrives drives(Host("own"));
  ASSERT_TRUE(drives.Set('c', Host("dos")));
  fs::remove(Host("own/drive_c"));
  drives.Remove('c');
  EXPECT_THAT(Listed(drives, folder.path()), ElementsAre("c=own/drive_c", "z=/"));
}

TEST_F(HostDrivesTest, WhatIsNoFolderIsRefusedAndSoIsDriveZ) {
  HostDrives drives(Host("own"));
  folder.Make("two\nlines");
  for (const std::string& none :
       {Host("gone"), Host("dos/a.b50"), std::string("dos"), std::string(), Host("two\nlines")}) {
    EXPECT_FALSE(drives.Set('d', none)) << none;
  }
  EXPECT_FALSE(drives.Set('z', Host("dos")));
  drives.Remove('z');
  EXPECT_THAT(Listed(drives, folder.path()), ElementsAre("c=own/drive_c", "z=/"));
}

}  // namespace
}  // namespace tarvik
