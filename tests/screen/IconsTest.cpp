// The drawings: each name that the program uses has one, no two are alike, and each is seen on light and
// dark. What shows them: menus like the toolbar, and buttons that stay pressed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QPalette>
#include <QToolButton>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>

#include "ProgramOnScreen.h"
#include "app/EditorTables.h"
#include "screen/widgets/Icons.h"

namespace tarvik::screen {
namespace {

namespace fs = std::filesystem;

constexpr double kLeastContrast = 3;
constexpr int kSolid = 255;     // alpha of a pixel that a line covers
constexpr int kLeastSeen = 10;  // pixels of the smallest drawing

std::string ContentOf(const fs::path& path) {
  std::ifstream in(path);
  return {std::istreambuf_iterator<char>(in), {}};
}

fs::path Root() { return fs::path(TARVIK_DATA).parent_path(); }

/// Names in quotes in what the screen is made of: each drawing is called by one of them.
std::set<std::string> NamesHandedOver() {
  std::set<std::string> names;
  const std::regex use(R"re((?:\bIcon|AddAction)\(\s*"([a-z-]+)"|WithIcon\([^"{]*"([a-z-]+)")re");
  for (const auto& entry : fs::recursive_directory_iterator(Root() / "screen")) {
    if (entry.path().extension() != ".cpp") continue;
    const std::string code = ContentOf(entry.path());
    for (std::sregex_iterator at(code.begin(), code.end(), use), end; at != end; ++at)
      names.insert((*at)[1].matched ? (*at)[1] : (*at)[2]);
  }
  return names;
}

std::set<std::string> NamesInUse() {
  std::set<std::string> names = NamesHandedOver();
  for (const tables::ToolbarRow& row : tables::kToolbar) names.insert(row.icon);
  names.insert({"state-empty", "state-saved", "state-modified", "tab-file", "tab-protected"});
  names.erase("tarvik");  // the program's own picture, which has a ground of its own
  return names;
}

std::set<std::string> Drawings() {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(Root() / "data" / "icons"))
    if (entry.path().extension() == ".svg") names.insert(entry.path().stem());
  names.erase("tarvik");
  return names;
}

double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor Over(const QColor& ground, const QColor& ink) {
  const auto mixed = [&ink](float below, float above) { return below + (above - below) * ink.alphaF(); };
  return QColor::fromRgbF(mixed(ground.redF(), ink.redF()), mixed(ground.greenF(), ink.greenF()),
                          mixed(ground.blueF(), ink.blueF()));
}

class Icons : public testing::TestWithParam<const char*> {
 protected:
  Icons() {
    const QColor window{QLatin1String(GetParam())};
    QPalette palette(window);
    palette.setColor(QPalette::WindowText, window.lightness() < 128 ? Qt::white : Qt::black);
    QApplication::setPalette(palette);
  }
  ~Icons() override { QApplication::setPalette(before_); }

 private:
  QPalette before_ = QApplication::palette();
};

TEST_P(Icons, AreSeenOnTheWindowAtEachSize) {
  const QColor window = QApplication::palette().color(QPalette::Window);
  for (const std::string& name : NamesInUse()) {
    for (const int size : {16, 24}) {
      const QImage image = Icon(name).pixmap(size).toImage();
      int seen = 0;
      for (int at = 0; at < image.width() * image.height(); ++at) {
        const QColor pixel = image.pixelColor(at % image.width(), at / image.width());
        const double contrast = Contrast(Over(window, pixel), window);
        if (contrast >= kLeastContrast) ++seen;
        EXPECT_TRUE(pixel.alpha() < kSolid || contrast >= kLeastContrast) << name << " " << size;
      }
      EXPECT_GE(seen, kLeastSeen) << name << " " << size;
    }
  }
}

TEST_P(Icons, AreNoTwoAlike) {
  std::map<QByteArray, std::string> seen;
  for (const std::string& name : Drawings()) {
    const QImage image = Icon(name).pixmap(16).toImage().convertToFormat(QImage::Format_Alpha8);
    const QByteArray shape(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
    const auto [at, isNew] = seen.emplace(shape, name);
    EXPECT_TRUE(isNew) << name << " looks like " << at->second;
  }
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, Icons, testing::Values("#efefef", "#2b2e33"));

TEST(DrawingsTest, AreThereForEachNameInUseAndForNoOther) { EXPECT_EQ(Drawings(), NamesInUse()); }

TEST(MenuPictures, AreThoseOfTheToolbar) {
  const ProgramOnScreen program;
  const Editor& editor = program.application.editor();
  for (const tables::ToolbarRow& row : tables::kToolbar) {
    const MenuItem& entry = editor.menus(row.entry);
    EXPECT_EQ(entry.Image.Get(), row.icon);
    EXPECT_EQ(program.Find<QAction>(entry).icon().isNull(), entry.Checked.Get()) << row.entry;
  }
  EXPECT_EQ(editor.popUps("mnuRHMCut").Image.Get(), "cut");
  EXPECT_FALSE(program.Find<QAction>(editor.popUps("mnuRHMCut")).icon().isNull());
  EXPECT_TRUE(program.Find<QAction>(editor.popUps("mnuRHMDelete")).icon().isNull());
}

TEST(MenuPictures, LeaveTheCheckMarkItsPlace) {
  const ProgramOnScreen program;
  MenuItem& entry = program.application.editor().mnuViewTileVertically;
  const auto& action = program.Find<QAction>(entry);
  EXPECT_FALSE(action.icon().isNull());
  entry.Checked = true;
  EXPECT_TRUE(action.isChecked());
  EXPECT_TRUE(action.icon().isNull());
  entry.Checked = false;
  EXPECT_FALSE(action.icon().isNull());
}

constexpr int kTileButton = 30;

TEST(ToolbarButtons, StayPressedWhileTheirEntryIsOn) {
  const ProgramOnScreen program;
  Editor& editor = program.application.editor();
  auto& button = program.Find<QToolButton>(program.application.mum().Toolbar1.Buttons(kTileButton));
  EXPECT_FALSE(button.isChecked());
  const QImage released = button.grab().toImage();
  button.click();
  EXPECT_TRUE(editor.mnuViewTileVertically.Checked);
  EXPECT_TRUE(button.isChecked());
  EXPECT_NE(button.grab().toImage(), released);
  button.click();
  EXPECT_FALSE(editor.mnuViewTileVertically.Checked);
  EXPECT_FALSE(button.isChecked());
}

}  // namespace
}  // namespace tarvik::screen
