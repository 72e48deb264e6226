// The hands of a random user: keys, chords, clicks, drags, the wheel, menu entries, close boxes, at whatever
// window takes them. They go through the toolkit's own delivery, so that shortcuts, pop-ups and modal windows
// count as they do in the program.
#pragma once

#include <QWidget>
#include <string>

#include "events/Chance.h"

namespace tarvik::events {

class Hands {
 public:
  explicit Hands(Chance& chance) : chance_(chance) {}

  /// Does one thing, and says what.
  std::string Act();
  /// Takes a step towards the end of whatever keeps the program waiting: lets go of the mouse, closes the
  /// pop-up or the modal window on top, else presses Escape.
  std::string GiveUp();

 private:
  [[nodiscard]] QWidget* Window();
  [[nodiscard]] QPoint PlaceIn(QWidget& window);
  std::string Key(QWidget& window);
  std::string Click(QWidget& window);
  std::string Drag(QWidget& window);
  std::string Wheel(QWidget& window);
  std::string Choose(QWidget& window);
  std::string Close(QWidget& window);
  std::string Resize(QWidget& window);

  Chance& chance_;
};

}  // namespace tarvik::events
