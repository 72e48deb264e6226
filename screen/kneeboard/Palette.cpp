#include "screen/kneeboard/Palette.h"

namespace tarvik::screen {

QColor Palette::Of(kneeboard::Colour colour) const {
  if (colour.ink == kneeboard::Ink::Heading) return headings.at(colour.heading % headings.size());
  return inks.at(static_cast<std::size_t>(colour.ink));
}

Palette Palette::Of(const kneeboard::Job& job) {
  if (job.colouring == kneeboard::Colouring::BlackAndWhite) return BlackAndWhite();
  Palette palette = Colours();
  if (!job.inks) return palette;
  const auto put = [&palette](kneeboard::Ink ink, tarvik::Colour colour) {
    palette.inks.at(static_cast<std::size_t>(ink)) =
        QColor::fromRgb(qRgb(static_cast<int>(RedOf(colour)), static_cast<int>(GreenOf(colour)),
                             static_cast<int>(BlueOf(colour))));
  };
  put(kneeboard::Ink::Accent, job.inks->accent);
  put(kneeboard::Ink::Alarm, job.inks->alarm);
  put(kneeboard::Ink::Dim, job.inks->dim);
  return palette;
}

Palette Palette::Colours() {
  return {
      {QColor(0x16, 0x1b, 0x20), QColor(0x54, 0x5f, 0x6a), QColor(0x15, 0x5a, 0x9c), QColor(0xb3, 0x26, 0x1e),
       QColor(0xb4, 0xbf, 0xca), QColor(Qt::white), QColor(0xe6, 0xee, 0xf6), QColor(Qt::black)},
      {QColor(0x1f, 0x6f, 0xb5), QColor(0xc7, 0x4a, 0x1c), QColor(0x2e, 0x8b, 0x57), QColor(0x8a, 0x4f, 0xb0),
       QColor(0xb8, 0x86, 0x0b), QColor(0x00, 0x8b, 0x9c), QColor(0xc2, 0x31, 0x6b), QColor(0x6b, 0x7d, 0x1e),
       QColor(0x4a, 0x5a, 0xc8), QColor(0x8a, 0x5a, 0x3c)}};
}

Palette Palette::BlackAndWhite() {
  Palette palette = {
      {QColor(Qt::black), QColor(0x40, 0x40, 0x40), QColor(Qt::black), QColor(Qt::black),
       QColor(0xa0, 0xa0, 0xa0), QColor(Qt::white), QColor(0xe8, 0xe8, 0xe8), QColor(Qt::black)},
      {},
      true};
  palette.headings.fill(QColor(Qt::black));
  return palette;
}

}  // namespace tarvik::screen
