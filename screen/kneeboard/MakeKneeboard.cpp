#include "screen/kneeboard/MakeKneeboard.h"

#include <QSaveFile>
#include <algorithm>

#include "language/Problems.h"
#include "pairs/PairFiles.h"
#include "pairs/PairOnDisk.h"
#include "screen/kneeboard/Fonts.h"
#include "screen/kneeboard/SheetFiles.h"
#include "text/CodePage.h"

namespace tarvik::screen {
namespace {

kneeboard::Contents ContentsOf(const model::FilePair& pair) {
  const model::NameIndex names(pair.joystick, pair.joystickText, pair.macros, pair.macroText);
  return kneeboard::ContentsOf(pair, names);
}

bool HasErrors(const model::FilePair& pair) {
  const auto isError = [](const model::Problem& each) {
    return each.rule->severity == model::Severity::Error;
  };
  return std::ranges::any_of(model::ProblemsIn(pair), isError);
}

/// Says what could not be written, and nothing where all is well.
QString WriteText(const kneeboard::Contents& contents, kneeboard::ListOrder order, const QString& path) {
  QSaveFile file(path);
  const std::string text = kneeboard::ListAsText(contents, order);
  const bool isWritten = file.open(QIODevice::WriteOnly) &&
                         file.write(text.data(), static_cast<qint64>(text.size())) >= 0 && file.commit();
  return isWritten ? QString() : QStringLiteral("%1: %2").arg(path, file.errorString());
}

QString Write(const kneeboard::Contents& contents, const Arguments& arguments) {
  const QString path = QString::fromStdString(arguments.output);
  if (arguments.format == Format::Text) return WriteText(contents, arguments.options.order, path);
  const DeviceDrawings drawings;
  const auto sheets = kneeboard::SheetsOf(contents, arguments.options, FontMeasure(), drawings);
  PaintedSheets painted = {sheets, drawings};
  painted.title = QString::fromStdString(contents.title.title);
  if (arguments.inks == kneeboard::Colouring::BlackAndWhite) painted.palette = Palette::BlackAndWhite();
  switch (arguments.format) {
    case Format::Svg:
      return WriteSvg(painted, path);
    case Format::Png:
      return WritePng(painted, path, arguments.dotsPerInch);
    default:
      return WritePdf(painted, path);
  }
}

Status Complain(const Streams& streams, const std::string& why) {
  streams.error << "tarvik-kneeboard: " << why << '\n';
  return kUnreadable;
}

}  // namespace

Status MakeKneeboard(int count, const char* const* words, const Streams& streams) {
  const auto read = ReadArguments(count, words, streams);
  if (const auto* status = std::get_if<Status>(&read)) return *status;
  const auto& arguments = std::get<Arguments>(read);
  if (pairs::RoleOf(arguments.file) == pairs::Role::None)
    return Complain(streams, arguments.file + ": Neither a joystick file nor a macro file by its ending");
  const auto pair = pairs::PairOnDisk::Read(arguments.file);
  if (!pair) return Complain(streams, pair.failure().text);
  const model::FilePair view = pair->View();
  const QString failure = Write(ContentsOf(view), arguments);
  if (!failure.isEmpty()) return Complain(streams, failure.toStdString());
  return HasErrors(view) ? kErrors : kFine;
}

}  // namespace tarvik::screen
