// A picture that is drawn on by code, in units of its own. What was drawn stays until it is cleared; whoever
// shows it keeps it.
#pragma once

#include "controls/Controls.h"

namespace tarvik {

/// How lines are drawn.
namespace drawstyle {
inline constexpr int kSolid = 0;
inline constexpr int kDots = 2;
}  // namespace drawstyle

/// A line with both its ends, in the picture's units; a point where they are the same.
struct Stroke {
  float x1 = 0;
  float y1 = 0;
  float x2 = 0;
  float y2 = 0;
  Colour colour = kBlack;
  int style = drawstyle::kSolid;
  int width = 1;  ///< pixels
};

class PlotBox : public PictureBox {
 public:
  using PictureBox::PictureBox;

  Property<Colour> ForeColor{*this, "ForeColor", kBlack};
  Property<int> DrawStyle{*this, "DrawStyle", drawstyle::kSolid};
  Property<int> DrawWidth{*this, "DrawWidth", 1};
  /// The value at the upper left corner in both directions, and the one at the lower right corner.
  Property<float> ScaleLow{*this, "ScaleLow", 0};
  Property<float> ScaleHigh{*this, "ScaleHigh", 1};

  void Scale(float low, float high) {
    ScaleLow = low;
    ScaleHigh = high;
  }
  void Cls() { Cleared(); }
  void Line(float x1, float y1, float x2, float y2, Colour colour) {
    Drawn({x1, y1, x2, y2, colour, DrawStyle, DrawWidth});
  }
  void PSet(float x, float y, Colour colour) { Line(x, y, x, y, colour); }

  Signal<const Stroke&> Drawn;
  Signal<> Cleared;
};

}  // namespace tarvik
