#include "text/Contrast.h"

#include <algorithm>
#include <cmath>

namespace tarvik {
namespace {

constexpr Colour kPaper = Rgb(230, 230, 230);  // letters on a dark background

/// How bright one of the three parts of a colour is, by the curve of sRGB (IEC 61966-2-1).
double Linear(unsigned part) {
  const double value = part / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double LuminanceOf(Colour colour) {
  return 0.2126 * Linear(RedOf(colour)) + 0.7152 * Linear(GreenOf(colour)) + 0.0722 * Linear(BlueOf(colour));
}

/// The colour with so many of 255 parts of the other one.
Colour Mixed(Colour colour, Colour with, unsigned parts) {
  const auto mix = [parts](unsigned own, unsigned other) {
    return (own * (255 - parts) + other * parts) / 255;
  };
  return Rgb(mix(RedOf(colour), RedOf(with)), mix(GreenOf(colour), GreenOf(with)),
             mix(BlueOf(colour), BlueOf(with)));
}

}  // namespace

double ContrastOf(Colour left, Colour right) {
  const auto [darker, lighter] = std::minmax({LuminanceOf(left), LuminanceOf(right)});
  return (lighter + 0.05) / (darker + 0.05);
}

Colour WithContrast(Colour ink, Colour background, double contrast) {
  if (ContrastOf(ink, background) >= contrast) return ink;
  const Colour end = ContrastOf(kWhite, background) > ContrastOf(kBlack, background) ? kWhite : kBlack;
  // Towards the end the contrast may fall first, while the ink has not passed the background yet.
  const bool lighter = end == kWhite;
  const double behind = LuminanceOf(background);
  unsigned low = 0;
  unsigned high = 255;
  while (low + 1 < high) {
    const unsigned middle = (low + high) / 2;
    const Colour mixed = Mixed(ink, end, middle);
    const bool hasPassed = lighter == (LuminanceOf(mixed) > behind);
    (hasPassed && ContrastOf(mixed, background) >= contrast ? high : low) = middle;
  }
  return Mixed(ink, end, high);
}

Colour LegibleInk(Colour ink, Colour background, Colour usual) {
  if (ink == kBlack && ContrastOf(kBlack, background) < kReadable) {
    return WithContrast(kPaper, background, kReadable);
  }
  return WithContrast(ink, background, std::min(kReadable, ContrastOf(ink, usual)));
}

}  // namespace tarvik
