// Strokes arrive whole however their bytes come, and nothing stays down.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <vector>

#include "keys/Sender.h"

namespace tarvik::keys {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Stroke = keypipe::Stroke;

class Recorder : public KeyDevice {
 public:
  int Send(const Stroke& stroke) override {
    sent.push_back(stroke);
    return failsAt == sent.size() ? EIO : 0;
  }
  std::vector<Stroke> sent;
  std::size_t failsAt = 0;
};

std::string Bytes(std::initializer_list<Stroke> strokes) {
  std::string bytes;
  for (const Stroke& stroke : strokes) {
    for (const unsigned char byte : keypipe::Packed(stroke)) bytes.push_back(static_cast<char>(byte));
  }
  return bytes;
}

TEST(Sender, TakesStrokesByteByByte) {
  Recorder recorder;
  Sender sender(recorder);
  for (const char byte : Bytes({{30, true}, {0x110, true}, {30, false}}))
    EXPECT_EQ(sender.Take({&byte, 1}), 0);
  EXPECT_THAT(recorder.sent, ElementsAre(Stroke{30, true}, Stroke{0x110, true}, Stroke{30, false}));
}

TEST(Sender, ItsEndLetsGoOfWhatIsDown) {
  Recorder recorder;
  {
    Sender sender(recorder);
    sender.Take(Bytes({{30, true}, {48, true}, {30, false}}) + "\x2A");
    recorder.sent.clear();
  }
  EXPECT_THAT(recorder.sent, ElementsAre(Stroke{48, false}));
}

TEST(Sender, WhatIsDownGoesDownOnce) {
  Recorder recorder;
  Sender sender(recorder);
  sender.Take(Bytes({{30, true}, {30, true}, {48, false}}));
  EXPECT_THAT(recorder.sent, ElementsAre(Stroke{30, true}));
}

TEST(Sender, NothingIsSentBehindTheEnd) {
  Recorder recorder;
  Sender sender(recorder);
  sender.Take(Bytes({{30, true}}));
  sender.End();
  recorder.sent.clear();
  EXPECT_EQ(sender.Take(Bytes({{48, true}})), 0);
  EXPECT_THAT(recorder.sent, IsEmpty());
}

TEST(Sender, AnErrorLetsGoOfAllAndIsTold) {
  Recorder recorder;
  recorder.failsAt = 2;
  Sender sender(recorder);
  EXPECT_EQ(sender.Take(Bytes({{30, true}, {48, true}, {46, true}})), EIO);
  EXPECT_THAT(recorder.sent,
              ElementsAre(Stroke{30, true}, Stroke{48, true}, Stroke{30, false}, Stroke{48, false}));
}

TEST(Sender, PositionsThatNoKeyHasAreIgnored) {
  Recorder recorder;
  Sender sender(recorder);
  EXPECT_EQ(sender.Take("\xFF\xFF\x01"), 0);
  EXPECT_THAT(recorder.sent, IsEmpty());
}

}  // namespace
}  // namespace tarvik::keys
