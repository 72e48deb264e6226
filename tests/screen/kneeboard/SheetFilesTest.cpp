// The files that a kneeboard is written to, as other programs read them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QSvgRenderer>

#include "screen/kneeboard/Fonts.h"
#include "screen/kneeboard/SheetFiles.h"
#include "screen/kneeboard/SheetPainter.h"
#include "support/Geometry.h"
#include "support/HandMade.h"
#include "support/TemporaryFolder.h"

namespace tarvik::screen {
namespace {

using kneeboard::Amount;
using kneeboard::Options;
using kneeboard::Sheet;
using testing::HasSubstr;

class SheetFiles : public testing::Test {
 protected:
  explicit SheetFiles(Options options = {})
      : sheets_(kneeboard::SheetsOf(kneeboard::MadeOf(Amount::Full, 12), options, FontMeasure(), drawings_)) {
  }

  [[nodiscard]] PaintedSheets Painted() const { return {sheets_, drawings_}; }
  [[nodiscard]] QString Path(const char* name) const {
    return QString::fromStdString((folder_.path() / name).string());
  }
  [[nodiscard]] QStringList Names() const {
    return QDir(QString::fromStdString(folder_.path().string())).entryList(QDir::Files, QDir::Name);
  }

  static std::string OutputOf(const QString& program, const QStringList& words) {
    QProcess process;
    process.start(program, words);
    process.waitForFinished();
    return process.readAllStandardOutput().toStdString();
  }

  DeviceDrawings drawings_;
  std::vector<Sheet> sheets_;
  TemporaryFolder folder_;
};

class LandscapeFiles : public SheetFiles {
 protected:
  LandscapeFiles()
      : SheetFiles({.paper = kneeboard::Paper::Letter, .turned = kneeboard::Turned::Landscape}) {}
};

TEST_F(SheetFiles, APdfHasAllPagesInTheirSizeAndWordsThatCanBeSearched) {
  const QString path = Path("board.pdf");
  ASSERT_EQ(WritePdf(Painted(), path), QString());
  const std::string about = OutputOf(QStringLiteral("pdfinfo"), {path});
  EXPECT_THAT(about, HasSubstr("Pages:           " + std::to_string(sheets_.size()) + "\n"));
  EXPECT_THAT(about, HasSubstr("595 x 842 pts (A4)"));
  const std::string words = OutputOf(QStringLiteral("pdftotext"), {path, QStringLiteral("-")});
  EXPECT_THAT(words, HasSubstr("F-16 FLCS"));
  EXPECT_THAT(words, HasSubstr("Gear_Toggle_"));
}

TEST_F(SheetFiles, APdfHasNoPictures) {
  const QString path = Path("board.pdf");
  ASSERT_EQ(WritePdf(Painted(), path), QString());
  // Two lines of heading, and none for a picture.
  const std::string pictures = OutputOf(QStringLiteral("pdfimages"), {QStringLiteral("-list"), path});
  EXPECT_EQ(std::ranges::count(pictures, '\n'), 2) << pictures;
}

TEST_F(LandscapeFiles, APdfIsAsThePaperIsTurned) {
  const QString path = Path("board.pdf");
  ASSERT_EQ(WritePdf(Painted(), path), QString());
  EXPECT_THAT(OutputOf(QStringLiteral("pdfinfo"), {path}), HasSubstr("792 x 612 pts (letter)"));
}

TEST_F(SheetFiles, AnSvgIsWrittenForEachSheet) {
  ASSERT_GT(sheets_.size(), 1U);
  ASSERT_EQ(WriteSvg(Painted(), Path("board.svg")), QString());
  EXPECT_EQ(static_cast<std::size_t>(Names().size()), sheets_.size());
  QSvgRenderer renderer(Path("board-1.svg"));
  EXPECT_TRUE(renderer.isValid());
  QImage image(210, 297, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter);
  EXPECT_EQ(image.pixel(2, 2), qRgb(255, 255, 255)) << "on any ground it is as on paper";
  EXPECT_NEAR(renderer.viewBoxF().width() / renderer.viewBoxF().height(), 210.0 / 297, 0.001);
  QFile file(Path("board-1.svg"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_THAT(file.readAll().toStdString(), HasSubstr(">F-16 FLCS</text>"));
}

TEST_F(SheetFiles, ASingleSheetKeepsItsName) {
  sheets_.resize(1);
  ASSERT_EQ(WriteSvg(Painted(), Path("board.svg")), QString());
  ASSERT_EQ(WritePng(Painted(), Path("board.png"), 50), QString());
  EXPECT_EQ(Names(), (QStringList{QStringLiteral("board.png"), QStringLiteral("board.svg")}));
}

TEST_F(SheetFiles, APngHasTheResolutionThatIsWanted) {
  ASSERT_EQ(WritePng(Painted(), Path("board.png"), 100), QString());
  const QImage image(Path("board-1.png"));
  EXPECT_NEAR(image.width(), 210 / 25.4 * 100, 1);
  EXPECT_NEAR(image.height(), 297 / 25.4 * 100, 1);
  EXPECT_EQ(image.dotsPerMeterX(), 3937);
}

TEST_F(SheetFiles, WhatCannotBeWrittenIsTold) {
  EXPECT_THAT(WritePdf(Painted(), Path("none/board.pdf")).toStdString(), HasSubstr("none/board.pdf: "));
  EXPECT_THAT(WriteSvg(Painted(), Path("none/board.svg")).toStdString(), HasSubstr("none/board-1.svg: "));
  EXPECT_THAT(WritePng(Painted(), Path("none/board.png"), 50).toStdString(), HasSubstr("none/board-1.png: "));
}

TEST_F(SheetFiles, BlackAndWhiteHasNoColours) {
  PaintedSheets painted = Painted();
  painted.palette = Palette::BlackAndWhite();
  for (const Sheet& sheet : sheets_) EXPECT_TRUE(PictureOf(painted, sheet, 60).isGrayscale());
  EXPECT_FALSE(PictureOf(Painted(), sheets_.front(), 60).isGrayscale());
}

/// The real type is not as wide as that of the layout's own tests.
TEST_F(SheetFiles, CanBeReadInTheRealType) {
  for (const std::size_t letters : {5, 24, 49, 60}) {
    const auto sheets =
        kneeboard::SheetsOf(kneeboard::MadeOf(Amount::Full, letters), {}, FontMeasure(), drawings_);
    for (const Sheet& sheet : sheets) EXPECT_EQ(Faults(sheet, kneeboard::MarginOf({210, 297})), "");
  }
}

/// Where a picture is not white.
QRect DarkPart(const QImage& image) {
  QRect painted;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) < 128) painted |= QRect(x, y, 1, 1);
    }
  }
  return painted;
}

TEST_F(SheetFiles, WordsArePaintedWithinTheirArea) {
  const FontMeasure measure;
  kneeboard::Typesetter setter(measure);
  for (const char* text : {"Wgjpq_|", "ÄÖÜ Åy – 100 %", "WWWWWWWWWWWWWWWWWWWW", "iiiiiiiiii"}) {
    for (const bool bold : {false, true}) {
      Sheet sheet;
      sheet.width = 100;
      sheet.height = 20;
      kneeboard::PutWords(sheet, setter, text, {10, 5}, {9, bold});
      constexpr int kDots = 508;  // 20 in a millimetre
      const QRect painted = DarkPart(PictureOf(Painted(), sheet, kDots));
      const kneeboard::Area& area = sheet.words.front().area;
      EXPECT_GE(painted.left(), area.x * 20 - 3) << text;
      EXPECT_GE(painted.top(), area.y * 20 - 1) << text;
      EXPECT_LE(painted.right(), area.Right() * 20 + 3) << text;
      EXPECT_GE(painted.right(), area.Right() * 20 - 12) << text;
      EXPECT_LE(painted.bottom(), area.Bottom() * 20 + 1) << text;
    }
  }
}

}  // namespace
}  // namespace tarvik::screen
