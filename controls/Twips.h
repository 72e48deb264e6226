// The two units in which windows, controls and the pointer are placed, and what one makes in the other.
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

/// A length in pixels, parts of them included: so the editor measures what lies in it.
struct Pixels {
  float count = 0;

  constexpr Pixels() = default;
  constexpr explicit Pixels(float length) : count(length) {}
  constexpr explicit Pixels(int length) : count(static_cast<float>(length)) {}
  friend bool operator==(const Pixels&, const Pixels&) = default;
  friend constexpr bool operator<(Pixels one, Pixels other) { return one.count < other.count; }
};

constexpr Pixels InPixels(Twips length) { return Pixels{length.count / kTwipsPerPixel}; }
constexpr Twips InTwips(Pixels length) { return {length.count * kTwipsPerPixel}; }

}  // namespace tarvik
