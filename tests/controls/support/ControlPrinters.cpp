#include "support/ControlPrinters.h"

namespace tarvik {
namespace {

std::string Shift(int state) {
  std::string text;
  if (state & shift::kCtrl) text += "Ctrl+";
  if (state & shift::kAlt) text += "Alt+";
  if (state & shift::kShift) text += "Shift+";
  return text;
}

}  // namespace

void PrintTo(const Key& key, std::ostream* out) { *out << "key " << Shift(key.shift) << key.code; }

void PrintTo(const Mouse& mouse, std::ostream* out) {
  *out << Shift(mouse.shift) << "button " << mouse.button << " at " << mouse.x.count << ", " << mouse.y.count
       << " twips";
}

void PrintTo(const Stroke& stroke, std::ostream* out) {
  *out << "line from " << stroke.x1 << ", " << stroke.y1 << " to " << stroke.x2 << ", " << stroke.y2 << ", "
       << ColourInWords(stroke.colour) << ", style " << stroke.style << ", width " << stroke.width;
}

}  // namespace tarvik
