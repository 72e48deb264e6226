// tarvik_kneeboard_bench: the PDF of a full kneeboard beside as many pages that have a drawing and nothing
// else, and its layout beside the painting.
#include <QGuiApplication>

#include "Compare.h"
#include "screen/kneeboard/Fonts.h"
#include "screen/kneeboard/SheetFiles.h"
#include "support/HandMade.h"
#include "support/TemporaryFolder.h"

namespace {

using namespace tarvik;
using namespace tarvik::bench;
using kneeboard::Sheet;

/// As many sheets as there are, each with a drawing alone.
std::vector<Sheet> DrawingsAlone(const std::vector<Sheet>& sheets) {
  std::vector<Sheet> bare;
  for (const Sheet& sheet : sheets) {
    bare.emplace_back();
    bare.back().width = sheet.width;
    bare.back().height = sheet.height;
    bare.back().drawings = sheets.front().drawings;
  }
  return bare;
}

}  // namespace

int main(int count, char** words) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(count, words);
  const screen::DeviceDrawings drawings;
  const TemporaryFolder folder;
  const QString path = QString::fromStdString((folder.path() / "board.pdf").string());
  const kneeboard::Contents contents = kneeboard::MadeOf(kneeboard::Amount::Full, 14);
  const auto lay = [&] { return kneeboard::SheetsOf(contents, {}, screen::FontMeasure(), drawings); };
  const std::vector<Sheet> sheets = lay();
  const std::vector<Sheet> bare = DrawingsAlone(sheets);
  const auto write = [&](const std::vector<Sheet>& each) {
    return screen::WritePdf({each, drawings}, path).isEmpty();
  };
  bool holds = true;
  holds &= Report("PDF of a full pair, beside pages with a drawing alone",
                  Measure([&] { write(lay()); }, [&] { write(bare); }), Goal::AtMost, 5);
  holds &= Report("layout of a full pair, beside its PDF", Measure(lay, [&] { write(sheets); }), Goal::AtMost,
                  0.5);
  return holds ? 0 : 1;
}
