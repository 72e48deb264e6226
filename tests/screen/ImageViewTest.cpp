// Pictures of all kinds, whole and broken, as they come from files.
#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <fstream>
#include <iterator>

#include "controls/Form.h"
#include "screen/QtPrinters.h"
#include "screen/widgets/ImageView.h"
#include "screen/widgets/Picture.h"

namespace tarvik::screen {
namespace {

constexpr QSize kSize(40, 20);
const QColor kColour(200, 30, 40);

std::string Encoded(const char* format, QSize size = kSize) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(kColour);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  EXPECT_TRUE(image.save(&buffer, format)) << format;
  return bytes.toStdString();
}

TEST(Pictures, OfEveryKindAreRead) {
  for (const char* const format : {"bmp", "jpg", "png"}) {
    const QImage picture = PictureIn(Encoded(format));
    ASSERT_EQ(picture.size(), kSize) << format;
    EXPECT_NEAR(picture.pixelColor(5, 5).red(), kColour.red(), 4) << format;
  }
  // Two points of a GIF, the left one red.
  constexpr unsigned char kGif[] = {0x47, 0x49, 0x46, 0x38, 0x39, 0x61, 0x02, 0x00, 0x01, 0x00, 0x80, 0x00,
                                    0x00, 0xFF, 0x00, 0x00, 0xFF, 0xFF, 0xFF, 0x2C, 0x00, 0x00, 0x00, 0x00,
                                    0x02, 0x00, 0x01, 0x00, 0x00, 0x02, 0x02, 0x44, 0x0A, 0x00, 0x3B};
  const QImage gif = PictureIn({reinterpret_cast<const char*>(kGif), sizeof kGif});
  ASSERT_EQ(gif.size(), QSize(2, 1));
  EXPECT_EQ(gif.pixelColor(0, 0), QColor(Qt::red));
}

/// A metafile with two squares of 200 units beside one another, a red one and a blue one, an accented
/// letter, and a picture of two green points at the upper left.
std::string Metafile(unsigned headOfPicture = 40) {
  std::string bytes;
  const auto words = [&bytes](std::initializer_list<unsigned> values) {
    for (const unsigned value : values) {
      bytes += static_cast<char>(value & 0xFF);
      bytes += static_cast<char>(value >> 8);
    }
  };
  words({0xCDD7, 0x9AC6, 0, 0, 0, 400, 200, 960, 0, 0, 0x5589});
  words({1, 9, 0x300, 103, 0, 2, 38, 0, 0});
  words({5, 0, 0x20B, 0, 0});      // the origin
  words({5, 0, 0x20C, 200, 400});  // the extent
  for (const unsigned square : {0U, 1U}) {
    const unsigned left = square * 200;
    words({7, 0, 0x2FC, 0, square ? 0U : 0xFFU, square ? 0xFFU : 0U, 0});  // a brush
    words({4, 0, 0x12D, square});                                          // is taken
    words({7, 0, 0x41B, 200, left + 200, 0, left});                        // for a rectangle
  }
  words({7, 0, 0x521, 1, 0xE9, 100, 300});
  words({38, 0, 0xF43, 0x20, 0xCC, 0, 1, 2, 0, 0, 50, 100, 0, 0});
  words({headOfPicture, 0, 2, 0, 1, 0, 1, 24, 0, 0, 8, 0, 0, 0, 0, 0, 0, 0, 0, 0});  // the picture's head
  words({0xFF00, 0x0000, 0x00FF, 0});                                                // and its points
  words({3, 0, 0});
  return bytes;
}

#ifdef TARVIK_WMF
TEST(Pictures, AreMetafilesToo) {
  const std::string whole = Metafile();
  const QImage picture = PictureIn(whole);
  EXPECT_EQ(picture.width(), 2048);
  EXPECT_NEAR(picture.height(), 1024, 50) << "with the lines around them";
  EXPECT_EQ(picture.pixelColor(500, 500), QColor(Qt::red));
  EXPECT_EQ(picture.pixelColor(1500, 500), QColor(Qt::blue));
  EXPECT_EQ(picture.pixelColor(200, 150), QColor(Qt::green));
  EXPECT_EQ(PictureIn(whole.substr(22)).pixelColor(100, 500), QColor(Qt::red))
      << "without the head that places it";
}
#endif

TEST(Pictures, ThatAreBrokenAreNone) {
  for (const char* const bytes : {"", "BM", "GIF89a", "no picture at all", "\xD7\xCD\xC6\x9A metafile"}) {
    EXPECT_TRUE(PictureIn(bytes).isNull()) << bytes;
  }
  for (const std::string& whole : {Encoded("png"), Metafile()}) {
    for (std::size_t length = 0; length < whole.size(); length += 7) {
      (void)PictureIn(std::string_view(whole).substr(0, length));
    }
  }
  // Every second word of a drawing says something else.
  const std::string drawing = Metafile();
  for (std::size_t at = 0; at + 1 < drawing.size(); at += 4) {
    std::string damaged = drawing;
    damaged.replace(at, 2, at % 8 == 0 ? "\xFF\x7F" : "\x01\xFF");
    (void)PictureIn(damaged);
  }
  // A head that promises more than any memory holds.
  std::string head = Encoded("bmp");
  for (const std::size_t at : {18U, 22U}) head.replace(at, 4, "\xFF\xFF\xFF\x7F");
  EXPECT_TRUE(PictureIn(head).isNull());
}

TEST(Pictures, OfAHundredMegapixelsAreMadeSmaller) {
  QImage large(10000, 10000, QImage::Format_Mono);
  large.fill(1);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  ASSERT_TRUE(large.save(&buffer, "png"));
  const QImage picture = PictureIn(bytes.toStdString());
  EXPECT_EQ(picture.size(), QSize(4096, 4096));
  EXPECT_EQ(PictureIn(Encoded("png", {20000, 1})).height(), 1);
}

TEST(Pictures, OfTheProgramIsOneThatItShows) {
  std::ifstream in(TARVIK_DATA "/tarvik.jpg", std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(in), {}};
  EXPECT_LE(bytes.size(), 150U * 1024);
  EXPECT_GE(PictureIn(bytes).width(), 800);
}

/// Waits for the picture that the reader has begun with last.
void Await(const PictureReader& reader) {
  while (reader.IsReading()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

TEST(Pictures, AreReadByAnotherProcess) {
  std::vector<QSize> read;
  PictureReader reader([&read](const QImage& picture) { read.push_back(picture.size()); });
  reader.Read(Encoded("png"));
  EXPECT_TRUE(reader.IsReading()) << "nobody waits for it";
  Await(reader);
  reader.Read("no picture");
  Await(reader);
  reader.Read("");
  EXPECT_EQ(read, (std::vector{kSize, QSize(0, 0), QSize(0, 0)}));
}

TEST(Pictures, ThatAreChosenLastWin) {
  std::vector<QSize> read;
  PictureReader reader([&read](const QImage& picture) { read.push_back(picture.size()); });
  reader.Read(Encoded("png"));
  reader.Read(Encoded("bmp", {3, 4}));
  Await(reader);
  EXPECT_EQ(read, std::vector{QSize(3, 4)});
}

TEST(Pictures, ThatTakeForEverAreNone) {
  constexpr std::chrono::milliseconds kPatience(1500);
  bool answered = false;
  PictureReader reader(
      [&answered](const QImage& picture) {
        answered = true;
        EXPECT_TRUE(picture.isNull());
      },
      kPatience);
  reader.Read(Metafile(0));  // libwmf goes round in circles over it
  Await(reader);
  EXPECT_TRUE(answered);
}

TEST(Pictures, ThatAreNotWrittenWholeAreNone) {
  EXPECT_TRUE(PictureOf("").isNull());
  QByteArray written(8 + 4, '\0');
  written[0] = written[4] = 1;
  EXPECT_EQ(PictureOf(written).size(), QSize(1, 1));
  EXPECT_TRUE(PictureOf(written.chopped(1)).isNull());
  written[7] = 0x7F;
  EXPECT_TRUE(PictureOf(written).isNull());
}

TEST(Pictures, KeepTheirProportionsOnScreen) {
  Form form("Form");
  ImageBox box(form, "Image1");
  Bindings bindings;
  ImageView view(box, bindings);
  view.resize(100, 100);
  const QColor empty = view.grab().toImage().pixelColor(50, 30);
  const auto load = [&](const char* path, const std::string& bytes) {
    box.Load(path, bytes);
    const QImage meanwhile = view.grab().toImage();
    while (view.IsReading()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_NE(view.grab().toImage(), meanwhile) << "nothing of it is shown before it is there";
  };
  load("c:\\a.png", Encoded("png"));
  const QImage shown = view.grab().toImage();
  EXPECT_EQ(shown.pixelColor(50, 30), kColour);
  EXPECT_EQ(shown.pixelColor(2, 50), kColour);
  EXPECT_EQ(shown.pixelColor(50, 20), empty);
  EXPECT_EQ(shown.pixelColor(50, 80), empty);
  // What is no picture takes the place of the one before, and says so.
  load("c:\\b.png", "broken");
  EXPECT_NE(view.grab().toImage(), shown);
  EXPECT_EQ(view.grab().toImage().pixelColor(50, 30), empty);
}

}  // namespace
}  // namespace tarvik::screen
