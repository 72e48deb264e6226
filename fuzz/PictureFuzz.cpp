// Any bytes as what a decoder wrote: a picture comes out whose size is that of the bytes, or none. And now
// and then any bytes as a picture file, through a real decoder: this program, started once more.
#include <QCoreApplication>
#include <QEventLoop>
#include <cstdlib>
#include <optional>

#include "screen/widgets/Picture.h"
#include "screen/widgets/PictureReader.h"

namespace {

using namespace tarvik::screen;

void CheckPicture(const QByteArray& written) {
  constexpr qsizetype kHead = 8;
  const QImage picture = PictureOf(written);
  if (picture.isNull()) return;
  if (qsizetype{4} * picture.width() * picture.height() + kHead != written.size()) std::abort();
}

void CheckDecoder(std::string_view bytes) {
  QEventLoop loop;
  std::optional<QImage> decoded;
  PictureReader reader([&](const QImage& picture) {
    decoded = picture;
    loop.quit();
  });
  reader.Read(bytes);
  if (!decoded) loop.exec();
  if (decoded->width() > kLongestSide || decoded->height() > kLongestSide) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
  if (const auto status = RunAsDecoder(*count, *arguments)) _Exit(*status);
  static const QCoreApplication toolkit(*count, *arguments);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  constexpr std::size_t kSeldom = 1000;
  static std::size_t inputs = 0;
  CheckPicture(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  if (++inputs % kSeldom == 0) CheckDecoder({reinterpret_cast<const char*>(data), size});
  return 0;
}
