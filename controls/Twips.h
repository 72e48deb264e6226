// The unit in which windows and the pointer are placed, and what it makes in pixels.
#pragma once

namespace tarvik {

inline constexpr float kTwipsPerPixel = 15;

/// A length in twips, which mixes with no number of pixels.
struct Twips {
  float count = 0;

  friend bool operator==(const Twips&, const Twips&) = default;
  friend constexpr bool operator<(Twips one, Twips other) { return one.count < other.count; }
};

constexpr Twips operator-(Twips one, Twips other) { return {one.count - other.count}; }

/// The editor measures what lies in it in pixels, parts of them included.
constexpr float InPixels(Twips length) { return length.count / kTwipsPerPixel; }
constexpr Twips FromPixels(float pixels) { return {pixels * kTwipsPerPixel}; }
constexpr Twips FromPixels(int pixels) { return FromPixels(static_cast<float>(pixels)); }

}  // namespace tarvik
