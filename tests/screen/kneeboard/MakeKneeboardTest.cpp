// tarvik-kneeboard as a user calls it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <filesystem>
#include <sstream>

#include "screen/kneeboard/MakeKneeboard.h"
#include "support/TemporaryFolder.h"

namespace tarvik::screen {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class MakeKneeboard : public testing::Test {
 protected:
  Status Make(const std::vector<std::string>& words) {
    std::vector<const char*> all = {"tarvik-kneeboard"};
    for (const std::string& word : words) all.push_back(word.c_str());
    std::ostringstream out;
    std::ostringstream error;
    const Status status = screen::MakeKneeboard(static_cast<int>(all.size()), all.data(), {out, error});
    error_ = error.str();
    return status;
  }

  [[nodiscard]] std::string Path(const std::string& name) const { return (folder_.path() / name).string(); }
  [[nodiscard]] std::string ContentOf(const std::string& name) const {
    std::ifstream in(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  std::string Pair() {
    folder_.Put("gun.m50", "Gun_Trigger = SPC\r\n");
    return folder_.Put("gun.b50", "USE TQS\r\nMDEF gun\r\nBTN S1 Gun_Trigger\r\n").string();
  }

  TemporaryFolder folder_;
  std::string error_;
};

TEST_F(MakeKneeboard, WritesAPdf) {
  EXPECT_EQ(Make({Pair(), "-o", Path("gun.pdf")}), kFine);
  EXPECT_THAT(ContentOf("gun.pdf"), StartsWith("%PDF-"));
  EXPECT_THAT(error_, IsEmpty());
}

TEST_F(MakeKneeboard, WritesPicturesAndText) {
  EXPECT_EQ(Make({Pair(), "-o", Path("gun.svg")}), kFine);
  EXPECT_THAT(ContentOf("gun-1.svg"), HasSubstr(">Gun trigger</text>"));
  EXPECT_EQ(Make({Pair(), "-o", Path("gun.png"), "--resolution", "50"}), kFine);
  EXPECT_NEAR(QImage(QString::fromStdString(Path("gun-1.png"))).width(), 210 / 25.4 * 50, 1);
  EXPECT_EQ(Make({Pair(), "-o", Path("gun.txt")}), kFine);
  EXPECT_THAT(ContentOf("gun.txt"), HasSubstr("Gun trigger"));
}

TEST_F(MakeKneeboard, TheTitleTellsWhichOfTheSticksWithOneEndingItIs) {
  const auto headed = [this](const std::string& title) {
    const std::string file = folder_.Put("a.adv", title + "\r\nBTN TG SPC\r\n").string();
    EXPECT_EQ(Make({file, "-o", Path("a.txt")}), kFine) << error_;
    const std::string text = ContentOf("a.txt");
    for (const char* const stick : {"PFCS", "Top Gun", "FCS", "F-22 Pro"}) {
      if (text.find("\n" + std::string(stick) + "\n---") != std::string::npos) return std::string(stick);
    }
    return text;
  };
  EXPECT_EQ(headed("Rem"), "PFCS");
  EXPECT_EQ(headed("Rem     For: Top Gun, WCS, RCS. combination"), "Top Gun");
  EXPECT_EQ(headed("Rem\r\n~ for: fcs + WCS"), "FCS");
  EXPECT_EQ(headed("Rem For: FCS"), "FCS");
  EXPECT_EQ(headed("Rem For: P FCS, no throttle"), "PFCS");
  EXPECT_EQ(headed("Rem For: FCSomething"), "PFCS");
  EXPECT_EQ(headed("Rem For: F22 Pro"), "PFCS");
  EXPECT_EQ(headed("BTN LB a\r\nRem For: Top Gun"), "PFCS");
}

TEST_F(MakeKneeboard, ErrorsInTheFilesAreToldByTheStatus) {
  const std::string wrong = folder_.Put("wrong.b50", "FIRE\r\nBTN S1 SPC\r\n").string();
  EXPECT_EQ(Make({wrong, "-o", Path("wrong.svg"), "--pages", "devices"}), kErrors);
  EXPECT_TRUE(std::filesystem::exists(Path("wrong.svg")) || std::filesystem::exists(Path("wrong-1.svg")));
}

TEST_F(MakeKneeboard, WhatCannotBeReadOrWrittenIsTold) {
  EXPECT_EQ(Make({Path("none.b50"), "-o", Path("a.pdf")}), kUnreadable);
  EXPECT_THAT(error_, HasSubstr("none.b50: No such file"));
  EXPECT_EQ(Make({Path("none.doc"), "-o", Path("a.pdf")}), kUnreadable);
  EXPECT_THAT(error_, HasSubstr("Neither a joystick file nor a macro file by its ending"));
  EXPECT_FALSE(std::filesystem::exists(Path("a.pdf")));
  EXPECT_EQ(Make({Pair(), "-o", Path("none/a.pdf")}), kUnreadable);
  EXPECT_THAT(error_, HasSubstr("none/a.pdf: "));
}

}  // namespace
}  // namespace tarvik::screen
