// Any bytes as what a decoder wrote: a picture comes out whose size is that of the bytes, or none. And any
// bytes as a picture file, of which the program itself reads only the kinds that it draws.
#include <QGuiApplication>
#include <cstdlib>

#include "screen/widgets/Metafile.h"
#include "screen/widgets/Picture.h"

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  static const QGuiApplication toolkit(*count, *arguments);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace tarvik::screen;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const QByteArray written(bytes.data(), static_cast<qsizetype>(size));
  const QImage picture = PictureOf(written);
  if (!picture.isNull() && qsizetype{4} * picture.width() * picture.height() + 8 != written.size())
    std::abort();
  const QImage decoded = PictureIn(bytes);
  if (decoded.width() > kLongestSide || decoded.height() > kLongestSide) std::abort();
  return 0;
}
