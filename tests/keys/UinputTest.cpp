// What is asked of uinput: two devices, one report a stroke, and each error told.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <cerrno>
#include <string>
#include <vector>

#include "keys/Uinput.h"

namespace tarvik::keys {
namespace {

using testing::ElementsAre;

/// What was asked, and which question fails.
struct Record {
  std::vector<std::string> calls;
  std::size_t failsAt = 0;  // from 1
  int error = EIO;

  int Note(std::string call, int answer) {
    calls.push_back(std::move(call));
    return failsAt == calls.size() ? -error : answer;
  }
};

class RecordedCalls : public UinputCalls {
 public:
  explicit RecordedCalls(Record& record) : record_(record) {}
  int Create(Kind kind) override {
    return kind == Kind::Keyboard ? record_.Note("keyboard", 1) : record_.Note("mouse", 2);
  }
  int Write(int device, unsigned type, unsigned code, int value) override {
    std::string call = std::to_string(device);
    for (const int each : {static_cast<int>(type), static_cast<int>(code), value}) {
      call.append(" ").append(std::to_string(each));
    }
    return record_.Note(std::move(call), 0);
  }
  void Destroy(int device) override { record_.Note("destroy " + std::to_string(device), 0); }

 private:
  Record& record_;
};

auto Make(Record& record) { return Uinput::Make(std::make_unique<RecordedCalls>(record)); }

TEST(Uinput, SendsAReportForEachStrokeAndEndsItsDevices) {
  Record record;
  {
    auto made = Make(record);
    Uinput& uinput = *std::get<0>(made);
    EXPECT_EQ(uinput.Send({KEY_A, true}), 0);
    EXPECT_EQ(uinput.Send({BTN_RIGHT, true}), 0);
    EXPECT_EQ(uinput.Send({KEY_A, false}), 0);
  }
  EXPECT_THAT(record.calls, ElementsAre("keyboard", "mouse", "1 1 30 1", "1 0 0 0", "2 1 273 1", "2 0 0 0",
                                        "1 1 30 0", "1 0 0 0", "destroy 2", "destroy 1"));
}

TEST(Uinput, TellsWhyTheKeyboardCantBeMade) {
  Record record{{}, 1, EACCES};
  EXPECT_EQ(std::get<int>(Make(record)), EACCES);
  EXPECT_THAT(record.calls, ElementsAre("keyboard"));
}

TEST(Uinput, AKeyboardGoesWhereTheMouseCantBeMade) {
  Record record{{}, 2, ENODEV};
  EXPECT_EQ(std::get<int>(Make(record)), ENODEV);
  EXPECT_THAT(record.calls, ElementsAre("keyboard", "mouse", "destroy 1"));
}

TEST(Uinput, TellsWhenAStrokeOrItsReportCantBeWritten) {
  for (const std::size_t at : {3U, 4U}) {
    Record record{{}, at, ENODEV};
    auto made = Make(record);
    EXPECT_EQ(std::get<0>(made)->Send({KEY_A, true}), ENODEV);
  }
}

/// On a machine without it the answer is the system's own.
TEST(Uinput, TheRealOneIsThereOrSaysWhyNot) {
  auto made = Uinput::Make(MakeUinputCalls());
  if (const int* const error = std::get_if<int>(&made)) {
    EXPECT_GT(*error, 0);
  } else {
    EXPECT_EQ(std::get<0>(made)->Send({KEY_F20, true}), 0);
    EXPECT_EQ(std::get<0>(made)->Send({KEY_F20, false}), 0);
  }
}

}  // namespace
}  // namespace tarvik::keys
