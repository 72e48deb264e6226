#include "screen/widgets/Picture.h"

#include <sys/resource.h>

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <cstring>

#include "screen/widgets/Metafile.h"

namespace tarvik::screen {
namespace {

constexpr int kDrawingSide = 2048;    // of a picture that has no size in pixels
constexpr int kMostMegabytes = 1024;  // of memory for one picture
constexpr rlim_t kMostSeconds = 8;    // of the processor's time

/// What stands in front of the pixels, which are four bytes each, line by line.
struct Head {
  qint32 width;
  qint32 height;
};
constexpr auto kFormat = QImage::Format_ARGB32_Premultiplied;

void Limit(__rlimit_resource_t resource, rlim_t most) {
  const rlimit limit{most, most};
  setrlimit(resource, &limit);
}

void LimitThisProcess() {
  Limit(RLIMIT_CPU, kMostSeconds);
  Limit(RLIMIT_CORE, 0);
#ifndef TARVIK_SANITIZED
  // The sanitizers take more address space than any limit would leave them.
  constexpr rlim_t kMostMemory = rlim_t{2} << 30;
  Limit(RLIMIT_AS, kMostMemory);
#endif
}

QByteArray Written(const QImage& decoded) {
  const QImage picture = decoded.convertToFormat(kFormat);
  const Head head{picture.width(), picture.height()};
  QByteArray written(reinterpret_cast<const char*>(&head), sizeof head);
  for (int line = 0; line < picture.height(); ++line) {
    written.append(reinterpret_cast<const char*>(picture.constScanLine(line)),
                   qsizetype{4} * picture.width());
  }
  return written;
}

}  // namespace

QImage PictureIn(std::string_view bytes) {
  if (QImage drawing = MetafileIn(bytes, kDrawingSide); !drawing.isNull()) return drawing;
  QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&data);
  QImageReader reader(&buffer);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  QImageReader::setAllocationLimit(kMostMegabytes);
  const QSize size = reader.size();
  if (size.width() > kLongestSide || size.height() > kLongestSide) {
    reader.setScaledSize(size.scaled(kLongestSide, kLongestSide, Qt::KeepAspectRatio).expandedTo({1, 1}));
  }
  return reader.read();
}

std::optional<int> RunAsDecoder(int count, char** arguments) {
  if (count != 2 || std::strcmp(arguments[1], kDecodeArgument) != 0) return {};
  LimitThisProcess();
  // Text in a drawing needs the toolkit, but no desktop.
  qunsetenv("QT_QPA_PLATFORMTHEME");
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication toolkit(count, arguments);
  QFile in;
  QFile out;
  const bool open = in.open(stdin, QIODevice::ReadOnly) && out.open(stdout, QIODevice::WriteOnly);
  const QByteArray bytes = open ? in.readAll() : QByteArray();
  const QImage picture = PictureIn({bytes.constData(), static_cast<std::size_t>(bytes.size())});
  if (picture.isNull()) return 1;
  const QByteArray written = Written(picture);
  return out.write(written) == written.size() && out.flush() ? 0 : 1;
}

QImage PictureOf(const QByteArray& written) {
  Head head{};
  if (written.size() < qsizetype{sizeof head}) return {};
  std::memcpy(&head, written.constData(), sizeof head);
  const auto fits = [](int side) { return side > 0 && side <= kLongestSide; };
  if (!fits(head.width) || !fits(head.height)) return {};
  const qsizetype line = qsizetype{4} * head.width;
  if (written.size() != qsizetype{sizeof head} + line * head.height) return {};
  QImage picture(head.width, head.height, kFormat);
  for (int at = 0; at < head.height && !picture.isNull(); ++at) {
    std::memcpy(picture.scanLine(at), written.constData() + sizeof head + line * at,
                static_cast<std::size_t>(line));
  }
  return picture;
}

}  // namespace tarvik::screen
