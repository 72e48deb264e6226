#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "support/BareWorkbench.h"
#include "support/Printers.h"
#include "workbench/Journal.h"

namespace tarvik {
namespace {

using ::testing::SizeIs;

const JournalHead kHead{TextKind::Macro, "c:\\my\\a.m50", "a.m50", "/opt/tarvik/drive_c/my/a.m50"};

PaneEdit Inserted(std::size_t position, const std::string& text, Colour colour = kBlack) {
  return {position, {}, RichText(text, colour)};
}

std::string WholeJournal() {
  return HeadRecord(kHead) + TextRecord(RichText("Gear = g")) + EditRecord(Inserted(8, " h", Colour{255})) +
         TimeRecord("noon") + EditRecord({0, RichText("Gear"), RichText("Flaps")}) + TimeRecord("later");
}

TEST(JournalRecords, WhatWasWrittenIsRead) {
  const auto read = ReadJournal(WholeJournal());
  ASSERT_TRUE(read);
  EXPECT_EQ(read->head.kind, TextKind::Macro);
  EXPECT_EQ(read->head.path, "c:\\my\\a.m50");
  EXPECT_EQ(read->head.name, "a.m50");
  EXPECT_EQ(read->head.host, "/opt/tarvik/drive_c/my/a.m50");
  EXPECT_EQ(read->text.text, "Flaps = g h");
  EXPECT_EQ(read->text.colours.At(10), Colour{255});
  EXPECT_EQ(read->written, "later");
  EXPECT_TRUE(read->isWhole);
}

TEST(JournalRecords, WhatKnewNothingOfTheHostIsReadToo) {
  const std::string head(
      "TVJ1\x22\0\0\0\x88\x11\xA4\x23\x10\x49\x66\x82\1\2\x0B\0\0\0\0\0\0\0c:\\my\\a.m50\5\0\0\0\0\0\0\0a."
      "m50",
      50);
  const auto read = ReadJournal(head + TextRecord(RichText("Gear = g")));
  ASSERT_TRUE(read);
  EXPECT_TRUE(read->isWhole);
  EXPECT_EQ(read->head.path, "c:\\my\\a.m50");
  EXPECT_EQ(read->head.name, "a.m50");
  EXPECT_EQ(read->head.host, "");
}

TEST(JournalRecords, ColoursAloneAreAnEdit) {
  const PaneEdit recoloured{5, {{}, ColourRuns(1, kBlack)}, {{}, ColourRuns(1, Colour{255})}};
  const auto read =
      ReadJournal(HeadRecord(kHead) + TextRecord(RichText("Gear = g")) + EditRecord(recoloured));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->text.text, "Gear = g");
  EXPECT_EQ(read->text.colours.At(5), Colour{255});
  EXPECT_EQ(read->text.colours.At(6), kBlack);
}

TEST(JournalRecords, ATornOneGivesAllBeforeTheTear) {
  const std::string whole = WholeJournal();
  const std::string beforeEdits = HeadRecord(kHead) + TextRecord(RichText("Gear = g"));
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const auto read = ReadJournal(whole.substr(0, length));
    EXPECT_EQ(read.has_value(), length >= beforeEdits.size()) << length;
    if (!read) continue;
    EXPECT_THAT(read->text.text, testing::AnyOf("Gear = g", "Gear = g h", "Flaps = g h")) << length;
  }
}

TEST(JournalRecords, AnyDamagedByteIsToldAndNothingBeforeItIsLost) {
  const std::string whole = WholeJournal();
  for (std::size_t at = 0; at < whole.size(); ++at) {
    std::string damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x40);
    const auto read = ReadJournal(damaged);
    if (!read) continue;
    EXPECT_FALSE(read->isWhole) << at;
    EXPECT_THAT(read->text.text, testing::AnyOf("Gear = g", "Gear = g h", "Flaps = g h")) << at;
  }
}

/// Records whose checksum is right and which make no sense all the same.
TEST(JournalRecords, AnEditBeyondTheTextIsDamage) {
  const std::string before = HeadRecord(kHead) + TextRecord(RichText("Gear"));
  for (const PaneEdit& edit : {Inserted(5, "x"), PaneEdit{2, RichText("abc"), {}},
                               PaneEdit{3, {{}, ColourRuns(2, kBlack)}, {{}, ColourRuns(2, kWhite)}}}) {
    const auto read = ReadJournal(before + EditRecord(edit));
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->isWhole);
    EXPECT_EQ(read->text.text, "Gear");
  }
}

TEST(JournalRecords, RandomEditsComeBackAsTheyWere) {
  std::mt19937 random(11);
  BareWorkbench bare;
  Pane& pane = bare.joystick.text;
  std::string bytes = HeadRecord(kHead) + TextRecord(pane.Content());
  const Connection noted = pane.Edited.Connect([&](const PaneEdit& edit) { bytes += EditRecord(edit); });
  for (int i = 0; i < 500; ++i) {
    const std::size_t size = pane.Characters().size();
    pane.Select({random() % (size + 1), random() % 5});
    if (random() % 3 == 0) {
      pane.SelColor = Colour{static_cast<std::uint32_t>(random() % 3)};
    } else {
      pane.ReplaceSelection(RichText(std::string(random() % 4, 'x'), Colour{static_cast<std::uint32_t>(i)}));
    }
  }
  const auto read = ReadJournal(bytes);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->text, pane.Content());
}

// Documents.

std::string Kept(BareWorkbench& bare) {
  if (bare.outside.journals.content.empty()) return "nothing";
  const auto read = ReadJournal(bare.outside.journals.content.rbegin()->second);
  return read ? read->text.text : "damaged";
}

void Type(Document& document, const std::string& text) {
  document.text.ReplaceSelection(RichText(text));
  document.Dirty = saved::kModified;
}

TEST(Journal, TypedTextIsKeptHalfASecondLater) {
  BareWorkbench bare;
  Timer& timer = bare.workbench.journals.timer;
  EXPECT_FALSE(timer.Enabled);
  Type(bare.joystick, "BTN");
  EXPECT_EQ(Kept(bare), "nothing");
  EXPECT_TRUE(timer.Enabled);
  EXPECT_LE(timer.Interval, 500);
  timer.Elapsed();
  EXPECT_EQ(Kept(bare), "BTN");
  EXPECT_FALSE(timer.Enabled) << "nothing runs while nobody types";
  Type(bare.joystick, " S1");
  EXPECT_TRUE(timer.Enabled);
  timer.Elapsed();
  EXPECT_EQ(Kept(bare), "BTN S1");
}

TEST(Journal, WhatNobodyTypedIsNot) {
  BareWorkbench bare;
  bare.joystick.text.SetContent(RichText("loaded"));
  bare.workbench.journals.Write();
  EXPECT_EQ(Kept(bare), "nothing");
}

TEST(Journal, ItIsFoldedWhenItOutgrowsTheText) {
  BareWorkbench bare;
  Type(bare.joystick, std::string(100, 'a'));
  bare.workbench.journals.Write();
  std::size_t largest = 0;
  for (int i = 0; i < 20000; ++i) {
    bare.joystick.text.Select({50, 1});
    Type(bare.joystick, "b");
    if (i % 10 == 0) bare.workbench.journals.Write();
    ASSERT_THAT(bare.outside.journals.content, SizeIs(1));
    largest = std::max(largest, bare.outside.journals.content.begin()->second.size());
  }
  bare.workbench.journals.Write();
  EXPECT_LT(largest, 200'000U);
  EXPECT_EQ(Kept(bare), std::string(bare.joystick.text.Characters()));
}

TEST(Journal, AFullDiskIsTriedAgain) {
  BareWorkbench bare;
  Type(bare.joystick, "a");
  bare.workbench.journals.Write();
  bare.outside.journals.fails = true;
  Type(bare.joystick, "b");
  EXPECT_FALSE(bare.workbench.journals.Write());
  EXPECT_EQ(Kept(bare), "a") << "what was kept stays";
  ASSERT_NE(bare.workbench.notices.Of(bare.macro), nullptr) << "the user knows, at both files";
  EXPECT_EQ(bare.workbench.errors.ErrorTag.Get(), "Journal");
  EXPECT_TRUE(bare.workbench.journals.timer.Enabled);
  Type(bare.joystick, "c");
  bare.outside.journals.fails = false;
  EXPECT_TRUE(bare.workbench.journals.Write());
  EXPECT_EQ(Kept(bare), "abc");
  EXPECT_EQ(bare.workbench.notices.Of(bare.macro), nullptr);
  EXPECT_THAT(bare.outside.journals.content, SizeIs(1));
}

TEST(Journal, ASaveThatTheFileDoesNotHoldIsNone) {
  class LyingDisk : public MemoryFiles {
   public:
    Outcome<> Write(std::string_view path, std::string_view content) override {
      return MemoryFiles::Write(path, content.substr(0, content.size() / 2));
    }
  } disk;
  disk.Put("c:\\my\\a.b50", "");
  BareWorkbench bare(&disk);
  bare.workbench.files.OpenWithoutDialog("c:\\my\\a.b50");
  bare.workbench.files.Load(bare.joystick);
  Type(bare.joystick, "BTN S1");
  bare.workbench.files.Save(bare.joystick);
  bare.workbench.journals.Write();
  EXPECT_EQ(Kept(bare), "BTN S1");
  ASSERT_NE(bare.workbench.notices.Of(bare.joystick), nullptr);
  EXPECT_EQ(bare.workbench.notices.Of(bare.macro), nullptr);
}

TEST(Journal, ATextComesBackToTheFileThatItBelongsToWhateverItsPathMeansNow) {
  BareWorkbench bare;
  bare.outside.drives.there = {"/opt/tarvik/drive_c", "/mnt/old", "/mnt/new"};
  DriveFolders& drives = bare.platform.drives;
  ASSERT_TRUE(drives.Set('d', "/mnt/old"));
  bare.files.Put("d:\\a.b50", "BTN S1");
  bare.workbench.files.OpenWithoutDialog("d:\\a.b50");
  bare.workbench.files.Load(bare.joystick);
  Type(bare.joystick, "REM ");
  bare.workbench.journals.Write();
  BareWorkbench next(&bare.files);
  next.outside.journals.content = bare.outside.journals.content;
  next.outside.drives.there = bare.outside.drives.there;
  ASSERT_TRUE(next.platform.drives.Set('d', "/mnt/new"));
  ASSERT_TRUE(next.platform.drives.Set('e', "/mnt/old"));
  next.files.Put("d:\\a.b50", "another");
  next.files.Put("e:\\a.b50", "BTN S1");
  next.workbench.recovery.Look();
  ASSERT_THAT(next.workbench.recovery.Texts(), SizeIs(1));
  next.workbench.recovery.BringBack(next.workbench.recovery.Texts().front().journal);
  EXPECT_EQ(next.joystick.Path.Get(), "e:\\a.b50");
  EXPECT_EQ(next.joystick.text.Characters(), "REM BTN S1");
  next.workbench.files.Save(next.joystick);
  EXPECT_EQ(next.files.Content("d:\\a.b50"), "another");
}

TEST(Journal, ATextThatIsBackIsThrownAwayOnceTheDiskHasItAgain) {
  BareWorkbench bare;
  bare.outside.journals.content["journal 1"] =
      HeadRecord({TextKind::Joystick, "c:\\my\\a.b50", "a.b50"}) + TextRecord(RichText("BTN S1"));
  bare.outside.journals.cannotFlush = true;
  bare.workbench.recovery.Look();
  bare.workbench.recovery.BringBack("journal 1");
  EXPECT_EQ(bare.joystick.text.Characters(), "BTN S1");
  EXPECT_TRUE(bare.outside.journals.content.contains("journal 1"));
  bare.joystick.Dirty = saved::kSaved;
  bare.outside.journals.cannotFlush = false;
  bare.workbench.recovery.BringBack("journal 1");
  EXPECT_FALSE(bare.outside.journals.content.contains("journal 1"));
}

/// Beside its file, which holds another one.
void LeaveText(BareWorkbench& bare) {
  bare.files.Put("c:\\my\\a.b50", "BTN S1");
  bare.outside.journals.content["journal 1"] =
      HeadRecord({TextKind::Joystick, "c:\\my\\a.b50", "a.b50"}) + TextRecord(RichText("BTN S2"));
  bare.workbench.recovery.Look();
}

class CopiesNoted : public MemoryFiles {
 public:
  Outcome<> WriteCopy(std::string_view path, std::string_view content, std::string_view of) override {
    copies.push_back(std::string(path) + " of " + std::string(of));
    return MemoryFiles::WriteCopy(path, content, of);
  }
  std::vector<std::string> copies;
};

TEST(Journal, ATextThatIsKeptBesideItsFileIsNoMoreOpenThanThat) {
  CopiesNoted disk;
  BareWorkbench bare(&disk);
  LeaveText(bare);
  bare.workbench.recovery.KeepBoth("journal 1");
  EXPECT_THAT(disk.copies, testing::ElementsAre("c:\\my\\a-recovered.b50 of c:\\my\\a.b50"));
}

/// A disk that does not tell what has such a name.
class SilentOfRecovered : public MemoryFiles {
 public:
  Outcome<FileState> State(std::string_view path) const override {
    if (path.find("-recovered") != path.npos) return Failure{error::kPathAccess, "Input/output error", EIO};
    return MemoryFiles::State(path);
  }
};

TEST(Journal, ATextIsWrittenUnderNoNameThatMayBeTaken) {
  SilentOfRecovered disk;
  BareWorkbench bare(&disk);
  LeaveText(bare);
  const std::vector<std::string> before = disk.List();
  bare.workbench.recovery.KeepBoth("journal 1");
  EXPECT_EQ(disk.List(), before);
  EXPECT_TRUE(bare.outside.journals.content.contains("journal 1"));
}

TEST(Journal, NoMoreThanThirtyOldOnesStay) {
  BareWorkbench bare;
  for (int i = 0; i < 35; ++i) {
    const JournalHead head{TextKind::Joystick, "c:\\" + std::to_string(i) + ".b50", std::to_string(i)};
    bare.outside.journals.content["journal " + std::to_string(100 + i)] =
        HeadRecord(head) + TextRecord(RichText("x"));
  }
  bare.workbench.recovery.Look();
  ASSERT_THAT(bare.workbench.recovery.Texts(), SizeIs(30));
  EXPECT_EQ(bare.workbench.recovery.Texts().front().unsaved.head.name, "34");
  EXPECT_EQ(bare.workbench.recovery.Texts().back().unsaved.head.name, "5");
  EXPECT_THAT(bare.outside.journals.content, SizeIs(30));
}

TEST(Journal, OneTextIsOfferedOnce) {
  BareWorkbench bare;
  for (const char* const text : {"x", "x", "y"}) {
    const JournalHead head{TextKind::Joystick, "c:\\a.b50", "a.b50"};
    bare.outside.journals.content["journal " + TextOf(bare.outside.journals.content.size())] =
        HeadRecord(head) + TextRecord(RichText(text));
  }
  bare.workbench.recovery.Look();
  EXPECT_THAT(bare.workbench.recovery.Texts(), SizeIs(2));
  EXPECT_THAT(bare.outside.journals.content, SizeIs(2));
}

TEST(Journal, ADamagedOneGivesWhatIsWholeAndSaysSo) {
  BareWorkbench bare;
  bare.outside.journals.content["journal 1"] = WholeJournal() + "garbage";
  bare.outside.journals.content["journal 2"] = "nothing whole at all";
  bare.workbench.recovery.Look();
  ASSERT_THAT(bare.workbench.recovery.Texts(), SizeIs(1));
  EXPECT_EQ(bare.workbench.recovery.Describe(bare.workbench.recovery.Texts().front()),
            "c:\\my\\a.m50, later, in no file, the last of it damaged");
  EXPECT_THAT(bare.outside.journals.content, SizeIs(2)) << "nothing is thrown away by itself";
}

}  // namespace
}  // namespace tarvik
